//===- DivisionEnvironment.cpp - The environment division -------------===//

#include "korvid/XMLOstrel.h"
#include "korvid/ParseTree.h"

#include <tinyxml2.h>

#include <cassert>

using tinyxml2::XMLElement;

namespace korvid {

void XMLOstrel::visit(EnvironmentDivision *) {
  XMLElement *Own = Handler->newRetElement("ENVIRONMENT_DIVISION");
  Handler->setRetElement(Own);
}

// Not written out yet: these visits make no element and leave the
// return-element slot as it was.
void XMLOstrel::visit(ConfigurationSection *) {}
void XMLOstrel::visit(ParaSourceComputer *) {}
void XMLOstrel::visit(ParaObjectComputer *) {}
void XMLOstrel::visit(ClauseMemorySize *) {}
void XMLOstrel::visit(ClauseSequence *) {}
void XMLOstrel::visit(ClauseSegmentLimit *) {}
void XMLOstrel::visit(ParaSpecialNames *) {}
void XMLOstrel::visit(ClauseEnvName *) {}
void XMLOstrel::visit(PhrsOnOff *) {}
void XMLOstrel::visit(ClauseAlphabet *) {}
void XMLOstrel::visit(PhrsAlphabetThru *) {}
void XMLOstrel::visit(PhrsAlphabetAlso *) {}
void XMLOstrel::visit(ClauseSymbolic *) {}
void XMLOstrel::visit(PhrsSymbolic *) {}
void XMLOstrel::visit(ClauseClass *) {}
void XMLOstrel::visit(PhrsClass *) {}
void XMLOstrel::visit(ClauseCurrency *) {}
void XMLOstrel::visit(ClauseDecimalPoint *) {}
void XMLOstrel::visit(InputOutputSection *) {}
void XMLOstrel::visit(ParaFileControl *) {}
void XMLOstrel::visit(FileControlItem *) {}
void XMLOstrel::visit(ClauseSelect *) {}
void XMLOstrel::visit(ClauseAssign *) {}
void XMLOstrel::visit(ClauseReserve *) {}
void XMLOstrel::visit(ClauseOrganization *) {}
void XMLOstrel::visit(ClausePadding *) {}
void XMLOstrel::visit(ClauseAccess *) {}
void XMLOstrel::visit(ClauseStatus *) {}
void XMLOstrel::visit(ClauseRecordKey *) {}
void XMLOstrel::visit(ClauseRelativeKey *) {}
void XMLOstrel::visit(ClauseRecordDelimiter *) {}
void XMLOstrel::visit(ClauseAlternate *) {}
void XMLOstrel::visit(ClausePassWord *) {}
void XMLOstrel::visit(ClauseRwMode *) {}
void XMLOstrel::visit(ClauseRwDuplicate *) {}
void XMLOstrel::visit(ClauseRwType *) {}
void XMLOstrel::visit(ClauseRwFirstPage *) {}
void XMLOstrel::visit(ParaIOControl *) {}
void XMLOstrel::visit(IOControlItem *) {}
void XMLOstrel::visit(ClauseRerun *) {}
void XMLOstrel::visit(ClauseSame *) {}
void XMLOstrel::visit(ClauseMultipleFile *) {}
void XMLOstrel::visit(PrsMultipleFile *) {}
void XMLOstrel::visit(ClauseApplyWriteOnly *) {}

} // namespace korvid
