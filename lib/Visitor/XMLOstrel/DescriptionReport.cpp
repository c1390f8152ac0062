//===- DescriptionReport.cpp - Report and report group descriptions -------------===//

#include "korvid/XMLOstrel.h"
#include "korvid/ParseTree.h"

#include <tinyxml2.h>

#include <cassert>

using tinyxml2::XMLElement;

namespace korvid {

void XMLOstrel::visit(ReportDescription *R) {
  XMLElement *Own = Handler->newRetElement("REPORT_DESC");
  appendWordChild(Own, "TYPE", R->getRdWord());
  appendWordChild(Own, "NAME", R->getReportName());
  if (Word *Global = R->getGlobalWord())
    appendTextChild(Own, "GLOBAL", Global, "TRUE");

  // The report-level clauses go out in this fixed order whatever their order
  // in the source; STYLE comes before OVERFLOW.
  appendNodeChild(Own, R->getAllowClause());
  appendNodeChild(Own, R->getCodeClause());
  appendNodeChild(Own, R->getControlClause());
  appendNodeChild(Own, R->getLineLimitClause());
  appendNodeChild(Own, R->getPageLimitClause());
  appendNodeChild(Own, R->getRdStyleClause());
  appendNodeChild(Own, R->getOverflowClause());

  // The report groups stand side by side under the RD: no container, and
  // no nesting by level.
  if (R->getRecordListSize() != 0)
    for (auto I = R->getRecordListBegin(), E = R->getRecordListEnd(); I != E;
         ++I)
      appendNodeChild(Own, *I);
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ClauseAllow *C) {
  XMLElement *Own = Handler->newRetElement("ALLOW_CLAUSE");
  appendWordChild(Own, "OPTION", C->getNoWord());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ClauseCode *C) {
  XMLElement *Own = Handler->newRetElement("CODE_CLAUSE");
  appendWrappedChild(Own, "CODE", C->getCodeExpr());
  Handler->setRetElement(Own);
}

// The control list is named like its own tag, not after the type of its items
// as the other list containers are.
void XMLOstrel::visit(ClauseControl *C) {
  XMLElement *Own = Handler->newRetElement("CONTROL_CLAUSE");
  appendWrappedChild(Own, "CONTROL_OPTION", C->getReportWord());
  appendWrappedChild(Own, "CONTROL_OPTION", C->getFinalWord());
  appendListChild(Own, "CONTROLID_LIST", "CONTROLID_LIST",
                  C->getControlIdListSize(), C->getControlIdListBegin(),
                  C->getControlIdListEnd());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ClauseLineLimit *C) {
  XMLElement *Own = Handler->newRetElement("LINELIMIT_CLAUSE");
  appendWrappedChild(Own, "LINELIMIT", C->getLineLimitExpr());
  Handler->setRetElement(Own);
}

// A phrase of PAGE LIMIT is written only when it holds its expression; the
// wrapper carries the expression's location, not the phrase's.
void XMLOstrel::visit(ClausePageLimit *C) {
  XMLElement *Own = Handler->newRetElement("PAGELIMIT_CLAUSE");
  if (PhraseHeading *P = C->getHeadingPhrase())
    appendWrappedChild(Own, "HEADING", P->getHeadingExpr());
  if (PhraseFirstDetail *P = C->getFirstDetailPhrase())
    appendWrappedChild(Own, "FIRST_DETAIL", P->getFirstDetailExpr());
  if (PhraseLastDetail *P = C->getLastDetailPhrase())
    appendWrappedChild(Own, "LAST_DETAIL", P->getLastDetailExpr());
  if (PhraseControlFooting *P = C->getControlFootingPhrase())
    appendWrappedChild(Own, "LAST_FOOTING", P->getLastFootingExpr());
  if (PhrasePageLimit *P = C->getPageLimitPhrase())
    appendWrappedChild(Own, "PAGELIMIT", P->getPageLimitExpr());
  Handler->setRetElement(Own);
}

// The STYLE word's wrapper and the list of style names share one tag.
void XMLOstrel::visit(ClauseRdStyle *C) {
  XMLElement *Own = Handler->newRetElement("STYLE_CLAUSE");
  appendWrappedChild(Own, "STYLENAME_LIST", C->getStyleWord());
  appendListChild(Own, "STYLENAME_LIST", "WordList", C->getStyleNameListSize(),
                  C->getStyleNameListBegin(), C->getStyleNameListEnd());
  Handler->setRetElement(Own);
}

// REPLACE and STOP share one literal: it is written after whichever of the
// two words is present, twice when both are.
void XMLOstrel::visit(ClauseOverflow *C) {
  XMLElement *Own = Handler->newRetElement("OVERFLOW_CLAUSE");
  appendWrappedChild(Own, "OVERFLOW_OPTION", C->getOmittedWord());
  appendWrappedChild(Own, "OVERFLOW_OPTION", C->getStandardWord());
  appendWrappedChild(Own, "OVERFLOW_OPTION", C->getReplaceWord());
  if (C->getReplaceWord())
    appendWrappedChild(Own, "REPLACE_LITERAL", C->getReplStopExpr());
  appendWrappedChild(Own, "OVERFLOW_OPTION", C->getStopWord());
  if (C->getStopWord())
    appendWrappedChild(Own, "STOP_LITERAL", C->getReplStopExpr());
  Handler->setRetElement(Own);
}

// Every located child is appended in source order, so the order of the steps
// below only settles children that start at the same place.
void XMLOstrel::visit(ReportDataDescription *D) {
  XMLElement *Own = Handler->newRetElement("REPORT_DATA_DESC");
  // The level is the word as normalised (05 stays 05), not the number an
  // ordinary data entry prints.
  if (Word *Level = D->getLevelNum())
    appendTextChild(Own, "LEVEL", Level, Level->getWordData().c_str());
  appendWordChild(Own, "NAME", D->getDataName());

  appendNodeChild(Own, D->getTypeClause());
  appendNodeChild(Own, D->getNextGroupClause());
  // GROUP LIMIT is written here, around its literal, without a visit of the
  // clause.
  if (ClauseGroupLimit *Limit = D->getGroupLimitClause())
    appendWrappedChild(Own, "REPORT_GROUP_LIMIT", Limit->getLimitExpr());
  appendNodeChild(Own, D->getRepeatedClause());
  appendNodeChild(Own, D->getLineClause());
  appendNodeChild(Own, D->getColumnClause());
  if (ClausePicture *Pic = D->getPicture())
    appendWordChild(Own, "PICTURE", Pic->getCharStringWord());
  appendNodeChild(Own, D->getSumClause());
  appendNodeChild(Own, D->getCountClause());
  appendNodeChild(Own, D->getPresentAfterClause());
  appendNodeChild(Own, D->getPresentWhenClause());

  // FUNCTION, SOURCE and VALUE clauses stand directly under the entry, with
  // no container. The parse tree never lists a null item here.
  if (D->getMultipleValuesListSize() != 0)
    for (auto I = D->getMultipleValuesListBegin(),
              E = D->getMultipleValuesListEnd();
         I != E; ++I) {
      appendNodeChild(Own, (*I)->getFunctionClause());
      appendNodeChild(Own, (*I)->getSourceClause());
      appendNodeChild(Own, (*I)->getReportValueClause());
    }

  appendNodeChild(Own, D->getWrapClause());
  appendNodeChild(Own, D->getMultipleClause());
  appendNodeChild(Own, D->getReportOccursClause());
  appendNodeChild(Own, D->getReportSignClause());
  appendNodeChild(Own, D->getRddStyleClause());
  if (ClauseBlankWhenZero *Blank = D->getBlankZero())
    appendTextChild(Own, "BLANK_WHEN_ZERO", Blank, "TRUE");
  // A missing RIGHT word means JUSTIFIED is not written.
  if (ClauseJustified *Just = D->getJustified())
    appendWordChild(Own, "JUSTIFIED", Just->getRightWord());
  // The usage is written from its normalised word, located at the clause.
  if (ClauseUsage *Usage = D->getUsage())
    if (Word *U = Usage->getUsageDescWord())
      appendTextChild(Own, "USAGE", Usage, usageName(U->getWordData()).c_str());
  Handler->setRetElement(Own);
}

//===----------------------------------------------------------------------===//
// Report group clauses
//===----------------------------------------------------------------------===//

void XMLOstrel::visit(VaryingPhrase *P) {
  XMLElement *Own = Handler->newRetElement("REPORT_VARYING_PHRASE");
  appendWordChild(Own, "DATANAME", P->getDataName());
  appendWrappedChild(Own, "FROM_EXPR", P->getFromExpr());
  appendWrappedChild(Own, "BY_EXPR", P->getByExpr());
  Handler->setRetElement(Own);
}

// A DETAIL group is written "DETAIL_HEADING". A type the table does not know
// still writes "TYPE", with an empty text.
void XMLOstrel::visit(ClauseType *C) {
  XMLElement *Own = Handler->newRetElement("REPORT_TYPE");
  // Indexed by the type option.
  static const char *const Types[] = {"",
                                      "REPORT_HEADING",
                                      "PAGE_HEADING",
                                      "CONTROL_HEADING",
                                      "DETAIL_HEADING",
                                      "CONTROL_FOOTING",
                                      "PAGE_FOOTING",
                                      "REPORT_FOOTING"};
  unsigned Option = C->getTypeOption();
  const char *Text = Option <= RPT_TYPE_RF ? Types[Option] : "";
  appendTextChild(Own, "TYPE", C, Text);
  appendListChild(Own, "CONTROLID_LIST", "CONTROLID_LIST",
                  C->getControlIdListSize(), C->getControlIdListBegin(),
                  C->getControlIdListEnd());
  appendWordChild(Own, "PAGE_OPTION", C->getPageWord());
  appendWordChild(Own, "ALL_OPTION", C->getAllWord());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ClauseNextGroup *C) {
  XMLElement *Own = Handler->newRetElement("REPORT_NEXT_GROUP");
  appendWrappedChild(Own, "GROUP_INTEGER", C->getIntegerExpr());
  if (Word *Next = C->getNextWord())
    appendTextChild(Own, "ON_NEXT_PAGE", Next, "TRUE");
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ClauseRepeated *C) {
  XMLElement *Own = Handler->newRetElement("REPORT_REPEATED");
  appendWrappedChild(Own, "TIMES", C->getTimesExpr());
  appendWrappedChild(Own, "COLUMNS", C->getColsExpr());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ClauseLine *C) {
  XMLElement *Own = Handler->newRetElement("REPORT_LINES");
  appendListChild(Own, "LINE_INTEGER_LIST", "ExprList", C->getIntegerListSize(),
                  C->getIntegerListBegin(), C->getIntegerListEnd());
  if (Word *Next = C->getNextWord())
    appendTextChild(Own, "ON_NEXT_PAGE", Next, "TRUE");
  appendListChild(Own, "VARYING_LIST", "VaryingList", C->getVaryingListSize(),
                  C->getVaryingListBegin(), C->getVaryingListEnd());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ClauseColumn *C) {
  XMLElement *Own = Handler->newRetElement("REPORT_COLUMN");
  appendWordChild(Own, "COLUMN_OPTION", C->getLeftWord());
  appendWordChild(Own, "COLUMN_OPTION", C->getCenterWord());
  appendWordChild(Own, "COLUMN_OPTION", C->getRightWord());
  appendListChild(Own, "COLUMN_INTEGER_LIST", "ExprList",
                  C->getIntegerListSize(), C->getIntegerListBegin(),
                  C->getIntegerListEnd());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(SumClauseExpr *S) {
  XMLElement *Own = Handler->newRetElement("REPORT_SUM_EXPR");
  appendListChild(Own, "EXPR_LIST", "ExprList", S->getNameListSize(),
                  S->getNameListBegin(), S->getNameListEnd());
  appendListChild(Own, "UPON_LIST", "ExprList", S->getUponListSize(),
                  S->getUponListBegin(), S->getUponListEnd());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ClauseSum *C) {
  XMLElement *Own = Handler->newRetElement("REPORT_SUM");
  appendListChild(Own, "SUM_EXPR_LIST", "ExprList", C->getSumExprListSize(),
                  C->getSumExprListBegin(), C->getSumExprListEnd());
  appendWrappedChild(Own, "RESET_CONTROL_ID", C->getControlId());
  if (Word *Rounded = C->getRoundedWord())
    appendTextChild(Own, "ROUNDED", Rounded, "TRUE");
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(CountClauseExpr *S) {
  XMLElement *Own = Handler->newRetElement("REPORT_COUNT_EXPR");
  appendListChild(Own, "EXPR_LIST", "ExprList", S->getNameListSize(),
                  S->getNameListBegin(), S->getNameListEnd());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ClauseCount *C) {
  XMLElement *Own = Handler->newRetElement("REPORT_COUNT");
  appendListChild(Own, "COUNT_EXPR_LIST", "ExprList", C->getCountExprListSize(),
                  C->getCountExprListBegin(), C->getCountExprListEnd());
  appendWrappedChild(Own, "RESET_CONTROL_ID", C->getControlId());
  if (Word *Rounded = C->getRoundedWord())
    appendTextChild(Own, "ROUNDED", Rounded, "TRUE");
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ClauseFunction *C) {
  XMLElement *Own = Handler->newRetElement("REPORT_FUNCTION");
  appendNodeChild(Own, C->getFuncIdent());
  appendNodeChild(Own, C->getAfterClause());
  appendNodeChild(Own, C->getWhenClause());
  Handler->setRetElement(Own);
}

// The clause is first written as an ordinary VALUE clause, nested inside.
void XMLOstrel::visit(ClauseReportValue *C) {
  XMLElement *Own = Handler->newRetElement("REPORT_VALUE");
  appendNodeChild(Own, static_cast<ClauseValue *>(C));
  appendNodeChild(Own, C->getAfterClause());
  appendNodeChild(Own, C->getWhenClause());
  Handler->setRetElement(Own);
}

// The operator stands between its operands; the operands are SOURCE
// operands themselves, so arithmetic nests. A SOURCE operand writes
// whichever of its parts are present, without consulting its kind.
void XMLOstrel::visit(SourceArithExpr *S) {
  XMLElement *Own = Handler->newRetElement("REPORT_SOURCE_ARITHMETIC_EXPR");
  const char *Op = nullptr;
  switch (S->getArithType()) {
  case ARITH_EXPR_UNARY_PLUS:
    Op = "U_PLUS";
    break;
  case ARITH_EXPR_UNARY_MINUS:
    Op = "U_MINUS";
    break;
  case ARITH_EXPR_PLUS:
    Op = "PLUS";
    break;
  case ARITH_EXPR_MINUS:
    Op = "MINUS";
    break;
  case ARITH_EXPR_MULTIPLY:
    Op = "MULTIPLY";
    break;
  case ARITH_EXPR_DIVIDE:
    Op = "DIVIDE";
    break;
  case ARITH_EXPR_SQUARE:
    Op = "SQUARE";
    break;
  default:
    assert(0 && "impossible");
  }
  appendWrappedChild(Own, "OPERAND_LEFT", S->getLhs());
  if (Word *OpWord = S->getOp1())
    appendTextChild(Own, "OPERATOR", OpWord, Op);
  appendWrappedChild(Own, "OPERAND_RIGHT", S->getRhs());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(SourceClauseExpr *S) {
  XMLElement *Own = Handler->newRetElement("REPORT_SOURCE_EXPR");
  appendNodeChild(Own, S->getExpr());
  appendNodeChild(Own, S->getSumExpr());
  appendNodeChild(Own, S->getCountExpr());
  appendNodeChild(Own, S->getArithExpr());
  Handler->setRetElement(Own);
}

// The operand list's "name" is empty, unlike every other list container.
void XMLOstrel::visit(ClauseSource *C) {
  XMLElement *Own = Handler->newRetElement("REPORT_SOURCE");
  appendListChild(Own, "SOURCE_EXPR_LIST", "", C->getSourceExprListSize(),
                  C->getSourceExprListBegin(), C->getSourceExprListEnd());
  if (Word *Rounded = C->getRoundedWord())
    appendTextChild(Own, "ROUNDED", Rounded, "TRUE");
  appendNodeChild(Own, C->getAfterClause());
  appendNodeChild(Own, C->getWhenClause());
  Handler->setRetElement(Own);
}

// Both "OPTION"s hold the same type text; only their locating words differ.
void XMLOstrel::visit(ClausePresentAfter *C) {
  XMLElement *Own = Handler->newRetElement("REPORT_PRESENT_AFTER");
  const char *Text = nullptr;
  switch (C->getAfterType()) {
  case RPT_AFT_PRESENT_AFTER:
    Text = "PRESENT_AFTER";
    break;
  case RPT_AFT_ABSENT_AFTER:
    Text = "ABSENT_AFTER";
    break;
  case RPT_AFT_PRESENT_JUST_AFTER:
    Text = "PRESENT_JUST_AFTER";
    break;
  case RPT_AFT_GROUP:
    Text = "GROUP_INDICATE";
    break;
  default:
    assert(0 && "impossible");
  }
  for (Word *W : {C->getAfterWord(), C->getGroupWord()})
    if (W)
      appendTextChild(Own, "OPTION", W, Text);
  appendWrappedChild(Own, "AFTER_CONTROL_ID", C->getControlId());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ClausePresentWhen *C) {
  XMLElement *Own = Handler->newRetElement("REPORT_PRESENT_WHEN");
  const char *Text = nullptr;
  switch (C->getWhenType()) {
  case RPT_WHEN_PRESENT_WHEN:
    Text = "PRESENT_WHEN";
    break;
  case RPT_WHEN_ABSENT_WHEN:
    Text = "ABSENT_WHEN";
    break;
  case RPT_WHEN_PRESENT_UNLESS:
    Text = "PRESENT_UNLESS";
    break;
  case RPT_WHEN_ABSENT_UNLESS:
    Text = "ABSENT_UNLESS";
    break;
  case RPT_WHEN_OTHER:
    Text = "PRESENT_WHEN_OTHER";
    break;
  default:
    assert(0 && "impossible");
  }
  for (Word *W : {C->getWhenWord(), C->getUnlessWord()})
    if (W)
      appendTextChild(Own, "OPTION", W, Text);
  appendWrappedChild(Own, "WHEN_CONTROL_ID", C->getControlId());
  appendWrappedChild(Own, "WHEN_CONDITION", C->getPresentCond());
  Handler->setRetElement(Own);
}

// A phrase is written only when it holds its expression.
void XMLOstrel::visit(ClauseWrap *C) {
  XMLElement *Own = Handler->newRetElement("REPORT_WRAP");
  if (PhraseWrapAfter *P = C->getAfterPhrase())
    appendWrappedChild(Own, "AFTER_COLUMN_EXPR", P->getAfterColExpr());
  if (PhraseWrapTo *P = C->getToPhrase())
    appendWrappedChild(Own, "TO_COLUMN_EXPR", P->getToColExpr());
  if (PhraseWrapStep *P = C->getStepPhrase())
    appendWrappedChild(Own, "STEP_LINES_EXPR", P->getLinesExpr());
  if (Word *No = C->getWithNoWrapWord())
    appendTextChild(Own, "NO_WRAP_OPTION", No, "TRUE");
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ClauseMultiple *C) {
  XMLElement *Own = Handler->newRetElement("REPORT_MULTIPLE");
  if (Word *No = C->getNoWord())
    appendTextChild(Own, "NO_OPTION", No, "TRUE");
  Handler->setRetElement(Own);
}

// The clause is first written as an ordinary OCCURS clause, nested inside.
// A step kind the table does not know still writes "OCCURS_OPTION", with an
// empty text.
void XMLOstrel::visit(ClauseReportOccurs *C) {
  XMLElement *Own = Handler->newRetElement("REPORT_OCCURS");
  appendNodeChild(Own, static_cast<ClauseOccurs *>(C));
  appendListChild(Own, "VARYING_LIST", "VaryingList", C->getVaryingListSize(),
                  C->getVaryingListBegin(), C->getVaryingListEnd());
  if (PhraseOccursStep *Step = C->getStepPhrase()) {
    // Indexed by the step kind.
    static const char *const Steps[] = {"",
                                        "STEP_NONE",
                                        "STEP_LINES",
                                        "STEP_COLUMNS",
                                        "WIDTH_NONE",
                                        "WIDTH_LINES",
                                        "WIDTH_COLUMNS",
                                        "DEPTH_NONE",
                                        "DEPTH_LINES",
                                        "DEPTH_COLUMNS"};
    unsigned Kind = Step->getOccursType();
    const char *Text = Kind <= RPT_OCC_DEPTH_COLUMNS ? Steps[Kind] : "";
    appendTextChild(Own, "OCCURS_OPTION", Step, Text);
    appendWrappedChild(Own, "INTEGER", Step->getIntegerExpr());
  }
  Handler->setRetElement(Own);
}

// Only the LEADING word is written, as "OPTION"; a TRAILING word is not.
void XMLOstrel::visit(ClauseReportSign *C) {
  XMLElement *Own = Handler->newRetElement("REPORT_SIGN");
  appendWordChild(Own, "OPTION", C->getLeadingWord());
  appendWrappedChild(Own, "LEADING_LITERAL", C->getLeadingLiteral());
  appendWrappedChild(Own, "TRAILING_LITERAL", C->getTrailingLiteral());
  Handler->setRetElement(Own);
}

// The NORMAL word is wrapped in the same tag as the list of style names.
void XMLOstrel::visit(ClauseRddStyle *C) {
  XMLElement *Own = Handler->newRetElement("REPORT_STYLE");
  appendListChild(Own, "STYLENAME_LIST", "WordList", C->getStyleNameListSize(),
                  C->getStyleNameListBegin(), C->getStyleNameListEnd());
  appendWrappedChild(Own, "WHEN_CONDITION", C->getWhenCondition());
  appendWrappedChild(Own, "STYLENAME_LIST", C->getNormalWord());
  Handler->setRetElement(Own);
}

// Written as nothing: GROUP LIMIT is written by the report group entry, the
// phrases by their clause, and the multiple-values item's clauses are placed
// by the entry itself.
void XMLOstrel::visit(PhraseHeading *) {}
void XMLOstrel::visit(PhraseFirstDetail *) {}
void XMLOstrel::visit(PhraseLastDetail *) {}
void XMLOstrel::visit(PhraseControlFooting *) {}
void XMLOstrel::visit(PhrasePageLimit *) {}
void XMLOstrel::visit(ClauseGroupLimit *) {}
void XMLOstrel::visit(ClauseMultipleValues *) {}
void XMLOstrel::visit(PhraseWrapAfter *) {}
void XMLOstrel::visit(PhraseWrapTo *) {}
void XMLOstrel::visit(PhraseWrapStep *) {}
void XMLOstrel::visit(PhraseOccursStep *) {}

} // namespace korvid
