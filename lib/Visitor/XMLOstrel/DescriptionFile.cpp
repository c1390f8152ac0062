//===- DescriptionFile.cpp - File description entries ---------------------===//

#include "korvid/XMLOstrel.h"
#include "korvid/ParseTree.h"

#include <tinyxml2.h>

#include <cassert>

using tinyxml2::XMLElement;

namespace korvid {

// The clauses are written in a fixed order of their own (RECORD before
// BLOCK, whatever the source order), then the record descriptions.
void XMLOstrel::visit(FileDescription *F) {
  XMLElement *Own = Handler->newRetElement("FILE_DESC");
  appendWordChild(Own, "TYPE", F->getFDWord());
  appendWordChild(Own, "NAME", F->getFileName());
  if (ClauseExternalFile *C = F->getExternal())
    appendTextChild(Own, "EXTERNAL", C, "TRUE");
  if (ClauseGlobalFile *C = F->getGlobal())
    appendTextChild(Own, "GLOBAL", C, "TRUE");
  appendNodeChild(Own, F->getRecord());
  appendNodeChild(Own, F->getBlock());
  appendNodeChild(Own, F->getLabel());
  if (ClauseRecordingMode *C = F->getRecordingMode())
    appendWordChild(Own, "RECORDING_MODE", C->getRecordingMode());
  appendNodeChild(Own, F->getLinage());
  appendNodeChild(Own, F->getDataRecord());
  if (ClauseCodeSet *C = F->getCodeSet())
    appendWordChild(Own, "CODE_SET", C->getAlphabetName());
  // The ALL and NORMAL forms reuse the list's tag, as a plain wrapper
  // without list attributes.
  if (ClauseReport *C = F->getReport()) {
    appendListChild(Own, "REPORTNAME_LIST", "WordList",
                    C->getReportNameListSize(), C->getReportNameListBegin(),
                    C->getReportNameListEnd());
    appendWrappedChild(Own, "REPORTNAME_LIST", C->getAllWord());
  }
  if (ClauseRwStyle *C = F->getStyle()) {
    appendListChild(Own, "STYLENAME_LIST", "WordList",
                    C->getStyleNameListSize(), C->getStyleNameListBegin(),
                    C->getStyleNameListEnd());
    appendWrappedChild(Own, "STYLENAME_LIST", C->getNormalWord());
  }
  if (F->getOrderedListSize() != 0)
    acceptDataList(F->getOrderedListSize(), F->getOrderedListBegin(),
                   F->getOrderedListEnd(), Own);
  Handler->setRetElement(Own);
}

// CHARACTERS and RECORDS share the tag TYPE; their text tells them apart.
void XMLOstrel::visit(ClauseBlock *B) {
  XMLElement *Own = Handler->newRetElement("BLOCK_CONTAINS_INFO");
  appendWordChild(Own, "TYPE", B->getCharacters());
  appendWordChild(Own, "TYPE", B->getRecords());
  appendWrappedChild(Own, "MIN", B->getMinLength());
  appendWrappedChild(Own, "MAX", B->getMaxLength());
  Handler->setRetElement(Own);
}

// The word CHARACTERS of RECORD CONTAINS is not written.
void XMLOstrel::visit(ClauseRecord *R) {
  XMLElement *Own = Handler->newRetElement("RECORD_CONTAINS_INFO");
  if (Word *Varying = R->getVaryingWord())
    appendTextChild(Own, "VARYING", Varying, "TRUE");
  appendWrappedChild(Own, "MIN", R->getMinLength());
  appendWrappedChild(Own, "MAX", R->getMaxLength());
  appendWrappedChild(Own, "DEPENDING_ON", R->getDependingOn());
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ClauseLabel *L) {
  XMLElement *Own = Handler->newRetElement("LABEL_INFO");
  for (auto I = L->getDataNameListBegin(), E = L->getDataNameListEnd(); I != E;
       ++I)
    appendWrappedChild(Own, "DATA_ENTRY", *I);
  appendWordChild(Own, "TYPE", L->getType());
  Handler->setRetElement(Own);
}

// One wrapper per record name, with no list container.
void XMLOstrel::visit(ClauseDataRecord *D) {
  XMLElement *Own = Handler->newRetElement("DATA_RECORD");
  for (auto I = D->getDataRecordListBegin(), E = D->getDataRecordListEnd();
       I != E; ++I)
    appendWrappedChild(Own, "RECORD", *I);
  Handler->setRetElement(Own);
}

// FOOTING, TOP and BOTTOM are located at the expression they hold, not at
// their phrase.
void XMLOstrel::visit(ClauseLinage *L) {
  XMLElement *Own = Handler->newRetElement("LINAGE_ENTRY");
  appendWrappedChild(Own, "LINES", L->getNumOfLines());
  if (LinageFooting *P = L->getWithFootingAt())
    appendWrappedChild(Own, "FOOTING", P->getExpr());
  if (LinageTop *P = L->getLineAtTop())
    appendWrappedChild(Own, "TOP", P->getExpr());
  if (LinageBottom *P = L->getLineAtBottom())
    appendWrappedChild(Own, "BOTTOM", P->getExpr());
  Handler->setRetElement(Own);
}

// Written as nothing: these constructs have no element of their own, and a
// caller never visits them for one.
void XMLOstrel::visit(ExFileDescription *) {}

// The file description reads these clauses through their accessors and
// never visits them; VALUE OF is not written at all.
void XMLOstrel::visit(ClauseExternalFile *) {}
void XMLOstrel::visit(ClauseGlobalFile *) {}
void XMLOstrel::visit(ValueOfElem *) {}
void XMLOstrel::visit(ClauseValueOf *) {}
void XMLOstrel::visit(ClauseRecordingMode *) {}
void XMLOstrel::visit(LinageFooting *) {}
void XMLOstrel::visit(LinageTop *) {}
void XMLOstrel::visit(LinageBottom *) {}
void XMLOstrel::visit(ClauseCodeSet *) {}
void XMLOstrel::visit(ClauseReport *) {}
void XMLOstrel::visit(ClauseRwStyle *) {}

} // namespace korvid
