//===- Statement.cpp - The statement dispatch and every statement ---------===//

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

//===----------------------------------------------------------------------===//
// SEARCH
//===----------------------------------------------------------------------===//

// SEARCH ALL is told from a serial SEARCH only by its ALL word; the
// statement's own serial/binary kind is not written.
void XMLOstrel::visit(SearchStatement *S) {
  XMLElement *Own = Handler->newRetElement("SEARCH_STATEMENT");
  if (Word *All = S->getAllWord())
    appendTextChild(Own, "ALL", All, "TRUE");
  appendWrappedChild(Own, "TABLE", S->getSearchIdentifier());
  appendWrappedChild(Own, "VARYING", S->getVaryingIdentifier());
  appendListChild(Own, "WHEN_LIST", "SrchWhenList", S->getWhenListSize(),
                  S->getWhenListBegin(), S->getWhenListEnd());
  appendListChild(Own, "EXCEPTION_LIST", "ExcpList", S->getAtHandlerSize(),
                  S->getAtHandlerBegin(), S->getAtHandlerEnd());
  Handler->setRetElement(Own);
}

// The condition comes before the statements here, unlike IF.
void XMLOstrel::visit(SearchWhen *W) {
  XMLElement *Own = Handler->newRetElement("WHEN");
  appendWrappedChild(Own, "CONDITION", W->getCondition());
  for (auto I = W->getStatementListBegin(), E = W->getStatementListEnd();
       I != E; ++I)
    if (isWritten(*I))
      appendNodeChild(Own, *I);
  Handler->setRetElement(Own);
}

//===----------------------------------------------------------------------===//
// INSPECT
//===----------------------------------------------------------------------===//

void XMLOstrel::visit(InspectStatement *S) {
  XMLElement *Own = Handler->newRetElement("INSPECT_STATEMENT");
  appendWrappedChild(Own, "SOURCE", S->getIdentifier());
  appendListChild(Own, "TALLYING_LIST", "TallyingItemList",
                  S->getTallyingListSize(), S->getTallyingListBegin(),
                  S->getTallyingListEnd());
  appendListChild(Own, "REPLACING_LIST", "RplcItemList",
                  S->getReplacingListSize(), S->getReplacingListBegin(),
                  S->getReplacingListEnd());
  // The converting item's own element is CONVERTING too: the phrase comes
  // out as CONVERTING inside CONVERTING.
  appendWrappedChild(Own, "CONVERTING", S->getConverting());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(TallyingItem *T) {
  XMLElement *Own = Handler->newRetElement("TALLYING_ITEM");
  appendWrappedChild(Own, "SOURCE", T->getIdentifier());
  appendListChild(Own, "TALLYING_ITEM_FOR_LIST", "TallyingItemForList",
                  T->getTallyingForListSize(), T->getTallyingForListBegin(),
                  T->getTallyingForListEnd());
  Handler->setRetElement(Own);
}

// The kind of clause is the CHARACTERS, ALL or LEADING word as written, not
// the parsed kind.
void XMLOstrel::visit(TallyingItemFor *F) {
  XMLElement *Own = Handler->newRetElement("TALLYING_ITEM_FOR");
  appendWordChild(Own, "TYPE", F->getTypeWord());
  appendListChild(Own, "INSPECT_REGION_LIST", "InspctRgnList",
                  F->getInspectRegionListSize(),
                  F->getInspectRegionListBegin(),
                  F->getInspectRegionListEnd());
  appendListChild(Own, "TALLYING_REGION_LIST", "TallyingRgnList",
                  F->getTallyingRegionListSize(),
                  F->getTallyingRegionListBegin(),
                  F->getTallyingRegionListEnd());
  Handler->setRetElement(Own);
}

// Unlike every other region container, this one is tagged INSPECT_REGION
// (without _LIST), under the same list name.
void XMLOstrel::visit(TallyingRegion *R) {
  XMLElement *Own = Handler->newRetElement("TALLYING_REGION");
  appendWrappedChild(Own, "SOURCE", R->getExpr());
  appendListChild(Own, "INSPECT_REGION", "InspctRgnList",
                  R->getRegionPhraseListSize(), R->getRegionPhraseListBegin(),
                  R->getRegionPhraseListEnd());
  Handler->setRetElement(Own);
}

// A replacing clause writes no kind (CHARACTERS, ALL, LEADING, FIRST).
void XMLOstrel::visit(ReplacingItem *R) {
  XMLElement *Own = Handler->newRetElement("REPLACING_ITEM");
  appendWrappedChild(Own, "SOURCE", R->getExpr());
  appendListChild(Own, "INSPECT_REGION_LIST", "InspctRgnList",
                  R->getInspectRegionListSize(),
                  R->getInspectRegionListBegin(),
                  R->getInspectRegionListEnd());
  appendListChild(Own, "REPLACING_REGION_LIST", "RplcRgnList",
                  R->getReplacingRegionListSize(),
                  R->getReplacingRegionListBegin(),
                  R->getReplacingRegionListEnd());
  Handler->setRetElement(Own);
}

// The BY operand is written under TO.
void XMLOstrel::visit(ReplacingRegion *R) {
  XMLElement *Own = Handler->newRetElement("REPLACING_REGION");
  appendWrappedChild(Own, "FROM", R->getExpr());
  appendWrappedChild(Own, "TO", R->getByExpr());
  appendListChild(Own, "INSPECT_REGION_LIST", "InspctRgnList",
                  R->getRegionListSize(), R->getRegionListBegin(),
                  R->getRegionListEnd());
  Handler->setRetElement(Own);
}

// The regions come first here, before the operands; the TO word is written
// bare, not wrapped.
void XMLOstrel::visit(ConvertingItem *C) {
  XMLElement *Own = Handler->newRetElement("CONVERTING");
  appendListChild(Own, "INSPECT_REGION_LIST", "InspctRgnList",
                  C->getRegionListSize(), C->getRegionListBegin(),
                  C->getRegionListEnd());
  appendWrappedChild(Own, "FROM", C->getExpr());
  appendWrappedChild(Own, "TO", C->getToExpr());
  appendNodeChild(Own, C->getToWord());
  Handler->setRetElement(Own);
}

// BEFORE or AFTER is the keyword as written, not the parsed kind.
void XMLOstrel::visit(InspectRegion *R) {
  XMLElement *Own = Handler->newRetElement("INSPECT_REGION_ENTRY");
  appendWrappedChild(Own, "SOURCE", R->getExpr());
  appendWordChild(Own, "TYPE", R->getTypeWord());
  Handler->setRetElement(Own);
}

//===----------------------------------------------------------------------===//
// STRING and UNSTRING
//===----------------------------------------------------------------------===//

// The STRING_SOURCE items stand directly under the statement.
void XMLOstrel::visit(StringStatement *S) {
  XMLElement *Own = Handler->newRetElement("STRING_STATEMENT");
  for (auto I = S->getItemListBegin(), E = S->getItemListEnd(); I != E; ++I)
    appendNodeChild(Own, *I);
  appendWrappedChild(Own, "INTO", S->getIntoIdentifier());
  if (PointerPhrase *P = S->getPointerPhrase())
    appendWrappedChild(Own, "WITH_POINTER", P->getWithPointerIdentifier());
  appendListChild(Own, "EXCEPTION_LIST", "ExcpList",
                  S->getOverflowHandlerSize(), S->getOverflowHandlerBegin(),
                  S->getOverflowHandlerEnd());
  Handler->setRetElement(Own);
}

// The delimiter kind is decided by which keyword word is present; a SIZE
// word wins over a DELIMITED word.
void XMLOstrel::visit(StringItem *I) {
  XMLElement *Own = Handler->newRetElement("STRING_SOURCE");
  if (Word *Size = I->getSizeWord())
    appendTextChild(Own, "DELIMITED_TYPE", Size, "SIZE");
  else if (Word *Delimited = I->getDelimitedWord())
    appendTextChild(Own, "DELIMITED_TYPE", Delimited, "NORMAL");
  appendListChild(Own, "SOURCE", "ExprList", I->getStringNameListSize(),
                  I->getStringNameListBegin(), I->getStringNameListEnd());
  appendWrappedChild(Own, "DELIMITER", I->getDelimitedName());
  Handler->setRetElement(Own);
}

// Delimiters and receivers stand directly under the statement. The
// tallying phrase is read here; its own visit is not used.
void XMLOstrel::visit(UnstringStatement *S) {
  XMLElement *Own = Handler->newRetElement("UNSTRING_STATEMENT");
  appendWrappedChild(Own, "SOURCE", S->getSourceIdentifier());
  if (UnstringDelemitedPhrase *D = S->getDelemitedPhrase())
    if (D->getDelimiterListSize() != 0)
      for (auto I = D->getDelimiterListBegin(), E = D->getDelimiterListEnd();
           I != E; ++I)
        appendNodeChild(Own, *I);
  for (auto I = S->getIntoListBegin(), E = S->getIntoListEnd(); I != E; ++I)
    appendNodeChild(Own, *I);
  if (PointerPhrase *P = S->getPhrasePointer())
    appendWrappedChild(Own, "WITH_POINTER", P->getWithPointerIdentifier());
  if (UnstringTallyingPhrase *T = S->getPhraseTallying())
    appendWrappedChild(Own, "TALLYING_IN", T->getTallyingId());
  appendListChild(Own, "EXCEPTION_LIST", "ExcpList",
                  S->getOverflowHandlerSize(), S->getOverflowHandlerBegin(),
                  S->getOverflowHandlerEnd());
  Handler->setRetElement(Own);
}

// The ALL flag carries the delimiter's location, not the ALL keyword's.
void XMLOstrel::visit(UnstringDelimitedItem *D) {
  XMLElement *Own = Handler->newRetElement("DELIMITER");
  Expression *Delimiter = D->getDelimiter();
  appendNodeChild(Own, Delimiter);
  if (D->getAllWord() && Delimiter)
    appendTextChild(Own, "ALL", Delimiter, "TRUE");
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(UnstringIntoItem *I) {
  XMLElement *Own = Handler->newRetElement("INTO");
  appendWrappedChild(Own, "TARGET", I->getTargetIdentifier());
  appendWrappedChild(Own, "DELIMITER", I->getDelimiter());
  appendWrappedChild(Own, "COUNT", I->getCountIdentifier());
  Handler->setRetElement(Own);
}

// Only callers other than UNSTRING reach this; the tag keeps its mixed case.
void XMLOstrel::visit(UnstringTallyingPhrase *T) {
  XMLElement *Own = Handler->newRetElement("UnstringTallyingPhrase");
  appendNodeChild(Own, T->getTallyingId());
  appendNodeChild(Own, T->getTallyingWord());
  appendNodeChild(Own, T->getInWord());
  Handler->setRetElement(Own);
}

//===----------------------------------------------------------------------===//
// File input-output statements
//===----------------------------------------------------------------------===//

// Open items stand directly under the statement, with no container.
void XMLOstrel::visit(OpenStatement *S) {
  XMLElement *Own = Handler->newRetElement("OPEN_STATEMENT");
  for (auto I = S->getItemListBegin(), E = S->getItemListEnd(); I != E; ++I)
    appendNodeChild(Own, *I);
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(OpenItem *O) {
  XMLElement *Own = Handler->newRetElement("OPEN_FILE_ENTRY");
  const char *Mode = "";
  Word *ModeWord = nullptr;
  switch (O->getType()) {
  case OPEN_STMT_INPUT:
    Mode = "INPUT";
    ModeWord = O->getInputWord();
    break;
  case OPEN_STMT_OUTPUT:
    Mode = "OUTPUT";
    ModeWord = O->getOutputWord();
    break;
  case OPEN_STMT_IO:
    Mode = "IO";
    ModeWord = O->getIOWord();
    break;
  case OPEN_STMT_EXTEND:
    Mode = "EXTEND";
    ModeWord = O->getExtendWord();
    break;
  default:
    assert(0 && "impossible");
  }
  // A missing mode keyword leaves out MODE; the files are still written.
  if (ModeWord)
    appendTextChild(Own, "MODE", ModeWord, Mode);
  for (auto I = O->getFileListBegin(), E = O->getFileListEnd(); I != E; ++I)
    appendNodeChild(Own, *I);
  Handler->setRetElement(Own);
}

// OPEN calls its rewind flag NO_REWIND, where CLOSE says REWIND.
void XMLOstrel::visit(OpenFile *F) {
  XMLElement *Own = Handler->newRetElement("FILE_ENTRY");
  appendWordChild(Own, "FILE_NAME", F->getFileName());
  if (Word *Reversed = F->getReversedWord())
    appendTextChild(Own, "RESERVED", Reversed, "TRUE");
  if (Word *Rewind = F->getRewindWord())
    appendTextChild(Own, "NO_REWIND", Rewind, "TRUE");
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(CloseStatement *S) {
  XMLElement *Own = Handler->newRetElement("CLOSE_STATEMENT");
  for (auto I = S->getCloseFileListBegin(), E = S->getCloseFileListEnd();
       I != E; ++I)
    appendNodeChild(Own, *I);
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(CloseFile *F) {
  XMLElement *Own = Handler->newRetElement("CLOSE_FILE_ENTRY");
  appendWordChild(Own, "FILE_NAME", F->getFileName());
  if (Word *W = F->getReelWord())
    appendTextChild(Own, "REEL", W, "TRUE");
  if (Word *W = F->getUnitWord())
    appendTextChild(Own, "UNIT", W, "TRUE");
  if (Word *W = F->getLockWord())
    appendTextChild(Own, "LOCK", W, "TRUE");
  if (Word *W = F->getRewindWord())
    appendTextChild(Own, "REWIND", W, "TRUE");
  if (Word *W = F->getRemovalWord())
    appendTextChild(Own, "REMOVAL", W, "TRUE");
  Handler->setRetElement(Own);
}

// The NEXT RECORD phrase has no element of its own: only its NEXT word is
// written, as a flag.
void XMLOstrel::visit(ReadStatement *S) {
  XMLElement *Own = Handler->newRetElement("READ_STATEMENT");
  appendWordChild(Own, "FILE_NAME", S->getFileName());
  appendWrappedChild(Own, "INTO", S->getIntoIdentifier());
  if (ReadRecordItem *R = S->getRecordItem())
    if (Word *Next = R->getNextWord())
      appendTextChild(Own, "NEXT", Next, "TRUE");
  appendNodeChild(Own, S->getKeyPhrase());
  appendListChild(Own, "EXCEPTION_LIST", "ExcpList", S->getErrorListSize(),
                  S->getErrorListBegin(), S->getErrorListEnd());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ReadKeyPhrase *K) {
  XMLElement *Own = Handler->newRetElement("KEY");
  appendNodeChild(Own, K->getKeyName());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(WriteStatement *S) {
  XMLElement *Own = Handler->newRetElement("WRITE_STATEMENT");
  appendWrappedChild(Own, "RECORD", S->getRecordName());
  appendWrappedChild(Own, "FROM", S->getFromIdentifier());
  appendNodeChild(Own, S->getAdvancing());
  appendListChild(Own, "EXCEPTION_LIST", "ExcpList",
                  S->getExceptionHandlerListSize(),
                  S->getExceptionHandlerListBegin(),
                  S->getExceptionHandlerListEnd());
  Handler->setRetElement(Own);
}

// With both LINE and PAGE words present, two TYPE elements are written.
void XMLOstrel::visit(WriteAdvancing *A) {
  XMLElement *Own = Handler->newRetElement("ADVANCING");
  appendWrappedChild(Own, "ADVANCING_VALUE", A->getValue());
  appendWordChild(Own, "TIMING", A->getBeforeAfterWord());
  if (Word *Line = A->getLineWord())
    appendTextChild(Own, "TYPE", Line, "LINE");
  if (Word *Page = A->getPageWord())
    appendTextChild(Own, "TYPE", Page, "PAGE");
  Handler->setRetElement(Own);
}

// REWRITE wraps its record as RECORD_NAME, where WRITE says RECORD.
void XMLOstrel::visit(RewriteStatement *S) {
  XMLElement *Own = Handler->newRetElement("REWRITE_STATEMENT");
  appendWrappedChild(Own, "RECORD_NAME", S->getRecordName());
  appendWrappedChild(Own, "FROM", S->getFromIdentifier());
  appendListChild(Own, "EXCEPTION_LIST", "ExcpList",
                  S->getInvalidKeyHandlerSize(),
                  S->getInvalidKeyHandlerBegin(),
                  S->getInvalidKeyHandlerEnd());
  Handler->setRetElement(Own);
}

// The exception list goes in before the file name, and the name is tagged
// FILE rather than FILE_NAME.
void XMLOstrel::visit(DeleteStatement *S) {
  XMLElement *Own = Handler->newRetElement("DELETE_STATEMENT");
  appendListChild(Own, "EXCEPTION_LIST", "ExcpList",
                  S->getInvalidKeyHandlerSize(),
                  S->getInvalidKeyHandlerBegin(),
                  S->getInvalidKeyHandlerEnd());
  appendWordChild(Own, "FILE", S->getFileName());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(StartStatement *S) {
  XMLElement *Own = Handler->newRetElement("START_STATEMENT");
  appendWordChild(Own, "FILE_NAME", S->getFileName());
  appendNodeChild(Own, S->getKey());
  appendListChild(Own, "EXCEPTION_LIST", "ExcpList",
                  S->getInvalidKeyHandlerSize(),
                  S->getInvalidKeyHandlerBegin(),
                  S->getInvalidKeyHandlerEnd());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(StartKey *K) {
  XMLElement *Own = Handler->newRetElement("START_CONDITION");
  const char *Op = "";
  switch (K->getType()) {
  case KEY_OP_EQ:
    Op = "EQ";
    break;
  case KEY_OP_GT:
    Op = "GT";
    break;
  case KEY_OP_GE:
    Op = "GE";
    break;
  case KEY_OP_LT:
    Op = "LT";
    break;
  case KEY_OP_LE:
    Op = "LE";
    break;
  default:
    assert(0 && "impossible");
  }
  // No operator word is kept, so the operator carries the key's location.
  appendTextChild(Own, "KEY_COND", K, Op);
  appendWrappedChild(Own, "DATA_NAME", K->getDataName());
  Handler->setRetElement(Own);
}

//===----------------------------------------------------------------------===//
// ACCEPT and DISPLAY
//===----------------------------------------------------------------------===//

void XMLOstrel::visit(AcceptStatement *S) {
  XMLElement *Own = Handler->newRetElement("ACCEPT_STATEMENT");
  appendWrappedChild(Own, "RECEIVING", S->getVariable());
  appendNodeChild(Own, S->getFromType());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(AcceptFrom *F) {
  XMLElement *Own = Handler->newRetElement("ACCEPT_FROM");
  // The date format joins the type in its normalised spelling, and only for
  // DATE and DAY.
  std::string Suffix;
  if (Word *Format = F->getDateFormat())
    Suffix = "_" + Format->getWordData();
  std::string Type;
  Word *Keyword = nullptr;
  switch (F->getType()) {
  case ACCEPT_FROM_ENVIRONMENT_NAME:
    Type = "MNEMONIC";
    Keyword = F->getFromName();
    break;
  case ACCEPT_FROM_DATE:
    Type = "DATE" + Suffix;
    Keyword = F->getDateWord();
    break;
  case ACCEPT_FROM_DAY:
    Type = "DAY" + Suffix;
    Keyword = F->getDateWord();
    break;
  case ACCEPT_FROM_DAY_OF_WEEK:
    Type = "DAY_OF_WEEK";
    Keyword = F->getDateWord();
    break;
  case ACCEPT_FROM_TIME:
    // TIME is put in front of the type text built so far, which is still
    // empty: the result is plain TIME, whatever the date format.
    Type = "TIME" + Type;
    Keyword = F->getDateWord();
    break;
  default:
    assert(0 && "impossible");
  }
  // TYPE is always written; without its keyword word it takes the location
  // of the whole FROM phrase.
  appendTextChild(Own, "TYPE", Keyword ? static_cast<Node *>(Keyword) : F,
                  Type.c_str());
  appendWordChild(Own, "VALUE", F->getFromName());
  Handler->setRetElement(Own);
}

// The container of all displayed items is tagged in the singular.
void XMLOstrel::visit(DisplayStatement *S) {
  XMLElement *Own = Handler->newRetElement("DISPLAY_STATEMENT");
  appendListChild(Own, "DISPLAY_ITEM", "ExprList", S->getIdenLiterListSize(),
                  S->getIdenLiterListBegin(), S->getIdenLiterListEnd());
  appendWordChild(Own, "UPON", S->getUponName());
  Handler->setRetElement(Own);
}

//===----------------------------------------------------------------------===//
// SORT, MERGE, RELEASE, RETURN
//===----------------------------------------------------------------------===//

// SORT's key container is tagged MERGE_KEY_LIST, as MERGE's is.
void XMLOstrel::visit(SortStatement *S) {
  XMLElement *Own = Handler->newRetElement("SORT_STATEMENT");
  appendWordChild(Own, "FILE_NAME", S->getFileName());
  if (SortDuplicates *D = S->getSortDuplicates())
    appendTextChild(Own, "DUPLICATE", D, "TRUE");
  appendListChild(Own, "MERGE_KEY_LIST", "SrtKeyList", S->getKeyListSize(),
                  S->getKeyListBegin(), S->getKeyListEnd());
  if (SortCollating *C = S->getSortCollating())
    appendWordChild(Own, "COLLATING_SEQUENCE", C->getSeqAlphaName());
  appendNodeChild(Own, S->getInput());
  appendNodeChild(Own, S->getOutput());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(MergeStatement *S) {
  XMLElement *Own = Handler->newRetElement("MERGE_STATEMENT");
  appendWordChild(Own, "FILE_NAME", S->getFileName());
  appendListChild(Own, "MERGE_KEY_LIST", "SrtKeyList", S->getKeySeqSize(),
                  S->getKeySeqBegin(), S->getKeySeqEnd());
  if (SortCollating *C = S->getSortCollating())
    appendWordChild(Own, "COLLATING_SEQUENCE", C->getSeqAlphaName());
  appendNodeChild(Own, S->getInput());
  appendNodeChild(Own, S->getOutput());
  Handler->setRetElement(Own);
}

// The key order is the ASCENDING or DESCENDING word as written.
void XMLOstrel::visit(SortKey *K) {
  XMLElement *Own = Handler->newRetElement("KEY");
  appendWordChild(Own, "SORT_TYPE", K->getAscDscWord());
  appendListChild(Own, "KEY_ITEM_LIST", "ExprList", K->getKeyNameListSize(),
                  K->getKeyNameListBegin(), K->getKeyNameListEnd());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(SortIO *IO) {
  bool IsInput = false;
  bool UsingGiving = false;
  if (Word *W = IO->getIOWord()) {
    IsInput = W->getWordData() == "INPUT";
  } else if (Word *W = IO->getUsingGivingWord()) {
    IsInput = W->getWordData() == "USING";
    UsingGiving = true;
  }
  XMLElement *Own = Handler->newRetElement(IsInput ? "SORT_IN" : "SORT_OUT");
  const char *TypeTag = IsInput ? "INPUT_TYPE" : "OUTPUT_TYPE";
  // The texts are crossed on purpose: a USING or GIVING phrase says
  // PROCEDURE (and only when a PROCEDURE word is kept as well), while an
  // INPUT or OUTPUT PROCEDURE phrase says USING or GIVING.
  if (UsingGiving) {
    if (Word *Procedure = IO->getProcedureWord())
      appendTextChild(Own, TypeTag, Procedure, "PROCEDURE");
  } else if (Word *W = IO->getIOWord()) {
    appendTextChild(Own, TypeTag, W, IsInput ? "USING" : "GIVING");
  }
  appendListChild(Own, "FILE_LIST", "WordList", IO->getFileNameSize(),
                  IO->getFileNameBegin(), IO->getFileNameEnd());
  appendWrappedChild(Own, "PROC_NAME", IO->getFromProcedureName());
  appendWrappedChild(Own, "PROC_NAME_THRU", IO->getToProcedureName());
  Handler->setRetElement(Own);
}

// RELEASE wraps its FROM identifier as RECORD_FROM, where WRITE says FROM.
void XMLOstrel::visit(ReleaseStatement *S) {
  XMLElement *Own = Handler->newRetElement("RELEASE_STATEMENT");
  appendWrappedChild(Own, "RECORD_NAME", S->getRecordName());
  appendWrappedChild(Own, "RECORD_FROM", S->getFromIdentifier());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ReturnStatement *S) {
  XMLElement *Own = Handler->newRetElement("RETURN_STATEMENT");
  appendWordChild(Own, "FILE_NAME", S->getFileName());
  appendWrappedChild(Own, "INTO", S->getIntoIdentifier());
  appendListChild(Own, "EXCEPTION_LIST", "ExcpList", S->getEndHandlerSize(),
                  S->getEndHandlerBegin(), S->getEndHandlerEnd());
  Handler->setRetElement(Own);
}

//===----------------------------------------------------------------------===//
// XML GENERATE and XML PARSE
//===----------------------------------------------------------------------===//

void XMLOstrel::visit(XMLGenerateStatement *S) {
  XMLElement *Own = Handler->newRetElement("XML_GENERATE_STATEMENT");
  appendWrappedChild(Own, "RECEIVING", S->getGenIdent());
  appendWrappedChild(Own, "FROM", S->getFromIdent());
  if (ClauseXMLCount *C = S->getCountClause())
    appendWrappedChild(Own, "COUNT", C->getCountIdent());
  if (ClauseXMLEncoding *C = S->getEncodingClause())
    appendWrappedChild(Own, "ENCODING", C->getCodePage());
  ClauseXMLDeclaration *Declaration = S->getDeclarationClause();
  if (Declaration)
    appendTextChild(Own, "XML_DECLARATION", Declaration, "TRUE");
  // ATTRIBUTES is written only together with XML-DECLARATION, and it
  // carries the declaration's location, not its own.
  if (S->getAttributesClause() && Declaration)
    appendTextChild(Own, "ATTRIBUTES", Declaration, "TRUE");
  if (ClauseXMLNameSpace *N = S->getNameSpaceClause()) {
    appendWrappedChild(Own, "NAMESPACE", N->getNameSpaceExpr());
    // The one tag spelled with a hyphen.
    appendWrappedChild(Own, "NAMESPACE-PREFIX", N->getPrefixExpr());
  }
  appendListChild(Own, "EXCEPTION_LIST", "ExcpList", S->getOnExcpHandlerSize(),
                  S->getOnExcpHandlerBegin(), S->getOnExcpHandlerEnd());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(XMLParseStatement *S) {
  XMLElement *Own = Handler->newRetElement("XML_PARSE_STATEMENT");
  appendWrappedChild(Own, "SOURCE", S->getParseIdent());
  if (ClauseXMLEncoding *C = S->getEncodingClause())
    appendWrappedChild(Own, "ENCODING", C->getCodePage());
  if (ClauseXMLReturning *R = S->getReturningClause())
    appendTextChild(Own, "RETURNING_NATIONAL", R, "TRUE");
  if (ClauseXMLValidating *V = S->getValidatingClause()) {
    // An identifier wins over a file name. VALDATING_IDENT is spelled
    // without the second I, and stays so.
    if (IdentifierExpression *Ident = V->getValidatingIdent())
      appendWrappedChild(Own, "VALDATING_IDENT", Ident);
    else
      appendWrappedChild(Own, "VALIDATING_FILE_XML_SCHEMA", V->getFileName());
  }
  appendWrappedChild(Own, "PROCESSING_PROCEDURE1", S->getParseProcedure());
  appendWrappedChild(Own, "PROCESSING_PROCEDURE2", S->getThruProcedure());
  appendListChild(Own, "EXCEPTION_LIST", "ExcpList", S->getOnExcpHandlerSize(),
                  S->getOnExcpHandlerBegin(), S->getOnExcpHandlerEnd());
  Handler->setRetElement(Own);
}

//===----------------------------------------------------------------------===//
// EXEC blocks and report-writer statements
//===----------------------------------------------------------------------===//

// The content is the block's text without its closing word and without
// everything up to and including the keyword that names the block's kind.
// Unlike the data division's EXEC entry, this looks for the keyword, so an
// SQL INCLUDE block loses its INCLUDE. TYPE and CONTENT carry no location.
void XMLOstrel::visit(ExecStatement *S) {
  XMLElement *Own = Handler->newRetElement("EXEC_STATEMENT");
  const char *Type = "";
  const char *Upper = "";
  const char *Lower = "";
  switch (S->getType()) {
  case STMT_EXEC_SQL:
    Type = "SQL";
    Upper = "SQL";
    Lower = "sql";
    break;
  case STMT_EXEC_SQL_INCLUDE:
    Type = "SQL";
    Upper = "INCLUDE";
    Lower = "include";
    break;
  case STMT_EXEC_CICS:
    Type = "CICS";
    Upper = "CICS";
    Lower = "cics";
    break;
  default:
    assert(0 && "impossible");
  }
  XMLElement *TypeElement = Handler->newElement("TYPE");
  Handler->appendChildLast(Handler->newText(Type), TypeElement);
  Handler->appendChildLast(TypeElement, Own);

  std::string Text = S->getSqlStr();
  // From the last space on is the closing END-EXEC.
  std::string::size_type Pos = Text.rfind(' ');
  if (Pos != std::string::npos)
    Text = Text.substr(0, Pos);
  // A lower-case keyword counts only when no upper-case one occurs at all.
  Pos = Text.find(Upper);
  if (Pos == std::string::npos)
    Pos = Text.find(Lower);
  if (Pos != std::string::npos) {
    Text = Text.substr(Pos + 1);
    std::string::size_type Space = Text.find(' ');
    if (Space != std::string::npos)
      Text = Text.substr(Space + 1);
  }
  XMLElement *Content = Handler->newElement("CONTENT");
  Handler->appendChildLast(Handler->newText(Text.c_str()), Content);
  Handler->appendChildLast(Content, Own);
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(RwGenerateStatement *S) {
  XMLElement *Own = Handler->newRetElement("REPORT_GENERATE_STATEMENT");
  appendWrappedChild(Own, "FILE_NAME", S->getFileName());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(RwInitiateStatement *S) {
  XMLElement *Own = Handler->newRetElement("REPORT_INITIATE_STATEMENT");
  appendListChild(Own, "REPORT_NAME_LIST", "WordList",
                  S->getInitiateNameListSize(), S->getInitiateNameListBegin(),
                  S->getInitiateNameListEnd());
  appendWrappedChild(Own, "UPON_NAME", S->getUponName());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(RwTerminateStatement *S) {
  XMLElement *Own = Handler->newRetElement("REPORT_TERMINATE_STATEMENT");
  appendListChild(Own, "REPORT_NAME_LIST", "WordList",
                  S->getTerminateNameListSize(),
                  S->getTerminateNameListBegin(), S->getTerminateNameListEnd());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(RwSuppressStatement *) {
  Handler->setRetElement(Handler->newRetElement("REPORT_SUPPRESS_STATEMENT"));
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
