//===- Statement.cpp - Statements -------------===//

#include "korvid/XMLOstrel.h"
#include "korvid/ParseTree.h"

#include <tinyxml2.h>

#include <cassert>

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

// Not written out yet: these visits make no element and leave the
// return-element slot as it was.
void XMLOstrel::visit(ExceptionHandler *) {}
void XMLOstrel::visit(RoundedExpression *) {}
void XMLOstrel::visit(ParamPhrase *) {}
void XMLOstrel::visit(Parameter *) {}
void XMLOstrel::visit(Using *) {}
void XMLOstrel::visit(UsingItem *) {}
void XMLOstrel::visit(UsingPhrase *) {}
void XMLOstrel::visit(Returning *) {}
void XMLOstrel::visit(AddStatement *) {}
void XMLOstrel::visit(SubtractStatement *) {}
void XMLOstrel::visit(MultiplyStatement *) {}
void XMLOstrel::visit(DivideStatement *) {}
void XMLOstrel::visit(ComputeStatement *) {}
void XMLOstrel::visit(IfStatement *) {}
void XMLOstrel::visit(EvaluateStatement *) {}
void XMLOstrel::visit(EvaluateSubject *) {}
void XMLOstrel::visit(EvaluateCase *) {}
void XMLOstrel::visit(EvaluateWhen *) {}
void XMLOstrel::visit(EvaluateObject *) {}
void XMLOstrel::visit(PerformStatement *) {}
void XMLOstrel::visit(PerformTest *) {}
void XMLOstrel::visit(PerformProcedure *) {}
void XMLOstrel::visit(PerformVarying *) {}
void XMLOstrel::visit(GotoStatement *) {}
void XMLOstrel::visit(AlterStatement *) {}
void XMLOstrel::visit(AlterItem *) {}
void XMLOstrel::visit(StopStatement *) {}
void XMLOstrel::visit(ContinueStatement *) {}
void XMLOstrel::visit(ExitStatement *) {}
void XMLOstrel::visit(ExitProgramStatement *) {}
void XMLOstrel::visit(ExitPerformStatement *) {}
void XMLOstrel::visit(GobackStatement *) {}
void XMLOstrel::visit(ReadyTraceStatement *) {}
void XMLOstrel::visit(ResetTraceStatement *) {}
void XMLOstrel::visit(NextSentenceStatement *) {}
void XMLOstrel::visit(CallStatement *) {}
void XMLOstrel::visit(CancelStatement *) {}
void XMLOstrel::visit(EntryStatement *) {}
void XMLOstrel::visit(MoveStatement *) {}
void XMLOstrel::visit(InitializeStatement *) {}
void XMLOstrel::visit(InitializeReplacingItem *) {}
void XMLOstrel::visit(SetStatement *) {}
void XMLOstrel::visit(SetItem *) {}
void XMLOstrel::visit(SetToValue *) {}
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
