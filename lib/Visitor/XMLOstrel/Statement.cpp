//===- Statement.cpp - Statements -------------===//

#include "korvid/XMLOstrel.h"
#include "korvid/ParseTree.h"

#include <tinyxml2.h>

#include <cassert>
#include <list>
#include <string>

using tinyxml2::XMLElement;

namespace korvid {

#define DISPATCH(Type, Class)                                                  \
  case Type:                                                                   \
    visit(static_cast<Class *>(S));                                            \
    return

void XMLOstrel::visit(Statement *S) {
  switch (S->getType()) {
    DISPATCH(STMT_ACCEPT, AcceptStatement);
    DISPATCH(STMT_ADD, AddStatement);
    DISPATCH(STMT_ALTER, AlterStatement);
    DISPATCH(STMT_CALL, CallStatement);
    DISPATCH(STMT_CANCEL, CancelStatement);
    DISPATCH(STMT_CLOSE, CloseStatement);
    DISPATCH(STMT_COMPUTE, ComputeStatement);
    DISPATCH(STMT_CONTINUE, ContinueStatement);
    DISPATCH(STMT_DELETE, DeleteStatement);
    DISPATCH(STMT_DISPLAY, DisplayStatement);
    DISPATCH(STMT_DIVIDE, DivideStatement);
    DISPATCH(STMT_ENTRY, EntryStatement);
    DISPATCH(STMT_EVALUATE, EvaluateStatement);
    DISPATCH(STMT_EXIT, ExitStatement);
    DISPATCH(STMT_EXIT_PROGRAM, ExitProgramStatement);
    DISPATCH(STMT_GOTO, GotoStatement);
    DISPATCH(STMT_GOBACK, GobackStatement);
    DISPATCH(STMT_IF, IfStatement);
    DISPATCH(STMT_INITIALIZE, InitializeStatement);
    DISPATCH(STMT_INSPECT, InspectStatement);
    DISPATCH(STMT_MERGE, MergeStatement);
    DISPATCH(STMT_MOVE, MoveStatement);
    DISPATCH(STMT_MULTIPLY, MultiplyStatement);
    DISPATCH(STMT_OPEN, OpenStatement);
    DISPATCH(STMT_PERFORM, PerformStatement);
    DISPATCH(STMT_READ, ReadStatement);
    DISPATCH(STMT_RELEASE, ReleaseStatement);
    DISPATCH(STMT_RETURN, ReturnStatement);
    DISPATCH(STMT_REWRITE, RewriteStatement);
    DISPATCH(STMT_SEARCH, SearchStatement);
    DISPATCH(STMT_SET, SetStatement);
    DISPATCH(STMT_SORT, SortStatement);
    DISPATCH(STMT_START, StartStatement);
    DISPATCH(STMT_STOP, StopStatement);
    DISPATCH(STMT_STRING, StringStatement);
    DISPATCH(STMT_SUBTRACT, SubtractStatement);
    DISPATCH(STMT_UNSTRING, UnstringStatement);
    DISPATCH(STMT_WRITE, WriteStatement);
    DISPATCH(STMT_NEXT_SENTENCE, NextSentenceStatement);
    DISPATCH(STMT_READY_TRACE, ReadyTraceStatement);
    DISPATCH(STMT_RESET_TRACE, ResetTraceStatement);
    DISPATCH(STMT_XML_GEN, XMLGenerateStatement);
    DISPATCH(STMT_XML_PARSE, XMLParseStatement);
    DISPATCH(STMT_EXIT_PERFORM, ExitPerformStatement);
    DISPATCH(STMT_RW_GENERATE, RwGenerateStatement);
    DISPATCH(STMT_RW_INITIATE, RwInitiateStatement);
    DISPATCH(STMT_RW_TERMINATE, RwTerminateStatement);
    DISPATCH(STMT_RW_SUPPRESS, RwSuppressStatement);
    DISPATCH(STMT_EXEC_SQL, ExecStatement);
    DISPATCH(STMT_EXEC_SQL_INCLUDE, ExecStatement);
    DISPATCH(STMT_EXEC_CICS, ExecStatement);
  case STMT_CLASSIC:
    // Older-dialect statements are marked, not written out.
    Handler->setRetElement(Handler->newRetElement("OSVS_COBOL_STATEMENT"));
    return;
  case STMT_STRINGREF:
  case STMT_ERR_RECOV:
    return;
  default:
    assert(0);
  }
}

#undef DISPATCH

// Written as nothing: these constructs have no element of their own, and a
// caller never visits them for one.
void XMLOstrel::visit(UseStatement *) {}
void XMLOstrel::visit(ClassicStatement *) {}
void XMLOstrel::visit(ClassicExamineStatement *) {}
void XMLOstrel::visit(ClassicExhibitStatement *) {}
void XMLOstrel::visit(ClassicOnStatement *) {}
void XMLOstrel::visit(ClassicTransformStatement *) {}
void XMLOstrel::visit(StackAddrStatement *) {}
void XMLOstrel::visit(StrReferStatement *) {}
void XMLOstrel::visit(DebugStatement *) {}
void XMLOstrel::visit(IDMSStatement *) {}
void XMLOstrel::visit(IDMSAbendExits *) {}
void XMLOstrel::visit(IDMSWriteThenStatement *) {}
void XMLOstrel::visit(IDMSIfStatement *) {}
void XMLOstrel::visit(IDMSLogicalExpression *) {}
void XMLOstrel::visit(IDMSLogicalCombinedCondition *) {}
void XMLOstrel::visit(IDMSLogicalOperand *) {}
void XMLOstrel::visit(IDMSLogicalOperator *) {}
// Their parts are written by the visits of CALL arguments and PERFORM.
void XMLOstrel::visit(UsingItem *) {}
void XMLOstrel::visit(PerformTest *) {}

// Nested statements are written unless missing or built by the parser while
// recovering from an error.
static bool isWritten(Statement *S) {
  return S && S->getType() != STMT_ERR_RECOV;
}

//===----------------------------------------------------------------------===//
// The statement frame: exception phrases and ROUNDED receivers
//===----------------------------------------------------------------------===//

void XMLOstrel::visit(ExceptionHandler *H) {
  XMLElement *Own = Handler->newRetElement("EXCEPTION");
  bool Negated = H->getIsNegate();
  const char *Text = nullptr;
  switch (H->getType()) {
  case EXCEPTION_ON:
    Text = "ON_EXCEPTION";
    break;
  case EXCEPTION_SIZE:
    Text = "ON_SIZE_ERROR";
    break;
  case EXCEPTION_END:
    Text = "AT_END";
    break;
  case EXCEPTION_INVALIDKEY:
    Text = "INVALID_KEY";
    break;
  case EXCEPTION_OVERFLOW:
    Text = "ON_OVERFLOW";
    break;
  case EXCEPTION_ENDOFPAGE:
    Text = "AT_END_OF_PAGE";
    break;
  default:
    assert(0 && "impossible");
  }
  std::string Type = Negated ? std::string("NOT_") + Text : std::string(Text);
  // The phrase's kind is located at the whole phrase.
  appendTextChild(Own, "TYPE", H, Type.c_str());
  for (auto I = H->getImperStmtListBegin(), E = H->getImperStmtListEnd();
       I != E; ++I)
    if (isWritten(*I))
      appendNodeChild(Own, *I);
  Handler->setRetElement(Own);
}

// No element of its own: the receiver's expression element stands for it,
// located by the caller at the whole ROUNDED receiver. Whether ROUNDED was
// written is not part of the document.
void XMLOstrel::visit(RoundedExpression *R) {
  if (Expression *E = R->getExpression())
    visit(E);
}

//===----------------------------------------------------------------------===//
// Arithmetic statements
//===----------------------------------------------------------------------===//

// ADD names its first operands OPERAND (SUBTRACT says SOURCE) and writes its
// single operands after the exception list.
void XMLOstrel::visit(AddStatement *S) {
  XMLElement *Own = Handler->newRetElement("ADD_STATEMENT");
  appendListChild(Own, "OPERAND", "ExprList", S->getOperandListSize(),
                  S->getOperandListBegin(), S->getOperandListEnd());
  appendListChild(Own, "TO", "RoundExprList", S->getToListSize(),
                  S->getToListBegin(), S->getToListEnd());
  appendListChild(Own, "GIVING", "RoundExprList", S->getGivingListSize(),
                  S->getGivingListBegin(), S->getGivingListEnd());
  appendListChild(Own, "EXCEPTION_LIST", "ExcpList",
                  S->getSizeErrorHandlerSize(), S->getSizeErrorHandlerBegin(),
                  S->getSizeErrorHandlerEnd());
  appendWrappedChild(Own, "TO", S->getToOperand());
  appendWrappedChild(Own, "OPERAND", S->getCorrespondingExpr());
  appendWrappedChild(Own, "TO", S->getToRoundExpr());
  Handler->setRetElement(Own);
}

// The statement's tag keeps its historical spelling with the extra S; the
// only arithmetic statement that writes its form.
void XMLOstrel::visit(SubtractStatement *S) {
  XMLElement *Own = Handler->newRetElement("SUBSTRACT_STATEMENT");
  const char *Type = nullptr;
  if (S->getType() == SUB_STMT_GIVING)
    Type = "GIVING";
  else if (S->getType() == SUB_STMT_CORRES)
    Type = "CORRESPOND";
  else if (S->getType() == SUB_STMT_SIMPLE)
    Type = "BASIC";
  else
    assert(0 && "impossible");
  appendTextChild(Own, "TYPE", S, Type);
  appendListChild(Own, "SOURCE", "ExprList", S->getOperandListSize(),
                  S->getOperandListBegin(), S->getOperandListEnd());
  appendWrappedChild(Own, "SOURCE", S->getCorrespondingExpr());
  appendListChild(Own, "FROM", "RoundExprList", S->getFromListSize(),
                  S->getFromListBegin(), S->getFromListEnd());
  appendWrappedChild(Own, "FROM", S->getFromExpr());
  appendWrappedChild(Own, "FROM", S->getFromRoundExpr());
  appendListChild(Own, "GIVING", "RoundExprList", S->getGivingListSize(),
                  S->getGivingListBegin(), S->getGivingListEnd());
  appendListChild(Own, "EXCEPTION_LIST", "ExcpList",
                  S->getSizeErrorHandlerSize(), S->getSizeErrorHandlerBegin(),
                  S->getSizeErrorHandlerEnd());
  Handler->setRetElement(Own);
}

// The single BY operand is wrapped in BY_LIST too, although it is no list.
void XMLOstrel::visit(MultiplyStatement *S) {
  XMLElement *Own = Handler->newRetElement("MULTIPLY_STATEMENT");
  appendWrappedChild(Own, "SOURCE", S->getOperand());
  appendListChild(Own, "BY_LIST", "RoundExprList", S->getByListSize(),
                  S->getByListBegin(), S->getByListEnd());
  appendWrappedChild(Own, "BY_LIST", S->getByOperand());
  appendListChild(Own, "GIVING_LIST", "RoundExprList", S->getGivingListSize(),
                  S->getGivingListBegin(), S->getGivingListEnd());
  appendListChild(Own, "EXCEPTION_LIST", "ExcpList",
                  S->getSizeErrorHandlerSize(), S->getSizeErrorHandlerBegin(),
                  S->getSizeErrorHandlerEnd());
  Handler->setRetElement(Own);
}

// Receivers first, single operands last; INTO names both the receiver list
// and the single operand of the GIVING forms. The form itself is not
// written: only the wrappers present tell it.
void XMLOstrel::visit(DivideStatement *S) {
  XMLElement *Own = Handler->newRetElement("DIVIDE_STATEMENT");
  appendListChild(Own, "INTO", "RoundExprList", S->getToListSize(),
                  S->getToListBegin(), S->getToListEnd());
  appendListChild(Own, "GIVING", "RoundExprList", S->getGivingListSize(),
                  S->getGivingListBegin(), S->getGivingListEnd());
  appendListChild(Own, "EXCEPTION_LIST", "ExcpList",
                  S->getSizeErrorHandlerSize(), S->getSizeErrorHandlerBegin(),
                  S->getSizeErrorHandlerEnd());
  appendWrappedChild(Own, "SOURCE", S->getOperand());
  appendWrappedChild(Own, "INTO", S->getIntoExpr());
  appendWrappedChild(Own, "BY", S->getByExpr());
  appendWrappedChild(Own, "REMAINDER", S->getRemainderExpr());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ComputeStatement *S) {
  XMLElement *Own = Handler->newRetElement("COMPUTE_STATEMENT");
  appendListChild(Own, "RECEIVING", "RoundExprList", S->getOperandListSize(),
                  S->getOperandListBegin(), S->getOperandListEnd());
  appendListChild(Own, "EXCEPTION_LIST", "ExcpList",
                  S->getSizeErrorHandlerSize(), S->getSizeErrorHandlerBegin(),
                  S->getSizeErrorHandlerEnd());
  appendWrappedChild(Own, "ARITHMETIC_EXPR", S->getArithmeticExpression());
  Handler->setRetElement(Own);
}

//===----------------------------------------------------------------------===//
// Control-flow statements
//===----------------------------------------------------------------------===//

// Both branches are written flat, one after the other; only their locations
// tell the ELSE statements apart. The condition comes last.
void XMLOstrel::visit(IfStatement *S) {
  XMLElement *Own = Handler->newRetElement("IF_STATEMENT");
  for (auto I = S->getIfStmtListBegin(), E = S->getIfStmtListEnd(); I != E;
       ++I)
    if (isWritten(*I))
      appendNodeChild(Own, *I);
  for (auto I = S->getElseStmtListBegin(), E = S->getElseStmtListEnd(); I != E;
       ++I)
    if (isWritten(*I))
      appendNodeChild(Own, *I);
  appendWrappedChild(Own, "CONDITION", S->getCondition());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(EvaluateStatement *S) {
  XMLElement *Own = Handler->newRetElement("EVALUATE_STATEMENT");
  appendListChild(Own, "EVALUATE_SUBJECT_LIST", "EvalSubList",
                  S->getSubjectListSize(), S->getSubjectListBegin(),
                  S->getSubjectListEnd());
  appendListChild(Own, "EVALUATE_CASE_LIST", "EvalCaseList",
                  S->getWhenCaseListSize(), S->getWhenCaseListBegin(),
                  S->getWhenCaseListEnd());
  // The WHEN OTHER case goes into a second, attribute-less case list that
  // always closes the statement. The case is first placed under the
  // statement and then moved into that list; without a WHEN OTHER the slot
  // still holds the list itself, whose append to itself changes nothing, so
  // the list stays empty.
  XMLElement *Other = Handler->newRetElement("EVALUATE_CASE_LIST");
  appendNodeChild(Own, S->getWhenOtherCase());
  Handler->appendChildLast(Handler->getRetElement(), Other);
  Handler->appendChildLast(Other, Own);
  Handler->setRetElement(Own);
}

// A condition subject is labelled EXPR as well.
void XMLOstrel::visit(EvaluateSubject *S) {
  XMLElement *Own = Handler->newRetElement("EVALUATE_SUBJECT");
  const char *Text = "";
  Node *At = nullptr;
  switch (S->getType()) {
  case EVAL_SUB_TRUE:
    Text = "TRUE";
    At = S->getTFWord();
    break;
  case EVAL_SUB_FALSE:
    Text = "FALSE";
    At = S->getTFWord();
    break;
  case EVAL_SUB_COND:
    Text = "EXPR";
    At = S->getCond();
    break;
  case EVAL_SUB_EXPR:
    Text = "EXPR";
    At = S->getExpr();
    break;
  default:
    assert(0 && "impossible");
  }
  if (At)
    appendTextChild(Own, "TYPE", At, Text);
  appendNodeChild(Own, S->getExpr());
  appendNodeChild(Own, S->getCond());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(EvaluateCase *C) {
  XMLElement *Own = Handler->newRetElement("EVALUATE_CASE");
  appendListChild(Own, "EVALUATE_CASE_WHEN_LIST", "EvalWhenList",
                  C->getWhenListSize(), C->getWhenListBegin(),
                  C->getWhenListEnd());
  for (auto I = C->getWhenStmtListBegin(), E = C->getWhenStmtListEnd();
       I != E; ++I)
    if (isWritten(*I))
      appendNodeChild(Own, *I);
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(EvaluateWhen *W) {
  XMLElement *Own = Handler->newRetElement("EVALUATE_WHEN");
  for (auto I = W->getWhenObjListBegin(), E = W->getWhenObjListEnd(); I != E;
       ++I)
    appendNodeChild(Own, *I);
  Handler->setRetElement(Own);
}

// NOT before an expression object only changes the TYPE text ("NOT EXPR");
// the NOT word gets no element.
void XMLOstrel::visit(EvaluateObject *O) {
  XMLElement *Own = Handler->newRetElement("EVALUATE_WHEN_OBJECT");
  const char *Text = "";
  Node *At = nullptr;
  switch (O->getType()) {
  case EVAL_OBJ_ANY:
    Text = "ANY";
    At = O->getAnyWord();
    break;
  case EVAL_OBJ_TRUE:
    Text = "TRUE";
    At = O->getTrueWord();
    break;
  case EVAL_OBJ_FALSE:
    Text = "FALSE";
    At = O->getFalseWord();
    break;
  case EVAL_OBJ_COND:
    Text = "EXPR";
    At = O->getCondition();
    break;
  case EVAL_OBJ_EXPR:
    Text = O->getNotWord() ? "NOT EXPR" : "EXPR";
    At = O->getFrontExpression();
    break;
  default:
    assert(0 && "impossible");
  }
  if (At)
    appendTextChild(Own, "TYPE", At, Text);
  appendNodeChild(Own, O->getCondition());
  appendWrappedChild(Own, "FROM", O->getFrontExpression());
  appendWrappedChild(Own, "THRU", O->getRearExpression());
  Handler->setRetElement(Own);
}

// The no-limit form has no text and cannot be written.
void XMLOstrel::visit(PerformStatement *S) {
  XMLElement *Own = Handler->newRetElement("PERFORM_STATEMENT");
  const char *Type = nullptr;
  switch (S->getType()) {
  case PFM_STMT_SIMPLE:
    Type = "BASIC";
    break;
  case PFM_STMT_TIMES:
    Type = "WITH_TIMES";
    break;
  case PFM_STMT_UNTIL:
    Type = "WITH_UNTIL";
    break;
  case PFM_STMT_VARYING:
    Type = "WITH_VARYING";
    break;
  default:
    assert(0 && "impossible");
  }
  appendTextChild(Own, "TYPE", S, Type);
  if (PerformTest *Test = S->getTest())
    appendTextChild(Own, "TEST_TYPE", Test,
                    Test->getIsAfter() ? "AFTER" : "BEFORE");
  appendNodeChild(Own, S->getProcedureName());
  appendWrappedChild(Own, "REPEAT_CNT", S->getTimesInteger());
  appendWrappedChild(Own, "UNTIL_CONDITION", S->getUntilCondition());
  appendListChild(Own, "VARYING_LIST", "PfmVryingList", S->getPhraseListSize(),
                  S->getPhraseListBegin(), S->getPhraseListEnd());
  for (auto I = S->getInlineStatementsBegin(), E = S->getInlineStatementsEnd();
       I != E; ++I)
    if (isWritten(*I))
      appendNodeChild(Own, *I);
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(PerformProcedure *P) {
  XMLElement *Own = Handler->newRetElement("PROCEDURE");
  appendWrappedChild(Own, "FROM", P->getProcedureName1());
  appendWrappedChild(Own, "THRU", P->getProcedureName2());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(PerformVarying *V) {
  XMLElement *Own = Handler->newRetElement("VARYING");
  appendWrappedChild(Own, "VARYING_IDENTIFIER",
                     V->getVaryingAfterIdentifier());
  appendWrappedChild(Own, "FROM", V->getFromIdentifier());
  appendWrappedChild(Own, "BY", V->getByIdentifier());
  appendWrappedChild(Own, "UNTIL_CONDITION", V->getUntilCondition());
  Handler->setRetElement(Own);
}

// The target procedures are not written: only the DEPENDING ON operand.
void XMLOstrel::visit(GotoStatement *S) {
  XMLElement *Own = Handler->newRetElement("GOTO_STATEMENT");
  appendWrappedChild(Own, "DEPENDING_ON", S->getDependingName());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(AlterStatement *S) {
  XMLElement *Own = Handler->newRetElement("ALTER_STATEMENT");
  for (auto I = S->getAlterListBegin(), E = S->getAlterListEnd(); I != E; ++I)
    appendNodeChild(Own, *I);
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(AlterItem *A) {
  XMLElement *Own = Handler->newRetElement("ALTER_TRANSFER");
  appendWrappedChild(Own, "SOURCE", A->getSrcProcName());
  appendWrappedChild(Own, "TARGET", A->getDstProcName());
  Handler->setRetElement(Own);
}

// A literal wins over RUN: with a literal, a RUN word is not written.
void XMLOstrel::visit(StopStatement *S) {
  XMLElement *Own = Handler->newRetElement("STOP_STATEMENT");
  if (LiteralExpression *L = S->getLiteral()) {
    appendTextChild(Own, "TYPE", L, "LITERAL");
    appendNodeChild(Own, L);
  } else if (Word *Run = S->getRun()) {
    appendTextChild(Own, "TYPE", Run, "RUN");
  }
  Handler->setRetElement(Own);
}

// Statements without operands: an empty element each.
void XMLOstrel::visit(ContinueStatement *) {
  Handler->setRetElement(Handler->newRetElement("CONTINUE_STATEMENT"));
}

void XMLOstrel::visit(ExitStatement *) {
  Handler->setRetElement(Handler->newRetElement("EXIT_STATEMENT"));
}

void XMLOstrel::visit(ExitProgramStatement *) {
  Handler->setRetElement(Handler->newRetElement("EXIT_PROGRAM_STATEMENT"));
}

void XMLOstrel::visit(ExitPerformStatement *) {
  Handler->setRetElement(Handler->newRetElement("EXIT_PERFORM_STATEMENT"));
}

void XMLOstrel::visit(GobackStatement *) {
  Handler->setRetElement(Handler->newRetElement("GOBACK_STATEMENT"));
}

void XMLOstrel::visit(ReadyTraceStatement *) {
  Handler->setRetElement(Handler->newRetElement("READY_TRACE_STATEMENT"));
}

void XMLOstrel::visit(ResetTraceStatement *) {
  Handler->setRetElement(Handler->newRetElement("RESET_TRACE_STATEMENT"));
}

void XMLOstrel::visit(NextSentenceStatement *) {
  Handler->setRetElement(Handler->newRetElement("NEXT_SENTENCE_STATEMENT"));
}

//===----------------------------------------------------------------------===//
// Inter-program statements, USING, RETURNING and parameters
//===----------------------------------------------------------------------===//

// One PARAM per identifier: a parameter group is split so that each element
// carries its own passing mode. The split groups live only for this visit.
void XMLOstrel::visit(ParamPhrase *P) {
  XMLElement *Own = Handler->newRetElement("PARAM_LIST");
  for (auto PI = P->getParamListBegin(), PE = P->getParamListEnd(); PI != PE;
       ++PI) {
    Parameter *Group = *PI;
    if (!Group)
      continue;
    for (auto I = Group->getIdentListBegin(), E = Group->getIdentListEnd();
         I != E; ++I) {
      NodeList<DataIdentifierExpression> One = {*I};
      Parameter Split(Group, One, nullptr, nullptr, Group->getType());
      appendNodeChild(Own, &Split);
    }
  }
  Handler->setRetElement(Own);
}

// A group of two or more identifiers writes no VALUE: the parameter phrase
// splits groups before it gets here.
void XMLOstrel::visit(Parameter *P) {
  XMLElement *Own = Handler->newRetElement("PARAM");
  const char *Text = nullptr;
  switch (P->getType()) {
  case PARAM_REFERENCE:
    Text = "BY_REFERENCE";
    break;
  case PARAM_VALUE:
    Text = "BY_VALUE";
    break;
  default:
    assert(0 && "impossible");
  }
  appendTextChild(Own, "PARAM_TYPE", P, Text);
  if (P->getIdentListSize() == 1)
    appendWrappedChild(Own, "VALUE", *P->getIdentListBegin());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(Using *U) {
  XMLElement *Own = Handler->newRetElement("ARG");
  const char *By = nullptr;
  if (U->getType() == USING_CONTENT)
    By = "BY_CONTENT";
  else if (U->getType() == USING_VALUE)
    By = "BY_VALUE";
  else if (U->getType() == USING_REFERENCE)
    By = "BY_REFERENCE";
  else
    assert(0 && "impossible");
  for (auto I = U->getItemListBegin(), E = U->getItemListEnd(); I != E; ++I) {
    UsingItem *Item = *I;
    if (Item)
      appendTextChild(Own, "ARG_TYPE", Item,
                      Item->getOmitted() ? "OMITTED" : "NORMAL");
    // The passing mode is located at the whole group.
    appendTextChild(Own, "BY_TYPE", U, By);
    if (Item)
      appendWrappedChild(Own, "ARGUMENT", Item->getItem());
  }
  Handler->setRetElement(Own);
}

/// The text of a CALL target given as a data name: the qualifier chain's
/// words joined by " OF ", in the chain's order, then the name's own word.
/// A separator is put before a level only when a further level follows it,
/// so a name with two qualifier levels reads " OF A" + "C" + " OF " + "B";
/// this is the text the emitter has always written.
static std::string callTargetName(QualifiedWord *Q) {
  std::string S;
  for (QualifiedWord *C = Q->getFrontWord(); C; C = C->getFrontWord()) {
    if (C->getFrontWord())
      S += " OF ";
    if (Word *Rear = C->getRearWord())
      S += Rear->getWordData();
  }
  if (!S.empty())
    S += " OF ";
  if (Word *Rear = Q->getRearWord())
    S += Rear->getWordData();
  return S;
}

void XMLOstrel::visit(CallStatement *S) {
  XMLElement *Own = Handler->newRetElement("CALL_STATEMENT");
  Expression *Target = S->getProcedureName();
  std::string Name;
  switch (Target->getExprType()) {
  case EXPR_LITRL_NON_NUM:
    Name = static_cast<NonNumericLiteralExpression *>(Target)->getData();
    break;
  case EXPR_IDENT_DATA:
    Name = callTargetName(
        static_cast<DataIdentifierExpression *>(Target)->getName());
    break;
  default:
    assert(0 && "impossible");
  }
  appendTextChild(Own, "CALL_NAME", Target, Name.c_str());

  // One ARG per argument item, each carrying its group's passing mode. The
  // split groups report their group's location and live only for this
  // visit.
  std::list<Using> Args;
  for (auto GI = S->getArgumentListBegin(), GE = S->getArgumentListEnd();
       GI != GE; ++GI) {
    Using *Group = *GI;
    if (!Group)
      continue;
    for (auto I = Group->getItemListBegin(), E = Group->getItemListEnd();
         I != E; ++I) {
      NodeList<UsingItem> One = {*I};
      Args.emplace_back(Group, Group->getType(), One, Group->getTypeWord(),
                        nullptr);
    }
  }
  if (!Args.empty()) {
    // Unlike other list containers, the argument list also names where its
    // first argument was written ("loc"), calls no initialize() around its
    // items, and locates each argument with its printable location in place
    // of the expanded file name.
    XMLElement *L = Handler->newElement("ARGS_LIST");
    Using &First = Args.front();
    Using &Last = Args.back();
    Handler->setAttribute(L, "size", static_cast<unsigned long>(Args.size()));
    Handler->setAttribute(L, "name", "usingList");
    Handler->setAttribute(L, "loc", First.getLocStringOrg().c_str());
    Handler->setAttribute(L, "lbl", First.getBeginLineNo());
    Handler->setAttribute(L, "lbc", First.getBeginCharPos());
    Handler->setAttribute(L, "lblo", First.getBeginLineNoOrg());
    Handler->setAttribute(L, "lbco", First.getBeginCharPosOrg());
    for (Using &A : Args) {
      visit(&A);
      XMLElement *Arg = Handler->getRetElement();
      Handler->attributeLoc(Arg, A.getBeginLineNo(), A.getBeginCharPos(),
                            A.getEndLineNo(), A.getEndCharPos(),
                            A.getLocString(), A.getBeginLineNoOrg(),
                            A.getBeginCharPosOrg(), A.getEndLineNoOrg(),
                            A.getEndCharPosOrg(), A.getFileNameOrgStr());
      Handler->appendChildOrdered(Arg, L);
    }
    Handler->setAttribute(L, "lel", Last.getEndLineNo());
    Handler->setAttribute(L, "lec", Last.getEndCharPos());
    Handler->setAttribute(L, "lelo", Last.getEndLineNoOrg());
    Handler->setAttribute(L, "leco", Last.getEndCharPosOrg());
    Handler->appendChildOrdered(L, Own);
  }

  // CALL names its exception list ExceptionHandler, not ExcpList.
  appendListChild(Own, "EXCEPTION_LIST", "ExceptionHandler",
                  S->getExceptHandlerSize(), S->getExceptHandlerBegin(),
                  S->getExceptHandlerEnd());
  Handler->setRetElement(Own);
}

// The cancelled programs are not written.
void XMLOstrel::visit(CancelStatement *) {
  Handler->setRetElement(Handler->newRetElement("CANCEL_STATEMENT"));
}

void XMLOstrel::visit(EntryStatement *S) {
  XMLElement *Own = Handler->newRetElement("ENTRY_STATEMENT");
  appendWrappedChild(Own, "ENTRY_NAME", S->getEntryLiter());
  appendNodeChild(Own, S->getParameters());
  Handler->setRetElement(Own);
}

// The tag is in mixed case, unlike the statement tags.
void XMLOstrel::visit(Returning *R) {
  XMLElement *Own = Handler->newRetElement("Returning");
  appendNodeChild(Own, R->getReturnItem());
  appendNodeChild(Own, R->getReturningWord());
  Handler->setRetElement(Own);
}

// Kept for its location only: always empty, in mixed case.
void XMLOstrel::visit(UsingPhrase *) {
  Handler->setRetElement(Handler->newRetElement("UsingPhrase"));
}

//===----------------------------------------------------------------------===//
// Data-manipulation statements
//===----------------------------------------------------------------------===//

// No attribute for CORRESPONDING: the flag is not written.
void XMLOstrel::visit(MoveStatement *S) {
  XMLElement *Own = Handler->newRetElement("MOVE_STATEMENT");
  appendWrappedChild(Own, "SENDING", S->getSource());
  appendListChild(Own, "RECEIVING", "IdentList", S->getTargetListSize(),
                  S->getTargetListBegin(), S->getTargetListEnd());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(InitializeStatement *S) {
  XMLElement *Own = Handler->newRetElement("INITIALIZE_STATEMENT");
  appendListChild(Own, "IDENTIFIER_LIST", "IdentList",
                  S->getIdentifierListSize(), S->getIdentifierListBegin(),
                  S->getIdentifierListEnd());
  appendListChild(Own, "REPLACING_LIST", "InitReplList",
                  S->getReplacingListSize(), S->getReplacingListBegin(),
                  S->getReplacingListEnd());
  Handler->setRetElement(Own);
}

// EGCS and BOOLEAN have no category text and end the run like NONE.
void XMLOstrel::visit(InitializeReplacingItem *R) {
  XMLElement *Own = Handler->newRetElement("REPLACING");
  const char *Category = nullptr;
  switch (R->getType()) {
  case INIT_ALPHABETIC:
    Category = "ALPHABETIC";
    break;
  case INIT_ALPHANUMERIC:
    Category = "ALPHANUMERIC";
    break;
  case INIT_ALPHANUMERIC_EDITED:
    Category = "ALPHANUMERIC_EDITED";
    break;
  case INIT_NATIONAL:
    Category = "NATIONAL";
    break;
  case INIT_NATIONAL_EDITED:
    Category = "NATIONAL_EDITED";
    break;
  case INIT_NUMERIC:
    Category = "NUMERIC";
    break;
  case INIT_NUMERIC_EDITED:
    Category = "NUMERIC_EDITED";
    break;
  case INIT_DBCS:
    Category = "DBCS";
    break;
  default:
    assert(0 && "impossible");
  }
  appendTextChild(Own, "CATEGORY", R, Category);
  appendWrappedChild(Own, "INIT_VALUE", R->getByExpr());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(SetStatement *S) {
  XMLElement *Own = Handler->newRetElement("SET_STATEMENT");
  appendListChild(Own, "SET_ITEM_LIST", "SetItemList", S->getItemSize(),
                  S->getItemBegin(), S->getItemEnd());
  Handler->setRetElement(Own);
}

// TO, UP BY and DOWN BY are not told apart. Receiving identifiers and
// receiving condition names share the tag RECEIVING_LIST and differ only
// in "name".
void XMLOstrel::visit(SetItem *I) {
  XMLElement *Own = Handler->newRetElement("SET_ITEM");
  appendListChild(Own, "RECEIVING_LIST", "IdentList", I->getSetListSize(),
                  I->getSetListBegin(), I->getSetListEnd());
  appendListChild(Own, "RECEIVING_LIST", "CondList", I->getCondListSize(),
                  I->getCondListBegin(), I->getCondListEnd());
  appendNodeChild(Own, I->getToValue());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(SetToValue *V) {
  XMLElement *Own = Handler->newRetElement("SENDING");
  appendNodeChild(Own, V->getToExpr());
  Handler->setRetElement(Own);
}

// Written as nothing: the statements that own these phrases and clauses
// read their parts themselves.
void XMLOstrel::visit(PointerPhrase *) {}
void XMLOstrel::visit(UnstringDelemitedPhrase *) {}
void XMLOstrel::visit(ReadRecordItem *) {}
void XMLOstrel::visit(SortDuplicates *) {}
void XMLOstrel::visit(SortCollating *) {}
void XMLOstrel::visit(ClauseXMLCount *) {}
void XMLOstrel::visit(ClauseXMLEncoding *) {}
void XMLOstrel::visit(ClauseXMLDeclaration *) {}
void XMLOstrel::visit(ClauseXMLAttributes *) {}
void XMLOstrel::visit(ClauseXMLNameSpace *) {}
void XMLOstrel::visit(ClauseXMLReturning *) {}
void XMLOstrel::visit(ClauseXMLValidating *) {}

} // namespace korvid
