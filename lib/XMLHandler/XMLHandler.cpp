//===- lib/XMLHandler/XMLHandler.cpp - XML document builder ---------------===//
//
// The only place of korvid that includes tinyxml2. Locations live in
// LocRecords reached through each element's user data; a printer of our own
// writes them out (or leaves them out) when the document is saved.
//
//===----------------------------------------------------------------------===//

#include "korvid/XMLHandler.h"

#include <tinyxml2.h>

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <deque>
#include <unordered_map>

using tinyxml2::XMLElement;
using tinyxml2::XMLNode;

namespace korvid {

namespace {
// Names of the location attributes, in the order they are written.
const char *const LocNames[8] = {"lbl",  "lbc",  "lel",  "lec",
                                 "lblo", "lbco", "lelo", "leco"};
const char *const FileMarkName = "lfid";
const char *const FileMarkOrgName = "lfido";
} // namespace

/// What the builder keeps beside one element.
struct XMLHandler::LocRecord {
  uint32_t Loc[8] = {};     ///< in the order of LocNames
  int File = 0;             ///< file-table number of the expanded position
  int FileOrg = 0;          ///< file-table number of the as-written position
  uint64_t Key = 0;         ///< (begin line << 32) | begin column
  bool HasLoc = false;      ///< stamped with attributeLoc()
  bool ChildrenUnsorted = false; ///< children may be out of key order
};

class XMLHandler::Impl {
public:
  std::deque<LocRecord> Records;
  std::unordered_map<std::string, int> Files;
  int NextFileNumber = 1;

  static LocRecord *recordOf(const XMLElement *E) {
    return static_cast<LocRecord *>(E->GetUserData());
  }
  LocRecord *ensureRecord(XMLElement *E) {
    LocRecord *R = recordOf(E);
    if (!R) {
      Records.emplace_back();
      R = &Records.back();
      E->SetUserData(R);
    }
    return R;
  }
  static uint64_t keyOf(const XMLNode *N) {
    const XMLElement *E = N->ToElement();
    if (!E)
      return 0;
    const LocRecord *R = recordOf(E);
    return R ? R->Key : 0;
  }
  void markUnsorted(XMLNode *Parent) {
    if (XMLElement *E = Parent->ToElement())
      ensureRecord(E)->ChildrenUnsorted = true;
  }
};

static bool isLocationName(const char *Name) {
  if (Name[0] != 'l')
    return false;
  for (const char *L : LocNames)
    if (std::strcmp(Name, L) == 0)
      return true;
  return std::strcmp(Name, FileMarkName) == 0 ||
         std::strcmp(Name, FileMarkOrgName) == 0;
}

/// Whether \p A is \p N or one of its ancestors.
static bool isSelfOrAncestor(const XMLNode *A, const XMLNode *N) {
  for (; N; N = N->Parent())
    if (N == A)
      return true;
  return false;
}

// Comment text may not contain "--" nor end with '-' in well-formed XML:
// keep the text readable and the document valid by spacing such hyphens.
static std::string commentText(const char *Text) {
  std::string S;
  for (const char *C = Text; *C; ++C) {
    if (*C == '-' && !S.empty() && S.back() == '-')
      S += ' ';
    S += *C;
  }
  if (!S.empty() && S.back() == '-')
    S += ' ';
  return S;
}

//===----------------------------------------------------------------------===//
// Printing
//===----------------------------------------------------------------------===//

namespace {
/// tinyxml2's printer, writing each element's recorded location after its
/// ordinary attributes, or dropping every location attribute when asked.
class LocPrinter : public tinyxml2::XMLPrinter {
public:
  LocPrinter(FILE *F, bool Strip) : XMLPrinter(F), Strip(Strip) {}

  bool VisitEnter(const XMLElement &E,
                  const tinyxml2::XMLAttribute *A) override {
    const XMLElement *ParentElem =
        E.Parent() ? E.Parent()->ToElement() : nullptr;
    OpenElement(E.Name(), ParentElem ? CompactMode(*ParentElem) : false);
    for (; A; A = A->Next())
      if (!Strip || !isLocationName(A->Name()))
        PushAttribute(A->Name(), A->Value());
    const auto *R = static_cast<const XMLHandler::LocRecord *>(E.GetUserData());
    if (Strip || !R || !R->HasLoc)
      return true;
    for (int I = 0; I < 8; ++I)
      pushNumber(LocNames[I], R->Loc[I]);
    pushNumber(FileMarkName, static_cast<uint32_t>(R->File));
    pushNumber(FileMarkOrgName, static_cast<uint32_t>(R->FileOrg));
    return true;
  }

private:
  // Formats by hand: a document holds millions of these numbers and the
  // printf family is several times slower for them.
  void pushNumber(const char *Name, uint32_t V) {
    char Buf[16];
    char *P = Buf + sizeof(Buf);
    *--P = '\0';
    do {
      *--P = static_cast<char>('0' + V % 10);
      V /= 10;
    } while (V);
    PushAttribute(Name, P);
  }

  bool Strip;
};
} // namespace

//===----------------------------------------------------------------------===//
// XMLHandler
//===----------------------------------------------------------------------===//

XMLHandler::XMLHandler()
    : Doc(new tinyxml2::XMLDocument()), P(new Impl()) {
  Doc->InsertEndChild(Doc->NewDeclaration());
}

XMLHandler::~XMLHandler() = default;

XMLElement *XMLHandler::newElement(const char *Tag) {
  return Doc->NewElement(Tag);
}

XMLElement *XMLHandler::newRetElement(const char *Tag) {
  RetElement = Doc->NewElement(Tag);
  return RetElement;
}

XMLNode *XMLHandler::newText(const char *Text) { return Doc->NewText(Text); }

void XMLHandler::setAttribute(XMLElement *E, const char *Name,
                              const char *Value) {
  if (E)
    E->SetAttribute(Name, Value);
}

void XMLHandler::setAttribute(XMLElement *E, const char *Name, int Value) {
  if (!E)
    return;
  E->SetAttribute(Name, Value);
  // A location set by name still orders the element (list containers).
  if (std::strcmp(Name, "lbl") == 0 || std::strcmp(Name, "lbc") == 0)
    setAttribute(E, Name, static_cast<unsigned>(Value));
}

void XMLHandler::setAttribute(XMLElement *E, const char *Name,
                              unsigned int Value) {
  if (!E)
    return;
  E->SetAttribute(Name, Value);
  bool IsLine = std::strcmp(Name, "lbl") == 0;
  if (!IsLine && std::strcmp(Name, "lbc") != 0)
    return;
  LocRecord *R = P->ensureRecord(E);
  uint64_t Old = R->Key;
  R->Key = IsLine ? (uint64_t(Value) << 32) | (R->Key & 0xffffffffu)
                  : (R->Key & ~uint64_t(0xffffffffu)) | Value;
  if (R->Key != Old && E->Parent())
    P->markUnsorted(E->Parent());
}

void XMLHandler::setAttribute(XMLElement *E, const char *Name,
                              unsigned long Value) {
  if (E)
    E->SetAttribute(Name, static_cast<uint64_t>(Value));
}

int XMLHandler::fileNumber(const std::string &Name) {
  auto It = P->Files.find(Name);
  if (It != P->Files.end())
    return It->second;
  int N = P->NextFileNumber++;
  P->Files.emplace(Name, N);
  return N;
}

void XMLHandler::attributeLoc(XMLElement *E, unsigned BeginLine,
                              unsigned BeginColumn, unsigned EndLine,
                              unsigned EndColumn, std::string FileName,
                              unsigned BeginLineOrg, unsigned BeginColumnOrg,
                              unsigned EndLineOrg, unsigned EndColumnOrg,
                              std::string FileNameOrg) {
  // The file table records every name met, also for a null element.
  int File = fileNumber(FileName);
  int FileOrg = fileNumber(FileNameOrg);
  if (!E)
    return;
  LocRecord *R = P->ensureRecord(E);
  const uint32_t Values[8] = {BeginLine,    BeginColumn,    EndLine,
                              EndColumn,    BeginLineOrg,   BeginColumnOrg,
                              EndLineOrg,   EndColumnOrg};
  std::memcpy(R->Loc, Values, sizeof(Values));
  R->File = File;
  R->FileOrg = FileOrg;
  R->HasLoc = true;
  uint64_t Key = (uint64_t(BeginLine) << 32) | BeginColumn;
  if (Key != R->Key && E->Parent())
    P->markUnsorted(E->Parent());
  R->Key = Key;
}

void XMLHandler::appendChildOrdered(XMLElement *Child, XMLElement *Parent) {
  if (!Child || !Parent || isSelfOrAncestor(Child, Parent))
    return;
  const uint64_t Key = Impl::keyOf(Child);

  // Children arrive mostly in source order: look at the end first.
  XMLNode *Last = Parent->LastChild();
  if (Last == Child)
    Last = Last->PreviousSibling();
  if (!Last || Impl::keyOf(Last) <= Key) {
    Parent->InsertEndChild(Child);
    return;
  }
  // Children in key order (the usual case) make the front a second cheap
  // place to look, so reverse order is as cheap as source order.
  const LocRecord *PR = Impl::recordOf(Parent);
  if (!PR || !PR->ChildrenUnsorted) {
    XMLNode *First = Parent->FirstChild();
    if (First == Child)
      First = First->NextSibling();
    if (Impl::keyOf(First) > Key) {
      Parent->InsertFirstChild(Child);
      return;
    }
  }
  for (XMLNode *N = Last->PreviousSibling(); N; N = N->PreviousSibling()) {
    if (N != Child && Impl::keyOf(N) <= Key) {
      Parent->InsertAfterChild(N, Child);
      return;
    }
  }
  Parent->InsertFirstChild(Child);
}

void XMLHandler::appendChildLast(XMLNode *Child, XMLNode *Parent) {
  if (!Child || !Parent || isSelfOrAncestor(Child, Parent))
    return;
  XMLNode *Last = Parent->LastChild();
  if (Last && Last != Child && Impl::keyOf(Last) > Impl::keyOf(Child))
    P->markUnsorted(Parent);
  Parent->InsertEndChild(Child);
}

void XMLHandler::appendElementToDoc(XMLElement *E) {
  if (E)
    Doc->InsertEndChild(E);
}

void XMLHandler::appendCommentToDoc(const char *Text) {
  Doc->InsertEndChild(Doc->NewComment(commentText(Text ? Text : "").c_str()));
}

void XMLHandler::saveFile(const char *Path) {
  SaveError.clear();
  FILE *F = std::fopen(Path, "w");
  if (!F) {
    SaveError = std::string(Path) + ": " + std::strerror(errno);
    return;
  }
  LocPrinter Printer(F, StripLocations);
  Doc->Print(&Printer);
  bool WriteFailed = std::ferror(F) != 0;
  int WriteErrno = errno;
  if (std::fclose(F) != 0 && !WriteFailed) {
    WriteFailed = true;
    WriteErrno = errno;
  }
  if (WriteFailed)
    SaveError = std::string(Path) + ": " + std::strerror(WriteErrno);
}

std::string XMLHandler::toString() const {
  LocPrinter Printer(nullptr, StripLocations);
  Doc->Print(&Printer);
  return std::string(Printer.CStr(), Printer.CStrSize() - 1);
}

int XMLHandler::getFileId(std::string FileName) const {
  auto It = P->Files.find(FileName);
  return It == P->Files.end() ? 0 : It->second;
}

void XMLHandler::deleteFileName(std::string FileName) {
  P->Files.erase(FileName);
}

std::map<std::string, int> XMLHandler::getFileNameMap() const {
  return std::map<std::string, int>(P->Files.begin(), P->Files.end());
}

} // namespace korvid
