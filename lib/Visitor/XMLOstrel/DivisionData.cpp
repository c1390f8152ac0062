//===- DivisionData.cpp - The data division and its sections -------------===//

#include "korvid/XMLOstrel.h"
#include "korvid/ParseTree.h"

#include <tinyxml2.h>

#include <cassert>

using tinyxml2::XMLElement;

namespace korvid {

// The sections are visited in a fixed order; ordered insertion then puts
// them in source order.
void XMLOstrel::visit(DataDivision *D) {
  XMLElement *Own = Handler->newRetElement("DATA_DIVISION");
  appendNodeChild(Own, D->getSectionReport());
  appendNodeChild(Own, D->getSectionFile());
  appendNodeChild(Own, D->getSectionWork());
  appendNodeChild(Own, D->getSectionLocal());
  appendNodeChild(Own, D->getSectionLink());
  Handler->setRetElement(Own);
}

// The storage sections write their entries flat, side by side; each entry
// carries its level for a reader that wants the hierarchy back.
void XMLOstrel::visit(WorkingSection *S) {
  XMLElement *Own = Handler->newRetElement("WORKING_STORAGE_SECTION");
  if (S->getOrderedListSize() != 0)
    acceptDataList(S->getOrderedListSize(), S->getOrderedListBegin(),
                   S->getOrderedListEnd(), Own);
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(LocalSection *S) {
  XMLElement *Own = Handler->newRetElement("LOCAL_STORAGE_SECTION");
  if (S->getOrderedListSize() != 0)
    acceptDataList(S->getOrderedListSize(), S->getOrderedListBegin(),
                   S->getOrderedListEnd(), Own);
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(LinkageSection *S) {
  XMLElement *Own = Handler->newRetElement("LINKAGE_SECTION");
  if (S->getOrderedListSize() != 0)
    acceptDataList(S->getOrderedListSize(), S->getOrderedListBegin(),
                   S->getOrderedListEnd(), Own);
  Handler->setRetElement(Own);
}

std::list<DataDescription *>
XMLOstrel::getChildList(ExDataDescription *Entry) {
  std::list<DataDescription *> Result;
  Result.push_back(Entry);
  // The children are counted in 32 bits.
  if (Entry && static_cast<unsigned>(Entry->getChildrenSize()) != 0)
    for (auto I = Entry->getChildrenBegin(), E = Entry->getChildrenEnd();
         I != E; ++I)
      Result.splice(Result.end(), getChildList(*I));
  return Result;
}

// Ordinary entries bring all their subordinates along, in pre-order; EXEC
// blocks stand among them as they are. Every other kind is dropped. The
// lists live only for this walk.
void XMLOstrel::acceptDataList(unsigned long Count,
                               NodeList<DataDescription>::const_iterator Begin,
                               NodeList<DataDescription>::const_iterator End,
                               XMLElement *Parent) {
  std::list<DataDescription *> Flat;
  if (Count != 0)
    for (auto I = Begin; I != End; ++I) {
      DataDescription *Entry = *I;
      if (!Entry)
        continue;
      switch (Entry->getDescType()) {
      case DESC_NORMAL:
        Flat.splice(Flat.end(),
                    getChildList(static_cast<ExDataDescription *>(Entry)));
        break;
      case DESC_EXEC_SQL:
      case DESC_EXEC_SQL_INCLUDE:
      case DESC_EXEC_CICS:
        Flat.push_back(Entry);
        break;
      default:
        break;
      }
    }
  for (DataDescription *Entry : Flat)
    appendNodeChild(Parent, Entry);
  Handler->setRetElement(Parent);
}

void XMLOstrel::visit(FileSection *S) {
  XMLElement *Own = Handler->newRetElement("FILE_SECTION");
  if (S->getFileSectionSize() != 0)
    for (auto I = S->getFileSectionBegin(), E = S->getFileSectionEnd(); I != E;
         ++I)
      appendWrappedChild(Own, "FILE_ENTRY", *I);
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(ReportSection *S) {
  XMLElement *Own = Handler->newRetElement("REPORT_SECTION");
  if (S->getDescListReportSize() != 0)
    for (auto I = S->getDescListReportBegin(), E = S->getDescListReportEnd();
         I != E; ++I)
      appendWrappedChild(Own, "REPORT_ENTRY", *I);
  Handler->setRetElement(Own);
}

// Written as nothing: these constructs have no element of their own, and a
// caller never visits them for one.
void XMLOstrel::visit(IDMSSchemaSection *) {}
void XMLOstrel::visit(IDMSMapSection *) {}
void XMLOstrel::visit(IDMSControlSection *) {}

} // namespace korvid
