//===- tests/EmitterSpineTest.cpp - Documents, helpers, assertions --------===//

#include "EmitterHarness.h"
#include "TreeBuilder.h"
#include "XMLCompare.h"
#include "korvid/XMLOstrel.h"

#include <cstdio>

using namespace korvid;
using korvid::test::readFile;
using korvid::test::sameXML;
using korvid::test::tempPath;
using korvid::test::TreeBuilder;
using korvid::test::wellFormed;

namespace {

/// Emits one document with a fresh emitter and returns its text; the file
/// must also pass xmllint.
template <class Fn> std::string emit(const char *Name, Fn Write) {
  std::string Path = tempPath(Name);
  {
    XMLOstrel E;
    Write(E, Path.c_str());
    EXPECT_TRUE(E.getHandler().saveSucceeded()) << E.getHandler().getSaveError();
  }
  EXPECT_TRUE(wellFormed(Path));
  std::string Text = readFile(Path);
  std::remove(Path.c_str());
  return Text;
}

/// Two programs' worth of tree: two missing copybooks, one used copybook
/// whose text makes up the data division, one unused copy target, a nested
/// program, and a parse error inside the copybook.
struct SampleTree : TreeBuilder {
  SourceUnit *Outer, *Inner;
  DataDivision *Data;

  SampleTree() {
    P.addMissingCopybook("MISS1", "main.cbl", 4);
    P.addMissingCopybook("MISS2", "COPY1.cpy", 2);
    P.addCopyTarget("COPY1.cpy", "main.cbl", 12);
    P.addCopyTarget("GHOST.cpy", "main.cbl", 30);

    Outer = at<SourceUnit>(1, 8, 40, 20);
    Outer->setIDDivision(at<IdentificationDivision>(1, 8, 2, 20));
    Outer->getIDDivision()->setProgramIDPara(at<ProgramIdParagraph>(2, 8, 2, 20));
    Data = copied(at<DataDivision>(10, 8, 15, 30), "COPY1.cpy", 1, 8, 6, 30);
    Outer->setDataDivision(Data);
    Outer->setProcDiv(at<ProcedureDivision>(20, 8, 28, 20));
    Inner = at<SourceUnit>(30, 8, 39, 20);
    Inner->setIDDivision(at<IdentificationDivision>(30, 8, 31, 20));
    Inner->getIDDivision()->setProgramIDPara(
        at<ProgramIdParagraph>(31, 8, 31, 20));
    Outer->addNested(Inner);
    P.addSourceUnit(Outer);
    P.addSourceUnit(nullptr); // null units are skipped

    P.addError(Data, "PIC", "bad picture string");
  }
};

const char *const SampleDocument = R"(
<!--main.cbl-->
<COBOL_SOURCE FILE="main.cbl">
  <MISSING TYPE="COPYBOOK" lbl="0" lbc="0" lel="0" lec="0">
    <RESOURCE NAME="MISS1" FROM="main.cbl" ST_LINE="4" END_LINE="4"
              lbl="0" lbc="0" lel="0" lec="0"/>
  </MISSING>
  <MISSING TYPE="COPYBOOK" lbl="0" lbc="0" lel="0" lec="0">
    <RESOURCE NAME="MISS2" FROM="COPY1.cpy" ST_LINE="2" END_LINE="2"
              lbl="0" lbc="0" lel="0" lec="0"/>
  </MISSING>
  <PROGRAM lbl="1" lbc="8" lel="40" lec="20" lblo="1" lbco="8" lelo="40"
           leco="20" lfid="1" lfido="1">
    <ID_DIVISION lbl="1" lbc="8" lel="2" lec="20" lblo="1" lbco="8"
                 lelo="2" leco="20" lfid="1" lfido="1"/>
    <DATA_DIVISION lbl="10" lbc="8" lel="15" lec="30" lblo="1" lbco="8"
                   lelo="6" leco="30" lfid="1" lfido="2"/>
    <PROCEDURE_DIVISION lbl="20" lbc="8" lel="28" lec="20" lblo="20"
                        lbco="8" lelo="28" leco="20" lfid="1" lfido="1"/>
    <PROGRAM lbl="30" lbc="8" lel="39" lec="20" lblo="30" lbco="8"
             lelo="39" leco="20" lfid="1" lfido="1">
      <ID_DIVISION lbl="30" lbc="8" lel="31" lec="20" lblo="30" lbco="8"
                   lelo="31" leco="20" lfid="1" lfido="1"/>
    </PROGRAM>
  </PROGRAM>
  <COPYBOOK NAME="COPY1.cpy" FROM="main.cbl" FILE_ID="2"
            lbl="0" lbc="0" lel="0" lec="0"/>
  <FILEINFO NAME="main.cbl" FILE_ID="1"/>
</COBOL_SOURCE>)";

TEST(EmitXML, ProgramDocumentHasEveryPartInPlace) {
  SampleTree T;
  std::string Doc = emit("program.xml", [&](XMLOstrel &E, const char *Path) {
    E.EmitXML(&T.P, Path, false);
  });
  EXPECT_TRUE(sameXML(SampleDocument, Doc));
}

TEST(EmitXML, StripLeavesNoLocationAttribute) {
  SampleTree T;
  std::string Doc = emit("stripped.xml", [&](XMLOstrel &E, const char *Path) {
    E.EmitXML(&T.P, Path, true);
  });
  EXPECT_TRUE(sameXML(R"(
<!--main.cbl-->
<COBOL_SOURCE FILE="main.cbl">
  <MISSING TYPE="COPYBOOK">
    <RESOURCE NAME="MISS1" FROM="main.cbl" ST_LINE="4" END_LINE="4"/>
  </MISSING>
  <MISSING TYPE="COPYBOOK">
    <RESOURCE NAME="MISS2" FROM="COPY1.cpy" ST_LINE="2" END_LINE="2"/>
  </MISSING>
  <PROGRAM>
    <ID_DIVISION/><DATA_DIVISION/><PROCEDURE_DIVISION/>
    <PROGRAM><ID_DIVISION/></PROGRAM>
  </PROGRAM>
  <COPYBOOK NAME="COPY1.cpy" FROM="main.cbl" FILE_ID="2"/>
  <FILEINFO NAME="main.cbl" FILE_ID="1"/>
</COBOL_SOURCE>)",
                      Doc));
  for (const char *A : {" lbl=", " lbc=", " lel=", " lec=", " lblo=",
                        " lbco=", " lelo=", " leco=", " lfid="})
    EXPECT_EQ(Doc.find(A), std::string::npos) << A;
}

TEST(EmitXML, EmptyProgramGivesBareRoot) {
  Program P("empty.cbl");
  std::string Doc = emit("empty.xml", [&](XMLOstrel &E, const char *Path) {
    E.EmitXML(&P, Path, false);
  });
  EXPECT_TRUE(sameXML(R"(<!--empty.cbl--><COBOL_SOURCE FILE="empty.cbl"/>)",
                      Doc));
}

TEST(EmitMissingCopybook, ListsMembersWithoutLocations) {
  SampleTree T;
  std::string Doc = emit("missing.xml", [&](XMLOstrel &E, const char *Path) {
    E.EmitMissingCopybook(&T.P, Path);
  });
  EXPECT_TRUE(sameXML(R"(
<!--main.cbl-->
<COBOL_SOURCE FILE="main.cbl">
  <MISSING TYPE="COPYBOOK">
    <RESOURCE NAME="MISS1" FROM="main.cbl" ST_LINE="4" END_LINE="4"/>
  </MISSING>
  <MISSING TYPE="COPYBOOK">
    <RESOURCE NAME="MISS2" FROM="COPY1.cpy" ST_LINE="2" END_LINE="2"/>
  </MISSING>
</COBOL_SOURCE>)",
                      Doc));
}

TEST(EmitErrorCase, MissingCopybooksThenParseErrorsAsWritten) {
  SampleTree T;
  T.P.addError(T.Inner, "NESTED", "a <second> & last error");
  std::string Doc = emit("errors.xml", [&](XMLOstrel &E, const char *Path) {
    E.EmitErrorCase(&T.P, Path);
  });
  EXPECT_TRUE(sameXML(R"(
<!--main.cbl-->
<COBOL_SOURCE FILE="main.cbl">
  <ERROR_TYPE CODE="1" ST_LINE="4" END_LINE="4" FROM="main.cbl">
    <MISSING TYPE="COPYBOOK" NAME="MISS1"/>
  </ERROR_TYPE>
  <ERROR_TYPE CODE="1" ST_LINE="2" END_LINE="2" FROM="COPY1.cpy">
    <MISSING TYPE="COPYBOOK" NAME="MISS2"/>
  </ERROR_TYPE>
  <ERROR_TYPE CODE="2" ST_LINE="1" END_LINE="6" FROM="COPY1.cpy">
    <ERROR_KEYWORD>PIC</ERROR_KEYWORD>
    <MSG_STRING>bad picture string</MSG_STRING>
  </ERROR_TYPE>
  <ERROR_TYPE CODE="2" ST_LINE="30" END_LINE="39" FROM="main.cbl">
    <ERROR_KEYWORD>NESTED</ERROR_KEYWORD>
    <MSG_STRING>a &lt;second&gt; &amp; last error</MSG_STRING>
  </ERROR_TYPE>
</COBOL_SOURCE>)",
                      Doc));
}

TEST(EmitXML, FileNamesNeedingEscapesStayWellFormed) {
  Program P("we--ird & <odd>.cbl-");
  std::string Doc = emit("odd.xml", [&](XMLOstrel &E, const char *Path) {
    E.EmitXML(&P, Path, false);
  });
  EXPECT_NE(Doc.find("FILE=\"we--ird &amp; &lt;odd&gt;.cbl-\""),
            std::string::npos);
}

//===----------------------------------------------------------------------===//
// The shared emission helpers, reached through a subclass.
//===----------------------------------------------------------------------===//

using HelperEmitter = korvid::test::TestEmitter;

TEST(EmitterHelpers, ListContainerCountsNullsAndSpansItsItems) {
  TreeBuilder T;
  NodeList<Word> Words = {T.word("alpha", 3, 12), nullptr,
                          T.copied(T.word("Beta", 5, 8), "C.cpy", 7, 9, 7, 12)};
  HelperEmitter E;
  XMLHandler &H = E.handler();
  tinyxml2::XMLElement *Root = H.newElement("ROOT");
  tinyxml2::XMLElement *Before = H.newElement("BEFORE");
  H.attributeLoc(Before, 2, 1, 2, 5, "main.cbl", 2, 1, 2, 5, "main.cbl");
  H.appendChildOrdered(Before, Root);
  tinyxml2::XMLElement *After = H.newElement("AFTER");
  H.attributeLoc(After, 9, 1, 9, 5, "main.cbl", 9, 1, 9, 5, "main.cbl");
  H.appendChildOrdered(After, Root);

  E.appendListChild(Root, "WORDS", "WordList", Words.size(), Words.begin(),
                    Words.end());
  NodeList<Word> Empty;
  E.appendListChild(Root, "NONE", "WordList", 0, Empty.begin(), Empty.end());
  H.appendElementToDoc(Root);
  EXPECT_TRUE(sameXML(R"(
<ROOT>
  <BEFORE lbl="2" lbc="1" lel="2" lec="5" lblo="2" lbco="1" lelo="2" leco="5"
          lfid="1" lfido="1"/>
  <WORDS size="3" name="WordList" lbl="3" lbc="12" lblo="3" lbco="12"
         lel="5" lec="11" lelo="7" leco="12">
    <WORD lbl="3" lbc="12" lel="3" lec="16" lblo="3" lbco="12" lelo="3"
          leco="16" lfid="1" lfido="1">ALPHA</WORD>
    <WORD lbl="5" lbc="8" lel="5" lec="11" lblo="7" lbco="9" lelo="7"
          leco="12" lfid="1" lfido="2">BETA</WORD>
  </WORDS>
  <AFTER lbl="9" lbc="1" lel="9" lec="5" lblo="9" lbco="1" lelo="9" leco="5"
         lfid="1" lfido="1"/>
</ROOT>)",
                      H.toString()));
}

TEST(EmitterHelpers, WordTextAndWrappedChildrenAreLocatedAndOrdered) {
  TreeBuilder T;
  Word *Late = T.word("late-Name", 4, 20);
  Word *Early = T.word("early", 4, 8);
  HelperEmitter E;
  XMLHandler &H = E.handler();
  tinyxml2::XMLElement *Root = H.newElement("ROOT");
  E.appendWordChild(Root, "NAME", Late);
  E.appendTextChild(Root, "FLAG", Early, "TRUE");
  E.appendWrappedChild(Root, "WRAP", Early);
  E.appendWordChild(Root, "NONE", nullptr);
  E.appendWrappedChild(Root, "NONE", static_cast<Word *>(nullptr));
  H.appendElementToDoc(Root);
  H.removeAttributeLoc();
  // appendWordChild writes the word as written; visit(Word) the normalised
  // form. Equal keys keep their order of arrival.
  EXPECT_TRUE(sameXML(R"(
<ROOT>
  <FLAG>TRUE</FLAG>
  <WRAP><WORD>EARLY</WORD></WRAP>
  <NAME>late-Name</NAME>
</ROOT>)",
                      H.toString()));
}

//===----------------------------------------------------------------------===//
// Impossible enumeration values end the run, in every build type.
//===----------------------------------------------------------------------===//

TEST(EmitterDeathTest, DispatchOnImpossibleTypeAborts) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  TreeBuilder T;
  auto *Expr = T.at<Expression>(1, 1, 1, 2); // EXPR_NONE
  auto *Stmt = T.at<Statement>(1, 1, 1, 2);  // STMT_NONE
  auto *Cond = T.at<Condition>(1, 1, 1, 2);  // COND_NONE
  HelperEmitter E;
  auto Handler = [](HelperEmitter &E) -> XMLHandler & { return E.handler(); };
  EXPECT_DEATH(E.visit(Expr),
               "lib/Visitor/XMLOstrel/Expression.cpp:[0-9]+: virtual void "
               "korvid::XMLOstrel::visit\\(korvid::Expression\\*\\): "
               "Assertion `0' failed");
  EXPECT_DEATH(E.visit(Stmt),
               "lib/Visitor/XMLOstrel/Statement.cpp:[0-9]+: virtual void "
               "korvid::XMLOstrel::visit\\(korvid::Statement\\*\\): "
               "Assertion `0' failed");
  // A condition of no known kind is no error: it writes nothing.
  Handler(E).setRetElement(nullptr);
  E.visit(Cond);
  EXPECT_EQ(Handler(E).getRetElement(), nullptr);
  Stmt->setType(STMT_IDMS);
  EXPECT_DEATH(E.visit(Stmt), "Assertion `0' failed");
}

} // namespace
