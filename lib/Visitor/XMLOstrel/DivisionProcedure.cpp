//===- DivisionProcedure.cpp - The procedure division -------------===//

#include "korvid/XMLOstrel.h"
#include "korvid/ParseTree.h"

#include <tinyxml2.h>

#include <cassert>
#include <vector>

using tinyxml2::XMLElement;

namespace korvid {

/// Appends the statements of every sentence in [Begin, End) to \p Out,
/// null statements included.
template <class It>
static void collectSentences(std::vector<Statement *> &Out, unsigned long Size,
                             It Begin, It End) {
  if (Size == 0)
    return;
  for (It I = Begin; I != End; ++I) {
    Sentence *Sent = *I;
    if (!Sent || Sent->getStmtSize() == 0)
      continue;
    Out.insert(Out.end(), Sent->getStmtBegin(), Sent->getStmtEnd());
  }
}

/// Appends the statements of every paragraph in [Begin, End) to \p Out.
template <class It>
static void collectParagraphs(std::vector<Statement *> &Out,
                              unsigned long Size, It Begin, It End) {
  if (Size == 0)
    return;
  for (It I = Begin; I != End; ++I)
    if (Paragraph *Para = *I)
      collectSentences(Out, Para->getSentSize(), Para->getSentBegin(),
                       Para->getSentEnd());
}

// The division is written flat: every statement directly under it, with no
// section, paragraph or sentence elements and no procedure names. The
// statements are gathered division sentences first, then division
// paragraphs, then per section its paragraphs before its own sentences;
// ordered insertion restores source order.
void XMLOstrel::visit(ProcedureDivision *D) {
  XMLElement *Own = Handler->newRetElement("PROCEDURE_DIVISION");
  appendNodeChild(Own, D->getParameters());

  std::vector<Statement *> Stmts;
  collectSentences(Stmts, D->getSentSize(), D->getSentBegin(),
                   D->getSentEnd());
  collectParagraphs(Stmts, D->getParaSize(), D->getParaBegin(),
                    D->getParaEnd());
  if (D->getSectSize() != 0)
    for (auto I = D->getSectBegin(), E = D->getSectEnd(); I != E; ++I) {
      Section *Sect = *I;
      if (!Sect)
        continue;
      collectParagraphs(Stmts, Sect->getParaSize(), Sect->getParaBegin(),
                        Sect->getParaEnd());
      collectSentences(Stmts, Sect->getSentSize(), Sect->getSentBegin(),
                       Sect->getSentEnd());
    }

  // Error-recovery statements are dropped. A statement that writes nothing
  // (a string reference) is not filtered: whatever element the slot still
  // holds is located at it and placed again.
  for (Statement *S : Stmts)
    if (S && S->getType() != STMT_ERR_RECOV)
      appendNodeChild(Own, S);
  Handler->setRetElement(Own);
}

// Written as nothing: these constructs have no element of their own, and a
// caller never visits them for one.
void XMLOstrel::visit(Declaratives *) {}
void XMLOstrel::visit(DeclarativesSection *) {}

// The structural visits below are not used by the division, which writes
// its statements flat; a caller that visits a section directly gets them.

void XMLOstrel::visit(Section *S) {
  XMLElement *Own = Handler->newRetElement("SECTION");
  if (Word *Name = S->getName())
    Handler->setAttribute(Own, "NAME", Name->getWordData().c_str());
  for (auto I = S->getSentBegin(), E = S->getSentEnd(); I != E; ++I)
    appendNodeChild(Own, *I);
  for (auto I = S->getParaBegin(), E = S->getParaEnd(); I != E; ++I)
    appendNodeChild(Own, *I);
  Handler->setRetElement(Own);
}

void XMLOstrel::visit(Paragraph *P) {
  XMLElement *Own = Handler->newRetElement("PARAGRAPH");
  if (Word *Name = P->getName()) {
    Handler->setAttribute(Own, "NAME", Name->getWordData().c_str());
    appendWordChild(Own, "NAME", Name);
  }
  for (auto I = P->getSentBegin(), E = P->getSentEnd(); I != E; ++I)
    appendNodeChild(Own, *I);
  Handler->setRetElement(Own);
}

// No element: the slot is left holding the last statement's element, which
// the caller locates at the whole sentence. Earlier statements of the
// sentence are visited but placed nowhere.
void XMLOstrel::visit(Sentence *S) {
  for (auto I = S->getStmtBegin(), E = S->getStmtEnd(); I != E; ++I)
    visit(*I);
}

} // namespace korvid
