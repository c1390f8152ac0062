//===- korvid/ParseTree/Program.h - Words, programs, the tree root -*- C++ -*-===//
//
// The root of a parse tree (Program), which owns every node of the tree, the
// source units (one per program, nested programs inside their parent), and
// the word nodes that every other family refers to.
//
//===----------------------------------------------------------------------===//
#ifndef KORVID_PARSETREE_PROGRAM_H
#define KORVID_PARSETREE_PROGRAM_H

#include "korvid/ParseTree/Node.h"

#include <cstdint>
#include <deque>
#include <list>
#include <memory>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

namespace korvid {

/// A COBOL word (user-defined word, reserved word, level number, picture
/// string): as written, and as the parser normalised it (upper case).
class Word : public Node {
public:
  Word() = default;
  Word(std::string Normalised, std::string AsWritten)
      : WordData(std::move(Normalised)), WordDataOrg(std::move(AsWritten)) {}

  /// The word as the parser normalised it; used for comparisons.
  const std::string &getWordData() const { return WordData; }
  /// The word as written in the source.
  const std::string &getWordDataOrg() const { return WordDataOrg; }

  void setWordData(std::string S) { WordData = std::move(S); }
  void setWordDataOrg(std::string S) { WordDataOrg = std::move(S); }

private:
  std::string WordData;
  std::string WordDataOrg;
};

/// A qualified name "A OF B OF C": the rear word is the name at this level,
/// the front word the next qualifier level (null at the end of the chain).
class QualifiedWord : public Node {
public:
  QualifiedWord() = default;
  QualifiedWord(QualifiedWord *Front, Word *Rear)
      : FrontWord(Front), RearWord(Rear) {}

  QualifiedWord *getFrontWord() const { return FrontWord; }
  Word *getRearWord() const { return RearWord; }

  void setFrontWord(QualifiedWord *W) { FrontWord = W; }
  void setRearWord(Word *W) { RearWord = W; }

private:
  QualifiedWord *FrontWord = nullptr;
  Word *RearWord = nullptr;
};

/// The END PROGRAM phrase of a source unit.
class EndProgramPhrase : public Node {
public:
  Word *getProgramName() const { return ProgramName; }
  void setProgramName(Word *W) { ProgramName = W; }

private:
  Word *ProgramName = nullptr;
};

/// One program of a source file, with its nested programs.
class SourceUnit : public Node {
public:
  IdentificationDivision *getIDDivision() const { return IDDivision; }
  EnvironmentDivision *getEnvironmentDivision() const { return EnvDivision; }
  DataDivision *getDataDivision() const { return DataDiv; }
  ProcedureDivision *getProcDiv() const { return ProcDiv; }
  EndProgramPhrase *getEndProgram() const { return EndProgram; }

  unsigned long getNestedListSize() const { return NestedList.size(); }
  NodeList<SourceUnit>::const_iterator getNestedListBegin() const {
    return NestedList.begin();
  }
  NodeList<SourceUnit>::const_iterator getNestedListEnd() const {
    return NestedList.end();
  }

  void setIDDivision(IdentificationDivision *D) { IDDivision = D; }
  void setEnvironmentDivision(EnvironmentDivision *D) { EnvDivision = D; }
  void setDataDivision(DataDivision *D) { DataDiv = D; }
  void setProcDiv(ProcedureDivision *D) { ProcDiv = D; }
  void setEndProgram(EndProgramPhrase *E) { EndProgram = E; }
  void addNested(SourceUnit *U) { NestedList.push_back(U); }

private:
  IdentificationDivision *IDDivision = nullptr;
  EnvironmentDivision *EnvDivision = nullptr;
  DataDivision *DataDiv = nullptr;
  ProcedureDivision *ProcDiv = nullptr;
  EndProgramPhrase *EndProgram = nullptr;
  NodeList<SourceUnit> NestedList;
};

/// A COPY statement: the member's name, the file holding the COPY
/// statement, and the line of the COPY statement in that file.
struct CopybookInformation {
  std::string CopybookName;
  std::string FromFile;
  int32_t Line = 0;
};

/// A problem the parser met: the node at which it was found (never null),
/// the offending text, and the message.
class ParseError {
public:
  ParseError(Node *At, std::string Text, std::string Message)
      : ErrorNode(At), ErrorString(std::move(Text)),
        ErrorMessage(std::move(Message)) {}

  Node *getErrorNode() const { return ErrorNode; }
  std::string getErrorString() const { return ErrorString; }
  std::string getErrorMessage() const { return ErrorMessage; }

private:
  Node *ErrorNode;
  std::string ErrorString;
  std::string ErrorMessage;
};

/// The root of a parse tree: the programs of one source file, the COPY
/// members it used and missed, and the parse errors.
///
/// The Program owns every node of its tree. Nodes are made with create<T>()
/// and live until the Program is destroyed; nothing else frees a node.
/// File names are interned once per tree with internFileName().
///
/// \code
///   korvid::Program P("main.cbl");
///   korvid::SourceRange R = P.range("main.cbl", 3, 8, 3, 12);
///   korvid::Word *W = P.create<korvid::Word>("ALPHA", "alpha");
///   W->setLocation(R);
/// \endcode
class Program : public Node {
public:
  explicit Program(std::string InputName = std::string());
  ~Program() override;

  const std::string &getInputName() const { return InputName; }

  unsigned long getSourceUnitListSize() const { return SourceUnitList.size(); }
  NodeList<SourceUnit>::const_iterator getSourceUnitListBegin() const {
    return SourceUnitList.begin();
  }
  NodeList<SourceUnit>::const_iterator getSourceUnitListEnd() const {
    return SourceUnitList.end();
  }

  std::list<CopybookInformation *> getMissingCopybookList() const {
    return MissingCopybookList;
  }
  std::list<CopybookInformation *> getCopyTargetList() const {
    return CopyTargetList;
  }
  std::list<ParseError *> getErrorList() const { return ErrorList; }

  // --- Construction --------------------------------------------------------
  /// Makes a node owned by this tree.
  template <class T, class... Args> T *create(Args &&...A) {
    T *N = new T(std::forward<Args>(A)...);
    Nodes.emplace_back(N);
    return N;
  }

  /// The one copy of \p Name held by this tree, for SourceRange::File.
  const std::string *internFileName(const std::string &Name);
  /// A range in the file \p Name (interned).
  SourceRange range(const std::string &Name, uint32_t BeginLine,
                    uint32_t BeginColumn, uint32_t EndLine,
                    uint32_t EndColumn);

  void setInputName(std::string Name) { InputName = std::move(Name); }
  void addSourceUnit(SourceUnit *U) { SourceUnitList.push_back(U); }
  /// Records a COPY member that could not be found.
  CopybookInformation *addMissingCopybook(std::string Name,
                                          std::string FromFile, int32_t Line);
  /// Records a COPY member that was found and copied.
  CopybookInformation *addCopyTarget(std::string Name, std::string FromFile,
                                     int32_t Line);
  /// Records a parse error found at \p At, which must not be null.
  ParseError *addError(Node *At, std::string Text, std::string Message);

  /// Number of nodes the tree owns (the Program itself not counted).
  size_t getNodeCount() const { return Nodes.size(); }

private:
  std::string InputName;
  NodeList<SourceUnit> SourceUnitList;
  std::list<CopybookInformation *> MissingCopybookList;
  std::list<CopybookInformation *> CopyTargetList;
  std::list<ParseError *> ErrorList;

  std::vector<std::unique_ptr<Node>> Nodes;
  std::deque<CopybookInformation> Copybooks;
  std::deque<ParseError> Errors;
  std::unordered_set<std::string> FileNames;
};

} // namespace korvid

#endif // KORVID_PARSETREE_PROGRAM_H
