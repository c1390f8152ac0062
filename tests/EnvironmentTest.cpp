//===- tests/EnvironmentTest.cpp - Identification and environment divisions ===//

#include "TreeBuilder.h"
#include "EmitterHarness.h"
#include "XMLCompare.h"
#include "korvid/XMLOstrel.h"

#include <tinyxml2.h>

#include <cstdio>
#include <string>

using namespace korvid;
using korvid::test::readFile;
using korvid::test::sameXML;
using korvid::test::tempPath;
using korvid::test::TreeBuilder;

namespace {

/// An emitter that hands out the document of one visited subtree.
using EnvEmitter = korvid::test::TestEmitter;

/// The location attributes of a one-line extent of the main file, with the
/// file marks \p Fid (expanded) and \p FidOrg (as written).
std::string span(unsigned Line, unsigned Begin, unsigned End, int Fid = 1,
                 int FidOrg = 1) {
  auto A = [](const char *Name, unsigned long V) {
    return std::string(" ") + Name + "=\"" + std::to_string(V) + "\"";
  };
  return A("lbl", Line) + A("lbc", Begin) + A("lel", Line) + A("lec", End) +
         A("lblo", Line) + A("lbco", Begin) + A("lelo", Line) +
         A("leco", End) + A("lfid", Fid) + A("lfido", FidOrg);
}

/// Literals and identifiers placed on one line of the main file.
struct EnvTree : TreeBuilder {
  NumericLiteralExpression *num(const std::string &Digits, uint32_t Line,
                                uint32_t Col) {
    auto *L = at<NumericLiteralExpression>(
        Line, Col, Line, Col + static_cast<uint32_t>(Digits.size()) - 1);
    L->setData(Digits);
    return L;
  }
  /// 'Chars' written at Col (the quotes included in its extent).
  NonNumericLiteralExpression *str(const std::string &Chars, uint32_t Line,
                                   uint32_t Col) {
    auto *L = at<NonNumericLiteralExpression>(
        Line, Col, Line, Col + static_cast<uint32_t>(Chars.size()) + 1);
    L->setData(Chars);
    return L;
  }
  DataIdentifierExpression *ident(const std::string &Name, uint32_t Line,
                                  uint32_t Col) {
    Word *W = word(Name, Line, Col);
    uint32_t End = W->getEndCharPos();
    auto *Q = at<QualifiedWord>(Line, Col, Line, End, nullptr, W);
    auto *D = at<DataIdentifierExpression>(Line, Col, Line, End);
    D->setName(Q);
    return D;
  }

  // The same without any location, as a front end that places nothing
  // would hand them over: every child then keeps its order of emission.
  Word *bareWord(const std::string &Text) {
    std::string Upper = Text;
    for (char &C : Upper)
      C = static_cast<char>(std::toupper(static_cast<unsigned char>(C)));
    return P.create<Word>(Upper, Text);
  }
  template <class L> L *bareLiteral(const std::string &Data) {
    auto *E = P.create<L>();
    E->setData(Data);
    return E;
  }
  DataIdentifierExpression *bareIdent(const std::string &Name) {
    auto *D = P.create<DataIdentifierExpression>();
    D->setName(P.create<QualifiedWord>(nullptr, bareWord(Name)));
    return D;
  }
};

/// The text of a data identifier's element for a name nobody resolved.
std::string dataIdent(const std::string &Name) {
  return "<DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>" + Name +
         "</QUALIFIED></DATA_IDENTIFIER>";
}

//===----------------------------------------------------------------------===//
// IDENTIFICATION DIVISION
//===----------------------------------------------------------------------===//

TEST(IdentificationDivision, ProgramIdNameAndAttributes) {
  {
    // PROGRAM-ID. p1 IS INITIAL COMMON PROGRAM.
    // COMMON stands in its second slot; the children follow the words.
    EnvTree T;
    auto *Id = T.at<IdentificationDivision>(1, 8, 2, 48);
    auto *Para = T.at<ProgramIdParagraph>(2, 8, 2, 48);
    Id->setProgramIDPara(Para);
    Para->setProgramNameWord(T.word("p1", 2, 20));
    Para->setInitialWord(T.word("INITIAL", 2, 26));
    Para->setCommon2Word(T.word("COMMON", 2, 34));
    EnvEmitter E;
    EXPECT_TRUE(sameXML("<ID_DIVISION><PROGRAM_NAME" + span(2, 20, 21) +
                            ">P1</PROGRAM_NAME><INITIAL" + span(2, 26, 32) +
                            ">TRUE</INITIAL><COMMON" + span(2, 34, 39) +
                            ">TRUE</COMMON></ID_DIVISION>",
                        E.visited(Id, true)));
  }
  {
    // PROGRAM-ID. Sub-Prog RECURSIVE COMMON INITIAL. A word in the other
    // slot as well still gives one element, located at the first slot.
    EnvTree T;
    auto *Id = T.at<IdentificationDivision>(5, 8, 5, 53);
    auto *Para = T.at<ProgramIdParagraph>(5, 8, 5, 53);
    Id->setProgramIDPara(Para);
    Para->setProgramNameWord(T.word("Sub-Prog", 5, 20));
    Para->setRecursiveWord(T.word("RECURSIVE", 5, 29));
    Para->setCommonWord(T.word("COMMON", 5, 39));
    Para->setInitialWord(T.word("INITIAL", 5, 46));
    Para->setInitial2Word(T.word("INITIAL", 5, 60));
    EnvEmitter E;
    EXPECT_TRUE(sameXML(
        "<ID_DIVISION><PROGRAM_NAME" + span(5, 20, 27) +
            ">SUB-PROG</PROGRAM_NAME><RECURSIVE" + span(5, 29, 37) +
            ">TRUE</RECURSIVE><COMMON" + span(5, 39, 44) +
            ">TRUE</COMMON><INITIAL" + span(5, 46, 52) +
            ">TRUE</INITIAL></ID_DIVISION>",
        E.visited(Id, true)));
  }
  {
    // A plain PROGRAM-ID, and one whose name the parser did not keep.
    EnvTree T;
    auto *Id = T.at<IdentificationDivision>(1, 8, 2, 25);
    auto *Para = T.at<ProgramIdParagraph>(2, 8, 2, 25);
    Id->setProgramIDPara(Para);
    Para->setProgramNameWord(T.word("Payroll", 2, 20));
    EnvEmitter E;
    EXPECT_TRUE(sameXML("<ID_DIVISION><PROGRAM_NAME>PAYROLL</PROGRAM_NAME>"
                        "</ID_DIVISION>",
                        E.visited(Id, false)));
    Para->setProgramNameWord(nullptr);
    EnvEmitter E2;
    EXPECT_TRUE(sameXML("<ID_DIVISION/>", E2.visited(Id, false)));
  }
}

//===----------------------------------------------------------------------===//
// CONFIGURATION SECTION
//===----------------------------------------------------------------------===//

TEST(ConfigurationSection, ComputerParagraphs) {
  //  5 SOURCE-COMPUTER. ibm-370 WITH DEBUGGING MODE.
  //  6 OBJECT-COMPUTER. Ibm-370
  //  7     MEMORY SIZE 8000 words
  //  8     PROGRAM COLLATING SEQUENCE IS myAlpha
  //  9     SEGMENT-LIMIT IS 50.
  // 10 SPECIAL-NAMES.
  EnvTree T;
  auto *Config = T.at<ConfigurationSection>(4, 8, 10, 21);
  auto *Source = T.at<ParaSourceComputer>(5, 8, 5, 54);
  Source->setComputerName(T.word("ibm-370", 5, 25));
  Source->setDebuggingWord(T.word("DEBUGGING", 5, 38));
  auto *Object = T.at<ParaObjectComputer>(6, 8, 9, 31);
  Object->setComputerName(T.word("Ibm-370", 6, 25));
  auto *Memory = T.at<ClauseMemorySize>(7, 12, 7, 33);
  Memory->setSize(T.num("8000", 7, 24));
  Memory->setSizeUnit(T.word("words", 7, 29));
  Object->setMemSize(Memory);
  auto *Sequence = T.at<ClauseSequence>(8, 12, 8, 48);
  Sequence->setSequence(T.word("myAlpha", 8, 42));
  Object->setSequence(Sequence);
  auto *Segment = T.at<ClauseSegmentLimit>(9, 12, 9, 30);
  Segment->setLimit(T.num("50", 9, 29));
  Object->setSegment(Segment);
  Config->setSourceComputer(Source);
  Config->setObjectComputer(Object);
  Config->setSpecialNames(T.at<ParaSpecialNames>(10, 8, 10, 21));

  // The source computer's name is normalised, the object computer's as
  // written; an empty SPECIAL-NAMES still has its element.
  EnvEmitter E;
  EXPECT_TRUE(sameXML(R"(
<CONFIGURATION_SECTION>
  <SOURCE_COMPUTER>
    <NAME>IBM-370</NAME><DEBUGGING_MODE>TRUE</DEBUGGING_MODE>
  </SOURCE_COMPUTER>
  <OBJECT_COMPUTER>
    <NAME>Ibm-370</NAME>
    <MEMORY><VALUE>8000</VALUE><TYPE>words</TYPE></MEMORY>
    <COLLATING_SEQUENCE><Sequence>myAlpha</Sequence></COLLATING_SEQUENCE>
    <SEGMENT><VALUE>50</VALUE></SEGMENT>
  </OBJECT_COMPUTER>
  <SPECIAL_NAMES/>
</CONFIGURATION_SECTION>)",
                      E.visited(Config, false)));

  // Absent clauses and paragraphs leave nothing behind.
  Object->setMemSize(nullptr);
  Object->setSequence(nullptr);
  Object->setSegment(nullptr);
  Source->setDebuggingWord(nullptr);
  Config->setSpecialNames(nullptr);
  EnvEmitter E2;
  EXPECT_TRUE(sameXML(R"(
<CONFIGURATION_SECTION>
  <SOURCE_COMPUTER><NAME>IBM-370</NAME></SOURCE_COMPUTER>
  <OBJECT_COMPUTER><NAME>Ibm-370</NAME></OBJECT_COMPUTER>
</CONFIGURATION_SECTION>)",
                      E2.visited(Config, false)));
}

TEST(ConfigurationSection, SpecialNamesClauses) {
  // 11 SYSIN IS my-input ON STATUS IS in-on OFF STATUS IS in-off
  // 12 UPSI-0 IS switch-0 ON STATUS IS sw-on
  // 13 ALPHABET std IS standard-1
  // 14 ALPHABET one IS 'X'
  // 15 ALPHABET rng IS 'A' THRU 'Z' ALSO '0' ALSO '1'
  // 16 CLASS hexa IS '0' THRU '9' 'A' THRU 'F'
  // 17 CLASS onlyq IS 'Q'
  // 18 CURRENCY SIGN IS 'EUR' WITH PICTURE SYMBOL 'E'
  // 19 CURRENCY SIGN IS '$'
  // 20 DECIMAL-POINT IS COMMA.
  EnvTree T;
  auto *Names = T.at<ParaSpecialNames>(10, 8, 20, 33);

  auto *Sysin = T.at<ClauseEnvName>(11, 12, 11, 68);
  Sysin->setEnvironmentName(T.word("SYSIN", 11, 12));
  Sysin->setMnemonicName(T.word("my-input", 11, 21));
  auto *On = T.at<PhrsOnOff>(11, 30, 11, 47);
  On->setCondition(T.word("in-on", 11, 43));
  Sysin->setOnCondition(On);
  auto *Off = T.at<PhrsOnOff>(11, 49, 11, 68);
  Off->setCondition(T.word("in-off", 11, 63));
  Sysin->setOffCondition(Off);
  Names->addEnvName(Sysin);
  auto *Upsi = T.at<ClauseEnvName>(12, 12, 12, 48);
  Upsi->setEnvironmentName(T.word("UPSI-0", 12, 12));
  Upsi->setMnemonicName(T.word("switch-0", 12, 22));
  auto *UpsiOn = T.at<PhrsOnOff>(12, 31, 12, 48);
  UpsiOn->setCondition(T.word("sw-on", 12, 44));
  Upsi->setOnCondition(UpsiOn);
  // An OFF phrase that lost its condition name writes no OFF.
  Upsi->setOffCondition(T.at<PhrsOnOff>(12, 50, 12, 52));
  Names->addEnvName(Upsi);

  auto *Std = T.at<ClauseAlphabet>(13, 12, 13, 37);
  Std->setAlphabetName(T.word("std", 13, 21));
  Std->setTypeWord(T.word("standard-1", 13, 28));
  Names->addAlphabet(Std);
  auto *One = T.at<ClauseAlphabet>(14, 12, 14, 30);
  One->setAlphabetName(T.word("one", 14, 21));
  auto *OneScope = T.at<PhrsAlphabetThru>(14, 28, 14, 30);
  OneScope->setLiteral(T.str("X", 14, 28));
  One->addThru(OneScope);
  Names->addAlphabet(One);
  auto *Rng = T.at<ClauseAlphabet>(15, 12, 15, 57);
  Rng->setAlphabetName(T.word("rng", 15, 21));
  auto *RngScope = T.at<PhrsAlphabetThru>(15, 28, 15, 57);
  RngScope->setLiteral(T.str("A", 15, 28));
  RngScope->setThruLiteral(T.str("Z", 15, 37));
  auto *Also0 = T.at<PhrsAlphabetAlso>(15, 41, 15, 48);
  Also0->setLiteral(T.str("0", 15, 46));
  RngScope->addAlso(Also0);
  auto *Also1 = T.at<PhrsAlphabetAlso>(15, 50, 15, 57);
  Also1->setLiteral(T.str("1", 15, 55));
  RngScope->addAlso(Also1);
  Rng->addThru(RngScope);
  Names->addAlphabet(Rng);

  auto *Hexa = T.at<ClauseClass>(16, 12, 16, 51);
  Hexa->setClassName(T.word("hexa", 16, 18));
  auto *Digits = T.at<PhrsClass>(16, 26, 16, 39);
  Digits->setLiteral(T.str("0", 16, 26));
  Digits->setThruLiteral(T.str("9", 16, 35));
  Hexa->addLiteral(Digits);
  auto *Letters = T.at<PhrsClass>(16, 39, 16, 51);
  Letters->setLiteral(T.str("A", 16, 39));
  Letters->setThruLiteral(T.str("F", 16, 48));
  Hexa->addLiteral(Letters);
  Names->addClass(Hexa);
  auto *OnlyQ = T.at<ClauseClass>(17, 12, 17, 29);
  OnlyQ->setClassName(T.word("onlyq", 17, 18));
  auto *Q = T.at<PhrsClass>(17, 27, 17, 29);
  Q->setLiteral(T.str("Q", 17, 27));
  OnlyQ->addLiteral(Q);
  Names->addClass(OnlyQ);

  auto *Euro = T.at<ClauseCurrency>(18, 12, 18, 57);
  Euro->setSignLiteral(T.str("EUR", 18, 29));
  Euro->setSymbolLiteral(T.str("E", 18, 55));
  Names->addCurrency(Euro);
  auto *Dollar = T.at<ClauseCurrency>(19, 12, 19, 30);
  Dollar->setSignLiteral(T.str("$", 19, 29));
  Names->addCurrency(Dollar);
  Names->setDecimalPoint(T.at<ClauseDecimalPoint>(20, 12, 20, 33));

  // Within each entry the children stand in source order: an alphabet's or
  // class's name comes first when it was written first.
  EnvEmitter E;
  EXPECT_TRUE(sameXML(R"(
<SPECIAL_NAMES>
  <ENVIRONMENT_NAME_ENTRY>
    <ENVIRONMENT_NAME>SYSIN</ENVIRONMENT_NAME>
    <MNEMONIC_NAME>my-input</MNEMONIC_NAME>
    <ON>in-on</ON><OFF>in-off</OFF>
  </ENVIRONMENT_NAME_ENTRY>
  <ENVIRONMENT_NAME_ENTRY>
    <ENVIRONMENT_NAME>UPSI-0</ENVIRONMENT_NAME>
    <MNEMONIC_NAME>switch-0</MNEMONIC_NAME>
    <ON>sw-on</ON>
  </ENVIRONMENT_NAME_ENTRY>
  <ALPHABET_ENTRY>
    <ALPHABET_NAME>std</ALPHABET_NAME><TYPE>standard-1</TYPE>
  </ALPHABET_ENTRY>
  <ALPHABET_ENTRY>
    <ALPHABET_NAME>one</ALPHABET_NAME>
    <SCOPE><FROM><VALUE>X</VALUE></FROM><THRU><VALUE>X</VALUE></THRU></SCOPE>
  </ALPHABET_ENTRY>
  <ALPHABET_ENTRY>
    <ALPHABET_NAME>rng</ALPHABET_NAME>
    <SCOPE>
      <FROM><VALUE>A</VALUE></FROM><THRU><VALUE>Z</VALUE></THRU>
      <VALUE>0</VALUE><VALUE>1</VALUE>
    </SCOPE>
  </ALPHABET_ENTRY>
  <CLASS_NAME_ENTRY>
    <NAME>hexa</NAME>
    <CLASS_SCOPE>
      <CLASS_FROM><VALUE>0</VALUE></CLASS_FROM>
      <CLASS_THRU><VALUE>9</VALUE></CLASS_THRU>
    </CLASS_SCOPE>
    <CLASS_SCOPE>
      <CLASS_FROM><VALUE>A</VALUE></CLASS_FROM>
      <CLASS_THRU><VALUE>F</VALUE></CLASS_THRU>
    </CLASS_SCOPE>
  </CLASS_NAME_ENTRY>
  <CLASS_NAME_ENTRY>
    <NAME>onlyq</NAME>
    <CLASS_SCOPE><CLASS_FROM><VALUE>Q</VALUE></CLASS_FROM></CLASS_SCOPE>
  </CLASS_NAME_ENTRY>
  <CURRENCY_ENTRY>
    <SYMBOL><VALUE>EUR</VALUE></SYMBOL>
    <PIC_SYMBOL><VALUE>E</VALUE></PIC_SYMBOL>
  </CURRENCY_ENTRY>
  <CURRENCY_ENTRY><SYMBOL><VALUE>$</VALUE></SYMBOL></CURRENCY_ENTRY>
  <DECIMAL_POINT_COMMA>TRUE</DECIMAL_POINT_COMMA>
</SPECIAL_NAMES>)",
                      E.visited(Names, false)));
}

TEST(ConfigurationSection, SingleLiteralScopes) {
  // 14 ALPHABET one IS 'X'   -- the literal is its own THRU, both located
  //                             at it, FROM first.
  // 17 CLASS onlyq IS 'Q'    -- a class scope gets CLASS_FROM only.
  EnvTree T;
  auto *One = T.at<ClauseAlphabet>(14, 12, 14, 30);
  One->setAlphabetName(T.word("one", 14, 21));
  auto *Scope = T.at<PhrsAlphabetThru>(14, 28, 14, 30);
  Scope->setLiteral(T.str("X", 14, 28));
  One->addThru(Scope);
  const std::string X = span(14, 28, 30);
  EnvEmitter E;
  EXPECT_TRUE(sameXML("<ALPHABET_ENTRY><ALPHABET_NAME" + span(14, 21, 23) +
                          ">one</ALPHABET_NAME><SCOPE" + X + "><FROM" + X +
                          "><VALUE" + X + ">X</VALUE></FROM><THRU" + X +
                          "><VALUE" + X + ">X</VALUE></THRU></SCOPE>"
                          "</ALPHABET_ENTRY>",
                      E.visited(One, true)));

  auto *OnlyQ = T.at<ClauseClass>(17, 12, 17, 29);
  OnlyQ->setClassName(T.word("onlyq", 17, 18));
  auto *Q = T.at<PhrsClass>(17, 27, 17, 29);
  Q->setLiteral(T.str("Q", 17, 27));
  OnlyQ->addLiteral(Q);
  const std::string QAt = span(17, 27, 29);
  EnvEmitter E2;
  EXPECT_TRUE(sameXML("<CLASS_NAME_ENTRY><NAME" + span(17, 18, 22) +
                          ">onlyq</NAME><CLASS_SCOPE" + QAt +
                          "><CLASS_FROM" + QAt + "><VALUE" + QAt +
                          ">Q</VALUE></CLASS_FROM></CLASS_SCOPE>"
                          "</CLASS_NAME_ENTRY>",
                      E2.visited(OnlyQ, true)));

  // A scope whose first literal is missing writes only what is there.
  auto *ThruOnly = T.at<PhrsAlphabetThru>(21, 28, 21, 30);
  ThruOnly->setThruLiteral(T.str("Z", 21, 28));
  EnvEmitter E3;
  EXPECT_TRUE(sameXML("<SCOPE><THRU><VALUE>Z</VALUE></THRU></SCOPE>",
                      E3.visited(ThruOnly, false)));
}

TEST(ConfigurationSection, SymbolicDefinitionCarriesItsLocationString) {
  // 12 SYMBOLIC CHARACTERS s1 s2 ARE 1 2
  // The definition stamps itself: its expanded file is "main.cbl:12:32",
  // which the file table numbers like a file name (1, met first); the as
  // written file stays main.cbl (2). Names come as written.
  EnvTree T;
  auto *Def = T.at<PhrsSymbolic>(12, 32, 12, 44);
  Def->addSource(T.word("s1", 12, 32));
  Def->addSource(T.word("s2", 12, 35));
  Def->addInteger(T.num("1", 12, 42));
  Def->addInteger(T.num("2", 12, 44));
  EnvEmitter E;
  EXPECT_TRUE(sameXML("<SYMBOLIC_DEF" + span(12, 32, 44, 1, 2) +
                          "><CHARACTER" + span(12, 32, 33, 2, 2) +
                          ">s1</CHARACTER><CHARACTER" + span(12, 35, 36, 2, 2) +
                          ">s2</CHARACTER><VALUE" + span(12, 42, 42, 2, 2) +
                          ">1</VALUE><VALUE" + span(12, 44, 44, 2, 2) +
                          ">2</VALUE></SYMBOLIC_DEF>",
                      E.visited(Def, true)));
  EXPECT_EQ(E.handler().getFileId("main.cbl:12:32"), 1);
  EXPECT_EQ(E.handler().getFileId("main.cbl"), 2);
}

TEST(ConfigurationSection, FixedOrderWithoutLocations) {
  // With no locations every child keeps its order of emission: the lists
  // of SPECIAL-NAMES one after the other, an alphabet's scopes before its
  // type and name, a class's name last, symbolic names before integers.
  // Null items are skipped.
  EnvTree T;
  auto *Names = T.P.create<ParaSpecialNames>();
  Names->setDecimalPoint(T.P.create<ClauseDecimalPoint>());
  auto *Currency = T.P.create<ClauseCurrency>();
  Currency->setSignLiteral(T.bareLiteral<NonNumericLiteralExpression>("$"));
  Names->addCurrency(Currency);
  auto *Lower = T.P.create<ClauseClass>();
  Lower->setClassName(T.bareWord("lower"));
  auto *Az = T.P.create<PhrsClass>();
  Az->setLiteral(T.bareLiteral<NonNumericLiteralExpression>("a"));
  Az->setThruLiteral(T.bareLiteral<NonNumericLiteralExpression>("z"));
  Lower->addLiteral(Az);
  Names->addClass(Lower);
  auto *Symbolic = T.P.create<ClauseSymbolic>();
  auto *Def = T.P.create<PhrsSymbolic>();
  Def->addSource(T.bareWord("a"));
  Def->addInteger(T.bareLiteral<NumericLiteralExpression>("1"));
  Def->addSource(T.bareWord("b"));
  Def->addInteger(T.bareLiteral<NumericLiteralExpression>("2"));
  Symbolic->addSymbolic(Def);
  Symbolic->addSymbolic(nullptr);
  Names->addSymbolic(Symbolic);
  auto *Alpha = T.P.create<ClauseAlphabet>();
  Alpha->setAlphabetName(T.bareWord("alpha"));
  Alpha->setTypeWord(T.bareWord("native"));
  auto *Scope = T.P.create<PhrsAlphabetThru>();
  Scope->setLiteral(T.bareLiteral<NonNumericLiteralExpression>("A"));
  Scope->setThruLiteral(T.bareLiteral<NonNumericLiteralExpression>("Z"));
  Scope->addAlso(nullptr);
  Scope->addAlso(T.P.create<PhrsAlphabetAlso>());
  auto *Also = T.P.create<PhrsAlphabetAlso>();
  Also->setLiteral(T.bareLiteral<NonNumericLiteralExpression>("0"));
  Scope->addAlso(Also);
  Alpha->addThru(Scope);
  Names->addAlphabet(Alpha);
  Names->addEnvName(nullptr);
  auto *Env = T.P.create<ClauseEnvName>();
  Env->setEnvironmentName(T.bareWord("SYSOUT"));
  Env->setMnemonicName(T.bareWord("printer"));
  auto *Off = T.P.create<PhrsOnOff>();
  Off->setCondition(T.bareWord("p-off"));
  Env->setOffCondition(Off);
  auto *On = T.P.create<PhrsOnOff>();
  On->setCondition(T.bareWord("p-on"));
  Env->setOnCondition(On);
  Names->addEnvName(Env);

  EnvEmitter E;
  EXPECT_TRUE(sameXML(R"(
<SPECIAL_NAMES>
  <ENVIRONMENT_NAME_ENTRY>
    <ENVIRONMENT_NAME>SYSOUT</ENVIRONMENT_NAME>
    <MNEMONIC_NAME>printer</MNEMONIC_NAME>
    <ON>p-on</ON><OFF>p-off</OFF>
  </ENVIRONMENT_NAME_ENTRY>
  <ALPHABET_ENTRY>
    <SCOPE>
      <FROM><VALUE>A</VALUE></FROM><THRU><VALUE>Z</VALUE></THRU>
      <VALUE>0</VALUE>
    </SCOPE>
    <TYPE>native</TYPE>
    <ALPHABET_NAME>alpha</ALPHABET_NAME>
  </ALPHABET_ENTRY>
  <SYMBOLIC_NAME>
    <SYMBOLIC_DEF>
      <CHARACTER>a</CHARACTER><CHARACTER>b</CHARACTER>
      <VALUE>1</VALUE><VALUE>2</VALUE>
    </SYMBOLIC_DEF>
  </SYMBOLIC_NAME>
  <CLASS_NAME_ENTRY>
    <CLASS_SCOPE>
      <CLASS_FROM><VALUE>a</VALUE></CLASS_FROM>
      <CLASS_THRU><VALUE>z</VALUE></CLASS_THRU>
    </CLASS_SCOPE>
    <NAME>lower</NAME>
  </CLASS_NAME_ENTRY>
  <CURRENCY_ENTRY><SYMBOL><VALUE>$</VALUE></SYMBOL></CURRENCY_ENTRY>
  <DECIMAL_POINT_COMMA>TRUE</DECIMAL_POINT_COMMA>
</SPECIAL_NAMES>)",
                      E.visited(Names, false)));
}

//===----------------------------------------------------------------------===//
// FILE-CONTROL
//===----------------------------------------------------------------------===//

TEST(FileControl, EntryFromSource) {
  // 20 SELECT master-file ASSIGN TO disk1 Disk2
  // 21     RESERVE 2 AREAS
  // 22     ORGANIZATION IS indexed
  // 23     PADDING CHARACTER IS '*'
  // 24     ACCESS MODE IS Dynamic
  // 25     RECORD KEY IS m-key
  // 26     ALTERNATE RECORD KEY IS m-alt1 WITH DUPLICATES
  // 27     ALTERNATE RECORD KEY IS m-alt2
  // 28     FILE STATUS IS m-stat m-stat2
  // 29     PASSWORD IS m-pass
  // 30     RECORD DELIMITER IS STANDARD-1
  // 31     MODE IS prt BATCH
  // 32     DUPLICATE 3 TIMES WITH PAGE BUFFER
  // 33     TYPE IS printer DEFERRED
  // 34     NO FIRST PAGE.
  // 35 SELECT out-file ASSIGN TO printer.
  EnvTree T;
  auto *Para = T.at<ParaFileControl>(19, 8, 35, 43);
  auto *F = T.at<FileControlItem>(20, 12, 34, 29);
  auto *Select = T.at<ClauseSelect>(20, 12, 20, 29);
  Select->setFileName(T.word("master-file", 20, 19));
  F->setSelect(Select);
  auto *Assign = T.at<ClauseAssign>(20, 31, 20, 51);
  Assign->addAssignName(T.word("disk1", 20, 41));
  Assign->addAssignName(T.word("Disk2", 20, 47));
  F->setAssign(Assign);
  auto *Reserve = T.at<ClauseReserve>(21, 16, 21, 30);
  Reserve->setReserveCount(T.num("2", 21, 24));
  F->setReserve(Reserve);
  auto *Organization = T.at<ClauseOrganization>(22, 16, 22, 38);
  Organization->setOrganizationTypeWord(T.word("indexed", 22, 32));
  Organization->setOrganizationType(ORGANIZATION_TYPE_INDEXED);
  F->setOrganization(Organization);
  auto *Padding = T.at<ClausePadding>(23, 16, 23, 39);
  Padding->setCharacter(T.str("*", 23, 37));
  F->setPadding(Padding);
  auto *Access = T.at<ClauseAccess>(24, 16, 24, 37);
  Access->setAccessMode(T.word("Dynamic", 24, 31));
  Access->setAccessType(ACCESS_TYPE_DYNAMIC);
  F->setAccess(Access);
  auto *RecordKey = T.at<ClauseRecordKey>(25, 16, 25, 34);
  RecordKey->setDataName(T.ident("m-key", 25, 30));
  F->setRecordKey(RecordKey);
  auto *Alt1 = T.at<ClauseAlternate>(26, 16, 26, 61);
  Alt1->setDataName(T.ident("m-alt1", 26, 40));
  Alt1->setDuplicatesWord(T.word("DUPLICATES", 26, 52));
  F->addAlternate(Alt1);
  auto *Alt2 = T.at<ClauseAlternate>(27, 16, 27, 45);
  Alt2->setDataName(T.ident("m-alt2", 27, 40));
  F->addAlternate(Alt2);
  auto *Status = T.at<ClauseStatus>(28, 16, 28, 44);
  Status->setStatus_1(T.ident("m-stat", 28, 31));
  Status->setStatus_2(T.ident("m-stat2", 28, 38));
  F->setStatus(Status);
  auto *Password = T.at<ClausePassWord>(29, 16, 29, 33);
  Password->setDataName(T.ident("m-pass", 29, 28));
  F->setPassWord(Password);
  auto *Delimiter = T.at<ClauseRecordDelimiter>(30, 16, 30, 45);
  Delimiter->setStandard_1(T.word("STANDARD-1", 30, 36));
  F->setRecordDelimiter(Delimiter);
  auto *Mode = T.at<ClauseRwMode>(31, 16, 31, 32);
  Mode->setRwModeWord(T.word("prt", 31, 24));
  Mode->setBatchWord(T.word("batch", 31, 28));
  F->setRwMode(Mode);
  auto *Duplicate = T.at<ClauseRwDuplicate>(32, 16, 32, 49);
  Duplicate->setTimes(T.num("3", 32, 26));
  Duplicate->setType(RW_DUPLICATE_PAGE_BUFFER);
  Duplicate->setWithWord(T.word("WITH", 32, 34));
  F->setRwDuplicate(Duplicate);
  auto *Type = T.at<ClauseRwType>(33, 16, 33, 39);
  Type->setType(T.word("printer", 33, 24));
  Type->setDeferredWord(T.word("DEFERRED", 33, 32));
  F->setRwType(Type);
  auto *FirstPage = T.at<ClauseRwFirstPage>(34, 16, 34, 28);
  FirstPage->setNoWord(T.word("NO", 34, 16));
  F->setRwFirstPage(FirstPage);
  Para->addFileControlItem(F);
  Para->addFileControlItem(nullptr);
  auto *Out = T.at<FileControlItem>(35, 12, 35, 42);
  auto *OutSelect = T.at<ClauseSelect>(35, 12, 35, 26);
  OutSelect->setFileName(T.word("out-file", 35, 19));
  Out->setSelect(OutSelect);
  auto *OutAssign = T.at<ClauseAssign>(35, 28, 35, 42);
  OutAssign->addAssignName(T.word("printer", 35, 38));
  Out->setAssign(OutAssign);
  Para->addFileControlItem(Out);

  // RESERVE's count stands bare between the assignment and ORGANIZATION;
  // ORGANIZATION and ACCESS MODE are the words as written, assignment names
  // and MODE words normalised; PASSWORD writes nothing.
  EnvEmitter E;
  EXPECT_TRUE(sameXML(R"(
<FILE_CONTROL_PARAGRAPH>
  <FILE_CONTROL_ENTRY>
    <FILE_NAME>master-file</FILE_NAME>
    <ASSIGN_NAME_ENTRY>
      <ASSIGN_NAME>DISK1</ASSIGN_NAME><ASSIGN_NAME>DISK2</ASSIGN_NAME>
    </ASSIGN_NAME_ENTRY>
    <VALUE>2</VALUE>
    <ORGANIZATION>indexed</ORGANIZATION>
    <PADDING_CHAR><VALUE>*</VALUE></PADDING_CHAR>
    <ACCESS_MODE>Dynamic</ACCESS_MODE>
    <RECORD_KEY>)" + dataIdent("m-key") + R"(</RECORD_KEY>
    <ALTERNATE_KEY_ENTRY>
      <KEY>)" + dataIdent("m-alt1") + R"(</KEY>
      <DUPLICATE>TRUE</DUPLICATE>
    </ALTERNATE_KEY_ENTRY>
    <ALTERNATE_KEY_ENTRY><KEY>)" + dataIdent("m-alt2") + R"(</KEY>
    </ALTERNATE_KEY_ENTRY>
    <FILE_STATUS>
      <FILE_STATUS1>)" + dataIdent("m-stat") + R"(</FILE_STATUS1>
      <FILE_STATUS2>)" + dataIdent("m-stat2") + R"(</FILE_STATUS2>
    </FILE_STATUS>
    <RECORD_DELIMITER><TYPE>STANDARD-1</TYPE></RECORD_DELIMITER>
    <REPORT_MODE_ENTRY><MODE>PRT</MODE><MODE>BATCH</MODE></REPORT_MODE_ENTRY>
    <REPORT_DUPLICATE_ENTRY>
      <TIMES><VALUE>3</VALUE></TIMES>
      <OPTION>WITH_PAGE_BUFFER</OPTION>
    </REPORT_DUPLICATE_ENTRY>
    <REPORT_TYPE_ENTRY><PRINTER>TYPE</PRINTER><DEFERRED>TRUE</DEFERRED>
    </REPORT_TYPE_ENTRY>
    <REPORT_FIRST_PAGE_ENTRY><NO_OPTION>TRUE</NO_OPTION>
    </REPORT_FIRST_PAGE_ENTRY>
  </FILE_CONTROL_ENTRY>
  <FILE_CONTROL_ENTRY>
    <FILE_NAME>out-file</FILE_NAME>
    <ASSIGN_NAME_ENTRY><ASSIGN_NAME>PRINTER</ASSIGN_NAME></ASSIGN_NAME_ENTRY>
  </FILE_CONTROL_ENTRY>
</FILE_CONTROL_PARAGRAPH>)",
                      E.visited(Para, false)));
}

TEST(FileControl, FixedClauseOrderWithoutLocations) {
  // With no locations every clause keeps its order of emission: the two
  // alternate keys first, before the file name, then the fixed order of
  // the remaining clauses. Null alternate keys are skipped.
  EnvTree T;
  auto *F = T.P.create<FileControlItem>();
  F->setRwFirstPage(T.P.create<ClauseRwFirstPage>());
  auto *Type = T.P.create<ClauseRwType>();
  Type->setNoneWord(T.bareWord("none"));
  F->setRwType(Type);
  auto *Duplicate = T.P.create<ClauseRwDuplicate>();
  Duplicate->setTimes(T.bareLiteral<NumericLiteralExpression>("2"));
  F->setRwDuplicate(Duplicate);
  auto *Mode = T.P.create<ClauseRwMode>();
  Mode->setRwModeWord(T.bareWord("prt"));
  F->setRwMode(Mode);
  auto *Delimiter = T.P.create<ClauseRecordDelimiter>();
  Delimiter->setDelimiter(T.bareWord("delim"));
  F->setRecordDelimiter(Delimiter);
  auto *Relative = T.P.create<ClauseRelativeKey>();
  Relative->setDataName(T.bareIdent("rel"));
  F->setRelativeKey(Relative);
  auto *RecordKey = T.P.create<ClauseRecordKey>();
  RecordKey->setDataName(T.bareIdent("rk"));
  F->setRecordKey(RecordKey);
  auto *Status = T.P.create<ClauseStatus>();
  Status->setStatus_1(T.bareIdent("st"));
  F->setStatus(Status);
  auto *Access = T.P.create<ClauseAccess>();
  Access->setAccessMode(T.bareWord("random"));
  F->setAccess(Access);
  auto *Padding = T.P.create<ClausePadding>();
  Padding->setCharacter(T.bareIdent("pad"));
  F->setPadding(Padding);
  auto *Organization = T.P.create<ClauseOrganization>();
  Organization->setOrganizationTypeWord(T.bareWord("relative"));
  F->setOrganization(Organization);
  auto *Reserve = T.P.create<ClauseReserve>();
  Reserve->setReserveCount(T.bareLiteral<NumericLiteralExpression>("4"));
  F->setReserve(Reserve);
  auto *Assign = T.P.create<ClauseAssign>();
  Assign->addAssignName(T.bareWord("sys"));
  F->setAssign(Assign);
  auto *Select = T.P.create<ClauseSelect>();
  Select->setFileName(T.bareWord("f"));
  F->setSelect(Select);
  auto *Alt1 = T.P.create<ClauseAlternate>();
  Alt1->setDataName(T.bareIdent("alt-1"));
  F->addAlternate(Alt1);
  F->addAlternate(nullptr);
  auto *Alt2 = T.P.create<ClauseAlternate>();
  Alt2->setDataName(T.bareIdent("alt-2"));
  Alt2->setDuplicatesWord(T.bareWord("duplicates"));
  F->addAlternate(Alt2);

  EnvEmitter E;
  EXPECT_TRUE(sameXML(R"(
<FILE_CONTROL_ENTRY>
  <ALTERNATE_KEY_ENTRY><KEY>)" + dataIdent("alt-1") + R"(</KEY>
  </ALTERNATE_KEY_ENTRY>
  <ALTERNATE_KEY_ENTRY><KEY>)" + dataIdent("alt-2") + R"(</KEY>
    <DUPLICATE>TRUE</DUPLICATE>
  </ALTERNATE_KEY_ENTRY>
  <FILE_NAME>f</FILE_NAME>
  <ASSIGN_NAME_ENTRY><ASSIGN_NAME>SYS</ASSIGN_NAME></ASSIGN_NAME_ENTRY>
  <VALUE>4</VALUE>
  <ORGANIZATION>relative</ORGANIZATION>
  <PADDING_CHAR>)" + dataIdent("pad") + R"(</PADDING_CHAR>
  <ACCESS_MODE>random</ACCESS_MODE>
  <FILE_STATUS><FILE_STATUS1>)" + dataIdent("st") + R"(</FILE_STATUS1>
  </FILE_STATUS>
  <RECORD_KEY>)" + dataIdent("rk") + R"(</RECORD_KEY>
  <RELATIVE_KEY>)" + dataIdent("rel") + R"(</RELATIVE_KEY>
  <RECORD_DELIMITER>
    <EXPRESSION><WORD>DELIM</WORD></EXPRESSION><TYPE>EXPRESSION</TYPE>
  </RECORD_DELIMITER>
  <REPORT_MODE_ENTRY><MODE>PRT</MODE></REPORT_MODE_ENTRY>
  <REPORT_DUPLICATE_ENTRY><TIMES><VALUE>2</VALUE></TIMES>
  </REPORT_DUPLICATE_ENTRY>
  <REPORT_TYPE_ENTRY><TYPE>NONE</TYPE></REPORT_TYPE_ENTRY>
  <REPORT_FIRST_PAGE_ENTRY/>
</FILE_CONTROL_ENTRY>)",
                      E.visited(F, false)));
}

TEST(FileControl, ClauseVariantsAndTheirLocations) {
  EnvTree T;
  auto Located = [](auto *N) {
    EnvEmitter E;
    return E.visited(N, true);
  };
  auto Stripped = [](auto *N) {
    EnvEmitter E;
    return E.visited(N, false);
  };

  // 30 RECORD DELIMITER IS standard-1: TYPE alone, as written.
  auto *Standard = T.at<ClauseRecordDelimiter>(30, 16, 30, 45);
  Standard->setStandard_1(T.word("standard-1", 30, 36));
  EXPECT_TRUE(sameXML("<RECORD_DELIMITER><TYPE" + span(30, 36, 45) +
                          ">standard-1</TYPE></RECORD_DELIMITER>",
                      Located(Standard)));
  // 30 RECORD DELIMITER IS delim-proc: the word inside EXPRESSION, then a
  // TYPE "EXPRESSION" at the same word.
  auto *Named = T.at<ClauseRecordDelimiter>(30, 16, 30, 45);
  Named->setDelimiter(T.word("delim-proc", 30, 36));
  const std::string D = span(30, 36, 45);
  EXPECT_TRUE(sameXML("<RECORD_DELIMITER><EXPRESSION" + D + "><WORD" + D +
                          ">DELIM-PROC</WORD></EXPRESSION><TYPE" + D +
                          ">EXPRESSION</TYPE></RECORD_DELIMITER>",
                      Located(Named)));
  EXPECT_TRUE(sameXML("<RECORD_DELIMITER/>",
                      Stripped(T.at<ClauseRecordDelimiter>(30, 16, 30, 34))));

  // 33 TYPE IS printer DEFERRED: the type word names the element and TYPE
  // is its text; DEFERRED follows as a flag.
  auto *Typed = T.at<ClauseRwType>(33, 16, 33, 39);
  Typed->setType(T.word("printer", 33, 24));
  Typed->setDeferredWord(T.word("DEFERRED", 33, 32));
  EXPECT_TRUE(sameXML("<REPORT_TYPE_ENTRY><PRINTER" + span(33, 24, 30) +
                          ">TYPE</PRINTER><DEFERRED" + span(33, 32, 39) +
                          ">TRUE</DEFERRED></REPORT_TYPE_ENTRY>",
                      Located(Typed)));
  // TYPE DEFERRED and TYPE NONE: the keyword is TYPE's text.
  auto *Deferred = T.at<ClauseRwType>(33, 16, 33, 28);
  Deferred->setDeferredWord(T.word("deferred", 33, 21));
  EXPECT_TRUE(sameXML("<REPORT_TYPE_ENTRY><TYPE" + span(33, 21, 28) +
                          ">DEFERRED</TYPE></REPORT_TYPE_ENTRY>",
                      Located(Deferred)));
  auto *None = T.at<ClauseRwType>(33, 16, 33, 24);
  None->setNoneWord(T.word("none", 33, 21));
  EXPECT_TRUE(sameXML("<REPORT_TYPE_ENTRY><TYPE" + span(33, 21, 24) +
                          ">NONE</TYPE></REPORT_TYPE_ENTRY>",
                      Located(None)));

  // 32 DUPLICATE 3 TIMES WITH RANDOM PAGE: OPTION located at WITH. A kind
  // without its WITH word writes no OPTION; an unknown kind an empty one.
  auto *Random = T.at<ClauseRwDuplicate>(32, 16, 32, 49);
  Random->setTimes(T.num("3", 32, 26));
  Random->setType(RW_DUPLICATE_RANDOM_PAGE);
  Random->setWithWord(T.word("WITH", 32, 34));
  EXPECT_TRUE(sameXML("<REPORT_DUPLICATE_ENTRY><TIMES" + span(32, 26, 26) +
                          "><VALUE" + span(32, 26, 26) +
                          ">3</VALUE></TIMES><OPTION" + span(32, 34, 37) +
                          ">WITH_RANDOM_PAGE</OPTION>"
                          "</REPORT_DUPLICATE_ENTRY>",
                      Located(Random)));
  Random->setType(RW_DUPLICATE_NONE);
  EXPECT_TRUE(sameXML("<REPORT_DUPLICATE_ENTRY><TIMES><VALUE>3</VALUE>"
                      "</TIMES></REPORT_DUPLICATE_ENTRY>",
                      Stripped(Random)));
  Random->setType(static_cast<ClauseRwDuplicateType>(7));
  EXPECT_TRUE(sameXML("<REPORT_DUPLICATE_ENTRY><TIMES><VALUE>3</VALUE>"
                      "</TIMES><OPTION></OPTION></REPORT_DUPLICATE_ENTRY>",
                      Stripped(Random)));
  Random->setType(RW_DUPLICATE_PAGE_BUFFER);
  Random->setWithWord(nullptr);
  EXPECT_TRUE(sameXML("<REPORT_DUPLICATE_ENTRY><TIMES><VALUE>3</VALUE>"
                      "</TIMES></REPORT_DUPLICATE_ENTRY>",
                      Stripped(Random)));

  // 31 MODE IS prt USING ...: both MODE words normalised, then the
  // parameters' own element.
  auto *Mode = T.at<ClauseRwMode>(31, 16, 31, 40);
  Mode->setRwModeWord(T.word("prt", 31, 24));
  auto *Params = T.at<ParamPhrase>(31, 28, 31, 40);
  Params->setUsingWord(T.word("USING", 31, 28));
  Mode->setParameters(Params);
  EXPECT_TRUE(sameXML("<REPORT_MODE_ENTRY><MODE" + span(31, 24, 26) +
                          ">PRT</MODE><PARAM_LIST" + span(31, 28, 40) +
                          "/></REPORT_MODE_ENTRY>",
                      Located(Mode)));

  // FIRST PAGE without NO writes an empty entry.
  EXPECT_TRUE(sameXML("<REPORT_FIRST_PAGE_ENTRY/>",
                      Stripped(T.at<ClauseRwFirstPage>(34, 16, 34, 25))));

  // 20 ASSIGN TO disk1 Disk2: each name carries its printable location as
  // its expanded file, numbered in the file table as it is met.
  auto *Assign = T.at<ClauseAssign>(20, 31, 20, 51);
  Assign->addAssignName(T.word("disk1", 20, 41));
  Assign->addAssignName(nullptr);
  Assign->addAssignName(T.word("Disk2", 20, 47));
  EnvEmitter E;
  EXPECT_TRUE(sameXML("<ASSIGN_NAME_ENTRY><ASSIGN_NAME" +
                          span(20, 41, 45, 1, 2) +
                          ">DISK1</ASSIGN_NAME><ASSIGN_NAME" +
                          span(20, 47, 51, 3, 2) +
                          ">DISK2</ASSIGN_NAME></ASSIGN_NAME_ENTRY>",
                      E.visited(Assign, true)));
  EXPECT_EQ(E.handler().getFileId("main.cbl:20:41"), 1);
  EXPECT_EQ(E.handler().getFileId("main.cbl:20:47"), 3);
}

//===----------------------------------------------------------------------===//
// I-O-CONTROL
//===----------------------------------------------------------------------===//

TEST(IOControl, RerunSameAndMultipleFile) {
  // 40 I-O-CONTROL.
  // 41     RERUN ON chk-file EVERY 100 RECORDS OF master-file
  // 42     RERUN ON chk-file EVERY END OF reel OF out-file
  // 43     RERUN ON chk-file EVERY END OF UNIT OF out-file
  // 44     RERUN ON chk-file EVERY END OF tape OF out-file
  // 45     SAME RECORD AREA FOR a-file b-file
  // 46     MULTIPLE FILE TAPE CONTAINS a-file POSITION 1 b-file
  // 47     APPLY WRITE-ONLY ON a-file.
  EnvTree T;
  auto *Para = T.at<ParaIOControl>(40, 8, 47, 39);
  auto Item = [&](uint32_t Line) {
    auto *I = T.at<IOControlItem>(Line, 12, Line, 63);
    Para->addIOControlItem(I);
    return I;
  };
  auto Rerun = [&](uint32_t Line, const char *Kind, const char *File2) {
    auto *R = T.at<ClauseRerun>(Line, 12, Line, 61);
    R->setFileName1(T.word("chk-file", Line, 21));
    R->setReelUnit(T.word(Kind, Line, 43));
    R->setFileName2(T.word(File2, Line, 51));
    Item(Line)->setRerun(R);
    return R;
  };
  ClauseRerun *ByRecords = Rerun(41, "RECORDS", "master-file");
  ByRecords->setReelUnit(nullptr);
  ByRecords->setRecordCount(T.num("100", 41, 36));
  ClauseRerun *ByReel = Rerun(42, "reel", "out-file");
  Rerun(43, "UNIT", "out-file");
  Rerun(44, "tape", "out-file");
  auto *Same = T.at<ClauseSame>(45, 12, 45, 45);
  Same->setKindWord(T.word("RECORD", 45, 17));
  Same->addFileName(T.word("a-file", 45, 33));
  Same->addFileName(T.word("b-file", 45, 40));
  Item(45)->setSame(Same);
  auto *Multiple = T.at<ClauseMultipleFile>(46, 12, 46, 63);
  auto *A = T.at<PrsMultipleFile>(46, 40, 46, 56);
  A->setFileName(T.word("a-file", 46, 40));
  A->setPosition(T.num("1", 46, 56));
  Multiple->addMultipleFile(A);
  auto *B = T.at<PrsMultipleFile>(46, 58, 46, 63);
  B->setFileName(T.word("b-file", 46, 58));
  Multiple->addMultipleFile(B);
  Item(46)->setMultipleFile(Multiple);
  auto *Apply = T.at<ClauseApplyWriteOnly>(47, 12, 47, 38);
  Apply->addFileName(T.word("a-file", 47, 32));
  Item(47)->setApplyWriteOnly(Apply);

  // A record count gives TYPE RECORD and the bare count; END OF REEL or
  // UNIT their own TYPE; any other word no TYPE. SAME's kind is not
  // written; APPLY WRITE-ONLY leaves an empty entry.
  EnvEmitter E;
  EXPECT_TRUE(sameXML(R"(
<IO_CONTROL>
  <IO_CONTROL_ENTRY><RERUN>
    <ON>chk-file</ON><TYPE>RECORD</TYPE><VALUE>100</VALUE>
    <FILE_NAME>master-file</FILE_NAME>
  </RERUN></IO_CONTROL_ENTRY>
  <IO_CONTROL_ENTRY><RERUN>
    <ON>chk-file</ON><TYPE>END_REEL</TYPE><FILE_NAME>out-file</FILE_NAME>
  </RERUN></IO_CONTROL_ENTRY>
  <IO_CONTROL_ENTRY><RERUN>
    <ON>chk-file</ON><TYPE>END_UNIT</TYPE><FILE_NAME>out-file</FILE_NAME>
  </RERUN></IO_CONTROL_ENTRY>
  <IO_CONTROL_ENTRY><RERUN>
    <ON>chk-file</ON><FILE_NAME>out-file</FILE_NAME>
  </RERUN></IO_CONTROL_ENTRY>
  <IO_CONTROL_ENTRY><SAME><FILE>a-file</FILE><FILE>b-file</FILE></SAME>
  </IO_CONTROL_ENTRY>
  <IO_CONTROL_ENTRY><MULTIPLE>
    <FILE><NAME>a-file</NAME><POSITION><VALUE>1</VALUE></POSITION></FILE>
    <FILE><NAME>b-file</NAME></FILE>
  </MULTIPLE></IO_CONTROL_ENTRY>
  <IO_CONTROL_ENTRY/>
</IO_CONTROL>)",
                      E.visited(Para, false)));

  // TYPE RECORD is located at the count, which then follows at the same
  // place; END_REEL at the REEL word.
  EnvEmitter E2;
  EXPECT_TRUE(sameXML("<RERUN><ON" + span(41, 21, 28) +
                          ">chk-file</ON><TYPE" + span(41, 36, 38) +
                          ">RECORD</TYPE><VALUE" + span(41, 36, 38) +
                          ">100</VALUE><FILE_NAME" + span(41, 51, 61) +
                          ">master-file</FILE_NAME></RERUN>",
                      E2.visited(ByRecords, true)));
  EnvEmitter E3;
  EXPECT_TRUE(sameXML("<RERUN><ON" + span(42, 21, 28) +
                          ">chk-file</ON><TYPE" + span(42, 43, 46) +
                          ">END_REEL</TYPE><FILE_NAME" + span(42, 51, 58) +
                          ">out-file</FILE_NAME></RERUN>",
                      E3.visited(ByReel, true)));
}

//===----------------------------------------------------------------------===//
// The division as a whole
//===----------------------------------------------------------------------===//

TEST(EnvironmentDivision, EmptyPartsAndClausesWithoutElements) {
  EnvTree T;
  auto *Env = T.at<EnvironmentDivision>(3, 8, 3, 28);
  EnvEmitter E;
  EXPECT_TRUE(sameXML("<ENVIRONMENT_DIVISION/>", E.visited(Env, false)));
  Env->setConfigurationSection(T.at<ConfigurationSection>(4, 8, 4, 29));
  Env->setInputOutputSection(T.at<InputOutputSection>(5, 8, 5, 28));
  EnvEmitter E2;
  EXPECT_TRUE(sameXML("<ENVIRONMENT_DIVISION><CONFIGURATION_SECTION/>"
                      "<IO_SECTION/></ENVIRONMENT_DIVISION>",
                      E2.visited(Env, false)));

  // These clauses are read by their owners and make no element: the
  // return-element slot is left as it was.
  EnvEmitter E3;
  XMLHandler &H = E3.handler();
  tinyxml2::XMLElement *Before = H.newRetElement("BEFORE");
  E3.visit(T.at<PhrsOnOff>(1, 1, 1, 2));
  E3.visit(T.at<PhrsAlphabetAlso>(1, 1, 1, 2));
  E3.visit(T.at<ClauseDecimalPoint>(1, 1, 1, 2));
  E3.visit(T.at<ClauseSelect>(1, 1, 1, 2));
  E3.visit(T.at<ClauseReserve>(1, 1, 1, 2));
  E3.visit(T.at<ClauseOrganization>(1, 1, 1, 2));
  E3.visit(T.at<ClauseAccess>(1, 1, 1, 2));
  E3.visit(T.at<ClausePassWord>(1, 1, 1, 2));
  E3.visit(T.at<ClauseApplyWriteOnly>(1, 1, 1, 2));
  E3.visit(T.at<ProgramIdParagraph>(1, 1, 1, 2));
  EXPECT_EQ(H.getRetElement(), Before);
}

TEST(EnvironmentDivision, ProgramDocumentListsLocationStringsAsFiles) {
  //  1 IDENTIFICATION DIVISION.
  //  2 PROGRAM-ID. PROG1.
  //  3 ENVIRONMENT DIVISION.
  //  4 CONFIGURATION SECTION.
  //  5 SPECIAL-NAMES.
  //  6     SYMBOLIC CHARACTERS BEL IS 8.
  //  7 INPUT-OUTPUT SECTION.
  //  8 FILE-CONTROL.
  //  9     SELECT IN-FILE ASSIGN TO infile.
  EnvTree T;
  auto *Unit = T.at<SourceUnit>(1, 8, 9, 43);
  auto *Id = T.at<IdentificationDivision>(1, 8, 2, 25);
  auto *ProgramId = T.at<ProgramIdParagraph>(2, 8, 2, 25);
  ProgramId->setProgramNameWord(T.word("PROG1", 2, 20));
  Id->setProgramIDPara(ProgramId);
  Unit->setIDDivision(Id);
  auto *Env = T.at<EnvironmentDivision>(3, 8, 9, 43);
  auto *Config = T.at<ConfigurationSection>(4, 8, 6, 40);
  auto *Names = T.at<ParaSpecialNames>(5, 8, 6, 40);
  auto *Symbolic = T.at<ClauseSymbolic>(6, 12, 6, 39);
  auto *Def = T.at<PhrsSymbolic>(6, 32, 6, 39);
  Def->addSource(T.word("BEL", 6, 32));
  Def->addInteger(T.num("8", 6, 39));
  Symbolic->addSymbolic(Def);
  Names->addSymbolic(Symbolic);
  Config->setSpecialNames(Names);
  Env->setConfigurationSection(Config);
  auto *IO = T.at<InputOutputSection>(7, 8, 9, 43);
  auto *Control = T.at<ParaFileControl>(8, 8, 9, 43);
  auto *Item = T.at<FileControlItem>(9, 12, 9, 43);
  auto *Select = T.at<ClauseSelect>(9, 12, 9, 25);
  Select->setFileName(T.word("IN-FILE", 9, 19));
  Item->setSelect(Select);
  auto *Assign = T.at<ClauseAssign>(9, 27, 9, 42);
  Assign->addAssignName(T.word("infile", 9, 37));
  Item->setAssign(Assign);
  Control->addFileControlItem(Item);
  IO->setFileControl(Control);
  Env->setInputOutputSection(IO);
  Unit->setEnvironmentDivision(Env);
  T.P.addSourceUnit(Unit);

  std::string Path = tempPath("environment.xml");
  {
    XMLOstrel E;
    E.EmitXML(&T.P, Path.c_str(), false);
    ASSERT_TRUE(E.getHandler().saveSucceeded());
  }
  std::string Doc = readFile(Path);
  std::remove(Path.c_str());

  // The symbolic definition's location string and the assignment name's
  // are numbered in the file table as they are met and listed as files.
  // The definition is stamped again by its clause like any child, so only
  // the assignment name keeps its location string's number.
  auto Span = [](unsigned BL, unsigned BC, unsigned EL, unsigned EC) {
    std::string S;
    for (auto [Name, V] : {std::pair<const char *, unsigned>{"lbl", BL},
                           {"lbc", BC}, {"lel", EL}, {"lec", EC},
                           {"lblo", BL}, {"lbco", BC}, {"lelo", EL},
                           {"leco", EC}})
      S += std::string(" ") + Name + "=\"" + std::to_string(V) + "\"";
    return S + " lfid=\"1\" lfido=\"1\"";
  };
  EXPECT_TRUE(sameXML(
      "<!--main.cbl--><COBOL_SOURCE FILE=\"main.cbl\">"
      "<PROGRAM" + Span(1, 8, 9, 43) + ">"
      "<ID_DIVISION" + Span(1, 8, 2, 25) + ">"
      "<PROGRAM_NAME" + span(2, 20, 24) + ">PROG1</PROGRAM_NAME>"
      "</ID_DIVISION>"
      "<ENVIRONMENT_DIVISION" + Span(3, 8, 9, 43) + ">"
      "<CONFIGURATION_SECTION" + Span(4, 8, 6, 40) + ">"
      "<SPECIAL_NAMES" + Span(5, 8, 6, 40) + ">"
      "<SYMBOLIC_NAME" + span(6, 12, 39) + ">"
      "<SYMBOLIC_DEF" + span(6, 32, 39) + ">"
      "<CHARACTER" + span(6, 32, 34) + ">BEL</CHARACTER>"
      "<VALUE" + span(6, 39, 39) + ">8</VALUE>"
      "</SYMBOLIC_DEF></SYMBOLIC_NAME></SPECIAL_NAMES>"
      "</CONFIGURATION_SECTION>"
      "<IO_SECTION" + Span(7, 8, 9, 43) + ">"
      "<FILE_CONTROL_PARAGRAPH" + Span(8, 8, 9, 43) + ">"
      "<FILE_CONTROL_ENTRY" + span(9, 12, 43) + ">"
      "<FILE_NAME" + span(9, 19, 25) + ">IN-FILE</FILE_NAME>"
      "<ASSIGN_NAME_ENTRY" + span(9, 27, 42) + ">"
      "<ASSIGN_NAME" + span(9, 37, 42, 3, 1) + ">INFILE</ASSIGN_NAME>"
      "</ASSIGN_NAME_ENTRY></FILE_CONTROL_ENTRY></FILE_CONTROL_PARAGRAPH>"
      "</IO_SECTION></ENVIRONMENT_DIVISION></PROGRAM>"
      "<FILEINFO NAME=\"main.cbl\" FILE_ID=\"1\"/>"
      "<FILEINFO NAME=\"main.cbl:6:32\" FILE_ID=\"2\"/>"
      "<FILEINFO NAME=\"main.cbl:9:37\" FILE_ID=\"3\"/>"
      "</COBOL_SOURCE>",
      Doc));
}

} // namespace
