//===- tests/ProcedureTest.cpp - Procedure division and its statements ----===//
//
// The division's flattening, the statement dispatch and frame, and the
// arithmetic, control-flow, inter-program and data-manipulation statements.
//
// Operands and conditions are written by stand-in visits (ID, LIT, NUM,
// COND) so that these tests see only the statements' own structure.
//
//===----------------------------------------------------------------------===//

#include "TreeBuilder.h"
#include "EmitterHarness.h"
#include "XMLCompare.h"
#include "korvid/XMLOstrel.h"

#include <tinyxml2.h>

#include <string>

using namespace korvid;
using korvid::test::sameXML;
using korvid::test::TreeBuilder;

namespace {

/// The emitter with the expression and condition leaves replaced by small
/// stand-ins; everything else is the real emitter.
struct ProcEmitter : korvid::test::TestEmitter {
  using XMLOstrel::visit;

  void text(const char *Tag, const std::string &Text) {
    tinyxml2::XMLElement *Own = Handler->newRetElement(Tag);
    Handler->appendChildLast(Handler->newText(Text.c_str()), Own);
    Handler->setRetElement(Own);
  }
  void visit(DataIdentifierExpression *E) override {
    text("ID", E->getName()->getRearWord()->getWordDataOrg());
  }
  void visit(NonNumericLiteralExpression *E) override {
    text("LIT", E->getData());
  }
  void visit(NumericLiteralExpression *E) override { text("NUM", E->getData()); }
  void visit(ConditionNameCondition *C) override {
    text("COND", C->getConditionName()->getName()->getRearWord()->getWordDataOrg());
  }
};

/// The element a visit of \p N leaves, printed alone, with the stand-ins.
template <class T> std::string render(T *N, bool Locations = false) {
  ProcEmitter E;
  return E.visited(N, Locations);
}

/// Shorthands for the operands and statements of these tests.
struct Tree : TreeBuilder {
  DataIdentifierExpression *id(const std::string &Name, uint32_t L,
                               uint32_t C) {
    Word *W = word(Name, L, C);
    auto *Q = at<QualifiedWord>(L, C, W->getEndLineNo(), W->getEndCharPos(),
                                nullptr, W);
    auto *D = at<DataIdentifierExpression>(L, C, W->getEndLineNo(),
                                           W->getEndCharPos());
    D->setName(Q);
    return D;
  }
  NonNumericLiteralExpression *lit(const std::string &Data, uint32_t L,
                                   uint32_t C) {
    auto *E = at<NonNumericLiteralExpression>(
        L, C, L, C + static_cast<uint32_t>(Data.size()) + 1);
    E->setData(Data);
    return E;
  }
  NumericLiteralExpression *num(const std::string &Data, uint32_t L,
                                uint32_t C) {
    auto *E = at<NumericLiteralExpression>(
        L, C, L, C + static_cast<uint32_t>(Data.size()) - 1);
    E->setData(Data);
    return E;
  }
  /// A receiver spanning its operand (and a ROUNDED word, when given).
  RoundedExpression *rnd(Expression *E, Word *Rounded = nullptr) {
    auto *R = P.create<RoundedExpression>();
    R->setExtent(E, Rounded ? static_cast<Node *>(Rounded) : E);
    R->setExpression(E);
    R->setRoundedWord(Rounded);
    return R;
  }
  ConditionNameCondition *cond(const std::string &Name, uint32_t L,
                               uint32_t C) {
    DataIdentifierExpression *D = id(Name, L, C);
    auto *Cond = at<ConditionNameCondition>(L, C, D->getEndLineNo(),
                                            D->getEndCharPos());
    Cond->setConditionName(D);
    return Cond;
  }
  QualifiedWord *qname(const std::string &Name, uint32_t L, uint32_t C) {
    Word *W = word(Name, L, C);
    return at<QualifiedWord>(L, C, L, W->getEndCharPos(), nullptr, W);
  }
  /// A statement of class S on line \p L from column \p C to \p EC.
  template <class S> S *stmt(uint32_t L, uint32_t C, uint32_t EC = 72) {
    return at<S>(L, C, L, EC);
  }
  ExceptionHandler *handler(ExceptionType Type, bool Negated, uint32_t L,
                            uint32_t C) {
    auto *H = at<ExceptionHandler>(L, C, L, 72);
    H->setType(Type);
    H->setIsNegate(Negated);
    return H;
  }
  Sentence *sentence(std::initializer_list<Statement *> Stmts) {
    auto *S = P.create<Sentence>();
    for (Statement *St : Stmts)
      S->addStmt(St);
    Statement *First = Stmts.size() ? *Stmts.begin() : nullptr;
    Statement *Last = Stmts.size() ? *(Stmts.end() - 1) : nullptr;
    S->setExtent(First, Last);
    return S;
  }
};

//===----------------------------------------------------------------------===//
// The division and the structural visits
//===----------------------------------------------------------------------===//

TEST(ProcedureDivision, StatementsComeOutFlatAndInSourceOrder) {
  Tree T;
  auto *D = T.at<ProcedureDivision>(1, 8, 30, 20);
  // USING BY REFERENCE A B: one group, two parameters.
  auto *Params = T.at<ParamPhrase>(1, 27, 1, 60);
  auto *Group = T.at<Parameter>(1, 33, 1, 60);
  Group->setType(PARAM_REFERENCE);
  Group->addIdent(T.id("A", 1, 48));
  Group->addIdent(T.id("B", 1, 50));
  Params->addParam(Group);
  D->setParameters(Params);

  // Loose sentences before the first paragraph.
  auto *Recovered = T.stmt<Statement>(3, 20);
  Recovered->setType(STMT_ERR_RECOV);
  D->addSent(T.sentence({T.stmt<ContinueStatement>(2, 12), Recovered,
                         nullptr, T.stmt<ExitStatement>(3, 12, 18)}));
  // A paragraph of the division.
  auto *P1 = T.at<Paragraph>(4, 8, 6, 30);
  P1->setName(T.word("p1", 4, 8));
  P1->addSent(T.sentence({T.stmt<GobackStatement>(5, 12)}));
  D->addPara(P1);
  // A section: its own sentence stands before its paragraph in the source
  // but is collected after it.
  auto *S1 = T.at<Section>(7, 8, 12, 30);
  S1->setName(T.word("s1", 7, 8));
  S1->addSent(T.sentence({T.stmt<ReadyTraceStatement>(8, 12)}));
  auto *P2 = T.at<Paragraph>(9, 8, 12, 30);
  P2->addSent(T.sentence({T.stmt<ResetTraceStatement>(10, 12)}));
  P2->addSent(T.sentence({T.stmt<NextSentenceStatement>(11, 12)}));
  S1->addPara(P2);
  S1->addPara(nullptr);
  D->addSect(S1);
  auto *S2 = T.at<Section>(13, 8, 15, 30);
  auto *P3 = T.at<Paragraph>(14, 8, 15, 30);
  P3->addSent(T.sentence({T.stmt<ExitProgramStatement>(15, 12)}));
  S2->addPara(P3);
  D->addSect(S2);
  D->addSect(nullptr);

  EXPECT_TRUE(sameXML(R"(
<PROCEDURE_DIVISION>
  <PARAM_LIST>
    <PARAM><PARAM_TYPE>BY_REFERENCE</PARAM_TYPE><VALUE><ID>A</ID></VALUE></PARAM>
    <PARAM><PARAM_TYPE>BY_REFERENCE</PARAM_TYPE><VALUE><ID>B</ID></VALUE></PARAM>
  </PARAM_LIST>
  <CONTINUE_STATEMENT/>
  <EXIT_STATEMENT/>
  <GOBACK_STATEMENT/>
  <READY_TRACE_STATEMENT/>
  <RESET_TRACE_STATEMENT/>
  <NEXT_SENTENCE_STATEMENT/>
  <EXIT_PROGRAM_STATEMENT/>
</PROCEDURE_DIVISION>)",
                      render(D)));
}

TEST(ProcedureDivision, OldDialectAndStringReferenceStatements) {
  // A type-48 statement is an empty element at the statement. A type-59
  // statement writes nothing, and the element still in the slot is located
  // at it and placed again: here the CONTINUE before it moves to line 9,
  // after the EXIT of line 6.
  Tree T;
  auto *D = T.at<ProcedureDivision>(1, 8, 30, 20);
  auto *Classic = T.stmt<Statement>(4, 12, 30);
  Classic->setType(STMT_CLASSIC);
  auto *Ref = T.stmt<Statement>(9, 12, 20);
  Ref->setType(STMT_STRINGREF);
  D->addSent(T.sentence({T.stmt<ContinueStatement>(3, 12, 19), Ref}));
  auto *P1 = T.at<Paragraph>(4, 8, 7, 30);
  P1->addSent(T.sentence({Classic}));
  P1->addSent(T.sentence({T.stmt<ExitStatement>(6, 12, 15)}));
  D->addPara(P1);
  EXPECT_TRUE(sameXML(R"(
<PROCEDURE_DIVISION>
  <OSVS_COBOL_STATEMENT lbl="4" lbc="12" lel="4" lec="30" lblo="4" lbco="12"
                        lelo="4" leco="30" lfid="1" lfido="1"/>
  <EXIT_STATEMENT lbl="6" lbc="12" lel="6" lec="15" lblo="6" lbco="12"
                  lelo="6" leco="15" lfid="1" lfido="1"/>
  <CONTINUE_STATEMENT lbl="9" lbc="12" lel="9" lec="20" lblo="9" lbco="12"
                      lelo="9" leco="20" lfid="1" lfido="1"/>
</PROCEDURE_DIVISION>)",
                      render(D, true)));

  // As the first statement of a division without USING, a type-59
  // statement finds the division's own element in the slot: it is located
  // at the statement (its caller locates it again) and gets no child.
  Tree U;
  auto *D2 = U.at<ProcedureDivision>(1, 8, 30, 20);
  auto *Ref2 = U.stmt<Statement>(2, 12, 20);
  Ref2->setType(STMT_STRINGREF);
  D2->addSent(U.sentence({Ref2}));
  EXPECT_TRUE(sameXML(R"(
<PROCEDURE_DIVISION lbl="2" lbc="12" lel="2" lec="20" lblo="2" lbco="12"
                    lelo="2" leco="20" lfid="1" lfido="1"/>)",
                      render(D2, true)));
}

TEST(ProcedureStructure, SectionParagraphAndSentence) {
  // A sentence has no element: only its last statement's element is placed,
  // located at the whole sentence.
  Tree T;
  auto *S = T.at<Section>(2, 8, 9, 30);
  S->setName(T.word("Main-Sect", 2, 8));
  S->addSent(T.sentence({T.stmt<ContinueStatement>(3, 12, 19),
                         T.stmt<GobackStatement>(3, 21, 26)}));
  auto *P = T.at<Paragraph>(5, 8, 9, 30);
  P->setName(T.word("Para-1", 5, 8));
  P->addSent(T.sentence({T.stmt<ExitStatement>(6, 12, 15)}));
  S->addPara(P);
  auto *Unnamed = T.at<Paragraph>(8, 8, 9, 30);
  Unnamed->addSent(T.sentence({T.stmt<ExitProgramStatement>(8, 12, 23)}));
  S->addPara(Unnamed);
  EXPECT_TRUE(sameXML(R"(
<SECTION NAME="MAIN-SECT">
  <GOBACK_STATEMENT lbl="3" lbc="12" lel="3" lec="26" lblo="3" lbco="12"
                    lelo="3" leco="26" lfid="1" lfido="1"/>
  <PARAGRAPH NAME="PARA-1" lbl="5" lbc="8" lel="9" lec="30" lblo="5" lbco="8"
             lelo="9" leco="30" lfid="1" lfido="1">
    <NAME lbl="5" lbc="8" lel="5" lec="13" lblo="5" lbco="8" lelo="5"
          leco="13" lfid="1" lfido="1">Para-1</NAME>
    <EXIT_STATEMENT lbl="6" lbc="12" lel="6" lec="15" lblo="6" lbco="12"
                    lelo="6" leco="15" lfid="1" lfido="1"/>
  </PARAGRAPH>
  <PARAGRAPH lbl="8" lbc="8" lel="9" lec="30" lblo="8" lbco="8" lelo="9"
             leco="30" lfid="1" lfido="1">
    <EXIT_PROGRAM_STATEMENT lbl="8" lbc="12" lel="8" lec="23" lblo="8"
                            lbco="12" lelo="8" leco="23" lfid="1" lfido="1"/>
  </PARAGRAPH>
</SECTION>)",
                      render(S, true)));
}

//===----------------------------------------------------------------------===//
// The statement frame
//===----------------------------------------------------------------------===//

TEST(StatementFrame, DispatchWritesNothingForRecoveryAndStringReference) {
  Tree T;
  ProcEmitter E;
  tinyxml2::XMLElement *Before = E.handler().newRetElement("BEFORE");
  for (StatementType Type : {STMT_STRINGREF, STMT_ERR_RECOV}) {
    auto *S = T.stmt<Statement>(2, 12);
    S->setType(Type);
    E.visit(S);
    EXPECT_EQ(E.handler().getRetElement(), Before) << Type;
  }
  auto *Classic = T.stmt<Statement>(2, 12);
  Classic->setType(STMT_CLASSIC);
  EXPECT_TRUE(sameXML("<OSVS_COBOL_STATEMENT/>", render(Classic)));
}

TEST(StatementFrame, ExceptionPhrases) {
  Tree T;
  const struct {
    ExceptionType Type;
    bool Negated;
    const char *Text;
  } Cases[] = {{EXCEPTION_ON, false, "ON_EXCEPTION"},
               {EXCEPTION_ON, true, "NOT_ON_EXCEPTION"},
               {EXCEPTION_SIZE, false, "ON_SIZE_ERROR"},
               {EXCEPTION_SIZE, true, "NOT_ON_SIZE_ERROR"},
               {EXCEPTION_END, false, "AT_END"},
               {EXCEPTION_END, true, "NOT_AT_END"},
               {EXCEPTION_INVALIDKEY, false, "INVALID_KEY"},
               {EXCEPTION_INVALIDKEY, true, "NOT_INVALID_KEY"},
               {EXCEPTION_OVERFLOW, false, "ON_OVERFLOW"},
               {EXCEPTION_OVERFLOW, true, "NOT_ON_OVERFLOW"},
               {EXCEPTION_ENDOFPAGE, false, "AT_END_OF_PAGE"},
               {EXCEPTION_ENDOFPAGE, true, "NOT_AT_END_OF_PAGE"}};
  for (const auto &C : Cases)
    EXPECT_TRUE(sameXML(std::string("<EXCEPTION><TYPE>") + C.Text +
                            "</TYPE></EXCEPTION>",
                        render(T.handler(C.Type, C.Negated, 4, 12))))
        << C.Text;

  // The TYPE is located at the whole phrase; the imperative statements
  // follow flat, error-recovery statements and null ones left out.
  auto *H = T.handler(EXCEPTION_SIZE, true, 4, 12);
  auto *Recovered = T.stmt<Statement>(4, 40, 50);
  Recovered->setType(STMT_ERR_RECOV);
  H->addImperStmt(T.stmt<ContinueStatement>(4, 30, 37));
  H->addImperStmt(nullptr);
  H->addImperStmt(Recovered);
  H->addImperStmt(T.stmt<GobackStatement>(5, 30, 35));
  EXPECT_TRUE(sameXML(R"(
<EXCEPTION>
  <TYPE lbl="4" lbc="12" lel="4" lec="72" lblo="4" lbco="12" lelo="4"
        leco="72" lfid="1" lfido="1">NOT_ON_SIZE_ERROR</TYPE>
  <CONTINUE_STATEMENT lbl="4" lbc="30" lel="4" lec="37" lblo="4" lbco="30"
                      lelo="4" leco="37" lfid="1" lfido="1"/>
  <GOBACK_STATEMENT lbl="5" lbc="30" lel="5" lec="35" lblo="5" lbco="30"
                    lelo="5" leco="35" lfid="1" lfido="1"/>
</EXCEPTION>)",
                      render(H, true)));
}

TEST(StatementFrame, RoundedReceiverIsItsExpressionLocatedAtTheReceiver) {
  // COMPUTE X ROUNDED = 1: the receiver's element is the expression's,
  // spanning up to the ROUNDED word; ROUNDED itself is not written.
  Tree T;
  auto *S = T.stmt<ComputeStatement>(3, 12, 40);
  S->addOperand(T.rnd(T.id("X", 3, 20), T.word("ROUNDED", 3, 22)));
  S->setArithmeticExpression(T.num("1", 3, 32));
  EXPECT_TRUE(sameXML(R"(
<COMPUTE_STATEMENT>
  <RECEIVING size="1" name="RoundExprList" lbl="3" lbc="20" lblo="3" lbco="20"
             lel="3" lec="28" lelo="3" leco="28">
    <ID lbl="3" lbc="20" lel="3" lec="28" lblo="3" lbco="20" lelo="3"
        leco="28" lfid="1" lfido="1">X</ID>
  </RECEIVING>
  <ARITHMETIC_EXPR lbl="3" lbc="32" lel="3" lec="32" lblo="3" lbco="32"
                   lelo="3" leco="32" lfid="1" lfido="1">
    <NUM lbl="3" lbc="32" lel="3" lec="32" lblo="3" lbco="32" lelo="3"
         leco="32" lfid="1" lfido="1">1</NUM>
  </ARITHMETIC_EXPR>
</COMPUTE_STATEMENT>)",
                      render(S, true)));
}

//===----------------------------------------------------------------------===//
// Arithmetic statements
//
// Every node of these trees stands at one position, so ordered insertion
// keeps the children in the order the visits write them.
//===----------------------------------------------------------------------===//

TEST(ArithmeticStatements, ChildOrderOfEveryMember) {
  Tree T;
  auto Id = [&](const char *N) { return T.id(N, 2, 8); };
  auto R = [&](const char *N) { return T.rnd(Id(N)); };
  auto Size = [&] { return T.handler(EXCEPTION_SIZE, false, 2, 8); };

  auto *Add = T.stmt<AddStatement>(2, 8);
  Add->setType(ADD_STMT_GIVING);
  Add->addOperand(Id("A1"));
  Add->addOperand(Id("A2"));
  Add->addToItem(R("T1"));
  Add->addGivingItem(R("G1"));
  Add->addSizeErrorHandler(Size());
  Add->setToOperand(Id("TO1"));
  Add->setCorrespondingExpr(Id("C1"));
  Add->setToRoundExpr(R("C2"));
  EXPECT_TRUE(sameXML(R"(
<ADD_STATEMENT>
  <OPERAND size="2" name="ExprList"><ID>A1</ID><ID>A2</ID></OPERAND>
  <TO size="1" name="RoundExprList"><ID>T1</ID></TO>
  <GIVING size="1" name="RoundExprList"><ID>G1</ID></GIVING>
  <EXCEPTION_LIST size="1" name="ExcpList">
    <EXCEPTION><TYPE>ON_SIZE_ERROR</TYPE></EXCEPTION>
  </EXCEPTION_LIST>
  <TO><ID>TO1</ID></TO>
  <OPERAND><ID>C1</ID></OPERAND>
  <TO><ID>C2</ID></TO>
</ADD_STATEMENT>)",
                      render(Add)));

  auto *Sub = T.stmt<SubtractStatement>(2, 8);
  Sub->setType(SUB_STMT_GIVING);
  Sub->addOperand(Id("S1"));
  Sub->setCorrespondingExpr(Id("C1"));
  Sub->addFromItem(R("F1"));
  Sub->setFromExpr(Id("F2"));
  Sub->setFromRoundExpr(R("F3"));
  Sub->addGivingItem(R("G1"));
  Sub->addSizeErrorHandler(Size());
  EXPECT_TRUE(sameXML(R"(
<SUBSTRACT_STATEMENT>
  <TYPE>GIVING</TYPE>
  <SOURCE size="1" name="ExprList"><ID>S1</ID></SOURCE>
  <SOURCE><ID>C1</ID></SOURCE>
  <FROM size="1" name="RoundExprList"><ID>F1</ID></FROM>
  <FROM><ID>F2</ID></FROM>
  <FROM><ID>F3</ID></FROM>
  <GIVING size="1" name="RoundExprList"><ID>G1</ID></GIVING>
  <EXCEPTION_LIST size="1" name="ExcpList">
    <EXCEPTION><TYPE>ON_SIZE_ERROR</TYPE></EXCEPTION>
  </EXCEPTION_LIST>
</SUBSTRACT_STATEMENT>)",
                      render(Sub)));

  auto *Mul = T.stmt<MultiplyStatement>(2, 8);
  Mul->setType(MUL_STMT_GIVING);
  Mul->setOperand(Id("M1"));
  Mul->addByItem(R("B1"));
  Mul->setByOperand(Id("B2"));
  Mul->addGivingItem(R("G1"));
  Mul->addSizeErrorHandler(Size());
  EXPECT_TRUE(sameXML(R"(
<MULTIPLY_STATEMENT>
  <SOURCE><ID>M1</ID></SOURCE>
  <BY_LIST size="1" name="RoundExprList"><ID>B1</ID></BY_LIST>
  <BY_LIST><ID>B2</ID></BY_LIST>
  <GIVING_LIST size="1" name="RoundExprList"><ID>G1</ID></GIVING_LIST>
  <EXCEPTION_LIST size="1" name="ExcpList">
    <EXCEPTION><TYPE>ON_SIZE_ERROR</TYPE></EXCEPTION>
  </EXCEPTION_LIST>
</MULTIPLY_STATEMENT>)",
                      render(Mul)));

  auto *Div = T.stmt<DivideStatement>(2, 8);
  Div->setType(DIV_STMT_INTO_REMAINDER);
  Div->addToItem(R("I1"));
  Div->addGivingItem(R("G1"));
  Div->addSizeErrorHandler(Size());
  Div->setOperand(Id("D1"));
  Div->setIntoExpr(Id("D2"));
  Div->setByExpr(Id("D3"));
  Div->setRemainderExpr(Id("R1"));
  EXPECT_TRUE(sameXML(R"(
<DIVIDE_STATEMENT>
  <INTO size="1" name="RoundExprList"><ID>I1</ID></INTO>
  <GIVING size="1" name="RoundExprList"><ID>G1</ID></GIVING>
  <EXCEPTION_LIST size="1" name="ExcpList">
    <EXCEPTION><TYPE>ON_SIZE_ERROR</TYPE></EXCEPTION>
  </EXCEPTION_LIST>
  <SOURCE><ID>D1</ID></SOURCE>
  <INTO><ID>D2</ID></INTO>
  <BY><ID>D3</ID></BY>
  <REMAINDER><ID>R1</ID></REMAINDER>
</DIVIDE_STATEMENT>)",
                      render(Div)));

  auto *Cmp = T.stmt<ComputeStatement>(2, 8);
  Cmp->addOperand(R("X1"));
  Cmp->addOperand(R("X2"));
  Cmp->addSizeErrorHandler(Size());
  Cmp->setArithmeticExpression(Id("E1"));
  EXPECT_TRUE(sameXML(R"(
<COMPUTE_STATEMENT>
  <RECEIVING size="2" name="RoundExprList"><ID>X1</ID><ID>X2</ID></RECEIVING>
  <EXCEPTION_LIST size="1" name="ExcpList">
    <EXCEPTION><TYPE>ON_SIZE_ERROR</TYPE></EXCEPTION>
  </EXCEPTION_LIST>
  <ARITHMETIC_EXPR><ID>E1</ID></ARITHMETIC_EXPR>
</COMPUTE_STATEMENT>)",
                      render(Cmp)));
}

TEST(ArithmeticStatements, SparseMembersAndSubtractForms) {
  Tree T;
  // SUBTRACT A FROM B: TYPE located at the statement, then the operands.
  auto *Sub = T.stmt<SubtractStatement>(4, 12, 30);
  Sub->setType(SUB_STMT_SIMPLE);
  Sub->addOperand(T.id("A", 4, 21));
  Sub->addFromItem(T.rnd(T.id("B", 4, 28)));
  EXPECT_TRUE(sameXML(R"(
<SUBSTRACT_STATEMENT>
  <TYPE lbl="4" lbc="12" lel="4" lec="30" lblo="4" lbco="12" lelo="4"
        leco="30" lfid="1" lfido="1">BASIC</TYPE>
  <SOURCE size="1" name="ExprList" lbl="4" lbc="21" lblo="4" lbco="21"
          lel="4" lec="21" lelo="4" leco="21">
    <ID lbl="4" lbc="21" lel="4" lec="21" lblo="4" lbco="21" lelo="4"
        leco="21" lfid="1" lfido="1">A</ID>
  </SOURCE>
  <FROM size="1" name="RoundExprList" lbl="4" lbc="28" lblo="4" lbco="28"
        lel="4" lec="28" lelo="4" leco="28">
    <ID lbl="4" lbc="28" lel="4" lec="28" lblo="4" lbco="28" lelo="4"
        leco="28" lfid="1" lfido="1">B</ID>
  </FROM>
</SUBSTRACT_STATEMENT>)",
                      render(Sub, true)));
  Sub->setType(SUB_STMT_CORRES);
  EXPECT_NE(render(Sub).find("<TYPE>CORRESPOND</TYPE>"), std::string::npos);

  // ADD CORRESPONDING with no handler: exactly the two wrappers.
  auto *Add = T.stmt<AddStatement>(2, 8);
  Add->setType(ADD_STMT_CORRES);
  Add->setCorrespondingExpr(T.id("G1", 2, 8));
  Add->setToRoundExpr(T.rnd(T.id("G2", 2, 8)));
  EXPECT_TRUE(sameXML(
      "<ADD_STATEMENT><OPERAND><ID>G1</ID></OPERAND><TO><ID>G2</ID></TO>"
      "</ADD_STATEMENT>",
      render(Add)));

  // A list whose second item is missing still counts it.
  auto *Cmp = T.stmt<ComputeStatement>(2, 8);
  Cmp->addOperand(T.rnd(T.id("X", 2, 8)));
  Cmp->addOperand(nullptr);
  Cmp->addOperand(T.rnd(T.id("Y", 2, 8)));
  EXPECT_TRUE(sameXML("<COMPUTE_STATEMENT><RECEIVING size=\"3\" "
                      "name=\"RoundExprList\"><ID>X</ID><ID>Y</ID>"
                      "</RECEIVING></COMPUTE_STATEMENT>",
                      render(Cmp)));

  // MULTIPLY A BY B GIVING C: the single BY operand is wrapped in BY_LIST
  // with no BY_LIST container.
  auto *Mul = T.stmt<MultiplyStatement>(2, 8);
  Mul->setOperand(T.id("A", 2, 8));
  Mul->setByOperand(T.id("B", 2, 8));
  Mul->addGivingItem(T.rnd(T.id("C", 2, 8)));
  EXPECT_TRUE(sameXML(R"(
<MULTIPLY_STATEMENT>
  <SOURCE><ID>A</ID></SOURCE>
  <BY_LIST><ID>B</ID></BY_LIST>
  <GIVING_LIST size="1" name="RoundExprList"><ID>C</ID></GIVING_LIST>
</MULTIPLY_STATEMENT>)",
                      render(Mul)));
}

//===----------------------------------------------------------------------===//
// Control-flow statements
//===----------------------------------------------------------------------===//

TEST(ControlFlow, IfBranchesAreFlatAndTheConditionComesLast) {
  // Every node stands at one position, so the children keep the order in
  // which the visit writes them.
  Tree T;
  auto *Recovered = T.stmt<Statement>(2, 8);
  Recovered->setType(STMT_ERR_RECOV);
  auto *If = T.stmt<IfStatement>(2, 8);
  If->setCondition(T.cond("C1", 2, 8));
  If->addIfStmt(T.stmt<ContinueStatement>(2, 8));
  If->addIfStmt(Recovered);
  If->addIfStmt(T.stmt<GobackStatement>(2, 8));
  If->addElseStmt(nullptr);
  If->addElseStmt(T.stmt<ExitStatement>(2, 8));
  EXPECT_TRUE(sameXML(R"(
<IF_STATEMENT>
  <CONTINUE_STATEMENT/>
  <GOBACK_STATEMENT/>
  <EXIT_STATEMENT/>
  <CONDITION><COND>C1</COND></CONDITION>
</IF_STATEMENT>)",
                      render(If)));

  auto *OnlyRecovered = T.stmt<IfStatement>(2, 8);
  OnlyRecovered->setCondition(T.cond("C2", 2, 8));
  OnlyRecovered->addIfStmt(Recovered);
  EXPECT_TRUE(sameXML(
      "<IF_STATEMENT><CONDITION><COND>C2</COND></CONDITION></IF_STATEMENT>",
      render(OnlyRecovered)));
}

/// PERFORM WITH TEST AFTER UNTIL DONE
///   EVALUATE TRUE ALSO X
///     WHEN C1 ALSO NOT 1 THRU 9   IF C2 MOVE 1 TO Y ELSE CONTINUE END-IF
///     WHEN ANY ALSO 5             GOBACK
///     [WHEN OTHER                 EXIT]
///   END-EVALUATE
/// END-PERFORM
struct NestedFlow : Tree {
  PerformStatement *Perform;
  EvaluateStatement *Eval;

  NestedFlow() {
    Perform = stmt<PerformStatement>(10, 12);
    Perform->setType(PFM_STMT_UNTIL);
    auto *Test = at<PerformTest>(10, 20, 10, 34);
    Test->setIsAfter(true);
    Perform->setTest(Test);
    Perform->setUntilCondition(cond("DONE", 10, 42));

    Eval = stmt<EvaluateStatement>(11, 14);
    auto *Subj1 = at<EvaluateSubject>(11, 23, 11, 26);
    Subj1->setType(EVAL_SUB_TRUE);
    Subj1->setTFWord(word("TRUE", 11, 23));
    auto *Subj2 = at<EvaluateSubject>(11, 33, 11, 33);
    Subj2->setType(EVAL_SUB_EXPR);
    Subj2->setExpr(id("X", 11, 33));
    Eval->addSubject(Subj1);
    Eval->addSubject(Subj2);

    auto *Case1 = at<EvaluateCase>(12, 16, 13, 60);
    auto *When1 = at<EvaluateWhen>(12, 16, 12, 50);
    auto *Obj1 = at<EvaluateObject>(12, 21, 12, 22);
    Obj1->setType(EVAL_OBJ_COND);
    Obj1->setCondition(cond("C1", 12, 21));
    auto *Obj2 = at<EvaluateObject>(12, 29, 12, 40);
    Obj2->setType(EVAL_OBJ_EXPR);
    Obj2->setNotWord(word("NOT", 12, 29));
    Obj2->setFrontExpression(num("1", 12, 33));
    Obj2->setRearExpression(num("9", 12, 40));
    When1->addWhenObj(Obj1);
    When1->addWhenObj(nullptr);
    When1->addWhenObj(Obj2);
    Case1->addWhen(When1);
    auto *If = stmt<IfStatement>(13, 18, 60);
    If->setCondition(cond("C2", 13, 21));
    auto *Move = stmt<MoveStatement>(13, 24, 34);
    Move->setSource(num("1", 13, 29));
    Move->addTarget(id("Y", 13, 34));
    If->addIfStmt(Move);
    If->addElseStmt(stmt<ContinueStatement>(13, 41, 48));
    Case1->addWhenStmt(If);
    Eval->addWhenCase(Case1);

    auto *Case2 = at<EvaluateCase>(14, 16, 14, 50);
    auto *When2 = at<EvaluateWhen>(14, 16, 14, 30);
    auto *Obj3 = at<EvaluateObject>(14, 21, 14, 23);
    Obj3->setType(EVAL_OBJ_ANY);
    Obj3->setAnyWord(word("ANY", 14, 21));
    auto *Obj4 = at<EvaluateObject>(14, 30, 14, 30);
    Obj4->setType(EVAL_OBJ_EXPR);
    Obj4->setFrontExpression(num("5", 14, 30));
    When2->addWhenObj(Obj3);
    When2->addWhenObj(Obj4);
    Case2->addWhen(When2);
    Case2->addWhenStmt(stmt<GobackStatement>(14, 44, 49));
    Eval->addWhenCase(Case2);

    Perform->addInlineStatement(Eval);
  }

  void addWhenOther() {
    auto *Other = at<EvaluateCase>(15, 16, 15, 40);
    Other->setType(EVAL_WHEN_OTHER);
    Other->addWhenStmt(stmt<ExitStatement>(15, 33, 36));
    Eval->setWhenOtherCase(Other);
  }
};

TEST(ControlFlow, EvaluateNestedInInlinePerform) {
  const std::string Cases = R"(
      <EVALUATE_CASE_LIST size="2" name="EvalCaseList">
        <EVALUATE_CASE>
          <EVALUATE_CASE_WHEN_LIST size="1" name="EvalWhenList">
            <EVALUATE_WHEN>
              <EVALUATE_WHEN_OBJECT>
                <TYPE>EXPR</TYPE>
                <COND>C1</COND>
              </EVALUATE_WHEN_OBJECT>
              <EVALUATE_WHEN_OBJECT>
                <TYPE>NOT EXPR</TYPE>
                <FROM><NUM>1</NUM></FROM>
                <THRU><NUM>9</NUM></THRU>
              </EVALUATE_WHEN_OBJECT>
            </EVALUATE_WHEN>
          </EVALUATE_CASE_WHEN_LIST>
          <IF_STATEMENT>
            <CONDITION><COND>C2</COND></CONDITION>
            <MOVE_STATEMENT>
              <SENDING><NUM>1</NUM></SENDING>
              <RECEIVING size="1" name="IdentList"><ID>Y</ID></RECEIVING>
            </MOVE_STATEMENT>
            <CONTINUE_STATEMENT/>
          </IF_STATEMENT>
        </EVALUATE_CASE>
        <EVALUATE_CASE>
          <EVALUATE_CASE_WHEN_LIST size="1" name="EvalWhenList">
            <EVALUATE_WHEN>
              <EVALUATE_WHEN_OBJECT><TYPE>ANY</TYPE></EVALUATE_WHEN_OBJECT>
              <EVALUATE_WHEN_OBJECT>
                <TYPE>EXPR</TYPE>
                <FROM><NUM>5</NUM></FROM>
              </EVALUATE_WHEN_OBJECT>
            </EVALUATE_WHEN>
          </EVALUATE_CASE_WHEN_LIST>
          <GOBACK_STATEMENT/>
        </EVALUATE_CASE>
      </EVALUATE_CASE_LIST>)";
  auto Expected = [&](const std::string &OtherList) {
    return R"(
<PERFORM_STATEMENT>
  <TYPE>WITH_UNTIL</TYPE>
  <TEST_TYPE>AFTER</TEST_TYPE>
  <UNTIL_CONDITION><COND>DONE</COND></UNTIL_CONDITION>
  <EVALUATE_STATEMENT>
    <EVALUATE_SUBJECT_LIST size="2" name="EvalSubList">
      <EVALUATE_SUBJECT><TYPE>TRUE</TYPE></EVALUATE_SUBJECT>
      <EVALUATE_SUBJECT><TYPE>EXPR</TYPE><ID>X</ID></EVALUATE_SUBJECT>
    </EVALUATE_SUBJECT_LIST>)" +
           Cases + OtherList + R"(
  </EVALUATE_STATEMENT>
</PERFORM_STATEMENT>)";
  };

  // Without WHEN OTHER the statement still ends with an empty case list
  // that has no attributes at all.
  NestedFlow Without;
  EXPECT_TRUE(
      sameXML(Expected("<EVALUATE_CASE_LIST/>"), render(Without.Perform)));

  // With WHEN OTHER that list holds its case, which is nowhere else.
  NestedFlow With;
  With.addWhenOther();
  EXPECT_TRUE(sameXML(Expected(R"(
    <EVALUATE_CASE_LIST>
      <EVALUATE_CASE><EXIT_STATEMENT/></EVALUATE_CASE>
    </EVALUATE_CASE_LIST>)"),
                      render(With.Perform)));
}

TEST(ControlFlow, EvaluateLabelsAreLocatedAtTheirWords) {
  // The TRUE subject's label stands at the TRUE word; an expression
  // subject's at its expression, before the expression's own element.
  NestedFlow T;
  ProcEmitter E;
  std::string Doc = E.visited(T.Eval, true);
  EXPECT_NE(Doc.find(R"(<TYPE lbl="11" lbc="23" lel="11" lec="26" lblo="11" lbco="23" lelo="11" leco="26" lfid="1" lfido="1">TRUE</TYPE>)"),
            std::string::npos)
      << Doc;
  EXPECT_NE(Doc.find(R"(<TYPE lbl="11" lbc="33" lel="11" lec="33" lblo="11" lbco="33" lelo="11" leco="33" lfid="1" lfido="1">EXPR</TYPE>)"),
            std::string::npos)
      << Doc;
  // NOT 1 THRU 9: the label is located at the 1, not at the NOT word.
  EXPECT_NE(Doc.find(R"(<TYPE lbl="12" lbc="33" lel="12" lec="33" lblo="12" lbco="33" lelo="12" leco="33" lfid="1" lfido="1">NOT EXPR</TYPE>)"),
            std::string::npos)
      << Doc;

  // A condition subject is labelled EXPR too; TRUE and FALSE objects.
  Tree U;
  auto *Subj = U.at<EvaluateSubject>(2, 8, 2, 9);
  Subj->setType(EVAL_SUB_COND);
  Subj->setCond(U.cond("C", 2, 8));
  EXPECT_TRUE(sameXML(
      "<EVALUATE_SUBJECT><TYPE>EXPR</TYPE><COND>C</COND></EVALUATE_SUBJECT>",
      render(Subj)));
  auto *False = U.at<EvaluateSubject>(2, 8, 2, 12);
  False->setType(EVAL_SUB_FALSE);
  EXPECT_TRUE(sameXML("<EVALUATE_SUBJECT/>", render(False)))
      << "no FALSE word, no label";
  auto *When = U.at<EvaluateWhen>(3, 8, 3, 20);
  auto *T1 = U.at<EvaluateObject>(3, 13, 3, 16);
  T1->setType(EVAL_OBJ_TRUE);
  T1->setTrueWord(U.word("TRUE", 3, 13));
  auto *F1 = U.at<EvaluateObject>(3, 23, 3, 27);
  F1->setType(EVAL_OBJ_FALSE);
  F1->setFalseWord(U.word("FALSE", 3, 23));
  When->addWhenObj(T1);
  When->addWhenObj(F1);
  EXPECT_TRUE(sameXML(R"(
<EVALUATE_WHEN>
  <EVALUATE_WHEN_OBJECT><TYPE>TRUE</TYPE></EVALUATE_WHEN_OBJECT>
  <EVALUATE_WHEN_OBJECT><TYPE>FALSE</TYPE></EVALUATE_WHEN_OBJECT>
</EVALUATE_WHEN>)",
                      render(When)));
}

TEST(ControlFlow, PerformForms) {
  Tree T;
  // PERFORM P1 THRU P2 5 TIMES.
  auto *Times = T.stmt<PerformStatement>(3, 12, 40);
  Times->setType(PFM_STMT_TIMES);
  auto *Range = T.at<PerformProcedure>(3, 20, 3, 29);
  Range->setProcedureName1(T.qname("P1", 3, 20));
  Range->setProcedureName2(T.qname("P2", 3, 28));
  Times->setProcedureName(Range);
  Times->setTimesInteger(T.num("5", 3, 37));
  EXPECT_TRUE(sameXML(R"(
<PERFORM_STATEMENT>
  <TYPE>WITH_TIMES</TYPE>
  <PROCEDURE>
    <FROM><QUALIFIED>P1</QUALIFIED></FROM>
    <THRU><QUALIFIED>P2</QUALIFIED></THRU>
  </PROCEDURE>
  <REPEAT_CNT><NUM>5</NUM></REPEAT_CNT>
</PERFORM_STATEMENT>)",
                      render(Times)));

  // PERFORM P3 WITH TEST BEFORE VARYING I FROM 1 BY 1 UNTIL C1
  //                             AFTER J FROM K BY 2 UNTIL C2.
  auto *Vary = T.stmt<PerformStatement>(5, 12, 60);
  Vary->setType(PFM_STMT_VARYING);
  auto *Range2 = T.at<PerformProcedure>(5, 20, 5, 21);
  Range2->setProcedureName1(T.qname("P3", 5, 20));
  Vary->setProcedureName(Range2);
  auto *Test = T.at<PerformTest>(5, 23, 5, 38);
  Vary->setTest(Test);
  auto *V1 = T.at<PerformVarying>(5, 40, 5, 70);
  V1->setVaryingAfterIdentifier(T.id("I", 5, 48));
  V1->setFromIdentifier(T.num("1", 5, 55));
  V1->setByIdentifier(T.num("1", 5, 60));
  V1->setUntilCondition(T.cond("C1", 5, 68));
  auto *V2 = T.at<PerformVarying>(6, 40, 6, 70);
  V2->setVaryingAfterIdentifier(T.id("J", 6, 46));
  V2->setFromIdentifier(T.id("K", 6, 53));
  V2->setByIdentifier(T.num("2", 6, 58));
  V2->setUntilCondition(T.cond("C2", 6, 66));
  Vary->addPhrase(V1);
  Vary->addPhrase(V2);
  EXPECT_TRUE(sameXML(R"(
<PERFORM_STATEMENT>
  <TYPE>WITH_VARYING</TYPE>
  <PROCEDURE><FROM><QUALIFIED>P3</QUALIFIED></FROM></PROCEDURE>
  <TEST_TYPE>BEFORE</TEST_TYPE>
  <VARYING_LIST size="2" name="PfmVryingList">
    <VARYING>
      <VARYING_IDENTIFIER><ID>I</ID></VARYING_IDENTIFIER>
      <FROM><NUM>1</NUM></FROM>
      <BY><NUM>1</NUM></BY>
      <UNTIL_CONDITION><COND>C1</COND></UNTIL_CONDITION>
    </VARYING>
    <VARYING>
      <VARYING_IDENTIFIER><ID>J</ID></VARYING_IDENTIFIER>
      <FROM><ID>K</ID></FROM>
      <BY><NUM>2</NUM></BY>
      <UNTIL_CONDITION><COND>C2</COND></UNTIL_CONDITION>
    </VARYING>
  </VARYING_LIST>
</PERFORM_STATEMENT>)",
                      render(Vary)));

  // The form's label is located at the whole statement.
  auto *Simple = T.stmt<PerformStatement>(8, 12, 24);
  Simple->setType(PFM_STMT_SIMPLE);
  EXPECT_TRUE(sameXML(R"(
<PERFORM_STATEMENT>
  <TYPE lbl="8" lbc="12" lel="8" lec="24" lblo="8" lbco="12" lelo="8"
        leco="24" lfid="1" lfido="1">BASIC</TYPE>
</PERFORM_STATEMENT>)",
                      render(Simple, true)));
}

TEST(ControlFlow, GotoAlterStopAndBareStatements) {
  Tree T;
  // GO TO P1 P2 DEPENDING ON X: the targets are not written.
  auto *Goto = T.stmt<GotoStatement>(2, 12);
  Goto->addProcedureName(T.qname("P1", 2, 18));
  Goto->addProcedureName(T.qname("P2", 2, 21));
  Goto->setDependingName(T.id("X", 2, 37));
  EXPECT_TRUE(sameXML(
      "<GOTO_STATEMENT><DEPENDING_ON><ID>X</ID></DEPENDING_ON></GOTO_STATEMENT>",
      render(Goto)));
  auto *Plain = T.stmt<GotoStatement>(3, 12);
  Plain->addProcedureName(T.qname("P1", 3, 18));
  EXPECT_TRUE(sameXML("<GOTO_STATEMENT/>", render(Plain)));

  // ALTER P1 TO P2 P3 TO PROCEED TO P4: one transfer each, no container.
  auto *Alter = T.stmt<AlterStatement>(4, 12);
  auto *A1 = T.at<AlterItem>(4, 18, 4, 25);
  A1->setSrcProcName(T.qname("P1", 4, 18));
  A1->setDstProcName(T.qname("P2", 4, 24));
  auto *A2 = T.at<AlterItem>(5, 18, 5, 40);
  A2->setSrcProcName(T.qname("P3", 5, 18));
  A2->setDstProcName(T.qname("P4", 5, 38));
  Alter->addAlter(A1);
  Alter->addAlter(nullptr);
  Alter->addAlter(A2);
  EXPECT_TRUE(sameXML(R"(
<ALTER_STATEMENT>
  <ALTER_TRANSFER>
    <SOURCE><QUALIFIED>P1</QUALIFIED></SOURCE>
    <TARGET><QUALIFIED>P2</QUALIFIED></TARGET>
  </ALTER_TRANSFER>
  <ALTER_TRANSFER>
    <SOURCE><QUALIFIED>P3</QUALIFIED></SOURCE>
    <TARGET><QUALIFIED>P4</QUALIFIED></TARGET>
  </ALTER_TRANSFER>
</ALTER_STATEMENT>)",
                      render(Alter)));

  auto *Run = T.stmt<StopStatement>(6, 12);
  Run->setRun(T.word("RUN", 6, 17));
  EXPECT_TRUE(sameXML(R"(
<STOP_STATEMENT>
  <TYPE lbl="6" lbc="17" lel="6" lec="19" lblo="6" lbco="17" lelo="6"
        leco="19" lfid="1" lfido="1">RUN</TYPE>
</STOP_STATEMENT>)",
                      render(Run, true)));
  // A literal wins, even with a RUN word set.
  auto *Lit = T.stmt<StopStatement>(7, 12);
  Lit->setLiteral(T.lit("BYE", 7, 17));
  Lit->setRun(T.word("RUN", 7, 30));
  EXPECT_TRUE(sameXML(
      "<STOP_STATEMENT><TYPE>LITERAL</TYPE><LIT>BYE</LIT></STOP_STATEMENT>",
      render(Lit)));
  EXPECT_TRUE(sameXML("<STOP_STATEMENT/>", render(T.stmt<StopStatement>(8, 12))));

  // Statements without operands, reached through the statement dispatch.
  const struct {
    StatementType Type;
    Statement *Node;
    const char *Tag;
  } Bare[] = {
      {STMT_CONTINUE, T.stmt<ContinueStatement>(9, 12), "CONTINUE_STATEMENT"},
      {STMT_EXIT, T.stmt<ExitStatement>(9, 12), "EXIT_STATEMENT"},
      {STMT_EXIT_PROGRAM, T.stmt<ExitProgramStatement>(9, 12),
       "EXIT_PROGRAM_STATEMENT"},
      {STMT_EXIT_PERFORM, T.stmt<ExitPerformStatement>(9, 12),
       "EXIT_PERFORM_STATEMENT"},
      {STMT_GOBACK, T.stmt<GobackStatement>(9, 12), "GOBACK_STATEMENT"},
      {STMT_READY_TRACE, T.stmt<ReadyTraceStatement>(9, 12),
       "READY_TRACE_STATEMENT"},
      {STMT_RESET_TRACE, T.stmt<ResetTraceStatement>(9, 12),
       "RESET_TRACE_STATEMENT"},
      {STMT_NEXT_SENTENCE, T.stmt<NextSentenceStatement>(9, 12),
       "NEXT_SENTENCE_STATEMENT"},
      {STMT_CANCEL, T.stmt<CancelStatement>(9, 12), "CANCEL_STATEMENT"},
  };
  for (const auto &B : Bare) {
    EXPECT_EQ(B.Node->getType(), B.Type);
    EXPECT_TRUE(sameXML(std::string("<") + B.Tag + "/>", render(B.Node)))
        << B.Tag;
  }
}

//===----------------------------------------------------------------------===//
// Inter-program statements
//===----------------------------------------------------------------------===//

/// CALL target USING ... with the argument groups given.
static CallStatement *callOf(Tree &T, Expression *Target) {
  auto *Call = T.stmt<CallStatement>(4, 12);
  Call->setProcedureName(Target);
  return Call;
}

TEST(InterProgram, CallSplitsArgumentGroups) {
  // CALL 'SUB' USING BY CONTENT A B BY REFERENCE OMITTED
  //      ON EXCEPTION CONTINUE.
  Tree T;
  auto *Call = callOf(T, T.lit("SUB", 4, 17));
  auto *Content = T.at<Using>(4, 29, 4, 44);
  Content->setType(USING_CONTENT);
  Content->setTypeWord(T.word("CONTENT", 4, 32));
  auto *A = T.at<UsingItem>(4, 40, 4, 40);
  A->setItem(T.id("A", 4, 40));
  auto *B = T.at<UsingItem>(4, 42, 4, 42);
  B->setItem(T.id("B", 4, 42));
  Content->addItem(A);
  Content->addItem(B);
  Call->addArgument(Content);
  Call->addArgument(T.at<Using>(4, 45, 4, 46)); // no items: no argument
  auto *Copied = T.copied(T.at<Using>(5, 17, 5, 40), "ARGS.cpy", 2, 9, 2, 32);
  Copied->setType(USING_REFERENCE);
  auto *Omitted = T.at<UsingItem>(5, 33, 5, 40);
  Omitted->setOmitted(true);
  Copied->addItem(Omitted);
  Call->addArgument(Copied);
  auto *OnEx = T.handler(EXCEPTION_ON, false, 6, 17);
  OnEx->addImperStmt(T.stmt<ContinueStatement>(6, 30, 37));
  Call->addExceptHandler(OnEx);

  ProcEmitter E;
  std::string Doc = E.visited(Call, true);
  // Each argument is located with the printable position of its group in
  // place of the expanded file name, so those positions enter the file
  // table as names of their own.
  int Content1 = E.handler().getFileId("main.cbl:4:29");
  int Copied1 = E.handler().getFileId("main.cbl:5:17");
  int Copybook = E.handler().getFileId("ARGS.cpy");
  ASSERT_NE(Content1, 0);
  ASSERT_NE(Copied1, 0);
  ASSERT_NE(Copybook, 0);
  auto Ids = [](int Expanded, int Written) {
    return " lfid=\"" + std::to_string(Expanded) + "\" lfido=\"" +
           std::to_string(Written) + "\"";
  };
  EXPECT_TRUE(sameXML(R"(
<CALL_STATEMENT>
  <CALL_NAME lbl="4" lbc="17" lel="4" lec="21" lblo="4" lbco="17" lelo="4"
             leco="21" lfid="1" lfido="1">SUB</CALL_NAME>
  <ARGS_LIST size="3" name="usingList" loc="main.cbl:4:29" lbl="4" lbc="29"
             lblo="4" lbco="29" lel="5" lec="40" lelo="2" leco="32">
    <ARG lbl="4" lbc="29" lel="4" lec="44" lblo="4" lbco="29" lelo="4"
         leco="44")" + Ids(Content1, 1) + R"(>
      <BY_TYPE lbl="4" lbc="29" lel="4" lec="44" lblo="4" lbco="29" lelo="4"
               leco="44" lfid="1" lfido="1">BY_CONTENT</BY_TYPE>
      <ARG_TYPE lbl="4" lbc="40" lel="4" lec="40" lblo="4" lbco="40" lelo="4"
                leco="40" lfid="1" lfido="1">NORMAL</ARG_TYPE>
      <ARGUMENT lbl="4" lbc="40" lel="4" lec="40" lblo="4" lbco="40" lelo="4"
                leco="40" lfid="1" lfido="1">
        <ID lbl="4" lbc="40" lel="4" lec="40" lblo="4" lbco="40" lelo="4"
            leco="40" lfid="1" lfido="1">A</ID>
      </ARGUMENT>
    </ARG>
    <ARG lbl="4" lbc="29" lel="4" lec="44" lblo="4" lbco="29" lelo="4"
         leco="44")" + Ids(Content1, 1) + R"(>
      <BY_TYPE lbl="4" lbc="29" lel="4" lec="44" lblo="4" lbco="29" lelo="4"
               leco="44" lfid="1" lfido="1">BY_CONTENT</BY_TYPE>
      <ARG_TYPE lbl="4" lbc="42" lel="4" lec="42" lblo="4" lbco="42" lelo="4"
                leco="42" lfid="1" lfido="1">NORMAL</ARG_TYPE>
      <ARGUMENT lbl="4" lbc="42" lel="4" lec="42" lblo="4" lbco="42" lelo="4"
                leco="42" lfid="1" lfido="1">
        <ID lbl="4" lbc="42" lel="4" lec="42" lblo="4" lbco="42" lelo="4"
            leco="42" lfid="1" lfido="1">B</ID>
      </ARGUMENT>
    </ARG>
    <ARG lbl="5" lbc="17" lel="5" lec="40" lblo="2" lbco="9" lelo="2"
         leco="32")" + Ids(Copied1, Copybook) + R"(>
      <BY_TYPE lbl="5" lbc="17" lel="5" lec="40" lblo="2" lbco="9" lelo="2"
               leco="32")" + Ids(1, Copybook) + R"(>BY_REFERENCE</BY_TYPE>
      <ARG_TYPE lbl="5" lbc="33" lel="5" lec="40" lblo="5" lbco="33" lelo="5"
                leco="40" lfid="1" lfido="1">OMITTED</ARG_TYPE>
    </ARG>
  </ARGS_LIST>
  <EXCEPTION_LIST size="1" name="ExceptionHandler" lbl="6" lbc="17" lblo="6"
                  lbco="17" lel="6" lec="72" lelo="6" leco="72">
    <EXCEPTION lbl="6" lbc="17" lel="6" lec="72" lblo="6" lbco="17" lelo="6"
               leco="72" lfid="1" lfido="1">
      <TYPE lbl="6" lbc="17" lel="6" lec="72" lblo="6" lbco="17" lelo="6"
            leco="72" lfid="1" lfido="1">ON_EXCEPTION</TYPE>
      <CONTINUE_STATEMENT lbl="6" lbc="30" lel="6" lec="37" lblo="6"
                          lbco="30" lelo="6" leco="37" lfid="1" lfido="1"/>
    </EXCEPTION>
  </EXCEPTION_LIST>
</CALL_STATEMENT>)",
                      Doc));

  // No argument at all: no container.
  Tree U;
  auto *Bare = callOf(U, U.lit("SUB", 4, 17));
  Bare->addArgument(U.at<Using>(4, 29, 4, 40));
  EXPECT_TRUE(sameXML("<CALL_STATEMENT><CALL_NAME>SUB</CALL_NAME></CALL_STATEMENT>",
                      render(Bare)));
}

TEST(InterProgram, CallTargetDataNames) {
  Tree T;
  auto Name = [&](QualifiedWord *Q) {
    auto *D = T.at<DataIdentifierExpression>(4, 17, 4, 40);
    D->setName(Q);
    return render(callOf(T, D));
  };
  auto Q = [&](QualifiedWord *Front, const char *Rear) {
    return T.at<QualifiedWord>(4, 17, 4, 40, Front, T.word(Rear, 4, 17));
  };
  // The normalised words are joined.
  EXPECT_TRUE(sameXML(
      "<CALL_STATEMENT><CALL_NAME>PGM-NAME</CALL_NAME></CALL_STATEMENT>",
      Name(Q(nullptr, "pgm-name"))));
  // One qualifier level: the front word's name, " OF ", the rear word.
  EXPECT_TRUE(sameXML(
      "<CALL_STATEMENT><CALL_NAME>A OF B</CALL_NAME></CALL_STATEMENT>",
      Name(Q(Q(nullptr, "a"), "b"))));
  // Two levels: the separator goes before a level that has a further one,
  // so the words of the two qualifier levels run together. This is the
  // text the emitter writes for such names; it is not a joined path.
  EXPECT_TRUE(sameXML(
      "<CALL_STATEMENT><CALL_NAME> OF AC OF B</CALL_NAME></CALL_STATEMENT>",
      Name(Q(Q(Q(nullptr, "c"), "a"), "b"))));
}

TEST(InterProgram, EntryParametersAndReturning) {
  // ENTRY 'E1' USING BY VALUE X Y BY REFERENCE Z.
  Tree T;
  auto *Entry = T.stmt<EntryStatement>(3, 12);
  Entry->setEntryLiter(T.lit("E1", 3, 18));
  auto *Params = T.at<ParamPhrase>(3, 23, 3, 60);
  auto *ByValue = T.at<Parameter>(3, 29, 3, 40);
  ByValue->setType(PARAM_VALUE);
  ByValue->addIdent(T.id("X", 3, 38));
  ByValue->addIdent(T.id("Y", 3, 40));
  auto *ByRef = T.at<Parameter>(3, 42, 3, 57);
  ByRef->setType(PARAM_REFERENCE);
  ByRef->addIdent(T.id("Z", 3, 57));
  Params->addParam(ByValue);
  Params->addParam(nullptr);
  Params->addParam(T.at<Parameter>(3, 59, 3, 60)); // no identifiers: nothing
  Params->addParam(ByRef);
  Entry->setParameters(Params);
  EXPECT_TRUE(sameXML(R"(
<ENTRY_STATEMENT>
  <ENTRY_NAME><LIT>E1</LIT></ENTRY_NAME>
  <PARAM_LIST>
    <PARAM><PARAM_TYPE>BY_VALUE</PARAM_TYPE><VALUE><ID>X</ID></VALUE></PARAM>
    <PARAM><PARAM_TYPE>BY_VALUE</PARAM_TYPE><VALUE><ID>Y</ID></VALUE></PARAM>
    <PARAM><PARAM_TYPE>BY_REFERENCE</PARAM_TYPE><VALUE><ID>Z</ID></VALUE></PARAM>
  </PARAM_LIST>
</ENTRY_STATEMENT>)",
                      render(Entry)));

  // The split parameters keep their group's location; the type label is
  // located there too.
  ProcEmitter E;
  std::string Located = E.visited(Params, true);
  EXPECT_NE(Located.find(R"(<PARAM lbl="3" lbc="29" lel="3" lec="40" lblo="3" lbco="29" lelo="3" leco="40" lfid="1" lfido="1">)"),
            std::string::npos)
      << Located;

  // A group of two visited directly writes no VALUE.
  EXPECT_TRUE(sameXML("<PARAM><PARAM_TYPE>BY_VALUE</PARAM_TYPE></PARAM>",
                      render(ByValue)));

  auto *Ret = T.at<Returning>(7, 30, 7, 45);
  Ret->setReturningWord(T.word("returning", 7, 30));
  Ret->setReturnItem(T.id("R", 7, 40));
  EXPECT_TRUE(sameXML("<Returning><WORD>RETURNING</WORD><ID>R</ID></Returning>",
                      render(Ret)));
  auto *UsingP = T.at<UsingPhrase>(8, 30, 8, 34);
  UsingP->setUsingWord(T.word("USING", 8, 30));
  EXPECT_TRUE(sameXML("<UsingPhrase/>", render(UsingP)));

  // CANCEL writes none of its programs.
  auto *Cancel = T.stmt<CancelStatement>(9, 12);
  Cancel->addProgramName(T.lit("SUB", 9, 19));
  EXPECT_TRUE(sameXML("<CANCEL_STATEMENT/>", render(Cancel)));
}

//===----------------------------------------------------------------------===//
// Data-manipulation statements
//===----------------------------------------------------------------------===//

TEST(DataManipulation, MoveAndInitialize) {
  Tree T;
  auto *Move = T.stmt<MoveStatement>(2, 12);
  Move->setCorrespondingWord(T.word("CORR", 2, 17));
  Move->setSource(T.id("A", 2, 22));
  Move->addTarget(T.id("B", 2, 27));
  Move->addTarget(nullptr);
  Move->addTarget(T.id("C", 2, 29));
  EXPECT_TRUE(sameXML(R"(
<MOVE_STATEMENT>
  <SENDING><ID>A</ID></SENDING>
  <RECEIVING size="3" name="IdentList"><ID>B</ID><ID>C</ID></RECEIVING>
</MOVE_STATEMENT>)",
                      render(Move)));
  auto *NoSource = T.stmt<MoveStatement>(3, 12);
  NoSource->addTarget(T.id("B", 3, 27));
  EXPECT_TRUE(sameXML(R"(
<MOVE_STATEMENT>
  <RECEIVING size="1" name="IdentList"><ID>B</ID></RECEIVING>
</MOVE_STATEMENT>)",
                      render(NoSource)));
  auto *NoTarget = T.stmt<MoveStatement>(3, 12);
  NoTarget->setSource(T.id("A", 3, 17));
  EXPECT_TRUE(sameXML("<MOVE_STATEMENT><SENDING><ID>A</ID></SENDING></MOVE_STATEMENT>",
                      render(NoTarget)));

  // INITIALIZE X Y REPLACING ALPHANUMERIC DATA BY 'Z' NUMERIC BY 0 ...
  auto *Init = T.stmt<InitializeStatement>(5, 12);
  Init->addIdentifier(T.id("X", 5, 23));
  Init->addIdentifier(T.id("Y", 5, 25));
  const struct {
    InitReplType Type;
    const char *Text;
  } Categories[] = {{INIT_ALPHABETIC, "ALPHABETIC"},
                    {INIT_ALPHANUMERIC, "ALPHANUMERIC"},
                    {INIT_ALPHANUMERIC_EDITED, "ALPHANUMERIC_EDITED"},
                    {INIT_NATIONAL, "NATIONAL"},
                    {INIT_NATIONAL_EDITED, "NATIONAL_EDITED"},
                    {INIT_NUMERIC, "NUMERIC"},
                    {INIT_NUMERIC_EDITED, "NUMERIC_EDITED"},
                    {INIT_DBCS, "DBCS"}};
  std::string Items;
  uint32_t Line = 6;
  for (const auto &C : Categories) {
    auto *R = T.at<InitializeReplacingItem>(Line, 20, Line, 50);
    R->setType(C.Type);
    R->setByExpr(T.lit(C.Text, Line, 40));
    Init->addReplacing(R);
    Items += std::string("<REPLACING><CATEGORY>") + C.Text +
             "</CATEGORY><INIT_VALUE><LIT>" + C.Text +
             "</LIT></INIT_VALUE></REPLACING>";
    ++Line;
  }
  auto *NoValue = T.at<InitializeReplacingItem>(Line, 20, Line, 50);
  NoValue->setType(INIT_NUMERIC);
  Init->addReplacing(NoValue);
  Items += "<REPLACING><CATEGORY>NUMERIC</CATEGORY></REPLACING>";
  EXPECT_TRUE(sameXML(R"(
<INITIALIZE_STATEMENT>
  <IDENTIFIER_LIST size="2" name="IdentList"><ID>X</ID><ID>Y</ID></IDENTIFIER_LIST>
  <REPLACING_LIST size="9" name="InitReplList">)" +
                          Items + R"(</REPLACING_LIST>
</INITIALIZE_STATEMENT>)",
                      render(Init)));
  // The category is located at the whole replacing item.
  std::string Located = render(NoValue, true);
  EXPECT_NE(Located.find(R"(<CATEGORY lbl="14" lbc="20" lel="14" lec="50" lblo="14" lbco="20" lelo="14" leco="50" lfid="1" lfido="1">NUMERIC</CATEGORY>)"),
            std::string::npos)
      << Located;
  EXPECT_TRUE(sameXML("<INITIALIZE_STATEMENT/>",
                      render(T.stmt<InitializeStatement>(20, 12))));
}

TEST(DataManipulation, SetItems) {
  // SET X Y TO 5   F C1 C2 TO TRUE   I UP BY 1   I DOWN BY 1
  Tree T;
  auto *Set = T.stmt<SetStatement>(2, 12);
  auto Item = [&](uint32_t Line, SetItemType Type) {
    auto *I = T.at<SetItem>(Line, 16, Line, 40);
    I->setType(Type);
    Set->addItem(I);
    return I;
  };
  auto Value = [&](uint32_t Line, Expression *E) {
    auto *V = T.at<SetToValue>(Line, 30, Line, 40);
    V->setToExpr(E);
    return V;
  };
  SetItem *To = Item(2, SET_ITEM_TO);
  To->addSet(T.id("X", 2, 16));
  To->addSet(T.id("Y", 2, 18));
  To->setToValue(Value(2, T.num("5", 2, 30)));
  SetItem *Conds = Item(3, SET_ITEM_TO);
  Conds->addSet(T.id("F", 3, 16));
  Conds->addCond(T.cond("C1", 3, 18));
  Conds->addCond(T.cond("C2", 3, 21));
  Conds->setToValue(T.at<SetToValue>(3, 27, 3, 30)); // TO TRUE: no value
  SetItem *Up = Item(4, SET_ITEM_UP_BY);
  Up->addSet(T.id("I", 4, 16));
  Up->setToValue(Value(4, T.num("1", 4, 30)));
  SetItem *Down = Item(5, SET_ITEM_DOWN_BY);
  Down->addSet(T.id("I", 5, 16));
  Down->setToValue(Value(5, T.num("1", 5, 30)));
  EXPECT_TRUE(sameXML(R"(
<SET_STATEMENT>
  <SET_ITEM_LIST size="4" name="SetItemList">
    <SET_ITEM>
      <RECEIVING_LIST size="2" name="IdentList"><ID>X</ID><ID>Y</ID></RECEIVING_LIST>
      <SENDING><NUM>5</NUM></SENDING>
    </SET_ITEM>
    <SET_ITEM>
      <RECEIVING_LIST size="1" name="IdentList"><ID>F</ID></RECEIVING_LIST>
      <RECEIVING_LIST size="2" name="CondList"><COND>C1</COND><COND>C2</COND></RECEIVING_LIST>
      <SENDING/>
    </SET_ITEM>
    <SET_ITEM>
      <RECEIVING_LIST size="1" name="IdentList"><ID>I</ID></RECEIVING_LIST>
      <SENDING><NUM>1</NUM></SENDING>
    </SET_ITEM>
    <SET_ITEM>
      <RECEIVING_LIST size="1" name="IdentList"><ID>I</ID></RECEIVING_LIST>
      <SENDING><NUM>1</NUM></SENDING>
    </SET_ITEM>
  </SET_ITEM_LIST>
</SET_STATEMENT>)",
                      render(Set)));

  // UP BY and TO give the same document: the form is not written.
  auto Single = [](SetItemType Type) {
    Tree U;
    auto *S = U.stmt<SetStatement>(2, 12);
    auto *I = U.at<SetItem>(2, 16, 2, 30);
    I->setType(Type);
    I->addSet(U.id("X", 2, 16));
    auto *V = U.at<SetToValue>(2, 24, 2, 30);
    V->setToExpr(U.num("1", 2, 30));
    I->setToValue(V);
    S->addItem(I);
    return render(S, true);
  };
  EXPECT_EQ(Single(SET_ITEM_UP_BY), Single(SET_ITEM_TO));
  EXPECT_EQ(Single(SET_ITEM_DOWN_BY), Single(SET_ITEM_TO));
}

//===----------------------------------------------------------------------===//
// Impossible enumeration values end the run, in every build type.
//===----------------------------------------------------------------------===//

/// The report of a failed "0 && impossible" assertion in \p Class's visit.
static std::string impossibleIn(const std::string &Class) {
  return "lib/Visitor/XMLOstrel/Statement.cpp:[0-9]+: virtual void "
         "korvid::XMLOstrel::visit\\(korvid::" +
         Class + "\\*\\): Assertion `0 && \"impossible\"' failed";
}

TEST(ProcedureDeathTest, StatementTypesWithoutAVisit) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  Tree T;
  ProcEmitter E;
  auto *S = T.stmt<Statement>(2, 12);
  for (int Type : std::initializer_list<int>{STMT_NONE, STMT_ENTER, STMT_EXAMINE, STMT_USE, STMT_IDMS,
                   STMT_STACK_ADDR, STMT_RW_SET, STMT_DEBUG, 62, 63}) {
    S->setType(static_cast<StatementType>(Type));
    EXPECT_DEATH(E.visit(S),
                 "lib/Visitor/XMLOstrel/Statement.cpp:[0-9]+: virtual void "
                 "korvid::XMLOstrel::visit\\(korvid::Statement\\*\\): "
                 "Assertion `0' failed")
        << Type;
  }
}

TEST(ProcedureDeathTest, ImpossibleKindsOfPhrasesAndStatements) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  Tree T;
  ProcEmitter E;
  EXPECT_DEATH(E.visit(T.handler(EXCEPTION_NONE, false, 2, 12)),
               impossibleIn("ExceptionHandler"));
  EXPECT_DEATH(E.visit(T.handler(static_cast<ExceptionType>(7), true, 2, 12)),
               impossibleIn("ExceptionHandler"));

  auto *Sub = T.stmt<SubtractStatement>(2, 12);
  EXPECT_DEATH(E.visit(Sub), impossibleIn("SubtractStatement"));

  auto *Subject = T.at<EvaluateSubject>(2, 12, 2, 20);
  EXPECT_DEATH(E.visit(Subject), impossibleIn("EvaluateSubject"));
  auto *Object = T.at<EvaluateObject>(2, 12, 2, 20);
  EXPECT_DEATH(E.visit(Object), impossibleIn("EvaluateObject"));

  auto *Perform = T.stmt<PerformStatement>(2, 12);
  for (PerformStmtType Type : {PFM_STMT_NONE, PFM_STMT_NOLIMIT}) {
    Perform->setType(Type);
    EXPECT_DEATH(E.visit(Perform), impossibleIn("PerformStatement")) << Type;
  }

  // A CALL target that is neither a non-numeric literal nor a data name.
  EXPECT_DEATH(E.visit(callOf(T, T.num("1", 4, 17))),
               impossibleIn("CallStatement"));
  auto *Fig = T.at<FigurativeLiteralExpression>(4, 17, 4, 21);
  EXPECT_DEATH(E.visit(callOf(T, Fig)), impossibleIn("CallStatement"));

  EXPECT_DEATH(E.visit(T.at<Using>(4, 29, 4, 40)), impossibleIn("Using"));
  EXPECT_DEATH(E.visit(T.at<Parameter>(4, 29, 4, 40)),
               impossibleIn("Parameter"));

  // EGCS and BOOLEAN have no category text, like NONE.
  auto *Repl = T.at<InitializeReplacingItem>(2, 12, 2, 40);
  for (InitReplType Type : {INIT_NONE, INIT_EGCS, INIT_BOOLEAN}) {
    Repl->setType(Type);
    EXPECT_DEATH(E.visit(Repl), impossibleIn("InitializeReplacingItem"))
        << Type;
  }
}

} // namespace
