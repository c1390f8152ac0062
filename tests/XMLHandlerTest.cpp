//===- tests/XMLHandlerTest.cpp - The document builder --------------------===//

#include "XMLCompare.h"
#include "korvid/XMLHandler.h"

#include <tinyxml2.h>

#include <algorithm>
#include <random>
#include <vector>

using namespace korvid;
using korvid::test::sameXML;
using tinyxml2::XMLElement;
using tinyxml2::XMLNode;

namespace {

/// Stamps \p E as one source line/column, the same in both sources.
void stamp(XMLHandler &H, XMLElement *E, unsigned Line, unsigned Col,
           const std::string &File = "main.cbl") {
  H.attributeLoc(E, Line, Col, Line, Col + 1, File, Line, Col, Line, Col + 1,
                 File);
}

/// The children's tags in order, joined by spaces.
std::string tags(XMLElement *Parent) {
  std::string S;
  for (XMLNode *N = Parent->FirstChild(); N; N = N->NextSibling()) {
    if (!S.empty())
      S += ' ';
    S += N->ToElement() ? N->ToElement()->Name() : N->Value();
  }
  return S;
}

TEST(XMLHandler, OrderedInsertionKeepsSourceOrder) {
  XMLHandler H;
  XMLElement *P = H.newElement("P");
  // Arrival order differs from source order; equal keys keep arrival order.
  struct { const char *Tag; unsigned Line, Col; } Kids[] = {
      {"c", 3, 1}, {"a", 1, 5}, {"d", 3, 1}, {"b", 2, 9}, {"a0", 1, 1},
      {"e", 3, 1}, {"z", 9, 9}};
  for (auto &K : Kids) {
    XMLElement *E = H.newElement(K.Tag);
    stamp(H, E, K.Line, K.Col);
    H.appendChildOrdered(E, P);
  }
  EXPECT_EQ(tags(P), "a0 a b c d e z");
}

TEST(XMLHandler, ReverseAndForwardRunsStayOrdered) {
  XMLHandler H;
  XMLElement *Fwd = H.newElement("F"), *Rev = H.newElement("R");
  std::string Want;
  for (unsigned I = 1; I <= 200; ++I) {
    std::string A = "L" + std::to_string(I), B = "L" + std::to_string(201 - I);
    XMLElement *EA = H.newElement(A.c_str()), *EB = H.newElement(B.c_str());
    stamp(H, EA, I, 1);
    stamp(H, EB, 201 - I, 1);
    H.appendChildOrdered(EA, Fwd);
    H.appendChildOrdered(EB, Rev);
    Want += (I == 1 ? "" : " ") + A;
  }
  EXPECT_EQ(tags(Fwd), Want);
  EXPECT_EQ(tags(Rev), Want);
}

TEST(XMLHandler, UnlocatedChildrenSortAsLineZero) {
  XMLHandler H;
  XMLElement *P = H.newElement("P");
  XMLElement *B = H.newElement("b"), *Mark = H.newElement("mark"),
             *A = H.newElement("a"), *C = H.newElement("c"),
             *D = H.newElement("d");
  stamp(H, B, 5, 1);
  stamp(H, A, 1, 1);
  stamp(H, C, 7, 1);
  stamp(H, D, 3, 1);
  H.appendChildOrdered(B, P);
  H.appendChildOrdered(Mark, P); // no location: goes before every located one
  EXPECT_EQ(tags(P), "mark b");
  H.appendChildOrdered(A, P);
  H.appendChildLast(H.newText("t"), P);
  H.appendChildOrdered(C, P);
  EXPECT_EQ(tags(P), "mark a b t c");
  // The text appended last is never passed over: d (line 3) stays after it.
  H.appendChildOrdered(D, P);
  EXPECT_EQ(tags(P), "mark a b t d c");
}

TEST(XMLHandler, LocationsSetByNameOrderListContainers) {
  XMLHandler H;
  XMLElement *P = H.newElement("P");
  XMLElement *Late = H.newElement("late"), *List = H.newElement("List");
  stamp(H, Late, 8, 1);
  H.appendChildOrdered(Late, P);
  H.setAttribute(List, "size", 2ul);
  H.setAttribute(List, "lbl", 4u);
  H.setAttribute(List, "lbc", 12u);
  H.appendChildOrdered(List, P);
  EXPECT_EQ(tags(P), "List late");
  // Set by name, they print in the order they were set.
  H.appendElementToDoc(P);
  EXPECT_NE(H.toString().find("<List size=\"2\" lbl=\"4\" lbc=\"12\"/>"),
            std::string::npos);
}

// A model of ordered insertion: after the last child whose key is less than
// or equal to the new one's, else first. The builder's shortcuts must agree
// with it whatever mixture of operations comes.
TEST(XMLHandler, OrderedInsertionMatchesModelUnderRandomOperations) {
  std::mt19937 Rng(12345);
  for (int Round = 0; Round < 40; ++Round) {
    XMLHandler H;
    XMLElement *P = H.newElement("P");
    std::vector<std::pair<XMLNode *, unsigned>> Model; // node, key line
    std::vector<XMLElement *> Made;
    auto Insert = [&](XMLNode *N, unsigned Key) {
      Model.erase(std::remove_if(Model.begin(), Model.end(),
                                 [&](auto &M) { return M.first == N; }),
                  Model.end());
      auto Pos = Model.begin();
      for (auto I = Model.rbegin(); I != Model.rend(); ++I)
        if (I->second <= Key) {
          Pos = I.base();
          break;
        }
      Model.insert(Pos, {N, Key});
    };
    for (int Step = 0; Step < 60; ++Step) {
      int Op = Rng() % 10;
      unsigned Key = 1 + Rng() % 12;
      if (Op < 6 || Made.empty()) { // a new located child, in order
        XMLElement *E = H.newElement("e");
        stamp(H, E, Key, 0);
        Made.push_back(E);
        H.appendChildOrdered(E, P);
        Insert(E, Key << 0);
      } else if (Op < 8) { // something appended last: text or unlocated
        XMLNode *N = (Op == 6) ? static_cast<XMLNode *>(H.newText("t"))
                               : H.newElement("u");
        H.appendChildLast(N, P);
        Model.push_back({N, 0});
      } else { // an existing child stamped again and put back in order
        XMLElement *E = Made[Rng() % Made.size()];
        stamp(H, E, Key, 0);
        H.appendChildOrdered(E, P);
        Insert(E, Key);
      }
      std::vector<XMLNode *> Got;
      for (XMLNode *N = P->FirstChild(); N; N = N->NextSibling())
        Got.push_back(N);
      std::vector<XMLNode *> Want;
      for (auto &M : Model)
        Want.push_back(M.first);
      ASSERT_EQ(Got, Want) << "round " << Round << " step " << Step;
    }
  }
}

TEST(XMLHandler, AppendingToItselfOrADescendantChangesNothing) {
  XMLHandler H;
  XMLElement *A = H.newElement("A"), *B = H.newElement("B");
  stamp(H, A, 1, 1);
  stamp(H, B, 2, 1);
  H.appendChildLast(B, A);
  H.appendChildLast(A, A);
  H.appendChildOrdered(A, A);
  H.appendChildOrdered(A, B);
  H.appendChildLast(A, B);
  H.appendElementToDoc(A);
  EXPECT_EQ(tags(A), "B");
  EXPECT_EQ(B->FirstChild(), nullptr);
  EXPECT_EQ(A->Parent(), static_cast<XMLNode *>(&H.getDocument()));
}

TEST(XMLHandler, LocationsPrintAfterOrdinaryAttributesWithFileMarks) {
  XMLHandler H;
  H.appendCommentToDoc("main.cbl");
  XMLElement *Root = H.newElement("ROOT");
  H.setAttribute(Root, "NAME", "X");
  H.attributeLoc(Root, 10, 8, 12, 20, "main.cbl", 3, 8, 5, 20, "COPY1.cpy");
  H.setAttribute(Root, "AFTER", -4);
  XMLElement *Kid = H.newElement("KID");
  H.attributeLoc(Kid, 11, 1, 11, 2, "main.cbl", 11, 1, 11, 2, "main.cbl");
  H.appendChildOrdered(Kid, Root);
  H.appendElementToDoc(Root);
  EXPECT_TRUE(sameXML(
      R"(<!--main.cbl-->
         <ROOT NAME="X" AFTER="-4" lbl="10" lbc="8" lel="12" lec="20"
               lblo="3" lbco="8" lelo="5" leco="20" lfid="1" lfido="2">
           <KID lbl="11" lbc="1" lel="11" lec="2"
                lblo="11" lbco="1" lelo="11" leco="2" lfid="1" lfido="1"/>
         </ROOT>)",
      H.toString()));
  EXPECT_EQ(H.toString().rfind("<?xml version=\"1.0\"", 0), 0u);
}

TEST(XMLHandler, StripRemovesStampedAndNamedLocations) {
  XMLHandler H;
  XMLElement *Root = H.newElement("ROOT");
  H.setAttribute(Root, "lbl", 0);
  H.setAttribute(Root, "KEEP", "yes");
  H.setAttribute(Root, "leco", 7u);
  XMLElement *Kid = H.newElement("KID");
  stamp(H, Kid, 2, 3);
  H.appendChildOrdered(Kid, Root);
  H.appendElementToDoc(Root);
  H.removeAttributeLoc();
  EXPECT_TRUE(sameXML(R"(<ROOT KEEP="yes"><KID/></ROOT>)", H.toString()));
}

TEST(XMLHandler, FileTableNumbersByFirstAppearance) {
  XMLHandler H;
  XMLElement *E = H.newElement("E");
  H.attributeLoc(E, 1, 1, 1, 1, "main.cbl", 1, 1, 1, 1, "B.cpy");
  H.attributeLoc(E, 1, 1, 1, 1, "main.cbl", 1, 1, 1, 1, "A.cpy");
  H.attributeLoc(nullptr, 1, 1, 1, 1, "main.cbl", 1, 1, 1, 1, "C.cpy");
  EXPECT_EQ(H.getFileId("main.cbl"), 1);
  EXPECT_EQ(H.getFileId("B.cpy"), 2);
  EXPECT_EQ(H.getFileId("A.cpy"), 3);
  EXPECT_EQ(H.getFileId("C.cpy"), 4);
  EXPECT_EQ(H.getFileId("never.cpy"), 0);
  H.deleteFileName("B.cpy");
  EXPECT_EQ(H.getFileId("B.cpy"), 0);
  std::map<std::string, int> Want = {{"A.cpy", 3}, {"C.cpy", 4},
                                     {"main.cbl", 1}};
  EXPECT_EQ(H.getFileNameMap(), Want);
  // A name met again after deletion gets a new number, never a reused one.
  H.attributeLoc(E, 1, 1, 1, 1, "B.cpy", 1, 1, 1, 1, "B.cpy");
  EXPECT_EQ(H.getFileId("B.cpy"), 5);
}

TEST(XMLHandler, SaveReportsFailureAndWritesWellFormedFiles) {
  XMLHandler H;
  H.appendCommentToDoc("odd--name-");
  XMLElement *Root = H.newElement("ROOT");
  XMLElement *T = H.newElement("T");
  H.appendChildLast(H.newText("a < b & \"c\""), T);
  H.appendChildLast(T, Root);
  H.appendElementToDoc(Root);

  H.saveFile("/nonexistent-dir/out.xml");
  EXPECT_FALSE(H.saveSucceeded());
  EXPECT_NE(H.getSaveError().find("/nonexistent-dir/out.xml"),
            std::string::npos);
  EXPECT_NE(H.getSaveError().find("No such file"), std::string::npos);

  std::string Path = korvid::test::tempPath("handler.xml");
  H.saveFile(Path.c_str());
  EXPECT_TRUE(H.saveSucceeded()) << H.getSaveError();
  EXPECT_EQ(korvid::test::readFile(Path), H.toString());
  EXPECT_TRUE(korvid::test::wellFormed(Path));
  std::remove(Path.c_str());
}

} // namespace
