//===- DivisionEnvironment.cpp - The environment division -------------===//

#include "korvid/XMLOstrel.h"
#include "korvid/ParseTree.h"

#include <tinyxml2.h>

#include <cassert>
#include <string>

using tinyxml2::XMLElement;

namespace korvid {

/// Stamps \p E with \p N's location, except that the expanded file name is
/// \p N's printable location ("file:line:column"). Symbolic characters and
/// assignment names carry this on purpose; the string enters the file table
/// like any other file name.
static void stampWithLocString(XMLHandler *H, XMLElement *E, Node *N) {
  H->attributeLoc(E, N->getBeginLineNo(), N->getBeginCharPos(),
                  N->getEndLineNo(), N->getEndCharPos(), N->getLocString(),
                  N->getBeginLineNoOrg(), N->getBeginCharPosOrg(),
                  N->getEndLineNoOrg(), N->getEndCharPosOrg(),
                  N->getFileNameOrgStr());
}

//===----------------------------------------------------------------------===//
// The division
//===----------------------------------------------------------------------===//

void XMLOstrel::visit(EnvironmentDivision *D) {
  XMLElement *Own = Handler->newRetElement("ENVIRONMENT_DIVISION");
  appendNodeChild(Own, D->getConfigurationSection());
  appendNodeChild(Own, D->getInputOutputSection());
  Handler->setRetElement(Own);
}

//===----------------------------------------------------------------------===//
// CONFIGURATION SECTION
//===----------------------------------------------------------------------===//

void XMLOstrel::visit(ConfigurationSection *S) {
  XMLElement *Own = Handler->newRetElement("CONFIGURATION_SECTION");
  appendNodeChild(Own, S->getSourceComputer());
  appendNodeChild(Own, S->getObjectComputer());
  appendNodeChild(Own, S->getSpecialNames());
  Handler->setRetElement(Own);
}

// The source computer's name is written normalised, while OBJECT-COMPUTER
// writes its name as spelled.
void XMLOstrel::visit(ParaSourceComputer *P) {
  XMLElement *Own = Handler->newRetElement("SOURCE_COMPUTER");
  if (Word *Name = P->getComputerName())
    appendTextChild(Own, "NAME", Name, Name->getWordData().c_str());
  if (Word *Debugging = P->getDebuggingWord())
    appendTextChild(Own, "DEBUGGING_MODE", Debugging, "TRUE");
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ParaObjectComputer *P) {
  XMLElement *Own = Handler->newRetElement("OBJECT_COMPUTER");
  appendWordChild(Own, "NAME", P->getComputerName());
  appendNodeChild(Own, P->getMemSize());
  appendNodeChild(Own, P->getSequence());
  appendNodeChild(Own, P->getSegment());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ClauseMemorySize *C) {
  XMLElement *Own = Handler->newRetElement("MEMORY");
  appendWordChild(Own, "TYPE", C->getSizeUnit());
  appendNodeChild(Own, C->getSize());
  Handler->setRetElement(Own);
}

// "Sequence" is the one mixed-case tag of this division; consumers match it
// as it is.
void XMLOstrel::visit(ClauseSequence *C) {
  XMLElement *Own = Handler->newRetElement("COLLATING_SEQUENCE");
  appendWordChild(Own, "Sequence", C->getSequence());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ClauseSegmentLimit *C) {
  XMLElement *Own = Handler->newRetElement("SEGMENT");
  appendNodeChild(Own, C->getLimit());
  Handler->setRetElement(Own);
}

// Each kind of clause is its own list; the entries stand side by side, with
// no list container.
void XMLOstrel::visit(ParaSpecialNames *P) {
  XMLElement *Own = Handler->newRetElement("SPECIAL_NAMES");
  for (auto I = P->getEnvNameListBegin(), E = P->getEnvNameListEnd(); I != E;
       ++I)
    appendNodeChild(Own, *I);
  for (auto I = P->getAlphabetListBegin(), E = P->getAlphabetListEnd();
       I != E; ++I)
    appendNodeChild(Own, *I);
  for (auto I = P->getSymbolicListBegin(), E = P->getSymbolicListEnd();
       I != E; ++I)
    appendNodeChild(Own, *I);
  for (auto I = P->getClassListBegin(), E = P->getClassListEnd(); I != E; ++I)
    appendNodeChild(Own, *I);
  for (auto I = P->getCurrencyListBegin(), E = P->getCurrencyListEnd();
       I != E; ++I)
    appendNodeChild(Own, *I);
  if (ClauseDecimalPoint *Comma = P->getDecimalPoint())
    appendTextChild(Own, "DECIMAL_POINT_COMMA", Comma, "TRUE");
  Handler->setRetElement(Own);
}

// ON and OFF hold the condition name, located at that name.
void XMLOstrel::visit(ClauseEnvName *C) {
  XMLElement *Own = Handler->newRetElement("ENVIRONMENT_NAME_ENTRY");
  appendWordChild(Own, "ENVIRONMENT_NAME", C->getEnvironmentName());
  appendWordChild(Own, "MNEMONIC_NAME", C->getMnemonicName());
  if (PhrsOnOff *On = C->getOnCondition())
    appendWordChild(Own, "ON", On->getCondition());
  if (PhrsOnOff *Off = C->getOffCondition())
    appendWordChild(Own, "OFF", Off->getCondition());
  Handler->setRetElement(Own);
}

// Read by the environment-name entry; no element of its own.
void XMLOstrel::visit(PhrsOnOff *) {}

// The alphabet's name follows its character scopes on purpose.
void XMLOstrel::visit(ClauseAlphabet *C) {
  XMLElement *Own = Handler->newRetElement("ALPHABET_ENTRY");
  for (auto I = C->getThruListBegin(), E = C->getThruListEnd(); I != E; ++I)
    appendNodeChild(Own, *I);
  appendWordChild(Own, "TYPE", C->getTypeWord());
  appendWordChild(Own, "ALPHABET_NAME", C->getAlphabetName());
  Handler->setRetElement(Own);
}

// A scope always reads as a range: a single literal is written as running
// from itself through itself.
void XMLOstrel::visit(PhrsAlphabetThru *P) {
  XMLElement *Own = Handler->newRetElement("SCOPE");
  LiteralExpression *From = P->getLiteral();
  appendWrappedChild(Own, "FROM", From);
  if (LiteralExpression *Thru = P->getThruLiteral())
    appendWrappedChild(Own, "THRU", Thru);
  else
    appendWrappedChild(Own, "THRU", From);
  // The ALSO literals stand bare inside the scope.
  for (auto I = P->getAlsoListBegin(), E = P->getAlsoListEnd(); I != E; ++I)
    if (PhrsAlphabetAlso *Also = *I)
      appendNodeChild(Own, Also->getLiteral());
  Handler->setRetElement(Own);
}

// Read by the scope; no element of its own.
void XMLOstrel::visit(PhrsAlphabetAlso *) {}

void XMLOstrel::visit(ClauseSymbolic *C) {
  XMLElement *Own = Handler->newRetElement("SYMBOLIC_NAME");
  for (auto I = C->getSymbolicListBegin(), E = C->getSymbolicListEnd();
       I != E; ++I)
    appendNodeChild(Own, *I);
  Handler->setRetElement(Own);
}

// Unlike every other visit, this one stamps its own element, with the
// printable location standing for the expanded file name. All names come
// before all integers; they pair by position only.
void XMLOstrel::visit(PhrsSymbolic *P) {
  XMLElement *Own = Handler->newRetElement("SYMBOLIC_DEF");
  stampWithLocString(Handler, Own, P);
  for (auto I = P->getSourceListBegin(), E = P->getSourceListEnd(); I != E;
       ++I)
    appendWordChild(Own, "CHARACTER", *I);
  for (auto I = P->getIntegerListBegin(), E = P->getIntegerListEnd(); I != E;
       ++I)
    appendNodeChild(Own, *I);
  Handler->setRetElement(Own);
}

// The class name follows its scopes.
void XMLOstrel::visit(ClauseClass *C) {
  XMLElement *Own = Handler->newRetElement("CLASS_NAME_ENTRY");
  for (auto I = C->getLiteralListBegin(), E = C->getLiteralListEnd(); I != E;
       ++I)
    appendNodeChild(Own, *I);
  appendWordChild(Own, "NAME", C->getClassName());
  Handler->setRetElement(Own);
}

// Unlike an alphabet's scope, a single literal gives CLASS_FROM only.
void XMLOstrel::visit(PhrsClass *P) {
  XMLElement *Own = Handler->newRetElement("CLASS_SCOPE");
  appendWrappedChild(Own, "CLASS_FROM", P->getLiteral());
  appendWrappedChild(Own, "CLASS_THRU", P->getThruLiteral());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ClauseCurrency *C) {
  XMLElement *Own = Handler->newRetElement("CURRENCY_ENTRY");
  appendWrappedChild(Own, "SYMBOL", C->getSignLiteral());
  appendWrappedChild(Own, "PIC_SYMBOL", C->getSymbolLiteral());
  Handler->setRetElement(Own);
}

// Written by SPECIAL-NAMES as a flag; no element of its own.
void XMLOstrel::visit(ClauseDecimalPoint *) {}

//===----------------------------------------------------------------------===//
// INPUT-OUTPUT SECTION and FILE-CONTROL
//===----------------------------------------------------------------------===//

void XMLOstrel::visit(InputOutputSection *S) {
  XMLElement *Own = Handler->newRetElement("IO_SECTION");
  appendNodeChild(Own, S->getFileControl());
  appendNodeChild(Own, S->getIOControl());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ParaFileControl *P) {
  XMLElement *Own = Handler->newRetElement("FILE_CONTROL_PARAGRAPH");
  for (auto I = P->getFileControlItemListBegin(),
            E = P->getFileControlItemListEnd();
       I != E; ++I)
    appendNodeChild(Own, *I);
  Handler->setRetElement(Own);
}

// The clauses are written in a fixed order of their own: the alternate keys
// first, before the file name, wherever they stood. SELECT, RESERVE,
// ORGANIZATION and ACCESS MODE have no element of their own: their word or
// literal is written straight under the entry. PASSWORD is not written.
void XMLOstrel::visit(FileControlItem *F) {
  XMLElement *Own = Handler->newRetElement("FILE_CONTROL_ENTRY");
  for (auto I = F->getAlternateListBegin(), E = F->getAlternateListEnd();
       I != E; ++I)
    appendNodeChild(Own, *I);
  if (ClauseSelect *Select = F->getSelect())
    appendWordChild(Own, "FILE_NAME", Select->getFileName());
  appendNodeChild(Own, F->getAssign());
  if (ClauseReserve *Reserve = F->getReserve())
    appendNodeChild(Own, Reserve->getReserveCount());
  // ORGANIZATION and ACCESS MODE are the words as written, not the kinds
  // the parser made of them.
  if (ClauseOrganization *Organization = F->getOrganization())
    appendWordChild(Own, "ORGANIZATION",
                    Organization->getOrganizationTypeWord());
  appendNodeChild(Own, F->getPadding());
  if (ClauseAccess *Access = F->getAccess())
    appendWordChild(Own, "ACCESS_MODE", Access->getAccessMode());
  appendNodeChild(Own, F->getStatus());
  appendNodeChild(Own, F->getRecordKey());
  appendNodeChild(Own, F->getRelativeKey());
  appendNodeChild(Own, F->getRecordDelimiter());
  appendNodeChild(Own, F->getRwMode());
  appendNodeChild(Own, F->getRwDuplicate());
  appendNodeChild(Own, F->getRwType());
  appendNodeChild(Own, F->getRwFirstPage());
  Handler->setRetElement(Own);
}

// Read by the file-control entry; no element of their own.
void XMLOstrel::visit(ClauseSelect *) {}
void XMLOstrel::visit(ClauseReserve *) {}
void XMLOstrel::visit(ClauseOrganization *) {}
void XMLOstrel::visit(ClauseAccess *) {}
// A PASSWORD clause is not written at all.
void XMLOstrel::visit(ClausePassWord *) {}

// Each name is normalised and carries its printable location as the
// expanded file name, like a symbolic character.
void XMLOstrel::visit(ClauseAssign *C) {
  XMLElement *Own = Handler->newRetElement("ASSIGN_NAME_ENTRY");
  for (auto I = C->getAssignNameListBegin(), E = C->getAssignNameListEnd();
       I != E; ++I) {
    Word *Name = *I;
    if (!Name)
      continue;
    XMLElement *Entry = Handler->newElement("ASSIGN_NAME");
    stampWithLocString(Handler, Entry, Name);
    Handler->appendChildLast(Handler->newText(Name->getWordData().c_str()),
                             Entry);
    Handler->appendChildOrdered(Entry, Own);
  }
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ClausePadding *C) {
  XMLElement *Own = Handler->newRetElement("PADDING_CHAR");
  appendNodeChild(Own, C->getCharacter());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ClauseStatus *C) {
  XMLElement *Own = Handler->newRetElement("FILE_STATUS");
  appendWrappedChild(Own, "FILE_STATUS1", C->getStatus_1());
  appendWrappedChild(Own, "FILE_STATUS2", C->getStatus_2());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ClauseRecordKey *C) {
  XMLElement *Own = Handler->newRetElement("RECORD_KEY");
  appendNodeChild(Own, C->getDataName());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ClauseRelativeKey *C) {
  XMLElement *Own = Handler->newRetElement("RELATIVE_KEY");
  appendNodeChild(Own, C->getDataName());
  Handler->setRetElement(Own);
}

// TYPE tells STANDARD-1 (its word as written) from a named delimiter (the
// fixed text EXPRESSION, located at the name). Neither word: an empty entry.
void XMLOstrel::visit(ClauseRecordDelimiter *C) {
  XMLElement *Own = Handler->newRetElement("RECORD_DELIMITER");
  Word *Delimiter = C->getDelimiter();
  appendWrappedChild(Own, "EXPRESSION", Delimiter);
  if (Word *Standard1 = C->getStandard_1())
    appendWordChild(Own, "TYPE", Standard1);
  else if (Delimiter)
    appendTextChild(Own, "TYPE", Delimiter, "EXPRESSION");
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ClauseAlternate *C) {
  XMLElement *Own = Handler->newRetElement("ALTERNATE_KEY_ENTRY");
  appendWrappedChild(Own, "KEY", C->getDataName());
  if (Word *Duplicates = C->getDuplicatesWord())
    appendTextChild(Own, "DUPLICATE", Duplicates, "TRUE");
  Handler->setRetElement(Own);
}

// Both MODE elements hold a normalised word: the mode, then BATCH.
void XMLOstrel::visit(ClauseRwMode *C) {
  XMLElement *Own = Handler->newRetElement("REPORT_MODE_ENTRY");
  if (Word *Mode = C->getRwModeWord())
    appendTextChild(Own, "MODE", Mode, Mode->getWordData().c_str());
  if (Word *Batch = C->getBatchWord())
    appendTextChild(Own, "MODE", Batch, Batch->getWordData().c_str());
  appendNodeChild(Own, C->getParameters());
  Handler->setRetElement(Own);
}

// A buffering kind without a text of its own gives an empty OPTION.
void XMLOstrel::visit(ClauseRwDuplicate *C) {
  XMLElement *Own = Handler->newRetElement("REPORT_DUPLICATE_ENTRY");
  appendWrappedChild(Own, "TIMES", C->getTimes());
  Word *With = C->getWithWord();
  if (C->getType() != RW_DUPLICATE_NONE && With) {
    const char *Option = "";
    if (C->getType() == RW_DUPLICATE_PAGE_BUFFER)
      Option = "WITH_PAGE_BUFFER";
    else if (C->getType() == RW_DUPLICATE_RANDOM_PAGE)
      Option = "WITH_RANDOM_PAGE";
    appendTextChild(Own, "OPTION", With, Option);
  }
  Handler->setRetElement(Own);
}

// A type word is written the other way round from every other element: the
// word is the tag and "TYPE" the text.
void XMLOstrel::visit(ClauseRwType *C) {
  XMLElement *Own = Handler->newRetElement("REPORT_TYPE_ENTRY");
  if (Word *None = C->getNoneWord())
    appendTextChild(Own, "TYPE", None, "NONE");
  Word *Deferred = C->getDeferredWord();
  if (Word *Type = C->getType()) {
    appendTextChild(Own, Type->getWordData().c_str(), Type, "TYPE");
    if (Deferred)
      appendTextChild(Own, "DEFERRED", Deferred, "TRUE");
  } else if (Deferred) {
    appendTextChild(Own, "TYPE", Deferred, "DEFERRED");
  }
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ClauseRwFirstPage *C) {
  XMLElement *Own = Handler->newRetElement("REPORT_FIRST_PAGE_ENTRY");
  if (Word *No = C->getNoWord())
    appendTextChild(Own, "NO_OPTION", No, "TRUE");
  Handler->setRetElement(Own);
}

//===----------------------------------------------------------------------===//
// I-O-CONTROL
//===----------------------------------------------------------------------===//

void XMLOstrel::visit(ParaIOControl *P) {
  XMLElement *Own = Handler->newRetElement("IO_CONTROL");
  for (auto I = P->getIOControlItemListBegin(),
            E = P->getIOControlItemListEnd();
       I != E; ++I)
    appendNodeChild(Own, *I);
  Handler->setRetElement(Own);
}

// APPLY WRITE-ONLY is not written.
void XMLOstrel::visit(IOControlItem *I) {
  XMLElement *Own = Handler->newRetElement("IO_CONTROL_ENTRY");
  appendNodeChild(Own, I->getRerun());
  appendNodeChild(Own, I->getSame());
  appendNodeChild(Own, I->getMultipleFile());
  Handler->setRetElement(Own);
}

// TYPE says what triggers the rerun: a record count (located at the count,
// which follows it bare) or the end of a reel or unit. Any other word gives
// no TYPE.
void XMLOstrel::visit(ClauseRerun *C) {
  XMLElement *Own = Handler->newRetElement("RERUN");
  appendWordChild(Own, "ON", C->getFileName1());
  NumericLiteralExpression *Count = C->getRecordCount();
  if (Count) {
    appendTextChild(Own, "TYPE", Count, "RECORD");
  } else if (Word *ReelUnit = C->getReelUnit()) {
    const std::string &Kind = ReelUnit->getWordData();
    if (Kind == "REEL")
      appendTextChild(Own, "TYPE", ReelUnit, "END_REEL");
    else if (Kind == "UNIT")
      appendTextChild(Own, "TYPE", ReelUnit, "END_UNIT");
  }
  appendNodeChild(Own, Count);
  appendWordChild(Own, "FILE_NAME", C->getFileName2());
  Handler->setRetElement(Own);
}

// The kind of area (RECORD, SORT, SORT-MERGE) is not written.
void XMLOstrel::visit(ClauseSame *C) {
  XMLElement *Own = Handler->newRetElement("SAME");
  for (auto I = C->getFileNameListBegin(), E = C->getFileNameListEnd();
       I != E; ++I)
    appendWordChild(Own, "FILE", *I);
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ClauseMultipleFile *C) {
  XMLElement *Own = Handler->newRetElement("MULTIPLE");
  for (auto I = C->getMultipleFileListBegin(),
            E = C->getMultipleFileListEnd();
       I != E; ++I)
    appendNodeChild(Own, *I);
  Handler->setRetElement(Own);
}

// One file of MULTIPLE FILE TAPE; SAME's file words share the tag.
void XMLOstrel::visit(PrsMultipleFile *P) {
  XMLElement *Own = Handler->newRetElement("FILE");
  appendWordChild(Own, "NAME", P->getFileName());
  appendWrappedChild(Own, "POSITION", P->getPosition());
  Handler->setRetElement(Own);
}

// An APPLY WRITE-ONLY clause is not written.
void XMLOstrel::visit(ClauseApplyWriteOnly *) {}

} // namespace korvid
