//===- DivisionIdentification.cpp - The identification division -------------===//

#include "korvid/XMLOstrel.h"
#include "korvid/ParseTree.h"

#include <tinyxml2.h>

#include <cassert>

using tinyxml2::XMLElement;

namespace korvid {

// Only PROGRAM-ID is written; the tree always has it, so it is used as is.
void XMLOstrel::visit(IdentificationDivision *D) {
  XMLElement *Own = Handler->newRetElement("ID_DIVISION");
  ProgramIdParagraph *Para = D->getProgramIDPara();

  // The name is written normalised, not as it was spelled.
  if (Word *Name = Para->getProgramNameWord())
    appendTextChild(Own, "PROGRAM_NAME", Name, Name->getWordData().c_str());
  if (Word *Recursive = Para->getRecursiveWord())
    appendTextChild(Own, "RECURSIVE", Recursive, "TRUE");

  // COMMON and INITIAL may stand in either order; whichever slot holds the
  // word lends its location, and each is written at most once.
  if (Word *Common = Para->getCommonWord())
    appendTextChild(Own, "COMMON", Common, "TRUE");
  else if (Word *Common2 = Para->getCommon2Word())
    appendTextChild(Own, "COMMON", Common2, "TRUE");
  if (Word *Initial = Para->getInitialWord())
    appendTextChild(Own, "INITIAL", Initial, "TRUE");
  else if (Word *Initial2 = Para->getInitial2Word())
    appendTextChild(Own, "INITIAL", Initial2, "TRUE");

  Handler->setRetElement(Own);
}

// The paragraph has no element of its own: the division reads its words.
void XMLOstrel::visit(ProgramIdParagraph *) {}

} // namespace korvid
