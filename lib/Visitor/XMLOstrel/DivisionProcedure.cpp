//===- DivisionProcedure.cpp - The procedure division -------------===//

#include "korvid/XMLOstrel.h"
#include "korvid/ParseTree.h"

#include <tinyxml2.h>

#include <cassert>

using tinyxml2::XMLElement;

namespace korvid {

void XMLOstrel::visit(ProcedureDivision *) {
  XMLElement *Own = Handler->newRetElement("PROCEDURE_DIVISION");
  Handler->setRetElement(Own);
}

// Written as nothing: these constructs have no element of their own, and a
// caller never visits them for one.
void XMLOstrel::visit(Declaratives *) {}
void XMLOstrel::visit(DeclarativesSection *) {}

// Not written out yet: these visits make no element and leave the
// return-element slot as it was.
void XMLOstrel::visit(Section *) {}
void XMLOstrel::visit(Paragraph *) {}
void XMLOstrel::visit(Sentence *) {}

} // namespace korvid
