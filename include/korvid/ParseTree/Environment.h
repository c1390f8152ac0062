//===- korvid/ParseTree/Environment.h - ENVIRONMENT DIVISION ----*- C++ -*-===//
//
// The ENVIRONMENT DIVISION: the CONFIGURATION SECTION (SOURCE-COMPUTER,
// OBJECT-COMPUTER, SPECIAL-NAMES and their clauses) and the INPUT-OUTPUT
// SECTION (the FILE-CONTROL entries with their clauses, and the I-O-CONTROL
// paragraph). Every optional part is a pointer that is null when it was not
// written; words are kept as written so that readers can show the source's
// own spelling (ORGANIZATION, ACCESS MODE and the like).
//
//===----------------------------------------------------------------------===//
#ifndef KORVID_PARSETREE_ENVIRONMENT_H
#define KORVID_PARSETREE_ENVIRONMENT_H

#include "korvid/ParseTree/Node.h"

namespace korvid {

/// The file access mode of an ACCESS MODE clause.
enum ClauseAccessType : int32_t {
  ACCESS_TYPE_NONE = 0,
  ACCESS_TYPE_SEQUENTIAL = 1,
  ACCESS_TYPE_RANDOM = 2,
  ACCESS_TYPE_DYNAMIC = 3,
};

/// The file organization of an ORGANIZATION clause.
enum ClauseOrganizationType : int32_t {
  ORGANIZATION_TYPE_NONE = 0,
  ORGANIZATION_TYPE_SEQUENTIAL = 1,
  ORGANIZATION_TYPE_LINE_SEQUENTIAL = 2,
  ORGANIZATION_TYPE_RECORD_SEQUENTIAL = 3,
  ORGANIZATION_TYPE_RELATIVE = 4,
  ORGANIZATION_TYPE_INDEXED = 5,
};

/// The buffering option of a report-writer DUPLICATE clause.
enum ClauseRwDuplicateType : int32_t {
  RW_DUPLICATE_NONE = 0,
  RW_DUPLICATE_PAGE_BUFFER = 1, ///< WITH PAGE BUFFER
  RW_DUPLICATE_RANDOM_PAGE = 2, ///< WITH RANDOM PAGE
};

//===----------------------------------------------------------------------===//
// CONFIGURATION SECTION
//===----------------------------------------------------------------------===//

/// The SOURCE-COMPUTER paragraph.
class ParaSourceComputer : public Node {
public:
  /// The computer name.
  Word *getComputerName() const { return ComputerName; }
  /// The word DEBUGGING of WITH DEBUGGING MODE, null when not written.
  Word *getDebuggingWord() const { return DebuggingWord; }

  void setComputerName(Word *W) { ComputerName = W; }
  void setDebuggingWord(Word *W) { DebuggingWord = W; }

private:
  Word *ComputerName = nullptr;
  Word *DebuggingWord = nullptr;
};

/// The MEMORY SIZE clause of OBJECT-COMPUTER: "MEMORY SIZE n unit".
class ClauseMemorySize : public Node {
public:
  /// The unit word: WORDS, CHARACTERS or MODULES.
  Word *getSizeUnit() const { return SizeUnit; }
  /// The size.
  NumericLiteralExpression *getSize() const { return Size; }

  void setSizeUnit(Word *W) { SizeUnit = W; }
  void setSize(NumericLiteralExpression *E) { Size = E; }

private:
  Word *SizeUnit = nullptr;
  NumericLiteralExpression *Size = nullptr;
};

/// The PROGRAM COLLATING SEQUENCE clause of OBJECT-COMPUTER.
class ClauseSequence : public Node {
public:
  /// The alphabet name.
  Word *getSequence() const { return Sequence; }
  void setSequence(Word *W) { Sequence = W; }

private:
  Word *Sequence = nullptr;
};

/// The SEGMENT-LIMIT clause of OBJECT-COMPUTER.
class ClauseSegmentLimit : public Node {
public:
  /// The segment-number limit.
  NumericLiteralExpression *getLimit() const { return Limit; }
  void setLimit(NumericLiteralExpression *E) { Limit = E; }

private:
  NumericLiteralExpression *Limit = nullptr;
};

/// The OBJECT-COMPUTER paragraph.
class ParaObjectComputer : public Node {
public:
  /// The computer name.
  Word *getComputerName() const { return ComputerName; }
  /// The MEMORY SIZE clause, null when not written.
  ClauseMemorySize *getMemSize() const { return MemSize; }
  /// The PROGRAM COLLATING SEQUENCE clause, null when not written.
  ClauseSequence *getSequence() const { return Sequence; }
  /// The SEGMENT-LIMIT clause, null when not written.
  ClauseSegmentLimit *getSegment() const { return Segment; }

  void setComputerName(Word *W) { ComputerName = W; }
  void setMemSize(ClauseMemorySize *C) { MemSize = C; }
  void setSequence(ClauseSequence *C) { Sequence = C; }
  void setSegment(ClauseSegmentLimit *C) { Segment = C; }

private:
  Word *ComputerName = nullptr;
  ClauseMemorySize *MemSize = nullptr;
  ClauseSequence *Sequence = nullptr;
  ClauseSegmentLimit *Segment = nullptr;
};

/// The ON STATUS IS or OFF STATUS IS phrase of an environment-name clause.
class PhrsOnOff : public Node {
public:
  /// The condition name.
  Word *getCondition() const { return Condition; }
  void setCondition(Word *W) { Condition = W; }

private:
  Word *Condition = nullptr;
};

/// An environment-name clause of SPECIAL-NAMES: "env-name IS mnemonic-name"
/// with its optional ON STATUS and OFF STATUS condition names.
class ClauseEnvName : public Node {
public:
  Word *getEnvironmentName() const { return EnvironmentName; }
  Word *getMnemonicName() const { return MnemonicName; }
  /// The ON STATUS phrase, null when not written.
  PhrsOnOff *getOnCondition() const { return OnCondition; }
  /// The OFF STATUS phrase, null when not written.
  PhrsOnOff *getOffCondition() const { return OffCondition; }

  void setEnvironmentName(Word *W) { EnvironmentName = W; }
  void setMnemonicName(Word *W) { MnemonicName = W; }
  void setOnCondition(PhrsOnOff *P) { OnCondition = P; }
  void setOffCondition(PhrsOnOff *P) { OffCondition = P; }

private:
  Word *EnvironmentName = nullptr;
  Word *MnemonicName = nullptr;
  PhrsOnOff *OnCondition = nullptr;
  PhrsOnOff *OffCondition = nullptr;
};

/// One ALSO literal of an alphabet's character scope.
class PhrsAlphabetAlso : public Node {
public:
  LiteralExpression *getLiteral() const { return Literal; }
  void setLiteral(LiteralExpression *E) { Literal = E; }

private:
  LiteralExpression *Literal = nullptr;
};

/// One character scope of an ALPHABET clause: "literal [THRU literal]" or
/// "literal ALSO literal ...".
class PhrsAlphabetThru : public Node {
public:
  /// The first literal.
  LiteralExpression *getLiteral() const { return Literal; }
  /// The literal after THRU, null when not written.
  LiteralExpression *getThruLiteral() const { return ThruLiteral; }

  unsigned long getAlsoListSize() const { return AlsoList.size(); }
  NodeList<PhrsAlphabetAlso>::const_iterator getAlsoListBegin() const { return AlsoList.begin(); }
  NodeList<PhrsAlphabetAlso>::const_iterator getAlsoListEnd() const { return AlsoList.end(); }

  void setLiteral(LiteralExpression *E) { Literal = E; }
  void setThruLiteral(LiteralExpression *E) { ThruLiteral = E; }
  void addAlso(PhrsAlphabetAlso *P) { AlsoList.push_back(P); }

private:
  LiteralExpression *Literal = nullptr;
  LiteralExpression *ThruLiteral = nullptr;
  NodeList<PhrsAlphabetAlso> AlsoList;
};

/// An ALPHABET clause of SPECIAL-NAMES: "ALPHABET name IS
/// {STANDARD-1 | STANDARD-2 | NATIVE | name | scope ...}".
class ClauseAlphabet : public Node {
public:
  /// The character scopes, in source order.
  unsigned long getThruListSize() const { return ThruList.size(); }
  NodeList<PhrsAlphabetThru>::const_iterator getThruListBegin() const { return ThruList.begin(); }
  NodeList<PhrsAlphabetThru>::const_iterator getThruListEnd() const { return ThruList.end(); }
  /// The alphabet kind word (STANDARD-1, NATIVE, ...), null for scopes.
  Word *getTypeWord() const { return TypeWord; }
  /// The alphabet name being defined.
  Word *getAlphabetName() const { return AlphabetName; }

  void addThru(PhrsAlphabetThru *P) { ThruList.push_back(P); }
  void setTypeWord(Word *W) { TypeWord = W; }
  void setAlphabetName(Word *W) { AlphabetName = W; }

private:
  NodeList<PhrsAlphabetThru> ThruList;
  Word *TypeWord = nullptr;
  Word *AlphabetName = nullptr;
};

/// One group of a SYMBOLIC CHARACTERS clause: "name ... IS|ARE integer ...".
/// Names and integers pair by position.
class PhrsSymbolic : public Node {
public:
  /// The symbolic-character names.
  unsigned long getSourceListSize() const { return SourceList.size(); }
  NodeList<Word>::const_iterator getSourceListBegin() const { return SourceList.begin(); }
  NodeList<Word>::const_iterator getSourceListEnd() const { return SourceList.end(); }
  /// The ordinal positions.
  unsigned long getIntegerListSize() const { return IntegerList.size(); }
  NodeList<NumericLiteralExpression>::const_iterator getIntegerListBegin() const {
    return IntegerList.begin();
  }
  NodeList<NumericLiteralExpression>::const_iterator getIntegerListEnd() const {
    return IntegerList.end();
  }

  void addSource(Word *W) { SourceList.push_back(W); }
  void addInteger(NumericLiteralExpression *E) { IntegerList.push_back(E); }

private:
  NodeList<Word> SourceList;
  NodeList<NumericLiteralExpression> IntegerList;
};

/// A SYMBOLIC CHARACTERS clause of SPECIAL-NAMES.
class ClauseSymbolic : public Node {
public:
  unsigned long getSymbolicListSize() const { return SymbolicList.size(); }
  NodeList<PhrsSymbolic>::const_iterator getSymbolicListBegin() const {
    return SymbolicList.begin();
  }
  NodeList<PhrsSymbolic>::const_iterator getSymbolicListEnd() const {
    return SymbolicList.end();
  }
  /// The alphabet of the IN phrase, null when not written.
  Word *getInAlphabet() const { return InAlphabet; }

  void addSymbolic(PhrsSymbolic *P) { SymbolicList.push_back(P); }
  void setInAlphabet(Word *W) { InAlphabet = W; }

private:
  NodeList<PhrsSymbolic> SymbolicList;
  Word *InAlphabet = nullptr;
};

/// One scope of a CLASS clause: "literal [THRU literal]".
class PhrsClass : public Node {
public:
  LiteralExpression *getLiteral() const { return Literal; }
  /// The literal after THRU, null when not written.
  LiteralExpression *getThruLiteral() const { return ThruLiteral; }

  void setLiteral(LiteralExpression *E) { Literal = E; }
  void setThruLiteral(LiteralExpression *E) { ThruLiteral = E; }

private:
  LiteralExpression *Literal = nullptr;
  LiteralExpression *ThruLiteral = nullptr;
};

/// A CLASS clause of SPECIAL-NAMES: "CLASS name IS scope ...".
class ClauseClass : public Node {
public:
  unsigned long getLiteralListSize() const { return LiteralList.size(); }
  NodeList<PhrsClass>::const_iterator getLiteralListBegin() const { return LiteralList.begin(); }
  NodeList<PhrsClass>::const_iterator getLiteralListEnd() const { return LiteralList.end(); }
  /// The class name being defined.
  Word *getClassName() const { return ClassName; }

  void addLiteral(PhrsClass *P) { LiteralList.push_back(P); }
  void setClassName(Word *W) { ClassName = W; }

private:
  NodeList<PhrsClass> LiteralList;
  Word *ClassName = nullptr;
};

/// A CURRENCY SIGN clause: "CURRENCY SIGN IS literal [WITH PICTURE SYMBOL
/// literal]".
class ClauseCurrency : public Node {
public:
  /// The currency string.
  LiteralExpression *getSignLiteral() const { return SignLiteral; }
  /// The PICTURE SYMBOL character, null when not written.
  LiteralExpression *getSymbolLiteral() const { return SymbolLiteral; }

  void setSignLiteral(LiteralExpression *E) { SignLiteral = E; }
  void setSymbolLiteral(LiteralExpression *E) { SymbolLiteral = E; }

private:
  LiteralExpression *SignLiteral = nullptr;
  LiteralExpression *SymbolLiteral = nullptr;
};

/// The DECIMAL-POINT IS COMMA clause; its presence is its whole meaning.
class ClauseDecimalPoint : public Node {};

/// The SPECIAL-NAMES paragraph. Each kind of clause is kept in its own list,
/// in source order.
class ParaSpecialNames : public Node {
public:
  unsigned long getEnvNameListSize() const { return EnvNameList.size(); }
  NodeList<ClauseEnvName>::const_iterator getEnvNameListBegin() const {
    return EnvNameList.begin();
  }
  NodeList<ClauseEnvName>::const_iterator getEnvNameListEnd() const {
    return EnvNameList.end();
  }

  unsigned long getAlphabetListSize() const { return AlphabetList.size(); }
  NodeList<ClauseAlphabet>::const_iterator getAlphabetListBegin() const {
    return AlphabetList.begin();
  }
  NodeList<ClauseAlphabet>::const_iterator getAlphabetListEnd() const {
    return AlphabetList.end();
  }

  unsigned long getSymbolicListSize() const { return SymbolicList.size(); }
  NodeList<ClauseSymbolic>::const_iterator getSymbolicListBegin() const {
    return SymbolicList.begin();
  }
  NodeList<ClauseSymbolic>::const_iterator getSymbolicListEnd() const {
    return SymbolicList.end();
  }

  unsigned long getClassListSize() const { return ClassList.size(); }
  NodeList<ClauseClass>::const_iterator getClassListBegin() const { return ClassList.begin(); }
  NodeList<ClauseClass>::const_iterator getClassListEnd() const { return ClassList.end(); }

  unsigned long getCurrencyListSize() const { return CurrencyList.size(); }
  NodeList<ClauseCurrency>::const_iterator getCurrencyListBegin() const {
    return CurrencyList.begin();
  }
  NodeList<ClauseCurrency>::const_iterator getCurrencyListEnd() const {
    return CurrencyList.end();
  }

  /// The DECIMAL-POINT IS COMMA clause, null when not written.
  ClauseDecimalPoint *getDecimalPoint() const { return DecimalPoint; }

  void addEnvName(ClauseEnvName *C) { EnvNameList.push_back(C); }
  void addAlphabet(ClauseAlphabet *C) { AlphabetList.push_back(C); }
  void addSymbolic(ClauseSymbolic *C) { SymbolicList.push_back(C); }
  void addClass(ClauseClass *C) { ClassList.push_back(C); }
  void addCurrency(ClauseCurrency *C) { CurrencyList.push_back(C); }
  void setDecimalPoint(ClauseDecimalPoint *C) { DecimalPoint = C; }

private:
  NodeList<ClauseEnvName> EnvNameList;
  NodeList<ClauseAlphabet> AlphabetList;
  NodeList<ClauseSymbolic> SymbolicList;
  NodeList<ClauseClass> ClassList;
  NodeList<ClauseCurrency> CurrencyList;
  ClauseDecimalPoint *DecimalPoint = nullptr;
};

/// The CONFIGURATION SECTION.
class ConfigurationSection : public Node {
public:
  /// The SOURCE-COMPUTER paragraph, null when not written.
  ParaSourceComputer *getSourceComputer() const { return SourceComputer; }
  /// The OBJECT-COMPUTER paragraph, null when not written.
  ParaObjectComputer *getObjectComputer() const { return ObjectComputer; }
  /// The SPECIAL-NAMES paragraph, null when not written.
  ParaSpecialNames *getSpecialNames() const { return SpecialNames; }

  void setSourceComputer(ParaSourceComputer *P) { SourceComputer = P; }
  void setObjectComputer(ParaObjectComputer *P) { ObjectComputer = P; }
  void setSpecialNames(ParaSpecialNames *P) { SpecialNames = P; }

private:
  ParaSourceComputer *SourceComputer = nullptr;
  ParaObjectComputer *ObjectComputer = nullptr;
  ParaSpecialNames *SpecialNames = nullptr;
};

//===----------------------------------------------------------------------===//
// FILE-CONTROL
//===----------------------------------------------------------------------===//

/// The SELECT clause that opens a file-control entry: "SELECT [OPTIONAL]
/// file-name".
class ClauseSelect : public Node {
public:
  /// The file name.
  Word *getFileName() const { return FileName; }
  /// The word OPTIONAL, null when not written.
  Word *getOptionalWord() const { return OptionalWord; }

  void setFileName(Word *W) { FileName = W; }
  void setOptionalWord(Word *W) { OptionalWord = W; }

private:
  Word *FileName = nullptr;
  Word *OptionalWord = nullptr;
};

/// The ASSIGN clause: "ASSIGN TO name ...".
class ClauseAssign : public Node {
public:
  /// The assignment names (words), in source order.
  unsigned long getAssignNameListSize() const { return AssignNameList.size(); }
  NodeList<Word>::const_iterator getAssignNameListBegin() const { return AssignNameList.begin(); }
  NodeList<Word>::const_iterator getAssignNameListEnd() const { return AssignNameList.end(); }

  void addAssignName(Word *W) { AssignNameList.push_back(W); }

private:
  NodeList<Word> AssignNameList;
};

/// The RESERVE clause: "RESERVE n AREAS".
class ClauseReserve : public Node {
public:
  /// The number of areas.
  NumericLiteralExpression *getReserveCount() const { return ReserveCount; }
  void setReserveCount(NumericLiteralExpression *E) { ReserveCount = E; }

private:
  NumericLiteralExpression *ReserveCount = nullptr;
};

/// The ORGANIZATION clause.
class ClauseOrganization : public Node {
public:
  /// The organization word as written (SEQUENTIAL, INDEXED, ...).
  Word *getOrganizationTypeWord() const { return OrganizationTypeWord; }
  /// The organization the word names.
  ClauseOrganizationType getOrganizationType() const { return OrganizationType; }

  void setOrganizationTypeWord(Word *W) { OrganizationTypeWord = W; }
  void setOrganizationType(ClauseOrganizationType T) { OrganizationType = T; }

private:
  Word *OrganizationTypeWord = nullptr;
  ClauseOrganizationType OrganizationType = ORGANIZATION_TYPE_NONE;
};

/// The PADDING CHARACTER clause.
class ClausePadding : public Node {
public:
  /// The padding character: a data name or a literal.
  Expression *getCharacter() const { return Character; }
  void setCharacter(Expression *E) { Character = E; }

private:
  Expression *Character = nullptr;
};

/// The ACCESS MODE clause.
class ClauseAccess : public Node {
public:
  /// The mode word as written (SEQUENTIAL, RANDOM or DYNAMIC).
  Word *getAccessMode() const { return AccessMode; }
  /// The mode the word names.
  ClauseAccessType getAccessType() const { return AccessType; }

  void setAccessMode(Word *W) { AccessMode = W; }
  void setAccessType(ClauseAccessType T) { AccessType = T; }

private:
  Word *AccessMode = nullptr;
  ClauseAccessType AccessType = ACCESS_TYPE_NONE;
};

/// The FILE STATUS clause: "FILE STATUS IS status-1 [status-2]".
class ClauseStatus : public Node {
public:
  DataIdentifierExpression *getStatus_1() const { return Status_1; }
  /// The second status item, null when not written.
  DataIdentifierExpression *getStatus_2() const { return Status_2; }

  void setStatus_1(DataIdentifierExpression *E) { Status_1 = E; }
  void setStatus_2(DataIdentifierExpression *E) { Status_2 = E; }

private:
  DataIdentifierExpression *Status_1 = nullptr;
  DataIdentifierExpression *Status_2 = nullptr;
};

/// The RECORD KEY clause.
class ClauseRecordKey : public Node {
public:
  /// The key's data name.
  DataIdentifierExpression *getDataName() const { return DataName; }
  void setDataName(DataIdentifierExpression *E) { DataName = E; }

private:
  DataIdentifierExpression *DataName = nullptr;
};

/// The RELATIVE KEY clause.
class ClauseRelativeKey : public Node {
public:
  /// The key's data name.
  DataIdentifierExpression *getDataName() const { return DataName; }
  void setDataName(DataIdentifierExpression *E) { DataName = E; }

private:
  DataIdentifierExpression *DataName = nullptr;
};

/// The RECORD DELIMITER clause: "RECORD DELIMITER IS {STANDARD-1 | name}".
class ClauseRecordDelimiter : public Node {
public:
  /// The delimiter name, null when STANDARD-1 was written.
  Word *getDelimiter() const { return Delimiter; }
  /// The word STANDARD-1, null when not written.
  Word *getStandard_1() const { return Standard_1; }

  void setDelimiter(Word *W) { Delimiter = W; }
  void setStandard_1(Word *W) { Standard_1 = W; }

private:
  Word *Delimiter = nullptr;
  Word *Standard_1 = nullptr;
};

/// An ALTERNATE RECORD KEY clause: "ALTERNATE RECORD KEY IS data-name
/// [WITH DUPLICATES]".
class ClauseAlternate : public Node {
public:
  /// The key's data name.
  DataIdentifierExpression *getDataName() const { return DataName; }
  /// The word DUPLICATES, null when not written.
  Word *getDuplicatesWord() const { return DuplicatesWord; }

  void setDataName(DataIdentifierExpression *E) { DataName = E; }
  void setDuplicatesWord(Word *W) { DuplicatesWord = W; }

private:
  DataIdentifierExpression *DataName = nullptr;
  Word *DuplicatesWord = nullptr;
};

/// The PASSWORD clause; kept in the tree but not reported.
class ClausePassWord : public Node {
public:
  /// The password's data name.
  DataIdentifierExpression *getDataName() const { return DataName; }
  void setDataName(DataIdentifierExpression *E) { DataName = E; }

private:
  DataIdentifierExpression *DataName = nullptr;
};

/// The report-writer MODE clause of a file-control entry: the mode word,
/// an optional BATCH word, and the parameters passed to the report writer.
class ClauseRwMode : public Node {
public:
  Word *getRwModeWord() const { return RwModeWord; }
  /// The word BATCH, null when not written.
  Word *getBatchWord() const { return BatchWord; }
  /// The parameters, null when not written.
  ParamPhrase *getParameters() const { return Parameters; }

  void setRwModeWord(Word *W) { RwModeWord = W; }
  void setBatchWord(Word *W) { BatchWord = W; }
  void setParameters(ParamPhrase *P) { Parameters = P; }

private:
  Word *RwModeWord = nullptr;
  Word *BatchWord = nullptr;
  ParamPhrase *Parameters = nullptr;
};

/// The report-writer DUPLICATE clause: "DUPLICATE n TIMES [WITH {PAGE
/// BUFFER | RANDOM PAGE}]".
class ClauseRwDuplicate : public Node {
public:
  /// The number of copies.
  NumericLiteralExpression *getTimes() const { return Times; }
  /// The WITH option, NONE when not written.
  ClauseRwDuplicateType getType() const { return Type; }
  /// The word WITH, null when not written.
  Word *getWithWord() const { return WithWord; }

  void setTimes(NumericLiteralExpression *E) { Times = E; }
  void setType(ClauseRwDuplicateType T) { Type = T; }
  void setWithWord(Word *W) { WithWord = W; }

private:
  NumericLiteralExpression *Times = nullptr;
  ClauseRwDuplicateType Type = RW_DUPLICATE_NONE;
  Word *WithWord = nullptr;
};

/// The report-writer TYPE clause of a file-control entry: "TYPE {NONE |
/// type-word [DEFERRED] | DEFERRED}".
class ClauseRwType : public Node {
public:
  /// The word NONE, null when not written.
  Word *getNoneWord() const { return NoneWord; }
  /// The type word, null when not written.
  Word *getType() const { return Type; }
  /// The word DEFERRED, null when not written.
  Word *getDeferredWord() const { return DeferredWord; }

  void setNoneWord(Word *W) { NoneWord = W; }
  void setType(Word *W) { Type = W; }
  void setDeferredWord(Word *W) { DeferredWord = W; }

private:
  Word *NoneWord = nullptr;
  Word *Type = nullptr;
  Word *DeferredWord = nullptr;
};

/// The report-writer FIRST PAGE clause: "[NO] FIRST PAGE".
class ClauseRwFirstPage : public Node {
public:
  /// The word NO, null when not written.
  Word *getNoWord() const { return NoWord; }
  void setNoWord(Word *W) { NoWord = W; }

private:
  Word *NoWord = nullptr;
};

/// One SELECT entry of the FILE-CONTROL paragraph with its clauses. Every
/// clause is null when not written; ALTERNATE RECORD KEY may repeat.
class FileControlItem : public Node {
public:
  unsigned long getAlternateListSize() const { return AlternateList.size(); }
  NodeList<ClauseAlternate>::const_iterator getAlternateListBegin() const {
    return AlternateList.begin();
  }
  NodeList<ClauseAlternate>::const_iterator getAlternateListEnd() const {
    return AlternateList.end();
  }

  ClauseSelect *getSelect() const { return Select; }
  ClauseAssign *getAssign() const { return Assign; }
  ClauseReserve *getReserve() const { return Reserve; }
  ClauseOrganization *getOrganization() const { return Organization; }
  ClausePadding *getPadding() const { return Padding; }
  ClauseAccess *getAccess() const { return Access; }
  ClauseStatus *getStatus() const { return Status; }
  ClauseRecordKey *getRecordKey() const { return RecordKey; }
  ClauseRelativeKey *getRelativeKey() const { return RelativeKey; }
  ClauseRecordDelimiter *getRecordDelimiter() const { return RecordDelimiter; }
  ClausePassWord *getPassWord() const { return PassWord; }
  ClauseRwMode *getRwMode() const { return RwMode; }
  ClauseRwDuplicate *getRwDuplicate() const { return RwDuplicate; }
  ClauseRwType *getRwType() const { return RwType; }
  ClauseRwFirstPage *getRwFirstPage() const { return RwFirstPage; }

  void addAlternate(ClauseAlternate *C) { AlternateList.push_back(C); }
  void setSelect(ClauseSelect *C) { Select = C; }
  void setAssign(ClauseAssign *C) { Assign = C; }
  void setReserve(ClauseReserve *C) { Reserve = C; }
  void setOrganization(ClauseOrganization *C) { Organization = C; }
  void setPadding(ClausePadding *C) { Padding = C; }
  void setAccess(ClauseAccess *C) { Access = C; }
  void setStatus(ClauseStatus *C) { Status = C; }
  void setRecordKey(ClauseRecordKey *C) { RecordKey = C; }
  void setRelativeKey(ClauseRelativeKey *C) { RelativeKey = C; }
  void setRecordDelimiter(ClauseRecordDelimiter *C) { RecordDelimiter = C; }
  void setPassWord(ClausePassWord *C) { PassWord = C; }
  void setRwMode(ClauseRwMode *C) { RwMode = C; }
  void setRwDuplicate(ClauseRwDuplicate *C) { RwDuplicate = C; }
  void setRwType(ClauseRwType *C) { RwType = C; }
  void setRwFirstPage(ClauseRwFirstPage *C) { RwFirstPage = C; }

private:
  NodeList<ClauseAlternate> AlternateList;
  ClauseSelect *Select = nullptr;
  ClauseAssign *Assign = nullptr;
  ClauseReserve *Reserve = nullptr;
  ClauseOrganization *Organization = nullptr;
  ClausePadding *Padding = nullptr;
  ClauseAccess *Access = nullptr;
  ClauseStatus *Status = nullptr;
  ClauseRecordKey *RecordKey = nullptr;
  ClauseRelativeKey *RelativeKey = nullptr;
  ClauseRecordDelimiter *RecordDelimiter = nullptr;
  ClausePassWord *PassWord = nullptr;
  ClauseRwMode *RwMode = nullptr;
  ClauseRwDuplicate *RwDuplicate = nullptr;
  ClauseRwType *RwType = nullptr;
  ClauseRwFirstPage *RwFirstPage = nullptr;
};

/// The FILE-CONTROL paragraph.
class ParaFileControl : public Node {
public:
  /// The SELECT entries, in source order.
  unsigned long getFileControlItemListSize() const { return FileControlItemList.size(); }
  NodeList<FileControlItem>::const_iterator getFileControlItemListBegin() const {
    return FileControlItemList.begin();
  }
  NodeList<FileControlItem>::const_iterator getFileControlItemListEnd() const {
    return FileControlItemList.end();
  }

  void addFileControlItem(FileControlItem *I) { FileControlItemList.push_back(I); }

private:
  NodeList<FileControlItem> FileControlItemList;
};

//===----------------------------------------------------------------------===//
// I-O-CONTROL
//===----------------------------------------------------------------------===//

/// The RERUN clause: "RERUN ON file-1 EVERY {n RECORDS | END OF {REEL |
/// UNIT}} OF file-2".
class ClauseRerun : public Node {
public:
  /// The file name after ON.
  Word *getFileName1() const { return FileName1; }
  /// The record count, null for END OF REEL/UNIT.
  NumericLiteralExpression *getRecordCount() const { return RecordCount; }
  /// The word REEL or UNIT, null for a record count.
  Word *getReelUnit() const { return ReelUnit; }
  /// The file name after OF.
  Word *getFileName2() const { return FileName2; }

  void setFileName1(Word *W) { FileName1 = W; }
  void setRecordCount(NumericLiteralExpression *E) { RecordCount = E; }
  void setReelUnit(Word *W) { ReelUnit = W; }
  void setFileName2(Word *W) { FileName2 = W; }

private:
  Word *FileName1 = nullptr;
  NumericLiteralExpression *RecordCount = nullptr;
  Word *ReelUnit = nullptr;
  Word *FileName2 = nullptr;
};

/// The SAME AREA clause: "SAME [RECORD | SORT | SORT-MERGE] AREA FOR
/// file-name ...".
class ClauseSame : public Node {
public:
  /// The kind word (RECORD, SORT or SORT-MERGE), null for plain SAME AREA.
  Word *getKindWord() const { return KindWord; }
  /// The file names, in source order.
  unsigned long getFileNameListSize() const { return FileNameList.size(); }
  NodeList<Word>::const_iterator getFileNameListBegin() const { return FileNameList.begin(); }
  NodeList<Word>::const_iterator getFileNameListEnd() const { return FileNameList.end(); }

  void setKindWord(Word *W) { KindWord = W; }
  void addFileName(Word *W) { FileNameList.push_back(W); }

private:
  Word *KindWord = nullptr;
  NodeList<Word> FileNameList;
};

/// One file of a MULTIPLE FILE TAPE clause: "file-name [POSITION n]".
class PrsMultipleFile : public Node {
public:
  Word *getFileName() const { return FileName; }
  /// The position, null when not written.
  NumericLiteralExpression *getPosition() const { return Position; }

  void setFileName(Word *W) { FileName = W; }
  void setPosition(NumericLiteralExpression *E) { Position = E; }

private:
  Word *FileName = nullptr;
  NumericLiteralExpression *Position = nullptr;
};

/// The MULTIPLE FILE TAPE clause.
class ClauseMultipleFile : public Node {
public:
  unsigned long getMultipleFileListSize() const { return MultipleFileList.size(); }
  NodeList<PrsMultipleFile>::const_iterator getMultipleFileListBegin() const {
    return MultipleFileList.begin();
  }
  NodeList<PrsMultipleFile>::const_iterator getMultipleFileListEnd() const {
    return MultipleFileList.end();
  }

  void addMultipleFile(PrsMultipleFile *P) { MultipleFileList.push_back(P); }

private:
  NodeList<PrsMultipleFile> MultipleFileList;
};

/// The APPLY WRITE-ONLY clause: "APPLY WRITE-ONLY ON file-name ..."; kept in
/// the tree but not reported.
class ClauseApplyWriteOnly : public Node {
public:
  unsigned long getFileNameListSize() const { return FileNameList.size(); }
  NodeList<Word>::const_iterator getFileNameListBegin() const { return FileNameList.begin(); }
  NodeList<Word>::const_iterator getFileNameListEnd() const { return FileNameList.end(); }

  void addFileName(Word *W) { FileNameList.push_back(W); }

private:
  NodeList<Word> FileNameList;
};

/// One entry of the I-O-CONTROL paragraph; it carries at most one clause of
/// each kind, the others being null.
class IOControlItem : public Node {
public:
  ClauseRerun *getRerun() const { return Rerun; }
  ClauseSame *getSame() const { return Same; }
  ClauseMultipleFile *getMultipleFile() const { return MultipleFile; }
  ClauseApplyWriteOnly *getApplyWriteOnly() const { return ApplyWriteOnly; }

  void setRerun(ClauseRerun *C) { Rerun = C; }
  void setSame(ClauseSame *C) { Same = C; }
  void setMultipleFile(ClauseMultipleFile *C) { MultipleFile = C; }
  void setApplyWriteOnly(ClauseApplyWriteOnly *C) { ApplyWriteOnly = C; }

private:
  ClauseRerun *Rerun = nullptr;
  ClauseSame *Same = nullptr;
  ClauseMultipleFile *MultipleFile = nullptr;
  ClauseApplyWriteOnly *ApplyWriteOnly = nullptr;
};

/// The I-O-CONTROL paragraph.
class ParaIOControl : public Node {
public:
  /// The entries, in source order.
  unsigned long getIOControlItemListSize() const { return IOControlItemList.size(); }
  NodeList<IOControlItem>::const_iterator getIOControlItemListBegin() const {
    return IOControlItemList.begin();
  }
  NodeList<IOControlItem>::const_iterator getIOControlItemListEnd() const {
    return IOControlItemList.end();
  }

  void addIOControlItem(IOControlItem *I) { IOControlItemList.push_back(I); }

private:
  NodeList<IOControlItem> IOControlItemList;
};

//===----------------------------------------------------------------------===//
// Sections and the division
//===----------------------------------------------------------------------===//

/// The INPUT-OUTPUT SECTION.
class InputOutputSection : public Node {
public:
  /// The FILE-CONTROL paragraph, null when not written.
  ParaFileControl *getFileControl() const { return FileControl; }
  /// The I-O-CONTROL paragraph, null when not written.
  ParaIOControl *getIOControl() const { return IOControl; }

  void setFileControl(ParaFileControl *P) { FileControl = P; }
  void setIOControl(ParaIOControl *P) { IOControl = P; }

private:
  ParaFileControl *FileControl = nullptr;
  ParaIOControl *IOControl = nullptr;
};

/// The ENVIRONMENT DIVISION.
class EnvironmentDivision : public Node {
public:
  /// The CONFIGURATION SECTION, null when not written.
  ConfigurationSection *getConfigurationSection() const { return ConfigSection; }
  /// The INPUT-OUTPUT SECTION, null when not written.
  InputOutputSection *getInputOutputSection() const { return IOSection; }

  void setConfigurationSection(ConfigurationSection *S) { ConfigSection = S; }
  void setInputOutputSection(InputOutputSection *S) { IOSection = S; }

private:
  ConfigurationSection *ConfigSection = nullptr;
  InputOutputSection *IOSection = nullptr;
};

} // namespace korvid

#endif // KORVID_PARSETREE_ENVIRONMENT_H
