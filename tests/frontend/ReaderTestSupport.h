//===- tests/frontend/ReaderTestSupport.h - Helpers for reader tests ------===//
//
// A scratch directory per test for the sources and copybooks a test writes,
// and short ways to read them and look at the tokens.
//
//===----------------------------------------------------------------------===//
#ifndef KORVID_TESTS_FRONTEND_READERTESTSUPPORT_H
#define KORVID_TESTS_FRONTEND_READERTESTSUPPORT_H

#include "korvid/Frontend/SourceReader.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace korvid::test {

class ReaderTest : public ::testing::Test {
protected:
  std::string Dir;

  void SetUp() override {
    char Template[] = "/tmp/korvid-reader-XXXXXX";
    Dir = mkdtemp(Template);
  }
  void TearDown() override { std::filesystem::remove_all(Dir); }

  /// Writes \p Text (bytes) to Dir/Name, making directories as needed.
  std::string write(const std::string &Name, const std::string &Text) {
    std::string Path = Dir + "/" + Name;
    std::filesystem::create_directories(
        std::filesystem::path(Path).parent_path());
    std::ofstream(Path, std::ios::binary) << Text;
    return Path;
  }

  std::unique_ptr<SourceReader> read(const std::string &Name,
                                     ReaderOptions Opts = {}) {
    Opts.UseCOBCPY = false;
    auto R = std::make_unique<SourceReader>(Opts);
    R->readFile(Dir + "/" + Name);
    return R;
  }
  std::unique_ptr<SourceReader> readFree(const std::string &Name) {
    ReaderOptions O;
    O.Format = SourceFormat::Free;
    return read(Name, O);
  }
};

/// Lines of fixed-format text: each string is what follows column 7, or
/// for a comment line ("*..." or "/..."), what follows column 6.
inline std::string fixed(std::initializer_list<std::string> Lines) {
  std::string S;
  for (const std::string &L : Lines)
    S += (!L.empty() && (L[0] == '*' || L[0] == '/') ? "      " : "       ") +
         L + "\n";
  return S;
}

/// The tokens' texts joined by one space.
inline std::string texts(const SourceReader &R) {
  std::string S;
  for (const Token &T : R.getTokens())
    S += (S.empty() ? "" : " ") + T.Text;
  return S;
}

/// The diagnostics as the tool prints them.
inline std::string diags(const SourceReader &R) {
  std::ostringstream OS;
  R.getDiagnostics().print(OS, R.getSourceManager());
  return OS.str();
}

/// The N-th token whose text is \p Text (null if none).
inline const Token *find(const SourceReader &R, const std::string &Text,
                         unsigned N = 0) {
  for (const Token &T : R.getTokens())
    if (T.Text == Text && N-- == 0)
      return &T;
  return nullptr;
}

/// "FILE:LINE:COL" of a token as written (FILE without the directory).
inline std::string written(const SourceReader &R, const Token *T) {
  if (!T)
    return "<no token>";
  PresumedLoc P = R.getWrittenBegin(*T);
  return std::filesystem::path(P.File).filename().string() + ":" +
         std::to_string(P.Line) + ":" + std::to_string(P.Column);
}
inline std::string writtenEnd(const SourceReader &R, const Token *T) {
  if (!T)
    return "<no token>";
  PresumedLoc P = R.getWrittenEnd(*T);
  return std::filesystem::path(P.File).filename().string() + ":" +
         std::to_string(P.Line) + ":" + std::to_string(P.Column);
}
/// "LINE:COL" of a token in the expanded source.
inline std::string expanded(const Token *T) {
  if (!T)
    return "<no token>";
  return std::to_string(T->Line) + ":" + std::to_string(T->Column);
}

/// Line \p N (1-based) of \p Text.
inline std::string lineOf(const std::string &Text, unsigned N) {
  std::istringstream In(Text);
  std::string L;
  while (N-- && std::getline(In, L))
    ;
  return L;
}

} // namespace korvid::test

#endif
