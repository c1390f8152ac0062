//===- DivisionIdentification.cpp - The identification division -------------===//

#include "korvid/XMLOstrel.h"
#include "korvid/ParseTree.h"

#include <tinyxml2.h>

#include <cassert>

using tinyxml2::XMLElement;

namespace korvid {

void XMLOstrel::visit(IdentificationDivision *) {
  XMLElement *Own = Handler->newRetElement("ID_DIVISION");
  Handler->setRetElement(Own);
}

// Not written out yet: these visits make no element and leave the
// return-element slot as it was.
void XMLOstrel::visit(ProgramIdParagraph *) {}

} // namespace korvid
