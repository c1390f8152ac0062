//===- korvid/ParseTree/Condition.h - Conditions ----------------*- C++ -*-===//
//
// Every condition is a Condition whose ConditionType says which of the eight
// concrete classes it is; visitors dispatch on it. Combined and negated
// conditions hold further conditions, so a condition is a tree.
//
//===----------------------------------------------------------------------===//
#ifndef KORVID_PARSETREE_CONDITION_H
#define KORVID_PARSETREE_CONDITION_H

#include "korvid/ParseTree/Expression.h"
#include "korvid/ParseTree/Node.h"

namespace korvid {

/// Which condition class a Condition is.
enum ConditionType : int32_t {
  COND_NONE = 0,
  COND_COND_NAME = 1,
  COND_SWITCH = 2,
  COND_REL = 3,
  COND_CLASS = 4,
  COND_SIGN = 5,
  COND_NEGA = 6,
  COND_COMB = 7,
  COND_ABBR = 8,
};

/// The test of a class condition; the NOT_ forms are the negated tests.
enum ClassOperatorType : int32_t {
  CLS_OP_NONE = 0,
  CLS_OP_NUM = 1,
  CLS_OP_ALPHA = 2,
  CLS_OP_ALPHA_LOW = 3,
  CLS_OP_ALPHA_UP = 4,
  CLS_OP_DBCS = 5,
  CLS_OP_KANJI = 6,
  /// A class defined in SPECIAL-NAMES.
  CLS_OP_CLASS_NAME = 7,
  CLS_OP_NOT_NUM = 8,
  CLS_OP_NOT_ALPHA = 9,
  CLS_OP_NOT_ALPHA_LOW = 10,
  CLS_OP_NOT_ALPHA_UP = 11,
  CLS_OP_NOT_DBCS = 12,
  CLS_OP_NOT_KANJI = 13,
  CLS_OP_NOT_CLASS_NAME = 14,
  CLS_OP_BOOLEAN = 15,
  CLS_OP_NOT_BOOLEAN = 16,
};

/// The test of a sign condition; the NOT_ forms are the negated tests.
enum SignOperatorType : int32_t {
  SIGN_OP_NONE = 0,
  SIGN_OP_POSITIVE = 1,
  SIGN_OP_NEGATIVE = 2,
  SIGN_OP_ZERO = 3,
  SIGN_OP_NOT_POSITIVE = 4,
  SIGN_OP_NOT_NEGATIVE = 5,
  SIGN_OP_NOT_ZERO = 6,
};

/// The logical operator of a combined condition.
enum CombinedOperatorType : int32_t {
  COMB_OP_NONE = 0,
  COMB_OP_OR = 1,
  COMB_OP_AND = 2,
  COMB_OP_EXOR = 3,
};

/// Base of every condition. A concrete class may declare a getType() of its
/// own (ClassCondition's operator); Condition::getType() stays reachable
/// through a Condition pointer.
class Condition : public Node {
public:
  explicit Condition(ConditionType T = COND_NONE) : Type(T) {}

  ConditionType getType() const { return Type; }
  void setType(ConditionType T) { Type = T; }

private:
  ConditionType Type;
};

/// A condition-name condition: a level-88 name tested on its own.
class ConditionNameCondition : public Condition {
public:
  ConditionNameCondition() : Condition(COND_COND_NAME) {}

  /// The condition name referenced, null when missing.
  DataIdentifierExpression *getConditionName() const { return ConditionName; }
  void setConditionName(DataIdentifierExpression *E) { ConditionName = E; }

private:
  DataIdentifierExpression *ConditionName = nullptr;
};

/// A switch-status condition: the ON/OFF status name of a SPECIAL-NAMES
/// switch.
class SwitchCondition : public Condition {
public:
  SwitchCondition() : Condition(COND_SWITCH) {}

  /// The status name, null when missing.
  QualifiedWord *getSwitchName() const { return SwitchName; }
  void setSwitchName(QualifiedWord *W) { SwitchName = W; }

private:
  QualifiedWord *SwitchName = nullptr;
};

/// A relation condition: left operand, relational operator, right operand.
class RelationalCondition : public Condition {
public:
  RelationalCondition() : Condition(COND_REL) {}

  /// The relational operator.
  RelationalConditionType getConditionType() const { return ConditionTy; }
  /// The subject, null when missing.
  Expression *getLeft() const { return Left; }
  /// The object, null when missing.
  Expression *getRight() const { return Right; }

  void setConditionType(RelationalConditionType T) { ConditionTy = T; }
  void setLeft(Expression *E) { Left = E; }
  void setRight(Expression *E) { Right = E; }

private:
  RelationalConditionType ConditionTy = REL_OP_NONE;
  Expression *Left = nullptr;
  Expression *Right = nullptr;
};

/// A class condition (X IS [NOT] NUMERIC, ALPHABETIC, class-name, ...).
/// Its getType() is the class test; Condition::getType() gives COND_CLASS.
class ClassCondition : public Condition {
public:
  ClassCondition() : Condition(COND_CLASS) {}

  /// The class test, negated or not.
  ClassOperatorType getType() const { return OpType; }
  /// The class keyword or the user-defined class name, null when missing.
  Word *getClassWord() const { return ClassWord; }
  /// The operand tested, null when missing.
  Expression *getLeft() const { return Left; }

  using Condition::setType;
  void setType(ClassOperatorType T) { OpType = T; }
  void setClassWord(Word *W) { ClassWord = W; }
  void setLeft(Expression *E) { Left = E; }

private:
  ClassOperatorType OpType = CLS_OP_NONE;
  Word *ClassWord = nullptr;
  Expression *Left = nullptr;
};

/// A sign condition (X IS [NOT] POSITIVE, NEGATIVE, ZERO).
class SignCondition : public Condition {
public:
  SignCondition() : Condition(COND_SIGN) {}

  /// The sign test, negated or not.
  SignOperatorType getOpType() const { return OpType; }
  /// The sign keyword, null when missing.
  Word *getSignWord() const { return SignWord; }
  /// The operand tested, null when missing.
  Expression *getOperand() const { return Operand; }

  void setOpType(SignOperatorType T) { OpType = T; }
  void setSignWord(Word *W) { SignWord = W; }
  void setOperand(Expression *E) { Operand = E; }

private:
  SignOperatorType OpType = SIGN_OP_NONE;
  Word *SignWord = nullptr;
  Expression *Operand = nullptr;
};

/// A negated condition: NOT followed by a condition.
class NegatedCondition : public Condition {
public:
  NegatedCondition() : Condition(COND_NEGA) {}

  /// The condition negated, null when missing.
  Condition *getOperand() const { return Operand; }
  void setOperand(Condition *C) { Operand = C; }

private:
  Condition *Operand = nullptr;
};

/// Two conditions joined by AND, OR or exclusive OR.
class CombinedCondition : public Condition {
public:
  CombinedCondition() : Condition(COND_COMB) {}

  /// The logical operator.
  CombinedOperatorType getOpTy() const { return OpTy; }
  /// The operator keyword, null when missing.
  Word *getCombinedWord() const { return CombinedWord; }
  /// The left condition, null when missing.
  Condition *getLeft() const { return Left; }
  /// The right condition, null when missing.
  Condition *getRight() const { return Right; }

  void setOpTy(CombinedOperatorType T) { OpTy = T; }
  void setCombinedWord(Word *W) { CombinedWord = W; }
  void setLeft(Condition *C) { Left = C; }
  void setRight(Condition *C) { Right = C; }

private:
  CombinedOperatorType OpTy = COMB_OP_NONE;
  Word *CombinedWord = nullptr;
  Condition *Left = nullptr;
  Condition *Right = nullptr;
};

/// An abbreviated combined relation used as a condition; the relation
/// itself is an AbbrRelationCombinedExpression.
class AbbrRelationalCondition : public Condition {
public:
  AbbrRelationalCondition() : Condition(COND_ABBR) {}

  /// The abbreviated combined relation, null when missing.
  Expression *getRight() const { return Right; }
  void setRight(Expression *E) { Right = E; }

private:
  Expression *Right = nullptr;
};

} // namespace korvid

#endif // KORVID_PARSETREE_CONDITION_H
