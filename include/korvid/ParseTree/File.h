//===- korvid/ParseTree/File.h - File description entries -------*- C++ -*-===//
//
// The FD and SD entries of the FILE SECTION, with their clauses and the
// record descriptions that follow them. The record descriptions are data
// description entries (Data.h), held in source order like the entries of a
// storage section. ExFileDescription is the extended entry that the tree
// builds for every file description.
//
//===----------------------------------------------------------------------===//
#ifndef KORVID_PARSETREE_FILE_H
#define KORVID_PARSETREE_FILE_H

#include "korvid/ParseTree/Node.h"

namespace korvid {

/// A file description entry (FD or SD). Every clause getter returns null
/// when the clause is not written.
class FileDescription : public Node {
public:
  /// The word FD or SD.
  Word *getFDWord() const { return FDWord; }
  Word *getFileName() const { return FileName; }

  ClauseExternalFile *getExternal() const { return External; }
  ClauseGlobalFile *getGlobal() const { return Global; }
  ClauseRecord *getRecord() const { return Record; }
  ClauseBlock *getBlock() const { return Block; }
  ClauseLabel *getLabel() const { return Label; }
  ClauseValueOf *getValueOf() const { return ValueOf; }
  ClauseRecordingMode *getRecordingMode() const { return RecordingMode; }
  ClauseLinage *getLinage() const { return Linage; }
  ClauseDataRecord *getDataRecord() const { return DataRecord; }
  ClauseCodeSet *getCodeSet() const { return CodeSet; }
  ClauseReport *getReport() const { return Report; }
  ClauseRwStyle *getStyle() const { return Style; }

  /// The record descriptions of the file, top-level entries in source order.
  unsigned long getOrderedListSize() const { return OrderedList.size(); }
  NodeList<DataDescription>::const_iterator getOrderedListBegin() const {
    return OrderedList.begin();
  }
  NodeList<DataDescription>::const_iterator getOrderedListEnd() const {
    return OrderedList.end();
  }

  void setFDWord(Word *W) { FDWord = W; }
  void setFileName(Word *W) { FileName = W; }
  void setExternal(ClauseExternalFile *C) { External = C; }
  void setGlobal(ClauseGlobalFile *C) { Global = C; }
  void setRecord(ClauseRecord *C) { Record = C; }
  void setBlock(ClauseBlock *C) { Block = C; }
  void setLabel(ClauseLabel *C) { Label = C; }
  void setValueOf(ClauseValueOf *C) { ValueOf = C; }
  void setRecordingMode(ClauseRecordingMode *C) { RecordingMode = C; }
  void setLinage(ClauseLinage *C) { Linage = C; }
  void setDataRecord(ClauseDataRecord *C) { DataRecord = C; }
  void setCodeSet(ClauseCodeSet *C) { CodeSet = C; }
  void setReport(ClauseReport *C) { Report = C; }
  void setStyle(ClauseRwStyle *C) { Style = C; }
  void addOrdered(DataDescription *D) { OrderedList.push_back(D); }

private:
  Word *FDWord = nullptr;
  Word *FileName = nullptr;
  ClauseExternalFile *External = nullptr;
  ClauseGlobalFile *Global = nullptr;
  ClauseRecord *Record = nullptr;
  ClauseBlock *Block = nullptr;
  ClauseLabel *Label = nullptr;
  ClauseValueOf *ValueOf = nullptr;
  ClauseRecordingMode *RecordingMode = nullptr;
  ClauseLinage *Linage = nullptr;
  ClauseDataRecord *DataRecord = nullptr;
  ClauseCodeSet *CodeSet = nullptr;
  ClauseReport *Report = nullptr;
  ClauseRwStyle *Style = nullptr;
  NodeList<DataDescription> OrderedList;
};

/// The extended file description the tree builds for every FD and SD entry.
class ExFileDescription : public FileDescription {
public:
  ExNodeType getExNodeType() override { return EX_NODE_TYPE_EXFILEDESCRIPTION; }
};

/// The EXTERNAL clause of a file description; its presence is all it says.
class ClauseExternalFile : public Node {};

/// The GLOBAL clause of a file description; its presence is all it says.
class ClauseGlobalFile : public Node {};

/// The BLOCK CONTAINS clause: the range of the block size, in CHARACTERS or
/// RECORDS (MIN null when only one size is written).
class ClauseBlock : public Node {
public:
  /// The word CHARACTERS, null when not written.
  Word *getCharacters() const { return Characters; }
  /// The word RECORDS, null when not written.
  Word *getRecords() const { return Records; }
  NumericLiteralExpression *getMinLength() const { return MinLength; }
  NumericLiteralExpression *getMaxLength() const { return MaxLength; }

  void setCharacters(Word *W) { Characters = W; }
  void setRecords(Word *W) { Records = W; }
  void setMinLength(NumericLiteralExpression *E) { MinLength = E; }
  void setMaxLength(NumericLiteralExpression *E) { MaxLength = E; }

private:
  Word *Characters = nullptr;
  Word *Records = nullptr;
  NumericLiteralExpression *MinLength = nullptr;
  NumericLiteralExpression *MaxLength = nullptr;
};

/// The RECORD clause: RECORD CONTAINS, or RECORD IS VARYING with its range
/// and DEPENDING ON item.
class ClauseRecord : public Node {
public:
  /// The word VARYING, null when not written.
  Word *getVaryingWord() const { return VaryingWord; }
  NumericLiteralExpression *getMinLength() const { return MinLength; }
  NumericLiteralExpression *getMaxLength() const { return MaxLength; }
  IdentifierExpression *getDependingOn() const { return DependingOn; }

  void setVaryingWord(Word *W) { VaryingWord = W; }
  void setMinLength(NumericLiteralExpression *E) { MinLength = E; }
  void setMaxLength(NumericLiteralExpression *E) { MaxLength = E; }
  void setDependingOn(IdentifierExpression *E) { DependingOn = E; }

private:
  Word *VaryingWord = nullptr;
  NumericLiteralExpression *MinLength = nullptr;
  NumericLiteralExpression *MaxLength = nullptr;
  IdentifierExpression *DependingOn = nullptr;
};

/// The LABEL RECORDS clause: STANDARD, OMITTED, or the label data names.
class ClauseLabel : public Node {
public:
  /// The word STANDARD or OMITTED, null when data names are given instead.
  Word *getType() const { return Type; }

  unsigned long getDataNameListSize() const { return DataNameList.size(); }
  NodeList<IdentifierExpression>::const_iterator getDataNameListBegin() const {
    return DataNameList.begin();
  }
  NodeList<IdentifierExpression>::const_iterator getDataNameListEnd() const {
    return DataNameList.end();
  }

  void setType(Word *W) { Type = W; }
  void addDataName(IdentifierExpression *E) { DataNameList.push_back(E); }

private:
  Word *Type = nullptr;
  NodeList<IdentifierExpression> DataNameList;
};

/// One "implementor-name IS value" pair of a VALUE OF clause.
class ValueOfElem : public Node {
public:
  Word *getImplementorName() const { return ImplementorName; }
  Expression *getValue() const { return Value; }
  void setImplementorName(Word *W) { ImplementorName = W; }
  void setValue(Expression *E) { Value = E; }

private:
  Word *ImplementorName = nullptr;
  Expression *Value = nullptr;
};

/// The VALUE OF clause: its pairs in source order.
class ClauseValueOf : public Node {
public:
  unsigned long getValueOfListSize() const { return ValueOfList.size(); }
  NodeList<ValueOfElem>::const_iterator getValueOfListBegin() const {
    return ValueOfList.begin();
  }
  NodeList<ValueOfElem>::const_iterator getValueOfListEnd() const {
    return ValueOfList.end();
  }
  void addValueOf(ValueOfElem *E) { ValueOfList.push_back(E); }

private:
  NodeList<ValueOfElem> ValueOfList;
};

/// The RECORDING MODE clause.
class ClauseRecordingMode : public Node {
public:
  /// The mode word (F, V, U, S).
  Word *getRecordingMode() const { return RecordingMode; }
  void setRecordingMode(Word *W) { RecordingMode = W; }

private:
  Word *RecordingMode = nullptr;
};

/// The FOOTING phrase of a LINAGE clause.
class LinageFooting : public Node {
public:
  Expression *getExpr() const { return Expr; }
  void setExpr(Expression *E) { Expr = E; }

private:
  Expression *Expr = nullptr;
};

/// The LINES AT TOP phrase of a LINAGE clause.
class LinageTop : public Node {
public:
  Expression *getExpr() const { return Expr; }
  void setExpr(Expression *E) { Expr = E; }

private:
  Expression *Expr = nullptr;
};

/// The LINES AT BOTTOM phrase of a LINAGE clause.
class LinageBottom : public Node {
public:
  Expression *getExpr() const { return Expr; }
  void setExpr(Expression *E) { Expr = E; }

private:
  Expression *Expr = nullptr;
};

/// The LINAGE clause: the page body's number of lines and its optional
/// FOOTING, TOP and BOTTOM phrases.
class ClauseLinage : public Node {
public:
  Expression *getNumOfLines() const { return NumOfLines; }
  LinageFooting *getWithFootingAt() const { return WithFootingAt; }
  LinageTop *getLineAtTop() const { return LineAtTop; }
  LinageBottom *getLineAtBottom() const { return LineAtBottom; }

  void setNumOfLines(Expression *E) { NumOfLines = E; }
  void setWithFootingAt(LinageFooting *P) { WithFootingAt = P; }
  void setLineAtTop(LinageTop *P) { LineAtTop = P; }
  void setLineAtBottom(LinageBottom *P) { LineAtBottom = P; }

private:
  Expression *NumOfLines = nullptr;
  LinageFooting *WithFootingAt = nullptr;
  LinageTop *LineAtTop = nullptr;
  LinageBottom *LineAtBottom = nullptr;
};

/// The DATA RECORDS clause: the record names in source order.
class ClauseDataRecord : public Node {
public:
  unsigned long getDataRecordListSize() const { return DataRecordList.size(); }
  NodeList<IdentifierExpression>::const_iterator getDataRecordListBegin() const {
    return DataRecordList.begin();
  }
  NodeList<IdentifierExpression>::const_iterator getDataRecordListEnd() const {
    return DataRecordList.end();
  }
  void addDataRecord(IdentifierExpression *E) { DataRecordList.push_back(E); }

private:
  NodeList<IdentifierExpression> DataRecordList;
};

/// The CODE-SET clause.
class ClauseCodeSet : public Node {
public:
  Word *getAlphabetName() const { return AlphabetName; }
  void setAlphabetName(Word *W) { AlphabetName = W; }

private:
  Word *AlphabetName = nullptr;
};

/// The REPORT clause of a file description: the report names, or ALL.
class ClauseReport : public Node {
public:
  /// The word ALL, null when report names are listed.
  Word *getAllWord() const { return AllWord; }

  unsigned long getReportNameListSize() const { return ReportNameList.size(); }
  NodeList<Word>::const_iterator getReportNameListBegin() const {
    return ReportNameList.begin();
  }
  NodeList<Word>::const_iterator getReportNameListEnd() const {
    return ReportNameList.end();
  }

  void setAllWord(Word *W) { AllWord = W; }
  void addReportName(Word *W) { ReportNameList.push_back(W); }

private:
  Word *AllWord = nullptr;
  NodeList<Word> ReportNameList;
};

/// The report-writer STYLE clause of a file description: the style names,
/// or NORMAL.
class ClauseRwStyle : public Node {
public:
  /// The word NORMAL, null when style names are listed.
  Word *getNormalWord() const { return NormalWord; }

  unsigned long getStyleNameListSize() const { return StyleNameList.size(); }
  NodeList<Word>::const_iterator getStyleNameListBegin() const {
    return StyleNameList.begin();
  }
  NodeList<Word>::const_iterator getStyleNameListEnd() const { return StyleNameList.end(); }

  void setNormalWord(Word *W) { NormalWord = W; }
  void addStyleName(Word *W) { StyleNameList.push_back(W); }

private:
  Word *NormalWord = nullptr;
  NodeList<Word> StyleNameList;
};

} // namespace korvid

#endif // KORVID_PARSETREE_FILE_H
