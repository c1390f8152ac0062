//===- tests/ExpressionTest.cpp - Operands and expressions ----------------===//

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

/// The text of the first \p Tag child of the element a visit of \p N
/// leaves, or "<none>" when there is no such child.
template <class T> std::string childText(T *N, const char *Tag) {
  Emitter E;
  E.visit(N);
  XMLElement *C = E.handler().getRetElement()->FirstChildElement(Tag);
  if (!C)
    return "<none>";
  return C->GetText() ? C->GetText() : "";
}

/// The tag of the element a visit of \p N leaves.
template <class T> std::string rootTag(T *N) {
  Emitter E;
  E.visit(N);
  return E.handler().getRetElement()->Name();
}

template <class L> L *literal(TreeBuilder &T, const std::string &Text,
                              uint32_t Line, uint32_t Col) {
  auto *Lit = T.at<L>(Line, Col, Line,
                      Col + static_cast<uint32_t>(Text.size()) + 1);
  Lit->setData(Text);
  return Lit;
}

//===----------------------------------------------------------------------===//
// Literals, words and names
//===----------------------------------------------------------------------===//

TEST(LiteralExpression, TextsAsWrittenUnlessAnyByteIsControlOrNonAscii) {
  TreeBuilder T;
  auto *Num = literal<NumericLiteralExpression>(T, "-3.5", 1, 1);
  EXPECT_TRUE(sameXML("<VALUE>-3.5</VALUE>", visited(Num)));

  auto *Plain = literal<NonNumericLiteralExpression>(T, " a<b>&'~ ", 1, 1);
  EXPECT_TRUE(sameXML("<VALUE> a&lt;b&gt;&amp;'~ </VALUE>", visited(Plain)));

  // The byte test reads chars as signed: everything from 0x80 up counts as
  // a control character, so any non-ASCII literal becomes the placeholder.
  for (const char *Text : {"TAB\tHERE", "\x01", "end\x1f", "DEL\x7f",
                           "caf\xe4", "UTF-8 \xc3\xbc", "\xff"}) {
    auto *L = literal<NonNumericLiteralExpression>(T, Text, 1, 1);
    EXPECT_TRUE(sameXML("<VALUE>DUMMY_LITERAL</VALUE>", visited(L))) << Text;
  }
  // The bounds of the test: space (32) and tilde (126) are kept.
  auto *Edges = literal<NonNumericLiteralExpression>(T, " ~", 1, 1);
  {
    Emitter E;
    E.visit(Edges);
    EXPECT_STREQ(E.handler().getRetElement()->GetText(), " ~");
  }
  // A numeric literal is written as it is: only non-numeric ones are
  // screened.
  auto *OddNum = literal<NumericLiteralExpression>(T, "1\t2", 1, 1);
  {
    Emitter E;
    E.visit(OddNum);
    EXPECT_STREQ(E.handler().getRetElement()->GetText(), "1\t2");
  }
  // An empty literal keeps its empty text.
  auto *Empty = literal<NonNumericLiteralExpression>(T, "", 1, 1);
  {
    Emitter E;
    E.visit(Empty);
    XMLElement *V = E.handler().getRetElement();
    EXPECT_STREQ(V->Name(), "VALUE");
    EXPECT_TRUE(V->GetText() == nullptr || *V->GetText() == '\0');
  }
}

TEST(FigurativeLiteralExpression, KeywordAndAllLiteralAreWrapped) {
  TreeBuilder T;
  auto *All = T.at<FigurativeLiteralExpression>(5, 20, 5, 27);
  All->setType(FIG_ALL);
  All->setFigWord(T.word("all", 5, 20));
  All->setLiteral(literal<NonNumericLiteralExpression>(T, "ab", 5, 24));
  // The keyword is written through the word visit: normalised.
  EXPECT_TRUE(sameXML(R"(
<FIGURATIVE_CONSTANT>
  <VALUE lbl="5" lbc="20" lel="5" lec="22" lblo="5" lbco="20" lelo="5"
         leco="22" lfid="1" lfido="1">
    <WORD lbl="5" lbc="20" lel="5" lec="22" lblo="5" lbco="20" lelo="5"
          leco="22" lfid="1" lfido="1">ALL</WORD>
  </VALUE>
  <LITERAL lbl="5" lbc="24" lel="5" lec="27" lblo="5" lbco="24" lelo="5"
           leco="27" lfid="1" lfido="1">
    <VALUE lbl="5" lbc="24" lel="5" lec="27" lblo="5" lbco="24" lelo="5"
           leco="27" lfid="1" lfido="1">ab</VALUE>
  </LITERAL>
</FIGURATIVE_CONSTANT>)",
                      visited(All, true)));

  // ALL ZEROS: the literal is itself a figurative constant.
  auto *Zeros = T.at<FigurativeLiteralExpression>(6, 1, 6, 5);
  Zeros->setFigWord(T.word("Zeros", 6, 1));
  auto *AllZeros = T.at<FigurativeLiteralExpression>(6, 1, 6, 5);
  AllZeros->setLiteral(Zeros);
  EXPECT_TRUE(sameXML(R"(
<FIGURATIVE_CONSTANT>
  <LITERAL><FIGURATIVE_CONSTANT><VALUE><WORD>ZEROS</WORD></VALUE>
  </FIGURATIVE_CONSTANT></LITERAL>
</FIGURATIVE_CONSTANT>)",
                      visited(AllZeros)));
  EXPECT_TRUE(sameXML("<FIGURATIVE_CONSTANT/>",
                      visited(T.at<FigurativeLiteralExpression>(1, 1, 1, 1))));
}

TEST(QualifiedWord, OnlyTheRearWordOfTheLastQualifierSurvives) {
  TreeBuilder T;
  // item-a OF group-b OF Rec-C: each level's front word is the next one.
  auto *C = T.at<QualifiedWord>(2, 30, 2, 34);
  C->setRearWord(T.word("Rec-C", 2, 30));
  auto *B = T.at<QualifiedWord>(2, 18, 2, 34);
  B->setRearWord(T.word("group-b", 2, 18));
  B->setFrontWord(C);
  auto *A = T.at<QualifiedWord>(2, 8, 2, 34);
  A->setRearWord(T.word("item-a", 2, 8));
  A->setFrontWord(B);
  // Not the joined chain, and not the first name: the last qualifier, as
  // written.
  EXPECT_TRUE(sameXML("<QUALIFIED>Rec-C</QUALIFIED>", visited(A)));
  EXPECT_TRUE(sameXML("<QUALIFIED>group-b</QUALIFIED>",
                      visited(T.at<QualifiedWord>(1, 1, 1, 1, nullptr,
                                                  B->getRearWord()))));
  // A bare word is written normalised instead.
  EXPECT_TRUE(sameXML("<WORD>REC-C</WORD>", visited(C->getRearWord())));
}

//===----------------------------------------------------------------------===//
// Identifiers
//===----------------------------------------------------------------------===//

TEST(DataIdentifierExpression, ResolvedIdNameSubscriptAndBareRefmod) {
  TreeBuilder T;
  auto *Entry = T.at<ExDataDescription>(3, 8, 3, 30);
  Entry->setID(42);
  // cnt OF tbl (i) (1:)
  auto *Tbl = T.at<QualifiedWord>(9, 19, 9, 21);
  Tbl->setRearWord(T.word("tbl", 9, 19));
  auto *Name = T.at<QualifiedWord>(9, 12, 9, 21);
  Name->setRearWord(T.word("cnt", 9, 12));
  Name->setFrontWord(Tbl);
  auto *Sub = T.at<SubscriptModifier>(9, 23, 9, 25);
  Sub->addSubscript(literal<NumericLiteralExpression>(T, "i", 9, 24));
  auto *Ref = T.at<ReferenceModifier>(9, 27, 9, 30);
  Ref->setFromExpr(literal<NumericLiteralExpression>(T, "1", 9, 28));
  auto *D = T.at<DataIdentifierExpression>(9, 12, 9, 30);
  D->setName(Name);
  D->setTarget(Entry);
  D->setSubscriptMod(Sub);
  D->setReferenceMod(Ref);
  // DATA_ID and QUALIFIED share the name's location; DATA_ID comes first.
  // The reference modifier is a direct child, not wrapped.
  EXPECT_TRUE(sameXML(R"(
<DATA_IDENTIFIER>
  <DATA_ID lbl="9" lbc="12" lel="9" lec="21" lblo="9" lbco="12" lelo="9"
           leco="21" lfid="1" lfido="1">42</DATA_ID>
  <QUALIFIED lbl="9" lbc="12" lel="9" lec="21" lblo="9" lbco="12" lelo="9"
             leco="21" lfid="1" lfido="1">tbl</QUALIFIED>
  <SUBSCRIPT lbl="9" lbc="23" lel="9" lec="25" lblo="9" lbco="23" lelo="9"
             leco="25" lfid="1" lfido="1">
    <SUBSCRIPT_MODIFIER lbl="9" lbc="23" lel="9" lec="25" lblo="9" lbco="23"
                        lelo="9" leco="25" lfid="1" lfido="1">
      <SubscriptList size="1" name="ExprList" lbl="9" lbc="24" lblo="9"
                     lbco="24" lel="9" lec="26" lelo="9" leco="26">
        <VALUE lbl="9" lbc="24" lel="9" lec="26" lblo="9" lbco="24" lelo="9"
               leco="26" lfid="1" lfido="1">i</VALUE>
      </SubscriptList>
    </SUBSCRIPT_MODIFIER>
  </SUBSCRIPT>
  <REFERENCE_MODIFIER lbl="9" lbc="27" lel="9" lec="30" lblo="9" lbco="27"
                      lelo="9" leco="30" lfid="1" lfido="1">
    <START_POSITION lbl="9" lbc="28" lel="9" lec="30" lblo="9" lbco="28"
                    lelo="9" leco="30" lfid="1" lfido="1">
      <VALUE lbl="9" lbc="28" lel="9" lec="30" lblo="9" lbco="28" lelo="9"
             leco="30" lfid="1" lfido="1">1</VALUE>
    </START_POSITION>
  </REFERENCE_MODIFIER>
</DATA_IDENTIFIER>)",
                      visited(D, true)));

  // Only an extended data description lends its number: no target, or a
  // target of another kind, gives 0.
  D->setSubscriptMod(nullptr);
  D->setReferenceMod(nullptr);
  D->setTarget(nullptr);
  EXPECT_TRUE(sameXML(
      "<DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>tbl</QUALIFIED>"
      "</DATA_IDENTIFIER>",
      visited(D)));
  D->setTarget(T.at<ExFileDescription>(2, 8, 2, 30));
  EXPECT_EQ(childText(D, "DATA_ID"), "0");
  D->setTarget(T.at<DataDescription>(2, 8, 2, 30));
  EXPECT_EQ(childText(D, "DATA_ID"), "0");
  Entry->setID(4000000000u);
  D->setTarget(Entry);
  EXPECT_EQ(childText(D, "DATA_ID"), "4000000000");
  // Without a name there is no number either.
  D->setName(nullptr);
  EXPECT_TRUE(sameXML("<DATA_IDENTIFIER/>", visited(D)));
}

TEST(FunctionIdentifierExpression, NormalisedNameArgsAndDoubleRefmod) {
  TreeBuilder T;
  auto *Args = T.at<SubscriptModifier>(4, 30, 4, 37);
  Args->addSubscript(T.dataName("nm", 4, 31));
  Args->addSubscript(literal<NonNumericLiteralExpression>(T, "x", 4, 34));
  auto *Ref = T.at<ReferenceModifier>(4, 39, 4, 43);
  Ref->setFromExpr(literal<NumericLiteralExpression>(T, "2", 4, 40));
  Ref->setCountExpr(literal<NumericLiteralExpression>(T, "3", 4, 42));
  auto *F = T.at<FunctionIdentifierExpression>(4, 12, 4, 43);
  F->setName(T.word("upper-case", 4, 21));
  F->setSubscriptMod(Args);
  F->setReferenceMod(Ref);
  // The reference modifier sits inside a wrapper of the same tag, unlike a
  // data identifier's.
  EXPECT_TRUE(sameXML(R"(
<FUNC_IDENTIFIER>
  <FUNC_NAME>UPPER-CASE</FUNC_NAME>
  <FUNC_ARGS>
    <SUBSCRIPT_MODIFIER>
      <SubscriptList size="2" name="ExprList">
        <DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>nm</QUALIFIED>
        </DATA_IDENTIFIER>
        <VALUE>x</VALUE>
      </SubscriptList>
    </SUBSCRIPT_MODIFIER>
  </FUNC_ARGS>
  <REFERENCE_MODIFIER>
    <REFERENCE_MODIFIER>
      <START_POSITION><VALUE>2</VALUE></START_POSITION>
      <LENGTH><VALUE>3</VALUE></LENGTH>
    </REFERENCE_MODIFIER>
  </REFERENCE_MODIFIER>
</FUNC_IDENTIFIER>)",
                      visited(F)));
  // FUNC_NAME is located at the name word.
  F->setSubscriptMod(nullptr);
  F->setReferenceMod(nullptr);
  EXPECT_TRUE(sameXML(R"(
<FUNC_IDENTIFIER>
  <FUNC_NAME lbl="4" lbc="21" lel="4" lec="30" lblo="4" lbco="21" lelo="4"
             leco="30" lfid="1" lfido="1">UPPER-CASE</FUNC_NAME>
</FUNC_IDENTIFIER>)",
                      visited(F, true)));
  auto *Bare = T.at<FunctionIdentifierExpression>(1, 1, 1, 1);
  EXPECT_TRUE(sameXML("<FUNC_IDENTIFIER/>", visited(Bare)));
}

TEST(SpecialRegisterIdentifierExpression, NamesOfEveryRegister) {
  const std::map<int, const char *> Names = {
      {1, "LINAGE_COUNTER"},   {2, "RETURN_CODE"},
      {3, "SHIFT_IN"},         {4, "SHIFT_OUT"},
      {5, "SORT_CONTROL"},     {6, "SORT_CORE_SIZE"},
      {7, "SORT_FILE_SIZE"},   {8, "SORT_MESSAGE"},
      {9, "SORT_MODE_SIZE"},   {10, "SORT_RETURN"},
      {11, "TALLY"},           {12, "WHEN_COMPILED"},
      {13, "PAGE_COUNTER"},    {14, "LINE_COUNTER"},
      {15, "LENGTH_OF"},       {16, "ADDRESS_OF"},
      {17, "PROGRAM_STATUS"},  {18, "SORT_STATUS"},
      {19, "DB_EXCEPTION"},    {20, "XML_CODE"},
      {21, "XML_EVENT"},       {22, "XML_INFORMATION"},
      {23, "XML_NAMESPACE"},   {24, "XML_NAMESPACE_PREFIX"},
      {25, "XML_NNAMESPACE"},  {26, "XML_NNAMESPACE_PREFIX"},
      {27, "XML_TEXT"},        {28, "XML_NTEXT"},
      {29, "COLUMN_COUNTER"},  {30, "LINE_COUNTER"},
      {31, "PAGE_COUNTER"},    {32, "PRINT_SWITCH"},
      {34, "CURRENT_DATE"}};
  TreeBuilder T;
  for (const auto &N : Names) {
    auto *R = T.at<SpecialRegisterIdentifierExpression>(3, 5, 3, 20);
    R->setType(static_cast<SpecialRegisterType>(N.first));
    R->setRegisterWord(T.word("reg", 3, 5));
    EXPECT_EQ(childText(R, "VALUE"), N.second) << N.first;
  }
  // The report-writer counters are not told apart from the ordinary ones.
  auto TextOf = [&](SpecialRegisterType Ty) {
    auto *R = T.at<SpecialRegisterIdentifierExpression>(3, 5, 3, 20);
    R->setType(Ty);
    R->setRegisterWord(T.word("reg", 3, 5));
    return visited(R);
  };
  EXPECT_EQ(TextOf(SR_RW_PAGE_COUNTER), TextOf(SR_PAGE_COUNTER));
  EXPECT_EQ(TextOf(SR_RW_LINE_COUNTER), TextOf(SR_LINE_COUNTER));

  // LENGTH OF x: the name is located at the keyword, the operand always
  // under FILE_NAME; without a keyword there is no VALUE.
  auto *Len = T.at<SpecialRegisterIdentifierExpression>(7, 12, 7, 25);
  Len->setType(SR_LENGTH_OF);
  Len->setRegisterWord(T.word("Length", 7, 12));
  Len->setIdent(T.dataName("x", 7, 22));
  EXPECT_TRUE(sameXML(R"(
<SPECIAL_REGISTER_IDENTIFIER>
  <VALUE lbl="7" lbc="12" lel="7" lec="17" lblo="7" lbco="12" lelo="7"
         leco="17" lfid="1" lfido="1">LENGTH_OF</VALUE>
  <FILE_NAME lbl="7" lbc="22" lel="7" lec="22" lblo="7" lbco="22" lelo="7"
             leco="22" lfid="1" lfido="1">
    <DATA_IDENTIFIER lbl="7" lbc="22" lel="7" lec="22" lblo="7" lbco="22"
                     lelo="7" leco="22" lfid="1" lfido="1">
      <DATA_ID lbl="7" lbc="22" lel="7" lec="22" lblo="7" lbco="22" lelo="7"
               leco="22" lfid="1" lfido="1">0</DATA_ID>
      <QUALIFIED lbl="7" lbc="22" lel="7" lec="22" lblo="7" lbco="22"
                 lelo="7" leco="22" lfid="1" lfido="1">x</QUALIFIED>
    </DATA_IDENTIFIER>
  </FILE_NAME>
</SPECIAL_REGISTER_IDENTIFIER>)",
                      visited(Len, true)));
  Len->setRegisterWord(nullptr);
  Len->setIdent(nullptr);
  EXPECT_TRUE(sameXML("<SPECIAL_REGISTER_IDENTIFIER/>", visited(Len)));
}

//===----------------------------------------------------------------------===//
// Arithmetic, modifiers and nesting
//===----------------------------------------------------------------------===//

TEST(ArithmeticExpression, OperatorTextsAndOperands) {
  TreeBuilder T;
  const std::map<ArithmeticExprType, const char *> Ops = {
      {ARITH_EXPR_UNARY_PLUS, "U_PLUS"}, {ARITH_EXPR_UNARY_MINUS, "U_MINUS"},
      {ARITH_EXPR_PLUS, "PLUS"},         {ARITH_EXPR_MINUS, "MINUS"},
      {ARITH_EXPR_MULTIPLY, "MULTIPLY"}, {ARITH_EXPR_DIVIDE, "DIVIDE"},
      {ARITH_EXPR_SQUARE, "SQUARE"}};
  for (const auto &Op : Ops) {
    auto *A = T.at<ArithmeticExpression>(2, 1, 2, 9);
    A->setArithmeticExprType(Op.first);
    A->setOperator1(T.word("*", 2, 5));
    EXPECT_EQ(childText(A, "OPERATOR"), Op.second);
  }

  // a ** 2: the operator element is located at its word.
  auto *Pow = T.at<ArithmeticExpression>(2, 1, 2, 6);
  Pow->setArithmeticExprType(ARITH_EXPR_SQUARE);
  Pow->setOperator1(T.word("**", 2, 3));
  Pow->setOperand1(T.dataName("a", 2, 1));
  Pow->setOperand2(literal<NumericLiteralExpression>(T, "2", 2, 6));
  EXPECT_TRUE(sameXML(R"(
<ARITHMETIC_EXPR>
  <OPERAND_LEFT lbl="2" lbc="1" lel="2" lec="1" lblo="2" lbco="1" lelo="2"
                leco="1" lfid="1" lfido="1">
    <DATA_IDENTIFIER lbl="2" lbc="1" lel="2" lec="1" lblo="2" lbco="1"
                     lelo="2" leco="1" lfid="1" lfido="1">
      <DATA_ID lbl="2" lbc="1" lel="2" lec="1" lblo="2" lbco="1" lelo="2"
               leco="1" lfid="1" lfido="1">0</DATA_ID>
      <QUALIFIED lbl="2" lbc="1" lel="2" lec="1" lblo="2" lbco="1" lelo="2"
                 leco="1" lfid="1" lfido="1">a</QUALIFIED>
    </DATA_IDENTIFIER>
  </OPERAND_LEFT>
  <OPERATOR lbl="2" lbc="3" lel="2" lec="4" lblo="2" lbco="3" lelo="2"
            leco="4" lfid="1" lfido="1">SQUARE</OPERATOR>
  <OPERAND_RIGHT lbl="2" lbc="6" lel="2" lec="8" lblo="2" lbco="6" lelo="2"
                 leco="8" lfid="1" lfido="1">
    <VALUE lbl="2" lbc="6" lel="2" lec="8" lblo="2" lbco="6" lelo="2"
           leco="8" lfid="1" lfido="1">2</VALUE>
  </OPERAND_RIGHT>
</ARITHMETIC_EXPR>)",
                      visited(Pow, true)));

  // A unary minus has one operand; an expression whose operator word is
  // missing has no OPERATOR.
  auto *Neg = T.at<ArithmeticExpression>(3, 1, 3, 3);
  Neg->setArithmeticExprType(ARITH_EXPR_UNARY_MINUS);
  Neg->setOperator1(T.word("-", 3, 1));
  Neg->setOperand1(literal<NumericLiteralExpression>(T, "7", 3, 2));
  EXPECT_TRUE(sameXML(
      "<ARITHMETIC_EXPR><OPERATOR>U_MINUS</OPERATOR>"
      "<OPERAND_LEFT><VALUE>7</VALUE></OPERAND_LEFT></ARITHMETIC_EXPR>",
      visited(Neg)));
  Neg->setOperator1(nullptr);
  EXPECT_TRUE(sameXML(
      "<ARITHMETIC_EXPR><OPERAND_LEFT><VALUE>7</VALUE></OPERAND_LEFT>"
      "</ARITHMETIC_EXPR>",
      visited(Neg)));
}

TEST(SubscriptModifier, ListCountsNullItemsAndSpansItsItems) {
  TreeBuilder T;
  auto *S = T.at<SubscriptModifier>(4, 10, 6, 14);
  S->addSubscript(literal<NumericLiteralExpression>(T, "1", 4, 11));
  S->addSubscript(nullptr);
  S->addSubscript(T.copied(literal<NumericLiteralExpression>(T, "3", 6, 11),
                           "C.cpy", 2, 11, 2, 13));
  EXPECT_TRUE(sameXML(R"(
<SUBSCRIPT_MODIFIER>
  <SubscriptList size="3" name="ExprList" lbl="4" lbc="11" lblo="4"
                 lbco="11" lel="6" lec="13" lelo="2" leco="13">
    <VALUE lbl="4" lbc="11" lel="4" lec="13" lblo="4" lbco="11" lelo="4"
           leco="13" lfid="1" lfido="1">1</VALUE>
    <VALUE lbl="6" lbc="11" lel="6" lec="13" lblo="2" lbco="11" lelo="2"
           leco="13" lfid="1" lfido="2">3</VALUE>
  </SubscriptList>
</SUBSCRIPT_MODIFIER>)",
                      visited(S, true)));
  EXPECT_TRUE(sameXML("<SUBSCRIPT_MODIFIER/>",
                      visited(T.at<SubscriptModifier>(1, 1, 1, 1))));
  EXPECT_TRUE(sameXML("<REFERENCE_MODIFIER/>",
                      visited(T.at<ReferenceModifier>(1, 1, 1, 1))));
}

TEST(ExpressionNesting, ArithmeticInSubscriptInReferenceModifiedName) {
  TreeBuilder T;
  // tab (i + 1) (k:) with tab resolved to entry 7
  auto *Entry = T.at<ExDataDescription>(2, 8, 2, 40);
  Entry->setID(7);
  auto *Sum = T.at<ArithmeticExpression>(8, 17, 8, 21);
  Sum->setArithmeticExprType(ARITH_EXPR_PLUS);
  Sum->setOperator1(T.word("+", 8, 19));
  Sum->setOperand1(T.dataName("i", 8, 17));
  Sum->setOperand2(literal<NumericLiteralExpression>(T, "1", 8, 21));
  auto *Sub = T.at<SubscriptModifier>(8, 16, 8, 22);
  Sub->addSubscript(Sum);
  auto *Ref = T.at<ReferenceModifier>(8, 24, 8, 27);
  Ref->setFromExpr(T.dataName("k", 8, 25));
  auto *D = T.dataName("tab", 8, 12);
  D->setTarget(Entry);
  D->setSubscriptMod(Sub);
  D->setReferenceMod(Ref);
  EXPECT_TRUE(sameXML(R"(
<DATA_IDENTIFIER>
  <DATA_ID>7</DATA_ID>
  <QUALIFIED>tab</QUALIFIED>
  <SUBSCRIPT>
    <SUBSCRIPT_MODIFIER>
      <SubscriptList size="1" name="ExprList">
        <ARITHMETIC_EXPR>
          <OPERAND_LEFT>
            <DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>i</QUALIFIED>
            </DATA_IDENTIFIER>
          </OPERAND_LEFT>
          <OPERATOR>PLUS</OPERATOR>
          <OPERAND_RIGHT><VALUE>1</VALUE></OPERAND_RIGHT>
        </ARITHMETIC_EXPR>
      </SubscriptList>
    </SUBSCRIPT_MODIFIER>
  </SUBSCRIPT>
  <REFERENCE_MODIFIER>
    <START_POSITION>
      <DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>k</QUALIFIED>
      </DATA_IDENTIFIER>
    </START_POSITION>
  </REFERENCE_MODIFIER>
</DATA_IDENTIFIER>)",
                      visited(static_cast<Expression *>(D))));
}

//===----------------------------------------------------------------------===//
// Abbreviated combined relations
//===----------------------------------------------------------------------===//

/// An abbreviated relation condition holding a one-operand abbreviated
/// combined relation, spanning Line:Col-Line:Col+2.
AbbrRelationalCondition *abbrItemCond(TreeBuilder &T, const std::string &V,
                                      uint32_t Line, uint32_t Col) {
  auto *X = T.at<AbbrRelationCombinedExpression>(Line, Col, Line, Col + 2);
  X->setLeft(literal<NumericLiteralExpression>(T, V, Line, Col));
  auto *C = T.at<AbbrRelationalCondition>(Line, Col, Line, Col + 2);
  C->setRight(X);
  return C;
}

TEST(AbbrRelationCombinedExpression, ConnectivesOperandsAndParenthList) {
  TreeBuilder T;
  // a = 1 OR (> 5 AND 6 OR 7)
  auto *Rel = T.at<RelationalCondition>(3, 12, 3, 16);
  Rel->setConditionType(REL_OP_EQ);
  Rel->setLeft(T.dataName("a", 3, 12));
  Rel->setRight(literal<NumericLiteralExpression>(T, "1", 3, 16));
  auto *X = T.at<AbbrRelationCombinedExpression>(3, 12, 3, 40);
  X->setType(ABBR_COMB_OR);
  X->setOpWord(T.word("or", 3, 18));
  X->setLeft(literal<NumericLiteralExpression>(T, "1", 3, 16));
  X->setRight(Rel);
  X->setParenthOperator(REL_OP_GT);
  auto *First = T.at<AbbrCondItem>(3, 24, 3, 26);
  First->setCond(abbrItemCond(T, "5", 3, 24));
  auto *Second = T.at<AbbrCondItem>(3, 28, 3, 34);
  Second->setType(ABBR_COMB_AND);
  Second->setOpWord(T.word("and", 3, 28));
  Second->setCond(abbrItemCond(T, "6", 3, 32));
  auto *NoCond = T.at<AbbrCondItem>(3, 34, 3, 35);
  NoCond->setType(ABBR_COMB_OR);
  NoCond->setOpWord(T.word("or", 3, 34));
  auto *Third = T.at<AbbrCondItem>(3, 36, 3, 39);
  Third->setType(ABBR_COMB_OR_NOT);
  Third->setOpWord(T.word("or", 3, 36));
  Third->setCond(abbrItemCond(T, "7", 3, 39));
  X->addAbbrCond(First);
  X->addAbbrCond(Second);
  X->addAbbrCond(nullptr);
  X->addAbbrCond(NoCond);
  X->addAbbrCond(Third);
  // The list's operator is located at the whole expression, so it follows
  // the right part that starts there too; the list's element has no
  // location and follows everything else; each connective is located at the
  // relation it introduces.
  EXPECT_TRUE(sameXML(R"(
<ABBR_RELATION_EXPR>
  <RIGHT lbl="3" lbc="12" lel="3" lec="16" lblo="3" lbco="12" lelo="3"
         leco="16" lfid="1" lfido="1">
    <RELATIONAL_CONDITION lbl="3" lbc="12" lel="3" lec="16" lblo="3"
                          lbco="12" lelo="3" leco="16" lfid="1" lfido="1">
      <LEFT lbl="3" lbc="12" lel="3" lec="12" lblo="3" lbco="12" lelo="3"
            leco="12" lfid="1" lfido="1">
        <DATA_IDENTIFIER lbl="3" lbc="12" lel="3" lec="12" lblo="3"
                         lbco="12" lelo="3" leco="12" lfid="1" lfido="1">
          <DATA_ID lbl="3" lbc="12" lel="3" lec="12" lblo="3" lbco="12"
                   lelo="3" leco="12" lfid="1" lfido="1">0</DATA_ID>
          <QUALIFIED lbl="3" lbc="12" lel="3" lec="12" lblo="3" lbco="12"
                     lelo="3" leco="12" lfid="1" lfido="1">a</QUALIFIED>
        </DATA_IDENTIFIER>
      </LEFT>
      <TYPE lbl="3" lbc="16" lel="3" lec="18" lblo="3" lbco="16" lelo="3"
            leco="18" lfid="1" lfido="1">EQ</TYPE>
      <RIGHT lbl="3" lbc="16" lel="3" lec="18" lblo="3" lbco="16" lelo="3"
             leco="18" lfid="1" lfido="1">
        <VALUE lbl="3" lbc="16" lel="3" lec="18" lblo="3" lbco="16" lelo="3"
               leco="18" lfid="1" lfido="1">1</VALUE>
      </RIGHT>
    </RELATIONAL_CONDITION>
  </RIGHT>
  <PARENTH_RELTYPE lbl="3" lbc="12" lel="3" lec="40" lblo="3" lbco="12"
                   lelo="3" leco="40" lfid="1" lfido="1">GT</PARENTH_RELTYPE>
  <LEFT lbl="3" lbc="16" lel="3" lec="18" lblo="3" lbco="16" lelo="3"
        leco="18" lfid="1" lfido="1">
    <VALUE lbl="3" lbc="16" lel="3" lec="18" lblo="3" lbco="16" lelo="3"
           leco="18" lfid="1" lfido="1">1</VALUE>
  </LEFT>
  <TYPE lbl="3" lbc="18" lel="3" lec="19" lblo="3" lbco="18" lelo="3"
        leco="19" lfid="1" lfido="1">OR</TYPE>
  <RIGHT_PARENTH>
    <ABBR_RELATION_CONDITION lbl="3" lbc="24" lel="3" lec="26" lblo="3"
                             lbco="24" lelo="3" leco="26" lfid="1" lfido="1">
      <ABBR_RELATION_EXPR lbl="3" lbc="24" lel="3" lec="26" lblo="3"
                          lbco="24" lelo="3" leco="26" lfid="1" lfido="1">
        <LEFT lbl="3" lbc="24" lel="3" lec="26" lblo="3" lbco="24" lelo="3"
              leco="26" lfid="1" lfido="1">
          <VALUE lbl="3" lbc="24" lel="3" lec="26" lblo="3" lbco="24"
                 lelo="3" leco="26" lfid="1" lfido="1">5</VALUE>
        </LEFT>
      </ABBR_RELATION_EXPR>
    </ABBR_RELATION_CONDITION>
    <TYPE lbl="3" lbc="32" lel="3" lec="34" lblo="3" lbco="32" lelo="3"
          leco="34" lfid="1" lfido="1">AND</TYPE>
    <ABBR_RELATION_CONDITION lbl="3" lbc="32" lel="3" lec="34" lblo="3"
                             lbco="32" lelo="3" leco="34" lfid="1" lfido="1">
      <ABBR_RELATION_EXPR lbl="3" lbc="32" lel="3" lec="34" lblo="3"
                          lbco="32" lelo="3" leco="34" lfid="1" lfido="1">
        <LEFT lbl="3" lbc="32" lel="3" lec="34" lblo="3" lbco="32" lelo="3"
              leco="34" lfid="1" lfido="1">
          <VALUE lbl="3" lbc="32" lel="3" lec="34" lblo="3" lbco="32"
                 lelo="3" leco="34" lfid="1" lfido="1">6</VALUE>
        </LEFT>
      </ABBR_RELATION_EXPR>
    </ABBR_RELATION_CONDITION>
    <TYPE lbl="3" lbc="39" lel="3" lec="41" lblo="3" lbco="39" lelo="3"
          leco="41" lfid="1" lfido="1">OR</TYPE>
    <ABBR_RELATION_CONDITION lbl="3" lbc="39" lel="3" lec="41" lblo="3"
                             lbco="39" lelo="3" leco="41" lfid="1" lfido="1">
      <ABBR_RELATION_EXPR lbl="3" lbc="39" lel="3" lec="41" lblo="3"
                          lbco="39" lelo="3" leco="41" lfid="1" lfido="1">
        <LEFT lbl="3" lbc="39" lel="3" lec="41" lblo="3" lbco="39" lelo="3"
              leco="41" lfid="1" lfido="1">
          <VALUE lbl="3" lbc="39" lel="3" lec="41" lblo="3" lbco="39"
                 lelo="3" leco="41" lfid="1" lfido="1">7</VALUE>
        </LEFT>
      </ABBR_RELATION_EXPR>
    </ABBR_RELATION_CONDITION>
  </RIGHT_PARENTH>
</ABBR_RELATION_EXPR>)",
                      visited(X, true)));
}

TEST(AbbrRelationCombinedExpression, ConnectiveAndListOperatorTexts) {
  TreeBuilder T;
  // Connectives: a trailing NOT is not told apart; unknown values give an
  // empty text, not an abort.
  const std::map<int, const char *> Connectives = {
      {0, ""},    {1, "OR"},   {2, "AND"}, {3, "EXOR"},
      {4, "OR"},  {5, "AND"},  {6, "EXOR"}, {7, ""}};
  for (const auto &C : Connectives) {
    auto *X = T.at<AbbrRelationCombinedExpression>(1, 1, 1, 9);
    X->setType(static_cast<AbbrRelationCombinedType>(C.first));
    X->setOpWord(T.word("or", 1, 3));
    auto *Item = T.at<AbbrCondItem>(1, 5, 1, 9);
    Item->setType(static_cast<AbbrRelationCombinedType>(C.first));
    Item->setOpWord(T.word("or", 1, 5));
    Item->setCond(abbrItemCond(T, "1", 1, 8));
    X->addAbbrCond(Item);
    EXPECT_EQ(childText(X, "TYPE"), C.second) << C.first;
    Emitter E;
    E.visit(X);
    XMLElement *Type = E.handler()
                           .getRetElement()
                           ->FirstChildElement("RIGHT_PARENTH")
                           ->FirstChildElement("TYPE");
    ASSERT_NE(Type, nullptr);
    EXPECT_STREQ(Type->GetText() ? Type->GetText() : "", C.second);
  }
  // The list's operator; none (or NOT alone) writes no element at all.
  const std::map<int, const char *> Operators = {
      {0, "<none>"}, {1, "<none>"}, {2, "GT"}, {3, "LT"},
      {4, "EQ"},     {5, "GE"},     {6, "LE"}, {7, "NE"}, {8, "<none>"}};
  for (const auto &Op : Operators) {
    auto *X = T.at<AbbrRelationCombinedExpression>(1, 1, 1, 9);
    X->setParenthOperator(static_cast<RelationalConditionType>(Op.first));
    X->addAbbrCond(T.at<AbbrCondItem>(1, 5, 1, 9));
    EXPECT_EQ(childText(X, "PARENTH_RELTYPE"), Op.second) << Op.first;
  }
  // Without a list there is neither a list operator nor a list element,
  // while a list of items without relations still gets its element.
  auto *NoList = T.at<AbbrRelationCombinedExpression>(1, 1, 1, 9);
  NoList->setParenthOperator(REL_OP_LT);
  EXPECT_TRUE(sameXML("<ABBR_RELATION_EXPR/>", visited(NoList)));
  NoList->addAbbrCond(T.at<AbbrCondItem>(1, 5, 1, 9));
  EXPECT_TRUE(sameXML(
      "<ABBR_RELATION_EXPR><PARENTH_RELTYPE>LT</PARENTH_RELTYPE>"
      "<RIGHT_PARENTH/></ABBR_RELATION_EXPR>",
      visited(NoList)));
}

//===----------------------------------------------------------------------===//
// Dispatch
//===----------------------------------------------------------------------===//

TEST(ExpressionDispatch, EveryTypeReachesItsVisit) {
  TreeBuilder T;
  auto *Num = T.at<NumericLiteralExpression>(1, 1, 1, 1);
  auto *Str = T.at<NonNumericLiteralExpression>(1, 1, 1, 1);
  auto *Fig = T.at<FigurativeLiteralExpression>(1, 1, 1, 1);
  auto *Data = T.at<DataIdentifierExpression>(1, 1, 1, 1);
  auto *ExData = T.at<ExDataIdentifierExpression>(1, 1, 1, 1);
  auto *Func = T.at<FunctionIdentifierExpression>(1, 1, 1, 1);
  auto *Reg = T.at<SpecialRegisterIdentifierExpression>(1, 1, 1, 1);
  Reg->setType(SR_TALLY);
  auto *Arith = T.at<ArithmeticExpression>(1, 1, 1, 1);
  Arith->setArithmeticExprType(ARITH_EXPR_PLUS);
  auto *Abbr = T.at<AbbrRelationCombinedExpression>(1, 1, 1, 1);

  EXPECT_EQ(rootTag<Expression>(Num), "VALUE");
  EXPECT_EQ(rootTag<Expression>(Str), "VALUE");
  EXPECT_EQ(rootTag<Expression>(Fig), "FIGURATIVE_CONSTANT");
  EXPECT_EQ(rootTag<Expression>(Data), "DATA_IDENTIFIER");
  EXPECT_EQ(rootTag<Expression>(ExData), "DATA_IDENTIFIER");
  EXPECT_EQ(rootTag<Expression>(Func), "FUNC_IDENTIFIER");
  EXPECT_EQ(rootTag<Expression>(Reg), "SPECIAL_REGISTER_IDENTIFIER");
  EXPECT_EQ(rootTag<Expression>(Arith), "ARITHMETIC_EXPR");
  EXPECT_EQ(rootTag<Expression>(Abbr), "ABBR_RELATION_EXPR");
  EXPECT_EQ(rootTag<LiteralExpression>(Num), "VALUE");
  EXPECT_EQ(rootTag<LiteralExpression>(Fig), "FIGURATIVE_CONSTANT");
  EXPECT_EQ(rootTag<IdentifierExpression>(ExData), "DATA_IDENTIFIER");
  EXPECT_EQ(rootTag<IdentifierExpression>(Func), "FUNC_IDENTIFIER");
  EXPECT_EQ(rootTag<IdentifierExpression>(Reg), "SPECIAL_REGISTER_IDENTIFIER");
  // The non-numeric screening is reached through the literal dispatcher.
  Str->setData("\xe9t\xe9");
  Emitter E;
  E.visit(static_cast<LiteralExpression *>(Str));
  EXPECT_STREQ(E.handler().getRetElement()->GetText(), "DUMMY_LITERAL");
}

/// Overrides one concrete visit: the dispatchers must reach it.
struct NumberMarker : Emitter {
  using XMLOstrel::visit;
  void visit(NumericLiteralExpression *) override {
    Handler->setRetElement(Handler->newRetElement("MARKED"));
  }
};

TEST(ExpressionDispatch, ConcreteVisitsAreCalledVirtually) {
  TreeBuilder T;
  auto *Num = T.at<NumericLiteralExpression>(1, 5, 1, 6);
  auto *Sum = T.at<ArithmeticExpression>(1, 1, 1, 6);
  Sum->setArithmeticExprType(ARITH_EXPR_PLUS);
  Sum->setOperand2(Num);
  NumberMarker M;
  M.visit(static_cast<Expression *>(Num));
  EXPECT_STREQ(M.handler().getRetElement()->Name(), "MARKED");
  M.visit(static_cast<LiteralExpression *>(Num));
  EXPECT_STREQ(M.handler().getRetElement()->Name(), "MARKED");
  M.visit(Sum);
  XMLElement *Own = M.handler().getRetElement();
  EXPECT_STREQ(Own->Name(), "ARITHMETIC_EXPR");
  EXPECT_STREQ(Own->FirstChildElement("OPERAND_RIGHT")->FirstChildElement()
                   ->Name(),
               "MARKED");
}

TEST(ExpressionDeathTest, ImpossibleValuesAbort) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const std::string At = "lib/Visitor/XMLOstrel/Expression.cpp:[0-9]+: "
                         "virtual void korvid::XMLOstrel::visit";
  const std::string Zero = ": Assertion `0' failed";
  const std::string Impossible = ": Assertion `0 && \"impossible\"' failed";
  TreeBuilder T;
  Emitter E;

  auto *Expr = T.at<Expression>(1, 1, 1, 2);
  EXPECT_DEATH(E.visit(Expr),
               At + "\\(korvid::Expression\\*\\)" + Zero);
  Expr->setExprType(static_cast<ExpressionType>(9));
  EXPECT_DEATH(E.visit(Expr), At + "\\(korvid::Expression\\*\\)" + Zero);

  // The narrower dispatchers take only their own values.
  auto *Lit = T.at<LiteralExpression>(1, 1, 1, 2);
  for (ExpressionType Ty : {EXPR_NONE, EXPR_IDENT_DATA, EXPR_ARITH}) {
    Lit->setExprType(Ty);
    EXPECT_DEATH(E.visit(Lit),
                 At + "\\(korvid::LiteralExpression\\*\\)" + Zero);
  }
  auto *Id = T.at<IdentifierExpression>(1, 1, 1, 2);
  for (ExpressionType Ty : {EXPR_NONE, EXPR_LITRL_FIGR, EXPR_ARITH}) {
    Id->setExprType(Ty);
    EXPECT_DEATH(E.visit(Id),
                 At + "\\(korvid::IdentifierExpression\\*\\)" + Zero);
  }

  // TIME-OF-DAY has no name and aborts like an unknown register.
  auto *Reg = T.at<SpecialRegisterIdentifierExpression>(1, 1, 1, 2);
  Reg->setRegisterWord(T.word("time-of-day", 1, 1));
  for (int Ty : {0, 33, 35}) {
    Reg->setType(static_cast<SpecialRegisterType>(Ty));
    EXPECT_DEATH(E.visit(static_cast<Expression *>(Reg)),
                 At + "\\(korvid::SpecialRegisterIdentifierExpression\\*\\)" +
                     Impossible)
        << Ty;
  }

  auto *Arith = T.at<ArithmeticExpression>(1, 1, 1, 2);
  for (int Ty : {0, 8}) {
    Arith->setArithmeticExprType(static_cast<ArithmeticExprType>(Ty));
    EXPECT_DEATH(E.visit(Arith),
                 At + "\\(korvid::ArithmeticExpression\\*\\)" + Impossible)
        << Ty;
  }
}

} // namespace
