//===- DescriptionFile.cpp - File description entries -------------===//

#include "korvid/XMLOstrel.h"
#include "korvid/ParseTree.h"

#include <tinyxml2.h>

#include <cassert>

using tinyxml2::XMLElement;

namespace korvid {

// Written as nothing: these constructs have no element of their own, and a
// caller never visits them for one.
void XMLOstrel::visit(ExFileDescription *) {}

// Not written out yet: these visits make no element and leave the
// return-element slot as it was.
void XMLOstrel::visit(FileDescription *) {}
void XMLOstrel::visit(ClauseExternalFile *) {}
void XMLOstrel::visit(ClauseGlobalFile *) {}
void XMLOstrel::visit(ClauseBlock *) {}
void XMLOstrel::visit(ClauseRecord *) {}
void XMLOstrel::visit(ClauseLabel *) {}
void XMLOstrel::visit(ValueOfElem *) {}
void XMLOstrel::visit(ClauseValueOf *) {}
void XMLOstrel::visit(ClauseRecordingMode *) {}
void XMLOstrel::visit(LinageFooting *) {}
void XMLOstrel::visit(LinageTop *) {}
void XMLOstrel::visit(LinageBottom *) {}
void XMLOstrel::visit(ClauseLinage *) {}
void XMLOstrel::visit(ClauseDataRecord *) {}
void XMLOstrel::visit(ClauseCodeSet *) {}
void XMLOstrel::visit(ClauseReport *) {}
void XMLOstrel::visit(ClauseRwStyle *) {}

} // namespace korvid
