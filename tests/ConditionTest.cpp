//===- tests/ConditionTest.cpp - Conditions -------------------------------===//

#include "TreeBuilder.h"
#include "EmitterHarness.h"
#include "XMLCompare.h"
#include "korvid/XMLOstrel.h"

#include <tinyxml2.h>

#include <map>
#include <string>

using namespace korvid;
using korvid::test::sameXML;
using korvid::test::TreeBuilder;
using tinyxml2::XMLElement;

namespace {

using Emitter = korvid::test::TestEmitter;
using korvid::test::visited;

/// Left op Right between two data names, spanning both.
RelationalCondition *relation(TreeBuilder &T, const std::string &Left,
                              RelationalConditionType Op,
                              const std::string &Right, uint32_t Line,
                              uint32_t LeftCol, uint32_t RightCol) {
  auto *R = T.at<RelationalCondition>(
      Line, LeftCol, Line,
      RightCol + static_cast<uint32_t>(Right.size()) - 1);
  R->setConditionType(Op);
  R->setLeft(T.dataName(Left, Line, LeftCol));
  R->setRight(T.dataName(Right, Line, RightCol));
  return R;
}

/// The tags and texts of the children of the element a visit leaves:
/// "TYPE=NUMERIC NOT=TRUE OPERAND=".
template <class T> std::string children(T *N) {
  Emitter E;
  E.visit(N);
  std::string S;
  for (XMLElement *C = E.handler().getRetElement()->FirstChildElement(); C;
       C = C->NextSiblingElement()) {
    if (!S.empty())
      S += ' ';
    S += std::string(C->Name()) + "=" + (C->GetText() ? C->GetText() : "");
  }
  return S;
}

//===----------------------------------------------------------------------===//
// Relational
//===----------------------------------------------------------------------===//

TEST(RelationalCondition, OperatorBetweenOperandsLocatedAtTheRightOne) {
  TreeBuilder T;
  // x > y: the operator carries y's location.
  RelationalCondition *R = relation(T, "x", REL_OP_GT, "y", 4, 12, 16);
  EXPECT_TRUE(sameXML(R"(
<RELATIONAL_CONDITION>
  <LEFT lbl="4" lbc="12" lel="4" lec="12" lblo="4" lbco="12" lelo="4"
        leco="12" lfid="1" lfido="1">
    <DATA_IDENTIFIER lbl="4" lbc="12" lel="4" lec="12" lblo="4" lbco="12"
                     lelo="4" leco="12" lfid="1" lfido="1">
      <DATA_ID lbl="4" lbc="12" lel="4" lec="12" lblo="4" lbco="12" lelo="4"
               leco="12" lfid="1" lfido="1">0</DATA_ID>
      <QUALIFIED lbl="4" lbc="12" lel="4" lec="12" lblo="4" lbco="12"
                 lelo="4" leco="12" lfid="1" lfido="1">x</QUALIFIED>
    </DATA_IDENTIFIER>
  </LEFT>
  <TYPE lbl="4" lbc="16" lel="4" lec="16" lblo="4" lbco="16" lelo="4"
        leco="16" lfid="1" lfido="1">GT</TYPE>
  <RIGHT lbl="4" lbc="16" lel="4" lec="16" lblo="4" lbco="16" lelo="4"
         leco="16" lfid="1" lfido="1">
    <DATA_IDENTIFIER lbl="4" lbc="16" lel="4" lec="16" lblo="4" lbco="16"
                     lelo="4" leco="16" lfid="1" lfido="1">
      <DATA_ID lbl="4" lbc="16" lel="4" lec="16" lblo="4" lbco="16" lelo="4"
               leco="16" lfid="1" lfido="1">0</DATA_ID>
      <QUALIFIED lbl="4" lbc="16" lel="4" lec="16" lblo="4" lbco="16"
                 lelo="4" leco="16" lfid="1" lfido="1">y</QUALIFIED>
    </DATA_IDENTIFIER>
  </RIGHT>
</RELATIONAL_CONDITION>)",
                      visited(R, true)));

  const std::map<RelationalConditionType, const char *> Ops = {
      {REL_OP_GT, "GT"}, {REL_OP_LT, "LT"}, {REL_OP_EQ, "EQ"},
      {REL_OP_GE, "GE"}, {REL_OP_LE, "LE"}, {REL_OP_NE, "NE"}};
  for (const auto &Op : Ops) {
    R->setConditionType(Op.first);
    EXPECT_EQ(children(R), std::string("LEFT= TYPE=") + Op.second + " RIGHT=");
  }

  // The operator is written only with the right operand, whatever the
  // left one.
  Expression *Right = R->getRight();
  R->setRight(nullptr);
  EXPECT_EQ(children(R), "LEFT=");
  R->setLeft(nullptr);
  EXPECT_TRUE(sameXML("<RELATIONAL_CONDITION/>", visited(R)));
  R->setRight(Right);
  EXPECT_EQ(children(R), "TYPE=NE RIGHT=");
}

//===----------------------------------------------------------------------===//
// Class and sign
//===----------------------------------------------------------------------===//

TEST(ClassCondition, TestTextsNegationAndUnknownTests) {
  TreeBuilder T;
  // x IS NOT NUMERIC: TYPE and NOT are both located at the class word.
  auto *C = T.at<ClassCondition>(6, 12, 6, 25);
  C->setType(CLS_OP_NOT_NUM);
  C->setClassWord(T.word("numeric", 6, 19));
  C->setLeft(T.dataName("x", 6, 12));
  EXPECT_TRUE(sameXML(R"(
<CLASS_CONDITION>
  <OPERAND lbl="6" lbc="12" lel="6" lec="12" lblo="6" lbco="12" lelo="6"
           leco="12" lfid="1" lfido="1">
    <DATA_IDENTIFIER lbl="6" lbc="12" lel="6" lec="12" lblo="6" lbco="12"
                     lelo="6" leco="12" lfid="1" lfido="1">
      <DATA_ID lbl="6" lbc="12" lel="6" lec="12" lblo="6" lbco="12" lelo="6"
               leco="12" lfid="1" lfido="1">0</DATA_ID>
      <QUALIFIED lbl="6" lbc="12" lel="6" lec="12" lblo="6" lbco="12"
                 lelo="6" leco="12" lfid="1" lfido="1">x</QUALIFIED>
    </DATA_IDENTIFIER>
  </OPERAND>
  <TYPE lbl="6" lbc="19" lel="6" lec="25" lblo="6" lbco="19" lelo="6"
        leco="25" lfid="1" lfido="1">NUMERIC</TYPE>
  <NOT lbl="6" lbc="19" lel="6" lec="25" lblo="6" lbco="19" lelo="6"
       leco="25" lfid="1" lfido="1">TRUE</NOT>
</CLASS_CONDITION>)",
                      visited(C, true)));

  // Every test, plain and negated; a user-defined class is written as the
  // fixed CLASS_NAME. An unknown test is no error: it is an empty TYPE,
  // never negated.
  const std::map<int, std::string> Expected = {
      {0, "TYPE="},
      {1, "TYPE=NUMERIC"},
      {2, "TYPE=ALPHABETIC"},
      {3, "TYPE=ALPHABETIC_LOW"},
      {4, "TYPE=ALPHABETIC_UPPER"},
      {5, "TYPE=DBCS"},
      {6, "TYPE=KANJI"},
      {7, "TYPE=CLASS_NAME"},
      {8, "TYPE=NUMERIC NOT=TRUE"},
      {9, "TYPE=ALPHABETIC NOT=TRUE"},
      {10, "TYPE=ALPHABETIC_LOW NOT=TRUE"},
      {11, "TYPE=ALPHABETIC_UPPER NOT=TRUE"},
      {12, "TYPE=DBCS NOT=TRUE"},
      {13, "TYPE=KANJI NOT=TRUE"},
      {14, "TYPE=CLASS_NAME NOT=TRUE"},
      {15, "TYPE=BOOLEAN"},
      {16, "TYPE=BOOLEAN NOT=TRUE"},
      {17, "TYPE="},
      {-1, "TYPE="}};
  auto *Bare = T.at<ClassCondition>(7, 12, 7, 30);
  Bare->setClassWord(T.word("my-class", 7, 20));
  for (const auto &E : Expected) {
    Bare->setType(static_cast<ClassOperatorType>(E.first));
    EXPECT_EQ(children(Bare), E.second) << E.first;
  }
  // Without the class word neither TYPE nor NOT is written.
  C->setClassWord(nullptr);
  EXPECT_EQ(children(C), "OPERAND=");
  C->setLeft(nullptr);
  EXPECT_TRUE(sameXML("<CLASS_CONDITION/>", visited(C)));
}

TEST(SignCondition, TestTextsAndNegation) {
  TreeBuilder T;
  // x IS NOT ZERO
  auto *S = T.at<SignCondition>(8, 12, 8, 22);
  S->setOpType(SIGN_OP_NOT_ZERO);
  S->setSignWord(T.word("Zero", 8, 19));
  S->setOperand(T.dataName("x", 8, 12));
  EXPECT_TRUE(sameXML(R"(
<SIGN_CONDITION>
  <OPERAND lbl="8" lbc="12" lel="8" lec="12" lblo="8" lbco="12" lelo="8"
           leco="12" lfid="1" lfido="1">
    <DATA_IDENTIFIER lbl="8" lbc="12" lel="8" lec="12" lblo="8" lbco="12"
                     lelo="8" leco="12" lfid="1" lfido="1">
      <DATA_ID lbl="8" lbc="12" lel="8" lec="12" lblo="8" lbco="12" lelo="8"
               leco="12" lfid="1" lfido="1">0</DATA_ID>
      <QUALIFIED lbl="8" lbc="12" lel="8" lec="12" lblo="8" lbco="12"
                 lelo="8" leco="12" lfid="1" lfido="1">x</QUALIFIED>
    </DATA_IDENTIFIER>
  </OPERAND>
  <TYPE lbl="8" lbc="19" lel="8" lec="22" lblo="8" lbco="19" lelo="8"
        leco="22" lfid="1" lfido="1">ZERO</TYPE>
  <NOT lbl="8" lbc="19" lel="8" lec="22" lblo="8" lbco="19" lelo="8"
       leco="22" lfid="1" lfido="1">TRUE</NOT>
</SIGN_CONDITION>)",
                      visited(S, true)));

  const std::map<SignOperatorType, std::string> Expected = {
      {SIGN_OP_POSITIVE, "OPERAND= TYPE=POSITIVE"},
      {SIGN_OP_NEGATIVE, "OPERAND= TYPE=NEGATIVE"},
      {SIGN_OP_ZERO, "OPERAND= TYPE=ZERO"},
      {SIGN_OP_NOT_POSITIVE, "OPERAND= TYPE=POSITIVE NOT=TRUE"},
      {SIGN_OP_NOT_NEGATIVE, "OPERAND= TYPE=NEGATIVE NOT=TRUE"},
      {SIGN_OP_NOT_ZERO, "OPERAND= TYPE=ZERO NOT=TRUE"}};
  for (const auto &E : Expected) {
    S->setOpType(E.first);
    EXPECT_EQ(children(S), E.second) << E.first;
  }
  S->setSignWord(nullptr);
  EXPECT_EQ(children(S), "OPERAND=");
  S->setOperand(nullptr);
  EXPECT_TRUE(sameXML("<SIGN_CONDITION/>", visited(S)));
}

//===----------------------------------------------------------------------===//
// Combined and negated
//===----------------------------------------------------------------------===//

TEST(CombinedCondition, OperatorFirstThenLeftAndRight) {
  TreeBuilder T;
  // a = b AND c < d, emitted with locations: the keyword's place puts TYPE
  // between the operands.
  auto *And = T.at<CombinedCondition>(5, 12, 5, 26);
  And->setOpTy(COMB_OP_AND);
  And->setCombinedWord(T.word("and", 5, 18));
  And->setLeft(relation(T, "a", REL_OP_EQ, "b", 5, 12, 16));
  And->setRight(relation(T, "c", REL_OP_LT, "d", 5, 22, 26));
  EXPECT_TRUE(sameXML(R"(
<COMB_CONDITION>
  <LEFT lbl="5" lbc="12" lel="5" lec="16" lblo="5" lbco="12" lelo="5"
        leco="16" lfid="1" lfido="1">
    <RELATIONAL_CONDITION lbl="5" lbc="12" lel="5" lec="16" lblo="5"
                          lbco="12" lelo="5" leco="16" lfid="1" lfido="1">
      <LEFT lbl="5" lbc="12" lel="5" lec="12" lblo="5" lbco="12" lelo="5"
            leco="12" lfid="1" lfido="1">
        <DATA_IDENTIFIER lbl="5" lbc="12" lel="5" lec="12" lblo="5"
                         lbco="12" lelo="5" leco="12" lfid="1" lfido="1">
          <DATA_ID lbl="5" lbc="12" lel="5" lec="12" lblo="5" lbco="12"
                   lelo="5" leco="12" lfid="1" lfido="1">0</DATA_ID>
          <QUALIFIED lbl="5" lbc="12" lel="5" lec="12" lblo="5" lbco="12"
                     lelo="5" leco="12" lfid="1" lfido="1">a</QUALIFIED>
        </DATA_IDENTIFIER>
      </LEFT>
      <TYPE lbl="5" lbc="16" lel="5" lec="16" lblo="5" lbco="16" lelo="5"
            leco="16" lfid="1" lfido="1">EQ</TYPE>
      <RIGHT lbl="5" lbc="16" lel="5" lec="16" lblo="5" lbco="16" lelo="5"
             leco="16" lfid="1" lfido="1">
        <DATA_IDENTIFIER lbl="5" lbc="16" lel="5" lec="16" lblo="5"
                         lbco="16" lelo="5" leco="16" lfid="1" lfido="1">
          <DATA_ID lbl="5" lbc="16" lel="5" lec="16" lblo="5" lbco="16"
                   lelo="5" leco="16" lfid="1" lfido="1">0</DATA_ID>
          <QUALIFIED lbl="5" lbc="16" lel="5" lec="16" lblo="5" lbco="16"
                     lelo="5" leco="16" lfid="1" lfido="1">b</QUALIFIED>
        </DATA_IDENTIFIER>
      </RIGHT>
    </RELATIONAL_CONDITION>
  </LEFT>
  <TYPE lbl="5" lbc="18" lel="5" lec="20" lblo="5" lbco="18" lelo="5"
        leco="20" lfid="1" lfido="1">AND</TYPE>
  <RIGHT lbl="5" lbc="22" lel="5" lec="26" lblo="5" lbco="22" lelo="5"
         leco="26" lfid="1" lfido="1">
    <RELATIONAL_CONDITION lbl="5" lbc="22" lel="5" lec="26" lblo="5"
                          lbco="22" lelo="5" leco="26" lfid="1" lfido="1">
      <LEFT lbl="5" lbc="22" lel="5" lec="22" lblo="5" lbco="22" lelo="5"
            leco="22" lfid="1" lfido="1">
        <DATA_IDENTIFIER lbl="5" lbc="22" lel="5" lec="22" lblo="5"
                         lbco="22" lelo="5" leco="22" lfid="1" lfido="1">
          <DATA_ID lbl="5" lbc="22" lel="5" lec="22" lblo="5" lbco="22"
                   lelo="5" leco="22" lfid="1" lfido="1">0</DATA_ID>
          <QUALIFIED lbl="5" lbc="22" lel="5" lec="22" lblo="5" lbco="22"
                     lelo="5" leco="22" lfid="1" lfido="1">c</QUALIFIED>
        </DATA_IDENTIFIER>
      </LEFT>
      <TYPE lbl="5" lbc="26" lel="5" lec="26" lblo="5" lbco="26" lelo="5"
            leco="26" lfid="1" lfido="1">LT</TYPE>
      <RIGHT lbl="5" lbc="26" lel="5" lec="26" lblo="5" lbco="26" lelo="5"
             leco="26" lfid="1" lfido="1">
        <DATA_IDENTIFIER lbl="5" lbc="26" lel="5" lec="26" lblo="5"
                         lbco="26" lelo="5" leco="26" lfid="1" lfido="1">
          <DATA_ID lbl="5" lbc="26" lel="5" lec="26" lblo="5" lbco="26"
                   lelo="5" leco="26" lfid="1" lfido="1">0</DATA_ID>
          <QUALIFIED lbl="5" lbc="26" lel="5" lec="26" lblo="5" lbco="26"
                     lelo="5" leco="26" lfid="1" lfido="1">d</QUALIFIED>
        </DATA_IDENTIFIER>
      </RIGHT>
    </RELATIONAL_CONDITION>
  </RIGHT>
</COMB_CONDITION>)",
                      visited(And, true)));

  // Where the keyword and both operands start at the same place (one
  // replaced text, say), the order of writing shows: operator first.
  auto *Same = T.at<CombinedCondition>(9, 1, 9, 30);
  Same->setCombinedWord(T.word("or", 9, 1));
  Same->setLeft(relation(T, "a", REL_OP_EQ, "b", 9, 1, 1));
  Same->setRight(relation(T, "c", REL_OP_EQ, "d", 9, 1, 1));
  const std::map<CombinedOperatorType, const char *> Ops = {
      {COMB_OP_OR, "OR"}, {COMB_OP_AND, "AND"}, {COMB_OP_EXOR, "EXOR"}};
  for (const auto &Op : Ops) {
    Same->setOpTy(Op.first);
    EXPECT_EQ(children(Same), std::string("TYPE=") + Op.second +
                                  " LEFT= RIGHT=");
  }
  Same->setCombinedWord(nullptr);
  EXPECT_EQ(children(Same), "LEFT= RIGHT=");
  Same->setLeft(nullptr);
  Same->setRight(nullptr);
  EXPECT_TRUE(sameXML("<COMB_CONDITION/>", visited(Same)));
}

TEST(ConditionNesting, CombinedHoldsNegatedHoldsRelational) {
  TreeBuilder T;
  // NOT (a > b) OR x IS NOT POSITIVE AND flag-on
  auto *Not = T.at<NegatedCondition>(3, 12, 3, 22);
  Not->setOperand(relation(T, "a", REL_OP_GT, "b", 3, 17, 21));
  auto *Sign = T.at<SignCondition>(3, 27, 3, 44);
  Sign->setOpType(SIGN_OP_NOT_POSITIVE);
  Sign->setSignWord(T.word("positive", 3, 37));
  Sign->setOperand(T.dataName("x", 3, 27));
  auto *Flag = T.at<ConditionNameCondition>(3, 50, 3, 56);
  Flag->setConditionName(T.dataName("flag-on", 3, 50));
  auto *And = T.at<CombinedCondition>(3, 27, 3, 56);
  And->setOpTy(COMB_OP_AND);
  And->setCombinedWord(T.word("and", 3, 46));
  And->setLeft(Sign);
  And->setRight(Flag);
  auto *Or = T.at<CombinedCondition>(3, 12, 3, 56);
  Or->setOpTy(COMB_OP_OR);
  Or->setCombinedWord(T.word("or", 3, 24));
  Or->setLeft(Not);
  Or->setRight(And);
  EXPECT_TRUE(sameXML(R"(
<COMB_CONDITION>
  <LEFT>
    <NEGATIVE_CONDITION>
      <OPERAND>
        <RELATIONAL_CONDITION>
          <LEFT><DATA_IDENTIFIER><DATA_ID>0</DATA_ID>
            <QUALIFIED>a</QUALIFIED></DATA_IDENTIFIER></LEFT>
          <TYPE>GT</TYPE>
          <RIGHT><DATA_IDENTIFIER><DATA_ID>0</DATA_ID>
            <QUALIFIED>b</QUALIFIED></DATA_IDENTIFIER></RIGHT>
        </RELATIONAL_CONDITION>
      </OPERAND>
    </NEGATIVE_CONDITION>
  </LEFT>
  <TYPE>OR</TYPE>
  <RIGHT>
    <COMB_CONDITION>
      <LEFT>
        <SIGN_CONDITION>
          <OPERAND><DATA_IDENTIFIER><DATA_ID>0</DATA_ID>
            <QUALIFIED>x</QUALIFIED></DATA_IDENTIFIER></OPERAND>
          <TYPE>POSITIVE</TYPE>
          <NOT>TRUE</NOT>
        </SIGN_CONDITION>
      </LEFT>
      <TYPE>AND</TYPE>
      <RIGHT>
        <COND_NAME_CONDITION>
          <OPERAND><DATA_IDENTIFIER><DATA_ID>0</DATA_ID>
            <QUALIFIED>flag-on</QUALIFIED></DATA_IDENTIFIER></OPERAND>
        </COND_NAME_CONDITION>
      </RIGHT>
    </COMB_CONDITION>
  </RIGHT>
</COMB_CONDITION>)",
                      visited(static_cast<Condition *>(Or))));
  // The wrapper of a negated operand carries the operand's location, as
  // does the operand's own element.
  Not->setOperand(relation(T, "c", REL_OP_EQ, "d", 4, 17, 21));
  EXPECT_TRUE(sameXML(R"(
<NEGATIVE_CONDITION>
  <OPERAND lbl="4" lbc="17" lel="4" lec="21" lblo="4" lbco="17" lelo="4"
           leco="21" lfid="1" lfido="1">
    <RELATIONAL_CONDITION lbl="4" lbc="17" lel="4" lec="21" lblo="4"
                          lbco="17" lelo="4" leco="21" lfid="1" lfido="1">
      <LEFT lbl="4" lbc="17" lel="4" lec="17" lblo="4" lbco="17" lelo="4"
            leco="17" lfid="1" lfido="1">
        <DATA_IDENTIFIER lbl="4" lbc="17" lel="4" lec="17" lblo="4"
                         lbco="17" lelo="4" leco="17" lfid="1" lfido="1">
          <DATA_ID lbl="4" lbc="17" lel="4" lec="17" lblo="4" lbco="17"
                   lelo="4" leco="17" lfid="1" lfido="1">0</DATA_ID>
          <QUALIFIED lbl="4" lbc="17" lel="4" lec="17" lblo="4" lbco="17"
                     lelo="4" leco="17" lfid="1" lfido="1">c</QUALIFIED>
        </DATA_IDENTIFIER>
      </LEFT>
      <TYPE lbl="4" lbc="21" lel="4" lec="21" lblo="4" lbco="21" lelo="4"
            leco="21" lfid="1" lfido="1">EQ</TYPE>
      <RIGHT lbl="4" lbc="21" lel="4" lec="21" lblo="4" lbco="21" lelo="4"
             leco="21" lfid="1" lfido="1">
        <DATA_IDENTIFIER lbl="4" lbc="21" lel="4" lec="21" lblo="4"
                         lbco="21" lelo="4" leco="21" lfid="1" lfido="1">
          <DATA_ID lbl="4" lbc="21" lel="4" lec="21" lblo="4" lbco="21"
                   lelo="4" leco="21" lfid="1" lfido="1">0</DATA_ID>
          <QUALIFIED lbl="4" lbc="21" lel="4" lec="21" lblo="4" lbco="21"
                     lelo="4" leco="21" lfid="1" lfido="1">d</QUALIFIED>
        </DATA_IDENTIFIER>
      </RIGHT>
    </RELATIONAL_CONDITION>
  </OPERAND>
</NEGATIVE_CONDITION>)",
                      visited(Not, true)));
  Not->setOperand(nullptr);
  EXPECT_TRUE(sameXML("<NEGATIVE_CONDITION/>", visited(Not)));
}

//===----------------------------------------------------------------------===//
// Condition names, switches, abbreviated relations
//===----------------------------------------------------------------------===//

TEST(NamedConditions, ConditionNameSwitchAndAbbreviatedRelation) {
  TreeBuilder T;
  auto *Entry = T.at<ExDataDescription>(2, 8, 2, 40);
  Entry->setID(12);
  auto *Name = T.at<ConditionNameCondition>(3, 12, 3, 18);
  Name->setConditionName(T.dataName("is-eof", 3, 12));
  Name->getConditionName()->setTarget(Entry);
  EXPECT_TRUE(sameXML(R"(
<COND_NAME_CONDITION>
  <OPERAND><DATA_IDENTIFIER><DATA_ID>12</DATA_ID><QUALIFIED>is-eof</QUALIFIED>
  </DATA_IDENTIFIER></OPERAND>
</COND_NAME_CONDITION>)",
                      visited(Name)));
  Name->setConditionName(nullptr);
  EXPECT_TRUE(sameXML("<COND_NAME_CONDITION/>", visited(Name)));

  // A switch status name is a qualified name: its last qualifier only.
  auto *Front = T.at<QualifiedWord>(4, 22, 4, 27);
  Front->setRearWord(T.word("Sw-Grp", 4, 22));
  auto *Status = T.at<QualifiedWord>(4, 12, 4, 27);
  Status->setRearWord(T.word("sw-on", 4, 12));
  Status->setFrontWord(Front);
  auto *Switch = T.at<SwitchCondition>(4, 12, 4, 27);
  Switch->setSwitchName(Status);
  EXPECT_TRUE(sameXML(R"(
<SWITCH_CONDITION>
  <OPERAND lbl="4" lbc="12" lel="4" lec="27" lblo="4" lbco="12" lelo="4"
           leco="27" lfid="1" lfido="1">
    <QUALIFIED lbl="4" lbc="12" lel="4" lec="27" lblo="4" lbco="12"
               lelo="4" leco="27" lfid="1" lfido="1">Sw-Grp</QUALIFIED>
  </OPERAND>
</SWITCH_CONDITION>)",
                      visited(Switch, true)));
  Switch->setSwitchName(nullptr);
  EXPECT_TRUE(sameXML("<SWITCH_CONDITION/>", visited(Switch)));

  // The abbreviated combined relation is a direct child, not wrapped.
  auto *X = T.at<AbbrRelationCombinedExpression>(5, 20, 5, 26);
  X->setType(ABBR_COMB_AND);
  X->setOpWord(T.word("and", 5, 20));
  auto *Abbr = T.at<AbbrRelationalCondition>(5, 20, 5, 26);
  Abbr->setRight(X);
  EXPECT_TRUE(sameXML(R"(
<ABBR_RELATION_CONDITION>
  <ABBR_RELATION_EXPR lbl="5" lbc="20" lel="5" lec="26" lblo="5" lbco="20"
                      lelo="5" leco="26" lfid="1" lfido="1">
    <TYPE lbl="5" lbc="20" lel="5" lec="22" lblo="5" lbco="20" lelo="5"
          leco="22" lfid="1" lfido="1">AND</TYPE>
  </ABBR_RELATION_EXPR>
</ABBR_RELATION_CONDITION>)",
                      visited(Abbr, true)));
  Abbr->setRight(nullptr);
  EXPECT_TRUE(sameXML("<ABBR_RELATION_CONDITION/>", visited(Abbr)));
}

//===----------------------------------------------------------------------===//
// Dispatch
//===----------------------------------------------------------------------===//

TEST(ConditionDispatch, EveryKindReachesItsVisitAndUnknownKindsWriteNothing) {
  TreeBuilder T;
  auto *Rel = T.at<RelationalCondition>(1, 1, 1, 1);
  Rel->setConditionType(REL_OP_EQ);
  auto *Sign = T.at<SignCondition>(1, 1, 1, 1);
  Sign->setOpType(SIGN_OP_ZERO);
  auto *Comb = T.at<CombinedCondition>(1, 1, 1, 1);
  Comb->setOpTy(COMB_OP_OR);
  const std::map<std::string, Condition *> Kinds = {
      {"COND_NAME_CONDITION", T.at<ConditionNameCondition>(1, 1, 1, 1)},
      {"SWITCH_CONDITION", T.at<SwitchCondition>(1, 1, 1, 1)},
      {"RELATIONAL_CONDITION", Rel},
      {"CLASS_CONDITION", T.at<ClassCondition>(1, 1, 1, 1)},
      {"SIGN_CONDITION", Sign},
      {"NEGATIVE_CONDITION", T.at<NegatedCondition>(1, 1, 1, 1)},
      {"COMB_CONDITION", Comb},
      {"ABBR_RELATION_CONDITION", T.at<AbbrRelationalCondition>(1, 1, 1, 1)}};
  for (const auto &K : Kinds) {
    Emitter E;
    E.visit(K.second);
    EXPECT_STREQ(E.handler().getRetElement()->Name(), K.first.c_str());
  }

  // COND_NONE and unknown kinds create nothing and leave the slot alone;
  // a negated condition holding one keeps whatever the slot held.
  auto *None = T.at<Condition>(1, 1, 1, 1);
  auto *Odd = T.at<Condition>(1, 1, 1, 1);
  Odd->setType(static_cast<ConditionType>(9));
  Emitter E;
  XMLElement *Before = E.handler().newRetElement("BEFORE");
  E.visit(None);
  EXPECT_EQ(E.handler().getRetElement(), Before);
  E.visit(Odd);
  EXPECT_EQ(E.handler().getRetElement(), Before);
  // A class condition keeps its own class test apart from its kind.
  auto *Cls = T.at<ClassCondition>(1, 1, 1, 1);
  Cls->setType(CLS_OP_NUM);
  EXPECT_EQ(static_cast<Condition *>(Cls)->getType(), COND_CLASS);
}

/// Overrides one kind: the dispatcher and the nesting visits must reach it.
struct SignMarker : Emitter {
  using XMLOstrel::visit;
  void visit(SignCondition *) override {
    Handler->setRetElement(Handler->newRetElement("MARKED"));
  }
};

TEST(ConditionDispatch, KindVisitsAreCalledVirtually) {
  TreeBuilder T;
  auto *Sign = T.at<SignCondition>(1, 5, 1, 9); // SIGN_OP_NONE: not reached
  auto *Not = T.at<NegatedCondition>(1, 1, 1, 9);
  Not->setOperand(Sign);
  SignMarker M;
  M.visit(static_cast<Condition *>(Not));
  XMLElement *Own = M.handler().getRetElement();
  EXPECT_STREQ(Own->Name(), "NEGATIVE_CONDITION");
  EXPECT_STREQ(Own->FirstChildElement("OPERAND")->FirstChildElement()->Name(),
               "MARKED");
}

//===----------------------------------------------------------------------===//
// Broken operators: relational, sign and combined abort, class never does.
//===----------------------------------------------------------------------===//

TEST(ConditionDeathTest, BrokenOperatorsAbort) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  // The report names this file, the line and the visit.
  auto Report = [](const char *Class) {
    return std::string("lib/Visitor/XMLOstrel/Condition.cpp:[0-9]+") +
           ": virtual void korvid::XMLOstrel::visit\\(korvid::" + Class +
           "\\*\\): Assertion `0 && \"impossible\"' failed";
  };
  TreeBuilder T;
  Emitter E;

  auto *Rel = T.at<RelationalCondition>(1, 1, 1, 5);
  Rel->setLeft(T.dataName("a", 1, 1));
  Rel->setRight(T.dataName("b", 1, 5));
  for (int Op : {0, 1, 8}) {
    Rel->setConditionType(static_cast<RelationalConditionType>(Op));
    EXPECT_DEATH(E.visit(static_cast<Condition *>(Rel)),
                 Report("RelationalCondition"))
        << Op;
  }
  auto *Sign = T.at<SignCondition>(1, 1, 1, 5);
  Sign->setSignWord(T.word("zero", 1, 1));
  for (int Op : {0, 7, -1}) {
    Sign->setOpType(static_cast<SignOperatorType>(Op));
    EXPECT_DEATH(E.visit(static_cast<Condition *>(Sign)),
                 Report("SignCondition"))
        << Op;
  }
  auto *Comb = T.at<CombinedCondition>(1, 1, 1, 5);
  Comb->setCombinedWord(T.word("and", 1, 3));
  for (int Op : {0, 4}) {
    Comb->setOpTy(static_cast<CombinedOperatorType>(Op));
    EXPECT_DEATH(E.visit(static_cast<Condition *>(Comb)),
                 Report("CombinedCondition"))
        << Op;
  }
  // An aborting operand nested deep inside still ends the run.
  auto *Not = T.at<NegatedCondition>(1, 1, 1, 5);
  Not->setOperand(Comb);
  EXPECT_DEATH(E.visit(static_cast<Condition *>(Not)),
               Report("CombinedCondition"));

  // The class visit survives any test value.
  auto *Cls = T.at<ClassCondition>(1, 1, 1, 5);
  Cls->setClassWord(T.word("numeric", 1, 3));
  Cls->setType(static_cast<ClassOperatorType>(1000));
  E.visit(static_cast<Condition *>(Cls));
  EXPECT_STREQ(E.handler().getRetElement()->Name(), "CLASS_CONDITION");
}

} // namespace
