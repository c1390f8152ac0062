//===- Program.cpp - The root element and one element per program ---------===//

#include "korvid/XMLOstrel.h"
#include "korvid/ParseTree.h"

#include <tinyxml2.h>

using tinyxml2::XMLElement;

namespace korvid {

/// Elements that stand for no node of the tree carry a zero location in the
/// program document, so a consumer finds the same attributes everywhere.
static void setZeroLocation(XMLHandler *H, XMLElement *E) {
  H->setAttribute(E, "lbl", 0);
  H->setAttribute(E, "lbc", 0);
  H->setAttribute(E, "lel", 0);
  H->setAttribute(E, "lec", 0);
}

void XMLOstrel::appendMissingEntries(XMLElement *Root, Program *P,
                                     bool Located) {
  for (CopybookInformation *C : P->getMissingCopybookList()) {
    XMLElement *M = Handler->newRetElement("MISSING");
    Handler->setAttribute(M, "TYPE", "COPYBOOK");
    XMLElement *R = Handler->newRetElement("RESOURCE");
    Handler->setAttribute(R, "NAME", C->CopybookName.c_str());
    Handler->setAttribute(R, "FROM", C->FromFile.c_str());
    // The COPY statement is one line: it is both the start and the end.
    Handler->setAttribute(R, "ST_LINE", C->Line);
    Handler->setAttribute(R, "END_LINE", C->Line);
    if (Located)
      setZeroLocation(Handler, R);
    Handler->appendChildLast(R, M);
    if (Located)
      setZeroLocation(Handler, M);
    Handler->appendChildLast(M, Root);
  }
}

void XMLOstrel::visit(Program *P) {
  XMLElement *Own = Handler->newRetElement("COBOL_SOURCE");
  Handler->setAttribute(Own, "FILE", P->getInputName().c_str());
  appendMissingEntries(Own, P, /*Located=*/true);

  if (P->getSourceUnitListSize() != 0)
    for (auto I = P->getSourceUnitListBegin(), E = P->getSourceUnitListEnd();
         I != E; ++I)
      appendNodeChild(Own, *I);

  // The file table is complete only now that every program was written.
  // A copybook that was used is listed once, as COPYBOOK, not as FILEINFO.
  for (CopybookInformation *C : P->getCopyTargetList()) {
    int Id = Handler->getFileId(C->CopybookName);
    if (Id == 0)
      continue;
    Handler->deleteFileName(C->CopybookName);
    XMLElement *Entry = Handler->newRetElement("COPYBOOK");
    Handler->setAttribute(Entry, "NAME", C->CopybookName.c_str());
    Handler->setAttribute(Entry, "FROM", C->FromFile.c_str());
    Handler->setAttribute(Entry, "FILE_ID", Id);
    setZeroLocation(Handler, Entry);
    Handler->appendChildLast(Entry, Own);
  }
  for (const auto &File : Handler->getFileNameMap()) {
    XMLElement *Entry = Handler->newRetElement("FILEINFO");
    Handler->setAttribute(Entry, "NAME", File.first.c_str());
    Handler->setAttribute(Entry, "FILE_ID", File.second);
    Handler->appendChildLast(Entry, Own);
  }
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(SourceUnit *U) {
  XMLElement *Own = Handler->newRetElement("PROGRAM");
  appendNodeChild(Own, U->getIDDivision());
  appendNodeChild(Own, U->getEnvironmentDivision());
  appendNodeChild(Own, U->getDataDivision());
  appendNodeChild(Own, U->getProcDiv());
  if (U->getNestedListSize() != 0)
    for (auto I = U->getNestedListBegin(), E = U->getNestedListEnd(); I != E;
         ++I)
      appendNodeChild(Own, *I);
  Handler->setRetElement(Own);
}

// The END PROGRAM phrase is not part of the document.
void XMLOstrel::visit(EndProgramPhrase *) {}

} // namespace korvid
