//===- lib/ParseTree/Visitor.cpp - Visitor over the parse tree ------------===//

#include "korvid/Visitor.h"

namespace korvid {

Visitor::Visitor() = default;
Visitor::~Visitor() = default;

#define NODE(Class, Parent)                                                    \
  void Visitor::visit(Class *) {}
#include "korvid/ParseTree/Nodes.def"

} // namespace korvid
