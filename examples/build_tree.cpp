//===- examples/build_tree.cpp - Writing the three documents of a tree ----===//
//
// Builds, through the public API, the parse tree of hello/HELLO.cbl (a
// program with a nested program, one copybook that is found and one that is
// not) with the locations of its text, and writes the program document, the
// missing-copybook document and the error document:
//
//   korvid-example [OUTPUT-DIRECTORY]   (made if missing; default: .)
//
//===----------------------------------------------------------------------===//

#include "korvid/ParseTree.h"
#include "korvid/XMLOstrel.h"

#include <cstdio>
#include <filesystem>
#include <string>
#include <system_error>

using namespace korvid;

/// IDENTIFICATION DIVISION at line \p Line, PROGRAM-ID. NAME on the next.
static IdentificationDivision *programId(Program &P, const std::string &File,
                                         uint32_t Line, const std::string &Name) {
  auto *Id = P.create<IdentificationDivision>();
  Id->setLocation(P.range(File, Line, 8, Line + 1, 20 + Name.size()));
  auto *Para = P.create<ProgramIdParagraph>();
  Para->setLocation(P.range(File, Line + 1, 8, Line + 1, 20 + Name.size()));
  auto *NameWord = P.create<Word>(Name, Name);
  NameWord->setLocation(P.range(File, Line + 1, 20, Line + 1, 19 + Name.size()));
  Para->setProgramNameWord(NameWord);
  Id->setProgramIDPara(Para);
  return Id;
}

int main(int argc, char **argv) {
  std::string Dir = argc > 1 ? argv[1] : ".";
  std::error_code Err;
  std::filesystem::create_directories(Dir, Err);
  if (Err) {
    std::fprintf(stderr, "korvid-example: error: %s: %s\n", Dir.c_str(),
                 Err.message().c_str());
    return 1;
  }
  const std::string Main = "HELLO.cbl", Copy = "GREETING.cpy";

  Program P(Main);
  // A node of the main file at BL:BC-EL:EC.
  auto At = [&](Node *N, uint32_t BL, uint32_t BC, uint32_t EL, uint32_t EC) {
    N->setLocation(P.range(Main, BL, BC, EL, EC));
  };

  auto *Unit = P.create<SourceUnit>();
  At(Unit, 1, 8, 13, 25);
  Unit->setIDDivision(programId(P, Main, 1, "HELLO"));

  // The data division holds an entry copied from GREETING.cpy: in the
  // expanded source it is line 5; as written, line 1 of the copybook.
  auto *Data = P.create<DataDivision>();
  At(Data, 3, 8, 5, 58);
  Unit->setDataDivision(Data);
  auto *Storage = P.create<WorkingSection>();
  At(Storage, 4, 8, 5, 58);
  Data->setSectionWork(Storage);
  auto Copied = [&](Node *N, uint32_t BC, uint32_t EC) {
    N->setLocation(P.range(Main, 5, BC, 5, EC), P.range(Copy, 1, BC, 1, EC));
  };
  auto *Entry = P.create<ExDataDescription>();
  Copied(Entry, 8, 58);
  auto *Level = P.create<Word>("01", "01");
  Copied(Level, 8, 9);
  auto *Name = P.create<Word>("GREETING-TEXT", "GREETING-TEXT");
  Copied(Name, 12, 24);
  auto *Pic = P.create<ClausePicture>();
  Copied(Pic, 27, 35);
  auto *PicString = P.create<Word>("X(12)", "X(12)");
  Copied(PicString, 31, 35);
  Pic->setCharStringWord(PicString);
  auto *Value = P.create<ClauseValue>();
  Copied(Value, 37, 57);
  auto *ValuePhrase = P.create<PhraseValue>();
  Copied(ValuePhrase, 43, 57);
  auto *Text = P.create<NonNumericLiteralExpression>();
  Copied(Text, 43, 56);
  Text->setData("HELLO, WORLD");
  ValuePhrase->setLiteral1(Text);
  Value->addPhraseVal(ValuePhrase);
  Entry->setLevelNum(Level);
  Entry->setLevelNum(1);
  Entry->setDataName(Name);
  Entry->setPicture(Pic);
  Entry->setValue(Value);
  Entry->setID(1);
  Entry->setSize(12);
  Entry->setUsageTy(USAGE_DISPLAY);
  Entry->setDataCategory(DC_ALPHANUMERIC);
  Storage->addOrdered(Entry);

  // DISPLAY GREETING-TEXT. STOP RUN.
  auto *Proc = P.create<ProcedureDivision>();
  At(Proc, 7, 8, 9, 20);
  Unit->setProcDiv(Proc);
  auto *Sent1 = P.create<Sentence>(), *Sent2 = P.create<Sentence>();
  At(Sent1, 8, 12, 8, 33);
  At(Sent2, 9, 12, 9, 20);
  auto *Display = P.create<DisplayStatement>();
  At(Display, 8, 12, 8, 32);
  auto *Ref = P.create<DataIdentifierExpression>();
  At(Ref, 8, 20, 8, 32);
  auto *RefName = P.create<QualifiedWord>();
  At(RefName, 8, 20, 8, 32);
  auto *RefWord = P.create<Word>("GREETING-TEXT", "GREETING-TEXT");
  At(RefWord, 8, 20, 8, 32);
  RefName->setRearWord(RefWord);
  Ref->setName(RefName);
  Ref->setTarget(Entry); // resolved: DATA_ID is the entry's ID
  Display->addIdenLiter(Ref);
  Sent1->addStmt(Display);
  auto *Stop = P.create<StopStatement>();
  At(Stop, 9, 12, 9, 19);
  auto *Run = P.create<Word>("RUN", "RUN");
  At(Run, 9, 17, 9, 19);
  Stop->setRun(Run);
  Sent2->addStmt(Stop);
  Proc->addSent(Sent1);
  Proc->addSent(Sent2);

  auto *Inner = P.create<SourceUnit>();
  At(Inner, 10, 8, 12, 25);
  Inner->setIDDivision(programId(P, Main, 10, "INNER"));
  Unit->addNested(Inner);
  P.addSourceUnit(Unit);

  P.addCopyTarget(Copy, Main, 5);
  P.addMissingCopybook("NOWHERE", Main, 6);
  P.addError(Entry, "GREETING-TEXT", "example error attached to copied text");

  struct Output {
    const char *Name;
    void (*Write)(Program &, const std::string &, XMLOstrel &);
  } Outputs[] = {
      {"HELLO.xml",
       [](Program &P, const std::string &Path, XMLOstrel &E) {
         E.EmitXML(&P, Path.c_str(), false);
       }},
      {"HELLO.missing.xml",
       [](Program &P, const std::string &Path, XMLOstrel &E) {
         E.EmitMissingCopybook(&P, Path.c_str());
       }},
      {"HELLO.errors.xml",
       [](Program &P, const std::string &Path, XMLOstrel &E) {
         E.EmitErrorCase(&P, Path.c_str());
       }},
  };
  int Status = 0;
  for (const Output &O : Outputs) {
    XMLOstrel Emitter; // one emitter per document
    std::string Path = Dir + "/" + O.Name;
    O.Write(P, Path, Emitter);
    if (!Emitter.getHandler().saveSucceeded()) {
      std::fprintf(stderr, "korvid-example: error: %s\n",
                   Emitter.getHandler().getSaveError().c_str());
      Status = 1;
      continue;
    }
    std::printf("wrote %s\n", Path.c_str());
  }
  return Status;
}
