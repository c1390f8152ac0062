//===- korvid/ParseTree/Expression.h - Operands and expressions -*- C++ -*-===//
//
// Every operand of a statement or clause is an Expression whose
// ExpressionType says which concrete class it is; visitors dispatch on it.
// This header also holds the modifiers an identifier can carry (subscripts,
// reference modification) and the items of an abbreviated combined relation.
//
//===----------------------------------------------------------------------===//
#ifndef KORVID_PARSETREE_EXPRESSION_H
#define KORVID_PARSETREE_EXPRESSION_H

#include "korvid/ParseTree/Node.h"

#include <string>
#include <utility>

namespace korvid {

/// Which expression class an Expression is.
enum ExpressionType : int32_t {
  EXPR_NONE = 0,
  EXPR_LITRL_NUM = 1,
  EXPR_LITRL_NON_NUM = 2,
  EXPR_LITRL_FIGR = 3,
  EXPR_IDENT_DATA = 4,
  EXPR_IDENT_FUNC = 5,
  EXPR_IDENT_REGST = 6,
  EXPR_ARITH = 7,
  EXPR_ABBR_COMBINED = 8,
};

/// The operator of an arithmetic expression.
enum ArithmeticExprType : int32_t {
  ARITH_EXPR_NONE = 0,
  ARITH_EXPR_UNARY_PLUS = 1,
  ARITH_EXPR_UNARY_MINUS = 2,
  ARITH_EXPR_PLUS = 3,
  ARITH_EXPR_MINUS = 4,
  ARITH_EXPR_MULTIPLY = 5,
  ARITH_EXPR_DIVIDE = 6,
  /// Exponentiation (**).
  ARITH_EXPR_SQUARE = 7,
};

/// Which figurative constant a figurative literal is.
enum FigurativeType : int32_t {
  FIG_NONE = 0,
  FIG_ZERO = 1,
  FIG_SPACE = 2,
  FIG_HIGH_VALUE = 3,
  FIG_LOW_VALUE = 4,
  FIG_QUOTE = 5,
  FIG_NULL = 6,
  /// ALL literal: the literal is FigurativeLiteralExpression::getLiteral().
  FIG_ALL = 7,
  /// A symbolic character defined in SPECIAL-NAMES.
  FIG_SYMBOLIC = 8,
};

/// Which special register a special-register identifier names.
enum SpecialRegisterType : int32_t {
  SR_NONE = 0,
  SR_LINAGE_COUNTER = 1,
  SR_RETURN_CODE = 2,
  SR_SHIFT_IN = 3,
  SR_SHIFT_OUT = 4,
  SR_SORT_CONTROL = 5,
  SR_SORT_CORE_SIZE = 6,
  SR_SORT_FILE_SIZE = 7,
  SR_SORT_MESSAGE = 8,
  SR_SORT_MODE_SIZE = 9,
  SR_SORT_RETURN = 10,
  SR_TALLY = 11,
  SR_WHEN_COMPILED = 12,
  SR_PAGE_COUNTER = 13,
  SR_LINE_COUNTER = 14,
  SR_LENGTH_OF = 15,
  SR_ADDRESS_OF = 16,
  SR_PROGRAM_STATUS = 17,
  SR_SORT_STATUS = 18,
  SR_DB_EXCEPTION = 19,
  SR_XML_CODE = 20,
  SR_XML_EVENT = 21,
  SR_XML_INFORMATION = 22,
  SR_XML_NAMESPACE = 23,
  SR_XML_NAMESPACE_PREFIX = 24,
  SR_XML_NNAMESPACE = 25,
  SR_XML_NNAMESPACE_PREFIX = 26,
  SR_XML_TEXT = 27,
  SR_XML_NTEXT = 28,
  /// Report-writer counters, distinct from the ordinary PAGE-/LINE-COUNTER.
  SR_RW_COLUMN_COUNTER = 29,
  SR_RW_LINE_COUNTER = 30,
  SR_RW_PAGE_COUNTER = 31,
  SR_RW_PRINT_SWITCH = 32,
  SR_TIME_OF_DAY = 33,
  SR_CURRENT_DATE = 34,
};

/// The connective joining the parts of an abbreviated combined relation
/// (A = B OR C): OR, AND, exclusive OR, each also followed by NOT.
enum AbbrRelationCombinedType : int32_t {
  ABBR_COMB_NONE = 0,
  ABBR_COMB_OR = 1,
  ABBR_COMB_AND = 2,
  ABBR_COMB_EXOR = 3,
  ABBR_COMB_OR_NOT = 4,
  ABBR_COMB_AND_NOT = 5,
  ABBR_COMB_EXOR_NOT = 6,
};

/// The operator of a relation (also the relational operator that applies to
/// a parenthesised list of abbreviated relations). NOT_NONE is a NOT with
/// no operator after it.
enum RelationalConditionType : int32_t {
  REL_OP_NONE = 0,
  REL_OP_NOT_NONE = 1,
  REL_OP_GT = 2,
  REL_OP_LT = 3,
  REL_OP_EQ = 4,
  REL_OP_GE = 5,
  REL_OP_LE = 6,
  REL_OP_NE = 7,
};

/// A bitwise boolean operator (B-AND, B-OR, B-XOR, B-NOT) of a boolean
/// expression.
enum BitOperatorType : int32_t {
  BIT_OP_NONE = 0,
  BIT_OP_AND = 1,
  BIT_OP_OR = 2,
  BIT_OP_XOR = 3,
  BIT_OP_NOT = 4,
};

/// Base of every expression.
class Expression : public Node {
public:
  explicit Expression(ExpressionType T = EXPR_NONE) : ExprType(T) {}

  ExpressionType getExprType() const { return ExprType; }
  void setExprType(ExpressionType T) { ExprType = T; }

private:
  ExpressionType ExprType;
};

// --- Literals ---------------------------------------------------------------

/// Base of the literals: numeric, non-numeric and figurative.
class LiteralExpression : public Expression {
public:
  explicit LiteralExpression(ExpressionType T = EXPR_NONE) : Expression(T) {}

  /// The literal's text: the digits of a number, the characters between the
  /// delimiters of a non-numeric literal.
  const std::string &getData() const { return Data; }
  void setData(std::string S) { Data = std::move(S); }

private:
  std::string Data;
};

/// A numeric literal (12, -3.5, +7).
class NumericLiteralExpression : public LiteralExpression {
public:
  NumericLiteralExpression() : LiteralExpression(EXPR_LITRL_NUM) {}
};

/// A non-numeric literal: alphanumeric, national, DBCS or hexadecimal.
class NonNumericLiteralExpression : public LiteralExpression {
public:
  NonNumericLiteralExpression() : LiteralExpression(EXPR_LITRL_NON_NUM) {}
};

/// A figurative constant (ZERO, SPACES, HIGH-VALUE, ..., ALL literal).
class FigurativeLiteralExpression : public LiteralExpression {
public:
  FigurativeLiteralExpression() : LiteralExpression(EXPR_LITRL_FIGR) {}

  /// Which figurative constant this is.
  FigurativeType getType() const { return Type; }
  /// The constant's keyword (ZEROS, SPACE, ALL, ...), null when not written.
  Word *getFigWord() const { return FigWord; }
  /// The literal of ALL literal, null for the other constants.
  LiteralExpression *getLiteral() const { return Literal; }

  void setType(FigurativeType T) { Type = T; }
  void setFigWord(Word *W) { FigWord = W; }
  void setLiteral(LiteralExpression *L) { Literal = L; }

private:
  FigurativeType Type = FIG_NONE;
  Word *FigWord = nullptr;
  LiteralExpression *Literal = nullptr;
};

// --- Identifier modifiers ---------------------------------------------------

/// Reference modification (start:length) of an identifier.
class ReferenceModifier : public Node {
public:
  /// The leftmost character position, null when not written.
  Expression *getFromExpr() const { return FromExpr; }
  /// The length, null when omitted (to the end of the item).
  Expression *getCountExpr() const { return CountExpr; }

  void setFromExpr(Expression *E) { FromExpr = E; }
  void setCountExpr(Expression *E) { CountExpr = E; }

private:
  Expression *FromExpr = nullptr;
  Expression *CountExpr = nullptr;
};

/// The parenthesised list after an identifier: the subscripts of a table
/// element, or the arguments of an intrinsic function.
class SubscriptModifier : public Node {
public:
  unsigned long getSubscriptSize() const { return Subscript.size(); }
  NodeList<Expression>::const_iterator getSubscriptBegin() const {
    return Subscript.begin();
  }
  NodeList<Expression>::const_iterator getSubscriptEnd() const {
    return Subscript.end();
  }

  void addSubscript(Expression *E) { Subscript.push_back(E); }

private:
  NodeList<Expression> Subscript;
};

// --- Identifiers ------------------------------------------------------------

/// Base of the identifiers: data items, function calls, special registers.
/// Data and function identifiers can carry subscripts and reference
/// modification; special registers leave both null.
class IdentifierExpression : public Expression {
public:
  explicit IdentifierExpression(ExpressionType T = EXPR_NONE)
      : Expression(T) {}

  /// The subscripts (function arguments), null when not written.
  SubscriptModifier *getSubscriptMod() const { return SubscriptMod; }
  /// The reference modification, null when not written.
  ReferenceModifier *getReferenceMod() const { return ReferenceMod; }

  void setSubscriptMod(SubscriptModifier *M) { SubscriptMod = M; }
  void setReferenceMod(ReferenceModifier *M) { ReferenceMod = M; }

private:
  SubscriptModifier *SubscriptMod = nullptr;
  ReferenceModifier *ReferenceMod = nullptr;
};

/// A reference to a data item, condition name, file or other named entry,
/// possibly qualified, subscripted and reference-modified.
class DataIdentifierExpression : public IdentifierExpression {
public:
  DataIdentifierExpression() : IdentifierExpression(EXPR_IDENT_DATA) {}

  /// The (qualified) name as written.
  QualifiedWord *getName() const { return Name; }
  /// The entry the name resolves to (an extended data description for a
  /// data item), null when the name was not resolved.
  Node *getTarget() const { return Target; }

  void setName(QualifiedWord *W) { Name = W; }
  void setTarget(Node *N) { Target = N; }

private:
  QualifiedWord *Name = nullptr;
  Node *Target = nullptr;
};

/// A data identifier as extended by name resolution; its parts are those of
/// the data identifier it wraps.
class ExDataIdentifierExpression : public DataIdentifierExpression {
public:
  ExDataIdentifierExpression() = default;
};

/// A call of an intrinsic function (FUNCTION name (arguments) (refmod)).
/// The arguments are the subscript modifier.
class FunctionIdentifierExpression : public IdentifierExpression {
public:
  FunctionIdentifierExpression() : IdentifierExpression(EXPR_IDENT_FUNC) {}

  /// The function's name.
  Word *getName() const { return Name; }
  void setName(Word *W) { Name = W; }

private:
  Word *Name = nullptr;
};

/// A special register (RETURN-CODE, LENGTH OF x, LINAGE-COUNTER OF f, ...).
class SpecialRegisterIdentifierExpression : public IdentifierExpression {
public:
  SpecialRegisterIdentifierExpression()
      : IdentifierExpression(EXPR_IDENT_REGST) {}

  /// Which register this is.
  SpecialRegisterType getType() const { return Type; }
  /// The register's keyword, null when not written.
  Word *getRegisterWord() const { return RegisterWord; }
  /// The operand after OF (LENGTH OF, ADDRESS OF, LINAGE-COUNTER OF, ...),
  /// null when the register takes none.
  Expression *getIdent() const { return Ident; }

  void setType(SpecialRegisterType T) { Type = T; }
  void setRegisterWord(Word *W) { RegisterWord = W; }
  void setIdent(Expression *E) { Ident = E; }

private:
  SpecialRegisterType Type = SR_NONE;
  Word *RegisterWord = nullptr;
  Expression *Ident = nullptr;
};

// --- Compound expressions ---------------------------------------------------

/// An arithmetic expression: a unary operator with one operand or a binary
/// operator with two.
class ArithmeticExpression : public Expression {
public:
  ArithmeticExpression() : Expression(EXPR_ARITH) {}

  ArithmeticExprType getArithmeticExprType() const { return ArithType; }
  /// The operator as written, null when not available.
  Word *getOperator1() const { return Operator1; }
  /// The left operand (the only one of a unary expression).
  Expression *getOperand1() const { return Operand1; }
  /// The right operand, null for a unary expression.
  Expression *getOperand2() const { return Operand2; }

  void setArithmeticExprType(ArithmeticExprType T) { ArithType = T; }
  void setOperator1(Word *W) { Operator1 = W; }
  void setOperand1(Expression *E) { Operand1 = E; }
  void setOperand2(Expression *E) { Operand2 = E; }

private:
  ArithmeticExprType ArithType = ARITH_EXPR_NONE;
  Word *Operator1 = nullptr;
  Expression *Operand1 = nullptr;
  Expression *Operand2 = nullptr;
};

/// One further relation of a parenthesised list in an abbreviated combined
/// relation: its connective and the abbreviated relation it joins.
class AbbrCondItem : public Node {
public:
  /// The connective joining this relation to the previous one.
  AbbrRelationCombinedType getType() const { return Type; }
  /// The connective keyword (AND, OR), null when not written.
  Word *getOpWord() const { return OpWord; }
  /// The abbreviated relation, null when missing.
  AbbrRelationalCondition *getCond() const { return Cond; }

  void setType(AbbrRelationCombinedType T) { Type = T; }
  void setOpWord(Word *W) { OpWord = W; }
  void setCond(AbbrRelationalCondition *C) { Cond = C; }

private:
  AbbrRelationCombinedType Type = ABBR_COMB_NONE;
  Word *OpWord = nullptr;
  AbbrRelationalCondition *Cond = nullptr;
};

/// An abbreviated combined relation such as A = B OR C: the subject and
/// operator of the first relation are implied for the following ones.
class AbbrRelationCombinedExpression : public Expression {
public:
  AbbrRelationCombinedExpression() : Expression(EXPR_ABBR_COMBINED) {}

  /// The connective between the left and the right part.
  AbbrRelationCombinedType getType() const { return Type; }
  /// The connective keyword, null when not written.
  Word *getOpWord() const { return OpWord; }
  /// The left part, null when missing.
  Expression *getLeft() const { return Left; }
  /// The right part, a condition; null when missing.
  Condition *getRight() const { return Right; }
  /// The relational operator applying to the parenthesised list.
  RelationalConditionType getParenthOperator() const { return ParenthOperator; }

  /// The relations of the parenthesised list, in order.
  unsigned long getAbbrCondListSize() const { return AbbrCondList.size(); }
  NodeList<AbbrCondItem>::const_iterator getAbbrCondListBegin() const {
    return AbbrCondList.begin();
  }
  NodeList<AbbrCondItem>::const_iterator getAbbrCondListEnd() const {
    return AbbrCondList.end();
  }

  void setType(AbbrRelationCombinedType T) { Type = T; }
  void setOpWord(Word *W) { OpWord = W; }
  void setLeft(Expression *E) { Left = E; }
  void setRight(Condition *C) { Right = C; }
  void setParenthOperator(RelationalConditionType T) { ParenthOperator = T; }
  void addAbbrCond(AbbrCondItem *I) { AbbrCondList.push_back(I); }

private:
  AbbrRelationCombinedType Type = ABBR_COMB_NONE;
  Word *OpWord = nullptr;
  Expression *Left = nullptr;
  Condition *Right = nullptr;
  RelationalConditionType ParenthOperator = REL_OP_NONE;
  NodeList<AbbrCondItem> AbbrCondList;
};

} // namespace korvid

#endif // KORVID_PARSETREE_EXPRESSION_H
