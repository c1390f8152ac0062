//===- korvid/XMLOstrel.h - Parse tree to XML emitter -----------*- C++ -*-===//
//
// XMLOstrel walks the parse tree of one COBOL source file and writes it as an
// XML document, every element stamped with its position in the expanded
// source and in the source as written. From the same tree it writes two side
// documents: the copybooks that could not be found, and the errors.
//
// Each document wants an emitter of its own: the emitter's document builder
// is never cleared, so a second emit call would add to the first document.
//
// \code
//   korvid::XMLOstrel Emitter;
//   Emitter.EmitXML(&Program, "prog.xml", /*strip=*/false);
// \endcode
//
//===----------------------------------------------------------------------===//
#ifndef KORVID_XMLOSTREL_H
#define KORVID_XMLOSTREL_H

#include "korvid/ParseTree/Node.h"
#include "korvid/Visitor.h"
#include "korvid/XMLHandler.h"

#include <list>
#include <string>

namespace korvid {

class XMLOstrel : public Visitor {
public:
  XMLOstrel();
  ~XMLOstrel() override;
  XMLOstrel(const XMLOstrel &) = delete;
  XMLOstrel &operator=(const XMLOstrel &) = delete;

  /// Per-visit state would be reset here; the emitter keeps none.
  void initialize();

  /// Writes the program document of \p Program to \p Path; with \p Strip
  /// set, no element carries location attributes.
  void EmitXML(Program *Program, const char *Path, bool Strip);
  /// Writes the list of COPY members that could not be found.
  void EmitMissingCopybook(Program *Program, const char *Path);
  /// Writes the missing copybooks and the parse errors as error entries.
  void EmitErrorCase(Program *Program, const char *Path);

  /// The document builder, to learn whether the last save succeeded.
  const XMLHandler &getHandler() const { return *Handler; }

#define NODE(Class, Parent) void visit(Class *) override;
#include "korvid/ParseTree/Nodes.def"

protected:
  // --- Emission helpers every visit is built from ---------------------------
  /// Writes \p N's expanded and as-written location onto \p E.
  void stampLocation(tinyxml2::XMLElement *E, Node *N);
  /// Visits \p N, stamps the element it left and appends it under \p Parent
  /// in source order. A null \p N writes nothing.
  template <class T> void appendNodeChild(tinyxml2::XMLElement *Parent, T *N);
  /// TAG located at \p W, holding the word as written.
  void appendWordChild(tinyxml2::XMLElement *Parent, const char *Tag, Word *W);
  /// TAG located at \p N, holding the fixed \p Text.
  void appendTextChild(tinyxml2::XMLElement *Parent, const char *Tag, Node *N,
                       const char *Text);
  /// TAG located at \p N, wrapping \p N's own element.
  template <class T>
  void appendWrappedChild(tinyxml2::XMLElement *Parent, const char *Tag, T *N);
  /// A list container TAG with "size" (null items included) and "name", one
  /// child per non-null item, spanning from its first to its last item.
  /// Nothing is written for an empty list. \p Item writes one non-null item
  /// under the container; by default appendNodeChild.
  template <class It>
  void appendListChild(tinyxml2::XMLElement *Parent, const char *Tag,
                       const char *Name, unsigned long Size, It Begin, It End);
  template <class It, class ItemFn>
  void appendListChild(tinyxml2::XMLElement *Parent, const char *Tag,
                       const char *Name, unsigned long Size, It Begin, It End,
                       ItemFn Item);

  /// Copybook and missing-copybook entries of a program's root element.
  void appendMissingEntries(tinyxml2::XMLElement *Root, Program *P,
                            bool Located);

  // --- Data division ------------------------------------------------------------
  /// \p Entry followed by all its subordinate entries, in pre-order.
  std::list<DataDescription *> getChildList(ExDataDescription *Entry);
  /// Writes the entries of [Begin, End) under \p Parent, the hierarchy
  /// flattened, and leaves \p Parent in the return-element slot.
  void acceptDataList(unsigned long Count,
                      NodeList<DataDescription>::const_iterator Begin,
                      NodeList<DataDescription>::const_iterator End,
                      tinyxml2::XMLElement *Parent);
  /// The text written for a USAGE word (normalised): the long forms lose
  /// their hyphen ("COMPUTATIONAL-3" gives "COMP3"), others stay as they are.
  static std::string usageName(const std::string &Normalised);

  XMLHandler *Handler = nullptr;
};

//===----------------------------------------------------------------------===//
// Template helpers
//===----------------------------------------------------------------------===//

template <class T>
void XMLOstrel::appendNodeChild(tinyxml2::XMLElement *Parent, T *N) {
  if (!N)
    return;
  visit(N);
  tinyxml2::XMLElement *Child = Handler->getRetElement();
  stampLocation(Child, N);
  Handler->appendChildOrdered(Child, Parent);
}

template <class T>
void XMLOstrel::appendWrappedChild(tinyxml2::XMLElement *Parent,
                                   const char *Tag, T *N) {
  if (!N)
    return;
  tinyxml2::XMLElement *W = Handler->newElement(Tag);
  stampLocation(W, N);
  appendNodeChild(W, N);
  Handler->appendChildOrdered(W, Parent);
}

template <class It>
void XMLOstrel::appendListChild(tinyxml2::XMLElement *Parent, const char *Tag,
                                const char *Name, unsigned long Size, It Begin,
                                It End) {
  appendListChild(Parent, Tag, Name, Size, Begin, End,
                  [this](tinyxml2::XMLElement *L, auto *Item) {
                    appendNodeChild(L, Item);
                  });
}

template <class It, class ItemFn>
void XMLOstrel::appendListChild(tinyxml2::XMLElement *Parent, const char *Tag,
                                const char *Name, unsigned long Size, It Begin,
                                It End, ItemFn Item) {
  if (Size == 0)
    return;
  tinyxml2::XMLElement *L = Handler->newElement(Tag);
  Handler->setAttribute(L, "size", Size);
  Handler->setAttribute(L, "name", Name);
  // The first and last items lend the container its extent; a list handed
  // here must not begin or end with a null item.
  Node *First = *Begin;
  Handler->setAttribute(L, "lbl", First->getBeginLineNo());
  Handler->setAttribute(L, "lbc", First->getBeginCharPos());
  Handler->setAttribute(L, "lblo", First->getBeginLineNoOrg());
  Handler->setAttribute(L, "lbco", First->getBeginCharPosOrg());
  It LastIt = Begin;
  for (It I = Begin; I != End; ++I) {
    LastIt = I;
    if (!*I)
      continue;
    initialize();
    Item(L, *I);
    initialize();
  }
  Node *Last = *LastIt;
  Handler->setAttribute(L, "lel", Last->getEndLineNo());
  Handler->setAttribute(L, "lec", Last->getEndCharPos());
  Handler->setAttribute(L, "lelo", Last->getEndLineNoOrg());
  Handler->setAttribute(L, "leco", Last->getEndCharPosOrg());
  Handler->appendChildOrdered(L, Parent);
}

} // namespace korvid

#endif // KORVID_XMLOSTREL_H
