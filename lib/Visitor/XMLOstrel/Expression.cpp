//===- Expression.cpp - Operands and expressions -------------===//

#include "korvid/XMLOstrel.h"
#include "korvid/ParseTree.h"

#include <tinyxml2.h>

#include <cassert>
#include <string>

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

/// The connective of an abbreviated combined relation; a trailing NOT is
/// not told apart, and an unknown value gives no text rather than an abort.
static const char *connectiveText(AbbrRelationCombinedType T) {
  switch (T) {
  case ABBR_COMB_OR:
  case ABBR_COMB_OR_NOT:
    return "OR";
  case ABBR_COMB_AND:
  case ABBR_COMB_AND_NOT:
    return "AND";
  case ABBR_COMB_EXOR:
  case ABBR_COMB_EXOR_NOT:
    return "EXOR";
  default:
    return "";
  }
}

/// The operator applying to a parenthesised list of abbreviated relations;
/// no operator (or a bare NOT) gives no text.
static const char *parenthOperatorText(RelationalConditionType T) {
  switch (T) {
  case REL_OP_GT:
    return "GT";
  case REL_OP_LT:
    return "LT";
  case REL_OP_EQ:
    return "EQ";
  case REL_OP_GE:
    return "GE";
  case REL_OP_LE:
    return "LE";
  case REL_OP_NE:
    return "NE";
  default:
    return "";
  }
}

void XMLOstrel::visit(NumericLiteralExpression *E) {
  XMLElement *Own = Handler->newRetElement("VALUE");
  Handler->appendChildLast(Handler->newText(E->getData().c_str()), Own);
  Handler->setRetElement(Own);
}

// Any byte that is negative as a signed char counts as a control character
// here, so a literal with a non-ASCII byte is written as DUMMY_LITERAL just
// like one holding a tab or DEL. Consumers rely on this placeholder.
void XMLOstrel::visit(NonNumericLiteralExpression *E) {
  XMLElement *Own = Handler->newRetElement("VALUE");
  std::string Text = E->getData();
  for (char C : Text) {
    signed char S = static_cast<signed char>(C);
    if (S <= 31 || S == 127) {
      Text = "DUMMY_LITERAL";
      break;
    }
  }
  Handler->appendChildLast(Handler->newText(Text.c_str()), Own);
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(FigurativeLiteralExpression *E) {
  XMLElement *Own = Handler->newRetElement("FIGURATIVE_CONSTANT");
  appendWrappedChild(Own, "VALUE", E->getFigWord());
  // The literal of ALL literal.
  appendWrappedChild(Own, "LITERAL", E->getLiteral());
  Handler->setRetElement(Own);
}

// The number of the resolved data entry stands beside the name; a name that
// was not resolved to a data entry gets 0.
void XMLOstrel::visit(DataIdentifierExpression *E) {
  XMLElement *Own = Handler->newRetElement("DATA_IDENTIFIER");
  uint32_t Id = 0;
  Node *Target = E->getTarget();
  if (Target && Target->getExNodeType() == EX_NODE_TYPE_EXDATADESCRIPTION)
    Id = static_cast<ExDataDescription *>(Target)->getID();
  if (QualifiedWord *Name = E->getName()) {
    appendTextChild(Own, "DATA_ID", Name, std::to_string(Id).c_str());
    appendNodeChild(Own, Name);
  }
  appendWrappedChild(Own, "SUBSCRIPT", E->getSubscriptMod());
  appendNodeChild(Own, E->getReferenceMod());
  Handler->setRetElement(Own);
}

// Extended identifiers are written through the data-identifier visit.
void XMLOstrel::visit(ExDataIdentifierExpression *) {}

void XMLOstrel::visit(FunctionIdentifierExpression *E) {
  XMLElement *Own = Handler->newRetElement("FUNC_IDENTIFIER");
  // The function name is written normalised, unlike other names.
  if (Word *Name = E->getName())
    appendTextChild(Own, "FUNC_NAME", Name,
                    std::string(Name->getWordData()).c_str());
  appendWrappedChild(Own, "FUNC_ARGS", E->getSubscriptMod());
  // Unlike a data identifier's, a function's reference modifier is wrapped,
  // so REFERENCE_MODIFIER stands inside REFERENCE_MODIFIER.
  appendWrappedChild(Own, "REFERENCE_MODIFIER", E->getReferenceMod());
  Handler->setRetElement(Own);
}

// The report-writer counters share the texts of the ordinary PAGE-COUNTER
// and LINE-COUNTER: the document does not tell them apart.
void XMLOstrel::visit(SpecialRegisterIdentifierExpression *E) {
  XMLElement *Own = Handler->newRetElement("SPECIAL_REGISTER_IDENTIFIER");
  const char *Name = nullptr;
  switch (E->getType()) {
  case SR_LINAGE_COUNTER: Name = "LINAGE_COUNTER"; break;
  case SR_RETURN_CODE: Name = "RETURN_CODE"; break;
  case SR_SHIFT_IN: Name = "SHIFT_IN"; break;
  case SR_SHIFT_OUT: Name = "SHIFT_OUT"; break;
  case SR_SORT_CONTROL: Name = "SORT_CONTROL"; break;
  case SR_SORT_CORE_SIZE: Name = "SORT_CORE_SIZE"; break;
  case SR_SORT_FILE_SIZE: Name = "SORT_FILE_SIZE"; break;
  case SR_SORT_MESSAGE: Name = "SORT_MESSAGE"; break;
  case SR_SORT_MODE_SIZE: Name = "SORT_MODE_SIZE"; break;
  case SR_SORT_RETURN: Name = "SORT_RETURN"; break;
  case SR_TALLY: Name = "TALLY"; break;
  case SR_WHEN_COMPILED: Name = "WHEN_COMPILED"; break;
  case SR_PAGE_COUNTER: Name = "PAGE_COUNTER"; break;
  case SR_LINE_COUNTER: Name = "LINE_COUNTER"; break;
  case SR_LENGTH_OF: Name = "LENGTH_OF"; break;
  case SR_ADDRESS_OF: Name = "ADDRESS_OF"; break;
  case SR_PROGRAM_STATUS: Name = "PROGRAM_STATUS"; break;
  case SR_SORT_STATUS: Name = "SORT_STATUS"; break;
  case SR_DB_EXCEPTION: Name = "DB_EXCEPTION"; break;
  case SR_XML_CODE: Name = "XML_CODE"; break;
  case SR_XML_EVENT: Name = "XML_EVENT"; break;
  case SR_XML_INFORMATION: Name = "XML_INFORMATION"; break;
  case SR_XML_NAMESPACE: Name = "XML_NAMESPACE"; break;
  case SR_XML_NAMESPACE_PREFIX: Name = "XML_NAMESPACE_PREFIX"; break;
  case SR_XML_NNAMESPACE: Name = "XML_NNAMESPACE"; break;
  case SR_XML_NNAMESPACE_PREFIX: Name = "XML_NNAMESPACE_PREFIX"; break;
  case SR_XML_TEXT: Name = "XML_TEXT"; break;
  case SR_XML_NTEXT: Name = "XML_NTEXT"; break;
  case SR_RW_COLUMN_COUNTER: Name = "COLUMN_COUNTER"; break;
  case SR_RW_LINE_COUNTER: Name = "LINE_COUNTER"; break;
  case SR_RW_PAGE_COUNTER: Name = "PAGE_COUNTER"; break;
  case SR_RW_PRINT_SWITCH: Name = "PRINT_SWITCH"; break;
  case SR_CURRENT_DATE: Name = "CURRENT_DATE"; break;
  default:
    // SR_NONE and TIME-OF-DAY have no text.
    assert(0 && "impossible");
  }
  if (Word *W = E->getRegisterWord())
    appendTextChild(Own, "VALUE", W, Name);
  // The operand of LENGTH OF, ADDRESS OF, LINAGE-COUNTER OF and the like is
  // always written under this one tag.
  appendWrappedChild(Own, "FILE_NAME", E->getIdent());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ArithmeticExpression *E) {
  XMLElement *Own = Handler->newRetElement("ARITHMETIC_EXPR");
  const char *Op = nullptr;
  switch (E->getArithmeticExprType()) {
  case ARITH_EXPR_UNARY_PLUS: Op = "U_PLUS"; break;
  case ARITH_EXPR_UNARY_MINUS: Op = "U_MINUS"; break;
  case ARITH_EXPR_PLUS: Op = "PLUS"; break;
  case ARITH_EXPR_MINUS: Op = "MINUS"; break;
  case ARITH_EXPR_MULTIPLY: Op = "MULTIPLY"; break;
  case ARITH_EXPR_DIVIDE: Op = "DIVIDE"; break;
  case ARITH_EXPR_SQUARE: Op = "SQUARE"; break;
  default:
    assert(0 && "impossible");
  }
  if (Word *W = E->getOperator1())
    appendTextChild(Own, "OPERATOR", W, Op);
  // A unary expression has only the left operand.
  appendWrappedChild(Own, "OPERAND_LEFT", E->getOperand1());
  appendWrappedChild(Own, "OPERAND_RIGHT", E->getOperand2());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ReferenceModifier *M) {
  XMLElement *Own = Handler->newRetElement("REFERENCE_MODIFIER");
  appendWrappedChild(Own, "START_POSITION", M->getFromExpr());
  appendWrappedChild(Own, "LENGTH", M->getCountExpr());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(SubscriptModifier *M) {
  XMLElement *Own = Handler->newRetElement("SUBSCRIPT_MODIFIER");
  appendListChild(Own, "SubscriptList", "ExprList", M->getSubscriptSize(),
                  M->getSubscriptBegin(), M->getSubscriptEnd());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(AbbrRelationCombinedExpression *E) {
  XMLElement *Own = Handler->newRetElement("ABBR_RELATION_EXPR");
  if (Word *W = E->getOpWord())
    appendTextChild(Own, "TYPE", W, connectiveText(E->getType()));
  appendWrappedChild(Own, "LEFT", E->getLeft());
  appendWrappedChild(Own, "RIGHT", E->getRight());

  if (E->getAbbrCondListSize() != 0) {
    const char *Rel = parenthOperatorText(E->getParenthOperator());
    // The list's operator has no word of its own: it is located at the
    // whole expression.
    if (*Rel)
      appendTextChild(Own, "PARENTH_RELTYPE", E, Rel);
    // The parenthesised list stands for no single node: its element is
    // neither stamped nor ordered, only put after the other children.
    XMLElement *R = Handler->newRetElement("RIGHT_PARENTH");
    for (auto I = E->getAbbrCondListBegin(), End = E->getAbbrCondListEnd();
         I != End; ++I) {
      AbbrCondItem *Item = *I;
      if (!Item)
        continue;
      AbbrRelationalCondition *Cond = Item->getCond();
      // The connective is located at the relation it introduces, so without
      // that relation there is nowhere to place it.
      if (Item->getOpWord() && Cond)
        appendTextChild(R, "TYPE", Cond, connectiveText(Item->getType()));
      appendNodeChild(R, Cond);
    }
    Handler->appendChildLast(R, Own);
  }
  Handler->setRetElement(Own);
}

// The items of a parenthesised list are written by the visit of the
// abbreviated combined relation that holds them.
void XMLOstrel::visit(AbbrCondItem *) {}

} // namespace korvid
