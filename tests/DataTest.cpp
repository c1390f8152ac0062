//===- tests/DataTest.cpp - Data division, data entries, file entries -----===//

#include "TreeBuilder.h"
#include "EmitterHarness.h"
#include "XMLCompare.h"
#include "korvid/XMLOstrel.h"

#include <tinyxml2.h>

#include <string>
#include <vector>

using namespace korvid;
using korvid::test::sameXML;
using korvid::test::TreeBuilder;
using tinyxml2::XMLElement;

namespace {

using DataEmitter = korvid::test::TestEmitter;
using korvid::test::placed;

/// The text of the first \p Tag child of the element that visiting \p D
/// leaves in the slot ("<none>" when there is no such child).
std::string childText(DataDescription *D, const char *Tag) {
  DataEmitter E;
  E.visit(D);
  XMLElement *C = E.handler().getRetElement()->FirstChildElement(Tag);
  if (!C)
    return "<none>";
  return C->GetText() ? C->GetText() : "";
}

struct DataTree : TreeBuilder {
  /// An ordinary entry at columns 8-40 of \p Line, level word at column 8
  /// and name at column 11.
  ExDataDescription *entry(const char *Level, int Number, const char *Name,
                           uint32_t Line, uint32_t Id) {
    auto *D = at<ExDataDescription>(Line, 8, Line, 40);
    D->setLevelNum(word(Level, Line, 8));
    D->setLevelNum(Number);
    if (Name)
      D->setDataName(word(Name, Line, 11));
    D->setID(Id);
    return D;
  }
  DataIdentifierExpression *ident(const std::string &Name, uint32_t Line,
                                  uint32_t Col) {
    Word *W = word(Name, Line, Col);
    uint32_t End = W->getEndCharPos();
    auto *I = at<DataIdentifierExpression>(Line, Col, Line, End);
    I->setName(at<QualifiedWord>(Line, Col, Line, End, nullptr, W));
    return I;
  }
  NumericLiteralExpression *number(const std::string &Text, uint32_t Line,
                                   uint32_t Col) {
    auto *N = at<NumericLiteralExpression>(
        Line, Col, Line, Col + static_cast<uint32_t>(Text.size()) - 1);
    N->setData(Text);
    return N;
  }
  NonNumericLiteralExpression *text(const std::string &Text, uint32_t Line,
                                    uint32_t Col) {
    auto *N = at<NonNumericLiteralExpression>(
        Line, Col, Line, Col + static_cast<uint32_t>(Text.size()) + 1);
    N->setData(Text);
    return N;
  }
};

/// Adds \p Name to \p Clause's records, resolved to \p Target.
void addResolvedRecord(ClauseDataRecord *Clause, DataIdentifierExpression *Name,
                      ExDataDescription *Target) {
  Name->setTarget(Target);
  Clause->addDataRecord(Name);
}

//===----------------------------------------------------------------------===//
// Sections and the flattening of the entry hierarchy
//===----------------------------------------------------------------------===//

TEST(DataDivision, SectionsHoldTheirEntriesFlatWithExecBlocksAmongThem) {
  DataTree T;
  auto *Div = T.at<DataDivision>(1, 8, 30, 40);

  auto *FS = T.at<FileSection>(2, 8, 5, 40);
  auto *FD = T.at<FileDescription>(3, 8, 5, 40);
  FD->setFDWord(T.word("FD", 3, 8));
  FD->setFileName(T.word("F1", 3, 12));
  auto *Rec = T.entry("01", 1, "F1-REC", 4, 1);
  Rec->setSize(80);
  Rec->setUsageTy(USAGE_DISPLAY);
  Rec->setDataCategory(DC_ALPHANUMERIC);
  FD->addOrdered(Rec);
  FS->addFileDescription(FD);
  FS->addFileDescription(nullptr);

  // 01 A / 05 B / 10 C / 05 D, an EXEC block, 77 E, and entries of kinds
  // that are not written.
  auto *WS = T.at<WorkingSection>(6, 8, 15, 40);
  auto *A = T.entry("01", 1, "A", 7, 2);
  auto *B = T.entry("05", 5, "B", 8, 3);
  auto *C = T.entry("10", 10, "C", 9, 4);
  auto *D = T.entry("05", 5, "D", 10, 5);
  A->setSize(6);
  B->setSize(5);
  C->setSize(5);
  D->setSize(1);
  D->setOffSet(5);
  for (ExDataDescription *X : {A, B, C, D})
    X->setUsageTy(USAGE_DISPLAY);
  D->setDataCategory(DC_NUMERIC);
  A->addChild(B);
  B->addChild(C);
  A->addChild(D);
  auto *Exec = T.at<ExecData>(11, 8, 11, 40, DESC_EXEC_SQL_INCLUDE);
  Exec->setSqlStr("EXEC SQL INCLUDE SQLCA END-EXEC");
  auto *E = T.entry("77", 77, "E", 13, 6);
  E->setSize(4);
  E->setUsageTy(USAGE_COMP);
  WS->addOrdered(A);
  WS->addOrdered(Exec);
  WS->addOrdered(T.at<IDMSDataDescription>(12, 8, 12, 40));
  WS->addOrdered(E);
  WS->addOrdered(T.at<StrReferDescription>(14, 8, 14, 40));
  WS->addOrdered(nullptr);
  WS->addOrdered(T.at<DataDescription>(14, 8, 14, 40, DESC_NONE));
  WS->addOrdered(T.at<DataDescription>(15, 8, 15, 40, DESC_REPORT));

  auto *LS = T.at<LocalSection>(16, 8, 16, 30);
  auto *LK = T.at<LinkageSection>(18, 8, 19, 40);
  // Computed values the tree left at zero are still written.
  LK->addOrdered(T.entry("01", 1, "L", 19, 7));
  // Visited first, but written where it stands in the source.
  auto *RS = T.at<ReportSection>(25, 8, 25, 30);

  Div->setSectionReport(RS);
  Div->setSectionFile(FS);
  Div->setSectionWork(WS);
  Div->setSectionLocal(LS);
  Div->setSectionLink(LK);

  EXPECT_TRUE(sameXML(R"(
<ROOT><DATA_DIVISION>
  <FILE_SECTION><FILE_ENTRY><FILE_DESC>
    <TYPE>FD</TYPE><NAME>F1</NAME>
    <DATA_DESC_ENTRY><ID>1</ID><SIZE>640</SIZE><OFFSET>0</OFFSET>
      <RULE>EBC_ASC</RULE><LEVEL>1</LEVEL><NAME>F1-REC</NAME></DATA_DESC_ENTRY>
  </FILE_DESC></FILE_ENTRY></FILE_SECTION>
  <WORKING_STORAGE_SECTION>
    <DATA_DESC_ENTRY><ID>2</ID><SIZE>48</SIZE><OFFSET>0</OFFSET>
      <RULE>EBC_ASC</RULE><LEVEL>1</LEVEL><NAME>A</NAME></DATA_DESC_ENTRY>
    <DATA_DESC_ENTRY><ID>3</ID><SIZE>40</SIZE><OFFSET>0</OFFSET>
      <RULE>EBC_ASC</RULE><LEVEL>5</LEVEL><NAME>B</NAME></DATA_DESC_ENTRY>
    <DATA_DESC_ENTRY><ID>4</ID><SIZE>40</SIZE><OFFSET>0</OFFSET>
      <RULE>EBC_ASC</RULE><LEVEL>10</LEVEL><NAME>C</NAME></DATA_DESC_ENTRY>
    <DATA_DESC_ENTRY><ID>5</ID><SIZE>8</SIZE><OFFSET>40</OFFSET>
      <RULE>U_ZONED</RULE><LEVEL>5</LEVEL><NAME>D</NAME></DATA_DESC_ENTRY>
    <EXEC_STATEMENT><TYPE>SQL</TYPE><CONTENT>INCLUDE SQLCA</CONTENT></EXEC_STATEMENT>
    <DATA_DESC_ENTRY><ID>6</ID><SIZE>32</SIZE><OFFSET>0</OFFSET>
      <RULE>COPY</RULE><LEVEL>77</LEVEL><NAME>E</NAME></DATA_DESC_ENTRY>
  </WORKING_STORAGE_SECTION>
  <LOCAL_STORAGE_SECTION/>
  <LINKAGE_SECTION>
    <DATA_DESC_ENTRY><ID>7</ID><SIZE>0</SIZE><OFFSET>0</OFFSET>
      <RULE>UNDEFINED</RULE><LEVEL>1</LEVEL><NAME>L</NAME></DATA_DESC_ENTRY>
  </LINKAGE_SECTION>
  <REPORT_SECTION/>
</DATA_DIVISION></ROOT>)",
                      placed(Div)));
}

TEST(DataDivision, ChildListIsTheEntryThenItsDescendantsInPreOrder) {
  DataTree T;
  // Located in reverse, so that only the walk can give the order.
  auto *A = T.entry("01", 1, "A", 9, 1);
  auto *B = T.entry("05", 5, "B", 8, 2);
  auto *C = T.entry("10", 10, "C", 7, 3);
  auto *D = T.entry("05", 5, "D", 6, 4);
  A->addChild(B);
  B->addChild(C);
  A->addChild(nullptr);
  A->addChild(D);
  DataEmitter E;
  std::list<DataDescription *> All = E.getChildList(A);
  EXPECT_EQ(All, (std::list<DataDescription *>{A, B, C, nullptr, D}));
  EXPECT_EQ(E.getChildList(C), (std::list<DataDescription *>{C}));

  // The flattened entries all stand directly under the section.
  auto *WS = T.at<WorkingSection>(5, 8, 9, 40);
  WS->addOrdered(A);
  E.visit(WS);
  XMLElement *Section = E.handler().getRetElement();
  ASSERT_STREQ(Section->Name(), "WORKING_STORAGE_SECTION");
  int Entries = 0;
  for (XMLElement *X = Section->FirstChildElement(); X;
       X = X->NextSiblingElement()) {
    EXPECT_STREQ(X->Name(), "DATA_DESC_ENTRY");
    EXPECT_EQ(X->FirstChildElement("DATA_DESC_ENTRY"), nullptr);
    ++Entries;
  }
  EXPECT_EQ(Entries, 4);
}

TEST(DataDivision, FileAndReportEntriesAreWrappedAtTheirDescription) {
  DataTree T;
  auto *Div = T.at<DataDivision>(1, 8, 9, 40);
  auto *FS = T.at<FileSection>(2, 8, 3, 40);
  auto *FD = T.at<FileDescription>(3, 8, 3, 40);
  FD->setFDWord(T.word("FD", 3, 8));
  FS->addFileDescription(nullptr);
  FS->addFileDescription(FD);
  auto *RS = T.at<ReportSection>(8, 8, 9, 40);
  auto *RD = T.at<ReportDescription>(9, 8, 9, 40);
  RD->setRdWord(T.word("RD", 9, 8));
  RS->addReportDescription(RD);
  RS->addReportDescription(nullptr);
  Div->setSectionFile(FS);
  Div->setSectionReport(RS);
  EXPECT_TRUE(sameXML(R"(
<ROOT>
  <DATA_DIVISION lbl="1" lbc="8" lel="9" lec="40" lblo="1" lbco="8" lelo="9"
                 leco="40" lfid="1" lfido="1">
    <FILE_SECTION lbl="2" lbc="8" lel="3" lec="40" lblo="2" lbco="8" lelo="3"
                  leco="40" lfid="1" lfido="1">
      <FILE_ENTRY lbl="3" lbc="8" lel="3" lec="40" lblo="3" lbco="8" lelo="3"
                  leco="40" lfid="1" lfido="1">
        <FILE_DESC lbl="3" lbc="8" lel="3" lec="40" lblo="3" lbco="8"
                   lelo="3" leco="40" lfid="1" lfido="1">
          <TYPE lbl="3" lbc="8" lel="3" lec="9" lblo="3" lbco="8" lelo="3"
                leco="9" lfid="1" lfido="1">FD</TYPE>
        </FILE_DESC>
      </FILE_ENTRY>
    </FILE_SECTION>
    <REPORT_SECTION lbl="8" lbc="8" lel="9" lec="40" lblo="8" lbco="8"
                    lelo="9" leco="40" lfid="1" lfido="1">
      <REPORT_ENTRY lbl="9" lbc="8" lel="9" lec="40" lblo="9" lbco="8"
                    lelo="9" leco="40" lfid="1" lfido="1">
        <REPORT_DESC lbl="9" lbc="8" lel="9" lec="40" lblo="9" lbco="8"
                     lelo="9" leco="40" lfid="1" lfido="1">
          <TYPE lbl="9" lbc="8" lel="9" lec="9" lblo="9" lbco="8" lelo="9"
                leco="9" lfid="1" lfido="1">RD</TYPE>
        </REPORT_DESC>
      </REPORT_ENTRY>
    </REPORT_SECTION>
  </DATA_DIVISION>
</ROOT>)",
                      placed(Div, /*Located=*/true)));
}

//===----------------------------------------------------------------------===//
// The data description entry
//===----------------------------------------------------------------------===//

TEST(DataEntry, StorageRuleFollowsUsageSignAndCategory) {
  struct Case {
    int Usage;
    bool Signed;
    DataCategory Category;
    const char *Rule;
  };
  const Case Cases[] = {
      {USAGE_BINARY, true, DC_NUMERIC, "COPY"},
      {USAGE_COMP, false, DC_NUMERIC, "COPY"},
      // Floating point is copied like binary.
      {USAGE_COMP1, false, DC_NONE, "COPY"},
      {USAGE_COMP2, true, DC_NONE, "COPY"},
      {USAGE_COMP4, true, DC_NUMERIC, "COPY"},
      {USAGE_COMP5, false, DC_NUMERIC, "COPY"},
      {USAGE_COMP3, true, DC_NUMERIC, "PACKED"},
      {USAGE_COMP3, false, DC_NUMERIC, "U_PACKED"},
      {USAGE_PACKED_DECIMAL, true, DC_NONE, "PACKED"},
      {USAGE_PACKED_DECIMAL, false, DC_NONE, "U_PACKED"},
      {USAGE_DISPLAY, true, DC_NUMERIC, "ZONED"},
      {USAGE_DISPLAY, false, DC_NUMERIC, "U_ZONED"},
      {USAGE_DISPLAY, true, DC_NUMERIC_EDITED, "EBC_ASC"},
      {USAGE_DISPLAY, false, DC_ALPHANUMERIC, "EBC_ASC"},
      {USAGE_DISPLAY1, false, DC_DBCS, "GRAPHIC"},
      {USAGE_NATIONAL, true, DC_NATIONAL, "GRAPHIC"},
      {USAGE_NONE, true, DC_NUMERIC, "UNDEFINED"},
      {USAGE_INDEX, false, DC_INDEX, "UNDEFINED"},
      {USAGE_POINTER, false, DC_POINTER, "UNDEFINED"},
      {USAGE_PROC_POINTER, false, DC_POINTER, "UNDEFINED"},
      {USAGE_FUNC_POINTER, false, DC_POINTER, "UNDEFINED"},
      {USAGE_BIT, false, DC_BOOLEAN, "UNDEFINED"},
      {17, true, DC_NUMERIC, "UNDEFINED"},
      {31, true, DC_NUMERIC, "UNDEFINED"},
  };
  DataTree T;
  for (const Case &K : Cases) {
    auto *D = T.entry("05", 5, "X", 3, 1);
    D->setUsageTy(static_cast<UsageType>(K.Usage));
    D->setPictureSign(K.Signed);
    D->setDataCategory(K.Category);
    EXPECT_EQ(childText(D, "RULE"), K.Rule)
        << "usage " << K.Usage << ", signed " << K.Signed << ", category "
        << K.Category;
  }
}

TEST(DataEntry, UsageNameShortensOnlyTheLongForms) {
  const std::pair<const char *, const char *> Names[] = {
      {"COMPUTATIONAL", "COMP"},
      {"COMPUTATIONAL-1", "COMP1"},
      {"COMPUTATIONAL-2", "COMP2"},
      {"COMPUTATIONAL-3", "COMP3"},
      {"COMPUTATIONAL-4", "COMP4"},
      {"COMPUTATIONAL-5", "COMP5"},
      {"PROCEDURE-POINTER", "PROC-POINTER"},
      {"FUNCTION-POINTER", "FUNC-POINTER"},
      {"DISPLAY-1", "DISPLAY1"},
      // The short forms keep their hyphen: COMP-3 is not COMP3.
      {"COMP-1", "COMP-1"},
      {"COMP-3", "COMP-3"},
      {"COMP", "COMP"},
      {"BINARY", "BINARY"},
      {"PACKED-DECIMAL", "PACKED-DECIMAL"},
      {"INDEX", "INDEX"},
      {"POINTER", "POINTER"},
      {"NATIONAL", "NATIONAL"},
      {"DISPLAY", "DISPLAY"},
      // Whole words only, and case matters.
      {"computational-3", "computational-3"},
      {"COMPUTATIONAL-33", "COMPUTATIONAL-33"},
      {"", ""},
  };
  for (const auto &N : Names)
    EXPECT_EQ(DataEmitter::usageName(N.first), N.second) << N.first;

  // The entry writes the normalised word, not the word as written.
  DataTree T;
  auto *Long = T.entry("05", 5, "P", 3, 1);
  auto *LongUsage = T.at<ClauseUsage>(3, 20, 3, 34);
  LongUsage->setUsageDescWord(T.word("Computational-3", 3, 20));
  Long->setUsage(LongUsage);
  auto *Short = T.entry("05", 5, "Q", 4, 2);
  auto *ShortUsage = T.at<ClauseUsage>(4, 20, 4, 25);
  ShortUsage->setUsageDescWord(T.word("comp-3", 4, 20));
  Short->setUsage(ShortUsage);
  EXPECT_EQ(childText(Long, "USAGE"), "COMP3");
  EXPECT_EQ(childText(Short, "USAGE"), "COMP-3");
}

TEST(DataEntry, ComputedChildrenAreLocatedAtTheEntryAndWrittenInBits) {
  DataTree T;
  // 01 Rec-A PIC S9(5) Computational-3 SYNC
  //     SIGN leading trailing TYPEDEF STRONG      (written in RECS.cpy)
  auto *D = T.at<ExDataDescription>(5, 8, 6, 50);
  T.copied(D, "RECS.cpy", 2, 8, 3, 50);
  D->setLevelNum(T.word("01", 5, 8));
  D->setLevelNum(1);
  D->setDataName(T.word("Rec-A", 5, 11));
  D->setID(42);
  // Sizes past 2^32 bits: the product is not taken in 32 bits.
  D->setSize(805306368u);
  D->setOffSet(4000000000u);
  D->setUsageTy(USAGE_COMP3);
  D->setPictureSign(true);
  auto *Pic = T.at<ClausePicture>(5, 17, 5, 25);
  Pic->setCharStringWord(T.word("S9(5)", 5, 21));
  D->setPicture(Pic);
  auto *Usage = T.at<ClauseUsage>(5, 27, 5, 41);
  Usage->setUsageDescWord(T.word("Computational-3", 5, 27));
  D->setUsage(Usage);
  D->setSynchronized(T.at<ClauseSynchronized>(5, 43, 5, 46));
  auto *Sign = T.at<ClauseSign>(6, 12, 6, 32);
  Sign->setLeadingWord(T.word("leading", 6, 17));
  Sign->setTrailingWord(T.word("trailing", 6, 25));
  D->setSign(Sign);
  auto *TypeDef = T.at<ClauseTypeDef>(6, 34, 6, 47);
  TypeDef->setStrongWord(T.word("STRONG", 6, 42));
  D->setTypeDef(TypeDef);

  EXPECT_TRUE(sameXML(R"(
<ROOT>
  <DATA_DESC_ENTRY lbl="5" lbc="8" lel="6" lec="50" lblo="2" lbco="8"
                   lelo="3" leco="50" lfid="1" lfido="2">
    <ID lbl="5" lbc="8" lel="6" lec="50" lblo="2" lbco="8" lelo="3" leco="50"
        lfid="1" lfido="2">42</ID>
    <SIZE lbl="5" lbc="8" lel="6" lec="50" lblo="2" lbco="8" lelo="3"
          leco="50" lfid="1" lfido="2">6442450944</SIZE>
    <OFFSET lbl="5" lbc="8" lel="6" lec="50" lblo="2" lbco="8" lelo="3"
            leco="50" lfid="1" lfido="2">32000000000</OFFSET>
    <RULE lbl="5" lbc="8" lel="6" lec="50" lblo="2" lbco="8" lelo="3"
          leco="50" lfid="1" lfido="2">PACKED</RULE>
    <LEVEL lbl="5" lbc="8" lel="5" lec="9" lblo="5" lbco="8" lelo="5" leco="9"
           lfid="1" lfido="1">1</LEVEL>
    <NAME lbl="5" lbc="11" lel="5" lec="15" lblo="5" lbco="11" lelo="5"
          leco="15" lfid="1" lfido="1">Rec-A</NAME>
    <PICTURE lbl="5" lbc="21" lel="5" lec="25" lblo="5" lbco="21" lelo="5"
             leco="25" lfid="1" lfido="1">S9(5)</PICTURE>
    <USAGE lbl="5" lbc="27" lel="5" lec="41" lblo="5" lbco="27" lelo="5"
           leco="41" lfid="1" lfido="1">COMP3</USAGE>
    <SYNCHRONIZED lbl="5" lbc="43" lel="5" lec="46" lblo="5" lbco="43"
                  lelo="5" leco="46" lfid="1" lfido="1">NONE</SYNCHRONIZED>
    <SIGN lbl="6" lbc="17" lel="6" lec="23" lblo="6" lbco="17" lelo="6"
          leco="23" lfid="1" lfido="1">leading</SIGN>
    <SIGN lbl="6" lbc="25" lel="6" lec="32" lblo="6" lbco="25" lelo="6"
          leco="32" lfid="1" lfido="1">trailing</SIGN>
    <TYPEDEF lbl="6" lbc="34" lel="6" lec="47" lblo="6" lbco="34" lelo="6"
             leco="47" lfid="1" lfido="1">TRUE</TYPEDEF>
    <TYPEDEF_STRONG lbl="6" lbc="42" lel="6" lec="47" lblo="6" lbco="42"
                    lelo="6" leco="47" lfid="1" lfido="1">TRUE</TYPEDEF_STRONG>
  </DATA_DESC_ENTRY>
</ROOT>)",
                      placed<DataDescription>(D, /*Located=*/true)));
}

TEST(DataEntry, ChildrenFollowTheirFixedOrderWhenLocationsTie) {
  // Every node at one position: ordered insertion then keeps the order in
  // which the entry writes its children.
  DataTree T;
  auto Here = [&](auto *N) {
    N->setLocation(T.P.range(T.MainFile, 3, 8, 3, 60));
    return N;
  };
  auto *D = Here(T.entry("05", 5, nullptr, 3, 9));
  D->setDataName(T.word("X", 3, 8));
  D->setSize(1);
  D->setUsageTy(USAGE_DISPLAY);
  auto *Redef = Here(T.at<ClauseRedefines>(0, 0, 0, 0));
  Redef->setData(Here(T.ident("Y", 3, 8)));
  D->setRedefines(Redef);
  D->setBlankZero(Here(T.at<ClauseBlankWhenZero>(0, 0, 0, 0)));
  D->setExternal(Here(T.at<ClauseExternal>(0, 0, 0, 0)));
  D->setGlobal(Here(T.at<ClauseGlobal>(0, 0, 0, 0)));
  auto *Just = Here(T.at<ClauseJustified>(0, 0, 0, 0));
  Just->setRightWord(T.word("RIGHT", 3, 8));
  D->setJustified(Just);

  auto *Occurs = Here(T.at<ClauseOccurs>(0, 0, 0, 0));
  auto *K = Here(T.at<Key>(0, 0, 0, 0));
  K->setAscDscWord(T.word("ASCENDING", 3, 8));
  K->addData(Here(T.ident("K1", 3, 8)));
  Occurs->addKey(K);
  Occurs->setMin(Here(T.number("1", 3, 8)));
  Occurs->setMax(Here(T.number("9", 3, 8)));
  Occurs->setOdoName(Here(T.ident("N", 3, 8)));
  auto *Idx = Here(T.at<Index>(0, 0, 0, 0));
  Idx->addData(Here(T.ident("I1", 3, 8)));
  Occurs->setIndexed(Idx);
  D->setOccurs(Occurs);

  auto *Pic = Here(T.at<ClausePicture>(0, 0, 0, 0));
  Pic->setCharStringWord(T.word("X", 3, 8));
  D->setPicture(Pic);
  auto *Sign = Here(T.at<ClauseSign>(0, 0, 0, 0));
  Sign->setLeadingWord(T.word("LEADING", 3, 8));
  Sign->setTrailingWord(T.word("TRAILING", 3, 8));
  D->setSign(Sign);
  auto *Sync = Here(T.at<ClauseSynchronized>(0, 0, 0, 0));
  Sync->setLeftRightWord(T.word("LEFT", 3, 8));
  D->setSynchronized(Sync);
  auto *Based = Here(T.at<ClauseBasedOn>(0, 0, 0, 0));
  Based->setData(Here(T.ident("PTR", 3, 8)));
  D->setBasedOn(Based);

  auto *CT = Here(T.at<ClauseCharacterType>(0, 0, 0, 0));
  CT->setModeType(T.word("MODE-1", 3, 8));
  CT->setByMnemonicName(T.word("BYM", 3, 8));
  CT->setMnemonicName(T.word("TYM", 3, 8));
  CT->addMnemonicName1(T.word("PM1", 3, 8));
  CT->setDataName1(Here(T.ident("D1", 3, 8)));
  CT->addMnemonicName2(T.word("PM2", 3, 8));
  CT->setDataName2(Here(T.ident("D2", 3, 8)));
  D->setCharacterType(CT);

  auto *PP = Here(T.at<ClausePrintingPosition>(0, 0, 0, 0));
  PP->setPositionExpr(Here(T.number("3", 3, 8)));
  PP->setUnitName(T.word("unit-a", 3, 8));
  D->setPrintingPos(PP);
  auto *FT = Here(T.at<ClauseFujitsuType>(0, 0, 0, 0));
  FT->setTypeName(T.word("my-type", 3, 8));
  D->setFujitsuType(FT);
  auto *TD = Here(T.at<ClauseTypeDef>(0, 0, 0, 0));
  TD->setStrongWord(T.word("STRONG", 3, 8));
  D->setTypeDef(TD);
  auto *Usage = Here(T.at<ClauseUsage>(0, 0, 0, 0));
  Usage->setUsageDescWord(T.word("DISPLAY", 3, 8));
  D->setUsage(Usage);
  auto *Value = Here(T.at<ClauseValue>(0, 0, 0, 0));
  auto *PV = Here(T.at<PhraseValue>(0, 0, 0, 0));
  PV->setLiteral1(Here(T.text("A", 3, 8)));
  PV->setLiteral2(Here(T.text("Z", 3, 8)));
  Value->addPhraseVal(PV);
  D->setValue(Value);

  EXPECT_TRUE(sameXML(R"(
<ROOT><DATA_DESC_ENTRY>
  <ID>9</ID><SIZE>8</SIZE><OFFSET>0</OFFSET><RULE>EBC_ASC</RULE>
  <LEVEL>5</LEVEL><NAME>X</NAME>
  <REDEFINES><DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>Y</QUALIFIED></DATA_IDENTIFIER></REDEFINES>
  <BLANK_WHEN_ZERO>TRUE</BLANK_WHEN_ZERO>
  <EXTERNAL>TRUE</EXTERNAL>
  <GLOBAL>TRUE</GLOBAL>
  <JUSTIFIED>RIGHT</JUSTIFIED>
  <OCCURS>
    <KEY size="1" name="KeyList"><OCCURS_KEY>
      <ORDER_TYPE>ASCENDING</ORDER_TYPE>
      <DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>K1</QUALIFIED></DATA_IDENTIFIER>
    </OCCURS_KEY></KEY>
    <MIN><VALUE>1</VALUE></MIN>
    <MAX><VALUE>9</VALUE></MAX>
    <DEPENDING_ON><DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>N</QUALIFIED></DATA_IDENTIFIER></DEPENDING_ON>
    <INDEX><INDEX_ENTRY><DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>I1</QUALIFIED></DATA_IDENTIFIER></INDEX_ENTRY></INDEX>
  </OCCURS>
  <PICTURE>X</PICTURE>
  <SIGN>LEADING</SIGN>
  <SIGN>TRAILING</SIGN>
  <SYNCHRONIZED>LEFT</SYNCHRONIZED>
  <BASE_DON><DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>PTR</QUALIFIED></DATA_IDENTIFIER></BASE_DON>
  <CHARACTER_TYPE>
    <MODE>MODE-1</MODE>
    <BY_MNEMONIC_NAME>BYM</BY_MNEMONIC_NAME>
    <TYPE_MNEMONIC_NAME>TYM</TYPE_MNEMONIC_NAME>
    <PRINTING_MODE_NAME size="1" name="WordList"><WORD>PM1</WORD></PRINTING_MODE_NAME>
    <DEPENDING_ON><DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>D1</QUALIFIED></DATA_IDENTIFIER></DEPENDING_ON>
    <OR_PRINTING_MODE_NAME size="1" name="WordList"><WORD>PM2</WORD></OR_PRINTING_MODE_NAME>
    <OR_DEPENDING_ON><DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>D2</QUALIFIED></DATA_IDENTIFIER></OR_DEPENDING_ON>
  </CHARACTER_TYPE>
  <PRINTING_POSITION_EXPR><VALUE>3</VALUE></PRINTING_POSITION_EXPR>
  <PRINTING_POSITION_UNITNAME><WORD>UNIT-A</WORD></PRINTING_POSITION_UNITNAME>
  <FUJITSU_TYPE><WORD>MY-TYPE</WORD></FUJITSU_TYPE>
  <TYPEDEF>TRUE</TYPEDEF>
  <TYPEDEF_STRONG>TRUE</TYPEDEF_STRONG>
  <USAGE>DISPLAY</USAGE>
  <VALUES><VALUE_ENTRY><MIN><VALUE>A</VALUE></MIN><MAX><VALUE>Z</VALUE></MAX></VALUE_ENTRY></VALUES>
</DATA_DESC_ENTRY></ROOT>)",
                      placed<DataDescription>(D)));
}

TEST(DataEntry, ClausesWithoutTheirWordsAndUnwrittenClausesLeaveNothing) {
  DataTree T;
  // A FILLER entry with no level word: the level number alone is not
  // written. Each clause below lacks the word or item it would write.
  auto *D = T.at<ExDataDescription>(3, 8, 3, 60);
  D->setLevelNum(66);
  D->setID(3);
  D->setJustified(T.at<ClauseJustified>(3, 10, 3, 13)); // JUSTIFIED alone
  D->setSign(T.at<ClauseSign>(3, 15, 3, 18));
  D->setRedefines(T.at<ClauseRedefines>(3, 20, 3, 28));
  D->setBasedOn(T.at<ClauseBasedOn>(3, 20, 3, 28));
  D->setPicture(T.at<ClausePicture>(3, 30, 3, 32));
  D->setPrintingPos(T.at<ClausePrintingPosition>(3, 30, 3, 32));
  D->setFujitsuType(T.at<ClauseFujitsuType>(3, 30, 3, 32));
  D->setUsage(T.at<ClauseUsage>(3, 34, 3, 38));
  D->setTypeDef(T.at<ClauseTypeDef>(3, 40, 3, 46)); // TYPEDEF without STRONG
  // Read by nobody: never written.
  auto *Renames = T.at<ClauseRenames>(3, 48, 3, 60);
  Renames->setFromData(T.ident("R1", 3, 56));
  D->setRenames(Renames);
  auto *Date = T.at<ClauseDateFormat>(3, 48, 3, 60);
  Date->setPatternWord(T.word("YYXXXX", 3, 54));
  D->setDateFormat(Date);
  auto *Group = T.at<ClauseGroupUsage>(3, 48, 3, 60);
  Group->setUsageWord(T.word("NATIONAL", 3, 52));
  D->setGroupUsage(Group);

  // JUSTIFIED RIGHT as written; SIGN with one word gives one SIGN.
  auto *R = T.entry("05", 5, "J", 4, 4);
  auto *Just = T.at<ClauseJustified>(4, 13, 4, 27);
  Just->setRightWord(T.word("Right", 4, 23));
  R->setJustified(Just);
  auto *Sign = T.at<ClauseSign>(4, 29, 4, 50);
  Sign->setTrailingWord(T.word("TRAILING", 4, 34));
  Sign->setSeparateWord(T.word("SEPARATE", 4, 43));
  R->setSign(Sign);

  EXPECT_TRUE(sameXML(R"(
<ROOT><DATA_DESC_ENTRY>
  <ID>3</ID><SIZE>0</SIZE><OFFSET>0</OFFSET><RULE>UNDEFINED</RULE>
  <TYPEDEF>TRUE</TYPEDEF>
</DATA_DESC_ENTRY></ROOT>)",
                      placed<DataDescription>(D)));
  EXPECT_TRUE(sameXML(R"(
<ROOT><DATA_DESC_ENTRY>
  <ID>4</ID><SIZE>0</SIZE><OFFSET>0</OFFSET><RULE>UNDEFINED</RULE>
  <LEVEL>5</LEVEL><NAME>J</NAME><JUSTIFIED>Right</JUSTIFIED>
  <SIGN>TRAILING</SIGN>
</DATA_DESC_ENTRY></ROOT>)",
                      placed<DataDescription>(R)));
}

TEST(DataEntry, OtherEntryKindsAndClauseVisitsLeaveTheSlotAlone) {
  DataTree T;
  DataEmitter E;
  XMLElement *Before = E.handler().newRetElement("BEFORE");
  std::vector<DataDescription *> Kinds = {
      T.at<DataDescription>(1, 8, 1, 20, DESC_NONE),
      T.at<IDMSDataDescription>(1, 8, 1, 20),
      T.at<DataDescription>(1, 8, 1, 20, DESC_REPORT),
      T.at<StrReferDescription>(1, 8, 1, 20)};
  for (DataDescription *D : Kinds) {
    E.visit(D);
    EXPECT_EQ(E.handler().getRetElement(), Before) << D->getDescType();
  }
  // These clauses are read through their entry; their own visits write
  // nothing.
  E.visit(T.at<ClauseRenames>(1, 8, 1, 20));
  E.visit(T.at<ClauseDateFormat>(1, 8, 1, 20));
  E.visit(T.at<ClauseGroupUsage>(1, 8, 1, 20));
  E.visit(T.at<ClauseUsage>(1, 8, 1, 20));
  E.visit(T.at<ClauseSign>(1, 8, 1, 20));
  E.visit(T.at<ClauseValueOf>(1, 8, 1, 20));
  E.visit(T.at<ClauseReport>(1, 8, 1, 20));
  EXPECT_EQ(E.handler().getRetElement(), Before);
  EXPECT_EQ(Before->FirstChild(), nullptr);
}

TEST(DataEntry, OccursKeysIndexesAndValueRanges) {
  DataTree T;
  // 05 T OCCURS 1 TO 50 DEPENDING ON N
  //      ASCENDING KEY K1 K2 DESCENDING KEY K3 INDEXED BY I1 I2.
  auto *Tab = T.entry("05", 5, "T", 3, 1);
  auto *Occurs = T.at<ClauseOccurs>(3, 13, 4, 60);
  Occurs->setMin(T.number("1", 3, 20));
  Occurs->setMax(T.number("50", 3, 25));
  Occurs->setOdoName(T.ident("N", 3, 41));
  auto *Asc = T.at<Key>(4, 12, 4, 30);
  Asc->setAscDscWord(T.word("ascending", 4, 12));
  Asc->addData(T.ident("K1", 4, 26));
  Asc->addData(nullptr);
  Asc->addData(T.ident("K2", 4, 29));
  auto *Dsc = T.at<Key>(4, 32, 4, 45);
  Dsc->setAscDscWord(T.word("DESCENDING", 4, 32));
  Dsc->addData(T.ident("K3", 4, 47));
  Occurs->addKey(Asc);
  Occurs->addKey(nullptr);
  Occurs->addKey(Dsc);
  auto *Idx = T.at<Index>(4, 50, 4, 60);
  Idx->addData(T.ident("I1", 4, 61));
  Idx->addData(nullptr);
  Idx->addData(T.ident("I2", 4, 64));
  Occurs->setIndexed(Idx);
  Tab->setOccurs(Occurs);

  // 88 OK VALUE 1 THRU 5, 'Y'.
  auto *Cond = T.entry("88", 88, "OK", 5, 2);
  auto *Value = T.at<ClauseValue>(5, 14, 5, 40);
  auto *Range = T.at<PhraseValue>(5, 20, 5, 29);
  Range->setLiteral1(T.number("1", 5, 20));
  Range->setLiteral2(T.number("5", 5, 29));
  auto *Single = T.at<PhraseValue>(5, 32, 5, 34);
  Single->setLiteral1(T.text("Y", 5, 32));
  Value->addPhraseVal(Range);
  Value->addPhraseVal(nullptr);
  Value->addPhraseVal(Single);
  Cond->setValue(Value);

  EXPECT_TRUE(sameXML(R"(
<ROOT><DATA_DESC_ENTRY>
  <ID>1</ID><SIZE>0</SIZE><OFFSET>0</OFFSET><RULE>UNDEFINED</RULE>
  <LEVEL>5</LEVEL><NAME>T</NAME>
  <OCCURS>
    <MIN><VALUE>1</VALUE></MIN>
    <MAX><VALUE>50</VALUE></MAX>
    <DEPENDING_ON><DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>N</QUALIFIED></DATA_IDENTIFIER></DEPENDING_ON>
    <KEY size="3" name="KeyList">
      <OCCURS_KEY>
        <ORDER_TYPE>ascending</ORDER_TYPE>
        <DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>K1</QUALIFIED></DATA_IDENTIFIER>
        <DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>K2</QUALIFIED></DATA_IDENTIFIER>
      </OCCURS_KEY>
      <OCCURS_KEY>
        <ORDER_TYPE>DESCENDING</ORDER_TYPE>
        <DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>K3</QUALIFIED></DATA_IDENTIFIER>
      </OCCURS_KEY>
    </KEY>
    <INDEX>
      <INDEX_ENTRY><DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>I1</QUALIFIED></DATA_IDENTIFIER></INDEX_ENTRY>
      <INDEX_ENTRY><DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>I2</QUALIFIED></DATA_IDENTIFIER></INDEX_ENTRY>
    </INDEX>
  </OCCURS>
</DATA_DESC_ENTRY></ROOT>)",
                      placed<DataDescription>(Tab)));
  // A range has MIN and MAX, a single value MIN only.
  EXPECT_TRUE(sameXML(R"(
<ROOT><DATA_DESC_ENTRY>
  <ID>2</ID><SIZE>0</SIZE><OFFSET>0</OFFSET><RULE>UNDEFINED</RULE>
  <LEVEL>88</LEVEL><NAME>OK</NAME>
  <VALUES>
    <VALUE_ENTRY><MIN><VALUE>1</VALUE></MIN><MAX><VALUE>5</VALUE></MAX></VALUE_ENTRY>
    <VALUE_ENTRY><MIN><VALUE>Y</VALUE></MIN></VALUE_ENTRY>
  </VALUES>
</DATA_DESC_ENTRY></ROOT>)",
                      placed<DataDescription>(Cond)));

  // The key list spans from its first key to the end of its last.
  DataEmitter E;
  E.visit(Occurs);
  XMLElement *KeyList = E.handler().getRetElement()->FirstChildElement("KEY");
  ASSERT_NE(KeyList, nullptr);
  EXPECT_EQ(KeyList->UnsignedAttribute("lbl"), 4u);
  EXPECT_EQ(KeyList->UnsignedAttribute("lbc"), 12u);
  EXPECT_EQ(KeyList->UnsignedAttribute("lel"), 4u);
  EXPECT_EQ(KeyList->UnsignedAttribute("lec"), 45u);
}

//===----------------------------------------------------------------------===//
// EXEC blocks among the entries
//===----------------------------------------------------------------------===//

TEST(DataExec, ContentDropsTheClosingWordThenTheFirstTwoWords) {
  struct Case {
    DataDescType Kind;
    const char *Block;
    const char *Type;
    const char *Content;
  };
  const Case Cases[] = {
      // INCLUDE stays at the head: the cut is by position, not keyword.
      {DESC_EXEC_SQL_INCLUDE, "EXEC SQL INCLUDE SQLCA END-EXEC", "SQL",
       "INCLUDE SQLCA"},
      {DESC_EXEC_SQL_INCLUDE, "exec sql include sqlca end-exec", "SQL",
       "include sqlca"},
      {DESC_EXEC_SQL, "EXEC SQL DECLARE C1 CURSOR FOR SELECT A FROM T END-EXEC",
       "SQL", "DECLARE C1 CURSOR FOR SELECT A FROM T"},
      {DESC_EXEC_CICS, "EXEC CICS SEND MAP('M1') END-EXEC", "CICS",
       "SEND MAP('M1')"},
      // Without spaces the text is written whole; with one, only the last
      // word goes; with two, the last and the first.
      {DESC_EXEC_SQL, "EXEC-SQL-BLOCK", "SQL", "EXEC-SQL-BLOCK"},
      {DESC_EXEC_SQL, "EXEC END-EXEC", "SQL", "EXEC"},
      {DESC_EXEC_CICS, "EXEC CICS END-EXEC", "CICS", "CICS"},
      // Only single spaces are cut; the rest of a run stays.
      {DESC_EXEC_SQL, "EXEC  SQL  DECLARE C  END-EXEC", "SQL",
       "SQL  DECLARE C "},
      {DESC_EXEC_SQL, "", "SQL", ""},
  };
  DataTree T;
  for (const Case &K : Cases) {
    auto *X = T.at<ExecData>(2, 8, 2, 60, K.Kind);
    X->setSqlStr(K.Block);
    DataEmitter E;
    E.visit(static_cast<DataDescription *>(X));
    XMLElement *Own = E.handler().getRetElement();
    ASSERT_STREQ(Own->Name(), "EXEC_STATEMENT");
    XMLElement *Type = Own->FirstChildElement();
    ASSERT_NE(Type, nullptr);
    XMLElement *Content = Type->NextSiblingElement();
    ASSERT_NE(Content, nullptr);
    EXPECT_STREQ(Type->Name(), "TYPE");
    EXPECT_STREQ(Type->GetText(), K.Type) << K.Block;
    EXPECT_STREQ(Content->Name(), "CONTENT");
    EXPECT_EQ(std::string(Content->GetText() ? Content->GetText() : ""),
              K.Content)
        << K.Block;
    EXPECT_EQ(Content->NextSiblingElement(), nullptr);
  }
}

TEST(DataExec, BlockIsLocatedByItsCallerAndDiffersFromTheProcedureDivisions) {
  DataTree T;
  auto *X = T.at<ExecData>(4, 8, 5, 20, DESC_EXEC_SQL_INCLUDE);
  X->setSqlStr("EXEC SQL INCLUDE SQLCA END-EXEC");
  // TYPE and CONTENT carry no location of their own.
  EXPECT_TRUE(sameXML(R"(
<ROOT>
  <EXEC_STATEMENT lbl="4" lbc="8" lel="5" lec="20" lblo="4" lbco="8"
                  lelo="5" leco="20" lfid="1" lfido="1">
    <TYPE>SQL</TYPE><CONTENT>INCLUDE SQLCA</CONTENT>
  </EXEC_STATEMENT>
</ROOT>)",
                      placed<DataDescription>(X, /*Located=*/true)));

  // The same block in the procedure division loses INCLUDE too: the two
  // trimmings differ on purpose.
  auto *S = T.at<ExecStatement>(20, 8, 20, 50, STMT_EXEC_SQL_INCLUDE,
                                "EXEC SQL INCLUDE SQLCA END-EXEC");
  EXPECT_TRUE(sameXML(R"(
<ROOT><EXEC_STATEMENT><TYPE>SQL</TYPE><CONTENT>SQLCA</CONTENT></EXEC_STATEMENT></ROOT>)",
                      placed<Statement>(S)));
}

//===----------------------------------------------------------------------===//
// File descriptions
//===----------------------------------------------------------------------===//

TEST(FileDesc, ClausesThenRecordDescriptions) {
  DataTree T;
  auto *FS = T.at<FileSection>(2, 8, 16, 40);
  // FD Sales-File IS EXTERNAL GLOBAL
  auto *FD = T.at<FileDescription>(3, 8, 15, 40);
  FD->setFDWord(T.word("FD", 3, 8));
  FD->setFileName(T.word("Sales-File", 3, 12));
  FD->setExternal(T.at<ClauseExternalFile>(3, 26, 3, 33));
  FD->setGlobal(T.at<ClauseGlobalFile>(3, 35, 3, 40));
  // RECORD VARYING FROM 10 TO 80 DEPENDING ON WS-LEN
  auto *Rec = T.at<ClauseRecord>(4, 12, 4, 70);
  Rec->setVaryingWord(T.word("VARYING", 4, 19));
  Rec->setMinLength(T.number("10", 4, 32));
  Rec->setMaxLength(T.number("80", 4, 38));
  Rec->setDependingOn(T.ident("WS-LEN", 4, 54));
  FD->setRecord(Rec);
  // BLOCK CONTAINS 2 RECORDS
  auto *Block = T.at<ClauseBlock>(5, 12, 5, 35);
  Block->setMaxLength(T.number("2", 5, 27));
  Block->setRecords(T.word("RECORDS", 5, 29));
  FD->setBlock(Block);
  // LABEL RECORDS ARE STANDARD
  auto *Label = T.at<ClauseLabel>(6, 12, 6, 37);
  Label->setType(T.word("STANDARD", 6, 30));
  FD->setLabel(Label);
  // VALUE OF FILE-ID IS 'X' is not written.
  auto *ValueOf = T.at<ClauseValueOf>(7, 12, 7, 35);
  auto *Pair = T.at<ValueOfElem>(7, 21, 7, 35);
  Pair->setImplementorName(T.word("FILE-ID", 7, 21));
  Pair->setValue(T.text("X", 7, 32));
  ValueOf->addValueOf(Pair);
  FD->setValueOf(ValueOf);
  // RECORDING MODE IS F
  auto *Mode = T.at<ClauseRecordingMode>(8, 12, 8, 30);
  Mode->setRecordingMode(T.word("F", 8, 30));
  FD->setRecordingMode(Mode);
  // LINAGE IS 60 WITH FOOTING AT 55 LINES AT TOP 3 LINES AT BOTTOM 2
  auto *Linage = T.at<ClauseLinage>(9, 12, 9, 80);
  Linage->setNumOfLines(T.number("60", 9, 22));
  auto *Footing = T.at<LinageFooting>(9, 25, 9, 40);
  Footing->setExpr(T.number("55", 9, 39));
  auto *Top = T.at<LinageTop>(9, 42, 9, 57);
  Top->setExpr(T.number("3", 9, 57));
  auto *Bottom = T.at<LinageBottom>(9, 59, 9, 80);
  Bottom->setExpr(T.number("2", 9, 80));
  Linage->setWithFootingAt(Footing);
  Linage->setLineAtTop(Top);
  Linage->setLineAtBottom(Bottom);
  FD->setLinage(Linage);
  // DATA RECORDS ARE Sales-Rec Other-Rec
  auto *SalesRec = T.entry("01", 1, "Sales-Rec", 14, 1);
  auto *OtherRec = T.entry("01", 1, "Other-Rec", 15, 2);
  auto *DataRec = T.at<ClauseDataRecord>(10, 12, 10, 50);
  addResolvedRecord(DataRec, T.ident("Sales-Rec", 10, 29), SalesRec);
  DataRec->addDataRecord(nullptr);
  addResolvedRecord(DataRec, T.ident("Other-Rec", 10, 39), OtherRec);
  FD->setDataRecord(DataRec);
  // CODE-SET IS EBC, REPORTS ARE ALL, STYLE IS NORMAL
  auto *Code = T.at<ClauseCodeSet>(11, 12, 11, 26);
  Code->setAlphabetName(T.word("EBC", 11, 24));
  FD->setCodeSet(Code);
  auto *Reports = T.at<ClauseReport>(12, 12, 12, 26);
  Reports->setAllWord(T.word("ALL", 12, 24));
  FD->setReport(Reports);
  auto *Style = T.at<ClauseRwStyle>(13, 12, 13, 26);
  Style->setNormalWord(T.word("Normal", 13, 21));
  FD->setStyle(Style);
  FD->addOrdered(SalesRec);
  FD->addOrdered(OtherRec);
  FS->addFileDescription(FD);

  // SD Sort-File RECORD CONTAINS 80 CHARACTERS
  //    BLOCK CONTAINS 10 TO 100 CHARACTERS LABEL RECORD IS Lbl-A Lbl-B
  //    LINAGE IS Page-Lines REPORT IS R1 R2 STYLE IS S1
  // with a RECORDING MODE and a CODE-SET that lack their word, a FOOTING
  // phrase without its expression, and no record description.
  auto *SD = T.at<FileDescription>(20, 8, 25, 40);
  SD->setFDWord(T.word("SD", 20, 8));
  SD->setFileName(T.word("Sort-File", 20, 12));
  auto *Rec2 = T.at<ClauseRecord>(21, 12, 21, 40);
  Rec2->setMaxLength(T.number("80", 21, 28));
  SD->setRecord(Rec2);
  auto *Block2 = T.at<ClauseBlock>(22, 12, 22, 45);
  Block2->setMinLength(T.number("10", 22, 27));
  Block2->setMaxLength(T.number("100", 22, 33));
  Block2->setCharacters(T.word("CHARACTERS", 22, 37));
  SD->setBlock(Block2);
  auto *Label2 = T.at<ClauseLabel>(23, 12, 23, 45);
  Label2->addDataName(T.ident("Lbl-A", 23, 28));
  Label2->addDataName(nullptr);
  Label2->addDataName(T.ident("Lbl-B", 23, 34));
  SD->setLabel(Label2);
  SD->setRecordingMode(T.at<ClauseRecordingMode>(23, 46, 23, 50));
  SD->setCodeSet(T.at<ClauseCodeSet>(23, 52, 23, 60));
  auto *Linage2 = T.at<ClauseLinage>(24, 12, 24, 40);
  Linage2->setNumOfLines(T.ident("Page-Lines", 24, 22));
  Linage2->setWithFootingAt(T.at<LinageFooting>(24, 33, 24, 40));
  SD->setLinage(Linage2);
  auto *Reports2 = T.at<ClauseReport>(25, 12, 25, 25);
  Reports2->addReportName(T.word("R1", 25, 22));
  Reports2->addReportName(T.word("R2", 25, 25));
  SD->setReport(Reports2);
  auto *Style2 = T.at<ClauseRwStyle>(25, 27, 25, 38);
  Style2->addStyleName(T.word("S1", 25, 37));
  SD->setStyle(Style2);
  FS->addFileDescription(SD);

  EXPECT_TRUE(sameXML(R"(
<ROOT><FILE_SECTION>
  <FILE_ENTRY><FILE_DESC>
    <TYPE>FD</TYPE><NAME>Sales-File</NAME>
    <EXTERNAL>TRUE</EXTERNAL><GLOBAL>TRUE</GLOBAL>
    <RECORD_CONTAINS_INFO>
      <VARYING>TRUE</VARYING>
      <MIN><VALUE>10</VALUE></MIN><MAX><VALUE>80</VALUE></MAX>
      <DEPENDING_ON><DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>WS-LEN</QUALIFIED></DATA_IDENTIFIER></DEPENDING_ON>
    </RECORD_CONTAINS_INFO>
    <BLOCK_CONTAINS_INFO><MAX><VALUE>2</VALUE></MAX><TYPE>RECORDS</TYPE></BLOCK_CONTAINS_INFO>
    <LABEL_INFO><TYPE>STANDARD</TYPE></LABEL_INFO>
    <RECORDING_MODE>F</RECORDING_MODE>
    <LINAGE_ENTRY>
      <LINES><VALUE>60</VALUE></LINES><FOOTING><VALUE>55</VALUE></FOOTING>
      <TOP><VALUE>3</VALUE></TOP><BOTTOM><VALUE>2</VALUE></BOTTOM>
    </LINAGE_ENTRY>
    <DATA_RECORD>
      <RECORD><DATA_IDENTIFIER><DATA_ID>1</DATA_ID><QUALIFIED>Sales-Rec</QUALIFIED></DATA_IDENTIFIER></RECORD>
      <RECORD><DATA_IDENTIFIER><DATA_ID>2</DATA_ID><QUALIFIED>Other-Rec</QUALIFIED></DATA_IDENTIFIER></RECORD>
    </DATA_RECORD>
    <CODE_SET>EBC</CODE_SET>
    <REPORTNAME_LIST><WORD>ALL</WORD></REPORTNAME_LIST>
    <STYLENAME_LIST><WORD>NORMAL</WORD></STYLENAME_LIST>
    <DATA_DESC_ENTRY><ID>1</ID><SIZE>0</SIZE><OFFSET>0</OFFSET>
      <RULE>UNDEFINED</RULE><LEVEL>1</LEVEL><NAME>Sales-Rec</NAME></DATA_DESC_ENTRY>
    <DATA_DESC_ENTRY><ID>2</ID><SIZE>0</SIZE><OFFSET>0</OFFSET>
      <RULE>UNDEFINED</RULE><LEVEL>1</LEVEL><NAME>Other-Rec</NAME></DATA_DESC_ENTRY>
  </FILE_DESC></FILE_ENTRY>
  <FILE_ENTRY><FILE_DESC>
    <TYPE>SD</TYPE><NAME>Sort-File</NAME>
    <RECORD_CONTAINS_INFO><MAX><VALUE>80</VALUE></MAX></RECORD_CONTAINS_INFO>
    <BLOCK_CONTAINS_INFO>
      <MIN><VALUE>10</VALUE></MIN><MAX><VALUE>100</VALUE></MAX>
      <TYPE>CHARACTERS</TYPE>
    </BLOCK_CONTAINS_INFO>
    <LABEL_INFO>
      <DATA_ENTRY><DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>Lbl-A</QUALIFIED></DATA_IDENTIFIER></DATA_ENTRY>
      <DATA_ENTRY><DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>Lbl-B</QUALIFIED></DATA_IDENTIFIER></DATA_ENTRY>
    </LABEL_INFO>
    <LINAGE_ENTRY>
      <LINES><DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>Page-Lines</QUALIFIED></DATA_IDENTIFIER></LINES>
    </LINAGE_ENTRY>
    <REPORTNAME_LIST size="2" name="WordList"><WORD>R1</WORD><WORD>R2</WORD></REPORTNAME_LIST>
    <STYLENAME_LIST size="1" name="WordList"><WORD>S1</WORD></STYLENAME_LIST>
  </FILE_DESC></FILE_ENTRY>
</FILE_SECTION></ROOT>)",
                      placed(FS)));
}

TEST(FileDesc, ChildrenFollowTheirFixedOrderWhenLocationsTie) {
  // Every node at one position: ordered insertion then keeps the order in
  // which the entry writes its children, RECORD before BLOCK among them.
  DataTree T;
  auto Here = [&](auto *N) {
    N->setLocation(T.P.range(T.MainFile, 3, 8, 3, 60));
    return N;
  };
  auto *FD = Here(T.at<FileDescription>(0, 0, 0, 0));
  FD->setFDWord(T.word("SD", 3, 8));
  FD->setFileName(T.word("F", 3, 8));
  FD->setExternal(Here(T.at<ClauseExternalFile>(0, 0, 0, 0)));
  FD->setGlobal(Here(T.at<ClauseGlobalFile>(0, 0, 0, 0)));
  auto *Rec = Here(T.at<ClauseRecord>(0, 0, 0, 0));
  Rec->setVaryingWord(T.word("VARYING", 3, 8));
  Rec->setMinLength(T.number("1", 3, 8));
  Rec->setMaxLength(T.number("9", 3, 8));
  Rec->setDependingOn(T.ident("L", 3, 8));
  FD->setRecord(Rec);
  auto *Block = Here(T.at<ClauseBlock>(0, 0, 0, 0));
  Block->setCharacters(T.word("CHARACTERS", 3, 8));
  Block->setRecords(T.word("RECORDS", 3, 8));
  Block->setMinLength(T.number("2", 3, 8));
  Block->setMaxLength(T.number("8", 3, 8));
  FD->setBlock(Block);
  auto *Label = Here(T.at<ClauseLabel>(0, 0, 0, 0));
  Label->setType(T.word("OMITTED", 3, 8));
  Label->addDataName(T.ident("LB", 3, 8));
  FD->setLabel(Label);
  auto *Mode = Here(T.at<ClauseRecordingMode>(0, 0, 0, 0));
  Mode->setRecordingMode(T.word("V", 3, 8));
  FD->setRecordingMode(Mode);
  auto *Linage = Here(T.at<ClauseLinage>(0, 0, 0, 0));
  Linage->setNumOfLines(T.number("60", 3, 8));
  auto *Footing = Here(T.at<LinageFooting>(0, 0, 0, 0));
  Footing->setExpr(T.number("55", 3, 8));
  auto *Top = Here(T.at<LinageTop>(0, 0, 0, 0));
  Top->setExpr(T.number("3", 3, 8));
  auto *Bottom = Here(T.at<LinageBottom>(0, 0, 0, 0));
  Bottom->setExpr(T.number("2", 3, 8));
  Linage->setLineAtBottom(Bottom);
  Linage->setLineAtTop(Top);
  Linage->setWithFootingAt(Footing);
  FD->setLinage(Linage);
  auto *DataRec = Here(T.at<ClauseDataRecord>(0, 0, 0, 0));
  DataRec->addDataRecord(T.ident("R", 3, 8));
  FD->setDataRecord(DataRec);
  auto *Code = Here(T.at<ClauseCodeSet>(0, 0, 0, 0));
  Code->setAlphabetName(T.word("ASC", 3, 8));
  FD->setCodeSet(Code);
  auto *Reports = Here(T.at<ClauseReport>(0, 0, 0, 0));
  Reports->addReportName(T.word("R1", 3, 8));
  Reports->setAllWord(T.word("ALL", 3, 8));
  FD->setReport(Reports);
  auto *Style = Here(T.at<ClauseRwStyle>(0, 0, 0, 0));
  Style->addStyleName(T.word("S1", 3, 8));
  Style->setNormalWord(T.word("NORMAL", 3, 8));
  FD->setStyle(Style);
  auto *Entry = Here(T.entry("01", 1, nullptr, 3, 5));
  FD->addOrdered(Entry);

  EXPECT_TRUE(sameXML(R"(
<ROOT><FILE_DESC>
  <TYPE>SD</TYPE><NAME>F</NAME><EXTERNAL>TRUE</EXTERNAL><GLOBAL>TRUE</GLOBAL>
  <RECORD_CONTAINS_INFO>
    <VARYING>TRUE</VARYING><MIN><VALUE>1</VALUE></MIN><MAX><VALUE>9</VALUE></MAX>
    <DEPENDING_ON><DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>L</QUALIFIED></DATA_IDENTIFIER></DEPENDING_ON>
  </RECORD_CONTAINS_INFO>
  <BLOCK_CONTAINS_INFO>
    <TYPE>CHARACTERS</TYPE><TYPE>RECORDS</TYPE>
    <MIN><VALUE>2</VALUE></MIN><MAX><VALUE>8</VALUE></MAX>
  </BLOCK_CONTAINS_INFO>
  <LABEL_INFO>
    <DATA_ENTRY><DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>LB</QUALIFIED></DATA_IDENTIFIER></DATA_ENTRY>
    <TYPE>OMITTED</TYPE>
  </LABEL_INFO>
  <RECORDING_MODE>V</RECORDING_MODE>
  <LINAGE_ENTRY>
    <LINES><VALUE>60</VALUE></LINES><FOOTING><VALUE>55</VALUE></FOOTING>
    <TOP><VALUE>3</VALUE></TOP><BOTTOM><VALUE>2</VALUE></BOTTOM>
  </LINAGE_ENTRY>
  <DATA_RECORD><RECORD><DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>R</QUALIFIED></DATA_IDENTIFIER></RECORD></DATA_RECORD>
  <CODE_SET>ASC</CODE_SET>
  <REPORTNAME_LIST size="1" name="WordList"><WORD>R1</WORD></REPORTNAME_LIST>
  <REPORTNAME_LIST><WORD>ALL</WORD></REPORTNAME_LIST>
  <STYLENAME_LIST size="1" name="WordList"><WORD>S1</WORD></STYLENAME_LIST>
  <STYLENAME_LIST><WORD>NORMAL</WORD></STYLENAME_LIST>
  <DATA_DESC_ENTRY><ID>5</ID><SIZE>0</SIZE><OFFSET>0</OFFSET>
    <RULE>UNDEFINED</RULE><LEVEL>1</LEVEL></DATA_DESC_ENTRY>
</FILE_DESC></ROOT>)",
                      placed(FD)));
}

TEST(FileDesc, SingleWordFormsAndLinagePhrasesAreLocatedAtWhatTheyHold) {
  DataTree T;
  auto *FD = T.at<FileDescription>(3, 8, 6, 40);
  FD->setFDWord(T.word("FD", 3, 8));
  // LINAGE IS 60 WITH FOOTING AT 55: FOOTING is located at 55, not at
  // its phrase.
  auto *Linage = T.at<ClauseLinage>(4, 12, 4, 70);
  Linage->setNumOfLines(T.number("60", 4, 22));
  auto *Footing = T.at<LinageFooting>(4, 25, 4, 40);
  Footing->setExpr(T.number("55", 4, 39));
  Linage->setWithFootingAt(Footing);
  FD->setLinage(Linage);
  // REPORTS ARE ALL: the list's tag, located at ALL, without list
  // attributes.
  auto *Reports = T.at<ClauseReport>(5, 12, 5, 26);
  Reports->setAllWord(T.word("all", 5, 24));
  FD->setReport(Reports);
  // STYLE IS S1 S2: a list container spanning its words.
  auto *Style = T.at<ClauseRwStyle>(6, 12, 6, 30);
  Style->addStyleName(T.word("S1", 6, 21));
  Style->addStyleName(T.word("S2", 6, 24));
  FD->setStyle(Style);

  EXPECT_TRUE(sameXML(R"(
<ROOT>
  <FILE_DESC lbl="3" lbc="8" lel="6" lec="40" lblo="3" lbco="8" lelo="6"
             leco="40" lfid="1" lfido="1">
    <TYPE lbl="3" lbc="8" lel="3" lec="9" lblo="3" lbco="8" lelo="3" leco="9"
          lfid="1" lfido="1">FD</TYPE>
    <LINAGE_ENTRY lbl="4" lbc="12" lel="4" lec="70" lblo="4" lbco="12"
                  lelo="4" leco="70" lfid="1" lfido="1">
      <LINES lbl="4" lbc="22" lel="4" lec="23" lblo="4" lbco="22" lelo="4"
             leco="23" lfid="1" lfido="1">
        <VALUE lbl="4" lbc="22" lel="4" lec="23" lblo="4" lbco="22" lelo="4"
               leco="23" lfid="1" lfido="1">60</VALUE></LINES>
      <FOOTING lbl="4" lbc="39" lel="4" lec="40" lblo="4" lbco="39" lelo="4"
               leco="40" lfid="1" lfido="1">
        <VALUE lbl="4" lbc="39" lel="4" lec="40" lblo="4" lbco="39" lelo="4"
               leco="40" lfid="1" lfido="1">55</VALUE></FOOTING>
    </LINAGE_ENTRY>
    <REPORTNAME_LIST lbl="5" lbc="24" lel="5" lec="26" lblo="5" lbco="24"
                     lelo="5" leco="26" lfid="1" lfido="1">
      <WORD lbl="5" lbc="24" lel="5" lec="26" lblo="5" lbco="24" lelo="5"
            leco="26" lfid="1" lfido="1">ALL</WORD></REPORTNAME_LIST>
    <STYLENAME_LIST size="2" name="WordList" lbl="6" lbc="21" lblo="6"
                    lbco="21" lel="6" lec="25" lelo="6" leco="25">
      <WORD lbl="6" lbc="21" lel="6" lec="22" lblo="6" lbco="21" lelo="6"
            leco="22" lfid="1" lfido="1">S1</WORD>
      <WORD lbl="6" lbc="24" lel="6" lec="25" lblo="6" lbco="24" lelo="6"
            leco="25" lfid="1" lfido="1">S2</WORD>
    </STYLENAME_LIST>
  </FILE_DESC>
</ROOT>)",
                      placed(FD, /*Located=*/true)));
}

} // namespace
