//===- tests/TreeBuilder.h - Building small parse trees tersely -*- C++ -*-===//
//
// A Program plus shorthands for placing nodes:
//   TreeBuilder T;                          // main file "main.cbl"
//   auto *W = T.word("ALPHA", 3, 8);        // ALPHA at 3:8-3:12
//   auto *D = T.at<DataDivision>(10, 8, 15, 30);
//   T.copied(D, "COPY1.cpy", 1, 8, 6, 30);  // written in a copybook
//
//===----------------------------------------------------------------------===//
#ifndef KORVID_TESTS_TREEBUILDER_H
#define KORVID_TESTS_TREEBUILDER_H

#include "korvid/ParseTree.h"

#include <string>

namespace korvid {
namespace test {

struct TreeBuilder {
  Program P;
  std::string MainFile;

  explicit TreeBuilder(const std::string &Main = "main.cbl")
      : P(Main), MainFile(Main) {}

  /// A node of class T spanning BL:BC-EL:EC of the main file.
  template <class T, class... Args>
  T *at(uint32_t BL, uint32_t BC, uint32_t EL, uint32_t EC, Args &&...A) {
    T *N = P.create<T>(std::forward<Args>(A)...);
    N->setLocation(P.range(MainFile, BL, BC, EL, EC));
    return N;
  }

  /// Marks \p N as written in \p File at BL:BC-EL:EC (its expanded extent
  /// in the main file stays).
  template <class T>
  T *copied(T *N, const std::string &File, uint32_t BL, uint32_t BC,
            uint32_t EL, uint32_t EC) {
    N->setLocation(N->getExpandedRange(), P.range(File, BL, BC, EL, EC));
    return N;
  }

  /// A word of the main file at Line:Col, as written in \p Text, normalised
  /// to upper case.
  Word *word(const std::string &Text, uint32_t Line, uint32_t Col) {
    std::string Upper = Text;
    for (char &C : Upper)
      C = static_cast<char>(std::toupper(static_cast<unsigned char>(C)));
    uint32_t End = Col + static_cast<uint32_t>(Text.size()) - 1;
    return at<Word>(Line, Col, Line, End, Upper, Text);
  }

  /// An unresolved reference to the data item \p Text at Line:Col, its
  /// name a one-level qualified word.
  DataIdentifierExpression *dataName(const std::string &Text, uint32_t Line,
                                     uint32_t Col) {
    Word *W = word(Text, Line, Col);
    uint32_t End = W->getEndCharPos();
    auto *Q = at<QualifiedWord>(Line, Col, Line, End);
    Q->setRearWord(W);
    auto *D = at<DataIdentifierExpression>(Line, Col, Line, End);
    D->setName(Q);
    return D;
  }
};

} // namespace test
} // namespace korvid

#endif // KORVID_TESTS_TREEBUILDER_H
