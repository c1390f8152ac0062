//===- tests/ReportTest.cpp - Report descriptions and report groups -------===//

#include "TreeBuilder.h"
#include "EmitterHarness.h"
#include "XMLCompare.h"
#include "korvid/XMLOstrel.h"

#include <sstream>
#include <string>
#include <utility>
#include <vector>

using namespace korvid;
using korvid::test::sameXML;
using korvid::test::TreeBuilder;

namespace {

/// An emitter whose placing helper is reachable, so a node is written the
/// way its caller places it: visited, stamped with its location, appended.
using ReportEmitter = korvid::test::TestEmitter;
using korvid::test::placed;

/// Expected documents with locations stay readable: "@(L,B,E)" stands for
/// the attributes of an element located at line L, columns B to E of the
/// main file, and "@list(N,NAME,L,B,L2,E)" for a list container of N items
/// spanning L:B to L2:E.
std::string located(const std::string &Text) {
  std::string Out;
  size_t I = 0;
  for (size_t At; (At = Text.find('@', I)) != std::string::npos;) {
    Out += Text.substr(I, At - I);
    size_t Open = Text.find('(', At), Close = Text.find(')', Open);
    std::vector<std::string> A;
    std::stringstream Args(Text.substr(Open + 1, Close - Open - 1));
    for (std::string Arg; std::getline(Args, Arg, ',');)
      A.push_back(Arg);
    auto Attr = [](const char *Name, const std::string &V) {
      return std::string(Name) + "=\"" + V + "\" ";
    };
    if (Text.compare(At, Open - At, "@list") == 0)
      Out += Attr("size", A[0]) + Attr("name", A[1]) + Attr("lbl", A[2]) +
             Attr("lbc", A[3]) + Attr("lblo", A[2]) + Attr("lbco", A[3]) +
             Attr("lel", A[4]) + Attr("lec", A[5]) + Attr("lelo", A[4]) +
             Attr("leco", A[5]);
    else
      Out += Attr("lbl", A[0]) + Attr("lbc", A[1]) + Attr("lel", A[0]) +
             Attr("lec", A[2]) + Attr("lblo", A[0]) + Attr("lbco", A[1]) +
             Attr("lelo", A[0]) + Attr("leco", A[2]) + Attr("lfid", "1") +
             Attr("lfido", "1");
    I = Close + 1;
  }
  return Out + Text.substr(I);
}

/// Tree shorthands for the operands that report clauses hold.
struct ReportTree : TreeBuilder {
  /// A node of class T on one line, columns BC to EC.
  template <class T> T *on(uint32_t L, uint32_t BC, uint32_t EC) {
    return at<T>(L, BC, L, EC);
  }
  /// A reference to the data item \p Name (unresolved), at L:C.
  DataIdentifierExpression *ident(const std::string &Name, uint32_t L,
                                  uint32_t C) {
    Word *W = word(Name, L, C);
    uint32_t End = W->getEndCharPos();
    auto *E = on<DataIdentifierExpression>(L, C, End);
    E->setName(on<QualifiedWord>(L, C, End));
    E->getName()->setRearWord(W);
    return E;
  }
  NumericLiteralExpression *num(const std::string &Digits, uint32_t L,
                                uint32_t C) {
    auto *N = on<NumericLiteralExpression>(
        L, C, C + static_cast<uint32_t>(Digits.size()) - 1);
    N->setData(Digits);
    return N;
  }
  /// A quoted literal 'Chars' starting with its quote at L:C.
  NonNumericLiteralExpression *text(const std::string &Chars, uint32_t L,
                                    uint32_t C) {
    auto *N = on<NonNumericLiteralExpression>(
        L, C, C + static_cast<uint32_t>(Chars.size()) + 1);
    N->setData(Chars);
    return N;
  }
  /// A SOURCE operand holding a plain expression.
  SourceClauseExpr *operand(Expression *E) {
    auto *S = at<SourceClauseExpr>(E->getBeginLineNo(), E->getBeginCharPos(),
                                   E->getEndLineNo(), E->getEndCharPos());
    S->setType(RPT_SRC_EXPR);
    S->setExpr(E);
    return S;
  }
  /// A report group entry with its level-number word, at L:BC-EC.
  ReportDataDescription *group(const std::string &Level, uint32_t L,
                               uint32_t BC, uint32_t EC) {
    auto *D = on<ReportDataDescription>(L, BC, EC);
    D->setLevelNum(word(Level, L, BC));
    return D;
  }
  ClausePicture *picture(const std::string &Chars, uint32_t L, uint32_t C) {
    auto *P =
        on<ClausePicture>(L, C, C + 3 + static_cast<uint32_t>(Chars.size()));
    P->setCharStringWord(word(Chars, L, C + 4));
    return P;
  }
  ClauseLine *line(const std::string &Number, uint32_t L, uint32_t C) {
    auto *Line =
        on<ClauseLine>(L, C, C + 4 + static_cast<uint32_t>(Number.size()));
    Line->addInteger(num(Number, L, C + 5));
    return Line;
  }
  ClauseColumn *column(const std::string &Number, uint32_t L, uint32_t C) {
    auto *Col =
        on<ClauseColumn>(L, C, C + 6 + static_cast<uint32_t>(Number.size()));
    Col->addInteger(num(Number, L, C + 7));
    return Col;
  }
  ClauseType *type(RptTypeOption Option, uint32_t L, uint32_t BC, uint32_t EC) {
    auto *T = on<ClauseType>(L, BC, EC);
    T->setTypeOption(Option);
    return T;
  }
};

//===----------------------------------------------------------------------===//
// A whole report
//===----------------------------------------------------------------------===//

// A report with a page heading, a detail line, a control footing and a
// report footing: every group entry stands directly under the RD, in source
// order, whatever its level.
TEST(ReportDescription, HeadingDetailAndFootingGroupsStandSideBySide) {
  ReportTree T;
  // 10        RD  Sales-Report GLOBAL
  // 11            CONTROLS ARE FINAL ws-dept
  // 12            PAGE LIMIT 60 HEADING 1 FIRST DETAIL 5.
  auto *RD = T.at<ReportDescription>(10, 8, 20, 60);
  RD->setRdWord(T.word("RD", 10, 8));
  RD->setReportName(T.word("Sales-Report", 10, 12));
  RD->setGlobalWord(T.word("GLOBAL", 10, 25));
  auto *Control = T.on<ClauseControl>(11, 12, 37);
  Control->setFinalWord(T.word("FINAL", 11, 25));
  Control->addControlId(T.ident("ws-dept", 11, 31));
  RD->setControlClause(Control);
  auto *Page = T.on<ClausePageLimit>(12, 12, 49);
  auto *Limit = T.on<PhrasePageLimit>(12, 12, 24);
  Limit->setPageLimitExpr(T.num("60", 12, 23));
  Page->setPageLimitPhrase(Limit);
  auto *Heading = T.on<PhraseHeading>(12, 26, 34);
  Heading->setHeadingExpr(T.num("1", 12, 34));
  Page->setHeadingPhrase(Heading);
  auto *First = T.on<PhraseFirstDetail>(12, 36, 49);
  First->setFirstDetailExpr(T.num("5", 12, 49));
  Page->setFirstDetailPhrase(First);
  RD->setPageLimitClause(Page);

  // 13        01  TYPE PAGE HEADING.
  // 14            05  LINE 1 COLUMN 30 PIC X(12) VALUE 'SALES REPORT'.
  auto *PH = T.group("01", 13, 8, 28);
  PH->setTypeClause(T.type(RPT_TYPE_PH, 13, 12, 28));
  RD->addRecord(PH);
  auto *Title = T.group("05", 14, 12, 63);
  Title->setLineClause(T.line("1", 14, 16));
  Title->setColumnClause(T.column("30", 14, 23));
  Title->setPicture(T.picture("X(12)", 14, 33));
  auto *TitleValues = T.on<ClauseMultipleValues>(14, 44, 63);
  auto *TitleValue = T.on<ClauseReportValue>(14, 44, 63);
  auto *Phrase = T.on<PhraseValue>(14, 50, 63);
  Phrase->setLiteral1(T.text("SALES REPORT", 14, 50));
  TitleValue->addPhraseVal(Phrase);
  TitleValues->setReportValueClause(TitleValue);
  Title->addMultipleValues(TitleValues);
  RD->addRecord(Title);

  // 15        01  Detail-Line TYPE DE.
  // 16            05  LINE 1 COLUMN 1 PIC X(10) SOURCE ws-name.
  auto *DE = T.group("01", 15, 8, 30);
  DE->setDataName(T.word("Detail-Line", 15, 12));
  DE->setTypeClause(T.type(RPT_TYPE_DE, 15, 24, 30));
  RD->addRecord(DE);
  auto *Name = T.group("05", 16, 12, 58);
  Name->setLineClause(T.line("1", 16, 16));
  Name->setColumnClause(T.column("1", 16, 23));
  Name->setPicture(T.picture("X(10)", 16, 32));
  auto *NameValues = T.on<ClauseMultipleValues>(16, 44, 58);
  auto *Source = T.on<ClauseSource>(16, 44, 58);
  Source->addSourceExpr(T.operand(T.ident("ws-name", 16, 51)));
  NameValues->setSourceClause(Source);
  Name->addMultipleValues(NameValues);
  RD->addRecord(Name);

  // 17        01  TYPE CONTROL FOOTING ws-dept NEXT GROUP NEXT PAGE.
  // 18            05  COLUMN 20 PIC ZZZ9 SUM ws-amt RESET ON ws-dept.
  auto *CF = T.group("01", 17, 8, 60);
  auto *CFType = T.type(RPT_TYPE_CF, 17, 12, 39);
  CFType->addControlId(T.ident("ws-dept", 17, 33));
  CF->setTypeClause(CFType);
  auto *Next = T.on<ClauseNextGroup>(17, 41, 60);
  Next->setNextWord(T.word("NEXT", 17, 52));
  CF->setNextGroupClause(Next);
  RD->addRecord(CF);
  auto *Total = T.group("05", 18, 12, 64);
  Total->setColumnClause(T.column("20", 18, 16));
  Total->setPicture(T.picture("ZZZ9", 18, 26));
  auto *Sum = T.on<ClauseSum>(18, 35, 64);
  auto *Summed = T.on<SumClauseExpr>(18, 39, 44);
  Summed->addName(T.ident("ws-amt", 18, 39));
  Sum->addSumExpr(Summed);
  Sum->setControlId(T.ident("ws-dept", 18, 58));
  Total->setSumClause(Sum);
  RD->addRecord(Total);

  // 19        01  TYPE RF.
  // 20            05  COLUMN 1 PIC ZZ9 COUNT OF Detail-Line.
  auto *RF = T.group("01", 19, 8, 18);
  RF->setTypeClause(T.type(RPT_TYPE_RF, 19, 12, 18));
  RD->addRecord(RF);
  auto *Lines = T.group("05", 20, 12, 52);
  Lines->setColumnClause(T.column("1", 20, 16));
  Lines->setPicture(T.picture("ZZ9", 20, 25));
  auto *Count = T.on<ClauseCount>(20, 33, 52);
  auto *Counted = T.on<CountClauseExpr>(20, 42, 52);
  Counted->addName(T.ident("Detail-Line", 20, 42));
  Count->addCountExpr(Counted);
  Lines->setCountClause(Count);
  RD->addRecord(Lines);

  EXPECT_TRUE(sameXML(R"(
<ROOT>
 <REPORT_DESC>
  <TYPE>RD</TYPE>
  <NAME>Sales-Report</NAME>
  <GLOBAL>TRUE</GLOBAL>
  <CONTROL_CLAUSE>
   <CONTROL_OPTION><WORD>FINAL</WORD></CONTROL_OPTION>
   <CONTROLID_LIST size="1" name="CONTROLID_LIST">
    <DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>ws-dept</QUALIFIED></DATA_IDENTIFIER>
   </CONTROLID_LIST>
  </CONTROL_CLAUSE>
  <PAGELIMIT_CLAUSE>
   <PAGELIMIT><VALUE>60</VALUE></PAGELIMIT>
   <HEADING><VALUE>1</VALUE></HEADING>
   <FIRST_DETAIL><VALUE>5</VALUE></FIRST_DETAIL>
  </PAGELIMIT_CLAUSE>
  <REPORT_DATA_DESC>
   <LEVEL>01</LEVEL>
   <REPORT_TYPE><TYPE>PAGE_HEADING</TYPE></REPORT_TYPE>
  </REPORT_DATA_DESC>
  <REPORT_DATA_DESC>
   <LEVEL>05</LEVEL>
   <REPORT_LINES>
    <LINE_INTEGER_LIST size="1" name="ExprList"><VALUE>1</VALUE></LINE_INTEGER_LIST>
   </REPORT_LINES>
   <REPORT_COLUMN>
    <COLUMN_INTEGER_LIST size="1" name="ExprList"><VALUE>30</VALUE></COLUMN_INTEGER_LIST>
   </REPORT_COLUMN>
   <PICTURE>X(12)</PICTURE>
   <REPORT_VALUE>
    <VALUES><VALUE_ENTRY><MIN><VALUE>SALES REPORT</VALUE></MIN></VALUE_ENTRY></VALUES>
   </REPORT_VALUE>
  </REPORT_DATA_DESC>
  <REPORT_DATA_DESC>
   <LEVEL>01</LEVEL>
   <NAME>Detail-Line</NAME>
   <REPORT_TYPE><TYPE>DETAIL_HEADING</TYPE></REPORT_TYPE>
  </REPORT_DATA_DESC>
  <REPORT_DATA_DESC>
   <LEVEL>05</LEVEL>
   <REPORT_LINES>
    <LINE_INTEGER_LIST size="1" name="ExprList"><VALUE>1</VALUE></LINE_INTEGER_LIST>
   </REPORT_LINES>
   <REPORT_COLUMN>
    <COLUMN_INTEGER_LIST size="1" name="ExprList"><VALUE>1</VALUE></COLUMN_INTEGER_LIST>
   </REPORT_COLUMN>
   <PICTURE>X(10)</PICTURE>
   <REPORT_SOURCE>
    <SOURCE_EXPR_LIST size="1" name="">
     <REPORT_SOURCE_EXPR>
      <DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>ws-name</QUALIFIED></DATA_IDENTIFIER>
     </REPORT_SOURCE_EXPR>
    </SOURCE_EXPR_LIST>
   </REPORT_SOURCE>
  </REPORT_DATA_DESC>
  <REPORT_DATA_DESC>
   <LEVEL>01</LEVEL>
   <REPORT_TYPE>
    <TYPE>CONTROL_FOOTING</TYPE>
    <CONTROLID_LIST size="1" name="CONTROLID_LIST">
     <DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>ws-dept</QUALIFIED></DATA_IDENTIFIER>
    </CONTROLID_LIST>
   </REPORT_TYPE>
   <REPORT_NEXT_GROUP><ON_NEXT_PAGE>TRUE</ON_NEXT_PAGE></REPORT_NEXT_GROUP>
  </REPORT_DATA_DESC>
  <REPORT_DATA_DESC>
   <LEVEL>05</LEVEL>
   <REPORT_COLUMN>
    <COLUMN_INTEGER_LIST size="1" name="ExprList"><VALUE>20</VALUE></COLUMN_INTEGER_LIST>
   </REPORT_COLUMN>
   <PICTURE>ZZZ9</PICTURE>
   <REPORT_SUM>
    <SUM_EXPR_LIST size="1" name="ExprList">
     <REPORT_SUM_EXPR>
      <EXPR_LIST size="1" name="ExprList">
       <DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>ws-amt</QUALIFIED></DATA_IDENTIFIER>
      </EXPR_LIST>
     </REPORT_SUM_EXPR>
    </SUM_EXPR_LIST>
    <RESET_CONTROL_ID>
     <DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>ws-dept</QUALIFIED></DATA_IDENTIFIER>
    </RESET_CONTROL_ID>
   </REPORT_SUM>
  </REPORT_DATA_DESC>
  <REPORT_DATA_DESC>
   <LEVEL>01</LEVEL>
   <REPORT_TYPE><TYPE>REPORT_FOOTING</TYPE></REPORT_TYPE>
  </REPORT_DATA_DESC>
  <REPORT_DATA_DESC>
   <LEVEL>05</LEVEL>
   <REPORT_COLUMN>
    <COLUMN_INTEGER_LIST size="1" name="ExprList"><VALUE>1</VALUE></COLUMN_INTEGER_LIST>
   </REPORT_COLUMN>
   <PICTURE>ZZ9</PICTURE>
   <REPORT_COUNT>
    <COUNT_EXPR_LIST size="1" name="ExprList">
     <REPORT_COUNT_EXPR>
      <EXPR_LIST size="1" name="ExprList">
       <DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>Detail-Line</QUALIFIED></DATA_IDENTIFIER>
      </EXPR_LIST>
     </REPORT_COUNT_EXPR>
    </COUNT_EXPR_LIST>
   </REPORT_COUNT>
  </REPORT_DATA_DESC>
 </REPORT_DESC>
</ROOT>)",
                      placed(RD)));
}

// Reached from the data division, each RD is wrapped in a report entry of
// the report section, located like the RD itself.
TEST(ReportDescription, ReachedThroughTheReportSection) {
  ReportTree T;
  auto *Data = T.at<DataDivision>(5, 8, 12, 40);
  auto *Section = T.at<ReportSection>(6, 8, 12, 40);
  auto *RD = T.at<ReportDescription>(7, 8, 12, 40);
  RD->setRdWord(T.word("RD", 7, 8));
  RD->setReportName(T.word("R1", 7, 12));
  auto *Group = T.group("01", 8, 8, 30);
  Group->setTypeClause(T.type(RPT_TYPE_PF, 8, 12, 30));
  RD->addRecord(Group);
  Section->addReportDescription(RD);
  Data->setSectionReport(Section);
  EXPECT_TRUE(sameXML(R"(<ROOT><DATA_DIVISION><REPORT_SECTION><REPORT_ENTRY>
      <REPORT_DESC>
       <TYPE>RD</TYPE><NAME>R1</NAME>
       <REPORT_DATA_DESC>
        <LEVEL>01</LEVEL><REPORT_TYPE><TYPE>PAGE_FOOTING</TYPE></REPORT_TYPE>
       </REPORT_DATA_DESC>
      </REPORT_DESC>
    </REPORT_ENTRY></REPORT_SECTION></DATA_DIVISION></ROOT>)",
                      placed(Data)));
}

//===----------------------------------------------------------------------===//
// RD entries and their clauses
//===----------------------------------------------------------------------===//

// Clauses written out of order follow the source; clauses that share a
// place keep the fixed order ALLOW, CODE, CONTROL, LINE LIMIT, PAGE LIMIT,
// STYLE, OVERFLOW (STYLE before OVERFLOW).
TEST(ReportDescription, ClausesFollowTheSourceThenTheFixedOrder) {
  ReportTree T;
  auto Build = [&](bool SamePlace) {
    auto *RD = T.at<ReportDescription>(10, 8, 17, 40);
    RD->setRdWord(T.word("RD", 10, 8));
    RD->setReportName(T.word("R1", 10, 12));
    // Written in the source from OVERFLOW (line 11) back to ALLOW (line 17).
    auto Place = [&](uint32_t Line) { return SamePlace ? 11u : Line; };
    auto *Allow = T.on<ClauseAllow>(Place(17), 12, 20);
    auto *Code = T.on<ClauseCode>(Place(16), 12, 20);
    Code->setCodeExpr(T.text("A", Place(16), 17));
    auto *Control = T.on<ClauseControl>(Place(15), 12, 30);
    Control->setFinalWord(T.word("FINAL", Place(15), 21));
    auto *LineLimit = T.on<ClauseLineLimit>(Place(14), 12, 25);
    LineLimit->setLineLimitExpr(T.num("132", Place(14), 23));
    auto *Page = T.on<ClausePageLimit>(Place(13), 12, 25);
    auto *Limit = T.on<PhrasePageLimit>(Place(13), 12, 25);
    Limit->setPageLimitExpr(T.num("60", Place(13), 24));
    Page->setPageLimitPhrase(Limit);
    auto *Style = T.on<ClauseRdStyle>(Place(12), 12, 20);
    Style->setStyleWord(T.word("STYLE", Place(12), 12));
    auto *Overflow = T.on<ClauseOverflow>(Place(11), 12, 30);
    Overflow->setStandardWord(T.word("STANDARD", Place(11), 21));
    RD->setAllowClause(Allow);
    RD->setCodeClause(Code);
    RD->setControlClause(Control);
    RD->setLineLimitClause(LineLimit);
    RD->setPageLimitClause(Page);
    RD->setRdStyleClause(Style);
    RD->setOverflowClause(Overflow);
    return RD;
  };
  auto Children = [](const std::string &Doc) {
    std::vector<std::string> Tags;
    // Every tag that ends in _CLAUSE, in document order.
    for (size_t At = Doc.find('<'); At != std::string::npos;
         At = Doc.find('<', At + 1)) {
      size_t End = Doc.find_first_of(" />", At);
      std::string Tag = Doc.substr(At + 1, End - At - 1);
      if (Tag.size() > 7 && Tag.compare(Tag.size() - 7, 7, "_CLAUSE") == 0)
        Tags.push_back(Tag);
    }
    return Tags;
  };
  EXPECT_EQ(Children(placed(Build(false))),
            (std::vector<std::string>{"OVERFLOW_CLAUSE", "STYLE_CLAUSE",
                                      "PAGELIMIT_CLAUSE", "LINELIMIT_CLAUSE",
                                      "CONTROL_CLAUSE", "CODE_CLAUSE",
                                      "ALLOW_CLAUSE"}));
  EXPECT_EQ(
      Children(placed(Build(true))),
      (std::vector<std::string>{"ALLOW_CLAUSE", "CODE_CLAUSE", "CONTROL_CLAUSE",
                                "LINELIMIT_CLAUSE", "PAGELIMIT_CLAUSE",
                                "STYLE_CLAUSE", "OVERFLOW_CLAUSE"}));

  // An RD with only its name: the RD keyword as written, and the name.
  auto *Bare = T.at<ReportDescription>(30, 8, 30, 20);
  Bare->setRdWord(T.word("rd", 30, 8));
  Bare->setReportName(T.word("Short", 30, 12));
  EXPECT_TRUE(sameXML(located(R"(<ROOT><REPORT_DESC @(30,8,20)>
        <TYPE @(30,8,9)>rd</TYPE><NAME @(30,12,16)>Short</NAME>
      </REPORT_DESC></ROOT>)"),
                      placed(Bare, true)));
}

TEST(ReportDescription, ClauseContents) {
  ReportTree T;
  // ALLOW NO.
  auto *Allow = T.on<ClauseAllow>(11, 12, 19);
  Allow->setNoWord(T.word("no", 11, 18));
  EXPECT_TRUE(
      sameXML("<ROOT><ALLOW_CLAUSE><OPTION>no</OPTION></ALLOW_CLAUSE></ROOT>",
              placed(Allow)));

  // CODE 'A'. LINE LIMIT 132.
  auto *Code = T.on<ClauseCode>(12, 12, 19);
  Code->setCodeExpr(T.text("A", 12, 17));
  auto *LineLimit = T.on<ClauseLineLimit>(13, 12, 25);
  LineLimit->setLineLimitExpr(T.num("132", 13, 23));
  EXPECT_TRUE(sameXML(
      "<ROOT><CODE_CLAUSE><CODE><VALUE>A</VALUE></CODE></CODE_CLAUSE></ROOT>",
      placed(Code)));
  EXPECT_TRUE(sameXML("<ROOT><LINELIMIT_CLAUSE><LINELIMIT><VALUE>132</VALUE>"
                      "</LINELIMIT></LINELIMIT_CLAUSE></ROOT>",
                      placed(LineLimit)));

  // CONTROLS ARE REPORT FINAL A B, the parser having dropped an item in
  // between: the list counts it, the words are written normalised.
  auto *Control = T.on<ClauseControl>(14, 12, 45);
  Control->setReportWord(T.word("report", 14, 25));
  Control->setFinalWord(T.word("final", 14, 32));
  Control->addControlId(T.ident("A", 14, 38));
  Control->addControlId(nullptr);
  Control->addControlId(T.ident("B", 14, 45));
  EXPECT_TRUE(sameXML(located(R"(<ROOT>
    <CONTROL_CLAUSE @(14,12,45)>
     <CONTROL_OPTION @(14,25,30)><WORD @(14,25,30)>REPORT</WORD></CONTROL_OPTION>
     <CONTROL_OPTION @(14,32,36)><WORD @(14,32,36)>FINAL</WORD></CONTROL_OPTION>
     <CONTROLID_LIST @list(3,CONTROLID_LIST,14,38,14,45)>
      <DATA_IDENTIFIER @(14,38,38)><DATA_ID @(14,38,38)>0</DATA_ID>
       <QUALIFIED @(14,38,38)>A</QUALIFIED></DATA_IDENTIFIER>
      <DATA_IDENTIFIER @(14,45,45)><DATA_ID @(14,45,45)>0</DATA_ID>
       <QUALIFIED @(14,45,45)>B</QUALIFIED></DATA_IDENTIFIER>
     </CONTROLID_LIST>
    </CONTROL_CLAUSE></ROOT>)"),
                      placed(Control, true)));

  // PAGE LIMIT with every phrase, all on one place so that the written
  // order shows; a phrase without its number writes nothing.
  auto *Page = T.on<ClausePageLimit>(15, 12, 60);
  auto *Limit = T.on<PhrasePageLimit>(15, 12, 60);
  Limit->setPageLimitExpr(T.num("60", 15, 12));
  auto *Heading = T.on<PhraseHeading>(15, 12, 60);
  Heading->setHeadingExpr(T.num("1", 15, 12));
  auto *First = T.on<PhraseFirstDetail>(15, 12, 60);
  First->setFirstDetailExpr(T.num("5", 15, 12));
  auto *Last = T.on<PhraseLastDetail>(15, 12, 60);
  Last->setLastDetailExpr(T.num("50", 15, 12));
  auto *Footing = T.on<PhraseControlFooting>(15, 12, 60);
  Footing->setLastFootingExpr(T.num("55", 15, 12));
  Page->setHeadingPhrase(Heading);
  Page->setFirstDetailPhrase(First);
  Page->setLastDetailPhrase(Last);
  Page->setControlFootingPhrase(Footing);
  Page->setPageLimitPhrase(Limit);
  EXPECT_TRUE(sameXML(R"(<ROOT><PAGELIMIT_CLAUSE>
      <HEADING><VALUE>1</VALUE></HEADING>
      <FIRST_DETAIL><VALUE>5</VALUE></FIRST_DETAIL>
      <LAST_DETAIL><VALUE>50</VALUE></LAST_DETAIL>
      <LAST_FOOTING><VALUE>55</VALUE></LAST_FOOTING>
      <PAGELIMIT><VALUE>60</VALUE></PAGELIMIT>
    </PAGELIMIT_CLAUSE></ROOT>)",
                      placed(Page)));
  Last->setLastDetailExpr(nullptr);
  Page->setHeadingPhrase(nullptr);
  EXPECT_TRUE(sameXML(R"(<ROOT><PAGELIMIT_CLAUSE>
      <FIRST_DETAIL><VALUE>5</VALUE></FIRST_DETAIL>
      <LAST_FOOTING><VALUE>55</VALUE></LAST_FOOTING>
      <PAGELIMIT><VALUE>60</VALUE></PAGELIMIT>
    </PAGELIMIT_CLAUSE></ROOT>)",
                      placed(Page)));

  // STYLE: the STYLE word's wrapper and the name list share their tag.
  auto *Style = T.on<ClauseRdStyle>(16, 12, 30);
  Style->setStyleWord(T.word("style", 16, 12));
  Style->addStyleName(T.word("bold", 16, 18));
  Style->addStyleName(T.word("Under", 16, 23));
  EXPECT_TRUE(sameXML(R"(<ROOT><STYLE_CLAUSE>
      <STYLENAME_LIST><WORD>STYLE</WORD></STYLENAME_LIST>
      <STYLENAME_LIST size="2" name="WordList">
       <WORD>BOLD</WORD><WORD>UNDER</WORD>
      </STYLENAME_LIST>
    </STYLE_CLAUSE></ROOT>)",
                      placed(Style)));

  // OVERFLOW: the one literal is written after REPLACE and again after
  // STOP, each time with the literal's location.
  auto *Overflow = T.on<ClauseOverflow>(17, 12, 40);
  Overflow->setReplaceWord(T.word("REPLACE", 17, 21));
  Overflow->setStopWord(T.word("STOP", 17, 29));
  Overflow->setReplStopExpr(T.text("X", 17, 34));
  EXPECT_TRUE(sameXML(located(R"(<ROOT><OVERFLOW_CLAUSE @(17,12,40)>
      <OVERFLOW_OPTION @(17,21,27)><WORD @(17,21,27)>REPLACE</WORD></OVERFLOW_OPTION>
      <OVERFLOW_OPTION @(17,29,32)><WORD @(17,29,32)>STOP</WORD></OVERFLOW_OPTION>
      <REPLACE_LITERAL @(17,34,36)><VALUE @(17,34,36)>X</VALUE></REPLACE_LITERAL>
      <STOP_LITERAL @(17,34,36)><VALUE @(17,34,36)>X</VALUE></STOP_LITERAL>
    </OVERFLOW_CLAUSE></ROOT>)"),
                      placed(Overflow, true)));
  // Without REPLACE and STOP the literal is not written at all.
  auto *Plain = T.on<ClauseOverflow>(18, 12, 40);
  Plain->setOmittedWord(T.word("OMITTED", 18, 21));
  Plain->setStandardWord(T.word("STANDARD", 18, 29));
  Plain->setReplStopExpr(T.text("X", 18, 38));
  EXPECT_TRUE(sameXML(R"(<ROOT><OVERFLOW_CLAUSE>
      <OVERFLOW_OPTION><WORD>OMITTED</WORD></OVERFLOW_OPTION>
      <OVERFLOW_OPTION><WORD>STANDARD</WORD></OVERFLOW_OPTION>
    </OVERFLOW_CLAUSE></ROOT>)",
                      placed(Plain)));
}

//===----------------------------------------------------------------------===//
// Report group entries
//===----------------------------------------------------------------------===//

// The entry's own items: the level as the normalised word, the name as
// written, GROUP LIMIT around its literal (located there, not at the
// clause), the flag and usage elements located at their clauses.
TEST(ReportGroupEntry, OwnItemsAndTheirLocations) {
  ReportTree T;
  // 20        5   Total-Line GROUP LIMIT 50 BLANK WHEN ZERO
  // 21            JUSTIFIED right USAGE computational-3.
  auto *D = T.at<ReportDataDescription>(20, 8, 21, 50);
  D->setLevelNum(T.at<Word>(20, 8, 20, 8, "05", "5"));
  D->setDataName(T.word("Total-Line", 20, 12));
  auto *Limit = T.on<ClauseGroupLimit>(20, 23, 36);
  Limit->setLimitExpr(T.num("50", 20, 35));
  D->setGroupLimitClause(Limit);
  auto *Blank = T.on<ClauseBlankWhenZero>(20, 38, 52);
  D->setBlankZero(Blank);
  auto *Just = T.on<ClauseJustified>(21, 12, 26);
  Just->setRightWord(T.word("right", 21, 22));
  D->setJustified(Just);
  auto *Usage = T.on<ClauseUsage>(21, 28, 48);
  Usage->setUsageDescWord(T.word("computational-3", 21, 34));
  D->setUsage(Usage);
  EXPECT_TRUE(sameXML(located(R"(<ROOT>
    <REPORT_DATA_DESC lbl="20" lbc="8" lel="21" lec="50" lblo="20" lbco="8"
                      lelo="21" leco="50" lfid="1" lfido="1">
     <LEVEL @(20,8,8)>05</LEVEL>
     <NAME @(20,12,21)>Total-Line</NAME>
     <REPORT_GROUP_LIMIT @(20,35,36)><VALUE @(20,35,36)>50</VALUE></REPORT_GROUP_LIMIT>
     <BLANK_WHEN_ZERO @(20,38,52)>TRUE</BLANK_WHEN_ZERO>
     <JUSTIFIED @(21,22,26)>right</JUSTIFIED>
     <USAGE @(21,28,48)>COMP3</USAGE>
    </REPORT_DATA_DESC></ROOT>)"),
                      placed(D, true)));

  // A short usage form keeps its hyphen; JUSTIFIED without RIGHT, and a
  // GROUP LIMIT or PICTURE without its operand, write nothing.
  auto *E = T.group("10", 22, 8, 40);
  E->setJustified(T.on<ClauseJustified>(22, 12, 20));
  E->setGroupLimitClause(T.on<ClauseGroupLimit>(22, 22, 32));
  E->setPicture(T.on<ClausePicture>(22, 34, 36));
  auto *Short = T.on<ClauseUsage>(22, 38, 40);
  Short->setUsageDescWord(T.word("comp-3", 22, 38));
  E->setUsage(Short);
  EXPECT_TRUE(
      sameXML("<ROOT><REPORT_DATA_DESC><LEVEL>10</LEVEL><USAGE>COMP-3</USAGE>"
              "</REPORT_DATA_DESC></ROOT>",
              placed(E)));
  // A USAGE clause that lost its word writes nothing either.
  Short->setUsageDescWord(nullptr);
  EXPECT_TRUE(sameXML(
      "<ROOT><REPORT_DATA_DESC><LEVEL>10</LEVEL></REPORT_DATA_DESC></ROOT>",
      placed(E)));
}

// Every child sharing one place shows the order in which the entry writes
// them; the FUNCTION, SOURCE and VALUE clauses of the multiple-values list
// stand directly under the entry, without a container.
TEST(ReportGroupEntry, ClausesSharingAPlaceFollowTheStatedOrder) {
  ReportTree T;
  const uint32_t L = 30;
  auto *D = T.on<ReportDataDescription>(L, 8, 60);
  D->setLevelNum(T.word("05", L, 8));
  D->setDataName(T.word("X", L, 8));
  D->setTypeClause(T.type(RPT_TYPE_DE, L, 8, 60));
  D->setNextGroupClause(T.on<ClauseNextGroup>(L, 8, 60));
  auto *Limit = T.on<ClauseGroupLimit>(L, 8, 60);
  Limit->setLimitExpr(T.num("9", L, 8));
  D->setGroupLimitClause(Limit);
  D->setRepeatedClause(T.on<ClauseRepeated>(L, 8, 60));
  D->setLineClause(T.on<ClauseLine>(L, 8, 60));
  D->setColumnClause(T.on<ClauseColumn>(L, 8, 60));
  auto *Pic = T.on<ClausePicture>(L, 8, 60);
  Pic->setCharStringWord(T.word("9", L, 8));
  D->setPicture(Pic);
  D->setSumClause(T.on<ClauseSum>(L, 8, 60));
  D->setCountClause(T.on<ClauseCount>(L, 8, 60));
  auto *After = T.on<ClausePresentAfter>(L, 8, 60);
  After->setAfterType(RPT_AFT_ABSENT_AFTER);
  D->setPresentAfterClause(After);
  auto *When = T.on<ClausePresentWhen>(L, 8, 60);
  When->setWhenType(RPT_WHEN_ABSENT_WHEN);
  D->setPresentWhenClause(When);
  // Two values: a VALUE alone, then FUNCTION and SOURCE held by one item
  // (written FUNCTION, SOURCE, VALUE within an item).
  auto *First = T.on<ClauseMultipleValues>(L, 8, 60);
  First->setReportValueClause(T.on<ClauseReportValue>(L, 8, 60));
  auto *Second = T.on<ClauseMultipleValues>(L, 8, 60);
  Second->setSourceClause(T.on<ClauseSource>(L, 8, 60));
  Second->setFunctionClause(T.on<ClauseFunction>(L, 8, 60));
  D->addMultipleValues(First);
  D->addMultipleValues(Second);
  D->setWrapClause(T.on<ClauseWrap>(L, 8, 60));
  D->setMultipleClause(T.on<ClauseMultiple>(L, 8, 60));
  D->setReportOccursClause(T.on<ClauseReportOccurs>(L, 8, 60));
  D->setReportSignClause(T.on<ClauseReportSign>(L, 8, 60));
  D->setRddStyleClause(T.on<ClauseRddStyle>(L, 8, 60));
  D->setBlankZero(T.on<ClauseBlankWhenZero>(L, 8, 60));
  auto *Just = T.on<ClauseJustified>(L, 8, 60);
  Just->setRightWord(T.word("RIGHT", L, 8));
  D->setJustified(Just);
  auto *Usage = T.on<ClauseUsage>(L, 8, 60);
  Usage->setUsageDescWord(T.word("DISPLAY-1", L, 8));
  D->setUsage(Usage);

  EXPECT_TRUE(sameXML(R"(<ROOT><REPORT_DATA_DESC>
      <LEVEL>05</LEVEL>
      <NAME>X</NAME>
      <REPORT_TYPE><TYPE>DETAIL_HEADING</TYPE></REPORT_TYPE>
      <REPORT_NEXT_GROUP/>
      <REPORT_GROUP_LIMIT><VALUE>9</VALUE></REPORT_GROUP_LIMIT>
      <REPORT_REPEATED/>
      <REPORT_LINES/>
      <REPORT_COLUMN/>
      <PICTURE>9</PICTURE>
      <REPORT_SUM/>
      <REPORT_COUNT/>
      <REPORT_PRESENT_AFTER/>
      <REPORT_PRESENT_WHEN/>
      <REPORT_VALUE><VALUES/></REPORT_VALUE>
      <REPORT_FUNCTION/>
      <REPORT_SOURCE/>
      <REPORT_WRAP/>
      <REPORT_MULTIPLE/>
      <REPORT_OCCURS><OCCURS/></REPORT_OCCURS>
      <REPORT_SIGN/>
      <REPORT_STYLE/>
      <BLANK_WHEN_ZERO>TRUE</BLANK_WHEN_ZERO>
      <JUSTIFIED>RIGHT</JUSTIFIED>
      <USAGE>DISPLAY1</USAGE>
    </REPORT_DATA_DESC></ROOT>)",
                      placed(D)));
}

//===----------------------------------------------------------------------===//
// Report group clauses
//===----------------------------------------------------------------------===//

// SOURCE ws-a + ws-b * 2 ROUNDED: the operator stands between its operands,
// located at its own word; the right operand nests a second arithmetic.
TEST(ReportGroupClauses, SourceArithmeticNests) {
  ReportTree T;
  // 40            SOURCE ws-a + ws-b * 2 ROUNDED
  auto *Source = T.on<ClauseSource>(40, 12, 41);
  auto *Inner = T.on<SourceArithExpr>(40, 26, 33);
  Inner->setArithType(ARITH_EXPR_MULTIPLY);
  Inner->setLhs(T.operand(T.ident("ws-b", 40, 26)));
  Inner->setOp1(T.word("*", 40, 31));
  Inner->setRhs(T.operand(T.num("2", 40, 33)));
  auto *Outer = T.on<SourceArithExpr>(40, 19, 33);
  Outer->setArithType(ARITH_EXPR_PLUS);
  Outer->setLhs(T.operand(T.ident("ws-a", 40, 19)));
  Outer->setOp1(T.word("+", 40, 24));
  auto *Right = T.on<SourceClauseExpr>(40, 26, 33);
  Right->setType(RPT_SRC_ARITH);
  Right->setArithExpr(Inner);
  Outer->setRhs(Right);
  auto *Operand = T.on<SourceClauseExpr>(40, 19, 33);
  Operand->setType(RPT_SRC_ARITH);
  Operand->setArithExpr(Outer);
  Source->addSourceExpr(Operand);
  Source->setRoundedWord(T.word("ROUNDED", 40, 35));

  EXPECT_TRUE(sameXML(located(R"(<ROOT><REPORT_SOURCE @(40,12,41)>
    <SOURCE_EXPR_LIST @list(1,,40,19,40,33)>
     <REPORT_SOURCE_EXPR @(40,19,33)>
      <REPORT_SOURCE_ARITHMETIC_EXPR @(40,19,33)>
       <OPERAND_LEFT @(40,19,22)>
        <REPORT_SOURCE_EXPR @(40,19,22)>
         <DATA_IDENTIFIER @(40,19,22)><DATA_ID @(40,19,22)>0</DATA_ID>
          <QUALIFIED @(40,19,22)>ws-a</QUALIFIED></DATA_IDENTIFIER>
        </REPORT_SOURCE_EXPR>
       </OPERAND_LEFT>
       <OPERATOR @(40,24,24)>PLUS</OPERATOR>
       <OPERAND_RIGHT @(40,26,33)>
        <REPORT_SOURCE_EXPR @(40,26,33)>
         <REPORT_SOURCE_ARITHMETIC_EXPR @(40,26,33)>
          <OPERAND_LEFT @(40,26,29)>
           <REPORT_SOURCE_EXPR @(40,26,29)>
            <DATA_IDENTIFIER @(40,26,29)><DATA_ID @(40,26,29)>0</DATA_ID>
             <QUALIFIED @(40,26,29)>ws-b</QUALIFIED></DATA_IDENTIFIER>
           </REPORT_SOURCE_EXPR>
          </OPERAND_LEFT>
          <OPERATOR @(40,31,31)>MULTIPLY</OPERATOR>
          <OPERAND_RIGHT @(40,33,33)>
           <REPORT_SOURCE_EXPR @(40,33,33)><VALUE @(40,33,33)>2</VALUE></REPORT_SOURCE_EXPR>
          </OPERAND_RIGHT>
         </REPORT_SOURCE_ARITHMETIC_EXPR>
        </REPORT_SOURCE_EXPR>
       </OPERAND_RIGHT>
      </REPORT_SOURCE_ARITHMETIC_EXPR>
     </REPORT_SOURCE_EXPR>
    </SOURCE_EXPR_LIST>
    <ROUNDED @(40,35,41)>TRUE</ROUNDED>
   </REPORT_SOURCE></ROOT>)"),
                      placed(Source, true)));

  // A unary operator has no left operand; an operand writes every part it
  // holds whatever its kind says.
  auto *Minus = T.on<SourceArithExpr>(41, 19, 23);
  Minus->setArithType(ARITH_EXPR_UNARY_MINUS);
  Minus->setOp1(T.word("-", 41, 19));
  Minus->setRhs(T.operand(T.ident("ws-c", 41, 20)));
  auto *Mixed = T.on<SourceClauseExpr>(41, 19, 40);
  Mixed->setType(RPT_SRC_EXPR);
  Mixed->setExpr(T.num("7", 41, 19));
  Mixed->setArithExpr(Minus);
  auto *Counted = T.on<CountClauseExpr>(41, 30, 40);
  Counted->addName(T.ident("ws-d", 41, 37));
  Mixed->setCountExpr(Counted);
  auto *Summed = T.on<SumClauseExpr>(41, 25, 28);
  Summed->addName(T.ident("ws-e", 41, 25));
  Mixed->setSumExpr(Summed);
  EXPECT_TRUE(sameXML(R"(<ROOT><REPORT_SOURCE_EXPR>
      <VALUE>7</VALUE>
      <REPORT_SOURCE_ARITHMETIC_EXPR>
       <OPERATOR>U_MINUS</OPERATOR>
       <OPERAND_RIGHT><REPORT_SOURCE_EXPR>
        <DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>ws-c</QUALIFIED></DATA_IDENTIFIER>
       </REPORT_SOURCE_EXPR></OPERAND_RIGHT>
      </REPORT_SOURCE_ARITHMETIC_EXPR>
      <REPORT_SUM_EXPR><EXPR_LIST size="1" name="ExprList">
       <DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>ws-e</QUALIFIED></DATA_IDENTIFIER>
      </EXPR_LIST></REPORT_SUM_EXPR>
      <REPORT_COUNT_EXPR><EXPR_LIST size="1" name="ExprList">
       <DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>ws-d</QUALIFIED></DATA_IDENTIFIER>
      </EXPR_LIST></REPORT_COUNT_EXPR>
    </REPORT_SOURCE_EXPR></ROOT>)",
                      placed(Mixed)));
}

// SUM ws-a ws-b UPON d1 RESET ON ws-dept ROUNDED, and COUNT of two operand
// groups with RESET ON.
TEST(ReportGroupClauses, SumAndCountWithReset) {
  ReportTree T;
  // 50            SUM ws-a ws-b UPON d1 RESET ON ws-dept ROUNDED
  auto *Sum = T.on<ClauseSum>(50, 12, 57);
  auto *Summed = T.on<SumClauseExpr>(50, 16, 32);
  Summed->addName(T.ident("ws-a", 50, 16));
  Summed->addName(T.ident("ws-b", 50, 21));
  Summed->addUpon(T.ident("d1", 50, 31));
  Sum->addSumExpr(Summed);
  Sum->setControlId(T.ident("ws-dept", 50, 43));
  Sum->setRoundedWord(T.word("rounded", 50, 51));
  EXPECT_TRUE(sameXML(located(R"(<ROOT><REPORT_SUM @(50,12,57)>
    <SUM_EXPR_LIST @list(1,ExprList,50,16,50,32)>
     <REPORT_SUM_EXPR @(50,16,32)>
      <EXPR_LIST @list(2,ExprList,50,16,50,24)>
       <DATA_IDENTIFIER @(50,16,19)><DATA_ID @(50,16,19)>0</DATA_ID>
        <QUALIFIED @(50,16,19)>ws-a</QUALIFIED></DATA_IDENTIFIER>
       <DATA_IDENTIFIER @(50,21,24)><DATA_ID @(50,21,24)>0</DATA_ID>
        <QUALIFIED @(50,21,24)>ws-b</QUALIFIED></DATA_IDENTIFIER>
      </EXPR_LIST>
      <UPON_LIST @list(1,ExprList,50,31,50,32)>
       <DATA_IDENTIFIER @(50,31,32)><DATA_ID @(50,31,32)>0</DATA_ID>
        <QUALIFIED @(50,31,32)>d1</QUALIFIED></DATA_IDENTIFIER>
      </UPON_LIST>
     </REPORT_SUM_EXPR>
    </SUM_EXPR_LIST>
    <RESET_CONTROL_ID @(50,43,49)>
     <DATA_IDENTIFIER @(50,43,49)><DATA_ID @(50,43,49)>0</DATA_ID>
      <QUALIFIED @(50,43,49)>ws-dept</QUALIFIED></DATA_IDENTIFIER>
    </RESET_CONTROL_ID>
    <ROUNDED @(50,51,57)>TRUE</ROUNDED>
   </REPORT_SUM></ROOT>)"),
                      placed(Sum, true)));

  // 51            COUNT OF ws-a, ws-b RESET ON FINAL-CTL
  auto *Count = T.on<ClauseCount>(51, 12, 46);
  auto *A = T.on<CountClauseExpr>(51, 21, 24);
  A->addName(T.ident("ws-a", 51, 21));
  auto *B = T.on<CountClauseExpr>(51, 27, 30);
  B->addName(T.ident("ws-b", 51, 27));
  Count->addCountExpr(A);
  Count->addCountExpr(B);
  Count->setControlId(T.ident("final-ctl", 51, 41));
  EXPECT_TRUE(sameXML(R"(<ROOT><REPORT_COUNT>
    <COUNT_EXPR_LIST size="2" name="ExprList">
     <REPORT_COUNT_EXPR><EXPR_LIST size="1" name="ExprList">
      <DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>ws-a</QUALIFIED></DATA_IDENTIFIER>
     </EXPR_LIST></REPORT_COUNT_EXPR>
     <REPORT_COUNT_EXPR><EXPR_LIST size="1" name="ExprList">
      <DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>ws-b</QUALIFIED></DATA_IDENTIFIER>
     </EXPR_LIST></REPORT_COUNT_EXPR>
    </COUNT_EXPR_LIST>
    <RESET_CONTROL_ID>
     <DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>final-ctl</QUALIFIED></DATA_IDENTIFIER>
    </RESET_CONTROL_ID>
   </REPORT_COUNT></ROOT>)",
                      placed(Count)));
}

// PRESENT WHEN with a condition; PRESENT AFTER and PRESENT WHEN write the
// same type text into both "OPTION" elements, each located at its word.
TEST(ReportGroupClauses, PresentWhenAndAfter) {
  ReportTree T;
  // 60            PRESENT WHEN ws-amt > 0
  auto *When = T.on<ClausePresentWhen>(60, 12, 34);
  When->setWhenType(RPT_WHEN_PRESENT_WHEN);
  When->setWhenWord(T.word("WHEN", 60, 20));
  auto *Cond = T.on<RelationalCondition>(60, 25, 34);
  Cond->setConditionType(REL_OP_GT);
  Cond->setLeft(T.ident("ws-amt", 60, 25));
  Cond->setRight(T.num("0", 60, 34));
  When->setPresentCond(Cond);
  EXPECT_TRUE(sameXML(located(R"(<ROOT><REPORT_PRESENT_WHEN @(60,12,34)>
    <OPTION @(60,20,23)>PRESENT_WHEN</OPTION>
    <WHEN_CONDITION @(60,25,34)>
     <RELATIONAL_CONDITION @(60,25,34)>
      <LEFT @(60,25,30)>
       <DATA_IDENTIFIER @(60,25,30)><DATA_ID @(60,25,30)>0</DATA_ID>
        <QUALIFIED @(60,25,30)>ws-amt</QUALIFIED></DATA_IDENTIFIER>
      </LEFT>
      <TYPE @(60,34,34)>GT</TYPE>
      <RIGHT @(60,34,34)><VALUE @(60,34,34)>0</VALUE></RIGHT>
     </RELATIONAL_CONDITION>
    </WHEN_CONDITION>
   </REPORT_PRESENT_WHEN></ROOT>)"),
                      placed(When, true)));

  // 61            ABSENT WHEN ws-ctl UNLESS ...: both words present.
  auto *Both = T.on<ClausePresentWhen>(61, 12, 40);
  Both->setWhenType(RPT_WHEN_ABSENT_UNLESS);
  Both->setWhenWord(T.word("WHEN", 61, 19));
  Both->setControlId(T.ident("ws-ctl", 61, 24));
  Both->setUnlessWord(T.word("UNLESS", 61, 31));
  EXPECT_TRUE(sameXML(located(R"(<ROOT><REPORT_PRESENT_WHEN @(61,12,40)>
    <OPTION @(61,19,22)>ABSENT_UNLESS</OPTION>
    <WHEN_CONTROL_ID @(61,24,29)>
     <DATA_IDENTIFIER @(61,24,29)><DATA_ID @(61,24,29)>0</DATA_ID>
      <QUALIFIED @(61,24,29)>ws-ctl</QUALIFIED></DATA_IDENTIFIER>
    </WHEN_CONTROL_ID>
    <OPTION @(61,31,36)>ABSENT_UNLESS</OPTION>
   </REPORT_PRESENT_WHEN></ROOT>)"),
                      placed(Both, true)));

  // 62            PRESENT AFTER ws-dept, and GROUP INDICATE.
  auto *After = T.on<ClausePresentAfter>(62, 12, 40);
  After->setAfterType(RPT_AFT_PRESENT_AFTER);
  After->setAfterWord(T.word("AFTER", 62, 20));
  After->setControlId(T.ident("ws-dept", 62, 26));
  After->setGroupWord(T.word("GROUP", 62, 34));
  EXPECT_TRUE(sameXML(located(R"(<ROOT><REPORT_PRESENT_AFTER @(62,12,40)>
    <OPTION @(62,20,24)>PRESENT_AFTER</OPTION>
    <AFTER_CONTROL_ID @(62,26,32)>
     <DATA_IDENTIFIER @(62,26,32)><DATA_ID @(62,26,32)>0</DATA_ID>
      <QUALIFIED @(62,26,32)>ws-dept</QUALIFIED></DATA_IDENTIFIER>
    </AFTER_CONTROL_ID>
    <OPTION @(62,34,38)>PRESENT_AFTER</OPTION>
   </REPORT_PRESENT_AFTER></ROOT>)"),
                      placed(After, true)));
  auto *Indicate = T.on<ClausePresentAfter>(63, 12, 25);
  Indicate->setAfterType(RPT_AFT_GROUP);
  Indicate->setGroupWord(T.word("GROUP", 63, 12));
  EXPECT_TRUE(sameXML("<ROOT><REPORT_PRESENT_AFTER><OPTION>GROUP_INDICATE"
                      "</OPTION></REPORT_PRESENT_AFTER></ROOT>",
                      placed(Indicate)));
}

// The fixed texts of the kinds; TYPE and the OCCURS step accept any value,
// writing an empty text for one they do not know.
TEST(ReportGroupClauses, KindTexts) {
  ReportTree T;
  const std::vector<std::pair<int, const char *>> Types = {
      {RPT_TYPE_NONE, ""},
      {RPT_TYPE_RH, "REPORT_HEADING"},
      {RPT_TYPE_PH, "PAGE_HEADING"},
      {RPT_TYPE_CH, "CONTROL_HEADING"},
      {RPT_TYPE_DE, "DETAIL_HEADING"},
      {RPT_TYPE_CF, "CONTROL_FOOTING"},
      {RPT_TYPE_PF, "PAGE_FOOTING"},
      {RPT_TYPE_RF, "REPORT_FOOTING"}};
  for (const auto &[Value, Text] : Types) {
    auto *C = T.type(static_cast<RptTypeOption>(Value), 70, 12, 20);
    EXPECT_TRUE(
        sameXML(located("<ROOT><REPORT_TYPE @(70,12,20)><TYPE "
                        "@(70,12,20)>" +
                        std::string(Text) + "</TYPE></REPORT_TYPE></ROOT>"),
                placed(C, true)))
        << "type " << Value;
  }

  const std::vector<std::pair<int, const char *>> Steps = {
      {RPT_OCC_NONE, ""},
      {RPT_OCC_STEP_NONE, "STEP_NONE"},
      {RPT_OCC_STEP_LINES, "STEP_LINES"},
      {RPT_OCC_STEP_COLUMNS, "STEP_COLUMNS"},
      {RPT_OCC_WIDTH_NONE, "WIDTH_NONE"},
      {RPT_OCC_WIDTH_LINES, "WIDTH_LINES"},
      {RPT_OCC_WIDTH_COLUMNS, "WIDTH_COLUMNS"},
      {RPT_OCC_DEPTH_NONE, "DEPTH_NONE"},
      {RPT_OCC_DEPTH_LINES, "DEPTH_LINES"},
      {RPT_OCC_DEPTH_COLUMNS, "DEPTH_COLUMNS"},
      {15, ""}};
  for (const auto &[Value, Text] : Steps) {
    auto *C = T.on<ClauseReportOccurs>(71, 12, 30);
    auto *Step = T.on<PhraseOccursStep>(71, 22, 30);
    Step->setOccursType(static_cast<RptOccursType>(Value));
    C->setStepPhrase(Step);
    EXPECT_TRUE(sameXML("<ROOT><REPORT_OCCURS><OCCURS/><OCCURS_OPTION>" +
                            std::string(Text) +
                            "</OCCURS_OPTION></REPORT_OCCURS></ROOT>",
                        placed(C)))
        << "step " << Value;
  }

  const std::vector<std::pair<int, const char *>> Afters = {
      {RPT_AFT_PRESENT_AFTER, "PRESENT_AFTER"},
      {RPT_AFT_ABSENT_AFTER, "ABSENT_AFTER"},
      {RPT_AFT_PRESENT_JUST_AFTER, "PRESENT_JUST_AFTER"},
      {RPT_AFT_GROUP, "GROUP_INDICATE"}};
  for (const auto &[Value, Text] : Afters) {
    auto *C = T.on<ClausePresentAfter>(72, 12, 30);
    C->setAfterType(static_cast<RptPresentAfterType>(Value));
    C->setAfterWord(T.word("AFTER", 72, 20));
    EXPECT_TRUE(sameXML("<ROOT><REPORT_PRESENT_AFTER><OPTION>" +
                            std::string(Text) +
                            "</OPTION></REPORT_PRESENT_AFTER></ROOT>",
                        placed(C)))
        << "after " << Value;
  }

  const std::vector<std::pair<int, const char *>> Whens = {
      {RPT_WHEN_PRESENT_WHEN, "PRESENT_WHEN"},
      {RPT_WHEN_ABSENT_WHEN, "ABSENT_WHEN"},
      {RPT_WHEN_PRESENT_UNLESS, "PRESENT_UNLESS"},
      {RPT_WHEN_ABSENT_UNLESS, "ABSENT_UNLESS"},
      {RPT_WHEN_OTHER, "PRESENT_WHEN_OTHER"}};
  for (const auto &[Value, Text] : Whens) {
    auto *C = T.on<ClausePresentWhen>(73, 12, 30);
    C->setWhenType(static_cast<RptPresentWhenType>(Value));
    C->setUnlessWord(T.word("UNLESS", 73, 20));
    EXPECT_TRUE(sameXML("<ROOT><REPORT_PRESENT_WHEN><OPTION>" +
                            std::string(Text) +
                            "</OPTION></REPORT_PRESENT_WHEN></ROOT>",
                        placed(C)))
        << "when " << Value;
  }

  const std::vector<std::pair<int, const char *>> Operators = {
      {ARITH_EXPR_UNARY_PLUS, "U_PLUS"}, {ARITH_EXPR_UNARY_MINUS, "U_MINUS"},
      {ARITH_EXPR_PLUS, "PLUS"},         {ARITH_EXPR_MINUS, "MINUS"},
      {ARITH_EXPR_MULTIPLY, "MULTIPLY"}, {ARITH_EXPR_DIVIDE, "DIVIDE"},
      {ARITH_EXPR_SQUARE, "SQUARE"}};
  for (const auto &[Value, Text] : Operators) {
    auto *C = T.on<SourceArithExpr>(74, 12, 30);
    C->setArithType(static_cast<ArithmeticExprType>(Value));
    C->setOp1(T.word("+", 74, 14));
    EXPECT_TRUE(sameXML(
        "<ROOT><REPORT_SOURCE_ARITHMETIC_EXPR><OPERATOR>" + std::string(Text) +
            "</OPERATOR></REPORT_SOURCE_ARITHMETIC_EXPR></ROOT>",
        placed(C)))
        << "operator " << Value;
  }
}

// LINE, COLUMN, NEXT GROUP, REPEATED and the VARYING phrase.
TEST(ReportGroupClauses, PlacementClauses) {
  ReportTree T;
  // 80            LINE 3 4 ON NEXT PAGE VARYING ws-i FROM 1 BY 2
  auto *Line = T.on<ClauseLine>(80, 12, 58);
  Line->addInteger(T.num("3", 80, 17));
  Line->addInteger(T.num("4", 80, 19));
  Line->setNextWord(T.word("NEXT", 80, 24));
  auto *Varying = T.on<VaryingPhrase>(80, 34, 58);
  Varying->setDataName(T.word("ws-i", 80, 42));
  Varying->setFromExpr(T.num("1", 80, 52));
  Varying->setByExpr(T.num("2", 80, 58));
  Line->addVarying(Varying);
  EXPECT_TRUE(sameXML(located(R"(<ROOT><REPORT_LINES @(80,12,58)>
    <LINE_INTEGER_LIST @list(2,ExprList,80,17,80,19)>
     <VALUE @(80,17,17)>3</VALUE><VALUE @(80,19,19)>4</VALUE>
    </LINE_INTEGER_LIST>
    <ON_NEXT_PAGE @(80,24,27)>TRUE</ON_NEXT_PAGE>
    <VARYING_LIST @list(1,VaryingList,80,34,80,58)>
     <REPORT_VARYING_PHRASE @(80,34,58)>
      <DATANAME @(80,42,45)>ws-i</DATANAME>
      <FROM_EXPR @(80,52,52)><VALUE @(80,52,52)>1</VALUE></FROM_EXPR>
      <BY_EXPR @(80,58,58)><VALUE @(80,58,58)>2</VALUE></BY_EXPR>
     </REPORT_VARYING_PHRASE>
    </VARYING_LIST>
   </REPORT_LINES></ROOT>)"),
                      placed(Line, true)));

  // COLUMN CENTER 10 20: the alignment word as written.
  auto *Column = T.on<ClauseColumn>(81, 12, 30);
  Column->setCenterWord(T.word("Center", 81, 19));
  Column->addInteger(T.num("10", 81, 26));
  Column->addInteger(T.num("20", 81, 29));
  EXPECT_TRUE(sameXML(R"(<ROOT><REPORT_COLUMN>
      <COLUMN_OPTION>Center</COLUMN_OPTION>
      <COLUMN_INTEGER_LIST size="2" name="ExprList">
       <VALUE>10</VALUE><VALUE>20</VALUE>
      </COLUMN_INTEGER_LIST>
    </REPORT_COLUMN></ROOT>)",
                      placed(Column)));
  Column = T.on<ClauseColumn>(82, 12, 30);
  Column->setLeftWord(T.word("LEFT", 82, 19));
  Column->setRightWord(T.word("right", 82, 24));
  EXPECT_TRUE(sameXML(R"(<ROOT><REPORT_COLUMN>
      <COLUMN_OPTION>LEFT</COLUMN_OPTION><COLUMN_OPTION>right</COLUMN_OPTION>
    </REPORT_COLUMN></ROOT>)",
                      placed(Column)));

  // NEXT GROUP 5, and NEXT GROUP NEXT PAGE.
  auto *Next = T.on<ClauseNextGroup>(83, 12, 24);
  Next->setIntegerExpr(T.num("5", 83, 24));
  EXPECT_TRUE(sameXML("<ROOT><REPORT_NEXT_GROUP><GROUP_INTEGER><VALUE>5"
                      "</VALUE></GROUP_INTEGER></REPORT_NEXT_GROUP></ROOT>",
                      placed(Next)));

  // REPEATED 3 TIMES EVERY 20 COLUMNS.
  auto *Repeated = T.on<ClauseRepeated>(84, 12, 45);
  Repeated->setTimesExpr(T.num("3", 84, 21));
  Repeated->setColsExpr(T.num("20", 84, 35));
  EXPECT_TRUE(sameXML(R"(<ROOT><REPORT_REPEATED>
      <TIMES><VALUE>3</VALUE></TIMES><COLUMNS><VALUE>20</VALUE></COLUMNS>
    </REPORT_REPEATED></ROOT>)",
                      placed(Repeated)));

  // TYPE CONTROL HEADING PAGE ALL, with one control item.
  auto *Type = T.type(RPT_TYPE_CH, 85, 12, 50);
  Type->addControlId(T.ident("ws-dept", 85, 33));
  Type->setPageWord(T.word("page", 85, 41));
  Type->setAllWord(T.word("All", 85, 46));
  EXPECT_TRUE(sameXML(R"(<ROOT><REPORT_TYPE>
      <TYPE>CONTROL_HEADING</TYPE>
      <CONTROLID_LIST size="1" name="CONTROLID_LIST">
       <DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>ws-dept</QUALIFIED></DATA_IDENTIFIER>
      </CONTROLID_LIST>
      <PAGE_OPTION>page</PAGE_OPTION>
      <ALL_OPTION>All</ALL_OPTION>
    </REPORT_TYPE></ROOT>)",
                      placed(Type)));
}

// FUNCTION, the report VALUE and OCCURS clauses (each nesting what it
// builds on), WRAP, MULTIPLE, SIGN and STYLE.
TEST(ReportGroupClauses, ValueFunctionOccursAndPresentationClauses) {
  ReportTree T;
  // 90            FUNCTION CURRENT-DATE PRESENT AFTER ws-dept
  auto *Function = T.on<ClauseFunction>(90, 12, 55);
  auto *Call = T.on<FunctionIdentifierExpression>(90, 21, 32);
  Call->setName(T.word("current-date", 90, 21));
  Function->setFuncIdent(Call);
  auto *After = T.on<ClausePresentAfter>(90, 34, 55);
  After->setAfterType(RPT_AFT_PRESENT_AFTER);
  After->setAfterWord(T.word("AFTER", 90, 42));
  After->setControlId(T.ident("ws-dept", 90, 48));
  Function->setAfterClause(After);
  EXPECT_TRUE(sameXML(R"(<ROOT><REPORT_FUNCTION>
      <FUNC_IDENTIFIER><FUNC_NAME>CURRENT-DATE</FUNC_NAME></FUNC_IDENTIFIER>
      <REPORT_PRESENT_AFTER>
       <OPTION>PRESENT_AFTER</OPTION>
       <AFTER_CONTROL_ID>
        <DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>ws-dept</QUALIFIED></DATA_IDENTIFIER>
       </AFTER_CONTROL_ID>
      </REPORT_PRESENT_AFTER>
    </REPORT_FUNCTION></ROOT>)",
                      placed(Function)));

  // 91            VALUE 'A' PRESENT WHEN sw-on: the ordinary VALUE clause
  // nests first, located like the report VALUE clause.
  auto *Value = T.on<ClauseReportValue>(91, 12, 40);
  auto *Phrase = T.on<PhraseValue>(91, 18, 20);
  Phrase->setLiteral1(T.text("A", 91, 18));
  Value->addPhraseVal(Phrase);
  auto *When = T.on<ClausePresentWhen>(91, 22, 40);
  When->setWhenType(RPT_WHEN_PRESENT_WHEN);
  When->setWhenWord(T.word("WHEN", 91, 30));
  auto *Switch = T.on<ConditionNameCondition>(91, 35, 39);
  Switch->setConditionName(T.ident("sw-on", 91, 35));
  When->setPresentCond(Switch);
  Value->setWhenClause(When);
  EXPECT_TRUE(sameXML(located(R"(<ROOT><REPORT_VALUE @(91,12,40)>
    <VALUES @(91,12,40)>
     <VALUE_ENTRY @(91,18,20)>
      <MIN @(91,18,20)><VALUE @(91,18,20)>A</VALUE></MIN>
     </VALUE_ENTRY>
    </VALUES>
    <REPORT_PRESENT_WHEN @(91,22,40)>
     <OPTION @(91,30,33)>PRESENT_WHEN</OPTION>
     <WHEN_CONDITION @(91,35,39)>
      <COND_NAME_CONDITION @(91,35,39)>
       <OPERAND @(91,35,39)>
        <DATA_IDENTIFIER @(91,35,39)><DATA_ID @(91,35,39)>0</DATA_ID>
         <QUALIFIED @(91,35,39)>sw-on</QUALIFIED></DATA_IDENTIFIER>
       </OPERAND>
      </COND_NAME_CONDITION>
     </WHEN_CONDITION>
    </REPORT_PRESENT_WHEN>
   </REPORT_VALUE></ROOT>)"),
                      placed(Value, true)));

  // 92            OCCURS 3 TIMES VARYING ws-i FROM 1 BY 1 STEP 12 COLUMNS
  auto *Occurs = T.on<ClauseReportOccurs>(92, 12, 62);
  Occurs->setMax(T.num("3", 92, 19));
  auto *Varying = T.on<VaryingPhrase>(92, 27, 48);
  Varying->setDataName(T.word("ws-i", 92, 35));
  Varying->setFromExpr(T.num("1", 92, 45));
  Varying->setByExpr(T.num("1", 92, 50));
  Occurs->addVarying(Varying);
  auto *Step = T.on<PhraseOccursStep>(92, 52, 66);
  Step->setOccursType(RPT_OCC_STEP_COLUMNS);
  Step->setIntegerExpr(T.num("12", 92, 57));
  Occurs->setStepPhrase(Step);
  EXPECT_TRUE(sameXML(located(R"(<ROOT><REPORT_OCCURS @(92,12,62)>
    <OCCURS @(92,12,62)><MAX @(92,19,19)><VALUE @(92,19,19)>3</VALUE></MAX></OCCURS>
    <VARYING_LIST @list(1,VaryingList,92,27,92,48)>
     <REPORT_VARYING_PHRASE @(92,27,48)>
      <DATANAME @(92,35,38)>ws-i</DATANAME>
      <FROM_EXPR @(92,45,45)><VALUE @(92,45,45)>1</VALUE></FROM_EXPR>
      <BY_EXPR @(92,50,50)><VALUE @(92,50,50)>1</VALUE></BY_EXPR>
     </REPORT_VARYING_PHRASE>
    </VARYING_LIST>
    <OCCURS_OPTION @(92,52,66)>STEP_COLUMNS</OCCURS_OPTION>
    <INTEGER @(92,57,58)><VALUE @(92,57,58)>12</VALUE></INTEGER>
   </REPORT_OCCURS></ROOT>)"),
                      placed(Occurs, true)));

  // 93            WRAP AFTER COLUMN 60 TO COLUMN 10 STEP 1 LINE; a phrase
  // without its number writes nothing.
  auto *Wrap = T.on<ClauseWrap>(93, 12, 60);
  auto *WrapAfter = T.on<PhraseWrapAfter>(93, 17, 31);
  WrapAfter->setAfterColExpr(T.num("60", 93, 30));
  auto *WrapTo = T.on<PhraseWrapTo>(93, 33, 44);
  WrapTo->setToColExpr(T.num("10", 93, 43));
  auto *WrapStep = T.on<PhraseWrapStep>(93, 46, 56);
  WrapStep->setLinesExpr(T.num("1", 93, 51));
  Wrap->setAfterPhrase(WrapAfter);
  Wrap->setToPhrase(WrapTo);
  Wrap->setStepPhrase(WrapStep);
  EXPECT_TRUE(sameXML(R"(<ROOT><REPORT_WRAP>
      <AFTER_COLUMN_EXPR><VALUE>60</VALUE></AFTER_COLUMN_EXPR>
      <TO_COLUMN_EXPR><VALUE>10</VALUE></TO_COLUMN_EXPR>
      <STEP_LINES_EXPR><VALUE>1</VALUE></STEP_LINES_EXPR>
    </REPORT_WRAP></ROOT>)",
                      placed(Wrap)));
  WrapTo->setToColExpr(nullptr);
  Wrap->setAfterPhrase(nullptr);
  Wrap->setWithNoWrapWord(T.word("NO", 93, 58));
  EXPECT_TRUE(sameXML(R"(<ROOT><REPORT_WRAP>
      <STEP_LINES_EXPR><VALUE>1</VALUE></STEP_LINES_EXPR>
      <NO_WRAP_OPTION>TRUE</NO_WRAP_OPTION>
    </REPORT_WRAP></ROOT>)",
                      placed(Wrap)));

  // MULTIPLE PAGE with NO.
  auto *Multiple = T.on<ClauseMultiple>(94, 12, 30);
  Multiple->setNoWord(T.word("no", 94, 21));
  EXPECT_TRUE(sameXML(located(R"(<ROOT><REPORT_MULTIPLE @(94,12,30)>
      <NO_OPTION @(94,21,22)>TRUE</NO_OPTION></REPORT_MULTIPLE></ROOT>)"),
                      placed(Multiple, true)));

  // SIGN: only the LEADING word is written, as "OPTION"; a TRAILING word
  // is not, though both literals are.
  auto *Sign = T.on<ClauseReportSign>(95, 12, 50);
  Sign->setLeadingWord(T.word("Leading", 95, 17));
  Sign->setLeadingLiteral(T.text("+", 95, 25));
  Sign->setTrailingWord(T.word("TRAILING", 95, 30));
  Sign->setTrailingLiteral(T.text("-", 95, 39));
  EXPECT_TRUE(sameXML(R"(<ROOT><REPORT_SIGN>
      <OPTION>Leading</OPTION>
      <LEADING_LITERAL><VALUE>+</VALUE></LEADING_LITERAL>
      <TRAILING_LITERAL><VALUE>-</VALUE></TRAILING_LITERAL>
    </REPORT_SIGN></ROOT>)",
                      placed(Sign)));
  auto *Trailing = T.on<ClauseReportSign>(96, 12, 30);
  Trailing->setTrailingWord(T.word("TRAILING", 96, 17));
  EXPECT_TRUE(sameXML("<ROOT><REPORT_SIGN/></ROOT>", placed(Trailing)));

  // STYLE bold WHEN sw-on, and STYLE NORMAL: the NORMAL word is wrapped in
  // the list's tag.
  auto *Style = T.on<ClauseRddStyle>(97, 12, 40);
  Style->addStyleName(T.word("bold", 97, 18));
  Style->addStyleName(T.word("red", 97, 23));
  auto *Cond = T.on<ConditionNameCondition>(97, 32, 36);
  Cond->setConditionName(T.ident("sw-on", 97, 32));
  Style->setWhenCondition(Cond);
  EXPECT_TRUE(sameXML(R"(<ROOT><REPORT_STYLE>
      <STYLENAME_LIST size="2" name="WordList"><WORD>BOLD</WORD><WORD>RED</WORD></STYLENAME_LIST>
      <WHEN_CONDITION><COND_NAME_CONDITION><OPERAND>
       <DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>sw-on</QUALIFIED></DATA_IDENTIFIER>
      </OPERAND></COND_NAME_CONDITION></WHEN_CONDITION>
    </REPORT_STYLE></ROOT>)",
                      placed(Style)));
  auto *Normal = T.on<ClauseRddStyle>(98, 12, 30);
  Normal->setNormalWord(T.word("normal", 98, 18));
  EXPECT_TRUE(sameXML(located(R"(<ROOT><REPORT_STYLE @(98,12,30)>
      <STYLENAME_LIST @(98,18,23)><WORD @(98,18,23)>NORMAL</WORD></STYLENAME_LIST>
    </REPORT_STYLE></ROOT>)"),
                      placed(Normal, true)));
}

//===----------------------------------------------------------------------===//
// Impossible kinds end the run, before any child is written.
//===----------------------------------------------------------------------===//

TEST(ReportClauseDeathTest, UnknownKindsAbort) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  ReportTree T;
  ReportEmitter E;
  auto *After = T.on<ClausePresentAfter>(1, 1, 10); // RPT_AFT_NONE
  After->setAfterWord(T.word("AFTER", 1, 1));
  EXPECT_DEATH(E.visit(After),
               "lib/Visitor/XMLOstrel/DescriptionReport.cpp:[0-9]+: virtual void "
               "korvid::XMLOstrel::visit\\(korvid::ClausePresentAfter\\*\\): "
               "Assertion `0 && \"impossible\"' failed");
  After->setAfterType(static_cast<RptPresentAfterType>(5));
  EXPECT_DEATH(E.visit(After), "ClausePresentAfter.*Assertion");

  auto *When = T.on<ClausePresentWhen>(2, 1, 10); // RPT_WHEN_NONE
  When->setWhenWord(T.word("WHEN", 2, 1));
  EXPECT_DEATH(E.visit(When),
               "lib/Visitor/XMLOstrel/DescriptionReport.cpp:[0-9]+: virtual void "
               "korvid::XMLOstrel::visit\\(korvid::ClausePresentWhen\\*\\): "
               "Assertion `0 && \"impossible\"' failed");
  When->setWhenType(static_cast<RptPresentWhenType>(6));
  EXPECT_DEATH(E.visit(When), "ClausePresentWhen.*Assertion");

  auto *Arith = T.on<SourceArithExpr>(3, 1, 10); // ARITH_EXPR_NONE
  Arith->setOp1(T.word("+", 3, 3));
  EXPECT_DEATH(E.visit(Arith),
               "lib/Visitor/XMLOstrel/DescriptionReport.cpp:[0-9]+: virtual void "
               "korvid::XMLOstrel::visit\\(korvid::SourceArithExpr\\*\\): "
               "Assertion `0 && \"impossible\"' failed");
}

} // namespace
