//===- korvid/ParseTree/Statements.h - Text and file statements -*- C++ -*-===//
//
// The statements that move text and records: INSPECT, STRING and UNSTRING,
// the file statements OPEN, CLOSE, READ, WRITE, REWRITE, DELETE and START,
// ACCEPT and DISPLAY, SORT, MERGE, RELEASE and RETURN, XML GENERATE and
// XML PARSE, embedded EXEC blocks and the report-writer statements GENERATE,
// INITIATE, TERMINATE and SUPPRESS, each with the phrase nodes it is built
// of. Keywords whose presence or spelling matters are kept as Word nodes, so
// their source text and location stay available.
//
//===----------------------------------------------------------------------===//
#ifndef KORVID_PARSETREE_STATEMENTS_H
#define KORVID_PARSETREE_STATEMENTS_H

#include "korvid/ParseTree/Data.h"
#include "korvid/ParseTree/Statement.h"

#include <string>
#include <utility>

namespace korvid {

//===----------------------------------------------------------------------===//
// Enumerations
//===----------------------------------------------------------------------===//

/// Where ACCEPT takes its value from.
enum AcceptFromType : int32_t {
  ACCEPT_FROM_NONE = 0,
  ACCEPT_FROM_ENVIRONMENT_NAME = 1,
  ACCEPT_FROM_DATE = 2,
  ACCEPT_FROM_DAY = 3,
  ACCEPT_FROM_DAY_OF_WEEK = 4,
  ACCEPT_FROM_TIME = 5,
};

/// The open mode of one OPEN item.
enum OpenStmtType : int32_t {
  OPEN_STMT_NONE = 0,
  OPEN_STMT_INPUT = 1,
  OPEN_STMT_OUTPUT = 2,
  OPEN_STMT_IO = 3,
  OPEN_STMT_EXTEND = 4,
};

/// The relational operator of the KEY phrase of START.
enum StartKeyType : int32_t {
  KEY_OP_NONE = 0,
  KEY_OP_EQ = 1,
  KEY_OP_GT = 2,
  KEY_OP_GE = 3,
  KEY_OP_LT = 4,
  KEY_OP_LE = 5,
};

/// Whether an INSPECT region is a BEFORE or an AFTER phrase.
enum InspRegType : int32_t {
  INSP_REG_NONE = 0,
  INSP_REG_BEFORE = 1,
  INSP_REG_AFTER = 2,
};

/// What a REPLACING clause of INSPECT replaces.
enum InspReplType : int32_t {
  INSP_REPL_NONE = 0,
  INSP_REPL_CHARACTERS = 1,
  INSP_REPL_ALL = 2,
  INSP_REPL_LEADING = 3,
  INSP_REPL_FIRST = 4,
};

/// What a TALLYING ... FOR clause of INSPECT counts.
enum InspTailType : int32_t {
  INSP_TAIL_NONE = 0,
  INSP_TAIL_CHARACTERS = 1,
  INSP_TAIL_ALL = 2,
  INSP_TAIL_LEADING = 3,
};

/// How a STRING item is delimited: by an operand, or BY SIZE.
enum StringDeliType : int32_t {
  STR_DEL_NONE = 0,
  STR_DEL_SIMPLE = 1,
  STR_DEL_SIZE = 2,
};

/// The kind of an embedded EXEC block (mirrors its StatementType).
enum ExecStmtType : int32_t {
  EXEC_STMT_NONE = 0,
  EXEC_STMT_SQL = 1,
  EXEC_STMT_SQL_INCLUDE = 2,
  EXEC_STMT_CICS = 3,
};

/// How XML GENERATE writes elementary items: WITH ATTRIBUTES asks for
/// attributes; ELEMENT and CONTENT are the other placements an item can get.
enum AttributeOptionType : int32_t {
  ATTRIBUTE_OPTION_NONE = 0,
  ATTRIBUTE_OPTION_ATTRIBUTE = 1,
  ATTRIBUTE_OPTION_ELEMENT = 2,
  ATTRIBUTE_OPTION_CONTENT = 3,
};

//===----------------------------------------------------------------------===//
// INSPECT
//===----------------------------------------------------------------------===//

/// One BEFORE or AFTER [INITIAL] phrase bounding the inspected region.
class InspectRegion : public Node {
public:
  /// The operand that bounds the region.
  Expression *getExpr() const { return Expr; }
  /// The BEFORE or AFTER keyword as written.
  Word *getTypeWord() const { return TypeWord; }
  InspRegType getType() const { return Type; }

  void setExpr(Expression *E) { Expr = E; }
  void setTypeWord(Word *W) { TypeWord = W; }
  void setType(InspRegType T) { Type = T; }

private:
  Expression *Expr = nullptr;
  Word *TypeWord = nullptr;
  InspRegType Type = INSP_REG_NONE;
};

/// One counted operand of a TALLYING ... FOR ALL/LEADING clause, with the
/// regions that apply to it alone.
class TallyingRegion : public Node {
public:
  Expression *getExpr() const { return Expr; }

  unsigned long getRegionPhraseListSize() const { return RegionPhraseList.size(); }
  NodeList<InspectRegion>::const_iterator getRegionPhraseListBegin() const {
    return RegionPhraseList.begin();
  }
  NodeList<InspectRegion>::const_iterator getRegionPhraseListEnd() const {
    return RegionPhraseList.end();
  }

  void setExpr(Expression *E) { Expr = E; }
  void addRegionPhrase(InspectRegion *R) { RegionPhraseList.push_back(R); }

private:
  Expression *Expr = nullptr;
  NodeList<InspectRegion> RegionPhraseList;
};

/// One CHARACTERS, ALL or LEADING clause of a TALLYING item.
class TallyingItemFor : public Node {
public:
  /// The CHARACTERS, ALL or LEADING keyword as written.
  Word *getTypeWord() const { return TypeWord; }
  InspTailType getType() const { return Type; }

  /// Regions of a CHARACTERS clause.
  unsigned long getInspectRegionListSize() const { return InspectRegionList.size(); }
  NodeList<InspectRegion>::const_iterator getInspectRegionListBegin() const {
    return InspectRegionList.begin();
  }
  NodeList<InspectRegion>::const_iterator getInspectRegionListEnd() const {
    return InspectRegionList.end();
  }

  /// Counted operands of an ALL or LEADING clause.
  unsigned long getTallyingRegionListSize() const { return TallyingRegionList.size(); }
  NodeList<TallyingRegion>::const_iterator getTallyingRegionListBegin() const {
    return TallyingRegionList.begin();
  }
  NodeList<TallyingRegion>::const_iterator getTallyingRegionListEnd() const {
    return TallyingRegionList.end();
  }

  void setTypeWord(Word *W) { TypeWord = W; }
  void setType(InspTailType T) { Type = T; }
  void addInspectRegion(InspectRegion *R) { InspectRegionList.push_back(R); }
  void addTallyingRegion(TallyingRegion *R) { TallyingRegionList.push_back(R); }

private:
  Word *TypeWord = nullptr;
  InspTailType Type = INSP_TAIL_NONE;
  NodeList<InspectRegion> InspectRegionList;
  NodeList<TallyingRegion> TallyingRegionList;
};

/// One "identifier FOR ..." group of INSPECT TALLYING.
class TallyingItem : public Node {
public:
  /// The tally counter.
  IdentifierExpression *getIdentifier() const { return Identifier; }

  unsigned long getTallyingForListSize() const { return TallyingForList.size(); }
  NodeList<TallyingItemFor>::const_iterator getTallyingForListBegin() const {
    return TallyingForList.begin();
  }
  NodeList<TallyingItemFor>::const_iterator getTallyingForListEnd() const {
    return TallyingForList.end();
  }

  void setIdentifier(IdentifierExpression *I) { Identifier = I; }
  void addTallyingFor(TallyingItemFor *F) { TallyingForList.push_back(F); }

private:
  IdentifierExpression *Identifier = nullptr;
  NodeList<TallyingItemFor> TallyingForList;
};

/// One "operand BY operand" of a REPLACING ALL/LEADING/FIRST clause, with
/// the regions that apply to it alone.
class ReplacingRegion : public Node {
public:
  /// The operand replaced.
  Expression *getExpr() const { return Expr; }
  /// The BY operand.
  Expression *getByExpr() const { return ByExpr; }

  unsigned long getRegionListSize() const { return RegionList.size(); }
  NodeList<InspectRegion>::const_iterator getRegionListBegin() const {
    return RegionList.begin();
  }
  NodeList<InspectRegion>::const_iterator getRegionListEnd() const {
    return RegionList.end();
  }

  void setExpr(Expression *E) { Expr = E; }
  void setByExpr(Expression *E) { ByExpr = E; }
  void addRegion(InspectRegion *R) { RegionList.push_back(R); }

private:
  Expression *Expr = nullptr;
  Expression *ByExpr = nullptr;
  NodeList<InspectRegion> RegionList;
};

/// One CHARACTERS, ALL, LEADING or FIRST clause of INSPECT REPLACING.
class ReplacingItem : public Node {
public:
  /// The BY operand of a CHARACTERS clause.
  Expression *getExpr() const { return Expr; }
  InspReplType getType() const { return Type; }

  /// Regions of a CHARACTERS clause.
  unsigned long getInspectRegionListSize() const { return InspectRegionList.size(); }
  NodeList<InspectRegion>::const_iterator getInspectRegionListBegin() const {
    return InspectRegionList.begin();
  }
  NodeList<InspectRegion>::const_iterator getInspectRegionListEnd() const {
    return InspectRegionList.end();
  }

  /// Operand pairs of an ALL, LEADING or FIRST clause.
  unsigned long getReplacingRegionListSize() const { return ReplacingRegionList.size(); }
  NodeList<ReplacingRegion>::const_iterator getReplacingRegionListBegin() const {
    return ReplacingRegionList.begin();
  }
  NodeList<ReplacingRegion>::const_iterator getReplacingRegionListEnd() const {
    return ReplacingRegionList.end();
  }

  void setExpr(Expression *E) { Expr = E; }
  void setType(InspReplType T) { Type = T; }
  void addInspectRegion(InspectRegion *R) { InspectRegionList.push_back(R); }
  void addReplacingRegion(ReplacingRegion *R) { ReplacingRegionList.push_back(R); }

private:
  Expression *Expr = nullptr;
  InspReplType Type = INSP_REPL_NONE;
  NodeList<InspectRegion> InspectRegionList;
  NodeList<ReplacingRegion> ReplacingRegionList;
};

/// The CONVERTING phrase of INSPECT: CONVERTING operand TO operand.
class ConvertingItem : public Node {
public:
  /// The FROM operand (the characters converted).
  Expression *getExpr() const { return Expr; }
  Expression *getToExpr() const { return ToExpr; }
  /// The TO keyword.
  Word *getToWord() const { return ToWord; }

  unsigned long getRegionListSize() const { return RegionList.size(); }
  NodeList<InspectRegion>::const_iterator getRegionListBegin() const {
    return RegionList.begin();
  }
  NodeList<InspectRegion>::const_iterator getRegionListEnd() const {
    return RegionList.end();
  }

  void setExpr(Expression *E) { Expr = E; }
  void setToExpr(Expression *E) { ToExpr = E; }
  void setToWord(Word *W) { ToWord = W; }
  void addRegion(InspectRegion *R) { RegionList.push_back(R); }

private:
  Expression *Expr = nullptr;
  Expression *ToExpr = nullptr;
  Word *ToWord = nullptr;
  NodeList<InspectRegion> RegionList;
};

/// INSPECT in its TALLYING, REPLACING and CONVERTING forms.
class InspectStatement : public Statement {
public:
  InspectStatement() : Statement(STMT_INSPECT) {}

  /// The inspected identifier.
  IdentifierExpression *getIdentifier() const { return Identifier; }

  unsigned long getTallyingListSize() const { return TallyingList.size(); }
  NodeList<TallyingItem>::const_iterator getTallyingListBegin() const {
    return TallyingList.begin();
  }
  NodeList<TallyingItem>::const_iterator getTallyingListEnd() const {
    return TallyingList.end();
  }

  unsigned long getReplacingListSize() const { return ReplacingList.size(); }
  NodeList<ReplacingItem>::const_iterator getReplacingListBegin() const {
    return ReplacingList.begin();
  }
  NodeList<ReplacingItem>::const_iterator getReplacingListEnd() const {
    return ReplacingList.end();
  }

  /// The CONVERTING phrase, null when not written.
  ConvertingItem *getConverting() const { return Converting; }

  void setIdentifier(IdentifierExpression *I) { Identifier = I; }
  void addTallyingItem(TallyingItem *T) { TallyingList.push_back(T); }
  void addReplacingItem(ReplacingItem *R) { ReplacingList.push_back(R); }
  void setConverting(ConvertingItem *C) { Converting = C; }

private:
  IdentifierExpression *Identifier = nullptr;
  NodeList<TallyingItem> TallyingList;
  NodeList<ReplacingItem> ReplacingList;
  ConvertingItem *Converting = nullptr;
};

//===----------------------------------------------------------------------===//
// STRING and UNSTRING
//===----------------------------------------------------------------------===//

/// The WITH POINTER phrase of STRING and UNSTRING.
class PointerPhrase : public Node {
public:
  IdentifierExpression *getWithPointerIdentifier() const { return WithPointerIdentifier; }
  void setWithPointerIdentifier(IdentifierExpression *I) { WithPointerIdentifier = I; }

private:
  IdentifierExpression *WithPointerIdentifier = nullptr;
};

/// One group of sending operands of STRING with its DELIMITED BY phrase.
class StringItem : public Node {
public:
  /// The sending operands.
  unsigned long getStringNameListSize() const { return StringNameList.size(); }
  NodeList<Expression>::const_iterator getStringNameListBegin() const {
    return StringNameList.begin();
  }
  NodeList<Expression>::const_iterator getStringNameListEnd() const {
    return StringNameList.end();
  }

  /// The delimiter operand, null for DELIMITED BY SIZE.
  Expression *getDelimitedName() const { return DelimitedName; }
  /// The DELIMITED keyword.
  Word *getDelimitedWord() const { return DelimitedWord; }
  /// The SIZE keyword of DELIMITED BY SIZE, null otherwise.
  Word *getSizeWord() const { return SizeWord; }
  StringDeliType getType() const { return Type; }

  void addStringName(Expression *E) { StringNameList.push_back(E); }
  void setDelimitedName(Expression *E) { DelimitedName = E; }
  void setDelimitedWord(Word *W) { DelimitedWord = W; }
  void setSizeWord(Word *W) { SizeWord = W; }
  void setType(StringDeliType T) { Type = T; }

private:
  NodeList<Expression> StringNameList;
  Expression *DelimitedName = nullptr;
  Word *DelimitedWord = nullptr;
  Word *SizeWord = nullptr;
  StringDeliType Type = STR_DEL_NONE;
};

/// STRING ... INTO ... [WITH POINTER ...] [ON OVERFLOW ...].
class StringStatement : public Statement {
public:
  StringStatement() : Statement(STMT_STRING) {}

  unsigned long getItemListSize() const { return ItemList.size(); }
  NodeList<StringItem>::const_iterator getItemListBegin() const { return ItemList.begin(); }
  NodeList<StringItem>::const_iterator getItemListEnd() const { return ItemList.end(); }

  /// The receiving identifier.
  IdentifierExpression *getIntoIdentifier() const { return IntoIdentifier; }
  /// The WITH POINTER phrase, null when not written.
  PointerPhrase *getPointerPhrase() const { return Pointer; }

  /// ON OVERFLOW and NOT ON OVERFLOW phrases.
  unsigned long getOverflowHandlerSize() const { return OverflowHandler.size(); }
  NodeList<ExceptionHandler>::const_iterator getOverflowHandlerBegin() const {
    return OverflowHandler.begin();
  }
  NodeList<ExceptionHandler>::const_iterator getOverflowHandlerEnd() const {
    return OverflowHandler.end();
  }

  void addItem(StringItem *I) { ItemList.push_back(I); }
  void setIntoIdentifier(IdentifierExpression *I) { IntoIdentifier = I; }
  void setPointerPhrase(PointerPhrase *P) { Pointer = P; }
  void addOverflowHandler(ExceptionHandler *H) { OverflowHandler.push_back(H); }

private:
  NodeList<StringItem> ItemList;
  IdentifierExpression *IntoIdentifier = nullptr;
  PointerPhrase *Pointer = nullptr;
  NodeList<ExceptionHandler> OverflowHandler;
};

/// One delimiter of UNSTRING: [ALL] operand.
class UnstringDelimitedItem : public Node {
public:
  Expression *getDelimiter() const { return Delimiter; }
  /// The ALL keyword, null when not written.
  Word *getAllWord() const { return AllWord; }

  void setDelimiter(Expression *E) { Delimiter = E; }
  void setAllWord(Word *W) { AllWord = W; }

private:
  Expression *Delimiter = nullptr;
  Word *AllWord = nullptr;
};

/// The DELIMITED BY phrase of UNSTRING: its delimiters joined by OR.
class UnstringDelemitedPhrase : public Node {
public:
  unsigned long getDelimiterListSize() const { return DelimiterList.size(); }
  NodeList<UnstringDelimitedItem>::const_iterator getDelimiterListBegin() const {
    return DelimiterList.begin();
  }
  NodeList<UnstringDelimitedItem>::const_iterator getDelimiterListEnd() const {
    return DelimiterList.end();
  }

  void addDelimiter(UnstringDelimitedItem *D) { DelimiterList.push_back(D); }

private:
  NodeList<UnstringDelimitedItem> DelimiterList;
};

/// One receiver of UNSTRING: identifier [DELIMITER IN id] [COUNT IN id].
class UnstringIntoItem : public Node {
public:
  IdentifierExpression *getTargetIdentifier() const { return TargetIdentifier; }
  /// The DELIMITER IN field, null when not written.
  IdentifierExpression *getDelimiter() const { return Delimiter; }
  /// The COUNT IN field, null when not written.
  IdentifierExpression *getCountIdentifier() const { return CountIdentifier; }

  void setTargetIdentifier(IdentifierExpression *I) { TargetIdentifier = I; }
  void setDelimiter(IdentifierExpression *I) { Delimiter = I; }
  void setCountIdentifier(IdentifierExpression *I) { CountIdentifier = I; }

private:
  IdentifierExpression *TargetIdentifier = nullptr;
  IdentifierExpression *Delimiter = nullptr;
  IdentifierExpression *CountIdentifier = nullptr;
};

/// The TALLYING IN phrase of UNSTRING.
class UnstringTallyingPhrase : public Node {
public:
  IdentifierExpression *getTallyingId() const { return TallyingId; }
  /// The TALLYING keyword.
  Word *getTallyingWord() const { return TallyingWord; }
  /// The IN keyword, null when not written.
  Word *getInWord() const { return InWord; }

  void setTallyingId(IdentifierExpression *I) { TallyingId = I; }
  void setTallyingWord(Word *W) { TallyingWord = W; }
  void setInWord(Word *W) { InWord = W; }

private:
  IdentifierExpression *TallyingId = nullptr;
  Word *TallyingWord = nullptr;
  Word *InWord = nullptr;
};

/// UNSTRING source [DELIMITED BY ...] INTO ... [WITH POINTER ...]
/// [TALLYING IN ...] [ON OVERFLOW ...].
class UnstringStatement : public Statement {
public:
  UnstringStatement() : Statement(STMT_UNSTRING) {}

  /// The sending field.
  Expression *getSourceIdentifier() const { return SourceIdentifier; }
  /// The DELIMITED BY phrase, null when not written.
  UnstringDelemitedPhrase *getDelemitedPhrase() const { return DelemitedPhrase; }

  unsigned long getIntoListSize() const { return IntoList.size(); }
  NodeList<UnstringIntoItem>::const_iterator getIntoListBegin() const { return IntoList.begin(); }
  NodeList<UnstringIntoItem>::const_iterator getIntoListEnd() const { return IntoList.end(); }

  /// The WITH POINTER phrase, null when not written.
  PointerPhrase *getPhrasePointer() const { return PhrasePointer; }
  /// The TALLYING IN phrase, null when not written.
  UnstringTallyingPhrase *getPhraseTallying() const { return PhraseTallying; }

  /// ON OVERFLOW and NOT ON OVERFLOW phrases.
  unsigned long getOverflowHandlerSize() const { return OverflowHandler.size(); }
  NodeList<ExceptionHandler>::const_iterator getOverflowHandlerBegin() const {
    return OverflowHandler.begin();
  }
  NodeList<ExceptionHandler>::const_iterator getOverflowHandlerEnd() const {
    return OverflowHandler.end();
  }

  void setSourceIdentifier(Expression *E) { SourceIdentifier = E; }
  void setDelemitedPhrase(UnstringDelemitedPhrase *P) { DelemitedPhrase = P; }
  void addInto(UnstringIntoItem *I) { IntoList.push_back(I); }
  void setPhrasePointer(PointerPhrase *P) { PhrasePointer = P; }
  void setPhraseTallying(UnstringTallyingPhrase *P) { PhraseTallying = P; }
  void addOverflowHandler(ExceptionHandler *H) { OverflowHandler.push_back(H); }

private:
  Expression *SourceIdentifier = nullptr;
  UnstringDelemitedPhrase *DelemitedPhrase = nullptr;
  NodeList<UnstringIntoItem> IntoList;
  PointerPhrase *PhrasePointer = nullptr;
  UnstringTallyingPhrase *PhraseTallying = nullptr;
  NodeList<ExceptionHandler> OverflowHandler;
};

//===----------------------------------------------------------------------===//
// File input-output statements
//===----------------------------------------------------------------------===//

/// One file of an OPEN item, with its REVERSED and NO REWIND keywords.
class OpenFile : public Node {
public:
  Word *getFileName() const { return FileName; }
  /// The REVERSED keyword, null when not written.
  Word *getReversedWord() const { return ReversedWord; }
  /// The REWIND keyword of WITH NO REWIND, null when not written.
  Word *getRewindWord() const { return RewindWord; }

  void setFileName(Word *W) { FileName = W; }
  void setReversedWord(Word *W) { ReversedWord = W; }
  void setRewindWord(Word *W) { RewindWord = W; }

private:
  Word *FileName = nullptr;
  Word *ReversedWord = nullptr;
  Word *RewindWord = nullptr;
};

/// One open mode of OPEN with the files opened in it.
class OpenItem : public Node {
public:
  OpenStmtType getType() const { return Type; }
  /// The mode keyword; only the one matching getType() is set.
  Word *getInputWord() const { return InputWord; }
  Word *getOutputWord() const { return OutputWord; }
  Word *getIOWord() const { return IOWord; }
  Word *getExtendWord() const { return ExtendWord; }

  unsigned long getFileListSize() const { return FileList.size(); }
  NodeList<OpenFile>::const_iterator getFileListBegin() const { return FileList.begin(); }
  NodeList<OpenFile>::const_iterator getFileListEnd() const { return FileList.end(); }

  void setType(OpenStmtType T) { Type = T; }
  void setInputWord(Word *W) { InputWord = W; }
  void setOutputWord(Word *W) { OutputWord = W; }
  void setIOWord(Word *W) { IOWord = W; }
  void setExtendWord(Word *W) { ExtendWord = W; }
  void addFile(OpenFile *F) { FileList.push_back(F); }

private:
  OpenStmtType Type = OPEN_STMT_NONE;
  Word *InputWord = nullptr;
  Word *OutputWord = nullptr;
  Word *IOWord = nullptr;
  Word *ExtendWord = nullptr;
  NodeList<OpenFile> FileList;
};

/// OPEN with its open items, one per mode written.
class OpenStatement : public Statement {
public:
  OpenStatement() : Statement(STMT_OPEN) {}

  unsigned long getItemListSize() const { return ItemList.size(); }
  NodeList<OpenItem>::const_iterator getItemListBegin() const { return ItemList.begin(); }
  NodeList<OpenItem>::const_iterator getItemListEnd() const { return ItemList.end(); }

  void addItem(OpenItem *I) { ItemList.push_back(I); }

private:
  NodeList<OpenItem> ItemList;
};

/// One file of CLOSE with its REEL/UNIT, LOCK, NO REWIND and REMOVAL keywords.
class CloseFile : public Node {
public:
  Word *getFileName() const { return FileName; }
  Word *getReelWord() const { return ReelWord; }
  Word *getUnitWord() const { return UnitWord; }
  Word *getLockWord() const { return LockWord; }
  /// The REWIND keyword of WITH NO REWIND.
  Word *getRewindWord() const { return RewindWord; }
  Word *getRemovalWord() const { return RemovalWord; }

  void setFileName(Word *W) { FileName = W; }
  void setReelWord(Word *W) { ReelWord = W; }
  void setUnitWord(Word *W) { UnitWord = W; }
  void setLockWord(Word *W) { LockWord = W; }
  void setRewindWord(Word *W) { RewindWord = W; }
  void setRemovalWord(Word *W) { RemovalWord = W; }

private:
  Word *FileName = nullptr;
  Word *ReelWord = nullptr;
  Word *UnitWord = nullptr;
  Word *LockWord = nullptr;
  Word *RewindWord = nullptr;
  Word *RemovalWord = nullptr;
};

/// CLOSE with its files.
class CloseStatement : public Statement {
public:
  CloseStatement() : Statement(STMT_CLOSE) {}

  unsigned long getCloseFileListSize() const { return CloseFileList.size(); }
  NodeList<CloseFile>::const_iterator getCloseFileListBegin() const {
    return CloseFileList.begin();
  }
  NodeList<CloseFile>::const_iterator getCloseFileListEnd() const {
    return CloseFileList.end();
  }

  void addCloseFile(CloseFile *F) { CloseFileList.push_back(F); }

private:
  NodeList<CloseFile> CloseFileList;
};

/// The NEXT or PREVIOUS RECORD phrase of READ.
class ReadRecordItem : public Node {
public:
  /// The NEXT keyword, null when not written.
  Word *getNextWord() const { return NextWord; }
  void setNextWord(Word *W) { NextWord = W; }

private:
  Word *NextWord = nullptr;
};

/// The KEY IS phrase of READ.
class ReadKeyPhrase : public Node {
public:
  IdentifierExpression *getKeyName() const { return KeyName; }
  void setKeyName(IdentifierExpression *I) { KeyName = I; }

private:
  IdentifierExpression *KeyName = nullptr;
};

/// READ file [NEXT RECORD] [INTO id] [KEY IS ...] [AT END / INVALID KEY ...].
class ReadStatement : public Statement {
public:
  ReadStatement() : Statement(STMT_READ) {}

  Word *getFileName() const { return FileName; }
  /// The INTO identifier, null when not written.
  IdentifierExpression *getIntoIdentifier() const { return IntoIdentifier; }
  /// The NEXT RECORD phrase, null when not written.
  ReadRecordItem *getRecordItem() const { return RecordItem; }
  /// The KEY IS phrase, null when not written.
  ReadKeyPhrase *getKeyPhrase() const { return KeyPhrase; }

  /// AT END and INVALID KEY phrases (and their NOT forms).
  unsigned long getErrorListSize() const { return ErrorList.size(); }
  NodeList<ExceptionHandler>::const_iterator getErrorListBegin() const {
    return ErrorList.begin();
  }
  NodeList<ExceptionHandler>::const_iterator getErrorListEnd() const { return ErrorList.end(); }

  void setFileName(Word *W) { FileName = W; }
  void setIntoIdentifier(IdentifierExpression *I) { IntoIdentifier = I; }
  void setRecordItem(ReadRecordItem *R) { RecordItem = R; }
  void setKeyPhrase(ReadKeyPhrase *K) { KeyPhrase = K; }
  void addError(ExceptionHandler *H) { ErrorList.push_back(H); }

private:
  Word *FileName = nullptr;
  IdentifierExpression *IntoIdentifier = nullptr;
  ReadRecordItem *RecordItem = nullptr;
  ReadKeyPhrase *KeyPhrase = nullptr;
  NodeList<ExceptionHandler> ErrorList;
};

/// The BEFORE/AFTER ADVANCING phrase of WRITE.
class WriteAdvancing : public Node {
public:
  /// The number of lines, or the mnemonic name; null for PAGE.
  Expression *getValue() const { return Value; }
  /// The BEFORE or AFTER keyword as written.
  Word *getBeforeAfterWord() const { return BeforeAfterWord; }
  /// The LINE or LINES keyword, null when not written.
  Word *getLineWord() const { return LineWord; }
  /// The PAGE keyword, null when not written.
  Word *getPageWord() const { return PageWord; }

  void setValue(Expression *E) { Value = E; }
  void setBeforeAfterWord(Word *W) { BeforeAfterWord = W; }
  void setLineWord(Word *W) { LineWord = W; }
  void setPageWord(Word *W) { PageWord = W; }

private:
  Expression *Value = nullptr;
  Word *BeforeAfterWord = nullptr;
  Word *LineWord = nullptr;
  Word *PageWord = nullptr;
};

/// WRITE record [FROM id] [ADVANCING ...] [END-OF-PAGE / INVALID KEY ...].
class WriteStatement : public Statement {
public:
  WriteStatement() : Statement(STMT_WRITE) {}

  IdentifierExpression *getRecordName() const { return RecordName; }
  /// The FROM identifier, null when not written.
  IdentifierExpression *getFromIdentifier() const { return FromIdentifier; }
  /// The ADVANCING phrase, null when not written.
  WriteAdvancing *getAdvancing() const { return Advancing; }

  unsigned long getExceptionHandlerListSize() const { return ExceptionHandlerList.size(); }
  NodeList<ExceptionHandler>::const_iterator getExceptionHandlerListBegin() const {
    return ExceptionHandlerList.begin();
  }
  NodeList<ExceptionHandler>::const_iterator getExceptionHandlerListEnd() const {
    return ExceptionHandlerList.end();
  }

  void setRecordName(IdentifierExpression *I) { RecordName = I; }
  void setFromIdentifier(IdentifierExpression *I) { FromIdentifier = I; }
  void setAdvancing(WriteAdvancing *A) { Advancing = A; }
  void addExceptionHandler(ExceptionHandler *H) { ExceptionHandlerList.push_back(H); }

private:
  IdentifierExpression *RecordName = nullptr;
  IdentifierExpression *FromIdentifier = nullptr;
  WriteAdvancing *Advancing = nullptr;
  NodeList<ExceptionHandler> ExceptionHandlerList;
};

/// REWRITE record [FROM id] [INVALID KEY ...].
class RewriteStatement : public Statement {
public:
  RewriteStatement() : Statement(STMT_REWRITE) {}

  IdentifierExpression *getRecordName() const { return RecordName; }
  /// The FROM identifier, null when not written.
  IdentifierExpression *getFromIdentifier() const { return FromIdentifier; }

  unsigned long getInvalidKeyHandlerSize() const { return InvalidKeyHandler.size(); }
  NodeList<ExceptionHandler>::const_iterator getInvalidKeyHandlerBegin() const {
    return InvalidKeyHandler.begin();
  }
  NodeList<ExceptionHandler>::const_iterator getInvalidKeyHandlerEnd() const {
    return InvalidKeyHandler.end();
  }

  void setRecordName(IdentifierExpression *I) { RecordName = I; }
  void setFromIdentifier(IdentifierExpression *I) { FromIdentifier = I; }
  void addInvalidKeyHandler(ExceptionHandler *H) { InvalidKeyHandler.push_back(H); }

private:
  IdentifierExpression *RecordName = nullptr;
  IdentifierExpression *FromIdentifier = nullptr;
  NodeList<ExceptionHandler> InvalidKeyHandler;
};

/// DELETE file RECORD [INVALID KEY ...].
class DeleteStatement : public Statement {
public:
  DeleteStatement() : Statement(STMT_DELETE) {}

  Word *getFileName() const { return FileName; }

  unsigned long getInvalidKeyHandlerSize() const { return InvalidKeyHandler.size(); }
  NodeList<ExceptionHandler>::const_iterator getInvalidKeyHandlerBegin() const {
    return InvalidKeyHandler.begin();
  }
  NodeList<ExceptionHandler>::const_iterator getInvalidKeyHandlerEnd() const {
    return InvalidKeyHandler.end();
  }

  void setFileName(Word *W) { FileName = W; }
  void addInvalidKeyHandler(ExceptionHandler *H) { InvalidKeyHandler.push_back(H); }

private:
  Word *FileName = nullptr;
  NodeList<ExceptionHandler> InvalidKeyHandler;
};

/// The KEY phrase of START: KEY operator data-name.
class StartKey : public Node {
public:
  StartKeyType getType() const { return Type; }
  DataIdentifierExpression *getDataName() const { return DataName; }

  void setType(StartKeyType T) { Type = T; }
  void setDataName(DataIdentifierExpression *D) { DataName = D; }

private:
  StartKeyType Type = KEY_OP_NONE;
  DataIdentifierExpression *DataName = nullptr;
};

/// START file [KEY ...] [INVALID KEY ...].
class StartStatement : public Statement {
public:
  StartStatement() : Statement(STMT_START) {}

  Word *getFileName() const { return FileName; }
  /// The KEY phrase, null when not written.
  StartKey *getKey() const { return Key; }

  unsigned long getInvalidKeyHandlerSize() const { return InvalidKeyHandler.size(); }
  NodeList<ExceptionHandler>::const_iterator getInvalidKeyHandlerBegin() const {
    return InvalidKeyHandler.begin();
  }
  NodeList<ExceptionHandler>::const_iterator getInvalidKeyHandlerEnd() const {
    return InvalidKeyHandler.end();
  }

  void setFileName(Word *W) { FileName = W; }
  void setKey(StartKey *K) { Key = K; }
  void addInvalidKeyHandler(ExceptionHandler *H) { InvalidKeyHandler.push_back(H); }

private:
  Word *FileName = nullptr;
  StartKey *Key = nullptr;
  NodeList<ExceptionHandler> InvalidKeyHandler;
};

//===----------------------------------------------------------------------===//
// ACCEPT and DISPLAY
//===----------------------------------------------------------------------===//

/// The FROM phrase of ACCEPT: a mnemonic or environment name, or DATE, DAY,
/// DAY-OF-WEEK or TIME with an optional date format.
class AcceptFrom : public Node {
public:
  AcceptFromType getType() const { return Type; }
  /// The mnemonic or environment name, null for the date forms.
  Word *getFromName() const { return FromName; }
  /// The DATE, DAY, DAY-OF-WEEK or TIME keyword.
  Word *getDateWord() const { return DateWord; }
  /// The date-format word (YYYYMMDD, YYYYDDD), null when not written.
  Word *getDateFormat() const { return DateFormat; }

  void setType(AcceptFromType T) { Type = T; }
  void setFromName(Word *W) { FromName = W; }
  void setDateWord(Word *W) { DateWord = W; }
  void setDateFormat(Word *W) { DateFormat = W; }

private:
  AcceptFromType Type = ACCEPT_FROM_NONE;
  Word *FromName = nullptr;
  Word *DateWord = nullptr;
  Word *DateFormat = nullptr;
};

/// ACCEPT identifier [FROM ...].
class AcceptStatement : public Statement {
public:
  AcceptStatement() : Statement(STMT_ACCEPT) {}

  /// The receiving identifier.
  IdentifierExpression *getVariable() const { return Variable; }
  /// The FROM phrase, null when not written.
  AcceptFrom *getFromType() const { return FromType; }

  void setVariable(IdentifierExpression *I) { Variable = I; }
  void setFromType(AcceptFrom *F) { FromType = F; }

private:
  IdentifierExpression *Variable = nullptr;
  AcceptFrom *FromType = nullptr;
};

/// DISPLAY operands [UPON name].
class DisplayStatement : public Statement {
public:
  DisplayStatement() : Statement(STMT_DISPLAY) {}

  /// The displayed identifiers and literals.
  unsigned long getIdenLiterListSize() const { return IdenLiterList.size(); }
  NodeList<Expression>::const_iterator getIdenLiterListBegin() const {
    return IdenLiterList.begin();
  }
  NodeList<Expression>::const_iterator getIdenLiterListEnd() const {
    return IdenLiterList.end();
  }

  /// The UPON mnemonic or environment name, null when not written.
  Word *getUponName() const { return UponName; }

  void addIdenLiter(Expression *E) { IdenLiterList.push_back(E); }
  void setUponName(Word *W) { UponName = W; }

private:
  NodeList<Expression> IdenLiterList;
  Word *UponName = nullptr;
};

//===----------------------------------------------------------------------===//
// SORT, MERGE, RELEASE, RETURN
//===----------------------------------------------------------------------===//

/// One ON ASCENDING/DESCENDING KEY phrase of SORT or MERGE.
class SortKey : public Node {
public:
  /// The ASCENDING or DESCENDING keyword as written.
  Word *getAscDscWord() const { return AscDscWord; }
  SortKeyType getType() const { return Type; }

  unsigned long getKeyNameListSize() const { return KeyNameList.size(); }
  NodeList<Expression>::const_iterator getKeyNameListBegin() const {
    return KeyNameList.begin();
  }
  NodeList<Expression>::const_iterator getKeyNameListEnd() const { return KeyNameList.end(); }

  void setAscDscWord(Word *W) { AscDscWord = W; }
  void setType(SortKeyType T) { Type = T; }
  void addKeyName(Expression *E) { KeyNameList.push_back(E); }

private:
  Word *AscDscWord = nullptr;
  SortKeyType Type = SRT_KEY_NONE;
  NodeList<Expression> KeyNameList;
};

/// The WITH DUPLICATES IN ORDER phrase of SORT; only its presence counts.
class SortDuplicates : public Node {};

/// The COLLATING SEQUENCE phrase of SORT and MERGE.
class SortCollating : public Node {
public:
  /// The alphabet name.
  Word *getSeqAlphaName() const { return SeqAlphaName; }
  void setSeqAlphaName(Word *W) { SeqAlphaName = W; }

private:
  Word *SeqAlphaName = nullptr;
};

/// An input or output phrase of SORT or MERGE: USING/GIVING files, or
/// INPUT/OUTPUT PROCEDURE IS name [THRU name].
class SortIO : public Node {
public:
  /// The INPUT or OUTPUT keyword of a PROCEDURE phrase.
  Word *getIOWord() const { return IOWord; }
  /// The USING or GIVING keyword.
  Word *getUsingGivingWord() const { return UsingGivingWord; }
  /// The PROCEDURE keyword.
  Word *getProcedureWord() const { return ProcedureWord; }

  /// The USING or GIVING files.
  unsigned long getFileNameSize() const { return FileName.size(); }
  NodeList<Word>::const_iterator getFileNameBegin() const { return FileName.begin(); }
  NodeList<Word>::const_iterator getFileNameEnd() const { return FileName.end(); }

  /// The first procedure of a PROCEDURE phrase.
  QualifiedWord *getFromProcedureName() const { return FromProcedureName; }
  /// The THRU procedure, null when not written.
  QualifiedWord *getToProcedureName() const { return ToProcedureName; }

  void setIOWord(Word *W) { IOWord = W; }
  void setUsingGivingWord(Word *W) { UsingGivingWord = W; }
  void setProcedureWord(Word *W) { ProcedureWord = W; }
  void addFileName(Word *W) { FileName.push_back(W); }
  void setFromProcedureName(QualifiedWord *Q) { FromProcedureName = Q; }
  void setToProcedureName(QualifiedWord *Q) { ToProcedureName = Q; }

private:
  Word *IOWord = nullptr;
  Word *UsingGivingWord = nullptr;
  Word *ProcedureWord = nullptr;
  NodeList<Word> FileName;
  QualifiedWord *FromProcedureName = nullptr;
  QualifiedWord *ToProcedureName = nullptr;
};

/// SORT file ON ... KEY ... [WITH DUPLICATES] [COLLATING SEQUENCE ...]
/// input-phrase output-phrase.
class SortStatement : public Statement {
public:
  SortStatement() : Statement(STMT_SORT) {}

  Word *getFileName() const { return FileName; }
  /// The WITH DUPLICATES phrase, null when not written.
  SortDuplicates *getSortDuplicates() const { return Duplicates; }

  unsigned long getKeyListSize() const { return KeyList.size(); }
  NodeList<SortKey>::const_iterator getKeyListBegin() const { return KeyList.begin(); }
  NodeList<SortKey>::const_iterator getKeyListEnd() const { return KeyList.end(); }

  /// The COLLATING SEQUENCE phrase, null when not written.
  SortCollating *getSortCollating() const { return Collating; }
  SortIO *getInput() const { return Input; }
  SortIO *getOutput() const { return Output; }

  void setFileName(Word *W) { FileName = W; }
  void setSortDuplicates(SortDuplicates *D) { Duplicates = D; }
  void addKey(SortKey *K) { KeyList.push_back(K); }
  void setSortCollating(SortCollating *C) { Collating = C; }
  void setInput(SortIO *I) { Input = I; }
  void setOutput(SortIO *O) { Output = O; }

private:
  Word *FileName = nullptr;
  SortDuplicates *Duplicates = nullptr;
  NodeList<SortKey> KeyList;
  SortCollating *Collating = nullptr;
  SortIO *Input = nullptr;
  SortIO *Output = nullptr;
};

/// MERGE file ON ... KEY ... [COLLATING SEQUENCE ...] USING ... output-phrase.
class MergeStatement : public Statement {
public:
  MergeStatement() : Statement(STMT_MERGE) {}

  Word *getFileName() const { return FileName; }

  unsigned long getKeySeqSize() const { return KeySeq.size(); }
  NodeList<SortKey>::const_iterator getKeySeqBegin() const { return KeySeq.begin(); }
  NodeList<SortKey>::const_iterator getKeySeqEnd() const { return KeySeq.end(); }

  /// The COLLATING SEQUENCE phrase, null when not written.
  SortCollating *getSortCollating() const { return Collating; }
  SortIO *getInput() const { return Input; }
  SortIO *getOutput() const { return Output; }

  void setFileName(Word *W) { FileName = W; }
  void addKey(SortKey *K) { KeySeq.push_back(K); }
  void setSortCollating(SortCollating *C) { Collating = C; }
  void setInput(SortIO *I) { Input = I; }
  void setOutput(SortIO *O) { Output = O; }

private:
  Word *FileName = nullptr;
  NodeList<SortKey> KeySeq;
  SortCollating *Collating = nullptr;
  SortIO *Input = nullptr;
  SortIO *Output = nullptr;
};

/// RELEASE record [FROM identifier].
class ReleaseStatement : public Statement {
public:
  ReleaseStatement() : Statement(STMT_RELEASE) {}

  IdentifierExpression *getRecordName() const { return RecordName; }
  /// The FROM identifier, null when not written.
  IdentifierExpression *getFromIdentifier() const { return FromIdentifier; }

  void setRecordName(IdentifierExpression *I) { RecordName = I; }
  void setFromIdentifier(IdentifierExpression *I) { FromIdentifier = I; }

private:
  IdentifierExpression *RecordName = nullptr;
  IdentifierExpression *FromIdentifier = nullptr;
};

/// RETURN file [INTO identifier] AT END ... [NOT AT END ...].
class ReturnStatement : public Statement {
public:
  ReturnStatement() : Statement(STMT_RETURN) {}

  Word *getFileName() const { return FileName; }
  /// The INTO identifier, null when not written.
  IdentifierExpression *getIntoIdentifier() const { return IntoIdentifier; }

  /// AT END and NOT AT END phrases.
  unsigned long getEndHandlerSize() const { return EndHandler.size(); }
  NodeList<ExceptionHandler>::const_iterator getEndHandlerBegin() const {
    return EndHandler.begin();
  }
  NodeList<ExceptionHandler>::const_iterator getEndHandlerEnd() const { return EndHandler.end(); }

  void setFileName(Word *W) { FileName = W; }
  void setIntoIdentifier(IdentifierExpression *I) { IntoIdentifier = I; }
  void addEndHandler(ExceptionHandler *H) { EndHandler.push_back(H); }

private:
  Word *FileName = nullptr;
  IdentifierExpression *IntoIdentifier = nullptr;
  NodeList<ExceptionHandler> EndHandler;
};

//===----------------------------------------------------------------------===//
// XML GENERATE and XML PARSE
//===----------------------------------------------------------------------===//

/// The COUNT IN phrase of XML GENERATE.
class ClauseXMLCount : public Node {
public:
  IdentifierExpression *getCountIdent() const { return CountIdent; }
  void setCountIdent(IdentifierExpression *I) { CountIdent = I; }

private:
  IdentifierExpression *CountIdent = nullptr;
};

/// The ENCODING phrase of XML GENERATE and XML PARSE.
class ClauseXMLEncoding : public Node {
public:
  /// The code page.
  Expression *getCodePage() const { return CodePage; }
  void setCodePage(Expression *E) { CodePage = E; }

private:
  Expression *CodePage = nullptr;
};

/// The WITH XML-DECLARATION phrase of XML GENERATE; only its presence counts.
class ClauseXMLDeclaration : public Node {};

/// The WITH ATTRIBUTES phrase of XML GENERATE.
class ClauseXMLAttributes : public Node {
public:
  /// How elementary items are to be written (ATTRIBUTE for WITH ATTRIBUTES).
  AttributeOptionType getType() const { return Type; }
  void setType(AttributeOptionType T) { Type = T; }

private:
  AttributeOptionType Type = ATTRIBUTE_OPTION_NONE;
};

/// The NAMESPACE [NAMESPACE-PREFIX] phrase of XML GENERATE.
class ClauseXMLNameSpace : public Node {
public:
  Expression *getNameSpaceExpr() const { return NameSpaceExpr; }
  /// The NAMESPACE-PREFIX operand, null when not written.
  Expression *getPrefixExpr() const { return PrefixExpr; }

  void setNameSpaceExpr(Expression *E) { NameSpaceExpr = E; }
  void setPrefixExpr(Expression *E) { PrefixExpr = E; }

private:
  Expression *NameSpaceExpr = nullptr;
  Expression *PrefixExpr = nullptr;
};

/// The RETURNING NATIONAL phrase of XML PARSE; only its presence counts.
class ClauseXMLReturning : public Node {};

/// The VALIDATING WITH phrase of XML PARSE: an identifier holding the
/// schema, or FILE schema-name.
class ClauseXMLValidating : public Node {
public:
  IdentifierExpression *getValidatingIdent() const { return ValidatingIdent; }
  /// The schema file name of VALIDATING WITH FILE.
  Word *getFileName() const { return FileName; }

  void setValidatingIdent(IdentifierExpression *I) { ValidatingIdent = I; }
  void setFileName(Word *W) { FileName = W; }

private:
  IdentifierExpression *ValidatingIdent = nullptr;
  Word *FileName = nullptr;
};

/// XML GENERATE identifier FROM identifier with its optional phrases.
class XMLGenerateStatement : public Statement {
public:
  XMLGenerateStatement() : Statement(STMT_XML_GEN) {}

  /// The receiving identifier.
  IdentifierExpression *getGenIdent() const { return GenIdent; }
  /// The FROM identifier.
  IdentifierExpression *getFromIdent() const { return FromIdent; }
  ClauseXMLCount *getCountClause() const { return CountClause; }
  ClauseXMLEncoding *getEncodingClause() const { return EncodingClause; }
  ClauseXMLDeclaration *getDeclarationClause() const { return DeclarationClause; }
  ClauseXMLAttributes *getAttributesClause() const { return AttributesClause; }
  ClauseXMLNameSpace *getNameSpaceClause() const { return NameSpaceClause; }

  /// ON EXCEPTION and NOT ON EXCEPTION phrases.
  unsigned long getOnExcpHandlerSize() const { return OnExcpHandler.size(); }
  NodeList<ExceptionHandler>::const_iterator getOnExcpHandlerBegin() const {
    return OnExcpHandler.begin();
  }
  NodeList<ExceptionHandler>::const_iterator getOnExcpHandlerEnd() const {
    return OnExcpHandler.end();
  }

  void setGenIdent(IdentifierExpression *I) { GenIdent = I; }
  void setFromIdent(IdentifierExpression *I) { FromIdent = I; }
  void setCountClause(ClauseXMLCount *C) { CountClause = C; }
  void setEncodingClause(ClauseXMLEncoding *C) { EncodingClause = C; }
  void setDeclarationClause(ClauseXMLDeclaration *C) { DeclarationClause = C; }
  void setAttributesClause(ClauseXMLAttributes *C) { AttributesClause = C; }
  void setNameSpaceClause(ClauseXMLNameSpace *C) { NameSpaceClause = C; }
  void addOnExcpHandler(ExceptionHandler *H) { OnExcpHandler.push_back(H); }

private:
  IdentifierExpression *GenIdent = nullptr;
  IdentifierExpression *FromIdent = nullptr;
  ClauseXMLCount *CountClause = nullptr;
  ClauseXMLEncoding *EncodingClause = nullptr;
  ClauseXMLDeclaration *DeclarationClause = nullptr;
  ClauseXMLAttributes *AttributesClause = nullptr;
  ClauseXMLNameSpace *NameSpaceClause = nullptr;
  NodeList<ExceptionHandler> OnExcpHandler;
};

/// XML PARSE identifier [ENCODING ...] [RETURNING NATIONAL] [VALIDATING ...]
/// PROCESSING PROCEDURE name [THRU name].
class XMLParseStatement : public Statement {
public:
  XMLParseStatement() : Statement(STMT_XML_PARSE) {}

  /// The XML document parsed.
  IdentifierExpression *getParseIdent() const { return ParseIdent; }
  ClauseXMLEncoding *getEncodingClause() const { return EncodingClause; }
  ClauseXMLReturning *getReturningClause() const { return ReturningClause; }
  ClauseXMLValidating *getValidatingClause() const { return ValidatingClause; }
  /// The processing procedure.
  QualifiedWord *getParseProcedure() const { return ParseProcedure; }
  /// The THRU procedure, null when not written.
  QualifiedWord *getThruProcedure() const { return ThruProcedure; }

  /// ON EXCEPTION and NOT ON EXCEPTION phrases.
  unsigned long getOnExcpHandlerSize() const { return OnExcpHandler.size(); }
  NodeList<ExceptionHandler>::const_iterator getOnExcpHandlerBegin() const {
    return OnExcpHandler.begin();
  }
  NodeList<ExceptionHandler>::const_iterator getOnExcpHandlerEnd() const {
    return OnExcpHandler.end();
  }

  void setParseIdent(IdentifierExpression *I) { ParseIdent = I; }
  void setEncodingClause(ClauseXMLEncoding *C) { EncodingClause = C; }
  void setReturningClause(ClauseXMLReturning *C) { ReturningClause = C; }
  void setValidatingClause(ClauseXMLValidating *C) { ValidatingClause = C; }
  void setParseProcedure(QualifiedWord *Q) { ParseProcedure = Q; }
  void setThruProcedure(QualifiedWord *Q) { ThruProcedure = Q; }
  void addOnExcpHandler(ExceptionHandler *H) { OnExcpHandler.push_back(H); }

private:
  IdentifierExpression *ParseIdent = nullptr;
  ClauseXMLEncoding *EncodingClause = nullptr;
  ClauseXMLReturning *ReturningClause = nullptr;
  ClauseXMLValidating *ValidatingClause = nullptr;
  QualifiedWord *ParseProcedure = nullptr;
  QualifiedWord *ThruProcedure = nullptr;
  NodeList<ExceptionHandler> OnExcpHandler;
};

//===----------------------------------------------------------------------===//
// EXEC blocks and report-writer statements
//===----------------------------------------------------------------------===//

/// An EXEC SQL, EXEC SQL INCLUDE or EXEC CICS block of the procedure
/// division. Its kind is its StatementType (STMT_EXEC_SQL,
/// STMT_EXEC_SQL_INCLUDE or STMT_EXEC_CICS).
class ExecStatement : public Statement {
public:
  explicit ExecStatement(StatementType T = STMT_EXEC_SQL) : Statement(T) {}
  ExecStatement(StatementType T, std::string Text)
      : Statement(T), SqlStr(std::move(Text)) {}

  /// The whole block's source text, EXEC through END-EXEC.
  std::string getSqlStr() const { return SqlStr; }
  /// The block's kind as an ExecStmtType, derived from its StatementType.
  ExecStmtType getExecType() const {
    switch (getType()) {
    case STMT_EXEC_SQL:
      return EXEC_STMT_SQL;
    case STMT_EXEC_SQL_INCLUDE:
      return EXEC_STMT_SQL_INCLUDE;
    case STMT_EXEC_CICS:
      return EXEC_STMT_CICS;
    default:
      return EXEC_STMT_NONE;
    }
  }

  void setSqlStr(std::string S) { SqlStr = std::move(S); }

private:
  std::string SqlStr;
};

/// The report writer's GENERATE data-name / report-name.
class RwGenerateStatement : public Statement {
public:
  RwGenerateStatement() : Statement(STMT_RW_GENERATE) {}

  /// The data name or report name.
  Word *getFileName() const { return FileName; }
  void setFileName(Word *W) { FileName = W; }

private:
  Word *FileName = nullptr;
};

/// The report writer's INITIATE report-names [UPON name].
class RwInitiateStatement : public Statement {
public:
  RwInitiateStatement() : Statement(STMT_RW_INITIATE) {}

  unsigned long getInitiateNameListSize() const { return InitiateNameList.size(); }
  NodeList<Word>::const_iterator getInitiateNameListBegin() const {
    return InitiateNameList.begin();
  }
  NodeList<Word>::const_iterator getInitiateNameListEnd() const {
    return InitiateNameList.end();
  }

  /// The UPON name, null when not written.
  Word *getUponName() const { return UponName; }

  void addInitiateName(Word *W) { InitiateNameList.push_back(W); }
  void setUponName(Word *W) { UponName = W; }

private:
  NodeList<Word> InitiateNameList;
  Word *UponName = nullptr;
};

/// The report writer's TERMINATE report-names.
class RwTerminateStatement : public Statement {
public:
  RwTerminateStatement() : Statement(STMT_RW_TERMINATE) {}

  unsigned long getTerminateNameListSize() const { return TerminateNameList.size(); }
  NodeList<Word>::const_iterator getTerminateNameListBegin() const {
    return TerminateNameList.begin();
  }
  NodeList<Word>::const_iterator getTerminateNameListEnd() const {
    return TerminateNameList.end();
  }

  void addTerminateName(Word *W) { TerminateNameList.push_back(W); }

private:
  NodeList<Word> TerminateNameList;
};

/// The report writer's SUPPRESS [PRINTING]; it has no operands.
class RwSuppressStatement : public Statement {
public:
  RwSuppressStatement() : Statement(STMT_RW_SUPPRESS) {}
};

} // namespace korvid

#endif // KORVID_PARSETREE_STATEMENTS_H
