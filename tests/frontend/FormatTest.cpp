//===- tests/frontend/FormatTest.cpp - Reference format, tokens, encodings ===//

#include "ReaderTestSupport.h"

#include <iconv.h>

using namespace korvid;
using namespace korvid::test;

namespace {

/// \p Text padded with spaces to column 72, then \p Tail (columns 73 on).
std::string card(std::string Text, const std::string &Tail) {
  Text.resize(72, ' ');
  return Text + Tail;
}

TEST_F(ReaderTest, FixedFormatAreasCommentsAndDebuggingLines) {
  write("p.cbl", card("000100 IDENTIFICATION DIVISION.", "IGNORED1") + "\n" +
                     "000200* A COMMENT WITH AN 'UNCLOSED QUOTE\n"
                     "000300/ PAGE EJECT\n"
                     "000400D    DISPLAY \"DEBUG\".\n"
                     "000500 PROGRAM-ID. P1.\n");
  auto R = read("p.cbl");
  EXPECT_EQ(texts(*R), "IDENTIFICATION DIVISION . PROGRAM-ID . P1 .");
  EXPECT_EQ(diags(*R), "");
  // Without COPY the expanded source keeps every token where it was written.
  const Token *Id = find(*R, "PROGRAM-ID");
  EXPECT_EQ(expanded(Id), "5:8");
  EXPECT_EQ(written(*R, Id), "p.cbl:5:8");
  EXPECT_EQ(lineOf(R->getExpandedText(), 5), "       PROGRAM-ID. P1.");

  ReaderOptions Debug;
  Debug.DebuggingMode = true;
  EXPECT_EQ(texts(*read("p.cbl", Debug)),
            "IDENTIFICATION DIVISION . DISPLAY \"DEBUG\" . PROGRAM-ID . P1 .");
}

TEST_F(ReaderTest, WithDebuggingModeTurnsDebuggingLinesOn) {
  write("p.cbl", fixed({"SOURCE-COMPUTER. X WITH DEBUGGING MODE."}) +
                     "      D    DISPLAY 1.\n");
  EXPECT_EQ(texts(*read("p.cbl")),
            "SOURCE-COMPUTER . X WITH DEBUGGING MODE . DISPLAY 1 .");
}

TEST_F(ReaderTest, SourceDirectivesSwitchFormats) {
  write("p.cbl", "       >>SOURCE FORMAT IS FREE\n"
                 "MOVE A TO B. *> a comment \"not a literal\n"
                 "*> a comment line\n"
                 "DISPLAY 'A LINE RUNNING PAST COLUMN EIGHTY ....................................' X.\n"
                 ">>SOURCE FIXED\n"
                 "000600 STOP RUN.\n");
  ReaderOptions O;
  O.Format = SourceFormat::Fixed;
  auto R = read("p.cbl", O);
  EXPECT_EQ(texts(*R),
            "MOVE A TO B . DISPLAY 'A LINE RUNNING PAST COLUMN EIGHTY "
            "....................................' X . STOP RUN .");
  EXPECT_EQ(diags(*R), "");
  EXPECT_EQ(written(*R, find(*R, "MOVE")), "p.cbl:2:1");
}

TEST_F(ReaderTest, FreeFormatStarCommentsAndDebuggingLines) {
  write("p.cbl", "* A COMMENT IN THE MICRO FOCUS STYLE\n"
                 "MOVE A TO B.\n"
                 ">>D DISPLAY A.\n");
  ReaderOptions O;
  O.Format = SourceFormat::Free;
  EXPECT_EQ(texts(*read("p.cbl", O)),
            "* A COMMENT IN THE MICRO FOCUS STYLE MOVE A TO B .");
  O.FreeStarComments = true;
  O.DebuggingMode = true;
  EXPECT_EQ(texts(*read("p.cbl", O)), "MOVE A TO B . DISPLAY A .");
}

TEST_F(ReaderTest, VariableFormatReadsToColumn250) {
  std::string Line = "000100 MOVE A TO";
  Line.resize(200, ' ');
  Line += "B.";
  Line.resize(250, ' ');
  Line += "IGNORED";
  write("p.cbl", Line + "\n");
  ReaderOptions O;
  O.Format = SourceFormat::Variable;
  EXPECT_EQ(texts(*read("p.cbl", O)), "MOVE A TO B .");
  O.Format = SourceFormat::Fixed;
  EXPECT_EQ(texts(*read("p.cbl", O)), "MOVE A TO");
}

TEST_F(ReaderTest, FormatIsDetectedWhenNotGiven) {
  // Text in columns 1-6 that is no sequence number: free.
  write("free.cbl", "IDENTIFICATION DIVISION.\nPROGRAM-ID. F.\n");
  EXPECT_EQ(texts(*read("free.cbl")), "IDENTIFICATION DIVISION . PROGRAM-ID . F .");
  // Sequence numbers, and a sequence area holding letters but with an
  // indicator in column 7: fixed.
  write("fixed.cbl", "000100 PROGRAM-ID. F.                 \n"
                     "ABCDEF* ANYTHING IN COLUMNS 1-6\n"
                     "XYZ    STOP RUN.\n");
  auto R = read("fixed.cbl");
  EXPECT_EQ(texts(*R), "PROGRAM-ID . F . STOP RUN .");
  EXPECT_EQ(written(*R, find(*R, "STOP")), "fixed.cbl:3:8");
}

TEST_F(ReaderTest, TabsCarriageReturnsFormFeedsAndNoFinalNewline) {
  // A tab goes to the next multiple-of-8 column stop: "\tMOVE" puts MOVE in
  // column 9.
  write("p.cbl", "\tMOVE A TO B.\r\n"
                 "000200\f    DISPLAY X.\r\n"
                 "\t  STOP RUN.");
  auto R = read("p.cbl");
  EXPECT_EQ(texts(*R), "MOVE A TO B . DISPLAY X . STOP RUN .");
  EXPECT_EQ(written(*R, find(*R, "MOVE")), "p.cbl:1:9");
  EXPECT_EQ(written(*R, find(*R, "STOP")), "p.cbl:3:11");
  EXPECT_EQ(written(*R, find(*R, "DISPLAY")), "p.cbl:2:12");
  EXPECT_EQ(R->getExpandedText().back(), '\n');
}

TEST_F(ReaderTest, CardsAndUnknownDirectivesAreSkippedWithAWarning) {
  write("p.cbl", "       CBL NOADV,APOST\n"
                 "      $SET SOURCEFORMAT\"FREE\"\n"
                 "MOVE A TO B.\n"
                 ">>IF X DEFINED\n"
                 "STOP RUN.\n");
  ReaderOptions O;
  O.Format = SourceFormat::Fixed;
  auto R = read("p.cbl", O);
  EXPECT_EQ(texts(*R), "MOVE A TO B . STOP RUN .");
  EXPECT_EQ(diags(*R), R->getMainFileName() + ":1:8: warning: 'CBL' card skipped\n" +
                           R->getMainFileName() + ":2:7: warning: '$SET' card skipped\n" +
                           R->getMainFileName() +
                           ":4:1: warning: unknown compiler directive '>>IF' ignored\n");
  EXPECT_FALSE(R->getDiagnostics().hasErrors());
}

TEST_F(ReaderTest, ContinuedAlphanumericLiteralRunsToColumn72) {
  write("p.cbl", fixed({"01 A PIC X(80) VALUE \"ABC",
                        "* a comment line between does not matter"}) +
                     "      -    \"DEF\".\n" + fixed({"01 B PIC X."}));
  auto R = read("p.cbl");
  const Token &Lit = R->getTokens()[5];
  EXPECT_EQ(Lit.Kind, tok::AlphanumericLiteral);
  EXPECT_EQ(Lit.Text, "\"ABC" + std::string(40, ' ') + "DEF\"");
  EXPECT_EQ(written(*R, &Lit), "p.cbl:1:29");
  EXPECT_EQ(writtenEnd(*R, &Lit), "p.cbl:3:16");
  // The joined literal stands on its first line, the period after it too;
  // the lines after keep their numbers.
  EXPECT_EQ(expanded(&Lit), "1:29");
  EXPECT_EQ(expanded(&R->getTokens()[6]), "1:77");
  EXPECT_EQ(expanded(find(*R, "B")), "4:11");
  EXPECT_EQ(diags(*R), "");
}

TEST_F(ReaderTest, ContinuedHexNationalWordsAndNumbers) {
  write("q.cbl", "       MOVE X\"4142\n"
                 "      -    \"43\" TO ABC\n"
                 "      -    DEF.\n"
                 "       MOVE 12\n"
                 "      -    34 TO Y.\n"
                 "       MOVE -\n"
                 "      -    9\n"
                 "      -    .\n"
                 "      -    5 TO Z.\n");
  auto R = read("q.cbl");
  EXPECT_EQ(texts(*R),
            "MOVE X\"4142" + std::string(54, ' ') +
                "43\" TO ABCDEF . MOVE 1234 TO Y . MOVE -9.5 TO Z .");
  EXPECT_EQ(R->getTokens()[1].Kind, tok::HexLiteral);
  EXPECT_EQ(find(*R, "1234")->Kind, tok::NumericLiteral);
  EXPECT_EQ(find(*R, "-9.5")->Kind, tok::NumericLiteral);
  EXPECT_EQ(written(*R, find(*R, "ABCDEF")), "q.cbl:2:20");
  EXPECT_EQ(writtenEnd(*R, find(*R, "ABCDEF")), "q.cbl:3:14");
  EXPECT_EQ(diags(*R), "");
}

TEST_F(ReaderTest, FreeFormatLiteralsContinueWithAHyphen) {
  write("p.cbl", "MOVE \"ABC \"-\n"
                 "*> a comment line between\n"
                 "     \"DEF\" TO X. MOVE \"A\" - 1.\n");
  auto R = readFree("p.cbl");
  EXPECT_EQ(texts(*R), "MOVE \"ABC DEF\" TO X . MOVE \"A\" - 1 .");
  EXPECT_EQ(writtenEnd(*R, find(*R, "\"ABC DEF\"")), "p.cbl:3:10");
}

TEST_F(ReaderTest, DoubledQuoteSplitAtColumn72) {
  std::string First = "       MOVE \"AB";
  First.resize(71, 'C');
  write("p.cbl", First + "\"\n      -    \"\"D\" TO X.\n");
  auto R = read("p.cbl");
  EXPECT_EQ(R->getTokens()[1].Text,
            "\"AB" + std::string(56, 'C') + "\"\"D\"");
  EXPECT_EQ(diags(*R), "");
}

TEST_F(ReaderTest, BadContinuationsAreDiagnosedAndReadingGoesOn) {
  write("p.cbl", fixed({"MOVE \"ABC"}) + "      -    DEF TO X.\n" +
                     fixed({"DISPLAY 'OPEN", "STOP RUN."}));
  auto R = read("p.cbl");
  std::string F = R->getMainFileName();
  EXPECT_EQ(diags(*R),
            F + ":2:12: error: the continuation line must repeat the quote "
                "to continue the literal\n" +
                F + ":3:16: error: unterminated literal\n");
  EXPECT_EQ(texts(*R), "MOVE \"ABC DEF TO X . DISPLAY 'OPEN STOP RUN .");
}

TEST_F(ReaderTest, TokenKinds) {
  write("p.cbl",
        fixed({"DATA DIVISION.", "01 A.", "   05 B PIC S9(5)V99 VALUE -12.5.",
               "   05 C PICTURE IS ZZ,ZZ9.99, VALUE +.5.",
               "88 D VALUE 'IT''S' X\"4F\" N\"N1\" NX\"0041\" B\"1\" Z'Z'.",
               "PROCEDURE DIVISION.",
               "COMPUTE X = Y ** 2 + 1.5E+3 - Z / 2 * 1; A(1:2) & 'S'.",
               "IF A >= B OR A <= B OR A <> B OR A < B OR A > B."}));
  auto R = read("p.cbl");
  std::string Kinds;
  for (const Token &T : R->getTokens())
    if (T.Kind != tok::Word)
      Kinds += std::string(tok::getKindName(T.Kind)) + ":" + T.Text + " ";
  EXPECT_EQ(Kinds,
            "Period:. LevelNumber:01 Period:. LevelNumber:05 "
            "PictureString:S9(5)V99 NumericLiteral:-12.5 Period:. "
            "LevelNumber:05 PictureString:ZZ,ZZ9.99 Comma:, "
            "NumericLiteral:+.5 Period:. LevelNumber:88 "
            "AlphanumericLiteral:'IT''S' HexLiteral:X\"4F\" "
            "NationalLiteral:N\"N1\" NationalHexLiteral:NX\"0041\" "
            "BooleanLiteral:B\"1\" NullTerminatedLiteral:Z'Z' Period:. "
            "Period:. Equal:= Power:** NumericLiteral:2 Plus:+ "
            "FloatLiteral:1.5E+3 Minus:- Slash:/ NumericLiteral:2 Star:* "
            "NumericLiteral:1 Semicolon:; LParen:( NumericLiteral:1 Colon:: "
            "NumericLiteral:2 RParen:) Ampersand:& AlphanumericLiteral:'S' "
            "Period:. GreaterEqual:>= LessEqual:<= NotEqual:<> Less:< "
            "Greater:> Period:. ");
  EXPECT_EQ(find(*R, "-12.5")->Flags & (Token::Signed | Token::Decimal),
            Token::Signed | Token::Decimal);
  EXPECT_EQ(find(*R, "COMPUTE")->getUpper(), "COMPUTE");
  EXPECT_EQ(diags(*R), "");
}

TEST_F(ReaderTest, WordsKeepTheirSpellingAndNormaliseToUpperCase) {
  write("p.cbl", fixed({"move Wrk_Item-1 to x."}));
  auto R = read("p.cbl");
  EXPECT_EQ(R->getTokens()[1].Text, "Wrk_Item-1");
  EXPECT_EQ(R->getTokens()[1].getUpper(), "WRK_ITEM-1");
  EXPECT_EQ(R->getTokens()[1].Kind, tok::Word);
}

TEST_F(ReaderTest, DecimalPointIsCommaChangesNumbersFromThere) {
  write("p.cbl", fixed({"MOVE 1,5 TO X.", "SPECIAL-NAMES. DECIMAL-POINT IS COMMA.",
                        "MOVE 1,5 TO X. MOVE 1, 5 TO X."}));
  auto R = read("p.cbl");
  EXPECT_EQ(texts(*R), "MOVE 1 , 5 TO X . SPECIAL-NAMES . DECIMAL-POINT IS "
                       "COMMA . MOVE 1,5 TO X . MOVE 1 , 5 TO X .");
  EXPECT_EQ(find(*R, "1,5")->Kind, tok::NumericLiteral);
}

TEST_F(ReaderTest, CommentEntriesAreOneToken) {
  write("p.cbl", fixed({"IDENTIFICATION DIVISION.", "PROGRAM-ID. P.",
                        "AUTHOR. SOMEONE'S NAME,", "    AND \"MORE.",
                        "INSTALLATION.", "ENVIRONMENT DIVISION."}));
  auto R = read("p.cbl");
  EXPECT_EQ(texts(*R), "IDENTIFICATION DIVISION . PROGRAM-ID . P . AUTHOR . "
                       "SOMEONE'S NAME, AND \"MORE. INSTALLATION . "
                       "ENVIRONMENT DIVISION .");
  EXPECT_EQ(find(*R, "SOMEONE'S NAME, AND \"MORE.")->Kind, tok::CommentEntry);
  EXPECT_EQ(diags(*R), "");
}

std::string fromUTF8(const std::string &S, const char *To) {
  iconv_t CD = iconv_open(To, "UTF-8");
  std::string Out(S.size() * 4, '\0');
  char *In = const_cast<char *>(S.data()), *O = &Out[0];
  size_t InLeft = S.size(), OutLeft = Out.size();
  iconv(CD, &In, &InLeft, &O, &OutLeft);
  iconv_close(CD);
  Out.resize(Out.size() - OutLeft);
  return Out;
}

TEST_F(ReaderTest, EncodingsComeOutAsUTF8) {
  // Not UTF-8: read as Latin-1. Columns count characters.
  write("latin1.cbl", "       MOVE 'CAF\xC9' TO X.\n");
  auto R = read("latin1.cbl");
  EXPECT_EQ(R->getTokens()[1].Text, "'CAF\xC3\x89'");
  EXPECT_EQ(written(*R, find(*R, "TO")), "latin1.cbl:1:20");
  EXPECT_EQ(expanded(find(*R, "TO")), "1:20");
  // Named encodings go through iconv; EBCDIC lines end with NL (0x15).
  std::string Ebcdic = fromUTF8("       DISPLAY '\xC3\xA9t\xC3\xA9'.\n"
                                "       STOP RUN.\n",
                                "IBM037");
  for (char &C : Ebcdic)
    if (C == '\x25')
      C = '\x15';
  write("ebcdic.cbl", Ebcdic);
  ReaderOptions O;
  O.Encoding = "IBM-037";
  auto E = read("ebcdic.cbl", O);
  EXPECT_EQ(diags(*E), "");
  EXPECT_EQ(texts(*E), "DISPLAY '\xC3\xA9t\xC3\xA9' . STOP RUN .");
  write("utf16.cbl", fromUTF8("       STOP RUN.\n", "UTF-16LE"));
  O.Encoding = "UTF-16LE";
  EXPECT_EQ(texts(*read("utf16.cbl", O)), "STOP RUN .");
  O.Encoding = "NO-SUCH-ENCODING";
  auto Bad = read("ebcdic.cbl", O);
  EXPECT_TRUE(Bad->getTokens().empty());
  EXPECT_NE(diags(*Bad).find("error: cannot convert"), std::string::npos);
}

TEST_F(ReaderTest, BinaryAndUnreadableFilesAreDiagnosed) {
  write("bin.cbl", std::string("\x7F" "ELF\0\0\1", 7));
  SourceReader R;
  EXPECT_FALSE(R.readFile(Dir + "/bin.cbl"));
  EXPECT_EQ(diags(R), Dir + "/bin.cbl: error: '" + Dir +
                          "/bin.cbl' is not a text file (it holds NUL bytes)\n");
  SourceReader Missing;
  EXPECT_FALSE(Missing.readFile(Dir + "/none.cbl"));
  EXPECT_EQ(diags(Missing), Dir + "/none.cbl: error: cannot read '" + Dir +
                                "/none.cbl': No such file or directory\n");
}

TEST_F(ReaderTest, UnknownCharactersAreErrorsOutsidePictures) {
  write("p.cbl", fixed({"01 A PIC $$,$$9.", "MOVE A TO B @ C."}));
  auto R = read("p.cbl");
  EXPECT_EQ(find(*R, "$$,$$9")->Kind, tok::PictureString);
  EXPECT_EQ(diags(*R), R->getMainFileName() +
                           ":2:20: error: invalid character '@'\n");
}

} // namespace
