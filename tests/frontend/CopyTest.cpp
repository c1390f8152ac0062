//===- tests/frontend/CopyTest.cpp - COPY, REPLACING, REPLACE, EXEC -------===//

#include "ReaderTestSupport.h"

#include <cstdlib>

using namespace korvid;
using namespace korvid::test;

namespace {

TEST_F(ReaderTest, NestedCopybookTokensKnowBothLocationsAndTheirChain) {
  write("main.cbl", fixed({"IDENTIFICATION DIVISION.", "PROGRAM-ID. M.",
                           "DATA DIVISION.", "WORKING-STORAGE SECTION.",
                           "COPY OUTER.", "PROCEDURE DIVISION."}));
  write("OUTER.cpy", fixed({"01 A PIC X.", "    COPY INNER.", "01 B PIC X."}));
  write("INNER.cpy", "      * comment\n" + fixed({"01 I PIC 9."}));
  auto R = read("main.cbl");
  EXPECT_EQ(diags(*R), "");
  const Token *I = find(*R, "I");
  EXPECT_EQ(written(*R, I), "INNER.cpy:2:11");
  EXPECT_EQ(expanded(I), "6:11");
  EXPECT_EQ(lineOf(R->getExpandedText(), 5), "       01 A PIC X.");
  EXPECT_EQ(lineOf(R->getExpandedText(), 6), "       01 I PIC 9.");
  EXPECT_EQ(lineOf(R->getExpandedText(), 7), "       01 B PIC X.");
  EXPECT_EQ(lineOf(R->getExpandedText(), 8), "       PROCEDURE DIVISION.");
  EXPECT_EQ(expanded(find(*R, "PROCEDURE")), "8:8");
  EXPECT_EQ(written(*R, find(*R, "PROCEDURE")), "main.cbl:6:8");
  EXPECT_EQ(R->getMainFileName(), Dir + "/main.cbl");

  auto Chain = R->getSourceManager().getIncludeChain(I->Loc);
  ASSERT_EQ(Chain.size(), 2u);
  EXPECT_EQ(Chain[0].Member, "INNER");
  EXPECT_EQ(Chain[0].File, Dir + "/OUTER.cpy");
  EXPECT_EQ(Chain[0].Line, 2u);
  EXPECT_EQ(Chain[1].Member, "OUTER");
  EXPECT_EQ(Chain[1].File, Dir + "/main.cbl");
  EXPECT_EQ(Chain[1].Line, 5u);

  ASSERT_EQ(R->getCopyTargets().size(), 2u);
  const CopyRecord &Outer = R->getCopyTargets()[0];
  EXPECT_EQ(Outer.Member, "OUTER");
  EXPECT_EQ(Outer.FromFile, Dir + "/main.cbl");
  EXPECT_EQ(Outer.Line, 5u);
  EXPECT_EQ(Outer.Path, Dir + "/OUTER.cpy");
  EXPECT_EQ(R->getCopyTargets()[1].FromFile, Dir + "/OUTER.cpy");
  EXPECT_EQ(R->getCopyTargets()[1].Line, 2u);
}

TEST_F(ReaderTest, DiagnosticsInCopiedTextPrintTheirCopyChain) {
  write("main.cbl", fixed({"DATA DIVISION.", "COPY OUTER."}));
  write("OUTER.cpy", fixed({"COPY INNER."}));
  write("INNER.cpy", fixed({"01 A PIC X VALUE 'OPEN."}));
  auto R = read("main.cbl");
  EXPECT_EQ(diags(*R), "In COPY member INNER, copied at " + Dir +
                           "/OUTER.cpy:1:\n"
                           "In COPY member OUTER, copied at " + Dir +
                           "/main.cbl:2:\n" + Dir +
                           "/INNER.cpy:1:25: error: unterminated literal\n");
}

TEST_F(ReaderTest, CopyLookupOrderExtensionsCaseAndLibraries) {
  write("main.cbl", fixed({"COPY DUP.", "COPY ONLYINC.", "COPY lower.",
                           "COPY M OF LIB.", "COPY \"odd name\" IN \"sub/dir\".",
                           "COPY PLAIN SUPPRESS PRINTING."}));
  write("DUP.cpy", fixed({"HERE-DUP."}));
  write("inc/DUP.cpy", fixed({"INC-DUP."}));
  write("inc/ONLYINC.CBL", fixed({"INC-ONLY."}));
  write("LOWER.cob", fixed({"LOWER-COB."}));
  write("LIB/M.copy", fixed({"LIB-M."}));
  write("sub/dir/odd name", fixed({"ODD."}));
  write("PLAIN", fixed({"PLAIN."}));
  ReaderOptions O;
  O.IncludeDirs = {Dir + "/inc"};
  auto R = read("main.cbl", O);
  EXPECT_EQ(diags(*R), "");
  EXPECT_EQ(texts(*R), "HERE-DUP . INC-ONLY . LOWER-COB . LIB-M . ODD . PLAIN .");
  std::vector<std::string> Paths;
  for (const CopyRecord &C : R->getCopyTargets())
    Paths.push_back(C.Path.substr(Dir.size() + 1));
  EXPECT_EQ(Paths, (std::vector<std::string>{"DUP.cpy", "inc/ONLYINC.CBL",
                                             "LOWER.cob", "LIB/M.copy",
                                             "sub/dir/odd name", "PLAIN"}));

  // Extensions are configurable; COBCPY is searched after -I.
  write("env/ENVONLY.txt", fixed({"FROM-ENV."}));
  write("env.cbl", fixed({"COPY ENVONLY."}));
  setenv("COBCPY", (Dir + "/nowhere:" + Dir + "/env").c_str(), 1);
  ReaderOptions E;
  E.CopyExtensions = {".txt"};
  auto Env = std::make_unique<SourceReader>(E);
  Env->readFile(Dir + "/env.cbl");
  unsetenv("COBCPY");
  EXPECT_EQ(texts(*Env), "FROM-ENV .");
}

TEST_F(ReaderTest, MissingCopybooksAreRecordedAndReadingGoesOn) {
  write("main.cbl", fixed({"DATA DIVISION.", "COPY NOWHERE.", "COPY OUTER.",
                           "01 LAST-ITEM PIC X."}));
  write("OUTER.cpy", fixed({"01 A PIC X.", "COPY ALSO-MISSING OF LIB."}));
  ReaderOptions O;
  O.IncludeDirs = {Dir + "/inc"};
  O.CopyExtensions = {".cpy"};
  auto R = read("main.cbl", O);
  EXPECT_EQ(texts(*R), "DATA DIVISION . 01 A PIC X . 01 LAST-ITEM PIC X .");
  ASSERT_EQ(R->getMissingCopybooks().size(), 2u);
  const CopyRecord &M = R->getMissingCopybooks()[0];
  EXPECT_EQ(M.Member, "NOWHERE");
  EXPECT_EQ(M.FromFile, Dir + "/main.cbl");
  EXPECT_EQ(M.Line, 2u);
  EXPECT_EQ(M.Tried, (std::vector<std::string>{
                         Dir + "/NOWHERE", Dir + "/NOWHERE.cpy",
                         Dir + "/nowhere", Dir + "/nowhere.cpy",
                         Dir + "/inc/NOWHERE", Dir + "/inc/NOWHERE.cpy",
                         Dir + "/inc/nowhere", Dir + "/inc/nowhere.cpy"}));
  const CopyRecord &N = R->getMissingCopybooks()[1];
  EXPECT_EQ(N.Member, "ALSO-MISSING");
  EXPECT_EQ(N.Library, "LIB");
  EXPECT_EQ(N.FromFile, Dir + "/OUTER.cpy");
  EXPECT_EQ(N.Line, 2u);
  EXPECT_EQ(N.Tried.front(), Dir + "/LIB/ALSO-MISSING");
  EXPECT_EQ(R->getDiagnostics().getNumErrors(), 2u);
  EXPECT_NE(diags(*R).find("In COPY member OUTER, copied at " + Dir +
                           "/main.cbl:3:\n" + Dir +
                           "/OUTER.cpy:2:8: error: COPY member "
                           "'ALSO-MISSING' not found\n"),
            std::string::npos);
}

TEST_F(ReaderTest, CopyCyclesAreErrorsAtTheCopyStatement) {
  write("main.cbl", fixed({"COPY A.", "COPY SELF.", "END-OF-MAIN."}));
  write("A.cpy", fixed({"IN-A.", "COPY B."}));
  write("B.cpy", fixed({"IN-B.", "COPY A.", "AFTER-CYCLE."}));
  write("SELF.cpy", fixed({"COPY SELF."}));
  auto R = read("main.cbl");
  EXPECT_EQ(texts(*R), "IN-A . IN-B . AFTER-CYCLE . END-OF-MAIN .");
  EXPECT_EQ(diags(*R),
            "In COPY member B, copied at " + Dir + "/A.cpy:2:\n"
            "In COPY member A, copied at " + Dir + "/main.cbl:1:\n" + Dir +
                "/B.cpy:2:8: error: COPY member 'A' copies itself\n"
                "In COPY member SELF, copied at " + Dir + "/main.cbl:2:\n" +
                Dir + "/SELF.cpy:1:8: error: COPY member 'SELF' copies itself\n");
}

TEST_F(ReaderTest, BadCopyStatementsAreDiagnosed) {
  write("main.cbl", fixed({"COPY .", "COPY M REPLACING ==A== ==B==.",
                           "COPY M REPLACING ==A BY ==B==.", "COPY M", "AFTER."}));
  write("M.cpy", fixed({"A."}));
  auto R = read("main.cbl");
  std::string F = Dir + "/main.cbl";
  EXPECT_EQ(diags(*R),
            F + ":1:8: error: expected a member name after COPY\n" + F +
                ":2:31: error: expected BY in COPY\n" + F +
                ":3:34: error: expected BY in COPY\n" + F +
                ":4:8: error: expected '.' to end the COPY statement\n");
  // The member is copied all the same, with the rules that could be read.
  EXPECT_EQ(texts(*R), "A . A . A . AFTER .");
}

TEST_F(ReaderTest, ReplacingMatchesTextWordsAcrossLinesAndSeparators) {
  write("main.cbl", fixed({"COPY M REPLACING ==MOVE A TO B== BY ==DISPLAY C==",
                           "               ==X , Y==          BY ==Z==."}));
  write("M.cpy", fixed({"MOVE A", "* a comment line inside the text", "  , TO B.",
                        "MOVE A TO BB. X Y. X; Y."}));
  auto R = read("main.cbl");
  EXPECT_EQ(texts(*R), "DISPLAY C . MOVE A TO BB . Z . Z .");
  EXPECT_EQ(diags(*R), "");
}

TEST_F(ReaderTest, ReplacedTextIsWrittenWhereTheReplacingOperandWas) {
  write("main.cbl", fixed({"DATA DIVISION.", "COPY REP",
                           "    REPLACING ==OLD== BY ==NEW-NAME==."}));
  write("REP.cpy", fixed({"01 OLD PIC X."}));
  auto R = read("main.cbl");
  const Token *New = find(*R, "NEW-NAME");
  ASSERT_NE(New, nullptr);
  EXPECT_EQ(written(*R, New), "main.cbl:3:35");
  EXPECT_TRUE(New->hasFlag(Token::Replaced));
  EXPECT_EQ(expanded(New), "2:11");
  EXPECT_EQ(lineOf(R->getExpandedText(), 2), "       01 NEW-NAME PIC X.");
  EXPECT_EQ(written(*R, find(*R, "PIC")), "REP.cpy:1:15");
  EXPECT_EQ(expanded(find(*R, "PIC")), "2:20");
}

TEST_F(ReaderTest, ReplacingOperandsIdentifiersLiteralsAndEmptyText) {
  write("main.cbl",
        fixed({"COPY M REPLACING A OF B BY C \"OLD\" BY \"NEW\"",
               "    W(1) BY V ==GONE== BY ====."}));
  write("M.cpy", fixed({"MOVE A OF B TO D. MOVE \"OLD\" TO A. MOVE W(1) TO W(2) GONE."}));
  auto R = read("main.cbl");
  EXPECT_EQ(texts(*R),
            "MOVE C TO D . MOVE \"NEW\" TO A . MOVE V TO W ( 2 ) .");
}

TEST_F(ReaderTest, ReplacedTextIsNotMatchedAgain) {
  write("main.cbl",
        fixed({"COPY M REPLACING ==A== BY ==A A== ==X== BY ==Y== ==Y== BY ==Z==."}));
  write("M.cpy", fixed({"A B X Y."}));
  EXPECT_EQ(texts(*read("main.cbl")), "A A B Y Z .");
}

TEST_F(ReaderTest, LeadingAndTrailingReplacePartsOfWords) {
  write("main.cbl", fixed({"COPY M REPLACING LEADING ==PRE== BY ==NEW==",
                           "                 TRAILING ==-IN== BY ==-OUT==",
                           "                 LEADING ==DROP-== BY ====."}));
  write("M.cpy", fixed({"PRE-X PREFIX XPRE pre-y A-IN B-INX DROP-ME PRE."}));
  auto R = read("main.cbl");
  EXPECT_EQ(texts(*R), "NEW-X NEWFIX XPRE NEW-y A-OUT B-INX ME NEW .");
  // The changed word stays where it was written.
  EXPECT_EQ(written(*R, find(*R, "A-OUT")), "M.cpy:1:32");
}

TEST_F(ReaderTest, CopyReplacingComesBeforeReplace) {
  write("main.cbl", fixed({"REPLACE ==B== BY ==C==.", "COPY M REPLACING ==A== BY ==B==.",
                           "B."}));
  write("M.cpy", fixed({"A."}));
  EXPECT_EQ(texts(*read("main.cbl")), "C . C .");
}

TEST_F(ReaderTest, ReplaceMatchesAStatementSplitAcrossACopy) {
  write("main.cbl", fixed({"REPLACE ==MOVE X TO Y== BY ==MOVE Z TO Y==.",
                           "MOVE X", "COPY SPLIT.", "STOP RUN."}));
  write("SPLIT.cpy", fixed({"TO Y."}));
  auto R = read("main.cbl");
  EXPECT_EQ(texts(*R), "MOVE Z TO Y . STOP RUN .");
  // The replacing text stands where MOVE X was; the period keeps its place
  // in the copybook.
  EXPECT_EQ(written(*R, find(*R, "Z")), "main.cbl:1:42");
  EXPECT_EQ(expanded(find(*R, "Z")), "2:13");
}

TEST_F(ReaderTest, ReplaceScopesAlsoLastOffAndOff) {
  write("main.cbl", fixed({"REPLACE ==A== BY ==B==.", "A C.",
                           "REPLACE ALSO ==C== BY ==D==.", "A C.",
                           "REPLACE LAST OFF.", "A C.",
                           "REPLACE ==C== BY ==E==.", "A C.",
                           "REPLACE OFF.", "A C.", "REPLACE LAST OFF."}));
  auto R = read("main.cbl");
  EXPECT_EQ(texts(*R), "B C . B D . B C . A E . A C .");
  EXPECT_EQ(diags(*R), Dir + "/main.cbl:11:8: error: REPLACE LAST OFF with "
                             "no REPLACE in effect\n");
}

TEST_F(ReaderTest, BadReplaceStatementsAreDiagnosed) {
  write("main.cbl", fixed({"REPLACE ==A== BY ==B==", "A.", "REPLACE ==X BY Y."}));
  auto R = read("main.cbl");
  std::string F = Dir + "/main.cbl";
  // Without its period the first statement takes in "A" as an operand.
  EXPECT_EQ(diags(*R), F + ":2:9: error: expected BY in REPLACE\n" + F +
                           ":3:16: error: unterminated pseudo-text\n");
  EXPECT_EQ(texts(*R), "");
}

TEST_F(ReaderTest, ExecBlocksAreOneTokenWithFoldedSpaces) {
  write("main.cbl", fixed({"PROCEDURE DIVISION.", "    EXEC SQL",
                           "       SELECT A   INTO :B",
                           "* comment", "       FROM T WHERE C = 'X  Y'",
                           "    END-EXEC.", "    EXEC CICS RETURN END-EXEC"}));
  auto R = read("main.cbl");
  const Token *Sql = find(*R, "EXEC SQL SELECT A INTO :B FROM T WHERE C = "
                              "'X  Y' END-EXEC");
  ASSERT_NE(Sql, nullptr);
  EXPECT_EQ(Sql->Kind, tok::ExecBlock);
  EXPECT_EQ(written(*R, Sql), "main.cbl:2:12");
  EXPECT_EQ(writtenEnd(*R, Sql), "main.cbl:6:19");
  EXPECT_EQ(expanded(Sql), "2:12");
  EXPECT_EQ(texts(*R), "PROCEDURE DIVISION . " + Sql->Text +
                           " . EXEC CICS RETURN END-EXEC");

  write("open.cbl", fixed({"EXEC SQL SELECT", "STOP RUN."}));
  auto Open = read("open.cbl");
  EXPECT_EQ(texts(*Open), "EXEC SQL SELECT STOP RUN.");
  EXPECT_EQ(diags(*Open),
            Dir + "/open.cbl:1:8: error: EXEC block without END-EXEC\n");
}

TEST_F(ReaderTest, ExecSqlIncludeIsCopiedLikeAMember) {
  write("main.cbl", fixed({"WORKING-STORAGE SECTION.",
                           "    EXEC SQL INCLUDE DCLT END-EXEC.",
                           "    EXEC SQL INCLUDE SQLCA END-EXEC.", "01 X PIC X."}));
  write("DCLT.dcl", fixed({"01 DCLT-ROW PIC X."}));
  ReaderOptions O;
  O.CopyExtensions = {".dcl"};
  auto R = read("main.cbl", O);
  EXPECT_EQ(texts(*R), "WORKING-STORAGE SECTION . 01 DCLT-ROW PIC X . EXEC "
                       "SQL INCLUDE SQLCA END-EXEC . 01 X PIC X .");
  ASSERT_EQ(R->getCopyTargets().size(), 1u);
  EXPECT_EQ(R->getCopyTargets()[0].Member, "DCLT");
  EXPECT_EQ(R->getCopyTargets()[0].Line, 2u);
  ASSERT_EQ(R->getMissingCopybooks().size(), 1u);
  EXPECT_EQ(R->getMissingCopybooks()[0].Member, "SQLCA");
  EXPECT_EQ(R->getMissingCopybooks()[0].Line, 3u);
}

} // namespace
