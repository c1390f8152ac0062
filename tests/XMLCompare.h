//===- tests/XMLCompare.h - Comparing emitted documents -------*- C++ -*-===//
//
// Compares an emitted document with an expected one written inline in a
// test: the top-level comment and elements, element tags, attribute names
// and values in order, and texts. The first difference is reported with the
// path of the element where it stands, e.g.
//   /COBOL_SOURCE/PROGRAM[2]/ID_DIVISION: attribute 3: lel="4", expected lel="5"
//
//===----------------------------------------------------------------------===//
#ifndef KORVID_TESTS_XMLCOMPARE_H
#define KORVID_TESTS_XMLCOMPARE_H

#include <gtest/gtest.h>

#include <string>

namespace korvid {
namespace test {

/// Whether \p Actual holds the same document as \p Expected. The XML
/// declaration is not compared; whitespace between elements does not count.
::testing::AssertionResult sameXML(const std::string &Expected,
                                   const std::string &Actual);

/// The contents of \p Path ("" when it cannot be read).
std::string readFile(const std::string &Path);

/// A path for a scratch file of this test run.
std::string tempPath(const std::string &Name);

/// Whether xmllint accepts the file; skipped (true) when xmllint is missing.
::testing::AssertionResult wellFormed(const std::string &Path);

} // namespace test
} // namespace korvid

#endif // KORVID_TESTS_XMLCOMPARE_H
