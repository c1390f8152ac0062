//===- lib/ParseTree/Node.cpp - Base of every parse-tree node -------------===//

#include "korvid/ParseTree/Node.h"

namespace korvid {

Node::~Node() = default;

const std::string &Node::fileOf(const SourceRange &R) {
  static const std::string NoFile;
  return R.File ? *R.File : NoFile;
}

static std::string printLocation(const SourceRange &R) {
  std::string S;
  if (R.File && !R.File->empty()) {
    S = *R.File;
    S += ':';
  }
  S += std::to_string(R.BeginLine);
  S += ':';
  S += std::to_string(R.BeginColumn);
  return S;
}

std::string Node::getLocString() { return printLocation(Expanded); }
std::string Node::getLocStringOrg() { return printLocation(Written); }

void Node::setExtent(const Node *First, const Node *Last) {
  if (First) {
    Expanded.BeginLine = First->Expanded.BeginLine;
    Expanded.BeginColumn = First->Expanded.BeginColumn;
    Expanded.File = First->Expanded.File;
    Written.BeginLine = First->Written.BeginLine;
    Written.BeginColumn = First->Written.BeginColumn;
    Written.File = First->Written.File;
  }
  if (Last) {
    Expanded.EndLine = Last->Expanded.EndLine;
    Expanded.EndColumn = Last->Expanded.EndColumn;
    Written.EndLine = Last->Written.EndLine;
    Written.EndColumn = Last->Written.EndColumn;
  }
}

} // namespace korvid
