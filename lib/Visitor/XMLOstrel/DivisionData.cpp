//===- DivisionData.cpp - The data division and its sections -------------===//

#include "korvid/XMLOstrel.h"
#include "korvid/ParseTree.h"

#include <tinyxml2.h>

#include <cassert>

using tinyxml2::XMLElement;

namespace korvid {

void XMLOstrel::visit(DataDivision *) {
  XMLElement *Own = Handler->newRetElement("DATA_DIVISION");
  Handler->setRetElement(Own);
}

// Written as nothing: these constructs have no element of their own, and a
// caller never visits them for one.
void XMLOstrel::visit(IDMSSchemaSection *) {}
void XMLOstrel::visit(IDMSMapSection *) {}
void XMLOstrel::visit(IDMSControlSection *) {}

// Not written out yet: these visits make no element and leave the
// return-element slot as it was.
void XMLOstrel::visit(WorkingSection *) {}
void XMLOstrel::visit(LocalSection *) {}
void XMLOstrel::visit(LinkageSection *) {}
void XMLOstrel::visit(FileSection *) {}
void XMLOstrel::visit(ReportSection *) {}

} // namespace korvid
