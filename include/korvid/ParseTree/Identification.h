//===- korvid/ParseTree/Identification.h - IDENTIFICATION DIVISION -*- C++ -*-===//
//
// The IDENTIFICATION DIVISION of a program. Its PROGRAM-ID paragraph names the
// program and carries the RECURSIVE, COMMON and INITIAL attributes; the other
// paragraphs (AUTHOR, DATE-WRITTEN and the like) are comment entries that the
// tree does not keep.
//
//===----------------------------------------------------------------------===//
#ifndef KORVID_PARSETREE_IDENTIFICATION_H
#define KORVID_PARSETREE_IDENTIFICATION_H

#include "korvid/ParseTree/Node.h"

namespace korvid {

/// The PROGRAM-ID paragraph: "PROGRAM-ID. name [IS] [RECURSIVE]
/// [COMMON] [INITIAL] [PROGRAM]". COMMON and INITIAL may be written in
/// either order, so each has two slots: its first and its second position
/// in the phrase. Every attribute word is null when it was not written.
class ProgramIdParagraph : public Node {
public:
  /// The program name, null if absent.
  Word *getProgramNameWord() const { return ProgramNameWord; }
  /// The word RECURSIVE.
  Word *getRecursiveWord() const { return RecursiveWord; }
  /// COMMON written before INITIAL (or alone).
  Word *getCommonWord() const { return CommonWord; }
  /// COMMON written after INITIAL.
  Word *getCommon2Word() const { return Common2Word; }
  /// INITIAL written before COMMON (or alone).
  Word *getInitialWord() const { return InitialWord; }
  /// INITIAL written after COMMON.
  Word *getInitial2Word() const { return Initial2Word; }

  void setProgramNameWord(Word *W) { ProgramNameWord = W; }
  void setRecursiveWord(Word *W) { RecursiveWord = W; }
  void setCommonWord(Word *W) { CommonWord = W; }
  void setCommon2Word(Word *W) { Common2Word = W; }
  void setInitialWord(Word *W) { InitialWord = W; }
  void setInitial2Word(Word *W) { Initial2Word = W; }

private:
  Word *ProgramNameWord = nullptr;
  Word *RecursiveWord = nullptr;
  Word *CommonWord = nullptr;
  Word *Common2Word = nullptr;
  Word *InitialWord = nullptr;
  Word *Initial2Word = nullptr;
};

/// The IDENTIFICATION DIVISION. A well-formed tree always has its PROGRAM-ID
/// paragraph; readers use it without a null test.
class IdentificationDivision : public Node {
public:
  /// The PROGRAM-ID paragraph.
  ProgramIdParagraph *getProgramIDPara() const { return ProgramIDPara; }
  void setProgramIDPara(ProgramIdParagraph *P) { ProgramIDPara = P; }

private:
  ProgramIdParagraph *ProgramIDPara = nullptr;
};

} // namespace korvid

#endif // KORVID_PARSETREE_IDENTIFICATION_H
