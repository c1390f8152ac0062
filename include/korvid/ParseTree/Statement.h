//===- korvid/ParseTree/Statement.h - Base of all statements ----*- C++ -*-===//
//
// Every procedure-division statement is a Statement whose StatementType says
// which concrete class it is; visitors dispatch on that type. A concrete
// class may declare a getType() of its own (the kind of ADD, of SUBTRACT,
// ...): that one hides Statement::getType(), which stays reachable through
// a Statement pointer.
//
//===----------------------------------------------------------------------===//
#ifndef KORVID_PARSETREE_STATEMENT_H
#define KORVID_PARSETREE_STATEMENT_H

#include "korvid/ParseTree/Node.h"

namespace korvid {

/// Which statement class a Statement is.
enum StatementType : int32_t {
  STMT_NONE = 0,
  STMT_ACCEPT = 1,
  STMT_ADD = 2,
  STMT_ALTER = 3,
  STMT_CALL = 4,
  STMT_CANCEL = 5,
  STMT_CLOSE = 6,
  STMT_COMPUTE = 7,
  STMT_CONTINUE = 8,
  STMT_DELETE = 9,
  STMT_DISPLAY = 10,
  STMT_DIVIDE = 11,
  STMT_ENTER = 12,
  STMT_ENTRY = 13,
  STMT_EVALUATE = 14,
  STMT_EXAMINE = 15,
  STMT_EXIT = 16,
  STMT_EXIT_PROGRAM = 17,
  STMT_GOTO = 18,
  STMT_GOBACK = 19,
  STMT_IF = 20,
  STMT_INITIALIZE = 21,
  STMT_INSPECT = 22,
  STMT_MERGE = 23,
  STMT_MOVE = 24,
  STMT_MULTIPLY = 25,
  STMT_OPEN = 26,
  STMT_PERFORM = 27,
  STMT_READ = 28,
  STMT_RELEASE = 29,
  STMT_RETURN = 30,
  STMT_REWRITE = 31,
  STMT_SEARCH = 32,
  STMT_SET = 33,
  STMT_SORT = 34,
  STMT_START = 35,
  STMT_STOP = 36,
  STMT_STRING = 37,
  STMT_SUBTRACT = 38,
  STMT_UNSTRING = 39,
  STMT_USE = 40,
  STMT_WRITE = 41,
  STMT_NEXT_SENTENCE = 42,
  STMT_READY_TRACE = 43,
  STMT_RESET_TRACE = 44,
  STMT_XML_GEN = 45,
  STMT_XML_PARSE = 46,
  STMT_IDMS = 47,
  STMT_CLASSIC = 48,
  STMT_STACK_ADDR = 49,
  STMT_EXIT_PERFORM = 50,
  STMT_RW_GENERATE = 51,
  STMT_RW_INITIATE = 52,
  STMT_RW_TERMINATE = 53,
  STMT_RW_SET = 54,
  STMT_RW_SUPPRESS = 55,
  STMT_EXEC_SQL = 56,
  STMT_EXEC_SQL_INCLUDE = 57,
  STMT_EXEC_CICS = 58,
  STMT_STRINGREF = 59,
  /// korvid's own debugging statement (DebugStatement).
  STMT_DEBUG = 60,
  /// A statement the parser built while recovering from an error.
  STMT_ERR_RECOV = 61,
};

/// The exception phrases a statement can carry (ON SIZE ERROR, AT END, ...).
enum ExceptionType : int32_t {
  EXCEPTION_NONE = 0,
  EXCEPTION_ON = 1,
  EXCEPTION_SIZE = 2,
  EXCEPTION_END = 3,
  EXCEPTION_INVALIDKEY = 4,
  EXCEPTION_OVERFLOW = 5,
  EXCEPTION_ENDOFPAGE = 6,
};

/// Base of every statement.
class Statement : public Node {
public:
  explicit Statement(StatementType T = STMT_NONE) : Type(T) {}

  StatementType getType() const { return Type; }
  void setType(StatementType T) { Type = T; }

private:
  StatementType Type;
};

} // namespace korvid

#endif // KORVID_PARSETREE_STATEMENT_H
