//===- lib/ParseTree/Program.cpp - The root of a parse tree ---------------===//

#include "korvid/ParseTree/Program.h"

namespace korvid {

Program::Program(std::string Name) : InputName(std::move(Name)) {}

Program::~Program() = default;

const std::string *Program::internFileName(const std::string &Name) {
  return &*FileNames.insert(Name).first;
}

SourceRange Program::range(const std::string &Name, uint32_t BeginLine,
                           uint32_t BeginColumn, uint32_t EndLine,
                           uint32_t EndColumn) {
  SourceRange R;
  R.BeginLine = BeginLine;
  R.BeginColumn = BeginColumn;
  R.EndLine = EndLine;
  R.EndColumn = EndColumn;
  R.File = internFileName(Name);
  return R;
}

CopybookInformation *Program::addMissingCopybook(std::string Name,
                                                 std::string FromFile,
                                                 int32_t Line) {
  Copybooks.push_back({std::move(Name), std::move(FromFile), Line});
  MissingCopybookList.push_back(&Copybooks.back());
  return &Copybooks.back();
}

CopybookInformation *Program::addCopyTarget(std::string Name,
                                            std::string FromFile,
                                            int32_t Line) {
  Copybooks.push_back({std::move(Name), std::move(FromFile), Line});
  CopyTargetList.push_back(&Copybooks.back());
  return &Copybooks.back();
}

ParseError *Program::addError(Node *At, std::string Text,
                              std::string Message) {
  Errors.emplace_back(At, std::move(Text), std::move(Message));
  ErrorList.push_back(&Errors.back());
  return &Errors.back();
}

} // namespace korvid
