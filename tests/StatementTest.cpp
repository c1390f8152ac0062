//===- tests/StatementTest.cpp - SEARCH, INSPECT, text, file, sort, XML ---===//
//
// The statements that move text and records: SEARCH, INSPECT, STRING and
// UNSTRING, the file statements, ACCEPT and DISPLAY, SORT and MERGE with
// RELEASE and RETURN, XML GENERATE and XML PARSE, EXEC blocks and the
// report-writer statements.
//
// Most trees here are built without locations: every element then has the
// same ordering key, so the document shows the order in which the visits
// emit their children. Trees built with locations check where an element
// takes its location from.
//
//===----------------------------------------------------------------------===//

#include "TreeBuilder.h"
#include "EmitterHarness.h"
#include "XMLCompare.h"
#include "korvid/XMLOstrel.h"

#include <tinyxml2.h>

#include <cstdio>
#include <initializer_list>
#include <string>
#include <utility>

using namespace korvid;
using korvid::test::sameXML;
using korvid::test::TreeBuilder;

namespace {

using Emitter = korvid::test::TestEmitter;

/// One node written as its parent would write it: visited, stamped with the
/// node's location and placed in a document of its own.
struct Emitted {
  Emitter E;
  tinyxml2::XMLElement *Root = nullptr;
  tinyxml2::XMLDocument Parsed;

  template <class T> explicit Emitted(T *N) {
    E.visit(N);
    Root = E.handler().getRetElement();
    E.stampLocation(Root, N);
    E.handler().appendElementToDoc(Root);
  }

  /// The document without location attributes.
  std::string xml() {
    E.handler().removeAttributeLoc();
    return E.handler().toString();
  }

  /// The element at \p Path below the root, in the document as written
  /// with its locations: tags separated by '/', each optionally followed by
  /// a 1-based index among its like-named siblings, as in
  /// "WHEN_LIST/WHEN[2]/CONDITION". Null when there is none.
  const tinyxml2::XMLElement *find(const std::string &Path) {
    if (!Parsed.RootElement())
      Parsed.Parse(E.handler().toString().c_str());
    const tinyxml2::XMLElement *At = Parsed.RootElement();
    std::string::size_type From = 0;
    while (At && From < Path.size()) {
      std::string::size_type To = Path.find('/', From);
      std::string Step = Path.substr(From, To == std::string::npos
                                               ? std::string::npos
                                               : To - From);
      From = To == std::string::npos ? Path.size() : To + 1;
      int Index = 1;
      std::string::size_type Bracket = Step.find('[');
      if (Bracket != std::string::npos) {
        Index = std::stoi(Step.substr(Bracket + 1));
        Step = Step.substr(0, Bracket);
      }
      At = At->FirstChildElement(Step.c_str());
      while (At && --Index > 0)
        At = At->NextSiblingElement(Step.c_str());
    }
    return At;
  }

  /// "BL:BC-EL:EC" of the expanded location of the element at \p Path
  /// ("" for the root), "unlocated" when it carries none.
  std::string span(const std::string &Path = "") {
    const tinyxml2::XMLElement *At = find(Path);
    if (!At)
      return "missing";
    if (!At->Attribute("lbl"))
      return "unlocated";
    return std::string(At->Attribute("lbl")) + ":" + At->Attribute("lbc") +
           "-" + At->Attribute("lel") + ":" + At->Attribute("lec");
  }
};

/// "BL:BC-EL:EC" of a node, for comparison with Emitted::span.
std::string spanOf(const Node *N) {
  return std::to_string(N->getBeginLineNo()) + ":" +
         std::to_string(N->getBeginCharPos()) + "-" +
         std::to_string(N->getEndLineNo()) + ":" +
         std::to_string(N->getEndCharPos());
}

/// Shorthands for trees without locations, and for located operands.
struct Tree : TreeBuilder {
  template <class T, class... Args> T *make(Args &&...A) {
    return P.create<T>(std::forward<Args>(A)...);
  }
  /// A word without location, normalised to upper case.
  Word *kw(const std::string &Text) {
    std::string Upper = Text;
    for (char &C : Upper)
      C = static_cast<char>(std::toupper(static_cast<unsigned char>(C)));
    return make<Word>(Upper, Text);
  }
  DataIdentifierExpression *id(const std::string &Name) {
    auto *D = make<DataIdentifierExpression>();
    D->setName(make<QualifiedWord>(nullptr, kw(Name)));
    return D;
  }
  NumericLiteralExpression *num(const std::string &Digits) {
    auto *N = make<NumericLiteralExpression>();
    N->setData(Digits);
    return N;
  }
  NonNumericLiteralExpression *lit(const std::string &Text) {
    auto *L = make<NonNumericLiteralExpression>();
    L->setData(Text);
    return L;
  }
  QualifiedWord *qual(const std::string &Name) {
    return make<QualifiedWord>(nullptr, kw(Name));
  }
  ExceptionHandler *excp(ExceptionType T, bool Negated, Statement *S) {
    auto *H = make<ExceptionHandler>();
    H->setType(T);
    H->setIsNegate(Negated);
    H->addImperStmt(S);
    return H;
  }
  Statement *errorRecovery() { return make<Statement>(STMT_ERR_RECOV); }
  RwSuppressStatement *suppress() { return make<RwSuppressStatement>(); }

  /// A located data identifier, its name written at Line:Col.
  DataIdentifierExpression *idAt(const std::string &Name, uint32_t Line,
                                 uint32_t Col) {
    Word *W = word(Name, Line, Col);
    auto *Q = at<QualifiedWord>(Line, Col, Line, W->getEndCharPos(), nullptr, W);
    auto *D = at<DataIdentifierExpression>(Line, Col, Line, W->getEndCharPos());
    D->setName(Q);
    return D;
  }
};

// Expected forms of the operands built above.
std::string id(const std::string &Name) {
  return "<DATA_IDENTIFIER><DATA_ID>0</DATA_ID><QUALIFIED>" + Name +
         "</QUALIFIED></DATA_IDENTIFIER>";
}
std::string val(const std::string &Text) {
  return "<VALUE>" + Text + "</VALUE>";
}
const char *const Suppress = "<REPORT_SUPPRESS_STATEMENT/>";

//===----------------------------------------------------------------------===//
// SEARCH
//===----------------------------------------------------------------------===//

TEST(SearchStatement, AllVaryingWhensAndAtEnd) {
  Tree T;
  auto *S = T.make<SearchStatement>();
  S->setAllWord(T.kw("ALL"));
  S->setSearchIdentifier(T.id("TAB"));
  S->setVaryingIdentifier(T.id("IDX"));
  S->addAtHandler(T.excp(EXCEPTION_END, false, T.suppress()));
  auto *Found = T.make<ConditionNameCondition>();
  Found->setConditionName(T.id("FOUND"));
  auto *W1 = T.make<SearchWhen>();
  W1->setCondition(Found);
  W1->addStatement(T.suppress());
  W1->addStatement(nullptr);
  W1->addStatement(T.errorRecovery());
  auto *W2 = T.make<SearchWhen>();
  W2->setCondition(Found);
  W2->addStatement(T.errorRecovery());
  S->addWhen(W1);
  S->addWhen(nullptr); // counted in the size, not written
  S->addWhen(W2);

  // The condition comes before the WHEN's statements; error-recovery
  // statements are dropped.
  std::string Cond = "<CONDITION><COND_NAME_CONDITION><OPERAND>" + id("FOUND") +
                     "</OPERAND></COND_NAME_CONDITION></CONDITION>";
  EXPECT_TRUE(sameXML("<SEARCH_STATEMENT><ALL>TRUE</ALL><TABLE>" + id("TAB") +
                          "</TABLE><VARYING>" + id("IDX") +
                          "</VARYING><WHEN_LIST size=\"3\" "
                          "name=\"SrchWhenList\"><WHEN>" +
                          Cond + Suppress + "</WHEN><WHEN>" + Cond +
                          "</WHEN></WHEN_LIST><EXCEPTION_LIST size=\"1\" "
                          "name=\"ExcpList\"><EXCEPTION><TYPE>AT_END</TYPE>" +
                          Suppress +
                          "</EXCEPTION></EXCEPTION_LIST></SEARCH_STATEMENT>",
                      Emitted(static_cast<Statement *>(S)).xml()));
}

TEST(SearchStatement, SerialSearchLocations) {
  Tree T;
  // SEARCH TAB
  //     WHEN FOUND SUPPRESS.
  auto *S = T.at<SearchStatement>(5, 12, 6, 34);
  S->setSearchIdentifier(T.idAt("TAB", 5, 19));
  auto *W = T.at<SearchWhen>(6, 16, 6, 33);
  auto *Found = T.at<ConditionNameCondition>(6, 21, 6, 25);
  Found->setConditionName(T.idAt("FOUND", 6, 21));
  W->setCondition(Found);
  W->addStatement(T.at<RwSuppressStatement>(6, 27, 6, 34));
  S->addWhen(W);

  Emitted Out(static_cast<Statement *>(S));
  EXPECT_EQ(Out.span("TABLE"), "5:19-5:21");
  EXPECT_EQ(Out.span("WHEN_LIST"), "6:16-6:33");
  EXPECT_EQ(Out.span("WHEN_LIST/WHEN/REPORT_SUPPRESS_STATEMENT"), "6:27-6:34");
  EXPECT_EQ(Out.find("ALL"), nullptr);
  EXPECT_EQ(Out.find("VARYING"), nullptr);
  EXPECT_EQ(Out.find("EXCEPTION_LIST"), nullptr);

  // The ALL flag takes the location of the ALL word.
  Word *All = T.word("all", 5, 19);
  S->setAllWord(All);
  S->setSearchIdentifier(T.idAt("TAB", 5, 23));
  Emitted WithAll(static_cast<Statement *>(S));
  EXPECT_EQ(WithAll.span("ALL"), spanOf(All));
  EXPECT_STREQ(WithAll.find("ALL")->GetText(), "TRUE");
}

//===----------------------------------------------------------------------===//
// INSPECT
//===----------------------------------------------------------------------===//

InspectRegion *region(Tree &T, const char *Keyword, Expression *E) {
  auto *R = T.make<InspectRegion>();
  R->setTypeWord(T.kw(Keyword));
  R->setExpr(E);
  return R;
}

TEST(InspectStatement, TallyingAndReplacingShapes) {
  Tree T;
  auto *S = T.make<InspectStatement>();
  S->setIdentifier(T.id("X"));

  // TALLYING CNT FOR characters BEFORE 'Z'  all 'A' AFTER 'B'
  auto *Chars = T.make<TallyingItemFor>();
  Chars->setTypeWord(T.kw("characters"));
  Chars->addInspectRegion(region(T, "before", T.lit("Z")));
  auto *AllFor = T.make<TallyingItemFor>();
  AllFor->setTypeWord(T.kw("all"));
  auto *Counted = T.make<TallyingRegion>();
  Counted->setExpr(T.lit("A"));
  Counted->addRegionPhrase(region(T, "AFTER", T.lit("B")));
  AllFor->addTallyingRegion(Counted);
  auto *Tally = T.make<TallyingItem>();
  Tally->setIdentifier(T.id("CNT"));
  Tally->addTallyingFor(Chars);
  Tally->addTallyingFor(AllFor);
  S->addTallyingItem(Tally);

  // REPLACING CHARACTERS BY '0' AFTER 'Q'  ALL 'A' BY 'B' BEFORE 'C'
  auto *ReplChars = T.make<ReplacingItem>();
  ReplChars->setType(INSP_REPL_CHARACTERS);
  ReplChars->setExpr(T.lit("0"));
  ReplChars->addInspectRegion(region(T, "AFTER", T.lit("Q")));
  auto *Pair = T.make<ReplacingRegion>();
  Pair->setExpr(T.lit("A"));
  Pair->setByExpr(T.lit("B"));
  Pair->addRegion(region(T, "BEFORE", T.lit("C")));
  auto *ReplAll = T.make<ReplacingItem>();
  ReplAll->setType(INSP_REPL_ALL);
  ReplAll->addReplacingRegion(Pair);
  S->addReplacingItem(ReplChars);
  S->addReplacingItem(ReplAll);

  auto Entry = [](const char *Keyword, const char *Operand) {
    return "<INSPECT_REGION_ENTRY><SOURCE>" + val(Operand) +
           "</SOURCE><TYPE>" + Keyword + "</TYPE></INSPECT_REGION_ENTRY>";
  };
  // The clause kinds are the keywords as written; a replacing clause has
  // none. The tallying region's container is INSPECT_REGION, the others
  // INSPECT_REGION_LIST; the BY operand is written under TO.
  EXPECT_TRUE(sameXML(
      "<INSPECT_STATEMENT><SOURCE>" + id("X") +
          "</SOURCE>"
          "<TALLYING_LIST size=\"1\" name=\"TallyingItemList\">"
          "<TALLYING_ITEM><SOURCE>" +
          id("CNT") +
          "</SOURCE>"
          "<TALLYING_ITEM_FOR_LIST size=\"2\" name=\"TallyingItemForList\">"
          "<TALLYING_ITEM_FOR><TYPE>characters</TYPE>"
          "<INSPECT_REGION_LIST size=\"1\" name=\"InspctRgnList\">" +
          Entry("before", "Z") +
          "</INSPECT_REGION_LIST></TALLYING_ITEM_FOR>"
          "<TALLYING_ITEM_FOR><TYPE>all</TYPE>"
          "<TALLYING_REGION_LIST size=\"1\" name=\"TallyingRgnList\">"
          "<TALLYING_REGION><SOURCE>" +
          val("A") +
          "</SOURCE><INSPECT_REGION size=\"1\" name=\"InspctRgnList\">" +
          Entry("AFTER", "B") +
          "</INSPECT_REGION></TALLYING_REGION></TALLYING_REGION_LIST>"
          "</TALLYING_ITEM_FOR></TALLYING_ITEM_FOR_LIST></TALLYING_ITEM>"
          "</TALLYING_LIST>"
          "<REPLACING_LIST size=\"2\" name=\"RplcItemList\">"
          "<REPLACING_ITEM><SOURCE>" +
          val("0") +
          "</SOURCE><INSPECT_REGION_LIST size=\"1\" name=\"InspctRgnList\">" +
          Entry("AFTER", "Q") +
          "</INSPECT_REGION_LIST></REPLACING_ITEM>"
          "<REPLACING_ITEM>"
          "<REPLACING_REGION_LIST size=\"1\" name=\"RplcRgnList\">"
          "<REPLACING_REGION><FROM>" +
          val("A") + "</FROM><TO>" + val("B") +
          "</TO><INSPECT_REGION_LIST size=\"1\" name=\"InspctRgnList\">" +
          Entry("BEFORE", "C") +
          "</INSPECT_REGION_LIST></REPLACING_REGION></REPLACING_REGION_LIST>"
          "</REPLACING_ITEM></REPLACING_LIST></INSPECT_STATEMENT>",
      Emitted(static_cast<Statement *>(S)).xml()));
}

TEST(InspectStatement, ConvertingIsNestedTwiceWithRegionsFirst) {
  Tree T;
  auto *S = T.make<InspectStatement>();
  S->setIdentifier(T.id("X"));
  auto *C = T.make<ConvertingItem>();
  C->setExpr(T.lit("abc"));
  C->setToExpr(T.lit("XYZ"));
  C->setToWord(T.kw("to"));
  C->addRegion(region(T, "AFTER", T.lit("Q")));
  S->setConverting(C);
  EXPECT_TRUE(sameXML(
      "<INSPECT_STATEMENT><SOURCE>" + id("X") +
          "</SOURCE><CONVERTING><CONVERTING>"
          "<INSPECT_REGION_LIST size=\"1\" name=\"InspctRgnList\">"
          "<INSPECT_REGION_ENTRY><SOURCE>" +
          val("Q") +
          "</SOURCE><TYPE>AFTER</TYPE></INSPECT_REGION_ENTRY>"
          "</INSPECT_REGION_LIST><FROM>" +
          val("abc") + "</FROM><TO>" + val("XYZ") +
          "</TO><WORD>TO</WORD></CONVERTING></CONVERTING></INSPECT_STATEMENT>",
      Emitted(static_cast<Statement *>(S)).xml()));

  // Without regions, operands or lists nothing but the two CONVERTINGs.
  auto *Bare = T.make<InspectStatement>();
  Bare->setConverting(T.make<ConvertingItem>());
  EXPECT_TRUE(sameXML("<INSPECT_STATEMENT><CONVERTING><CONVERTING/>"
                      "</CONVERTING></INSPECT_STATEMENT>",
                      Emitted(static_cast<Statement *>(Bare)).xml()));
}

TEST(InspectStatement, ContainersSpanTheirItemsAndTypesKeepTheirWords) {
  Tree T;
  // INSPECT X TALLYING CNT FOR ALL 'A' BEFORE 'B'
  auto *S = T.at<InspectStatement>(3, 12, 3, 56);
  S->setIdentifier(T.idAt("X", 3, 20));
  auto *Item = T.at<TallyingItem>(3, 31, 3, 56);
  Item->setIdentifier(T.idAt("CNT", 3, 31));
  auto *For = T.at<TallyingItemFor>(3, 39, 3, 56);
  Word *All = T.word("All", 3, 39);
  For->setTypeWord(All);
  auto *Counted = T.at<TallyingRegion>(3, 43, 3, 56);
  Counted->setExpr(T.at<NonNumericLiteralExpression>(3, 43, 3, 45));
  auto *Before = T.at<InspectRegion>(3, 47, 3, 56);
  Before->setTypeWord(T.word("BEFORE", 3, 47));
  Before->setExpr(T.at<NonNumericLiteralExpression>(3, 54, 3, 56));
  Counted->addRegionPhrase(Before);
  For->addTallyingRegion(Counted);
  Item->addTallyingFor(For);
  S->addTallyingItem(Item);

  Emitted Out(static_cast<Statement *>(S));
  const std::string For1 = "TALLYING_LIST/TALLYING_ITEM/TALLYING_ITEM_FOR_LIST/"
                           "TALLYING_ITEM_FOR";
  EXPECT_EQ(Out.span(For1 + "/TYPE"), spanOf(All));
  EXPECT_STREQ(Out.find(For1 + "/TYPE")->GetText(), "All");
  const std::string Region =
      For1 + "/TALLYING_REGION_LIST/TALLYING_REGION/INSPECT_REGION";
  EXPECT_EQ(Out.span(Region), "3:47-3:56");
  EXPECT_STREQ(Out.find(Region)->Attribute("name"), "InspctRgnList");
  EXPECT_EQ(Out.span(Region + "/INSPECT_REGION_ENTRY/TYPE"), "3:47-3:52");
  EXPECT_EQ(Out.find("REPLACING_LIST"), nullptr);
  EXPECT_EQ(Out.find("CONVERTING"), nullptr);
}

//===----------------------------------------------------------------------===//
// STRING and UNSTRING
//===----------------------------------------------------------------------===//

TEST(StringStatement, SourcesDelimitersAndPhrases) {
  Tree T;
  auto *S = T.make<StringStatement>();
  // A B DELIMITED BY SIZE: the size word wins over the delimited word.
  auto *BySize = T.make<StringItem>();
  BySize->addStringName(T.id("A"));
  BySize->addStringName(T.id("B"));
  BySize->setDelimitedWord(T.kw("DELIMITED"));
  BySize->setSizeWord(T.kw("size"));
  // C DELIMITED BY ','
  auto *ByComma = T.make<StringItem>();
  ByComma->addStringName(T.id("C"));
  ByComma->setDelimitedWord(T.kw("delimited"));
  ByComma->setDelimitedName(T.lit(","));
  // D with neither keyword word
  auto *Plain = T.make<StringItem>();
  Plain->addStringName(T.id("D"));
  S->addItem(BySize);
  S->addItem(nullptr);
  S->addItem(ByComma);
  S->addItem(Plain);
  S->setIntoIdentifier(T.id("DEST"));
  auto *Ptr = T.make<PointerPhrase>();
  Ptr->setWithPointerIdentifier(T.id("P"));
  S->setPointerPhrase(Ptr);
  S->addOverflowHandler(T.excp(EXCEPTION_OVERFLOW, false, T.suppress()));
  S->addOverflowHandler(T.excp(EXCEPTION_OVERFLOW, true, T.suppress()));

  // STRING_SOURCE items stand directly under the statement.
  EXPECT_TRUE(sameXML(
      "<STRING_STATEMENT>"
      "<STRING_SOURCE><DELIMITED_TYPE>SIZE</DELIMITED_TYPE>"
      "<SOURCE size=\"2\" name=\"ExprList\">" +
          id("A") + id("B") +
          "</SOURCE></STRING_SOURCE>"
          "<STRING_SOURCE><DELIMITED_TYPE>NORMAL</DELIMITED_TYPE>"
          "<SOURCE size=\"1\" name=\"ExprList\">" +
          id("C") + "</SOURCE><DELIMITER>" + val(",") +
          "</DELIMITER></STRING_SOURCE>"
          "<STRING_SOURCE><SOURCE size=\"1\" name=\"ExprList\">" +
          id("D") + "</SOURCE></STRING_SOURCE><INTO>" + id("DEST") +
          "</INTO><WITH_POINTER>" + id("P") +
          "</WITH_POINTER><EXCEPTION_LIST size=\"2\" name=\"ExcpList\">"
          "<EXCEPTION><TYPE>ON_OVERFLOW</TYPE>" +
          Suppress + "</EXCEPTION><EXCEPTION><TYPE>NOT_ON_OVERFLOW</TYPE>" +
          Suppress + "</EXCEPTION></EXCEPTION_LIST></STRING_STATEMENT>",
      Emitted(static_cast<Statement *>(S)).xml()));

  // A pointer phrase without identifier writes nothing.
  auto *Short = T.make<StringStatement>();
  Short->setPointerPhrase(T.make<PointerPhrase>());
  EXPECT_TRUE(sameXML("<STRING_STATEMENT/>",
                      Emitted(static_cast<Statement *>(Short)).xml()));
}

TEST(StringStatement, DelimitedTypeTakesItsKeywordsLocation) {
  Tree T;
  auto *Item = T.at<StringItem>(4, 19, 4, 40);
  Item->addStringName(T.idAt("A", 4, 19));
  Item->setDelimitedWord(T.word("DELIMITED", 4, 21));
  Word *Size = T.word("SIZE", 4, 34);
  Item->setSizeWord(Size);
  Emitted Out(Item);
  EXPECT_EQ(Out.span("DELIMITED_TYPE"), spanOf(Size));
  EXPECT_EQ(Out.span("SOURCE"), "4:19-4:19");
}

TEST(UnstringStatement, DelimitersAndReceiversStandFlat) {
  Tree T;
  auto *S = T.make<UnstringStatement>();
  S->setSourceIdentifier(T.id("SRC"));
  auto *Delims = T.make<UnstringDelemitedPhrase>();
  auto *Spaces = T.make<UnstringDelimitedItem>();
  Spaces->setAllWord(T.kw("ALL"));
  Spaces->setDelimiter(T.lit(" "));
  auto *Semi = T.make<UnstringDelimitedItem>();
  Semi->setDelimiter(T.lit(";"));
  auto *Lost = T.make<UnstringDelimitedItem>(); // ALL without operand
  Lost->setAllWord(T.kw("ALL"));
  Delims->addDelimiter(Spaces);
  Delims->addDelimiter(nullptr);
  Delims->addDelimiter(Semi);
  Delims->addDelimiter(Lost);
  S->setDelemitedPhrase(Delims);
  auto *Full = T.make<UnstringIntoItem>();
  Full->setTargetIdentifier(T.id("A"));
  Full->setDelimiter(T.id("DA"));
  Full->setCountIdentifier(T.id("CA"));
  auto *Bare = T.make<UnstringIntoItem>();
  Bare->setTargetIdentifier(T.id("B"));
  S->addInto(Full);
  S->addInto(Bare);
  auto *Ptr = T.make<PointerPhrase>();
  Ptr->setWithPointerIdentifier(T.id("P"));
  S->setPhrasePointer(Ptr);
  auto *Tally = T.make<UnstringTallyingPhrase>();
  Tally->setTallyingId(T.id("N"));
  Tally->setTallyingWord(T.kw("TALLYING"));
  S->setPhraseTallying(Tally);
  S->addOverflowHandler(T.excp(EXCEPTION_OVERFLOW, false, T.suppress()));

  EXPECT_TRUE(sameXML(
      "<UNSTRING_STATEMENT><SOURCE>" + id("SRC") + "</SOURCE><DELIMITER>" +
          val(" ") + "<ALL>TRUE</ALL></DELIMITER><DELIMITER>" + val(";") +
          "</DELIMITER><DELIMITER/><INTO><TARGET>" + id("A") +
          "</TARGET><DELIMITER>" + id("DA") + "</DELIMITER><COUNT>" +
          id("CA") + "</COUNT></INTO><INTO><TARGET>" + id("B") +
          "</TARGET></INTO><WITH_POINTER>" + id("P") +
          "</WITH_POINTER><TALLYING_IN>" + id("N") +
          "</TALLYING_IN><EXCEPTION_LIST size=\"1\" name=\"ExcpList\">"
          "<EXCEPTION><TYPE>ON_OVERFLOW</TYPE>" +
          Suppress + "</EXCEPTION></EXCEPTION_LIST></UNSTRING_STATEMENT>",
      Emitted(static_cast<Statement *>(S)).xml()));

  // No DELIMITED phrase, an empty one, and phrases without identifiers.
  auto *Plain = T.make<UnstringStatement>();
  Plain->setSourceIdentifier(T.id("SRC"));
  Plain->setDelemitedPhrase(T.make<UnstringDelemitedPhrase>());
  Plain->setPhrasePointer(T.make<PointerPhrase>());
  Plain->setPhraseTallying(T.make<UnstringTallyingPhrase>());
  Plain->addInto(Bare);
  EXPECT_TRUE(sameXML("<UNSTRING_STATEMENT><SOURCE>" + id("SRC") +
                          "</SOURCE><INTO><TARGET>" + id("B") +
                          "</TARGET></INTO></UNSTRING_STATEMENT>",
                      Emitted(static_cast<Statement *>(Plain)).xml()));
}

TEST(UnstringStatement, AllFlagIsLocatedAtTheDelimiterNotTheKeyword) {
  Tree T;
  // DELIMITED BY ALL SPACE
  auto *Item = T.at<UnstringDelimitedItem>(8, 26, 8, 34);
  Word *All = T.word("ALL", 8, 26);
  Item->setAllWord(All);
  auto *Space = T.at<FigurativeLiteralExpression>(8, 30, 8, 34);
  Space->setType(FIG_SPACE);
  Space->setFigWord(T.word("SPACE", 8, 30));
  Item->setDelimiter(Space);
  Emitted Out(Item);
  EXPECT_EQ(Out.span("ALL"), spanOf(Space));
  EXPECT_NE(Out.span("ALL"), spanOf(All));
  // Flag and operand share a location: the operand stays first.
  EXPECT_STREQ(Out.Root->FirstChildElement()->Name(), "FIGURATIVE_CONSTANT");
  EXPECT_STREQ(Out.Root->LastChildElement()->Name(), "ALL");
}

TEST(UnstringStatement, TallyingPhraseVisitedOnItsOwn) {
  Tree T;
  auto *Phrase = T.make<UnstringTallyingPhrase>();
  Phrase->setTallyingId(T.id("N"));
  Phrase->setTallyingWord(T.kw("tallying"));
  Phrase->setInWord(T.kw("in"));
  // The tag keeps its mixed case; the words are written normalised.
  EXPECT_TRUE(sameXML("<UnstringTallyingPhrase>" + id("N") +
                          "<WORD>TALLYING</WORD><WORD>IN</WORD>"
                          "</UnstringTallyingPhrase>",
                      Emitted(Phrase).xml()));
  EXPECT_TRUE(sameXML("<UnstringTallyingPhrase/>",
                      Emitted(T.make<UnstringTallyingPhrase>()).xml()));
}

//===----------------------------------------------------------------------===//
// File input-output statements
//===----------------------------------------------------------------------===//

OpenFile *openFile(Tree &T, const char *Name) {
  auto *F = T.make<OpenFile>();
  F->setFileName(T.kw(Name));
  return F;
}

TEST(FileStatements, OpenAndClose) {
  Tree T;
  // OPEN INPUT fa FB REVERSED OUTPUT FC NO REWIND; EXTEND without its word.
  auto *Input = T.make<OpenItem>();
  Input->setType(OPEN_STMT_INPUT);
  Input->setInputWord(T.kw("input"));
  Input->addFile(openFile(T, "fa"));
  OpenFile *FB = openFile(T, "FB");
  FB->setReversedWord(T.kw("REVERSED"));
  Input->addFile(FB);
  auto *Output = T.make<OpenItem>();
  Output->setType(OPEN_STMT_OUTPUT);
  Output->setOutputWord(T.kw("OUTPUT"));
  OpenFile *FC = openFile(T, "FC");
  FC->setRewindWord(T.kw("REWIND"));
  Output->addFile(FC);
  auto *IO = T.make<OpenItem>();
  IO->setType(OPEN_STMT_IO);
  IO->setIOWord(T.kw("I-O"));
  IO->addFile(openFile(T, "FD"));
  auto *Extend = T.make<OpenItem>();
  Extend->setType(OPEN_STMT_EXTEND);
  Extend->setInputWord(T.kw("INPUT")); // not the mode's own word
  Extend->addFile(nullptr);
  Extend->addFile(openFile(T, "FE"));
  auto *Open = T.make<OpenStatement>();
  Open->addItem(Input);
  Open->addItem(nullptr);
  Open->addItem(Output);
  Open->addItem(IO);
  Open->addItem(Extend);
  EXPECT_TRUE(sameXML(
      "<OPEN_STATEMENT>"
      "<OPEN_FILE_ENTRY><MODE>INPUT</MODE>"
      "<FILE_ENTRY><FILE_NAME>fa</FILE_NAME></FILE_ENTRY>"
      "<FILE_ENTRY><FILE_NAME>FB</FILE_NAME><RESERVED>TRUE</RESERVED>"
      "</FILE_ENTRY></OPEN_FILE_ENTRY>"
      "<OPEN_FILE_ENTRY><MODE>OUTPUT</MODE>"
      "<FILE_ENTRY><FILE_NAME>FC</FILE_NAME><NO_REWIND>TRUE</NO_REWIND>"
      "</FILE_ENTRY></OPEN_FILE_ENTRY>"
      "<OPEN_FILE_ENTRY><MODE>IO</MODE>"
      "<FILE_ENTRY><FILE_NAME>FD</FILE_NAME></FILE_ENTRY></OPEN_FILE_ENTRY>"
      "<OPEN_FILE_ENTRY>"
      "<FILE_ENTRY><FILE_NAME>FE</FILE_NAME></FILE_ENTRY></OPEN_FILE_ENTRY>"
      "</OPEN_STATEMENT>",
      Emitted(static_cast<Statement *>(Open)).xml()));

  // CLOSE F REEL LOCK WITH NO REWIND REMOVAL, G UNIT: the rewind flag is
  // REWIND here, NO_REWIND in OPEN.
  auto *F = T.make<CloseFile>();
  F->setFileName(T.kw("f"));
  F->setReelWord(T.kw("REEL"));
  F->setUnitWord(T.kw("UNIT"));
  F->setLockWord(T.kw("LOCK"));
  F->setRewindWord(T.kw("REWIND"));
  F->setRemovalWord(T.kw("REMOVAL"));
  auto *G = T.make<CloseFile>();
  G->setFileName(T.kw("G"));
  auto *Close = T.make<CloseStatement>();
  Close->addCloseFile(F);
  Close->addCloseFile(nullptr);
  Close->addCloseFile(G);
  EXPECT_TRUE(sameXML(
      "<CLOSE_STATEMENT><CLOSE_FILE_ENTRY><FILE_NAME>f</FILE_NAME>"
      "<REEL>TRUE</REEL><UNIT>TRUE</UNIT><LOCK>TRUE</LOCK>"
      "<REWIND>TRUE</REWIND><REMOVAL>TRUE</REMOVAL></CLOSE_FILE_ENTRY>"
      "<CLOSE_FILE_ENTRY><FILE_NAME>G</FILE_NAME></CLOSE_FILE_ENTRY>"
      "</CLOSE_STATEMENT>",
      Emitted(static_cast<Statement *>(Close)).xml()));
}

TEST(FileStatements, OpenModeAndFlagsTakeTheirWordsLocations) {
  Tree T;
  // OPEN INPUT FA NO REWIND
  auto *Item = T.at<OpenItem>(9, 17, 9, 35);
  Item->setType(OPEN_STMT_INPUT);
  Word *Input = T.word("INPUT", 9, 17);
  Item->setInputWord(Input);
  auto *F = T.at<OpenFile>(9, 23, 9, 35);
  F->setFileName(T.word("FA", 9, 23));
  Word *Rewind = T.word("REWIND", 9, 29);
  F->setRewindWord(Rewind);
  Item->addFile(F);
  Emitted Out(Item);
  EXPECT_EQ(Out.span("MODE"), spanOf(Input));
  EXPECT_EQ(Out.span("FILE_ENTRY"), "9:23-9:35");
  EXPECT_EQ(Out.span("FILE_ENTRY/NO_REWIND"), spanOf(Rewind));
}

TEST(FileStatements, ReadWriteRewriteDeleteStart) {
  Tree T;
  // READ F NEXT RECORD INTO R KEY IS K AT END ... NOT AT END ...
  auto *Read = T.make<ReadStatement>();
  Read->setFileName(T.kw("f"));
  Read->setIntoIdentifier(T.id("R"));
  auto *Next = T.make<ReadRecordItem>();
  Next->setNextWord(T.kw("NEXT"));
  Read->setRecordItem(Next);
  auto *Key = T.make<ReadKeyPhrase>();
  Key->setKeyName(T.id("K"));
  Read->setKeyPhrase(Key);
  Read->addError(T.excp(EXCEPTION_END, false, T.suppress()));
  Read->addError(T.excp(EXCEPTION_END, true, T.suppress()));
  EXPECT_TRUE(sameXML(
      "<READ_STATEMENT><FILE_NAME>f</FILE_NAME><INTO>" + id("R") +
          "</INTO><NEXT>TRUE</NEXT><KEY>" + id("K") +
          "</KEY><EXCEPTION_LIST size=\"2\" name=\"ExcpList\">"
          "<EXCEPTION><TYPE>AT_END</TYPE>" +
          Suppress + "</EXCEPTION><EXCEPTION><TYPE>NOT_AT_END</TYPE>" +
          Suppress + "</EXCEPTION></EXCEPTION_LIST></READ_STATEMENT>",
      Emitted(static_cast<Statement *>(Read)).xml()));
  // A record phrase without NEXT word and a key phrase without name.
  auto *Short = T.make<ReadStatement>();
  Short->setRecordItem(T.make<ReadRecordItem>());
  Short->setKeyPhrase(T.make<ReadKeyPhrase>());
  EXPECT_TRUE(sameXML("<READ_STATEMENT><KEY/></READ_STATEMENT>",
                      Emitted(static_cast<Statement *>(Short)).xml()));

  // WRITE REC FROM W AFTER ADVANCING 2 LINES, and both LINE and PAGE.
  auto *Adv = T.make<WriteAdvancing>();
  Adv->setValue(T.num("2"));
  Adv->setBeforeAfterWord(T.kw("after"));
  Adv->setLineWord(T.kw("LINES"));
  auto *Write = T.make<WriteStatement>();
  Write->setRecordName(T.id("REC"));
  Write->setFromIdentifier(T.id("W"));
  Write->setAdvancing(Adv);
  Write->addExceptionHandler(T.excp(EXCEPTION_ENDOFPAGE, false, T.suppress()));
  EXPECT_TRUE(sameXML(
      "<WRITE_STATEMENT><RECORD>" + id("REC") + "</RECORD><FROM>" + id("W") +
          "</FROM><ADVANCING><ADVANCING_VALUE>" + val("2") +
          "</ADVANCING_VALUE><TIMING>after</TIMING><TYPE>LINE</TYPE>"
          "</ADVANCING><EXCEPTION_LIST size=\"1\" name=\"ExcpList\">"
          "<EXCEPTION><TYPE>AT_END_OF_PAGE</TYPE>" +
          Suppress + "</EXCEPTION></EXCEPTION_LIST></WRITE_STATEMENT>",
      Emitted(static_cast<Statement *>(Write)).xml()));
  auto *Page = T.make<WriteAdvancing>();
  Page->setBeforeAfterWord(T.kw("BEFORE"));
  Page->setPageWord(T.kw("PAGE"));
  EXPECT_TRUE(sameXML("<ADVANCING><TIMING>BEFORE</TIMING><TYPE>PAGE</TYPE>"
                      "</ADVANCING>",
                      Emitted(Page).xml()));
  Page->setLineWord(T.kw("LINE"));
  EXPECT_TRUE(sameXML("<ADVANCING><TIMING>BEFORE</TIMING><TYPE>LINE</TYPE>"
                      "<TYPE>PAGE</TYPE></ADVANCING>",
                      Emitted(Page).xml()));

  // REWRITE names its record RECORD_NAME where WRITE says RECORD.
  auto *Rewrite = T.make<RewriteStatement>();
  Rewrite->setRecordName(T.id("REC"));
  Rewrite->setFromIdentifier(T.id("W"));
  Rewrite->addInvalidKeyHandler(
      T.excp(EXCEPTION_INVALIDKEY, false, T.suppress()));
  EXPECT_TRUE(sameXML(
      "<REWRITE_STATEMENT><RECORD_NAME>" + id("REC") +
          "</RECORD_NAME><FROM>" + id("W") +
          "</FROM><EXCEPTION_LIST size=\"1\" name=\"ExcpList\">"
          "<EXCEPTION><TYPE>INVALID_KEY</TYPE>" +
          Suppress + "</EXCEPTION></EXCEPTION_LIST></REWRITE_STATEMENT>",
      Emitted(static_cast<Statement *>(Rewrite)).xml()));

  // DELETE writes its exception list before its file, tagged FILE.
  auto *Delete = T.make<DeleteStatement>();
  Delete->setFileName(T.kw("F"));
  Delete->addInvalidKeyHandler(
      T.excp(EXCEPTION_INVALIDKEY, true, T.suppress()));
  EXPECT_TRUE(sameXML(
      std::string("<DELETE_STATEMENT><EXCEPTION_LIST size=\"1\" "
                  "name=\"ExcpList\"><EXCEPTION><TYPE>NOT_INVALID_KEY</TYPE>") +
          Suppress +
          "</EXCEPTION></EXCEPTION_LIST><FILE>F</FILE></DELETE_STATEMENT>",
      Emitted(static_cast<Statement *>(Delete)).xml()));

  // START F KEY IS GREATER THAN K INVALID KEY ...; START without key.
  auto *Start = T.make<StartStatement>();
  Start->setFileName(T.kw("F"));
  auto *StartKeyNode = T.make<StartKey>();
  StartKeyNode->setType(KEY_OP_GT);
  StartKeyNode->setDataName(T.id("K"));
  Start->setKey(StartKeyNode);
  Start->addInvalidKeyHandler(
      T.excp(EXCEPTION_INVALIDKEY, false, T.suppress()));
  EXPECT_TRUE(sameXML(
      "<START_STATEMENT><FILE_NAME>F</FILE_NAME><START_CONDITION>"
      "<KEY_COND>GT</KEY_COND><DATA_NAME>" +
          id("K") +
          "</DATA_NAME></START_CONDITION><EXCEPTION_LIST size=\"1\" "
          "name=\"ExcpList\"><EXCEPTION><TYPE>INVALID_KEY</TYPE>" +
          Suppress + "</EXCEPTION></EXCEPTION_LIST></START_STATEMENT>",
      Emitted(static_cast<Statement *>(Start)).xml()));
  auto *NoKey = T.make<StartStatement>();
  NoKey->setFileName(T.kw("F"));
  EXPECT_TRUE(sameXML("<START_STATEMENT><FILE_NAME>F</FILE_NAME>"
                      "</START_STATEMENT>",
                      Emitted(static_cast<Statement *>(NoKey)).xml()));
}

TEST(FileStatements, StartOperatorsAreLocatedAtTheKey) {
  Tree T;
  const std::pair<StartKeyType, const char *> Ops[] = {
      {KEY_OP_EQ, "EQ"}, {KEY_OP_GT, "GT"}, {KEY_OP_GE, "GE"},
      {KEY_OP_LT, "LT"}, {KEY_OP_LE, "LE"}};
  for (const auto &Op : Ops) {
    // KEY IS NOT LESS THAN K: no word is kept for the operator.
    auto *Key = T.at<StartKey>(12, 20, 12, 44);
    Key->setType(Op.first);
    Key->setDataName(T.idAt("K", 12, 44));
    Emitted Out(Key);
    EXPECT_STREQ(Out.find("KEY_COND")->GetText(), Op.second);
    EXPECT_EQ(Out.span("KEY_COND"), "12:20-12:44");
    EXPECT_EQ(Out.span("DATA_NAME"), "12:44-12:44");
  }
}

//===----------------------------------------------------------------------===//
// ACCEPT and DISPLAY
//===----------------------------------------------------------------------===//

TEST(AcceptStatement, FromPhraseTypes) {
  Tree T;
  auto *Plain = T.make<AcceptStatement>();
  Plain->setVariable(T.id("X"));
  EXPECT_TRUE(sameXML("<ACCEPT_STATEMENT><RECEIVING>" + id("X") +
                          "</RECEIVING></ACCEPT_STATEMENT>",
                      Emitted(static_cast<Statement *>(Plain)).xml()));

  auto From = [&](AcceptFromType Type, const char *Keyword,
                  const char *Format) {
    auto *F = T.make<AcceptFrom>();
    F->setType(Type);
    F->setDateWord(T.kw(Keyword));
    if (Format)
      F->setDateFormat(T.kw(Format));
    return Emitted(F).xml();
  };
  // The date format joins DATE and DAY only, in its normalised spelling.
  EXPECT_TRUE(sameXML("<ACCEPT_FROM><TYPE>DATE_YYYYMMDD</TYPE></ACCEPT_FROM>",
                      From(ACCEPT_FROM_DATE, "DATE", "yyyymmdd")));
  EXPECT_TRUE(sameXML("<ACCEPT_FROM><TYPE>DATE</TYPE></ACCEPT_FROM>",
                      From(ACCEPT_FROM_DATE, "DATE", nullptr)));
  EXPECT_TRUE(sameXML("<ACCEPT_FROM><TYPE>DAY_YYYYDDD</TYPE></ACCEPT_FROM>",
                      From(ACCEPT_FROM_DAY, "day", "YYYYDDD")));
  EXPECT_TRUE(sameXML("<ACCEPT_FROM><TYPE>DAY</TYPE></ACCEPT_FROM>",
                      From(ACCEPT_FROM_DAY, "DAY", nullptr)));
  EXPECT_TRUE(sameXML("<ACCEPT_FROM><TYPE>DAY_OF_WEEK</TYPE></ACCEPT_FROM>",
                      From(ACCEPT_FROM_DAY_OF_WEEK, "DAY-OF-WEEK", "YYYYDDD")));
  EXPECT_TRUE(sameXML("<ACCEPT_FROM><TYPE>TIME</TYPE></ACCEPT_FROM>",
                      From(ACCEPT_FROM_TIME, "TIME", "YYYYMMDD")));

  // ACCEPT X FROM console: the name as written, whatever the type.
  auto *Mnemonic = T.make<AcceptFrom>();
  Mnemonic->setType(ACCEPT_FROM_ENVIRONMENT_NAME);
  Mnemonic->setFromName(T.kw("console"));
  auto *FromConsole = T.make<AcceptStatement>();
  FromConsole->setVariable(T.id("X"));
  FromConsole->setFromType(Mnemonic);
  EXPECT_TRUE(sameXML("<ACCEPT_STATEMENT><RECEIVING>" + id("X") +
                          "</RECEIVING><ACCEPT_FROM><TYPE>MNEMONIC</TYPE>"
                          "<VALUE>console</VALUE></ACCEPT_FROM>"
                          "</ACCEPT_STATEMENT>",
                      Emitted(static_cast<Statement *>(FromConsole)).xml()));
  auto *DateWithName = T.make<AcceptFrom>();
  DateWithName->setType(ACCEPT_FROM_TIME);
  DateWithName->setFromName(T.kw("SYSIN"));
  EXPECT_TRUE(sameXML("<ACCEPT_FROM><TYPE>TIME</TYPE><VALUE>SYSIN</VALUE>"
                      "</ACCEPT_FROM>",
                      Emitted(DateWithName).xml()));
}

TEST(AcceptStatement, TypeLocation) {
  Tree T;
  // FROM CONSOLE: TYPE is located at the name.
  auto *Mnemonic = T.at<AcceptFrom>(14, 22, 14, 33);
  Mnemonic->setType(ACCEPT_FROM_ENVIRONMENT_NAME);
  Word *Console = T.word("CONSOLE", 14, 27);
  Mnemonic->setFromName(Console);
  Emitted ByName(Mnemonic);
  EXPECT_EQ(ByName.span("TYPE"), spanOf(Console));
  EXPECT_EQ(ByName.span("VALUE"), spanOf(Console));

  // FROM DATE: at the DATE word; without it, at the whole FROM phrase.
  auto *Date = T.at<AcceptFrom>(15, 22, 15, 39);
  Date->setType(ACCEPT_FROM_DATE);
  Word *DateWord = T.word("DATE", 15, 27);
  Date->setDateWord(DateWord);
  Date->setDateFormat(T.word("YYYYMMDD", 15, 32));
  EXPECT_EQ(Emitted(Date).span("TYPE"), spanOf(DateWord));
  Date->setDateWord(nullptr);
  Emitted NoWord(Date);
  EXPECT_EQ(NoWord.span("TYPE"), "15:22-15:39");
  EXPECT_STREQ(NoWord.find("TYPE")->GetText(), "DATE_YYYYMMDD");
}

TEST(DisplayStatement, ItemsInOneSingularContainerAndUpon) {
  Tree T;
  auto *D = T.make<DisplayStatement>();
  D->addIdenLiter(T.lit("A"));
  D->addIdenLiter(nullptr);
  D->addIdenLiter(T.id("B"));
  D->setUponName(T.kw("Console"));
  EXPECT_TRUE(sameXML("<DISPLAY_STATEMENT><DISPLAY_ITEM size=\"3\" "
                      "name=\"ExprList\">" +
                          val("A") + id("B") +
                          "</DISPLAY_ITEM><UPON>Console</UPON>"
                          "</DISPLAY_STATEMENT>",
                      Emitted(static_cast<Statement *>(D)).xml()));
  EXPECT_TRUE(sameXML("<DISPLAY_STATEMENT/>",
                      Emitted(T.make<DisplayStatement>()).xml()));
}

//===----------------------------------------------------------------------===//
// SORT, MERGE, RELEASE, RETURN
//===----------------------------------------------------------------------===//

SortKey *sortKey(Tree &T, const char *Order, const char *Name) {
  auto *K = T.make<SortKey>();
  K->setAscDscWord(T.kw(Order));
  K->addKeyName(T.id(Name));
  return K;
}

TEST(SortStatement, SortAndMergeShapes) {
  Tree T;
  auto *In = T.make<SortIO>();
  In->setUsingGivingWord(T.kw("USING"));
  In->addFileName(T.kw("in-f"));
  auto *Out = T.make<SortIO>();
  Out->setUsingGivingWord(T.kw("GIVING"));
  Out->addFileName(T.kw("OUT-F"));
  Out->addFileName(nullptr);
  Out->addFileName(T.kw("OUT-G"));
  auto *Collating = T.make<SortCollating>();
  Collating->setSeqAlphaName(T.kw("Alpha"));
  auto *Sort = T.make<SortStatement>();
  Sort->setFileName(T.kw("sf"));
  Sort->setSortDuplicates(T.make<SortDuplicates>());
  Sort->addKey(sortKey(T, "ascending", "K1"));
  Sort->addKey(sortKey(T, "DESCENDING", "K2"));
  Sort->setSortCollating(Collating);
  Sort->setInput(In);
  Sort->setOutput(Out);
  // SORT's keys are in a MERGE_KEY_LIST too; the file lists hold words.
  const std::string Keys =
      "<MERGE_KEY_LIST size=\"2\" name=\"SrtKeyList\">"
      "<KEY><SORT_TYPE>ascending</SORT_TYPE>"
      "<KEY_ITEM_LIST size=\"1\" name=\"ExprList\">" +
      id("K1") +
      "</KEY_ITEM_LIST></KEY><KEY><SORT_TYPE>DESCENDING</SORT_TYPE>"
      "<KEY_ITEM_LIST size=\"1\" name=\"ExprList\">" +
      id("K2") + "</KEY_ITEM_LIST></KEY></MERGE_KEY_LIST>";
  const std::string Rest =
      "<COLLATING_SEQUENCE>Alpha</COLLATING_SEQUENCE>"
      "<SORT_IN><FILE_LIST size=\"1\" name=\"WordList\"><WORD>IN-F</WORD>"
      "</FILE_LIST></SORT_IN>"
      "<SORT_OUT><FILE_LIST size=\"3\" name=\"WordList\"><WORD>OUT-F</WORD>"
      "<WORD>OUT-G</WORD></FILE_LIST></SORT_OUT>";
  EXPECT_TRUE(sameXML("<SORT_STATEMENT><FILE_NAME>sf</FILE_NAME>"
                      "<DUPLICATE>TRUE</DUPLICATE>" +
                          Keys + Rest + "</SORT_STATEMENT>",
                      Emitted(static_cast<Statement *>(Sort)).xml()));

  // MERGE has the same shape without DUPLICATE.
  auto *Merge = T.make<MergeStatement>();
  Merge->setFileName(T.kw("sf"));
  Merge->addKey(sortKey(T, "ascending", "K1"));
  Merge->addKey(sortKey(T, "DESCENDING", "K2"));
  Merge->setSortCollating(Collating);
  Merge->setInput(In);
  Merge->setOutput(Out);
  EXPECT_TRUE(sameXML("<MERGE_STATEMENT><FILE_NAME>sf</FILE_NAME>" + Keys +
                          Rest + "</MERGE_STATEMENT>",
                      Emitted(static_cast<Statement *>(Merge)).xml()));

  // Nothing optional, and a collating phrase without alphabet name.
  auto *Bare = T.make<SortStatement>();
  Bare->setSortCollating(T.make<SortCollating>());
  EXPECT_TRUE(sameXML("<SORT_STATEMENT/>",
                      Emitted(static_cast<Statement *>(Bare)).xml()));
  auto *BareMerge = T.make<MergeStatement>();
  BareMerge->setSortCollating(T.make<SortCollating>());
  EXPECT_TRUE(sameXML("<MERGE_STATEMENT/>",
                      Emitted(static_cast<Statement *>(BareMerge)).xml()));
}

TEST(SortStatement, InputOutputTypeTextsAreCrossed) {
  Tree T;
  struct Case {
    const char *IOWord, *UsingGivingWord;
    bool ProcedureWord;
    const char *Expected;
  };
  // A USING or GIVING phrase says PROCEDURE, and only with a PROCEDURE word;
  // an INPUT or OUTPUT PROCEDURE phrase says USING or GIVING.
  const Case Cases[] = {
      {"input", nullptr, true, "<SORT_IN><INPUT_TYPE>USING</INPUT_TYPE>"},
      {"OUTPUT", nullptr, true, "<SORT_OUT><OUTPUT_TYPE>GIVING</OUTPUT_TYPE>"},
      {nullptr, "using", true, "<SORT_IN><INPUT_TYPE>PROCEDURE</INPUT_TYPE>"},
      {nullptr, "GIVING", true,
       "<SORT_OUT><OUTPUT_TYPE>PROCEDURE</OUTPUT_TYPE>"},
      {nullptr, "USING", false, "<SORT_IN>"},
      {nullptr, "GIVING", false, "<SORT_OUT>"},
      // The IO word decides before a USING or GIVING word is looked at.
      {"INPUT", "GIVING", true, "<SORT_IN><INPUT_TYPE>USING</INPUT_TYPE>"},
      // Neither word: an output phrase without type.
      {nullptr, nullptr, true, "<SORT_OUT>"},
  };
  for (const Case &C : Cases) {
    auto *IO = T.make<SortIO>();
    if (C.IOWord)
      IO->setIOWord(T.kw(C.IOWord));
    if (C.UsingGivingWord)
      IO->setUsingGivingWord(T.kw(C.UsingGivingWord));
    if (C.ProcedureWord)
      IO->setProcedureWord(T.kw("PROCEDURE"));
    IO->setFromProcedureName(T.qual("P1"));
    IO->setToProcedureName(T.qual("P2"));
    std::string Tag = C.Expected[6] == 'I' ? "SORT_IN" : "SORT_OUT";
    EXPECT_TRUE(sameXML(std::string(C.Expected) +
                            "<PROC_NAME><QUALIFIED>P1</QUALIFIED></PROC_NAME>"
                            "<PROC_NAME_THRU><QUALIFIED>P2</QUALIFIED>"
                            "</PROC_NAME_THRU></" +
                            Tag + ">",
                        Emitted(IO).xml()))
        << (C.IOWord ? C.IOWord : "-") << " "
        << (C.UsingGivingWord ? C.UsingGivingWord : "-");
  }
}

TEST(SortStatement, TypeAndDuplicateLocations) {
  Tree T;
  // SORT SF ON ASCENDING KEY K1 WITH DUPLICATES
  //     INPUT PROCEDURE IS P1 THRU P2
  //     USING PROCEDURE (a procedure word kept with a USING phrase)
  auto *Sort = T.at<SortStatement>(20, 12, 22, 40);
  Sort->setFileName(T.word("SF", 20, 17));
  auto *Key = T.at<SortKey>(20, 20, 20, 38);
  Key->setAscDscWord(T.word("ASCENDING", 20, 23));
  Key->addKeyName(T.idAt("K1", 20, 37));
  Sort->addKey(Key);
  auto *Dups = T.at<SortDuplicates>(20, 40, 20, 54);
  Sort->setSortDuplicates(Dups);
  auto *In = T.at<SortIO>(21, 16, 21, 44);
  Word *Input = T.word("INPUT", 21, 16);
  In->setIOWord(Input);
  In->setProcedureWord(T.word("PROCEDURE", 21, 22));
  Sort->setInput(In);
  auto *Out = T.at<SortIO>(22, 16, 22, 40);
  Out->setUsingGivingWord(T.word("GIVING", 22, 16));
  Word *Procedure = T.word("PROCEDURE", 22, 23);
  Out->setProcedureWord(Procedure);
  Sort->setOutput(Out);

  Emitted Sorted(static_cast<Statement *>(Sort));
  EXPECT_EQ(Sorted.span("DUPLICATE"), spanOf(Dups));
  EXPECT_EQ(Sorted.span("MERGE_KEY_LIST"), "20:20-20:38");
  EXPECT_EQ(Sorted.span("SORT_IN/INPUT_TYPE"), spanOf(Input));
  EXPECT_EQ(Sorted.span("SORT_OUT/OUTPUT_TYPE"), spanOf(Procedure));
}

TEST(SortStatement, ReleaseAndReturn) {
  Tree T;
  auto *Release = T.make<ReleaseStatement>();
  Release->setRecordName(T.id("SR"));
  Release->setFromIdentifier(T.id("W"));
  EXPECT_TRUE(sameXML("<RELEASE_STATEMENT><RECORD_NAME>" + id("SR") +
                          "</RECORD_NAME><RECORD_FROM>" + id("W") +
                          "</RECORD_FROM></RELEASE_STATEMENT>",
                      Emitted(static_cast<Statement *>(Release)).xml()));
  auto *Return = T.make<ReturnStatement>();
  Return->setFileName(T.kw("sf"));
  Return->setIntoIdentifier(T.id("W"));
  Return->addEndHandler(T.excp(EXCEPTION_END, false, T.suppress()));
  EXPECT_TRUE(sameXML("<RETURN_STATEMENT><FILE_NAME>sf</FILE_NAME><INTO>" +
                          id("W") +
                          "</INTO><EXCEPTION_LIST size=\"1\" name=\"ExcpList\">"
                          "<EXCEPTION><TYPE>AT_END</TYPE>" +
                          Suppress +
                          "</EXCEPTION></EXCEPTION_LIST></RETURN_STATEMENT>",
                      Emitted(static_cast<Statement *>(Return)).xml()));
  EXPECT_TRUE(sameXML("<RELEASE_STATEMENT/>",
                      Emitted(T.make<ReleaseStatement>()).xml()));
  EXPECT_TRUE(sameXML("<RETURN_STATEMENT/>",
                      Emitted(T.make<ReturnStatement>()).xml()));
}

//===----------------------------------------------------------------------===//
// XML GENERATE and XML PARSE
//===----------------------------------------------------------------------===//

TEST(XMLStatements, GenerateShapes) {
  Tree T;
  auto *Gen = T.make<XMLGenerateStatement>();
  Gen->setGenIdent(T.id("OUT"));
  Gen->setFromIdent(T.id("REC"));
  auto *Count = T.make<ClauseXMLCount>();
  Count->setCountIdent(T.id("N"));
  Gen->setCountClause(Count);
  auto *Encoding = T.make<ClauseXMLEncoding>();
  Encoding->setCodePage(T.num("1208"));
  Gen->setEncodingClause(Encoding);
  Gen->setDeclarationClause(T.make<ClauseXMLDeclaration>());
  Gen->setAttributesClause(T.make<ClauseXMLAttributes>());
  auto *Space = T.make<ClauseXMLNameSpace>();
  Space->setNameSpaceExpr(T.lit("urn:x"));
  Space->setPrefixExpr(T.lit("x"));
  Gen->setNameSpaceClause(Space);
  Gen->addOnExcpHandler(T.excp(EXCEPTION_ON, false, T.suppress()));
  EXPECT_TRUE(sameXML(
      "<XML_GENERATE_STATEMENT><RECEIVING>" + id("OUT") + "</RECEIVING><FROM>" +
          id("REC") + "</FROM><COUNT>" + id("N") + "</COUNT><ENCODING>" +
          val("1208") +
          "</ENCODING><XML_DECLARATION>TRUE</XML_DECLARATION>"
          "<ATTRIBUTES>TRUE</ATTRIBUTES><NAMESPACE>" +
          val("urn:x") + "</NAMESPACE><NAMESPACE-PREFIX>" + val("x") +
          "</NAMESPACE-PREFIX><EXCEPTION_LIST size=\"1\" name=\"ExcpList\">"
          "<EXCEPTION><TYPE>ON_EXCEPTION</TYPE>" +
          Suppress + "</EXCEPTION></EXCEPTION_LIST></XML_GENERATE_STATEMENT>",
      Emitted(static_cast<Statement *>(Gen)).xml()));

  // WITH ATTRIBUTES alone writes nothing; clauses without operands neither.
  auto *Partial = T.make<XMLGenerateStatement>();
  Partial->setGenIdent(T.id("OUT"));
  Partial->setAttributesClause(T.make<ClauseXMLAttributes>());
  Partial->setCountClause(T.make<ClauseXMLCount>());
  Partial->setEncodingClause(T.make<ClauseXMLEncoding>());
  auto *PrefixOnly = T.make<ClauseXMLNameSpace>();
  PrefixOnly->setPrefixExpr(T.lit("x"));
  Partial->setNameSpaceClause(PrefixOnly);
  EXPECT_TRUE(sameXML("<XML_GENERATE_STATEMENT><RECEIVING>" + id("OUT") +
                          "</RECEIVING><NAMESPACE-PREFIX>" + val("x") +
                          "</NAMESPACE-PREFIX></XML_GENERATE_STATEMENT>",
                      Emitted(static_cast<Statement *>(Partial)).xml()));
}

TEST(XMLStatements, AttributesCarryTheDeclarationsLocation) {
  Tree T;
  // XML GENERATE OUT FROM REC WITH XML-DECLARATION WITH ATTRIBUTES
  auto *Gen = T.at<XMLGenerateStatement>(30, 12, 31, 36);
  Gen->setGenIdent(T.idAt("OUT", 30, 25));
  Gen->setFromIdent(T.idAt("REC", 30, 34));
  auto *Declaration = T.at<ClauseXMLDeclaration>(31, 16, 31, 35);
  Gen->setDeclarationClause(Declaration);
  Gen->setAttributesClause(T.at<ClauseXMLAttributes>(31, 37, 31, 51));
  Emitted Out(static_cast<Statement *>(Gen));
  EXPECT_EQ(Out.span("XML_DECLARATION"), spanOf(Declaration));
  EXPECT_EQ(Out.span("ATTRIBUTES"), spanOf(Declaration));
  // Sharing a location, the two keep their order.
  EXPECT_STREQ(Out.find("XML_DECLARATION")->NextSiblingElement()->Name(),
               "ATTRIBUTES");
}

TEST(XMLStatements, ParseShapes) {
  Tree T;
  auto *Parse = T.make<XMLParseStatement>();
  Parse->setParseIdent(T.id("DOC"));
  auto *Encoding = T.make<ClauseXMLEncoding>();
  Encoding->setCodePage(T.num("1208"));
  Parse->setEncodingClause(Encoding);
  Parse->setReturningClause(T.make<ClauseXMLReturning>());
  auto *Validating = T.make<ClauseXMLValidating>();
  Validating->setValidatingIdent(T.id("SCHEMA"));
  Validating->setFileName(T.kw("schema-file"));
  Parse->setValidatingClause(Validating);
  Parse->setParseProcedure(T.qual("P1"));
  Parse->setThruProcedure(T.qual("P2"));
  Parse->addOnExcpHandler(T.excp(EXCEPTION_ON, true, T.suppress()));
  // With both an identifier and a file, only the identifier is written,
  // under the tag spelled VALDATING_IDENT.
  EXPECT_TRUE(sameXML(
      "<XML_PARSE_STATEMENT><SOURCE>" + id("DOC") + "</SOURCE><ENCODING>" +
          val("1208") +
          "</ENCODING><RETURNING_NATIONAL>TRUE</RETURNING_NATIONAL>"
          "<VALDATING_IDENT>" +
          id("SCHEMA") +
          "</VALDATING_IDENT><PROCESSING_PROCEDURE1><QUALIFIED>P1</QUALIFIED>"
          "</PROCESSING_PROCEDURE1><PROCESSING_PROCEDURE2><QUALIFIED>P2"
          "</QUALIFIED></PROCESSING_PROCEDURE2><EXCEPTION_LIST size=\"1\" "
          "name=\"ExcpList\"><EXCEPTION><TYPE>NOT_ON_EXCEPTION</TYPE>" +
          Suppress + "</EXCEPTION></EXCEPTION_LIST></XML_PARSE_STATEMENT>",
      Emitted(static_cast<Statement *>(Parse)).xml()));

  // VALIDATING WITH FILE name: the name as a word element.
  auto *ByFile = T.make<XMLParseStatement>();
  auto *FileOnly = T.make<ClauseXMLValidating>();
  FileOnly->setFileName(T.kw("schema-file"));
  ByFile->setValidatingClause(FileOnly);
  ByFile->setEncodingClause(T.make<ClauseXMLEncoding>());
  EXPECT_TRUE(sameXML("<XML_PARSE_STATEMENT><VALIDATING_FILE_XML_SCHEMA>"
                      "<WORD>SCHEMA-FILE</WORD></VALIDATING_FILE_XML_SCHEMA>"
                      "</XML_PARSE_STATEMENT>",
                      Emitted(static_cast<Statement *>(ByFile)).xml()));
  auto *Empty = T.make<XMLParseStatement>();
  Empty->setValidatingClause(T.make<ClauseXMLValidating>());
  EXPECT_TRUE(sameXML("<XML_PARSE_STATEMENT/>",
                      Emitted(static_cast<Statement *>(Empty)).xml()));
}

//===----------------------------------------------------------------------===//
// EXEC blocks and report-writer statements
//===----------------------------------------------------------------------===//

std::string execXML(const char *Type, const char *Content) {
  return std::string("<EXEC_STATEMENT><TYPE>") + Type + "</TYPE><CONTENT>" +
         Content + "</CONTENT></EXEC_STATEMENT>";
}

/// The CONTENT text of a procedure-division EXEC block.
std::string execContent(StatementType Type, const std::string &Text) {
  Tree T;
  Emitted Out(static_cast<Statement *>(T.make<ExecStatement>(Type, Text)));
  const char *Content = Out.find("CONTENT")->GetText();
  return Content ? Content : "";
}

TEST(ExecStatement, TypesAndKeywordTrimming) {
  Tree T;
  EXPECT_TRUE(sameXML(
      execXML("SQL", "SELECT A INTO :B FROM T"),
      Emitted(static_cast<Statement *>(T.make<ExecStatement>(
                  STMT_EXEC_SQL, "EXEC SQL SELECT A INTO :B FROM T END-EXEC")))
          .xml()));
  EXPECT_TRUE(sameXML(
      execXML("CICS", "SEND MAP('M1')"),
      Emitted(static_cast<Statement *>(T.make<ExecStatement>(
                  STMT_EXEC_CICS, "EXEC CICS SEND MAP('M1') END-EXEC")))
          .xml()));

  // Lower-case keywords count only when no upper-case one occurs.
  EXPECT_EQ(execContent(STMT_EXEC_SQL, "exec sql select a from t end-exec"),
            "select a from t");
  EXPECT_EQ(execContent(STMT_EXEC_CICS, "exec cics return end-exec"),
            "return");
  EXPECT_EQ(execContent(STMT_EXEC_SQL_INCLUDE,
                        "exec sql include member end-exec"),
            "member");
  EXPECT_EQ(execContent(STMT_EXEC_SQL,
                        "exec sql select SQLCODE from t end-exec"),
            "from t");
  // Mixed case is no keyword: only the closing word goes.
  EXPECT_EQ(execContent(STMT_EXEC_SQL, "Exec Sql Select A End-Exec"),
            "Exec Sql Select A");
  // A single space: the last word goes, then the search runs on the first.
  EXPECT_EQ(execContent(STMT_EXEC_SQL, "EXEC-SQL END-EXEC"), "QL");
  EXPECT_EQ(execContent(STMT_EXEC_SQL, "COMMIT END-EXEC"), "COMMIT");
  EXPECT_EQ(execContent(STMT_EXEC_SQL, "XSQL END-EXEC"), "QL");
  // No space at all: nothing is cut at the end, but a keyword still loses
  // its first letter; without a keyword the text stays whole.
  EXPECT_EQ(execContent(STMT_EXEC_SQL, "SQL"), "QL");
  EXPECT_EQ(execContent(STMT_EXEC_CICS, "NOTHING"), "NOTHING");
  EXPECT_EQ(execContent(STMT_EXEC_SQL, ""), "");

  // TYPE and CONTENT carry no location; the statement its caller's.
  auto *Located = T.at<ExecStatement>(40, 12, 40, 48, STMT_EXEC_SQL,
                                      "EXEC SQL COMMIT END-EXEC");
  Emitted Out(static_cast<Statement *>(Located));
  EXPECT_EQ(Out.span(), "40:12-40:48");
  EXPECT_EQ(Out.span("TYPE"), "unlocated");
  EXPECT_EQ(Out.span("CONTENT"), "unlocated");
}

TEST(ExecStatement, IncludeIsTrimmedDifferentlyInTheDataDivision) {
  Tree T;
  const std::string Text = "EXEC SQL INCLUDE SQLCA END-EXEC";
  // The procedure division drops INCLUDE, the data division keeps it.
  EXPECT_TRUE(sameXML(execXML("SQL", "SQLCA"),
                      Emitted(static_cast<Statement *>(T.make<ExecStatement>(
                                  STMT_EXEC_SQL_INCLUDE, Text)))
                          .xml()));
  auto *Entry = T.make<ExecData>(DESC_EXEC_SQL_INCLUDE);
  Entry->setSqlStr(Text);
  EXPECT_TRUE(sameXML(execXML("SQL", "INCLUDE SQLCA"),
                      Emitted(static_cast<DataDescription *>(Entry)).xml()));
  // A plain SQL block with the same words keeps INCLUDE as well.
  EXPECT_EQ(execContent(STMT_EXEC_SQL, Text), "INCLUDE SQLCA");
}

TEST(ReportWriterStatements, GenerateInitiateTerminateSuppress) {
  Tree T;
  auto *Gen = T.make<RwGenerateStatement>();
  Gen->setFileName(T.kw("detail-line"));
  EXPECT_TRUE(sameXML("<REPORT_GENERATE_STATEMENT><FILE_NAME>"
                      "<WORD>DETAIL-LINE</WORD></FILE_NAME>"
                      "</REPORT_GENERATE_STATEMENT>",
                      Emitted(static_cast<Statement *>(Gen)).xml()));
  auto *Init = T.make<RwInitiateStatement>();
  Init->addInitiateName(T.kw("R1"));
  Init->addInitiateName(T.kw("r2"));
  Init->setUponName(T.kw("PRN"));
  EXPECT_TRUE(sameXML("<REPORT_INITIATE_STATEMENT><REPORT_NAME_LIST "
                      "size=\"2\" name=\"WordList\"><WORD>R1</WORD>"
                      "<WORD>R2</WORD></REPORT_NAME_LIST><UPON_NAME>"
                      "<WORD>PRN</WORD></UPON_NAME>"
                      "</REPORT_INITIATE_STATEMENT>",
                      Emitted(static_cast<Statement *>(Init)).xml()));
  auto *Term = T.make<RwTerminateStatement>();
  Term->addTerminateName(T.kw("R1"));
  Term->addTerminateName(nullptr);
  Term->addTerminateName(T.kw("R3"));
  EXPECT_TRUE(sameXML("<REPORT_TERMINATE_STATEMENT><REPORT_NAME_LIST "
                      "size=\"3\" name=\"WordList\"><WORD>R1</WORD>"
                      "<WORD>R3</WORD></REPORT_NAME_LIST>"
                      "</REPORT_TERMINATE_STATEMENT>",
                      Emitted(static_cast<Statement *>(Term)).xml()));
  for (Statement *Empty :
       std::initializer_list<Statement *>{T.make<RwGenerateStatement>(),
                                          T.make<RwInitiateStatement>(),
                                          T.make<RwTerminateStatement>(),
                                          T.make<RwSuppressStatement>()}) {
    Emitted Out(Empty);
    EXPECT_EQ(Out.Root->FirstChild(), nullptr) << Out.Root->Name();
  }
  EXPECT_STREQ(Emitted(static_cast<Statement *>(T.suppress())).Root->Name(),
               "REPORT_SUPPRESS_STATEMENT");
}

//===----------------------------------------------------------------------===//
// Dispatch and impossible values
//===----------------------------------------------------------------------===//

TEST(StatementDispatch, EveryKindOfThisFamilyReachesItsVisit) {
  Tree T;
  const std::pair<Statement *, const char *> Kinds[] = {
      {T.make<SearchStatement>(), "SEARCH_STATEMENT"},
      {T.make<InspectStatement>(), "INSPECT_STATEMENT"},
      {T.make<StringStatement>(), "STRING_STATEMENT"},
      {T.make<UnstringStatement>(), "UNSTRING_STATEMENT"},
      {T.make<OpenStatement>(), "OPEN_STATEMENT"},
      {T.make<CloseStatement>(), "CLOSE_STATEMENT"},
      {T.make<ReadStatement>(), "READ_STATEMENT"},
      {T.make<WriteStatement>(), "WRITE_STATEMENT"},
      {T.make<RewriteStatement>(), "REWRITE_STATEMENT"},
      {T.make<DeleteStatement>(), "DELETE_STATEMENT"},
      {T.make<StartStatement>(), "START_STATEMENT"},
      {T.make<AcceptStatement>(), "ACCEPT_STATEMENT"},
      {T.make<DisplayStatement>(), "DISPLAY_STATEMENT"},
      {T.make<SortStatement>(), "SORT_STATEMENT"},
      {T.make<MergeStatement>(), "MERGE_STATEMENT"},
      {T.make<ReleaseStatement>(), "RELEASE_STATEMENT"},
      {T.make<ReturnStatement>(), "RETURN_STATEMENT"},
      {T.make<XMLGenerateStatement>(), "XML_GENERATE_STATEMENT"},
      {T.make<XMLParseStatement>(), "XML_PARSE_STATEMENT"},
      {T.make<ExecStatement>(STMT_EXEC_SQL), "EXEC_STATEMENT"},
      {T.make<ExecStatement>(STMT_EXEC_SQL_INCLUDE), "EXEC_STATEMENT"},
      {T.make<ExecStatement>(STMT_EXEC_CICS), "EXEC_STATEMENT"},
      {T.make<RwGenerateStatement>(), "REPORT_GENERATE_STATEMENT"},
      {T.make<RwInitiateStatement>(), "REPORT_INITIATE_STATEMENT"},
      {T.make<RwTerminateStatement>(), "REPORT_TERMINATE_STATEMENT"},
      {T.make<RwSuppressStatement>(), "REPORT_SUPPRESS_STATEMENT"},
  };
  for (const auto &Kind : Kinds)
    EXPECT_STREQ(Emitted(Kind.first).Root->Name(), Kind.second);
}

const char *const Impossible = "Assertion `0 && \"impossible\"' failed";

std::string assertionIn(const char *Class) {
  return std::string("lib/Visitor/XMLOstrel/Statement\\.cpp:[0-9]+: "
                     "virtual void korvid::XMLOstrel::visit\\(korvid::") +
         Class + "\\*\\): " + Impossible;
}

TEST(StatementFamilyDeathTest, ImpossibleKindsAbort) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  Tree T;
  Emitter E;
  auto *Open = T.make<OpenItem>(); // OPEN_STMT_NONE
  Open->setInputWord(T.kw("INPUT"));
  EXPECT_DEATH(E.visit(Open), assertionIn("OpenItem"));
  Open->setType(static_cast<OpenStmtType>(5));
  EXPECT_DEATH(E.visit(Open), assertionIn("OpenItem"));

  auto *Key = T.make<StartKey>(); // KEY_OP_NONE
  EXPECT_DEATH(E.visit(Key), assertionIn("StartKey"));
  Key->setType(static_cast<StartKeyType>(6));
  EXPECT_DEATH(E.visit(Key), assertionIn("StartKey"));

  auto *From = T.make<AcceptFrom>(); // ACCEPT_FROM_NONE
  From->setDateWord(T.kw("DATE"));
  EXPECT_DEATH(E.visit(From), assertionIn("AcceptFrom"));
  From->setType(static_cast<AcceptFromType>(6));
  EXPECT_DEATH(E.visit(From), assertionIn("AcceptFrom"));

  // An EXEC block whose statement type is not one of the three EXEC kinds.
  auto *Exec = T.make<ExecStatement>(STMT_EXEC_SQL, "EXEC SQL X END-EXEC");
  Exec->setType(STMT_STRINGREF);
  EXPECT_DEATH(E.visit(Exec), assertionIn("ExecStatement"));
  Exec->setType(STMT_DISPLAY);
  EXPECT_DEATH(E.visit(Exec), assertionIn("ExecStatement"));
}


//===----------------------------------------------------------------------===//
// One whole program with every kind of statement
//===----------------------------------------------------------------------===//

/// Builds a program one statement per line; every node of a statement
/// stands on the statement's line, so within a statement the document shows
/// the order of emission and across statements the order of the source.
struct ProgramTree : Tree {
  uint32_t Line = 1;
  Sentence *Current = nullptr;

  template <class T, class... Args> T *on(Args &&...A) {
    return at<T>(Line, 8, Line, 72, std::forward<Args>(A)...);
  }
  Word *w(const std::string &Text) {
    std::string Upper = Text;
    for (char &C : Upper)
      C = static_cast<char>(std::toupper(static_cast<unsigned char>(C)));
    return on<Word>(Upper, Text);
  }
  DataIdentifierExpression *ident(const std::string &Name) {
    auto *D = on<DataIdentifierExpression>();
    D->setName(on<QualifiedWord>(nullptr, w(Name)));
    return D;
  }
  NumericLiteralExpression *number(const std::string &Digits) {
    auto *N = on<NumericLiteralExpression>();
    N->setData(Digits);
    return N;
  }
  NonNumericLiteralExpression *text(const std::string &Chars) {
    auto *L = on<NonNumericLiteralExpression>();
    L->setData(Chars);
    return L;
  }
  QualifiedWord *name(const std::string &Name) {
    return on<QualifiedWord>(nullptr, w(Name));
  }
  RoundedExpression *rounded(const std::string &Name) {
    auto *R = on<RoundedExpression>();
    R->setExpression(ident(Name));
    return R;
  }
  ConditionNameCondition *condName(const std::string &Name) {
    auto *C = on<ConditionNameCondition>();
    C->setConditionName(ident(Name));
    return C;
  }
  ExceptionHandler *handler(ExceptionType Type, Statement *S) {
    auto *H = on<ExceptionHandler>();
    H->setType(Type);
    H->addImperStmt(S);
    return H;
  }
  /// Ends the statement's line: the next statement starts on the next one.
  void add(Statement *S) {
    Current->addStmt(S);
    ++Line;
  }
};

/// PROGRAM-ID. EVERYSTMT. PROCEDURE DIVISION USING LS-A, one paragraph of
/// sentences and one section with a paragraph, holding every statement the
/// emitter writes (and one error-recovery statement, which it drops).
void buildEveryStatement(ProgramTree &T) {
  T.Line = 1;
  SourceUnit *Unit = T.at<SourceUnit>(1, 8, 200, 30);
  auto *Id = T.on<IdentificationDivision>();
  auto *ProgramId = T.on<ProgramIdParagraph>();
  ProgramId->setProgramNameWord(T.w("EveryStmt"));
  Id->setProgramIDPara(ProgramId);
  Unit->setIDDivision(Id);

  T.Line = 5;
  auto *Proc = T.at<ProcedureDivision>(5, 8, 120, 30);
  auto *Using = T.on<ParamPhrase>();
  auto *Param = T.on<Parameter>();
  Param->setType(PARAM_REFERENCE);
  Param->addIdent(T.ident("LS-A"));
  Using->addParam(Param);
  Proc->setParameters(Using);
  Unit->setProcDiv(Proc);
  T.P.addSourceUnit(Unit);

  T.Line = 10;
  auto *Main = T.on<Paragraph>();
  Main->setName(T.w("MAIN"));
  Proc->addPara(Main);
  T.Current = T.on<Sentence>();
  Main->addSent(T.Current);

  // ACCEPT X FROM DATE YYYYMMDD
  auto *Accept = T.on<AcceptStatement>();
  Accept->setVariable(T.ident("X"));
  auto *From = T.on<AcceptFrom>();
  From->setType(ACCEPT_FROM_DATE);
  From->setDateWord(T.w("DATE"));
  From->setDateFormat(T.w("yyyymmdd"));
  Accept->setFromType(From);
  T.add(Accept);
  // ADD 1 TO A
  auto *Add = T.on<AddStatement>();
  Add->addOperand(T.number("1"));
  Add->addToItem(T.rounded("A"));
  T.add(Add);
  // ALTER P1 TO P2
  auto *Alter = T.on<AlterStatement>();
  auto *Transfer = T.on<AlterItem>();
  Transfer->setSrcProcName(T.name("P1"));
  Transfer->setDstProcName(T.name("P2"));
  Alter->addAlter(Transfer);
  T.add(Alter);
  // CALL 'SUB' USING BY CONTENT A
  auto *Call = T.on<CallStatement>();
  Call->setProcedureName(T.text("SUB"));
  auto *Arg = T.on<korvid::Using>();
  Arg->setType(USING_CONTENT);
  auto *ArgItem = T.on<UsingItem>();
  ArgItem->setItem(T.ident("A"));
  Arg->addItem(ArgItem);
  Call->addArgument(Arg);
  T.add(Call);
  // CANCEL 'SUB'
  auto *Cancel = T.on<CancelStatement>();
  Cancel->addProgramName(T.text("SUB"));
  T.add(Cancel);
  // CLOSE F
  auto *Close = T.on<CloseStatement>();
  auto *Closed = T.on<CloseFile>();
  Closed->setFileName(T.w("F"));
  Close->addCloseFile(Closed);
  T.add(Close);
  // COMPUTE A = B + 1
  auto *Compute = T.on<ComputeStatement>();
  Compute->addOperand(T.rounded("A"));
  auto *Sum = T.on<ArithmeticExpression>();
  Sum->setArithmeticExprType(ARITH_EXPR_PLUS);
  Sum->setOperator1(T.w("+"));
  Sum->setOperand1(T.ident("B"));
  Sum->setOperand2(T.number("1"));
  Compute->setArithmeticExpression(Sum);
  T.add(Compute);
  T.add(T.on<ContinueStatement>());
  // DELETE F
  auto *Delete = T.on<DeleteStatement>();
  Delete->setFileName(T.w("F"));
  T.add(Delete);
  // DISPLAY 'HELLO'
  auto *Display = T.on<DisplayStatement>();
  Display->addIdenLiter(T.text("HELLO"));
  T.add(Display);
  // DIVIDE 2 INTO A
  auto *Divide = T.on<DivideStatement>();
  Divide->setOperand(T.number("2"));
  Divide->addToItem(T.rounded("A"));
  T.add(Divide);
  // ENTRY 'ALT'
  auto *Entry = T.on<EntryStatement>();
  Entry->setEntryLiter(T.text("ALT"));
  T.add(Entry);
  // EVALUATE A WHEN 1 CONTINUE WHEN OTHER CONTINUE
  auto *Evaluate = T.on<EvaluateStatement>();
  auto *Subject = T.on<EvaluateSubject>();
  Subject->setType(EVAL_SUB_EXPR);
  Subject->setExpr(T.ident("A"));
  Evaluate->addSubject(Subject);
  auto *Object = T.on<EvaluateObject>();
  Object->setType(EVAL_OBJ_EXPR);
  Object->setFrontExpression(T.number("1"));
  auto *When = T.on<EvaluateWhen>();
  When->addWhenObj(Object);
  auto *Case = T.on<EvaluateCase>();
  Case->addWhen(When);
  Case->addWhenStmt(T.on<ContinueStatement>());
  Evaluate->addWhenCase(Case);
  auto *Other = T.on<EvaluateCase>();
  Other->addWhenStmt(T.on<ContinueStatement>());
  Evaluate->setWhenOtherCase(Other);
  T.add(Evaluate);
  T.add(T.on<ExitStatement>());
  T.add(T.on<ExitProgramStatement>());
  // GO TO P1 P2 DEPENDING ON X
  auto *Goto = T.on<GotoStatement>();
  Goto->addProcedureName(T.name("P1"));
  Goto->addProcedureName(T.name("P2"));
  Goto->setDependingName(T.ident("X"));
  T.add(Goto);
  T.add(T.on<GobackStatement>());
  // IF C1 CONTINUE ELSE EXIT
  auto *If = T.on<IfStatement>();
  If->setCondition(T.condName("C1"));
  If->addIfStmt(T.on<ContinueStatement>());
  If->addElseStmt(T.on<ExitStatement>());
  T.add(If);
  // INITIALIZE A REPLACING NUMERIC DATA BY 0
  auto *Initialize = T.on<InitializeStatement>();
  Initialize->addIdentifier(T.ident("A"));
  auto *Numeric = T.on<InitializeReplacingItem>();
  Numeric->setType(INIT_NUMERIC);
  Numeric->setByExpr(T.number("0"));
  Initialize->addReplacing(Numeric);
  T.add(Initialize);
  // INSPECT A CONVERTING 'ab' TO 'AB'
  auto *Inspect = T.on<InspectStatement>();
  Inspect->setIdentifier(T.ident("A"));
  auto *Converting = T.on<ConvertingItem>();
  Converting->setExpr(T.text("ab"));
  Converting->setToExpr(T.text("AB"));
  Inspect->setConverting(Converting);
  T.add(Inspect);
  // MERGE MF ON ASCENDING KEY K USING F1 F2 GIVING F3
  auto *Merge = T.on<MergeStatement>();
  Merge->setFileName(T.w("MF"));
  auto *MergeKey = T.on<SortKey>();
  MergeKey->setAscDscWord(T.w("ASCENDING"));
  MergeKey->addKeyName(T.ident("K"));
  Merge->addKey(MergeKey);
  auto *MergeIn = T.on<SortIO>();
  MergeIn->setUsingGivingWord(T.w("USING"));
  MergeIn->addFileName(T.w("F1"));
  MergeIn->addFileName(T.w("F2"));
  Merge->setInput(MergeIn);
  auto *MergeOut = T.on<SortIO>();
  MergeOut->setUsingGivingWord(T.w("GIVING"));
  MergeOut->addFileName(T.w("F3"));
  Merge->setOutput(MergeOut);
  T.add(Merge);
  // MOVE A TO B
  auto *Move = T.on<MoveStatement>();
  Move->setSource(T.ident("A"));
  Move->addTarget(T.ident("B"));
  T.add(Move);
  // MULTIPLY 2 BY A
  auto *Multiply = T.on<MultiplyStatement>();
  Multiply->setOperand(T.number("2"));
  Multiply->addByItem(T.rounded("A"));
  T.add(Multiply);
  // OPEN INPUT F
  auto *Open = T.on<OpenStatement>();
  auto *OpenInput = T.on<OpenItem>();
  OpenInput->setType(OPEN_STMT_INPUT);
  OpenInput->setInputWord(T.w("INPUT"));
  auto *Opened = T.on<OpenFile>();
  Opened->setFileName(T.w("F"));
  OpenInput->addFile(Opened);
  Open->addItem(OpenInput);
  T.add(Open);
  // PERFORM P1 THRU P2
  auto *Perform = T.on<PerformStatement>();
  Perform->setType(PFM_STMT_SIMPLE);
  auto *Range = T.on<PerformProcedure>();
  Range->setProcedureName1(T.name("P1"));
  Range->setProcedureName2(T.name("P2"));
  Perform->setProcedureName(Range);
  T.add(Perform);
  // READ F AT END CONTINUE
  auto *Read = T.on<ReadStatement>();
  Read->setFileName(T.w("F"));
  Read->addError(T.handler(EXCEPTION_END, T.on<ContinueStatement>()));
  T.add(Read);
  // RELEASE SR FROM W
  auto *Release = T.on<ReleaseStatement>();
  Release->setRecordName(T.ident("SR"));
  Release->setFromIdentifier(T.ident("W"));
  T.add(Release);
  // RETURN SF AT END CONTINUE
  auto *Return = T.on<ReturnStatement>();
  Return->setFileName(T.w("SF"));
  Return->addEndHandler(T.handler(EXCEPTION_END, T.on<ContinueStatement>()));
  T.add(Return);
  // REWRITE REC
  auto *Rewrite = T.on<RewriteStatement>();
  Rewrite->setRecordName(T.ident("REC"));
  T.add(Rewrite);

  // The rest stands in a section.
  auto *Sect = T.on<Section>();
  Sect->setName(T.w("S1"));
  Proc->addSect(Sect);
  ++T.Line;
  auto *Para = T.on<Paragraph>();
  Para->setName(T.w("P1"));
  Sect->addPara(Para);
  ++T.Line;
  T.Current = T.on<Sentence>();
  Para->addSent(T.Current);

  // SEARCH T WHEN C1 CONTINUE
  auto *Search = T.on<SearchStatement>();
  Search->setSearchIdentifier(T.ident("T"));
  auto *SearchWhenPhrase = T.on<SearchWhen>();
  SearchWhenPhrase->setCondition(T.condName("C1"));
  SearchWhenPhrase->addStatement(T.on<ContinueStatement>());
  Search->addWhen(SearchWhenPhrase);
  T.add(Search);
  // SET X TO 1
  auto *Set = T.on<SetStatement>();
  auto *SetTo = T.on<SetItem>();
  SetTo->addSet(T.ident("X"));
  auto *SetValue = T.on<SetToValue>();
  SetValue->setToExpr(T.number("1"));
  SetTo->setToValue(SetValue);
  Set->addItem(SetTo);
  T.add(Set);
  // SORT SF ON DESCENDING KEY K INPUT PROCEDURE P1 GIVING F3
  auto *Sort = T.on<SortStatement>();
  Sort->setFileName(T.w("SF"));
  auto *SortKeyPhrase = T.on<SortKey>();
  SortKeyPhrase->setAscDscWord(T.w("DESCENDING"));
  SortKeyPhrase->addKeyName(T.ident("K"));
  Sort->addKey(SortKeyPhrase);
  auto *SortIn = T.on<SortIO>();
  SortIn->setIOWord(T.w("INPUT"));
  SortIn->setProcedureWord(T.w("PROCEDURE"));
  SortIn->setFromProcedureName(T.name("P1"));
  Sort->setInput(SortIn);
  auto *SortOut = T.on<SortIO>();
  SortOut->setUsingGivingWord(T.w("GIVING"));
  SortOut->addFileName(T.w("F3"));
  Sort->setOutput(SortOut);
  T.add(Sort);
  // START F KEY EQ K
  auto *Start = T.on<StartStatement>();
  Start->setFileName(T.w("F"));
  auto *StartAt = T.on<StartKey>();
  StartAt->setType(KEY_OP_EQ);
  StartAt->setDataName(T.ident("K"));
  Start->setKey(StartAt);
  T.add(Start);
  // STOP RUN
  auto *Stop = T.on<StopStatement>();
  Stop->setRun(T.w("RUN"));
  T.add(Stop);
  // STRING A DELIMITED BY SIZE INTO B
  auto *String = T.on<StringStatement>();
  auto *StringSource = T.on<StringItem>();
  StringSource->addStringName(T.ident("A"));
  StringSource->setDelimitedWord(T.w("DELIMITED"));
  StringSource->setSizeWord(T.w("SIZE"));
  String->addItem(StringSource);
  String->setIntoIdentifier(T.ident("B"));
  T.add(String);
  // SUBTRACT 1 FROM A
  auto *Subtract = T.on<SubtractStatement>();
  Subtract->setType(SUB_STMT_SIMPLE);
  Subtract->addOperand(T.number("1"));
  Subtract->addFromItem(T.rounded("A"));
  T.add(Subtract);
  // UNSTRING S DELIMITED BY ',' INTO A
  auto *Unstring = T.on<UnstringStatement>();
  Unstring->setSourceIdentifier(T.ident("S"));
  auto *Delimited = T.on<UnstringDelemitedPhrase>();
  auto *Comma = T.on<UnstringDelimitedItem>();
  Comma->setDelimiter(T.text(","));
  Delimited->addDelimiter(Comma);
  Unstring->setDelemitedPhrase(Delimited);
  auto *Into = T.on<UnstringIntoItem>();
  Into->setTargetIdentifier(T.ident("A"));
  Unstring->addInto(Into);
  T.add(Unstring);
  // WRITE REC AFTER ADVANCING PAGE
  auto *Write = T.on<WriteStatement>();
  Write->setRecordName(T.ident("REC"));
  auto *Advancing = T.on<WriteAdvancing>();
  Advancing->setBeforeAfterWord(T.w("AFTER"));
  Advancing->setPageWord(T.w("PAGE"));
  Write->setAdvancing(Advancing);
  T.add(Write);
  T.add(T.on<NextSentenceStatement>());
  T.add(T.on<ReadyTraceStatement>());
  T.add(T.on<ResetTraceStatement>());
  // XML GENERATE OUT FROM REC
  auto *Generate = T.on<XMLGenerateStatement>();
  Generate->setGenIdent(T.ident("OUT"));
  Generate->setFromIdent(T.ident("REC"));
  T.add(Generate);
  // XML PARSE DOC PROCESSING PROCEDURE P1
  auto *Parse = T.on<XMLParseStatement>();
  Parse->setParseIdent(T.ident("DOC"));
  Parse->setParseProcedure(T.name("P1"));
  T.add(Parse);
  T.add(T.on<ClassicStatement>());
  T.add(T.on<ExitPerformStatement>());
  // GENERATE DETAIL-LINE, INITIATE R1, TERMINATE R1, SUPPRESS
  auto *RwGenerate = T.on<RwGenerateStatement>();
  RwGenerate->setFileName(T.w("detail-line"));
  T.add(RwGenerate);
  auto *Initiate = T.on<RwInitiateStatement>();
  Initiate->addInitiateName(T.w("R1"));
  T.add(Initiate);
  auto *Terminate = T.on<RwTerminateStatement>();
  Terminate->addTerminateName(T.w("R1"));
  T.add(Terminate);
  T.add(T.on<RwSuppressStatement>());
  T.add(T.on<ExecStatement>(STMT_EXEC_SQL,
                            "EXEC SQL SELECT A INTO :B FROM T END-EXEC"));
  T.add(T.on<ExecStatement>(STMT_EXEC_SQL_INCLUDE,
                            "EXEC SQL INCLUDE SQLCA END-EXEC"));
  T.add(T.on<ExecStatement>(STMT_EXEC_CICS, "EXEC CICS RETURN END-EXEC"));
  T.add(T.on<Statement>(STMT_ERR_RECOV));
}

std::string condName(const std::string &Name) {
  return "<CONDITION><COND_NAME_CONDITION><OPERAND>" + id(Name) +
         "</OPERAND></COND_NAME_CONDITION></CONDITION>";
}
std::string qualified(const std::string &Name) {
  return "<QUALIFIED>" + Name + "</QUALIFIED>";
}

TEST(WholeProgram, EveryStatementKindInOneDocument) {
  ProgramTree T;
  buildEveryStatement(T);
  std::string Path = korvid::test::tempPath("every-statement.xml");
  {
    XMLOstrel E;
    E.EmitXML(&T.P, Path.c_str(), /*Strip=*/true);
    ASSERT_TRUE(E.getHandler().saveSucceeded());
  }
  EXPECT_TRUE(korvid::test::wellFormed(Path));
  std::string Doc = korvid::test::readFile(Path);
  std::remove(Path.c_str());

  const std::string Continue = "<CONTINUE_STATEMENT/>";
  const std::string AtEnd = "<EXCEPTION_LIST size=\"1\" name=\"ExcpList\">"
                            "<EXCEPTION><TYPE>AT_END</TYPE>" +
                            Continue + "</EXCEPTION></EXCEPTION_LIST>";
  const std::string Expected =
      "<!--main.cbl--><COBOL_SOURCE FILE=\"main.cbl\"><PROGRAM>"
      "<ID_DIVISION><PROGRAM_NAME>EVERYSTMT</PROGRAM_NAME></ID_DIVISION>"
      "<PROCEDURE_DIVISION>"
      "<PARAM_LIST><PARAM><PARAM_TYPE>BY_REFERENCE</PARAM_TYPE><VALUE>" +
      id("LS-A") +
      "</VALUE></PARAM></PARAM_LIST>"
      // Paragraph MAIN
      "<ACCEPT_STATEMENT><RECEIVING>" +
      id("X") +
      "</RECEIVING><ACCEPT_FROM><TYPE>DATE_YYYYMMDD</TYPE></ACCEPT_FROM>"
      "</ACCEPT_STATEMENT>"
      "<ADD_STATEMENT><OPERAND size=\"1\" name=\"ExprList\">" +
      val("1") + "</OPERAND><TO size=\"1\" name=\"RoundExprList\">" + id("A") +
      "</TO></ADD_STATEMENT>"
      "<ALTER_STATEMENT><ALTER_TRANSFER><SOURCE>" +
      qualified("P1") + "</SOURCE><TARGET>" + qualified("P2") +
      "</TARGET></ALTER_TRANSFER></ALTER_STATEMENT>"
      "<CALL_STATEMENT><CALL_NAME>SUB</CALL_NAME><ARGS_LIST size=\"1\" "
      "name=\"usingList\" loc=\"main.cbl:13:8\"><ARG><ARG_TYPE>NORMAL"
      "</ARG_TYPE><BY_TYPE>BY_CONTENT</BY_TYPE><ARGUMENT>" +
      id("A") +
      "</ARGUMENT></ARG></ARGS_LIST></CALL_STATEMENT>"
      "<CANCEL_STATEMENT/>"
      "<CLOSE_STATEMENT><CLOSE_FILE_ENTRY><FILE_NAME>F</FILE_NAME>"
      "</CLOSE_FILE_ENTRY></CLOSE_STATEMENT>"
      "<COMPUTE_STATEMENT><RECEIVING size=\"1\" name=\"RoundExprList\">" +
      id("A") +
      "</RECEIVING><ARITHMETIC_EXPR><ARITHMETIC_EXPR><OPERATOR>PLUS"
      "</OPERATOR><OPERAND_LEFT>" +
      id("B") + "</OPERAND_LEFT><OPERAND_RIGHT>" + val("1") +
      "</OPERAND_RIGHT></ARITHMETIC_EXPR></ARITHMETIC_EXPR>"
      "</COMPUTE_STATEMENT>" +
      Continue +
      "<DELETE_STATEMENT><FILE>F</FILE></DELETE_STATEMENT>"
      "<DISPLAY_STATEMENT><DISPLAY_ITEM size=\"1\" name=\"ExprList\">" +
      val("HELLO") +
      "</DISPLAY_ITEM></DISPLAY_STATEMENT>"
      "<DIVIDE_STATEMENT><INTO size=\"1\" name=\"RoundExprList\">" +
      id("A") + "</INTO><SOURCE>" + val("2") +
      "</SOURCE></DIVIDE_STATEMENT>"
      "<ENTRY_STATEMENT><ENTRY_NAME>" +
      val("ALT") +
      "</ENTRY_NAME></ENTRY_STATEMENT>"
      "<EVALUATE_STATEMENT>"
      "<EVALUATE_SUBJECT_LIST size=\"1\" name=\"EvalSubList\">"
      "<EVALUATE_SUBJECT><TYPE>EXPR</TYPE>" +
      id("A") +
      "</EVALUATE_SUBJECT></EVALUATE_SUBJECT_LIST>"
      "<EVALUATE_CASE_LIST size=\"1\" name=\"EvalCaseList\"><EVALUATE_CASE>"
      "<EVALUATE_CASE_WHEN_LIST size=\"1\" name=\"EvalWhenList\">"
      "<EVALUATE_WHEN><EVALUATE_WHEN_OBJECT><TYPE>EXPR</TYPE><FROM>" +
      val("1") +
      "</FROM></EVALUATE_WHEN_OBJECT></EVALUATE_WHEN>"
      "</EVALUATE_CASE_WHEN_LIST>" +
      Continue +
      "</EVALUATE_CASE></EVALUATE_CASE_LIST>"
      "<EVALUATE_CASE_LIST><EVALUATE_CASE>" +
      Continue +
      "</EVALUATE_CASE></EVALUATE_CASE_LIST></EVALUATE_STATEMENT>"
      "<EXIT_STATEMENT/><EXIT_PROGRAM_STATEMENT/>"
      "<GOTO_STATEMENT><DEPENDING_ON>" +
      id("X") +
      "</DEPENDING_ON></GOTO_STATEMENT><GOBACK_STATEMENT/>"
      "<IF_STATEMENT>" +
      Continue + "<EXIT_STATEMENT/>" + condName("C1") +
      "</IF_STATEMENT>"
      "<INITIALIZE_STATEMENT><IDENTIFIER_LIST size=\"1\" name=\"IdentList\">" +
      id("A") +
      "</IDENTIFIER_LIST><REPLACING_LIST size=\"1\" name=\"InitReplList\">"
      "<REPLACING><CATEGORY>NUMERIC</CATEGORY><INIT_VALUE>" +
      val("0") +
      "</INIT_VALUE></REPLACING></REPLACING_LIST></INITIALIZE_STATEMENT>"
      "<INSPECT_STATEMENT><SOURCE>" +
      id("A") + "</SOURCE><CONVERTING><CONVERTING><FROM>" + val("ab") +
      "</FROM><TO>" + val("AB") +
      "</TO></CONVERTING></CONVERTING></INSPECT_STATEMENT>"
      "<MERGE_STATEMENT><FILE_NAME>MF</FILE_NAME>"
      "<MERGE_KEY_LIST size=\"1\" name=\"SrtKeyList\"><KEY>"
      "<SORT_TYPE>ASCENDING</SORT_TYPE>"
      "<KEY_ITEM_LIST size=\"1\" name=\"ExprList\">" +
      id("K") +
      "</KEY_ITEM_LIST></KEY></MERGE_KEY_LIST>"
      "<SORT_IN><FILE_LIST size=\"2\" name=\"WordList\"><WORD>F1</WORD>"
      "<WORD>F2</WORD></FILE_LIST></SORT_IN>"
      "<SORT_OUT><FILE_LIST size=\"1\" name=\"WordList\"><WORD>F3</WORD>"
      "</FILE_LIST></SORT_OUT></MERGE_STATEMENT>"
      "<MOVE_STATEMENT><SENDING>" +
      id("A") + "</SENDING><RECEIVING size=\"1\" name=\"IdentList\">" +
      id("B") +
      "</RECEIVING></MOVE_STATEMENT>"
      "<MULTIPLY_STATEMENT><SOURCE>" +
      val("2") + "</SOURCE><BY_LIST size=\"1\" name=\"RoundExprList\">" +
      id("A") +
      "</BY_LIST></MULTIPLY_STATEMENT>"
      "<OPEN_STATEMENT><OPEN_FILE_ENTRY><MODE>INPUT</MODE><FILE_ENTRY>"
      "<FILE_NAME>F</FILE_NAME></FILE_ENTRY></OPEN_FILE_ENTRY>"
      "</OPEN_STATEMENT>"
      "<PERFORM_STATEMENT><TYPE>BASIC</TYPE><PROCEDURE><FROM>" +
      qualified("P1") + "</FROM><THRU>" + qualified("P2") +
      "</THRU></PROCEDURE></PERFORM_STATEMENT>"
      "<READ_STATEMENT><FILE_NAME>F</FILE_NAME>" +
      AtEnd +
      "</READ_STATEMENT>"
      "<RELEASE_STATEMENT><RECORD_NAME>" +
      id("SR") + "</RECORD_NAME><RECORD_FROM>" + id("W") +
      "</RECORD_FROM></RELEASE_STATEMENT>"
      "<RETURN_STATEMENT><FILE_NAME>SF</FILE_NAME>" +
      AtEnd +
      "</RETURN_STATEMENT>"
      "<REWRITE_STATEMENT><RECORD_NAME>" +
      id("REC") +
      "</RECORD_NAME></REWRITE_STATEMENT>"
      // Section S1, paragraph P1
      "<SEARCH_STATEMENT><TABLE>" +
      id("T") +
      "</TABLE><WHEN_LIST size=\"1\" name=\"SrchWhenList\"><WHEN>" +
      condName("C1") + Continue +
      "</WHEN></WHEN_LIST></SEARCH_STATEMENT>"
      "<SET_STATEMENT><SET_ITEM_LIST size=\"1\" name=\"SetItemList\">"
      "<SET_ITEM><RECEIVING_LIST size=\"1\" name=\"IdentList\">" +
      id("X") + "</RECEIVING_LIST><SENDING>" + val("1") +
      "</SENDING></SET_ITEM></SET_ITEM_LIST></SET_STATEMENT>"
      "<SORT_STATEMENT><FILE_NAME>SF</FILE_NAME>"
      "<MERGE_KEY_LIST size=\"1\" name=\"SrtKeyList\"><KEY>"
      "<SORT_TYPE>DESCENDING</SORT_TYPE>"
      "<KEY_ITEM_LIST size=\"1\" name=\"ExprList\">" +
      id("K") +
      "</KEY_ITEM_LIST></KEY></MERGE_KEY_LIST>"
      "<SORT_IN><INPUT_TYPE>USING</INPUT_TYPE><PROC_NAME>" +
      qualified("P1") +
      "</PROC_NAME></SORT_IN>"
      "<SORT_OUT><FILE_LIST size=\"1\" name=\"WordList\"><WORD>F3</WORD>"
      "</FILE_LIST></SORT_OUT></SORT_STATEMENT>"
      "<START_STATEMENT><FILE_NAME>F</FILE_NAME><START_CONDITION>"
      "<KEY_COND>EQ</KEY_COND><DATA_NAME>" +
      id("K") +
      "</DATA_NAME></START_CONDITION></START_STATEMENT>"
      "<STOP_STATEMENT><TYPE>RUN</TYPE></STOP_STATEMENT>"
      "<STRING_STATEMENT><STRING_SOURCE><DELIMITED_TYPE>SIZE"
      "</DELIMITED_TYPE><SOURCE size=\"1\" name=\"ExprList\">" +
      id("A") + "</SOURCE></STRING_SOURCE><INTO>" + id("B") +
      "</INTO></STRING_STATEMENT>"
      "<SUBSTRACT_STATEMENT><TYPE>BASIC</TYPE>"
      "<SOURCE size=\"1\" name=\"ExprList\">" +
      val("1") + "</SOURCE><FROM size=\"1\" name=\"RoundExprList\">" +
      id("A") +
      "</FROM></SUBSTRACT_STATEMENT>"
      "<UNSTRING_STATEMENT><SOURCE>" +
      id("S") + "</SOURCE><DELIMITER>" + val(",") +
      "</DELIMITER><INTO><TARGET>" + id("A") +
      "</TARGET></INTO></UNSTRING_STATEMENT>"
      "<WRITE_STATEMENT><RECORD>" +
      id("REC") +
      "</RECORD><ADVANCING><TIMING>AFTER</TIMING><TYPE>PAGE</TYPE>"
      "</ADVANCING></WRITE_STATEMENT>"
      "<NEXT_SENTENCE_STATEMENT/><READY_TRACE_STATEMENT/>"
      "<RESET_TRACE_STATEMENT/>"
      "<XML_GENERATE_STATEMENT><RECEIVING>" +
      id("OUT") + "</RECEIVING><FROM>" + id("REC") +
      "</FROM></XML_GENERATE_STATEMENT>"
      "<XML_PARSE_STATEMENT><SOURCE>" +
      id("DOC") + "</SOURCE><PROCESSING_PROCEDURE1>" + qualified("P1") +
      "</PROCESSING_PROCEDURE1></XML_PARSE_STATEMENT>"
      "<OSVS_COBOL_STATEMENT/><EXIT_PERFORM_STATEMENT/>"
      "<REPORT_GENERATE_STATEMENT><FILE_NAME><WORD>DETAIL-LINE</WORD>"
      "</FILE_NAME></REPORT_GENERATE_STATEMENT>"
      "<REPORT_INITIATE_STATEMENT><REPORT_NAME_LIST size=\"1\" "
      "name=\"WordList\"><WORD>R1</WORD></REPORT_NAME_LIST>"
      "</REPORT_INITIATE_STATEMENT>"
      "<REPORT_TERMINATE_STATEMENT><REPORT_NAME_LIST size=\"1\" "
      "name=\"WordList\"><WORD>R1</WORD></REPORT_NAME_LIST>"
      "</REPORT_TERMINATE_STATEMENT>"
      "<REPORT_SUPPRESS_STATEMENT/>"
      "<EXEC_STATEMENT><TYPE>SQL</TYPE><CONTENT>SELECT A INTO :B FROM T"
      "</CONTENT></EXEC_STATEMENT>"
      "<EXEC_STATEMENT><TYPE>SQL</TYPE><CONTENT>SQLCA</CONTENT>"
      "</EXEC_STATEMENT>"
      "<EXEC_STATEMENT><TYPE>CICS</TYPE><CONTENT>RETURN</CONTENT>"
      "</EXEC_STATEMENT>"
      "</PROCEDURE_DIVISION></PROGRAM>"
      // A CALL argument is stamped with its printable location in place of
      // its file name, which the file table then lists as a file.
      "<FILEINFO NAME=\"main.cbl\" FILE_ID=\"1\"/>"
      "<FILEINFO NAME=\"main.cbl:13:8\" FILE_ID=\"2\"/></COBOL_SOURCE>";
  EXPECT_TRUE(sameXML(Expected, Doc));
}

} // namespace
