//===- tests/frontend/ToolTest.cpp - korvid-xml -E and real programs ------===//

#include "ReaderTestSupport.h"

#include <cstdio>
#include <set>

using namespace korvid;
using namespace korvid::test;

#ifndef KORVID_XML
#define KORVID_XML "korvid-xml"
#endif
#ifndef KORVID_CORPUS_DIR
#define KORVID_CORPUS_DIR ""
#endif

namespace {

struct ToolRun {
  int Status = -1;
  std::string Out;
};

/// Runs korvid-xml with \p Args (shell syntax); standard error goes to
/// \p ErrFile.
ToolRun tool(const std::string &Args, const std::string &ErrFile) {
  ToolRun R;
  std::string Cmd = std::string(KORVID_XML) + " " + Args + " 2>'" + ErrFile + "'";
  FILE *P = popen(Cmd.c_str(), "r");
  char Buf[4096];
  size_t N;
  while ((N = fread(Buf, 1, sizeof Buf, P)) > 0)
    R.Out.append(Buf, N);
  int St = pclose(P);
  R.Status = WIFEXITED(St) ? WEXITSTATUS(St) : -1;
  return R;
}

std::string slurp(const std::string &Path) {
  std::ifstream In(Path, std::ios::binary);
  std::ostringstream SS;
  SS << In.rdbuf();
  return SS.str();
}

TEST_F(ReaderTest, ToolPrintsTheExpandedSourceAndExitsByOutcome) {
  write("main.cbl", fixed({"PROGRAM-ID. M.", "COPY GREET.", "STOP RUN."}));
  write("lib/GREET.cpy", fixed({"DISPLAY 'HI'."}));
  std::string Err = Dir + "/err.txt";
  ToolRun Ok = tool("-E -I '" + Dir + "/lib' -I '" + Dir + "/none' '" + Dir +
                        "/main.cbl'",
                    Err);
  EXPECT_EQ(Ok.Status, 0);
  EXPECT_EQ(Ok.Out, "       PROGRAM-ID. M.\n       DISPLAY 'HI'.\n"
                    "       STOP RUN.\n");
  EXPECT_EQ(slurp(Err), "");

  // -o writes a file; a missing member is an error (status 1) and the
  // expanded source is still written.
  ToolRun Miss = tool("-E -o '" + Dir + "/out.txt' '" + Dir + "/main.cbl'", Err);
  EXPECT_EQ(Miss.Status, 1);
  EXPECT_EQ(Miss.Out, "");
  // The COPY statement's line stays, empty: lines keep their numbers.
  EXPECT_EQ(slurp(Dir + "/out.txt"), "       PROGRAM-ID. M.\n\n       STOP RUN.\n");
  EXPECT_EQ(slurp(Err).substr(0, slurp(Err).find('\n')),
            Dir + "/main.cbl:2:8: error: COPY member 'GREET' not found");

  // Free format on request; extensions replaced.
  write("free.cbl", "COPY G2.\n");
  write("G2.inc", "MOVE A TO B.\n");
  ToolRun Free = tool("-E --format free --copy-ext .inc '" + Dir + "/free.cbl'", Err);
  EXPECT_EQ(Free.Status, 0);
  EXPECT_EQ(Free.Out, "MOVE A TO B.\n");
}

TEST_F(ReaderTest, ToolUsageErrorsAndUnreadableInputGiveStatus2) {
  std::string Err = Dir + "/err.txt";
  EXPECT_EQ(tool("-E '" + Dir + "/none.cbl'", Err).Status, 2);
  EXPECT_NE(slurp(Err).find("error: cannot read"), std::string::npos);
  EXPECT_EQ(tool("-E --format sideways x.cbl", Err).Status, 2);
  EXPECT_EQ(tool("-E", Err).Status, 2);
  EXPECT_EQ(tool("--no-such-option", Err).Status, 2);
  ToolRun V = tool("--version", Err);
  EXPECT_EQ(V.Status, 0);
  EXPECT_EQ(V.Out.compare(0, 11, "korvid-xml "), 0);
  ToolRun H = tool("--help", Err);
  EXPECT_EQ(H.Status, 0);
  EXPECT_NE(H.Out.find("--encoding"), std::string::npos);
}

TEST_F(ReaderTest, ExpandedSourceReadsBackToTheSameTokens) {
  // What -E prints, read as free format, gives the tokens again, and each
  // token stands in it at its expanded line and column.
  write("main.cbl",
        fixed({"DATA DIVISION.", "01 A PIC X(10) VALUE \"ABC",
               "COPY M REPLACING ==OLD== BY ==LONGER-NAME==",
               "                 LEADING ==P-== BY ==Q-==.", "PROCEDURE DIVISION.",
               "    EXEC SQL SELECT 1", "    INTO :X FROM T END-EXEC."}) +
            "      -    \"DEF\".\n");
  write("M.cpy", fixed({"01 OLD.", "  05 P-B PIC 9(3)V9 VALUE -1.5."}));
  auto R = read("main.cbl");
  write("expanded.txt", R->getExpandedText());
  auto Back = readFree("expanded.txt");
  ASSERT_EQ(texts(*Back), texts(*R));
  const std::string &E = R->getExpandedText();
  for (const Token &T : R->getTokens())
    EXPECT_EQ(lineOf(E, T.Line).substr(T.Column - 1, T.Text.size()), T.Text)
        << "token " << T.Text;
}

// --- Real programs -----------------------------------------------------------

const std::string CardDemo =
    std::string(KORVID_CORPUS_DIR) +
    "/realworld/aws-mainframe-modernization-carddemo/app";

TEST(CardDemo, EveryProgramReadsAndOnlySystemCopybooksAreMissing) {
  namespace fs = std::filesystem;
  if (!fs::is_directory(CardDemo))
    GTEST_SKIP() << "carddemo corpus not found at " << CardDemo;
  // Members of CICS, DB2 and MQ, which the corpus does not have.
  const std::set<std::string> System = {
      "DFHAID", "DFHBMSCA", "SQLCA",   "CMQV",   "CMQGMOV",
      "CMQMDV", "CMQODV",   "CMQPMOV", "CMQTML"};
  unsigned Programs = 0, Missing = 0;
  for (const auto &E : fs::recursive_directory_iterator(CardDemo)) {
    std::string Ext = E.path().extension().string();
    if (Ext != ".cbl" && Ext != ".CBL")
      continue;
    ++Programs;
    fs::path Area = E.path().parent_path().parent_path();
    ReaderOptions O;
    O.UseCOBCPY = false;
    for (const char *Sub : {"cpy", "cpy-bms", "dcl"}) {
      O.IncludeDirs.push_back((Area / Sub).string());
      O.IncludeDirs.push_back(CardDemo + "/" + Sub);
    }
    SourceReader R(O);
    ASSERT_TRUE(R.readFile(E.path().string())) << E.path();
    EXPECT_FALSE(R.getTokens().empty()) << E.path();
    for (const Diagnostic &D : R.getDiagnostics().getDiagnostics()) {
      if (D.Level == Severity::Error) {
        EXPECT_EQ(D.Id, diag::err_copy_not_found)
            << E.path() << ": " << D.getMessage();
      }
    }
    for (const CopyRecord &M : R.getMissingCopybooks()) {
      ++Missing;
      EXPECT_EQ(System.count(M.Member), 1u) << M.Member << " in " << E.path();
      EXPECT_EQ(M.FromFile, E.path().string());
      EXPECT_GT(M.Line, 0u);
    }
  }
  EXPECT_EQ(Programs, 44u);
  EXPECT_GT(Missing, 0u);
}

} // namespace
