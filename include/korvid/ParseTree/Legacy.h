//===- korvid/ParseTree/Legacy.h - Old-dialect, IDMS statements -*- C++ -*-===//
//
// Statements that the parser recognises but the rest of the toolkit treats
// as opaque: the older-dialect (OS/VS) statements EXAMINE, EXHIBIT, ON and
// TRANSFORM, the stack-address and string-reference statements, korvid's
// own debugging statement, and the IDMS statements with the pieces of their
// IF conditions. These classes keep only the parts that identify them; the
// enumerations classify the IDMS DML and DC options the parser meets.
//
//===----------------------------------------------------------------------===//
#ifndef KORVID_PARSETREE_LEGACY_H
#define KORVID_PARSETREE_LEGACY_H

#include "korvid/ParseTree/Statement.h"

#include <string>
#include <utility>

namespace korvid {

//===----------------------------------------------------------------------===//
// Older-dialect statements
//===----------------------------------------------------------------------===//

/// Which older-dialect statement a ClassicStatement is.
enum ClassicStatementType : int32_t {
  CLASSIC_STMT_NONE = 0,
  CLASSIC_STMT_EXAMINE = 1,
  CLASSIC_STMT_EXHIBIT = 2,
  CLASSIC_STMT_ON = 3,
  CLASSIC_STMT_TRANSFORM = 4,
};

/// The form of EXAMINE: counting (TALLYING) or replacing.
enum ClassicExamineType : int32_t {
  CLASSIC_EXAMINE_NONE = 0,
  CLASSIC_EXAMINE_TALLYING = 1,
  CLASSIC_EXAMINE_REPLACING = 2,
};

/// The form of EXHIBIT: NAMED, CHANGED, or CHANGED NAMED.
enum ClassicExhibitType : int32_t {
  CLASSIC_EXHIBIT_NONE = 0,
  CLASSIC_EXHIBIT_NAMED = 1,
  CLASSIC_EXHIBIT_CHANGED = 2,
  CLASSIC_EXHIBIT_CHANGED_NAMED = 3,
};

/// Base of the older-dialect statements; all have StatementType STMT_CLASSIC.
class ClassicStatement : public Statement {
public:
  explicit ClassicStatement(ClassicStatementType T = CLASSIC_STMT_NONE)
      : Statement(STMT_CLASSIC), ClassicType(T) {}

  /// Which older-dialect statement this is.
  ClassicStatementType getClassicType() const { return ClassicType; }
  void setClassicType(ClassicStatementType T) { ClassicType = T; }

private:
  ClassicStatementType ClassicType;
};

/// EXAMINE identifier TALLYING/REPLACING ALL/LEADING/[UNTIL] FIRST operand
/// [REPLACING BY operand].
class ClassicExamineStatement : public ClassicStatement {
public:
  ClassicExamineStatement() : ClassicStatement(CLASSIC_STMT_EXAMINE) {}

  ClassicExamineType getExamineType() const { return ExamineType; }
  IdentifierExpression *getIdentifier() const { return Identifier; }
  /// The ALL, LEADING, FIRST or UNTIL keyword.
  Word *getModeWord() const { return ModeWord; }
  /// The operand examined for.
  Expression *getOperand() const { return Operand; }
  /// The BY operand, null when not written.
  Expression *getByOperand() const { return ByOperand; }

  void setExamineType(ClassicExamineType T) { ExamineType = T; }
  void setIdentifier(IdentifierExpression *I) { Identifier = I; }
  void setModeWord(Word *W) { ModeWord = W; }
  void setOperand(Expression *E) { Operand = E; }
  void setByOperand(Expression *E) { ByOperand = E; }

private:
  ClassicExamineType ExamineType = CLASSIC_EXAMINE_NONE;
  IdentifierExpression *Identifier = nullptr;
  Word *ModeWord = nullptr;
  Expression *Operand = nullptr;
  Expression *ByOperand = nullptr;
};

/// EXHIBIT [CHANGED] [NAMED] operands.
class ClassicExhibitStatement : public ClassicStatement {
public:
  ClassicExhibitStatement() : ClassicStatement(CLASSIC_STMT_EXHIBIT) {}

  ClassicExhibitType getExhibitType() const { return ExhibitType; }

  unsigned long getItemListSize() const { return ItemList.size(); }
  NodeList<Expression>::const_iterator getItemListBegin() const { return ItemList.begin(); }
  NodeList<Expression>::const_iterator getItemListEnd() const { return ItemList.end(); }

  void setExhibitType(ClassicExhibitType T) { ExhibitType = T; }
  void addItem(Expression *E) { ItemList.push_back(E); }

private:
  ClassicExhibitType ExhibitType = CLASSIC_EXHIBIT_NONE;
  NodeList<Expression> ItemList;
};

/// ON count [AND EVERY count] [UNTIL count] statements [ELSE statements].
class ClassicOnStatement : public ClassicStatement {
public:
  ClassicOnStatement() : ClassicStatement(CLASSIC_STMT_ON) {}

  Expression *getCountExpr() const { return CountExpr; }
  /// The AND EVERY operand, null when not written.
  Expression *getEveryExpr() const { return EveryExpr; }
  /// The UNTIL operand, null when not written.
  Expression *getUntilExpr() const { return UntilExpr; }

  unsigned long getStmtListSize() const { return StmtList.size(); }
  NodeList<Statement>::const_iterator getStmtListBegin() const { return StmtList.begin(); }
  NodeList<Statement>::const_iterator getStmtListEnd() const { return StmtList.end(); }

  /// The ELSE (OTHERWISE) statements.
  unsigned long getElseStmtListSize() const { return ElseStmtList.size(); }
  NodeList<Statement>::const_iterator getElseStmtListBegin() const {
    return ElseStmtList.begin();
  }
  NodeList<Statement>::const_iterator getElseStmtListEnd() const { return ElseStmtList.end(); }

  void setCountExpr(Expression *E) { CountExpr = E; }
  void setEveryExpr(Expression *E) { EveryExpr = E; }
  void setUntilExpr(Expression *E) { UntilExpr = E; }
  void addStmt(Statement *S) { StmtList.push_back(S); }
  void addElseStmt(Statement *S) { ElseStmtList.push_back(S); }

private:
  Expression *CountExpr = nullptr;
  Expression *EveryExpr = nullptr;
  Expression *UntilExpr = nullptr;
  NodeList<Statement> StmtList;
  NodeList<Statement> ElseStmtList;
};

/// TRANSFORM identifier CHARACTERS FROM operand TO operand.
class ClassicTransformStatement : public ClassicStatement {
public:
  ClassicTransformStatement() : ClassicStatement(CLASSIC_STMT_TRANSFORM) {}

  IdentifierExpression *getIdentifier() const { return Identifier; }
  Expression *getFromExpr() const { return FromExpr; }
  Expression *getToExpr() const { return ToExpr; }

  void setIdentifier(IdentifierExpression *I) { Identifier = I; }
  void setFromExpr(Expression *E) { FromExpr = E; }
  void setToExpr(Expression *E) { ToExpr = E; }

private:
  IdentifierExpression *Identifier = nullptr;
  Expression *FromExpr = nullptr;
  Expression *ToExpr = nullptr;
};

//===----------------------------------------------------------------------===//
// Other opaque statements
//===----------------------------------------------------------------------===//

/// A statement that takes the address of the stack; kept only as a marker.
class StackAddrStatement : public Statement {
public:
  StackAddrStatement() : Statement(STMT_STACK_ADDR) {}
};

/// A string-reference statement; kept only as a marker.
class StrReferStatement : public Statement {
public:
  StrReferStatement() : Statement(STMT_STRINGREF) {}
};

/// korvid's own debugging statement: a place holder the parser can plant in
/// a tree, carrying a free text for whoever inspects the tree.
class DebugStatement : public Statement {
public:
  DebugStatement() : Statement(STMT_DEBUG) {}
  explicit DebugStatement(std::string Text)
      : Statement(STMT_DEBUG), Text(std::move(Text)) {}

  const std::string &getText() const { return Text; }
  void setText(std::string S) { Text = std::move(S); }

private:
  std::string Text;
};

//===----------------------------------------------------------------------===//
// IDMS enumerations
//===----------------------------------------------------------------------===//

/// Which IDMS DML or DC verb an IDMSStatement is.
enum IDMSStatementType : int32_t {
  IDMS_STMT_NONE = 0,
  IDMS_STMT_ABEND = 1,
  IDMS_STMT_ACCEPT = 2,
  IDMS_STMT_ATTACH = 3,
  IDMS_STMT_BIND = 4,
  IDMS_STMT_CHANGE_PRIORITY = 5,
  IDMS_STMT_CHECK_TERMINAL = 6,
  IDMS_STMT_COMMIT = 7,
  IDMS_STMT_CONNECT = 8,
  IDMS_STMT_DC_RETURN = 9,
  IDMS_STMT_DELETE = 10,
  IDMS_STMT_DEQUEUE = 11,
  IDMS_STMT_DISCONNECT = 12,
  IDMS_STMT_END = 13,
  IDMS_STMT_ENQUEUE = 14,
  IDMS_STMT_ERASE = 15,
  IDMS_STMT_FIND = 16,
  IDMS_STMT_FINISH = 17,
  IDMS_STMT_FREE = 18,
  IDMS_STMT_GET = 19,
  IDMS_STMT_IF = 20,
  IDMS_STMT_INQUIRE = 21,
  IDMS_STMT_KEEP = 22,
  IDMS_STMT_LOAD = 23,
  IDMS_STMT_MAP = 24,
  IDMS_STMT_MODIFY = 25,
  IDMS_STMT_OBTAIN = 26,
  IDMS_STMT_POST = 27,
  IDMS_STMT_PUT = 28,
  IDMS_STMT_READ = 29,
  IDMS_STMT_READY = 30,
  IDMS_STMT_RETURN = 31,
  IDMS_STMT_ROLLBACK = 32,
  IDMS_STMT_SEND = 33,
  IDMS_STMT_SET = 34,
  IDMS_STMT_SNAP = 35,
  IDMS_STMT_STARTPAGE = 36,
  IDMS_STMT_STORE = 37,
  IDMS_STMT_TRANSFER = 38,
  IDMS_STMT_WAIT = 39,
  IDMS_STMT_WRITE = 40,
};

/// How FIND or OBTAIN selects its record.
enum IDMSFindObtainWhereType : int32_t {
  IDMS_FIND_OBTAIN_WHERE_NONE = 0,
  IDMS_FIND_OBTAIN_WHERE_CALC = 1,
  IDMS_FIND_OBTAIN_WHERE_CURRENT = 2,
  IDMS_FIND_OBTAIN_WHERE_DB_KEY = 3,
  IDMS_FIND_OBTAIN_WHERE_OWNER = 4,
  IDMS_FIND_OBTAIN_WHERE_SORT_KEY = 5,
  IDMS_FIND_OBTAIN_WHERE_POSITION = 6,
};

/// Which entry GET QUEUE or GET SCRATCH takes.
enum IDMSGetWhichType : int32_t {
  IDMS_GET_WHICH_NONE = 0,
  IDMS_GET_WHICH_CURRENT = 1,
  IDMS_GET_WHICH_FIRST = 2,
  IDMS_GET_WHICH_LAST = 3,
  IDMS_GET_WHICH_NEXT = 4,
  IDMS_GET_WHICH_PRIOR = 5,
};

/// The operator of an IDMS IF condition.
enum IDMSLogicalOperatorType : int32_t {
  IDMS_LOGICAL_OP_NONE = 0,
  IDMS_LOGICAL_OP_AND = 1,
  IDMS_LOGICAL_OP_OR = 2,
  IDMS_LOGICAL_OP_NOT = 3,
};

/// Which page a paged MAP OUT or MAP IN addresses.
enum IDMSMapPageType : int32_t {
  IDMS_MAP_PAGE_NONE = 0,
  IDMS_MAP_PAGE_CURRENT = 1,
  IDMS_MAP_PAGE_FIRST = 2,
  IDMS_MAP_PAGE_LAST = 3,
  IDMS_MAP_PAGE_NEXT = 4,
  IDMS_MAP_PAGE_PRIOR = 5,
};

/// Whether a COPY IDMS statement copies a record or a work record.
enum IDMSWorkCopyType : int32_t {
  IDMS_WORK_COPY_NONE = 0,
  IDMS_WORK_COPY_RECORD = 1,
  IDMS_WORK_COPY_WORK = 2,
};

/// Which entries DELETE QUEUE or DELETE SCRATCH removes.
enum DeleteWhichType : int32_t {
  DELETE_WHICH_NONE = 0,
  DELETE_WHICH_CURRENT = 1,
  DELETE_WHICH_FIRST = 2,
  DELETE_WHICH_LAST = 3,
  DELETE_WHICH_NEXT = 4,
  DELETE_WHICH_PRIOR = 5,
  DELETE_WHICH_ALL = 6,
};

/// The field test of INQUIRE MAP ... IF FIELD.
enum InquireIfFieldType : int32_t {
  INQUIRE_IF_FIELD_NONE = 0,
  INQUIRE_IF_FIELD_DATA_YES = 1,
  INQUIRE_IF_FIELD_DATA_NO = 2,
  INQUIRE_IF_FIELD_DATA_ERASE = 3,
  INQUIRE_IF_FIELD_DATA_TRUNCATED = 4,
  INQUIRE_IF_FIELD_DATA_IDENTICAL = 5,
  INQUIRE_IF_FIELD_DATA_DIFFERENT = 6,
  INQUIRE_IF_FIELD_EDIT_ERROR = 7,
  INQUIRE_IF_FIELD_EDIT_CORRECT = 8,
};

/// The input test of INQUIRE MAP ... IF INPUT.
enum InquireInputType : int32_t {
  INQUIRE_INPUT_NONE = 0,
  INQUIRE_INPUT_UNFORMATTED = 1,
  INQUIRE_INPUT_TRUNCATED = 2,
  INQUIRE_INPUT_CHANGED = 3,
  INQUIRE_INPUT_EXTRANEOUS = 4,
};

/// The form of INQUIRE MAP: a MOVE of map information or an IF test.
enum InquireOptionType : int32_t {
  INQUIRE_OPTION_NONE = 0,
  INQUIRE_OPTION_MOVE = 1,
  INQUIRE_OPTION_IF = 2,
};

/// The map options MODIFY MAP changes.
enum ModiOptionsType : int32_t {
  MODI_OPTIONS_NONE = 0,
  MODI_OPTIONS_CURSOR = 1,
  MODI_OPTIONS_WCC = 2,
  MODI_OPTIONS_FIELDS = 3,
};

/// The fields MODIFY MAP ... FOR applies to.
enum ModifyForType : int32_t {
  MODIFY_FOR_NONE = 0,
  MODIFY_FOR_ALL = 1,
  MODIFY_FOR_ALL_BUT = 2,
  MODIFY_FOR_ALL_CORRECT = 3,
  MODIFY_FOR_ALL_ERROR = 4,
  MODIFY_FOR_FIELDS = 5,
};

/// The run-time environment named by PROTOCOL ... MODE IS.
enum ProtocolModeType : int32_t {
  PROTOCOL_MODE_NONE = 0,
  PROTOCOL_MODE_BATCH = 1,
  PROTOCOL_MODE_DC_BATCH = 2,
  PROTOCOL_MODE_IDMS_DC = 3,
  PROTOCOL_MODE_CICS = 4,
};

/// What SET TIMER does when the interval ends.
enum SetTimerOption : int32_t {
  SET_TIMER_NONE = 0,
  SET_TIMER_WAIT = 1,
  SET_TIMER_POST = 2,
  SET_TIMER_START_TASK = 3,
  SET_TIMER_CANCEL = 4,
};

/// How a DC RETURN or ATTACH treats the next task.
enum TaskOption : int32_t {
  TASK_OPTION_NONE = 0,
  TASK_OPTION_NEXT_TASK = 1,
  TASK_OPTION_IMMEDIATE = 2,
  TASK_OPTION_CONTINUE = 3,
};

/// How TRANSFER CONTROL passes control.
enum TransferOption : int32_t {
  TRANSFER_OPTION_NONE = 0,
  TRANSFER_OPTION_RETURN = 1,
  TRANSFER_OPTION_LINK = 2,
  TRANSFER_OPTION_NORETURN = 3,
  TRANSFER_OPTION_XCTL = 4,
};

/// Whether a DC request waits for completion.
enum WaitOptionType : int32_t {
  WAIT_OPTION_NONE = 0,
  WAIT_OPTION_WAIT = 1,
  WAIT_OPTION_NOWAIT = 2,
  WAIT_OPTION_RETURN = 3,
};

/// The write-control-character option of a terminal or map write.
enum WccOptionType : int32_t {
  WCC_OPTION_NONE = 0,
  WCC_OPTION_RESETMDT = 1,
  WCC_OPTION_NOMDT = 2,
  WCC_OPTION_RESETKBD = 3,
  WCC_OPTION_NOKBD = 4,
  WCC_OPTION_ALARM = 5,
  WCC_OPTION_STARTPRT = 6,
  WCC_OPTION_NLCR = 7,
};

/// Whether WRITE JOURNAL waits for the journal write.
enum WriteJournalOption : int32_t {
  WRITE_JOURNAL_NONE = 0,
  WRITE_JOURNAL_WAIT = 1,
  WRITE_JOURNAL_NOWAIT = 2,
};

//===----------------------------------------------------------------------===//
// IDMS statements
//===----------------------------------------------------------------------===//

/// Base of the IDMS DML and DC statements; all have StatementType STMT_IDMS.
class IDMSStatement : public Statement {
public:
  explicit IDMSStatement(IDMSStatementType T = IDMS_STMT_NONE)
      : Statement(STMT_IDMS), IDMSType(T) {}

  /// Which IDMS verb this is.
  IDMSStatementType getIDMSType() const { return IDMSType; }
  void setIDMSType(IDMSStatementType T) { IDMSType = T; }

private:
  IDMSStatementType IDMSType;
};

/// The ON error-status phrase of IDMS statements: the statements run when
/// the DML call ends with one of the listed status codes.
class IDMSAbendExits : public Node {
public:
  unsigned long getStatusListSize() const { return StatusList.size(); }
  NodeList<Expression>::const_iterator getStatusListBegin() const { return StatusList.begin(); }
  NodeList<Expression>::const_iterator getStatusListEnd() const { return StatusList.end(); }

  unsigned long getStmtListSize() const { return StmtList.size(); }
  NodeList<Statement>::const_iterator getStmtListBegin() const { return StmtList.begin(); }
  NodeList<Statement>::const_iterator getStmtListEnd() const { return StmtList.end(); }

  void addStatus(Expression *E) { StatusList.push_back(E); }
  void addStmt(Statement *S) { StmtList.push_back(S); }

private:
  NodeList<Expression> StatusList;
  NodeList<Statement> StmtList;
};

/// WRITE THEN READ TERMINAL: a terminal write followed by a read.
class IDMSWriteThenStatement : public IDMSStatement {
public:
  IDMSWriteThenStatement() : IDMSStatement(IDMS_STMT_WRITE) {}

  /// The area written.
  IdentifierExpression *getFromIdent() const { return FromIdent; }
  /// The area read into.
  IdentifierExpression *getIntoIdent() const { return IntoIdent; }
  WaitOptionType getWaitOption() const { return WaitOption; }

  void setFromIdent(IdentifierExpression *I) { FromIdent = I; }
  void setIntoIdent(IdentifierExpression *I) { IntoIdent = I; }
  void setWaitOption(WaitOptionType W) { WaitOption = W; }

private:
  IdentifierExpression *FromIdent = nullptr;
  IdentifierExpression *IntoIdent = nullptr;
  WaitOptionType WaitOption = WAIT_OPTION_NONE;
};

/// Base of the conditions of the IDMS IF statement.
class IDMSLogicalExpression : public Node {};

/// The operator joining or negating IDMS IF conditions.
class IDMSLogicalOperator : public Node {
public:
  explicit IDMSLogicalOperator(IDMSLogicalOperatorType T = IDMS_LOGICAL_OP_NONE)
      : Type(T) {}

  IDMSLogicalOperatorType getType() const { return Type; }
  void setType(IDMSLogicalOperatorType T) { Type = T; }

private:
  IDMSLogicalOperatorType Type;
};

/// One IDMS condition test (SET set-name EMPTY, record MEMBER OF set, ...),
/// kept as its words.
class IDMSLogicalOperand : public IDMSLogicalExpression {
public:
  /// Whether the test is preceded by NOT.
  bool getIsNegate() const { return IsNegate; }

  unsigned long getWordListSize() const { return WordList.size(); }
  NodeList<Word>::const_iterator getWordListBegin() const { return WordList.begin(); }
  NodeList<Word>::const_iterator getWordListEnd() const { return WordList.end(); }

  void setIsNegate(bool B) { IsNegate = B; }
  void addWord(Word *W) { WordList.push_back(W); }

private:
  bool IsNegate = false;
  NodeList<Word> WordList;
};

/// Two IDMS conditions joined by AND or OR.
class IDMSLogicalCombinedCondition : public IDMSLogicalExpression {
public:
  IDMSLogicalExpression *getLeft() const { return Left; }
  IDMSLogicalOperator *getOperator() const { return Operator; }
  IDMSLogicalExpression *getRight() const { return Right; }

  void setLeft(IDMSLogicalExpression *E) { Left = E; }
  void setOperator(IDMSLogicalOperator *O) { Operator = O; }
  void setRight(IDMSLogicalExpression *E) { Right = E; }

private:
  IDMSLogicalExpression *Left = nullptr;
  IDMSLogicalOperator *Operator = nullptr;
  IDMSLogicalExpression *Right = nullptr;
};

/// The IDMS IF statement, testing set membership and emptiness.
class IDMSIfStatement : public IDMSStatement {
public:
  IDMSIfStatement() : IDMSStatement(IDMS_STMT_IF) {}

  IDMSLogicalExpression *getCondition() const { return Cond; }

  unsigned long getThenStmtListSize() const { return ThenStmtList.size(); }
  NodeList<Statement>::const_iterator getThenStmtListBegin() const {
    return ThenStmtList.begin();
  }
  NodeList<Statement>::const_iterator getThenStmtListEnd() const { return ThenStmtList.end(); }

  unsigned long getElseStmtListSize() const { return ElseStmtList.size(); }
  NodeList<Statement>::const_iterator getElseStmtListBegin() const {
    return ElseStmtList.begin();
  }
  NodeList<Statement>::const_iterator getElseStmtListEnd() const { return ElseStmtList.end(); }

  void setCondition(IDMSLogicalExpression *C) { Cond = C; }
  void addThenStmt(Statement *S) { ThenStmtList.push_back(S); }
  void addElseStmt(Statement *S) { ElseStmtList.push_back(S); }

private:
  IDMSLogicalExpression *Cond = nullptr;
  NodeList<Statement> ThenStmtList;
  NodeList<Statement> ElseStmtList;
};

} // namespace korvid

#endif // KORVID_PARSETREE_LEGACY_H
