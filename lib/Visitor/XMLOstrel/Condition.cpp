//===- Condition.cpp - Conditions -------------===//
//
// One element per condition; combined and negated conditions visit their
// operands through the dispatcher again. Operators are "TYPE" children.
//
//===----------------------------------------------------------------------===//

#include "korvid/XMLOstrel.h"
#include "korvid/ParseTree.h"

#include <tinyxml2.h>
#include <cassert>

using tinyxml2::XMLElement;

namespace korvid {

#define DISPATCH(Type, Class)                                                  \
  case Type:                                                                   \
    visit(static_cast<Class *>(C));                                            \
    return

// A condition of no known kind writes nothing and leaves the slot as it was.
void XMLOstrel::visit(Condition *C) {
  switch (C->getType()) {
    DISPATCH(COND_COND_NAME, ConditionNameCondition);
    DISPATCH(COND_SWITCH, SwitchCondition);
    DISPATCH(COND_REL, RelationalCondition);
    DISPATCH(COND_CLASS, ClassCondition);
    DISPATCH(COND_SIGN, SignCondition);
    DISPATCH(COND_NEGA, NegatedCondition);
    DISPATCH(COND_COMB, CombinedCondition);
    DISPATCH(COND_ABBR, AbbrRelationalCondition);
  default:
    return;
  }
}

#undef DISPATCH

// The operator comes first, before both operands.
void XMLOstrel::visit(CombinedCondition *C) {
  XMLElement *Own = Handler->newRetElement("COMB_CONDITION");
  CombinedOperatorType Op = C->getOpTy();
  const char *Text = "";
  if (Op == COMB_OP_AND)
    Text = "AND";
  else if (Op == COMB_OP_EXOR)
    Text = "EXOR";
  else if (Op == COMB_OP_OR)
    Text = "OR";
  else
    assert(0 && "impossible");
  if (Word *W = C->getCombinedWord())
    appendTextChild(Own, "TYPE", W, Text);
  appendWrappedChild(Own, "LEFT", C->getLeft());
  appendWrappedChild(Own, "RIGHT", C->getRight());
  Handler->setRetElement(Own);
}

// "NEGATIVE_CONDITION" is NOT followed by a condition of any kind.
void XMLOstrel::visit(NegatedCondition *C) {
  XMLElement *Own = Handler->newRetElement("NEGATIVE_CONDITION");
  appendWrappedChild(Own, "OPERAND", C->getOperand());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(SwitchCondition *C) {
  XMLElement *Own = Handler->newRetElement("SWITCH_CONDITION");
  appendWrappedChild(Own, "OPERAND", C->getSwitchName());
  Handler->setRetElement(Own);
}

// NOT is written only with the sign word that lends it a location.
void XMLOstrel::visit(SignCondition *C) {
  XMLElement *Own = Handler->newRetElement("SIGN_CONDITION");
  SignOperatorType T = C->getOpType();
  bool Negated = T >= SIGN_OP_NOT_POSITIVE && T <= SIGN_OP_NOT_ZERO;
  const char *Text = "";
  switch (T) {
  case SIGN_OP_POSITIVE:
  case SIGN_OP_NOT_POSITIVE:
    Text = "POSITIVE";
    break;
  case SIGN_OP_NEGATIVE:
  case SIGN_OP_NOT_NEGATIVE:
    Text = "NEGATIVE";
    break;
  case SIGN_OP_ZERO:
  case SIGN_OP_NOT_ZERO:
    Text = "ZERO";
    break;
  default:
    // A sign test with no operator is a broken tree, unlike a class test.
    assert(0 && "impossible");
  }
  if (Word *W = C->getSignWord()) {
    appendTextChild(Own, "TYPE", W, Text);
    if (Negated)
      appendTextChild(Own, "NOT", W, "TRUE");
  }
  appendWrappedChild(Own, "OPERAND", C->getOperand());
  Handler->setRetElement(Own);
}

// An unknown class test is no error: it is written as an empty TYPE. A
// user-defined class is named only through the location of its TYPE.
void XMLOstrel::visit(ClassCondition *C) {
  XMLElement *Own = Handler->newRetElement("CLASS_CONDITION");
  ClassOperatorType T = C->getType();
  // The NOT_ forms are the negated tests; an unknown value is not negated.
  bool Negated = (T >= CLS_OP_NOT_NUM && T <= CLS_OP_NOT_CLASS_NAME) ||
                 T == CLS_OP_NOT_BOOLEAN;
  const char *Text = "";
  switch (T) {
  case CLS_OP_NUM:
  case CLS_OP_NOT_NUM:
    Text = "NUMERIC";
    break;
  case CLS_OP_ALPHA:
  case CLS_OP_NOT_ALPHA:
    Text = "ALPHABETIC";
    break;
  case CLS_OP_ALPHA_LOW:
  case CLS_OP_NOT_ALPHA_LOW:
    Text = "ALPHABETIC_LOW";
    break;
  case CLS_OP_ALPHA_UP:
  case CLS_OP_NOT_ALPHA_UP:
    Text = "ALPHABETIC_UPPER";
    break;
  case CLS_OP_DBCS:
  case CLS_OP_NOT_DBCS:
    Text = "DBCS";
    break;
  case CLS_OP_KANJI:
  case CLS_OP_NOT_KANJI:
    Text = "KANJI";
    break;
  case CLS_OP_CLASS_NAME:
  case CLS_OP_NOT_CLASS_NAME:
    Text = "CLASS_NAME";
    break;
  case CLS_OP_BOOLEAN:
  case CLS_OP_NOT_BOOLEAN:
    Text = "BOOLEAN";
    break;
  default:
    // CLS_OP_NONE and unknown tests keep the empty text.
    break;
  }
  if (Word *W = C->getClassWord()) {
    appendTextChild(Own, "TYPE", W, Text);
    if (Negated)
      appendTextChild(Own, "NOT", W, "TRUE");
  }
  appendWrappedChild(Own, "OPERAND", C->getLeft());
  Handler->setRetElement(Own);
}

// The condition name is visited as a data identifier directly.
void XMLOstrel::visit(ConditionNameCondition *C) {
  XMLElement *Own = Handler->newRetElement("COND_NAME_CONDITION");
  appendWrappedChild(Own, "OPERAND", C->getConditionName());
  Handler->setRetElement(Own);
}

// The abbreviated combined relation is a direct child, with no wrapper.
void XMLOstrel::visit(AbbrRelationalCondition *C) {
  XMLElement *Own = Handler->newRetElement("ABBR_RELATION_CONDITION");
  appendNodeChild(Own, C->getRight());
  Handler->setRetElement(Own);
}

// The relational node keeps no word for its operator: TYPE is located at the
// right operand, is left out with it, and stands between LEFT and RIGHT.
void XMLOstrel::visit(RelationalCondition *C) {
  XMLElement *Own = Handler->newRetElement("RELATIONAL_CONDITION");
  const char *Text = "";
  switch (C->getConditionType()) {
  case REL_OP_GT:
    Text = "GT";
    break;
  case REL_OP_LT:
    Text = "LT";
    break;
  case REL_OP_EQ:
    Text = "EQ";
    break;
  case REL_OP_GE:
    Text = "GE";
    break;
  case REL_OP_LE:
    Text = "LE";
    break;
  case REL_OP_NE:
    Text = "NE";
    break;
  default:
    assert(0 && "impossible");
  }
  appendWrappedChild(Own, "LEFT", C->getLeft());
  if (Expression *Right = C->getRight()) {
    appendTextChild(Own, "TYPE", Right, Text);
    appendWrappedChild(Own, "RIGHT", Right);
  }
  Handler->setRetElement(Own);
}

} // namespace korvid
