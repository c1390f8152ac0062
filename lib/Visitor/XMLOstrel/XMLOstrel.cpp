//===- XMLOstrel.cpp - Emitter object, entry points and shared helpers ----===//
//
// The three documents the emitter writes, and the few emission helpers out
// of which every visit is built.
//
//===----------------------------------------------------------------------===//

#include "korvid/XMLOstrel.h"
#include "korvid/ParseTree.h"

#include <tinyxml2.h>

using tinyxml2::XMLElement;

namespace korvid {

XMLOstrel::XMLOstrel() : Handler(new XMLHandler()) { initialize(); }

XMLOstrel::~XMLOstrel() { delete Handler; }

void XMLOstrel::initialize() {}

//===----------------------------------------------------------------------===//
// Entry points
//===----------------------------------------------------------------------===//

void XMLOstrel::EmitXML(Program *P, const char *Path, bool Strip) {
  Handler->appendCommentToDoc(P->getInputName().c_str());
  initialize();
  visit(P);
  Handler->appendElementToDoc(Handler->getRetElement());
  if (Strip)
    Handler->removeAttributeLoc();
  Handler->saveFile(Path);
}

void XMLOstrel::EmitMissingCopybook(Program *P, const char *Path) {
  Handler->appendCommentToDoc(P->getInputName().c_str());
  initialize();
  Handler->removeAttributeLoc();
  XMLElement *Root = Handler->newRetElement("COBOL_SOURCE");
  Handler->setAttribute(Root, "FILE", P->getInputName().c_str());
  appendMissingEntries(Root, P, /*Located=*/false);
  Handler->setRetElement(Root);
  Handler->appendElementToDoc(Handler->getRetElement());
  Handler->saveFile(Path);
}

void XMLOstrel::EmitErrorCase(Program *P, const char *Path) {
  Handler->appendCommentToDoc(P->getInputName().c_str());
  initialize();
  Handler->removeAttributeLoc();
  XMLElement *Root = Handler->newRetElement("COBOL_SOURCE");
  Handler->setAttribute(Root, "FILE", P->getInputName().c_str());

  // Missing copybooks first (code 1): the lines on the entry, the member's
  // name on the MISSING element inside it.
  for (CopybookInformation *C : P->getMissingCopybookList()) {
    XMLElement *E = Handler->newRetElement("ERROR_TYPE");
    Handler->setAttribute(E, "CODE", "1");
    Handler->setAttribute(E, "ST_LINE", C->Line);
    Handler->setAttribute(E, "END_LINE", C->Line);
    Handler->setAttribute(E, "FROM", C->FromFile.c_str());
    XMLElement *M = Handler->newRetElement("MISSING");
    Handler->setAttribute(M, "TYPE", "COPYBOOK");
    Handler->setAttribute(M, "NAME", C->CopybookName.c_str());
    Handler->appendChildLast(M, E);
    Handler->appendChildLast(E, Root);
  }

  // Then parse errors (code 2), placed where their text was written.
  for (ParseError *Err : P->getErrorList()) {
    XMLElement *E = Handler->newRetElement("ERROR_TYPE");
    Handler->setAttribute(E, "CODE", "2");
    Node *At = Err->getErrorNode();
    Handler->setAttribute(E, "ST_LINE", At->getBeginLineNoOrg());
    Handler->setAttribute(E, "END_LINE", At->getEndLineNoOrg());
    Handler->setAttribute(E, "FROM", At->getFileNameOrg().c_str());
    XMLElement *K = Handler->newRetElement("ERROR_KEYWORD");
    std::string Keyword = Err->getErrorString();
    XMLElement *S = Handler->newRetElement("MSG_STRING");
    std::string Message = Err->getErrorMessage();
    Handler->appendChildLast(Handler->newText(Keyword.c_str()), K);
    Handler->appendChildLast(K, E);
    Handler->appendChildLast(Handler->newText(Message.c_str()), S);
    Handler->appendChildLast(S, E);
    Handler->appendChildLast(E, Root);
  }

  Handler->setRetElement(Root);
  Handler->appendElementToDoc(Handler->getRetElement());
  Handler->saveFile(Path);
}

//===----------------------------------------------------------------------===//
// Emission helpers
//===----------------------------------------------------------------------===//

void XMLOstrel::stampLocation(XMLElement *E, Node *N) {
  Handler->attributeLoc(E, N->getBeginLineNo(), N->getBeginCharPos(),
                        N->getEndLineNo(), N->getEndCharPos(),
                        N->getFileNameStr(), N->getBeginLineNoOrg(),
                        N->getBeginCharPosOrg(), N->getEndLineNoOrg(),
                        N->getEndCharPosOrg(), N->getFileNameOrgStr());
}

void XMLOstrel::appendWordChild(XMLElement *Parent, const char *Tag,
                                Word *W) {
  if (!W)
    return;
  appendTextChild(Parent, Tag, W, std::string(W->getWordDataOrg()).c_str());
}

void XMLOstrel::appendTextChild(XMLElement *Parent, const char *Tag, Node *N,
                                const char *Text) {
  XMLElement *E = Handler->newElement(Tag);
  stampLocation(E, N);
  Handler->appendChildLast(Handler->newText(Text), E);
  Handler->appendChildOrdered(E, Parent);
}

} // namespace korvid
