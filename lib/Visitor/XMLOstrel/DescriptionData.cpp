//===- DescriptionData.cpp - Data description entries ---------------------===//

#include "korvid/XMLOstrel.h"
#include "korvid/ParseTree.h"

#include <tinyxml2.h>

#include <cassert>
#include <cstdint>
#include <string>

using tinyxml2::XMLElement;

namespace korvid {

/// How the item's bytes are stored, from its resolved usage and, for packed
/// and display items, its sign and category.
static const char *storageRule(const ExDataDescription *D) {
  switch (D->getUsageTy()) {
  case USAGE_BINARY:
  case USAGE_COMP:
  case USAGE_COMP1:
  case USAGE_COMP2:
  case USAGE_COMP4:
  case USAGE_COMP5:
    // The floating-point usages COMP-1 and COMP-2 are copied byte for byte
    // like the binary ones.
    return "COPY";
  case USAGE_COMP3:
  case USAGE_PACKED_DECIMAL:
    return D->getPictureSign() ? "PACKED" : "U_PACKED";
  case USAGE_DISPLAY:
    if (D->getDataCategory() != DC_NUMERIC)
      return "EBC_ASC";
    return D->getPictureSign() ? "ZONED" : "U_ZONED";
  case USAGE_DISPLAY1:
  case USAGE_NATIONAL:
    return "GRAPHIC";
  default:
    // No usage, INDEX, the pointers and BIT have no storage rule.
    return "UNDEFINED";
  }
}

// An ordinary entry writes what the tree computed for the item (ID, SIZE,
// OFFSET, RULE) and then what was written (LEVEL, NAME and the clauses), in
// a fixed order of its own; ordered insertion then places every child by its
// location. An EXEC block among the entries becomes an EXEC_STATEMENT with
// its type and its text. Other entry kinds write nothing.
void XMLOstrel::visit(DataDescription *D) {
  DataDescType Kind = D->getDescType();
  if (Kind == DESC_NORMAL) {
    auto *Ex = static_cast<ExDataDescription *>(D);
    XMLElement *Own = Handler->newRetElement("DATA_DESC_ENTRY");
    // What the tree computed for the item, located at the entry itself.
    // Size and offset are written in bits; the product is taken in 64 bits.
    appendTextChild(Own, "ID", D, std::to_string(Ex->getID()).c_str());
    appendTextChild(Own, "SIZE", D,
                    std::to_string(uint64_t(Ex->getSize()) * 8).c_str());
    appendTextChild(Own, "OFFSET", D,
                    std::to_string(uint64_t(Ex->getOffSet()) * 8).c_str());
    appendTextChild(Own, "RULE", D, storageRule(Ex));
    // The level as a number (05 is 5), located at its word; an entry whose
    // word is missing has no LEVEL even when the number is known.
    if (Word *Level = D->getLevelNum())
      appendTextChild(Own, "LEVEL", Level,
                      std::to_string(Ex->getLevelNum()).c_str());
    appendWordChild(Own, "NAME", D->getDataName());
    if (ClauseRedefines *R = D->getRedefines())
      appendWrappedChild(Own, "REDEFINES", R->getData());
    if (ClauseBlankWhenZero *C = D->getBlankZero())
      appendTextChild(Own, "BLANK_WHEN_ZERO", C, "TRUE");
    if (ClauseExternal *C = D->getExternal())
      appendTextChild(Own, "EXTERNAL", C, "TRUE");
    if (ClauseGlobal *C = D->getGlobal())
      appendTextChild(Own, "GLOBAL", C, "TRUE");
    // A missing RIGHT word means JUSTIFIED is not written.
    if (ClauseJustified *C = D->getJustified())
      appendWordChild(Own, "JUSTIFIED", C->getRightWord());
    appendNodeChild(Own, D->getOccurs());
    if (ClausePicture *C = D->getPicture())
      appendWordChild(Own, "PICTURE", C->getCharStringWord());
    // LEADING and TRAILING share the tag; their text tells them apart.
    if (ClauseSign *C = D->getSign()) {
      appendWordChild(Own, "SIGN", C->getLeadingWord());
      appendWordChild(Own, "SIGN", C->getTrailingWord());
    }
    // Unlike JUSTIFIED, a bare SYNCHRONIZED is written, as NONE.
    if (ClauseSynchronized *C = D->getSynchronized()) {
      if (Word *Side = C->getLeftRightWord())
        appendWordChild(Own, "SYNCHRONIZED", Side);
      else
        appendTextChild(Own, "SYNCHRONIZED", C, "NONE");
    }
    // The tag is spelled BASE_DON; consumers read it so.
    if (ClauseBasedOn *C = D->getBasedOn())
      appendWrappedChild(Own, "BASE_DON", C->getData());
    appendNodeChild(Own, D->getCharacterType());
    if (ClausePrintingPosition *C = D->getPrintingPos()) {
      appendWrappedChild(Own, "PRINTING_POSITION_EXPR", C->getPositionExpr());
      appendWrappedChild(Own, "PRINTING_POSITION_UNITNAME", C->getUnitName());
    }
    if (ClauseFujitsuType *C = D->getFujitsuType())
      appendWrappedChild(Own, "FUJITSU_TYPE", C->getTypeName());
    if (ClauseTypeDef *C = D->getTypeDef()) {
      appendTextChild(Own, "TYPEDEF", C, "TRUE");
      if (Word *Strong = C->getStrongWord())
        appendTextChild(Own, "TYPEDEF_STRONG", Strong, "TRUE");
    }
    // The usage is written from its normalised word, located at the clause.
    if (ClauseUsage *C = D->getUsage())
      if (Word *U = C->getUsageDescWord())
        appendTextChild(Own, "USAGE", C,
                        usageName(U->getWordData()).c_str());
    appendNodeChild(Own, D->getValue());
    Handler->setRetElement(Own);
    return;
  }

  // Other entry kinds (none, IDMS, report, string) are not described here:
  // they write nothing and leave the return-element slot as it was.
  if (Kind != DESC_EXEC_SQL && Kind != DESC_EXEC_SQL_INCLUDE &&
      Kind != DESC_EXEC_CICS)
    return;

  // An EXEC block among the entries. It has the shape of the procedure
  // division's EXEC_STATEMENT but is built here, by rules of its own.
  // Neither it nor its two children are located here: the entry list stamps
  // the block when it collects it.
  XMLElement *Own = Handler->newRetElement("EXEC_STATEMENT");
  // An INCLUDE block is typed SQL like any other SQL block. The kind was
  // checked above, so no other kind can reach this switch.
  const char *Type = nullptr;
  switch (Kind) {
  case DESC_EXEC_SQL:
  case DESC_EXEC_SQL_INCLUDE:
    Type = "SQL";
    break;
  case DESC_EXEC_CICS:
    Type = "CICS";
    break;
  default:
    assert(0 && "impossible");
  }
  XMLElement *TypeElement = Handler->newElement("TYPE");
  Handler->appendChildLast(Handler->newText(Type), TypeElement);
  Handler->appendChildLast(TypeElement, Own);

  // The content is cut by position, not by keyword: the closing END-EXEC
  // goes, then the first two words (EXEC and SQL or CICS). An INCLUDE block
  // therefore keeps INCLUDE at its head, unlike the procedure division's.
  // Only single spaces separate words; a run of spaces leaves the rest in.
  std::string Text = static_cast<ExecData *>(D)->getSqlStr();
  std::string::size_type Space = Text.rfind(' ');
  if (Space != std::string::npos) {
    Text.erase(Space);
    Space = Text.find(' ');
    if (Space != std::string::npos) {
      Text.erase(0, Space + 1);
      Space = Text.find(' ');
      if (Space != std::string::npos)
        Text.erase(0, Space + 1);
    }
  }
  XMLElement *Content = Handler->newElement("CONTENT");
  Handler->appendChildLast(Handler->newText(Text.c_str()), Content);
  Handler->appendChildLast(Content, Own);
  Handler->setRetElement(Own);
}

// Only the long forms are rewritten, and they lose their hyphen: COMP-3
// stays COMP-3 while COMPUTATIONAL-3 becomes COMP3.
std::string XMLOstrel::usageName(const std::string &Normalised) {
  static const char *const Names[][2] = {
      {"COMPUTATIONAL", "COMP"},
      {"COMPUTATIONAL-1", "COMP1"},
      {"COMPUTATIONAL-2", "COMP2"},
      {"COMPUTATIONAL-3", "COMP3"},
      {"COMPUTATIONAL-4", "COMP4"},
      {"COMPUTATIONAL-5", "COMP5"},
      {"PROCEDURE-POINTER", "PROC-POINTER"},
      {"FUNCTION-POINTER", "FUNC-POINTER"},
      {"DISPLAY-1", "DISPLAY1"},
  };
  for (const auto &N : Names)
    if (Normalised == N[0])
      return N[1];
  return Normalised;
}

void XMLOstrel::visit(ClauseOccurs *O) {
  XMLElement *Own = Handler->newRetElement("OCCURS");
  appendListChild(Own, "KEY", "KeyList", O->getKeysSize(), O->getKeysBegin(),
                  O->getKeysEnd());
  // The counts are written as the clause holds them: a fixed OCCURS 5 may
  // carry its count in either.
  appendWrappedChild(Own, "MIN", O->getMin());
  appendWrappedChild(Own, "MAX", O->getMax());
  appendWrappedChild(Own, "DEPENDING_ON", O->getOdoName());
  appendNodeChild(Own, O->getIndexed());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(Key *K) {
  XMLElement *Own = Handler->newRetElement("OCCURS_KEY");
  appendWordChild(Own, "ORDER_TYPE", K->getAscDscWord());
  // The key items stand directly under the key, with no list container.
  if (K->getDataListSize() != 0)
    for (auto I = K->getDataListBegin(), E = K->getDataListEnd(); I != E; ++I)
      appendNodeChild(Own, *I);
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(Index *X) {
  XMLElement *Own = Handler->newRetElement("INDEX");
  for (auto I = X->getDataListBegin(), E = X->getDataListEnd(); I != E; ++I)
    appendWrappedChild(Own, "INDEX_ENTRY", *I);
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ClauseValue *V) {
  XMLElement *Own = Handler->newRetElement("VALUES");
  if (V->getPhraseValSize() != 0)
    for (auto I = V->getPhraseValBegin(), E = V->getPhraseValEnd(); I != E;
         ++I)
      appendNodeChild(Own, *I);
  Handler->setRetElement(Own);
}

// A single value has only MIN; a THRU range has MIN and MAX. The tags are
// the ones OCCURS uses.
void XMLOstrel::visit(PhraseValue *P) {
  XMLElement *Own = Handler->newRetElement("VALUE_ENTRY");
  appendWrappedChild(Own, "MIN", P->getLiteral1());
  appendWrappedChild(Own, "MAX", P->getLiteral2());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ClauseCharacterType *C) {
  XMLElement *Own = Handler->newRetElement("CHARACTER_TYPE");
  appendWordChild(Own, "MODE", C->getModeType());
  appendWordChild(Own, "BY_MNEMONIC_NAME", C->getByMnemonicName());
  appendWordChild(Own, "TYPE_MNEMONIC_NAME", C->getMnemonicName());
  appendListChild(Own, "PRINTING_MODE_NAME", "WordList",
                  C->getMnemonicNameList1Size(),
                  C->getMnemonicNameList1Begin(),
                  C->getMnemonicNameList1End());
  appendWrappedChild(Own, "DEPENDING_ON", C->getDataName1());
  appendListChild(Own, "OR_PRINTING_MODE_NAME", "WordList",
                  C->getMnemonicNameList2Size(),
                  C->getMnemonicNameList2Begin(),
                  C->getMnemonicNameList2End());
  appendWrappedChild(Own, "OR_DEPENDING_ON", C->getDataName2());
  Handler->setRetElement(Own);
}

// Written as nothing: these constructs have no element of their own, and a
// caller never visits them for one.
void XMLOstrel::visit(ExDataDescription *) {}
void XMLOstrel::visit(ExecData *) {}
void XMLOstrel::visit(StrReferDescription *) {}
void XMLOstrel::visit(IDMSDataDescription *) {}
void XMLOstrel::visit(ClauseIDMSRecord *) {}
void XMLOstrel::visit(ClauseSubsLength *) {}
void XMLOstrel::visit(ClauseXMLSchema *) {}

// The entry reads these clauses through their accessors and never visits
// them; RENAMES, DATE FORMAT and GROUP-USAGE are not written at all.
void XMLOstrel::visit(ClauseRedefines *) {}
void XMLOstrel::visit(ClauseBlankWhenZero *) {}
void XMLOstrel::visit(ClauseExternal *) {}
void XMLOstrel::visit(ClauseGlobal *) {}
void XMLOstrel::visit(ClauseGroupUsage *) {}
void XMLOstrel::visit(ClauseJustified *) {}
void XMLOstrel::visit(ClausePicture *) {}
void XMLOstrel::visit(ClauseSign *) {}
void XMLOstrel::visit(ClauseSynchronized *) {}
void XMLOstrel::visit(ClauseBasedOn *) {}
void XMLOstrel::visit(ClausePrintingPosition *) {}
void XMLOstrel::visit(ClauseFujitsuType *) {}
void XMLOstrel::visit(ClauseTypeDef *) {}
void XMLOstrel::visit(ClauseUsage *) {}
void XMLOstrel::visit(ClauseRenames *) {}
void XMLOstrel::visit(ClauseDateFormat *) {}

} // namespace korvid
