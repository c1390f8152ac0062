//===- Condition.cpp - Conditions -------------===//

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

// Not written out yet: these visits make no element and leave the
// return-element slot as it was.
void XMLOstrel::visit(ConditionNameCondition *) {}
void XMLOstrel::visit(SwitchCondition *) {}
void XMLOstrel::visit(RelationalCondition *) {}
void XMLOstrel::visit(ClassCondition *) {}
void XMLOstrel::visit(SignCondition *) {}
void XMLOstrel::visit(NegatedCondition *) {}
void XMLOstrel::visit(CombinedCondition *) {}
void XMLOstrel::visit(AbbrRelationalCondition *) {}

} // namespace korvid
