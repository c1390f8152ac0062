//===- tests/EmitterHarness.h - Emitting one subtree in a test -*- C++ -*-===//
//
// The two ways tests look at what a visit writes:
//   visited(N)  the element a visit of N leaves in the slot, printed alone
//               (nobody stamps it, as nobody stamps a document's root);
//   placed(N)   N written under a bare ROOT element the way its caller
//               writes it: visited, stamped with N's location, appended in
//               source order.
// Both leave location attributes out unless asked for them.
//
//===----------------------------------------------------------------------===//
#ifndef KORVID_TESTS_EMITTERHARNESS_H
#define KORVID_TESTS_EMITTERHARNESS_H

#include "korvid/XMLOstrel.h"

#include <tinyxml2.h>

#include <string>

namespace korvid {
namespace test {

/// The emitter with its builder and helpers reachable from tests. Tests may
/// derive from it to replace single visits with stand-ins.
struct TestEmitter : XMLOstrel {
  using XMLOstrel::appendListChild;
  using XMLOstrel::appendNodeChild;
  using XMLOstrel::appendTextChild;
  using XMLOstrel::appendWordChild;
  using XMLOstrel::appendWrappedChild;
  using XMLOstrel::getChildList;
  using XMLOstrel::stampLocation;
  using XMLOstrel::usageName;
  XMLHandler &handler() { return *Handler; }

  template <class T> std::string visited(T *N, bool Located = false) {
    visit(N);
    Handler->appendElementToDoc(Handler->getRetElement());
    return print(Located);
  }

  template <class T> std::string placed(T *N, bool Located = false) {
    tinyxml2::XMLElement *Root = Handler->newElement("ROOT");
    appendNodeChild(Root, N);
    Handler->appendElementToDoc(Root);
    return print(Located);
  }

private:
  std::string print(bool Located) {
    if (!Located)
      Handler->removeAttributeLoc();
    return Handler->toString();
  }
};

template <class T> std::string visited(T *N, bool Located = false) {
  TestEmitter E;
  return E.visited(N, Located);
}

template <class T> std::string placed(T *N, bool Located = false) {
  TestEmitter E;
  return E.placed(N, Located);
}

} // namespace test
} // namespace korvid

#endif // KORVID_TESTS_EMITTERHARNESS_H
