//===- Node.cpp - Words and qualified names -------------===//

#include "korvid/XMLOstrel.h"
#include "korvid/ParseTree.h"

#include <tinyxml2.h>

#include <cassert>

using tinyxml2::XMLElement;

namespace korvid {

void XMLOstrel::visit(Word *W) {
  XMLElement *Own = Handler->newRetElement("WORD");
  Handler->appendChildLast(Handler->newText(W->getWordData().c_str()), Own);
  Handler->setRetElement(Own);
}

// Only the rear word of the last qualifier level survives: the text names
// the outermost qualifier, not the joined chain.
void XMLOstrel::visit(QualifiedWord *Q) {
  XMLElement *Own = Handler->newRetElement("QUALIFIED");
  std::string Text;
  for (QualifiedWord *F = Q; F; F = F->getFrontWord()) {
    Word *Rear = F->getRearWord();
    Text = Rear ? Rear->getWordDataOrg() : std::string();
  }
  Handler->appendChildLast(Handler->newText(Text.c_str()), Own);
  Handler->setRetElement(Own);
}

// The base class itself is never written.
void XMLOstrel::visit(Node *) {}

} // namespace korvid
