//===- korvid/ParseTree/Forward.h - Forward declarations --------*- C++ -*-===//
//
// Declares every node class of the parse tree, generated from Nodes.def.
//
//===----------------------------------------------------------------------===//
#ifndef KORVID_PARSETREE_FORWARD_H
#define KORVID_PARSETREE_FORWARD_H

namespace korvid {
#define NODE(Class, Parent) class Class;
#include "korvid/ParseTree/Nodes.def"

class Visitor;
struct CopybookInformation;
class ParseError;
} // namespace korvid

#endif // KORVID_PARSETREE_FORWARD_H
