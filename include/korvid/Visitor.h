//===- korvid/Visitor.h - Visitor over the parse tree -----------*- C++ -*-===//
//
// One virtual visit per node class, generated from Nodes.def. Every body is
// empty, so a visitor that does not override a visit ignores that node.
// Nodes never dispatch themselves: a visitor chooses the overload by the
// static class of the child it holds, or by a family's type enumeration.
//
//===----------------------------------------------------------------------===//
#ifndef KORVID_VISITOR_H
#define KORVID_VISITOR_H

#include "korvid/ParseTree/Forward.h"

namespace korvid {

class Visitor {
public:
  Visitor();
  virtual ~Visitor();

#define NODE(Class, Parent) virtual void visit(Class *);
#include "korvid/ParseTree/Nodes.def"
};

} // namespace korvid

#endif // KORVID_VISITOR_H
