//===- lib/Frontend/SourceManager.cpp - Files, buffers, locations ---------===//

#include "korvid/Frontend/SourceManager.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <iconv.h>
#include <sstream>

using namespace korvid;

SourceManager::SourceManager() = default;
SourceManager::~SourceManager() = default;

namespace {

/// Length of the UTF-8 sequence starting at S[I], or 0 if it is not valid.
size_t utf8Length(const std::string &S, size_t I) {
  unsigned char C = S[I];
  if (C < 0x80)
    return 1;
  size_t N;
  uint32_t CP;
  if ((C & 0xE0) == 0xC0)
    N = 2, CP = C & 0x1F;
  else if ((C & 0xF0) == 0xE0)
    N = 3, CP = C & 0x0F;
  else if ((C & 0xF8) == 0xF0)
    N = 4, CP = C & 0x07;
  else
    return 0;
  if (I + N > S.size())
    return 0;
  for (size_t K = 1; K < N; ++K) {
    unsigned char D = S[I + K];
    if ((D & 0xC0) != 0x80)
      return 0;
    CP = (CP << 6) | (D & 0x3F);
  }
  // Overlong forms, surrogates and values past U+10FFFF are not UTF-8.
  if ((N == 2 && CP < 0x80) || (N == 3 && CP < 0x800) ||
      (N == 4 && (CP < 0x10000 || CP > 0x10FFFF)) ||
      (CP >= 0xD800 && CP <= 0xDFFF))
    return 0;
  return N;
}

bool isValidUTF8(const std::string &S) {
  for (size_t I = 0; I < S.size();) {
    size_t N = utf8Length(S, I);
    if (!N)
      return false;
    I += N;
  }
  return true;
}

std::string latin1ToUTF8(const std::string &S) {
  std::string Out;
  Out.reserve(S.size() + S.size() / 8);
  for (unsigned char C : S) {
    if (C < 0x80) {
      Out += char(C);
    } else {
      Out += char(0xC0 | (C >> 6));
      Out += char(0x80 | (C & 0x3F));
    }
  }
  return Out;
}

bool convertWithIconv(const std::string &In, const std::string &From,
                      std::string &Out, std::string &Error) {
  iconv_t CD = iconv_open("UTF-8", From.c_str());
  if (CD == (iconv_t)-1) {
    // IBM code pages are often written "IBM-037"; iconv knows "IBM037".
    std::string Alt = From;
    Alt.erase(std::remove(Alt.begin(), Alt.end(), '-'), Alt.end());
    CD = iconv_open("UTF-8", Alt.c_str());
  }
  if (CD == (iconv_t)-1) {
    Error = "unknown encoding";
    return false;
  }
  Out.assign(In.size() * 4 + 16, '\0');
  char *InP = const_cast<char *>(In.data());
  size_t InLeft = In.size();
  char *OutP = &Out[0];
  size_t OutLeft = Out.size();
  bool OK = iconv(CD, &InP, &InLeft, &OutP, &OutLeft) != (size_t)-1;
  if (!OK)
    Error = std::strerror(errno);
  iconv_close(CD);
  Out.resize(Out.size() - OutLeft);
  return OK;
}

} // namespace

bool SourceManager::decode(const std::string &Bytes,
                           const std::string &Encoding, std::string &Text,
                           bool &Converted, std::string &Error) {
  std::string Upper = Encoding;
  std::transform(Upper.begin(), Upper.end(), Upper.begin(), ::toupper);
  bool NamedUTF8 = Upper == "UTF-8" || Upper == "UTF8";
  // NUL bytes mean a binary file, unless the encoding named has them
  // (UTF-16 and the like); the converted text is checked again below.
  if ((Encoding.empty() || NamedUTF8) &&
      Bytes.find('\0') != std::string::npos) {
    Error = "binary";
    return false;
  }
  std::string Raw;
  Converted = false;
  if (!Encoding.empty() && !NamedUTF8) {
    std::string Why;
    if (!convertWithIconv(Bytes, Encoding, Raw, Why)) {
      Error = "encoding:" + Why;
      return false;
    }
    Converted = true;
    if (Raw.find('\0') != std::string::npos) {
      Error = "binary";
      return false;
    }
  } else if (isValidUTF8(Bytes)) {
    Raw = Bytes;
  } else if (NamedUTF8) {
    Error = "encoding:invalid UTF-8";
    return false;
  } else {
    Raw = latin1ToUTF8(Bytes);
    Converted = true;
  }
  size_t Start = Raw.compare(0, 3, "\xEF\xBB\xBF") == 0 ? 3 : 0;
  bool Plain = true;
  for (size_t I = Start; I < Raw.size() && Plain; ++I) {
    char C = Raw[I];
    Plain = !(C == '\r' || C == '\t' || C == '\f' || C == '\v' || C == '\xC2');
  }
  if (Plain) {
    Text = Start ? Raw.substr(Start) : std::move(Raw);
    return true; // Nothing to normalise: the usual case.
  }

  // Normalise line ends, tabs and form feeds; count columns in characters.
  Text.clear();
  Text.reserve(Raw.size() + 64);
  uint32_t Column = 0;
  for (size_t I = Start; I < Raw.size(); ++I) {
    char C = Raw[I];
    if (C == '\r') {
      if (I + 1 < Raw.size() && Raw[I + 1] == '\n')
        continue;
      C = '\n';
    } else if (C == '\xC2' && I + 1 < Raw.size() && Raw[I + 1] == '\x85') {
      ++I; // U+0085, the EBCDIC new line.
      C = '\n';
    }
    if (C == '\n') {
      Text += '\n';
      Column = 0;
    } else if (C == '\t') {
      do {
        Text += ' ';
        ++Column;
      } while (Column % 8);
    } else if (C == '\f' || C == '\v') {
      Text += ' ';
      ++Column;
    } else {
      Text += C;
      if ((static_cast<unsigned char>(C) & 0xC0) != 0x80)
        ++Column;
    }
  }
  return true;
}

void SourceManager::finish(FileContent &C) {
  C.LineStarts.push_back(0);
  const std::string &T = C.Text;
  for (size_t I = 0; I < T.size(); ++I)
    if (T[I] == '\n' && I + 1 < T.size())
      C.LineStarts.push_back(I + 1);
}

const FileContent *SourceManager::getFile(const std::string &Path,
                                          std::string &Error) {
  auto It = Files.find(Path);
  if (It != Files.end())
    return It->second.get();
  std::ifstream In(Path, std::ios::binary);
  if (!In) {
    Error = std::strerror(errno ? errno : ENOENT);
    return nullptr;
  }
  std::ostringstream SS;
  SS << In.rdbuf();
  if (In.bad()) {
    Error = "read error";
    return nullptr;
  }
  auto C = std::make_unique<FileContent>();
  C->Path = Path;
  if (!decode(SS.str(), Encoding, C->Text, C->WasConverted, Error))
    return nullptr;
  finish(*C);
  return (Files[Path] = std::move(C)).get();
}

const FileContent *SourceManager::addBuffer(const std::string &Name,
                                            const std::string &Bytes,
                                            std::string &Error) {
  auto C = std::make_unique<FileContent>();
  C->Path = Name;
  if (!decode(Bytes, Encoding, C->Text, C->WasConverted, Error))
    return nullptr;
  finish(*C);
  Buffers.push_back(std::move(C));
  return Buffers.back().get();
}

FileID SourceManager::createEntry(const FileContent *Content,
                                  SourceLocation IncludeLoc,
                                  std::string Member) {
  Entries.push_back({NextBase, Content, IncludeLoc, std::move(Member)});
  NextBase += Content->Text.size() + 1;
  return Entries.size();
}

const FileContent &SourceManager::getContent(FileID F) const {
  return *Entries[F - 1].Content;
}
SourceLocation SourceManager::getIncludeLoc(FileID F) const {
  return Entries[F - 1].IncludeLoc;
}
const std::string &SourceManager::getMember(FileID F) const {
  return Entries[F - 1].Member;
}
SourceLocation SourceManager::getStartLoc(FileID F) const {
  return SourceLocation::fromRaw(Entries[F - 1].Base);
}

FileID SourceManager::getFileID(SourceLocation Loc) const {
  if (!Loc.isValid() || Entries.empty())
    return 0;
  uint32_t R = Loc.getRaw();
  // Tokens come in order: the entry of the last lookup is the usual answer.
  if (LastLookup) {
    const Entry &E = Entries[LastLookup - 1];
    if (R >= E.Base && R <= E.Base + E.Content->Text.size())
      return LastLookup;
  }
  auto It = std::upper_bound(
      Entries.begin(), Entries.end(), R,
      [](uint32_t V, const Entry &E) { return V < E.Base; });
  if (It == Entries.begin())
    return 0;
  LastLookup = It - Entries.begin();
  return LastLookup;
}

uint32_t SourceManager::getOffset(SourceLocation Loc) const {
  FileID F = getFileID(Loc);
  return F ? Loc.getRaw() - Entries[F - 1].Base : 0;
}

FileID SourceManager::getLineColumn(SourceLocation Loc, uint32_t &Line,
                                    uint32_t &Column) const {
  FileID F = getFileID(Loc);
  if (!F)
    return 0;
  const FileContent &C = *Entries[F - 1].Content;
  uint32_t Off = Loc.getRaw() - Entries[F - 1].Base;
  const std::vector<uint32_t> &LS = C.LineStarts;
  // Locations are mostly asked for in order: try the last line and the one
  // after it before searching.
  uint32_t L = LastLine;
  if (&C != LastContent || L >= LS.size() || Off < LS[L]) {
    L = std::upper_bound(LS.begin(), LS.end(), Off) - LS.begin() - 1;
  } else {
    while (L + 1 < LS.size() && LS[L + 1] <= Off) {
      if (L + 2 < LS.size() && LS[L + 2] <= Off) {
        L = std::upper_bound(LS.begin() + L, LS.end(), Off) - LS.begin() - 1;
        break;
      }
      ++L;
    }
  }
  LastContent = &C;
  LastLine = L;
  Line = L + 1;
  Column = 1;
  for (uint32_t I = LS[L]; I < Off && I < C.Text.size(); ++I)
    if ((static_cast<unsigned char>(C.Text[I]) & 0xC0) != 0x80)
      ++Column;
  return F;
}

PresumedLoc SourceManager::getPresumedLoc(SourceLocation Loc) const {
  PresumedLoc P;
  if (FileID F = getLineColumn(Loc, P.Line, P.Column))
    P.File = Entries[F - 1].Content->Path;
  return P;
}

std::vector<IncludeStep>
SourceManager::getIncludeChain(SourceLocation Loc) const {
  std::vector<IncludeStep> Chain;
  for (FileID F = getFileID(Loc); F; ) {
    const Entry &E = Entries[F - 1];
    if (!E.IncludeLoc.isValid())
      break;
    PresumedLoc P = getPresumedLoc(E.IncludeLoc);
    Chain.push_back({E.Member, P.File, P.Line, P.Column});
    F = getFileID(E.IncludeLoc);
  }
  return Chain;
}
