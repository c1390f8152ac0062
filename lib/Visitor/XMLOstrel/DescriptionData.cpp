//===- DescriptionData.cpp - Data description entries -------------===//

#include "korvid/XMLOstrel.h"
#include "korvid/ParseTree.h"

#include <tinyxml2.h>

#include <cassert>

using tinyxml2::XMLElement;

namespace korvid {

// Written as nothing: these constructs have no element of their own, and a
// caller never visits them for one.
void XMLOstrel::visit(ExDataDescription *) {}
void XMLOstrel::visit(ExecData *) {}
void XMLOstrel::visit(StrReferDescription *) {}
void XMLOstrel::visit(IDMSDataDescription *) {}
void XMLOstrel::visit(ClauseIDMSRecord *) {}
void XMLOstrel::visit(ClauseBasedOn *) {}
void XMLOstrel::visit(ClausePrintingPosition *) {}
void XMLOstrel::visit(ClauseFujitsuType *) {}
void XMLOstrel::visit(ClauseTypeDef *) {}
void XMLOstrel::visit(ClauseSubsLength *) {}
void XMLOstrel::visit(ClauseXMLSchema *) {}

// Not written out yet: these visits make no element and leave the
// return-element slot as it was.
void XMLOstrel::visit(DataDescription *) {}
void XMLOstrel::visit(ClauseRedefines *) {}
void XMLOstrel::visit(ClauseBlankWhenZero *) {}
void XMLOstrel::visit(ClauseExternal *) {}
void XMLOstrel::visit(ClauseGlobal *) {}
void XMLOstrel::visit(ClauseGroupUsage *) {}
void XMLOstrel::visit(ClauseJustified *) {}
void XMLOstrel::visit(ClausePicture *) {}
void XMLOstrel::visit(ClauseSign *) {}
void XMLOstrel::visit(ClauseSynchronized *) {}
void XMLOstrel::visit(ClauseCharacterType *) {}
void XMLOstrel::visit(ClauseUsage *) {}
void XMLOstrel::visit(ClauseRenames *) {}
void XMLOstrel::visit(ClauseDateFormat *) {}
void XMLOstrel::visit(Key *) {}
void XMLOstrel::visit(Index *) {}
void XMLOstrel::visit(ClauseOccurs *) {}
void XMLOstrel::visit(PhraseValue *) {}
void XMLOstrel::visit(ClauseValue *) {}

} // namespace korvid
