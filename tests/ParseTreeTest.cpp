//===- tests/ParseTreeTest.cpp - Locations, ownership, the class list -----===//

#include "TreeBuilder.h"

#include <gtest/gtest.h>

#include <type_traits>

using namespace korvid;
using korvid::test::TreeBuilder;

namespace {

// The one list of node classes must name each class's real base, and every
// class must be complete and constructible through the tree.
#define NODE(Class, Parent)                                                    \
  static_assert(std::is_base_of<Parent, Class>::value,                         \
                #Class " does not derive from " #Parent);
#include "korvid/ParseTree/Nodes.def"

TEST(ParseTree, EveryListedClassCanBeMadeByTheTree) {
  Program P("main.cbl");
  size_t Made = 0;
#define NODE(Class, Parent)                                                    \
  {                                                                            \
    Node *N = P.create<Class>();                                               \
    EXPECT_EQ(N->getBeginLineNo(), 0u) << #Class;                              \
    EXPECT_EQ(N->getFileNameOrg(), "") << #Class;                              \
    ++Made;                                                                    \
  }
#include "korvid/ParseTree/Nodes.def"
  EXPECT_EQ(P.getNodeCount(), Made);
  EXPECT_GT(Made, 300u);
}

TEST(ParseTree, NodesKeepBothLocations) {
  TreeBuilder T;
  Word *W = T.copied(T.word("Name-1", 20, 12), "LIB/COPY1.cpy", 3, 12, 3, 17);
  EXPECT_EQ(W->getBeginLineNo(), 20u);
  EXPECT_EQ(W->getEndCharPos(), 17u);
  EXPECT_EQ(W->getBeginLineNoOrg(), 3u);
  EXPECT_EQ(W->getFileNameStr(), "main.cbl");
  EXPECT_EQ(W->getFileNameOrgStr(), "LIB/COPY1.cpy");
  EXPECT_EQ(W->getLocString(), "main.cbl:20:12");
  EXPECT_EQ(W->getLocStringOrg(), "LIB/COPY1.cpy:3:12");
  EXPECT_EQ(W->getWordData(), "NAME-1");
  EXPECT_EQ(W->getWordDataOrg(), "Name-1");

  Word Bare;
  EXPECT_EQ(Bare.getLocString(), "0:0");
  EXPECT_EQ(Bare.getFileNameStr(), "");

  // A node made from another reports that node's location.
  Node Copy(W);
  EXPECT_EQ(Copy.getLocStringOrg(), "LIB/COPY1.cpy:3:12");
  EXPECT_EQ(Copy.getEndLineNo(), 20u);
}

TEST(ParseTree, ExtentSpansFirstToLast) {
  TreeBuilder T;
  Word *A = T.word("MOVE", 7, 12);
  Word *B = T.copied(T.word("X", 9, 30), "C.cpy", 2, 30, 2, 30);
  auto *S = T.P.create<MoveStatement>();
  S->setExtent(A, B);
  EXPECT_EQ(S->getLocString(), "main.cbl:7:12");
  EXPECT_EQ(S->getEndLineNo(), 9u);
  EXPECT_EQ(S->getEndCharPos(), 30u);
  EXPECT_EQ(S->getEndLineNoOrg(), 2u);
  EXPECT_EQ(S->getFileNameOrg(), "main.cbl");
}

TEST(ParseTree, SplitNodesReportTheSplitNodesLocation) {
  TreeBuilder T;
  auto *U = T.copied(T.at<Using>(5, 20, 6, 40), "C.cpy", 1, 20, 2, 40);
  auto *Item = T.at<UsingItem>(5, 30, 5, 35);
  NodeList<UsingItem> One = {Item};
  Using Split(U, U->getType(), One, U->getTypeWord(), nullptr);
  EXPECT_EQ(Split.getLocString(), "main.cbl:5:20");
  EXPECT_EQ(Split.getLocStringOrg(), "C.cpy:1:20");
  EXPECT_EQ(Split.getItemListSize(), 1ul);
  EXPECT_EQ(*Split.getItemListBegin(), Item);

  auto *Par = T.at<Parameter>(8, 12, 8, 40);
  NodeList<DataIdentifierExpression> Ids = {
      T.at<DataIdentifierExpression>(8, 20, 8, 25)};
  Parameter PSplit(Par, Ids, nullptr, nullptr, Par->getType());
  EXPECT_EQ(PSplit.getLocString(), "main.cbl:8:12");
  EXPECT_EQ(PSplit.getIdentListSize(), 1ul);
}

TEST(ParseTree, EmptyListsHaveEqualEnds) {
  SourceUnit U;
  EXPECT_EQ(U.getNestedListSize(), 0ul);
  EXPECT_TRUE(U.getNestedListBegin() == U.getNestedListEnd());
  Program P;
  EXPECT_TRUE(P.getSourceUnitListBegin() == P.getSourceUnitListEnd());
  EXPECT_TRUE(P.getMissingCopybookList().empty());
}

TEST(ParseTree, ProgramInternsFileNamesAndRecordsCopies) {
  Program P("main.cbl");
  EXPECT_EQ(P.internFileName("a.cpy"), P.internFileName(std::string("a.cpy")));
  EXPECT_NE(P.internFileName("a.cpy"), P.internFileName("b.cpy"));
  CopybookInformation *C = P.addMissingCopybook("M", "main.cbl", 12);
  P.addCopyTarget("a.cpy", "main.cbl", 3);
  ASSERT_EQ(P.getMissingCopybookList().size(), 1u);
  EXPECT_EQ(P.getMissingCopybookList().front(), C);
  EXPECT_EQ(C->Line, 12);
  EXPECT_EQ(P.getCopyTargetList().front()->CopybookName, "a.cpy");
  Node *At = P.create<Word>();
  P.addError(At, "X", "msg");
  EXPECT_EQ(P.getErrorList().front()->getErrorNode(), At);
  EXPECT_EQ(P.getErrorList().front()->getErrorMessage(), "msg");
}

} // namespace
