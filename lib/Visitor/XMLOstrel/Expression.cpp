//===- Expression.cpp - Operands and expressions -------------===//

#include "korvid/XMLOstrel.h"
#include "korvid/ParseTree.h"

#include <tinyxml2.h>

#include <cassert>

using tinyxml2::XMLElement;

namespace korvid {

#define DISPATCH(Type, Class)                                                  \
  case Type:                                                                   \
    visit(static_cast<Class *>(E));                                            \
    return

void XMLOstrel::visit(Expression *E) {
  switch (E->getExprType()) {
    DISPATCH(EXPR_LITRL_NUM, NumericLiteralExpression);
    DISPATCH(EXPR_LITRL_NON_NUM, NonNumericLiteralExpression);
    DISPATCH(EXPR_LITRL_FIGR, FigurativeLiteralExpression);
    DISPATCH(EXPR_IDENT_DATA, DataIdentifierExpression);
    DISPATCH(EXPR_IDENT_FUNC, FunctionIdentifierExpression);
    DISPATCH(EXPR_IDENT_REGST, SpecialRegisterIdentifierExpression);
    DISPATCH(EXPR_ARITH, ArithmeticExpression);
    DISPATCH(EXPR_ABBR_COMBINED, AbbrRelationCombinedExpression);
  default:
    assert(0);
  }
}

void XMLOstrel::visit(LiteralExpression *E) {
  switch (E->getExprType()) {
    DISPATCH(EXPR_LITRL_NUM, NumericLiteralExpression);
    DISPATCH(EXPR_LITRL_NON_NUM, NonNumericLiteralExpression);
    DISPATCH(EXPR_LITRL_FIGR, FigurativeLiteralExpression);
  default:
    assert(0);
  }
}

void XMLOstrel::visit(IdentifierExpression *E) {
  switch (E->getExprType()) {
    DISPATCH(EXPR_IDENT_DATA, DataIdentifierExpression);
    DISPATCH(EXPR_IDENT_FUNC, FunctionIdentifierExpression);
    DISPATCH(EXPR_IDENT_REGST, SpecialRegisterIdentifierExpression);
  default:
    assert(0);
  }
}

#undef DISPATCH

// Written as nothing: these constructs have no element of their own, and a
// caller never visits them for one.
void XMLOstrel::visit(ExDataIdentifierExpression *) {}

// Not written out yet: these visits make no element and leave the
// return-element slot as it was.
void XMLOstrel::visit(NumericLiteralExpression *) {}
void XMLOstrel::visit(NonNumericLiteralExpression *) {}
void XMLOstrel::visit(FigurativeLiteralExpression *) {}
void XMLOstrel::visit(DataIdentifierExpression *) {}
void XMLOstrel::visit(FunctionIdentifierExpression *) {}
void XMLOstrel::visit(SpecialRegisterIdentifierExpression *) {}
void XMLOstrel::visit(ArithmeticExpression *) {}
void XMLOstrel::visit(AbbrRelationCombinedExpression *) {}
void XMLOstrel::visit(AbbrCondItem *) {}
void XMLOstrel::visit(ReferenceModifier *) {}
void XMLOstrel::visit(SubscriptModifier *) {}

} // namespace korvid
