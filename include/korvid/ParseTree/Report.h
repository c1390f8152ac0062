//===- korvid/ParseTree/Report.h - Report writer descriptions ---*- C++ -*-===//
//
// The report writer's part of the data division: the report description
// entries (RD) of the REPORT SECTION with their report-level clauses, and
// the report group description entries below an RD with their report group
// clauses (TYPE, LINE, COLUMN, SOURCE, SUM, PRESENT WHEN, ...). A report
// group entry is a DataDescription, so it also carries the ordinary clauses
// (PICTURE, USAGE, JUSTIFIED, BLANK WHEN ZERO).
//
//===----------------------------------------------------------------------===//
#ifndef KORVID_PARSETREE_REPORT_H
#define KORVID_PARSETREE_REPORT_H

#include "korvid/ParseTree/Data.h"
#include "korvid/ParseTree/Expression.h"

namespace korvid {

//===----------------------------------------------------------------------===//
// Enumerations
//===----------------------------------------------------------------------===//

/// The group type written in a TYPE clause.
enum RptTypeOption : int32_t {
  RPT_TYPE_NONE = 0,
  /// REPORT HEADING.
  RPT_TYPE_RH = 1,
  /// PAGE HEADING.
  RPT_TYPE_PH = 2,
  /// CONTROL HEADING.
  RPT_TYPE_CH = 3,
  /// DETAIL.
  RPT_TYPE_DE = 4,
  /// CONTROL FOOTING.
  RPT_TYPE_CF = 5,
  /// PAGE FOOTING.
  RPT_TYPE_PF = 6,
  /// REPORT FOOTING.
  RPT_TYPE_RF = 7,
};

/// The form of a PRESENT AFTER clause.
enum RptPresentAfterType : int32_t {
  RPT_AFT_NONE = 0,
  RPT_AFT_PRESENT_AFTER = 1,
  RPT_AFT_ABSENT_AFTER = 2,
  RPT_AFT_PRESENT_JUST_AFTER = 3,
  /// GROUP INDICATE.
  RPT_AFT_GROUP = 4,
};

/// The form of a PRESENT WHEN clause.
enum RptPresentWhenType : int32_t {
  RPT_WHEN_NONE = 0,
  RPT_WHEN_PRESENT_WHEN = 1,
  RPT_WHEN_ABSENT_WHEN = 2,
  RPT_WHEN_PRESENT_UNLESS = 3,
  RPT_WHEN_ABSENT_UNLESS = 4,
  /// PRESENT WHEN OTHER.
  RPT_WHEN_OTHER = 5,
};

/// The form of the STEP / WIDTH / DEPTH phrase of a report OCCURS clause.
enum RptOccursType : int32_t {
  RPT_OCC_NONE = 0,
  RPT_OCC_STEP_NONE = 1,
  RPT_OCC_STEP_LINES = 2,
  RPT_OCC_STEP_COLUMNS = 3,
  RPT_OCC_WIDTH_NONE = 4,
  RPT_OCC_WIDTH_LINES = 5,
  RPT_OCC_WIDTH_COLUMNS = 6,
  RPT_OCC_DEPTH_NONE = 7,
  RPT_OCC_DEPTH_LINES = 8,
  RPT_OCC_DEPTH_COLUMNS = 9,
};

/// Which part of a SOURCE operand is filled.
enum RptSourceExprType : int32_t {
  RPT_SRC_NONE = 0,
  /// A plain expression (getExpr()).
  RPT_SRC_EXPR = 1,
  /// A SUM operand (getSumExpr()).
  RPT_SRC_SUM = 2,
  /// A COUNT operand (getCountExpr()).
  RPT_SRC_COUNT = 3,
  /// An arithmetic of SOURCE operands (getArithExpr()).
  RPT_SRC_ARITH = 4,
};

//===----------------------------------------------------------------------===//
// Report description entry (RD) and its clauses
//===----------------------------------------------------------------------===//

/// A report description entry (RD) with its report-level clauses and the
/// report group entries that follow it. Clause getters return null when the
/// clause is not written.
class ReportDescription : public Node {
public:
  /// The word RD.
  Word *getRdWord() const { return RdWord; }
  Word *getReportName() const { return ReportName; }
  /// The word GLOBAL, null when not written.
  Word *getGlobalWord() const { return GlobalWord; }

  ClauseAllow *getAllowClause() const { return AllowClause; }
  ClauseCode *getCodeClause() const { return CodeClause; }
  ClauseControl *getControlClause() const { return ControlClause; }
  ClauseLineLimit *getLineLimitClause() const { return LineLimitClause; }
  ClausePageLimit *getPageLimitClause() const { return PageLimitClause; }
  ClauseRdStyle *getRdStyleClause() const { return RdStyleClause; }
  ClauseOverflow *getOverflowClause() const { return OverflowClause; }

  /// The report group entries of this report, in source order.
  unsigned long getRecordListSize() const { return RecordList.size(); }
  NodeList<ReportDataDescription>::const_iterator getRecordListBegin() const {
    return RecordList.begin();
  }
  NodeList<ReportDataDescription>::const_iterator getRecordListEnd() const {
    return RecordList.end();
  }

  void setRdWord(Word *W) { RdWord = W; }
  void setReportName(Word *W) { ReportName = W; }
  void setGlobalWord(Word *W) { GlobalWord = W; }
  void setAllowClause(ClauseAllow *C) { AllowClause = C; }
  void setCodeClause(ClauseCode *C) { CodeClause = C; }
  void setControlClause(ClauseControl *C) { ControlClause = C; }
  void setLineLimitClause(ClauseLineLimit *C) { LineLimitClause = C; }
  void setPageLimitClause(ClausePageLimit *C) { PageLimitClause = C; }
  void setRdStyleClause(ClauseRdStyle *C) { RdStyleClause = C; }
  void setOverflowClause(ClauseOverflow *C) { OverflowClause = C; }
  void addRecord(ReportDataDescription *D) { RecordList.push_back(D); }

private:
  Word *RdWord = nullptr;
  Word *ReportName = nullptr;
  Word *GlobalWord = nullptr;
  ClauseAllow *AllowClause = nullptr;
  ClauseCode *CodeClause = nullptr;
  ClauseControl *ControlClause = nullptr;
  ClauseLineLimit *LineLimitClause = nullptr;
  ClausePageLimit *PageLimitClause = nullptr;
  ClauseRdStyle *RdStyleClause = nullptr;
  ClauseOverflow *OverflowClause = nullptr;
  NodeList<ReportDataDescription> RecordList;
};

/// The ALLOW clause of an RD.
class ClauseAllow : public Node {
public:
  /// The word NO, null when not written.
  Word *getNoWord() const { return NoWord; }
  void setNoWord(Word *W) { NoWord = W; }

private:
  Word *NoWord = nullptr;
};

/// The CODE clause of an RD.
class ClauseCode : public Node {
public:
  Expression *getCodeExpr() const { return CodeExpr; }
  void setCodeExpr(Expression *E) { CodeExpr = E; }

private:
  Expression *CodeExpr = nullptr;
};

/// The CONTROL clause of an RD: FINAL and / or the control items.
class ClauseControl : public Node {
public:
  /// The word REPORT, null when not written.
  Word *getReportWord() const { return ReportWord; }
  /// The word FINAL, null when not written.
  Word *getFinalWord() const { return FinalWord; }

  unsigned long getControlIdListSize() const { return ControlIdList.size(); }
  NodeList<IdentifierExpression>::const_iterator getControlIdListBegin() const {
    return ControlIdList.begin();
  }
  NodeList<IdentifierExpression>::const_iterator getControlIdListEnd() const {
    return ControlIdList.end();
  }

  void setReportWord(Word *W) { ReportWord = W; }
  void setFinalWord(Word *W) { FinalWord = W; }
  void addControlId(IdentifierExpression *E) { ControlIdList.push_back(E); }

private:
  Word *ReportWord = nullptr;
  Word *FinalWord = nullptr;
  NodeList<IdentifierExpression> ControlIdList;
};

/// The LINE LIMIT clause of an RD.
class ClauseLineLimit : public Node {
public:
  Expression *getLineLimitExpr() const { return LineLimitExpr; }
  void setLineLimitExpr(Expression *E) { LineLimitExpr = E; }

private:
  Expression *LineLimitExpr = nullptr;
};

/// The HEADING phrase of a PAGE LIMIT clause.
class PhraseHeading : public Node {
public:
  Expression *getHeadingExpr() const { return HeadingExpr; }
  void setHeadingExpr(Expression *E) { HeadingExpr = E; }

private:
  Expression *HeadingExpr = nullptr;
};

/// The FIRST DETAIL phrase of a PAGE LIMIT clause.
class PhraseFirstDetail : public Node {
public:
  Expression *getFirstDetailExpr() const { return FirstDetailExpr; }
  void setFirstDetailExpr(Expression *E) { FirstDetailExpr = E; }

private:
  Expression *FirstDetailExpr = nullptr;
};

/// The LAST DETAIL phrase of a PAGE LIMIT clause.
class PhraseLastDetail : public Node {
public:
  Expression *getLastDetailExpr() const { return LastDetailExpr; }
  void setLastDetailExpr(Expression *E) { LastDetailExpr = E; }

private:
  Expression *LastDetailExpr = nullptr;
};

/// The CONTROL FOOTING phrase of a PAGE LIMIT clause.
class PhraseControlFooting : public Node {
public:
  Expression *getLastFootingExpr() const { return LastFootingExpr; }
  void setLastFootingExpr(Expression *E) { LastFootingExpr = E; }

private:
  Expression *LastFootingExpr = nullptr;
};

/// The page-limit phrase (PAGE LIMIT n LINES) of a PAGE LIMIT clause.
class PhrasePageLimit : public Node {
public:
  Expression *getPageLimitExpr() const { return PageLimitExpr; }
  void setPageLimitExpr(Expression *E) { PageLimitExpr = E; }

private:
  Expression *PageLimitExpr = nullptr;
};

/// The PAGE LIMIT clause of an RD: the page limit and its phrases.
class ClausePageLimit : public Node {
public:
  PhraseHeading *getHeadingPhrase() const { return HeadingPhrase; }
  PhraseFirstDetail *getFirstDetailPhrase() const { return FirstDetailPhrase; }
  PhraseLastDetail *getLastDetailPhrase() const { return LastDetailPhrase; }
  PhraseControlFooting *getControlFootingPhrase() const { return ControlFootingPhrase; }
  PhrasePageLimit *getPageLimitPhrase() const { return PageLimitPhrase; }

  void setHeadingPhrase(PhraseHeading *P) { HeadingPhrase = P; }
  void setFirstDetailPhrase(PhraseFirstDetail *P) { FirstDetailPhrase = P; }
  void setLastDetailPhrase(PhraseLastDetail *P) { LastDetailPhrase = P; }
  void setControlFootingPhrase(PhraseControlFooting *P) { ControlFootingPhrase = P; }
  void setPageLimitPhrase(PhrasePageLimit *P) { PageLimitPhrase = P; }

private:
  PhraseHeading *HeadingPhrase = nullptr;
  PhraseFirstDetail *FirstDetailPhrase = nullptr;
  PhraseLastDetail *LastDetailPhrase = nullptr;
  PhraseControlFooting *ControlFootingPhrase = nullptr;
  PhrasePageLimit *PageLimitPhrase = nullptr;
};

/// The STYLE clause of an RD: the word STYLE and the style names.
class ClauseRdStyle : public Node {
public:
  Word *getStyleWord() const { return StyleWord; }

  unsigned long getStyleNameListSize() const { return StyleNameList.size(); }
  NodeList<Word>::const_iterator getStyleNameListBegin() const {
    return StyleNameList.begin();
  }
  NodeList<Word>::const_iterator getStyleNameListEnd() const { return StyleNameList.end(); }

  void setStyleWord(Word *W) { StyleWord = W; }
  void addStyleName(Word *W) { StyleNameList.push_back(W); }

private:
  Word *StyleWord = nullptr;
  NodeList<Word> StyleNameList;
};

/// The OVERFLOW clause of an RD: OMITTED, STANDARD, or REPLACE / STOP with
/// a literal.
class ClauseOverflow : public Node {
public:
  Word *getOmittedWord() const { return OmittedWord; }
  Word *getStandardWord() const { return StandardWord; }
  Word *getReplaceWord() const { return ReplaceWord; }
  Word *getStopWord() const { return StopWord; }
  /// The literal of the REPLACE or STOP form (one literal serves both).
  LiteralExpression *getReplStopExpr() const { return ReplStopExpr; }

  void setOmittedWord(Word *W) { OmittedWord = W; }
  void setStandardWord(Word *W) { StandardWord = W; }
  void setReplaceWord(Word *W) { ReplaceWord = W; }
  void setStopWord(Word *W) { StopWord = W; }
  void setReplStopExpr(LiteralExpression *E) { ReplStopExpr = E; }

private:
  Word *OmittedWord = nullptr;
  Word *StandardWord = nullptr;
  Word *ReplaceWord = nullptr;
  Word *StopWord = nullptr;
  LiteralExpression *ReplStopExpr = nullptr;
};

//===----------------------------------------------------------------------===//
// Report group description entry
//===----------------------------------------------------------------------===//

/// A report group description entry below an RD: a level number, an
/// optional name, the report group clauses, and the ordinary clauses of a
/// data entry (inherited). Clause getters return null when not written.
class ReportDataDescription : public DataDescription {
public:
  ReportDataDescription() : DataDescription(DESC_REPORT) {}

  ClauseType *getTypeClause() const { return TypeClause; }
  ClauseNextGroup *getNextGroupClause() const { return NextGroupClause; }
  ClauseGroupLimit *getGroupLimitClause() const { return GroupLimitClause; }
  ClauseRepeated *getRepeatedClause() const { return RepeatedClause; }
  ClauseLine *getLineClause() const { return LineClause; }
  ClauseColumn *getColumnClause() const { return ColumnClause; }
  ClauseSum *getSumClause() const { return SumClause; }
  ClauseCount *getCountClause() const { return CountClause; }
  ClausePresentAfter *getPresentAfterClause() const { return PresentAfterClause; }
  ClausePresentWhen *getPresentWhenClause() const { return PresentWhenClause; }
  ClauseWrap *getWrapClause() const { return WrapClause; }
  ClauseMultiple *getMultipleClause() const { return MultipleClause; }
  ClauseReportOccurs *getReportOccursClause() const { return ReportOccursClause; }
  ClauseReportSign *getReportSignClause() const { return ReportSignClause; }
  ClauseRddStyle *getRddStyleClause() const { return RddStyleClause; }

  /// The SOURCE, VALUE and FUNCTION clauses, one item per value written
  /// (items are never null).
  unsigned long getMultipleValuesListSize() const { return MultipleValuesList.size(); }
  NodeList<ClauseMultipleValues>::const_iterator getMultipleValuesListBegin() const {
    return MultipleValuesList.begin();
  }
  NodeList<ClauseMultipleValues>::const_iterator getMultipleValuesListEnd() const {
    return MultipleValuesList.end();
  }

  void setTypeClause(ClauseType *C) { TypeClause = C; }
  void setNextGroupClause(ClauseNextGroup *C) { NextGroupClause = C; }
  void setGroupLimitClause(ClauseGroupLimit *C) { GroupLimitClause = C; }
  void setRepeatedClause(ClauseRepeated *C) { RepeatedClause = C; }
  void setLineClause(ClauseLine *C) { LineClause = C; }
  void setColumnClause(ClauseColumn *C) { ColumnClause = C; }
  void setSumClause(ClauseSum *C) { SumClause = C; }
  void setCountClause(ClauseCount *C) { CountClause = C; }
  void setPresentAfterClause(ClausePresentAfter *C) { PresentAfterClause = C; }
  void setPresentWhenClause(ClausePresentWhen *C) { PresentWhenClause = C; }
  void setWrapClause(ClauseWrap *C) { WrapClause = C; }
  void setMultipleClause(ClauseMultiple *C) { MultipleClause = C; }
  void setReportOccursClause(ClauseReportOccurs *C) { ReportOccursClause = C; }
  void setReportSignClause(ClauseReportSign *C) { ReportSignClause = C; }
  void setRddStyleClause(ClauseRddStyle *C) { RddStyleClause = C; }
  void addMultipleValues(ClauseMultipleValues *C) { MultipleValuesList.push_back(C); }

private:
  ClauseType *TypeClause = nullptr;
  ClauseNextGroup *NextGroupClause = nullptr;
  ClauseGroupLimit *GroupLimitClause = nullptr;
  ClauseRepeated *RepeatedClause = nullptr;
  ClauseLine *LineClause = nullptr;
  ClauseColumn *ColumnClause = nullptr;
  ClauseSum *SumClause = nullptr;
  ClauseCount *CountClause = nullptr;
  ClausePresentAfter *PresentAfterClause = nullptr;
  ClausePresentWhen *PresentWhenClause = nullptr;
  ClauseWrap *WrapClause = nullptr;
  ClauseMultiple *MultipleClause = nullptr;
  ClauseReportOccurs *ReportOccursClause = nullptr;
  ClauseReportSign *ReportSignClause = nullptr;
  ClauseRddStyle *RddStyleClause = nullptr;
  NodeList<ClauseMultipleValues> MultipleValuesList;
};

//===----------------------------------------------------------------------===//
// Report group clauses
//===----------------------------------------------------------------------===//

/// A VARYING phrase of a LINE or report OCCURS clause: the counter, its
/// start value and its increment.
class VaryingPhrase : public Node {
public:
  Word *getDataName() const { return DataName; }
  Expression *getFromExpr() const { return FromExpr; }
  Expression *getByExpr() const { return ByExpr; }

  void setDataName(Word *W) { DataName = W; }
  void setFromExpr(Expression *E) { FromExpr = E; }
  void setByExpr(Expression *E) { ByExpr = E; }

private:
  Word *DataName = nullptr;
  Expression *FromExpr = nullptr;
  Expression *ByExpr = nullptr;
};

/// The TYPE clause: the group type, the control items of a CONTROL HEADING
/// or FOOTING, and the words PAGE and ALL.
class ClauseType : public Node {
public:
  RptTypeOption getTypeOption() const { return TypeOption; }
  Word *getPageWord() const { return PageWord; }
  Word *getAllWord() const { return AllWord; }

  unsigned long getControlIdListSize() const { return ControlIdList.size(); }
  NodeList<IdentifierExpression>::const_iterator getControlIdListBegin() const {
    return ControlIdList.begin();
  }
  NodeList<IdentifierExpression>::const_iterator getControlIdListEnd() const {
    return ControlIdList.end();
  }

  void setTypeOption(RptTypeOption T) { TypeOption = T; }
  void setPageWord(Word *W) { PageWord = W; }
  void setAllWord(Word *W) { AllWord = W; }
  void addControlId(IdentifierExpression *E) { ControlIdList.push_back(E); }

private:
  RptTypeOption TypeOption = RPT_TYPE_NONE;
  Word *PageWord = nullptr;
  Word *AllWord = nullptr;
  NodeList<IdentifierExpression> ControlIdList;
};

/// The NEXT GROUP clause: a line number or NEXT PAGE.
class ClauseNextGroup : public Node {
public:
  Expression *getIntegerExpr() const { return IntegerExpr; }
  /// The word NEXT of NEXT PAGE, null when not written.
  Word *getNextWord() const { return NextWord; }

  void setIntegerExpr(Expression *E) { IntegerExpr = E; }
  void setNextWord(Word *W) { NextWord = W; }

private:
  Expression *IntegerExpr = nullptr;
  Word *NextWord = nullptr;
};

/// The GROUP LIMIT clause: the last line a group may occupy.
class ClauseGroupLimit : public Node {
public:
  NumericLiteralExpression *getLimitExpr() const { return LimitExpr; }
  void setLimitExpr(NumericLiteralExpression *E) { LimitExpr = E; }

private:
  NumericLiteralExpression *LimitExpr = nullptr;
};

/// The REPEATED clause: how many times, and every how many columns.
class ClauseRepeated : public Node {
public:
  NumericLiteralExpression *getTimesExpr() const { return TimesExpr; }
  NumericLiteralExpression *getColsExpr() const { return ColsExpr; }

  void setTimesExpr(NumericLiteralExpression *E) { TimesExpr = E; }
  void setColsExpr(NumericLiteralExpression *E) { ColsExpr = E; }

private:
  NumericLiteralExpression *TimesExpr = nullptr;
  NumericLiteralExpression *ColsExpr = nullptr;
};

/// The LINE clause: the line numbers, NEXT PAGE, and VARYING phrases.
class ClauseLine : public Node {
public:
  /// The word NEXT of NEXT PAGE, null when not written.
  Word *getNextWord() const { return NextWord; }

  /// The line numbers (absolute or PLUS relative), in source order.
  unsigned long getIntegerListSize() const { return IntegerList.size(); }
  NodeList<Expression>::const_iterator getIntegerListBegin() const {
    return IntegerList.begin();
  }
  NodeList<Expression>::const_iterator getIntegerListEnd() const { return IntegerList.end(); }

  unsigned long getVaryingListSize() const { return VaryingList.size(); }
  NodeList<VaryingPhrase>::const_iterator getVaryingListBegin() const {
    return VaryingList.begin();
  }
  NodeList<VaryingPhrase>::const_iterator getVaryingListEnd() const {
    return VaryingList.end();
  }

  void setNextWord(Word *W) { NextWord = W; }
  void addInteger(Expression *E) { IntegerList.push_back(E); }
  void addVarying(VaryingPhrase *P) { VaryingList.push_back(P); }

private:
  Word *NextWord = nullptr;
  NodeList<Expression> IntegerList;
  NodeList<VaryingPhrase> VaryingList;
};

/// The COLUMN clause: the alignment word and the column numbers.
class ClauseColumn : public Node {
public:
  Word *getLeftWord() const { return LeftWord; }
  Word *getCenterWord() const { return CenterWord; }
  Word *getRightWord() const { return RightWord; }

  /// The column numbers, in source order.
  unsigned long getIntegerListSize() const { return IntegerList.size(); }
  NodeList<Expression>::const_iterator getIntegerListBegin() const {
    return IntegerList.begin();
  }
  NodeList<Expression>::const_iterator getIntegerListEnd() const { return IntegerList.end(); }

  void setLeftWord(Word *W) { LeftWord = W; }
  void setCenterWord(Word *W) { CenterWord = W; }
  void setRightWord(Word *W) { RightWord = W; }
  void addInteger(Expression *E) { IntegerList.push_back(E); }

private:
  Word *LeftWord = nullptr;
  Word *CenterWord = nullptr;
  Word *RightWord = nullptr;
  NodeList<Expression> IntegerList;
};

/// One SUM operand: the items summed and the UPON items.
class SumClauseExpr : public Node {
public:
  /// The items summed.
  unsigned long getNameListSize() const { return NameList.size(); }
  NodeList<Expression>::const_iterator getNameListBegin() const { return NameList.begin(); }
  NodeList<Expression>::const_iterator getNameListEnd() const { return NameList.end(); }

  /// The UPON items.
  unsigned long getUponListSize() const { return UponList.size(); }
  NodeList<Expression>::const_iterator getUponListBegin() const { return UponList.begin(); }
  NodeList<Expression>::const_iterator getUponListEnd() const { return UponList.end(); }

  void addName(Expression *E) { NameList.push_back(E); }
  void addUpon(Expression *E) { UponList.push_back(E); }

private:
  NodeList<Expression> NameList;
  NodeList<Expression> UponList;
};

/// The SUM clause: its operands, the RESET ON control, and ROUNDED.
class ClauseSum : public Node {
public:
  /// The RESET ON control item.
  Expression *getControlId() const { return ControlId; }
  /// The word ROUNDED, null when not written.
  Word *getRoundedWord() const { return RoundedWord; }

  unsigned long getSumExprListSize() const { return SumExprList.size(); }
  NodeList<SumClauseExpr>::const_iterator getSumExprListBegin() const {
    return SumExprList.begin();
  }
  NodeList<SumClauseExpr>::const_iterator getSumExprListEnd() const {
    return SumExprList.end();
  }

  void setControlId(Expression *E) { ControlId = E; }
  void setRoundedWord(Word *W) { RoundedWord = W; }
  void addSumExpr(SumClauseExpr *E) { SumExprList.push_back(E); }

private:
  Expression *ControlId = nullptr;
  Word *RoundedWord = nullptr;
  NodeList<SumClauseExpr> SumExprList;
};

/// One COUNT operand: the items counted.
class CountClauseExpr : public Node {
public:
  unsigned long getNameListSize() const { return NameList.size(); }
  NodeList<Expression>::const_iterator getNameListBegin() const { return NameList.begin(); }
  NodeList<Expression>::const_iterator getNameListEnd() const { return NameList.end(); }
  void addName(Expression *E) { NameList.push_back(E); }

private:
  NodeList<Expression> NameList;
};

/// The COUNT clause: its operands, the RESET ON control, and ROUNDED.
class ClauseCount : public Node {
public:
  /// The RESET ON control item.
  Expression *getControlId() const { return ControlId; }
  /// The word ROUNDED, null when not written.
  Word *getRoundedWord() const { return RoundedWord; }

  unsigned long getCountExprListSize() const { return CountExprList.size(); }
  NodeList<CountClauseExpr>::const_iterator getCountExprListBegin() const {
    return CountExprList.begin();
  }
  NodeList<CountClauseExpr>::const_iterator getCountExprListEnd() const {
    return CountExprList.end();
  }

  void setControlId(Expression *E) { ControlId = E; }
  void setRoundedWord(Word *W) { RoundedWord = W; }
  void addCountExpr(CountClauseExpr *E) { CountExprList.push_back(E); }

private:
  Expression *ControlId = nullptr;
  Word *RoundedWord = nullptr;
  NodeList<CountClauseExpr> CountExprList;
};

/// The PRESENT AFTER clause (also ABSENT AFTER, PRESENT JUST AFTER and GROUP
/// INDICATE).
class ClausePresentAfter : public Node {
public:
  RptPresentAfterType getAfterType() const { return AfterType; }
  /// The word AFTER, null when not written.
  Word *getAfterWord() const { return AfterWord; }
  /// The word GROUP of GROUP INDICATE, null when not written.
  Word *getGroupWord() const { return GroupWord; }
  /// The control item after whose change the group is present.
  Expression *getControlId() const { return ControlId; }

  void setAfterType(RptPresentAfterType T) { AfterType = T; }
  void setAfterWord(Word *W) { AfterWord = W; }
  void setGroupWord(Word *W) { GroupWord = W; }
  void setControlId(Expression *E) { ControlId = E; }

private:
  RptPresentAfterType AfterType = RPT_AFT_NONE;
  Word *AfterWord = nullptr;
  Word *GroupWord = nullptr;
  Expression *ControlId = nullptr;
};

/// The PRESENT WHEN clause (also ABSENT WHEN, PRESENT / ABSENT UNLESS and
/// PRESENT WHEN OTHER).
class ClausePresentWhen : public Node {
public:
  RptPresentWhenType getWhenType() const { return WhenType; }
  /// The word WHEN, null when not written.
  Word *getWhenWord() const { return WhenWord; }
  /// The word UNLESS, null when not written.
  Word *getUnlessWord() const { return UnlessWord; }
  /// The control item of a WHEN control form.
  Expression *getControlId() const { return ControlId; }
  /// The condition under which the item is present (or absent).
  Condition *getPresentCond() const { return PresentCond; }

  void setWhenType(RptPresentWhenType T) { WhenType = T; }
  void setWhenWord(Word *W) { WhenWord = W; }
  void setUnlessWord(Word *W) { UnlessWord = W; }
  void setControlId(Expression *E) { ControlId = E; }
  void setPresentCond(Condition *C) { PresentCond = C; }

private:
  RptPresentWhenType WhenType = RPT_WHEN_NONE;
  Word *WhenWord = nullptr;
  Word *UnlessWord = nullptr;
  Expression *ControlId = nullptr;
  Condition *PresentCond = nullptr;
};

/// The FUNCTION clause: the function called, with optional PRESENT AFTER and
/// PRESENT WHEN clauses of its own.
class ClauseFunction : public Node {
public:
  FunctionIdentifierExpression *getFuncIdent() const { return FuncIdent; }
  ClausePresentAfter *getAfterClause() const { return AfterClause; }
  ClausePresentWhen *getWhenClause() const { return WhenClause; }

  void setFuncIdent(FunctionIdentifierExpression *E) { FuncIdent = E; }
  void setAfterClause(ClausePresentAfter *C) { AfterClause = C; }
  void setWhenClause(ClausePresentWhen *C) { WhenClause = C; }

private:
  FunctionIdentifierExpression *FuncIdent = nullptr;
  ClausePresentAfter *AfterClause = nullptr;
  ClausePresentWhen *WhenClause = nullptr;
};

/// The VALUE clause of a report group entry: an ordinary VALUE clause with
/// optional PRESENT AFTER and PRESENT WHEN clauses of its own.
class ClauseReportValue : public ClauseValue {
public:
  ClausePresentAfter *getAfterClause() const { return AfterClause; }
  ClausePresentWhen *getWhenClause() const { return WhenClause; }

  void setAfterClause(ClausePresentAfter *C) { AfterClause = C; }
  void setWhenClause(ClausePresentWhen *C) { WhenClause = C; }

private:
  ClausePresentAfter *AfterClause = nullptr;
  ClausePresentWhen *WhenClause = nullptr;
};

/// An arithmetic of SOURCE operands: "lhs op rhs", or "op rhs" for the
/// unary operators. Operands are SOURCE operands, so arithmetic nests.
class SourceArithExpr : public Node {
public:
  ArithmeticExprType getArithType() const { return ArithType; }
  SourceClauseExpr *getLhs() const { return Lhs; }
  SourceClauseExpr *getRhs() const { return Rhs; }
  /// The operator word (+, -, *, /, **).
  Word *getOp1() const { return Op1; }

  void setArithType(ArithmeticExprType T) { ArithType = T; }
  void setLhs(SourceClauseExpr *E) { Lhs = E; }
  void setRhs(SourceClauseExpr *E) { Rhs = E; }
  void setOp1(Word *W) { Op1 = W; }

private:
  ArithmeticExprType ArithType = ARITH_EXPR_NONE;
  SourceClauseExpr *Lhs = nullptr;
  SourceClauseExpr *Rhs = nullptr;
  Word *Op1 = nullptr;
};

/// One SOURCE operand: a plain expression, a SUM or COUNT operand, or an
/// arithmetic of operands; getType() says which part is filled.
class SourceClauseExpr : public Node {
public:
  RptSourceExprType getType() const { return Type; }
  Expression *getExpr() const { return Expr; }
  SumClauseExpr *getSumExpr() const { return SumExpr; }
  CountClauseExpr *getCountExpr() const { return CountExpr; }
  SourceArithExpr *getArithExpr() const { return ArithExpr; }

  void setType(RptSourceExprType T) { Type = T; }
  void setExpr(Expression *E) { Expr = E; }
  void setSumExpr(SumClauseExpr *E) { SumExpr = E; }
  void setCountExpr(CountClauseExpr *E) { CountExpr = E; }
  void setArithExpr(SourceArithExpr *E) { ArithExpr = E; }

private:
  RptSourceExprType Type = RPT_SRC_NONE;
  Expression *Expr = nullptr;
  SumClauseExpr *SumExpr = nullptr;
  CountClauseExpr *CountExpr = nullptr;
  SourceArithExpr *ArithExpr = nullptr;
};

/// The SOURCE clause: its operands, ROUNDED, and optional PRESENT AFTER and
/// PRESENT WHEN clauses of its own.
class ClauseSource : public Node {
public:
  /// The word ROUNDED, null when not written.
  Word *getRoundedWord() const { return RoundedWord; }
  ClausePresentAfter *getAfterClause() const { return AfterClause; }
  ClausePresentWhen *getWhenClause() const { return WhenClause; }

  unsigned long getSourceExprListSize() const { return SourceExprList.size(); }
  NodeList<SourceClauseExpr>::const_iterator getSourceExprListBegin() const {
    return SourceExprList.begin();
  }
  NodeList<SourceClauseExpr>::const_iterator getSourceExprListEnd() const {
    return SourceExprList.end();
  }

  void setRoundedWord(Word *W) { RoundedWord = W; }
  void setAfterClause(ClausePresentAfter *C) { AfterClause = C; }
  void setWhenClause(ClausePresentWhen *C) { WhenClause = C; }
  void addSourceExpr(SourceClauseExpr *E) { SourceExprList.push_back(E); }

private:
  Word *RoundedWord = nullptr;
  ClausePresentAfter *AfterClause = nullptr;
  ClausePresentWhen *WhenClause = nullptr;
  NodeList<SourceClauseExpr> SourceExprList;
};

/// One value of a report group entry: a FUNCTION, SOURCE or VALUE clause
/// (normally exactly one of the three is set).
class ClauseMultipleValues : public Node {
public:
  ClauseFunction *getFunctionClause() const { return FunctionClause; }
  ClauseSource *getSourceClause() const { return SourceClause; }
  ClauseReportValue *getReportValueClause() const { return ReportValueClause; }

  void setFunctionClause(ClauseFunction *C) { FunctionClause = C; }
  void setSourceClause(ClauseSource *C) { SourceClause = C; }
  void setReportValueClause(ClauseReportValue *C) { ReportValueClause = C; }

private:
  ClauseFunction *FunctionClause = nullptr;
  ClauseSource *SourceClause = nullptr;
  ClauseReportValue *ReportValueClause = nullptr;
};

/// The AFTER COLUMN phrase of a WRAP clause.
class PhraseWrapAfter : public Node {
public:
  Expression *getAfterColExpr() const { return AfterColExpr; }
  void setAfterColExpr(Expression *E) { AfterColExpr = E; }

private:
  Expression *AfterColExpr = nullptr;
};

/// The TO COLUMN phrase of a WRAP clause.
class PhraseWrapTo : public Node {
public:
  Expression *getToColExpr() const { return ToColExpr; }
  void setToColExpr(Expression *E) { ToColExpr = E; }

private:
  Expression *ToColExpr = nullptr;
};

/// The STEP LINES phrase of a WRAP clause.
class PhraseWrapStep : public Node {
public:
  Expression *getLinesExpr() const { return LinesExpr; }
  void setLinesExpr(Expression *E) { LinesExpr = E; }

private:
  Expression *LinesExpr = nullptr;
};

/// The WRAP clause: its AFTER, TO and STEP phrases, or WITH NO WRAP.
class ClauseWrap : public Node {
public:
  PhraseWrapAfter *getAfterPhrase() const { return AfterPhrase; }
  PhraseWrapTo *getToPhrase() const { return ToPhrase; }
  PhraseWrapStep *getStepPhrase() const { return StepPhrase; }
  /// The word NO of WITH NO WRAP, null when not written.
  Word *getWithNoWrapWord() const { return WithNoWrapWord; }

  void setAfterPhrase(PhraseWrapAfter *P) { AfterPhrase = P; }
  void setToPhrase(PhraseWrapTo *P) { ToPhrase = P; }
  void setStepPhrase(PhraseWrapStep *P) { StepPhrase = P; }
  void setWithNoWrapWord(Word *W) { WithNoWrapWord = W; }

private:
  PhraseWrapAfter *AfterPhrase = nullptr;
  PhraseWrapTo *ToPhrase = nullptr;
  PhraseWrapStep *StepPhrase = nullptr;
  Word *WithNoWrapWord = nullptr;
};

/// The MULTIPLE PAGE clause.
class ClauseMultiple : public Node {
public:
  /// The word NO, null when not written.
  Word *getNoWord() const { return NoWord; }
  void setNoWord(Word *W) { NoWord = W; }

private:
  Word *NoWord = nullptr;
};

/// The STEP / WIDTH / DEPTH phrase of a report OCCURS clause.
class PhraseOccursStep : public Node {
public:
  RptOccursType getOccursType() const { return OccursType; }
  NumericLiteralExpression *getIntegerExpr() const { return IntegerExpr; }

  void setOccursType(RptOccursType T) { OccursType = T; }
  void setIntegerExpr(NumericLiteralExpression *E) { IntegerExpr = E; }

private:
  RptOccursType OccursType = RPT_OCC_NONE;
  NumericLiteralExpression *IntegerExpr = nullptr;
};

/// The OCCURS clause of a report group entry: an ordinary OCCURS clause with
/// VARYING phrases and a STEP / WIDTH / DEPTH phrase.
class ClauseReportOccurs : public ClauseOccurs {
public:
  PhraseOccursStep *getStepPhrase() const { return StepPhrase; }

  unsigned long getVaryingListSize() const { return VaryingList.size(); }
  NodeList<VaryingPhrase>::const_iterator getVaryingListBegin() const {
    return VaryingList.begin();
  }
  NodeList<VaryingPhrase>::const_iterator getVaryingListEnd() const {
    return VaryingList.end();
  }

  void setStepPhrase(PhraseOccursStep *P) { StepPhrase = P; }
  void addVarying(VaryingPhrase *P) { VaryingList.push_back(P); }

private:
  PhraseOccursStep *StepPhrase = nullptr;
  NodeList<VaryingPhrase> VaryingList;
};

/// The SIGN clause of a report group entry: an ordinary SIGN clause whose
/// LEADING or TRAILING sign may be given as a literal.
class ClauseReportSign : public ClauseSign {
public:
  Expression *getLeadingLiteral() const { return LeadingLiteral; }
  Expression *getTrailingLiteral() const { return TrailingLiteral; }

  void setLeadingLiteral(Expression *E) { LeadingLiteral = E; }
  void setTrailingLiteral(Expression *E) { TrailingLiteral = E; }

private:
  Expression *LeadingLiteral = nullptr;
  Expression *TrailingLiteral = nullptr;
};

/// The STYLE clause of a report group entry: the style names, an optional
/// WHEN condition, or NORMAL.
class ClauseRddStyle : public Node {
public:
  Condition *getWhenCondition() const { return WhenCondition; }
  /// The word NORMAL, null when not written.
  Word *getNormalWord() const { return NormalWord; }

  unsigned long getStyleNameListSize() const { return StyleNameList.size(); }
  NodeList<Word>::const_iterator getStyleNameListBegin() const {
    return StyleNameList.begin();
  }
  NodeList<Word>::const_iterator getStyleNameListEnd() const { return StyleNameList.end(); }

  void setWhenCondition(Condition *C) { WhenCondition = C; }
  void setNormalWord(Word *W) { NormalWord = W; }
  void addStyleName(Word *W) { StyleNameList.push_back(W); }

private:
  Condition *WhenCondition = nullptr;
  Word *NormalWord = nullptr;
  NodeList<Word> StyleNameList;
};

} // namespace korvid

#endif // KORVID_PARSETREE_REPORT_H
