//===- tests/frontend/NistCompareTest.cpp - Reader against cobc -E --------===//
//
// Reads every program of the NIST COBOL-85 suite twice: as written (with
// -I ../copybooks, from the programs folder), and from what GnuCOBOL's
// `cobc -E -std=cobol85` makes of it (free format, its #line lines left
// out). Both must give the same tokens, and the program must read without
// errors. Two things cobc -E always leaves out are not compared: separator
// commas and semicolons, and the comment-entry paragraphs of the
// identification division (AUTHOR. and its entry, and the like). A program
// where that compiler reads the text otherwise goes in KnownDeviations with
// the reason; at present none does.
//
//===----------------------------------------------------------------------===//

#include "korvid/Frontend/SourceReader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <dirent.h>
#include <map>
#include <sstream>
#include <thread>
#include <unistd.h>

using namespace korvid;

#ifndef KORVID_CORPUS_DIR
#define KORVID_CORPUS_DIR ""
#endif

namespace {

const std::string Nist = std::string(KORVID_CORPUS_DIR) + "/nist";

/// Programs whose cobc -E output is known to differ from the standard's
/// reading, and why.
const std::map<std::string, std::string> KnownDeviations = {
};

std::vector<std::string> listPrograms() {
  std::vector<std::string> Names;
  if (DIR *D = opendir((Nist + "/programs").c_str())) {
    while (dirent *E = readdir(D)) {
      std::string N = E->d_name;
      if (N.size() > 4 && N.substr(N.size() - 4) == ".CBL")
        Names.push_back(N);
    }
    closedir(D);
  }
  std::sort(Names.begin(), Names.end());
  return Names;
}

std::string runCobc(const std::string &Program) {
  std::string Cmd =
      "cobc -E -std=cobol85 -I ../copybooks '" + Program + "' 2>/dev/null";
  std::string Out;
  if (FILE *P = popen(Cmd.c_str(), "r")) {
    char Buf[65536];
    size_t N;
    while ((N = fread(Buf, 1, sizeof Buf, P)) > 0)
      Out.append(Buf, N);
    pclose(P);
  }
  // #line lines become empty lines.
  std::string Kept;
  Kept.reserve(Out.size());
  std::istringstream In(Out);
  for (std::string Line; std::getline(In, Line);)
    Kept += (Line.compare(0, 5, "#line") == 0 ? "" : Line) + "\n";
  return Kept;
}

struct Word {
  tok::Kind Kind;
  std::string Text;
  uint32_t Line;
  bool operator==(const Word &O) const {
    return Kind == O.Kind && Text == O.Text;
  }
};

bool isCommentEntryParagraph(const Token &T) {
  switch (T.Keyword) {
  case tok::kw_AUTHOR: case tok::kw_INSTALLATION: case tok::kw_DATE_WRITTEN:
  case tok::kw_DATE_COMPILED: case tok::kw_SECURITY: case tok::kw_REMARKS:
    return true;
  default:
    return false;
  }
}

/// The tokens compared: not the separators cobc -E drops (commas and
/// semicolons), nor the comment-entry paragraphs of the identification
/// division (AUTHOR. and the like, with their entries), which it drops too.
std::vector<Word> wordsOf(const SourceReader &R) {
  std::vector<Word> W;
  const std::vector<Token> &Toks = R.getTokens();
  bool InId = false;
  for (size_t I = 0; I < Toks.size(); ++I) {
    const Token &T = Toks[I];
    if (T.Keyword == tok::kw_IDENTIFICATION || T.Keyword == tok::kw_ID)
      InId = true;
    else if (T.Keyword == tok::kw_DIVISION && I &&
             Toks[I - 1].Keyword != tok::kw_IDENTIFICATION &&
             Toks[I - 1].Keyword != tok::kw_ID)
      InId = false;
    if (InId && isCommentEntryParagraph(T) && I + 1 < Toks.size() &&
        Toks[I + 1].Kind == tok::Period) {
      ++I;
      if (I + 1 < Toks.size() && Toks[I + 1].Kind == tok::CommentEntry)
        ++I;
      continue;
    }
    if (T.Kind != tok::Comma && T.Kind != tok::Semicolon)
      W.push_back({T.Kind, T.getUpper(), T.Line});
  }
  return W;
}

/// "" if equal, else a description of the first difference.
std::string compareProgram(const std::string &Program) {
  std::string Why;
  SourceReader Ours([] {
    ReaderOptions O;
    O.IncludeDirs = {"../copybooks"};
    O.UseCOBCPY = false;
    return O;
  }());
  // Run from the programs folder, as a user would (see the test).
  if (!Ours.readFile(Program))
    return "cannot read " + Program;
  if (Ours.getDiagnostics().hasErrors()) {
    std::ostringstream OS;
    Ours.getDiagnostics().print(OS, Ours.getSourceManager());
    return "errors:\n" + OS.str();
  }
  ReaderOptions FreeOpts;
  FreeOpts.Format = SourceFormat::Free;
  FreeOpts.UseCOBCPY = false;
  SourceReader Theirs(FreeOpts);
  Theirs.readBuffer("cobc-E:" + Program, runCobc(Program));
  std::vector<Word> A = wordsOf(Ours), B = wordsOf(Theirs);
  size_t I = 0;
  while (I < A.size() && I < B.size() && A[I] == B[I])
    ++I;
  if (I == A.size() && I == B.size())
    return "";
  std::ostringstream OS;
  OS << "first difference at token " << I << ": ours ";
  if (I < A.size())
    OS << tok::getKindName(A[I].Kind) << " '" << A[I].Text << "' (-E line "
       << A[I].Line << ")";
  else
    OS << "<end>";
  OS << ", cobc ";
  if (I < B.size())
    OS << tok::getKindName(B[I].Kind) << " '" << B[I].Text << "' (line "
       << B[I].Line << ")";
  else
    OS << "<end>";
  return OS.str();
}

TEST(NistCorpus, TokensEqualCobcPreprocessorOutput) {
  std::vector<std::string> Programs = listPrograms();
  if (Programs.empty())
    GTEST_SKIP() << "NIST corpus not found at " << Nist;
  if (system("cobc --version >/dev/null 2>&1") != 0)
    GTEST_SKIP() << "cobc (GnuCOBOL) is not installed";
  // Like a user: run from the programs folder with -I ../copybooks.
  ASSERT_EQ(chdir((Nist + "/programs").c_str()), 0);
  std::vector<std::string> Results(Programs.size());
  std::atomic<size_t> Next{0};
  // The runs wait on files more than on the processor: more threads than cores.
  unsigned NThreads = std::max(4u, 2 * std::thread::hardware_concurrency());
  std::vector<std::thread> Pool;
  for (unsigned T = 0; T < NThreads; ++T)
    Pool.emplace_back([&] {
      for (size_t I; (I = Next++) < Programs.size();)
        Results[I] = compareProgram(Programs[I]);
    });
  for (std::thread &T : Pool)
    T.join();

  size_t Equal = 0;
  for (size_t I = 0; I < Programs.size(); ++I) {
    std::string Module = Programs[I].substr(0, Programs[I].size() - 4);
    auto Known = KnownDeviations.find(Module);
    if (Results[I].empty()) {
      ++Equal;
      EXPECT_EQ(Known, KnownDeviations.end())
          << Module << " is listed as a deviation but now reads the same";
    } else if (Known == KnownDeviations.end() ||
               Results[I].compare(0, 7, "errors:") == 0) {
      ADD_FAILURE() << Module << ": " << Results[I];
    }
  }
  EXPECT_EQ(Programs.size(), 458u);
  std::printf("%zu of %zu programs give the same tokens as cobc -E; %zu "
              "listed deviations\n",
              Equal, Programs.size(), KnownDeviations.size());
}

} // namespace
