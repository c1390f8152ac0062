//===- korvid/Frontend/SourceManager.h - Files, buffers, locations -*- C++ -*-===//
//
// The source manager owns the text of every file the reader opened and hands
// out compact locations into it. A SourceLocation is one 32-bit offset in an
// address space shared by all inclusions: each inclusion of a file (the main
// file, and every COPY of a member) gets its own entry, a range of that space
// of the file's size plus one, and remembers the location of the COPY
// statement that brought it in. The same member copied twice shares its
// text but has two entries, so every location knows its COPY chain.
//
// Files are read as bytes and kept as UTF-8: valid UTF-8 is taken as it
// is (a byte-order mark dropped), anything else is converted from the
// encoding the user named (through iconv) or else from Latin-1. Carriage
// returns before a line feed are dropped, a lone carriage return and
// U+0085 (the EBCDIC new line) end a line, tabs are expanded to the next
// multiple-of-8 column stop and form feeds become spaces. Columns count
// characters of a line as it stands after that, from 1.
//
// Line and column are only worked out when asked for (getPresumedLoc).
//
//===----------------------------------------------------------------------===//
#ifndef KORVID_FRONTEND_SOURCEMANAGER_H
#define KORVID_FRONTEND_SOURCEMANAGER_H

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace korvid {

/// A position in the sources as written. 0 is "no location".
class SourceLocation {
public:
  SourceLocation() = default;
  static SourceLocation fromRaw(uint32_t Raw) {
    SourceLocation L;
    L.Raw = Raw;
    return L;
  }
  uint32_t getRaw() const { return Raw; }
  bool isValid() const { return Raw != 0; }
  SourceLocation getLocWithOffset(uint32_t Off) const {
    return fromRaw(Raw + Off);
  }
  bool operator==(SourceLocation O) const { return Raw == O.Raw; }
  bool operator!=(SourceLocation O) const { return Raw != O.Raw; }

private:
  uint32_t Raw = 0;
};

/// Index of an entry of the source manager (an inclusion of a file). 0 is
/// "no entry".
using FileID = uint32_t;

/// The text of one file, shared by all its inclusions.
struct FileContent {
  std::string Path;                 ///< The name as opened.
  std::string Text;                 ///< UTF-8, normalised (see the file comment).
  std::vector<uint32_t> LineStarts; ///< Byte offset of each line's start.
  bool WasConverted = false;        ///< Not UTF-8 on disk.
};

/// A location spelled out for people: file name, 1-based line and column.
struct PresumedLoc {
  std::string File;
  uint32_t Line = 0;
  uint32_t Column = 0;
  bool isValid() const { return Line != 0; }
};

/// One step of a COPY chain: Member was copied by the statement at Line of
/// File.
struct IncludeStep {
  std::string Member;
  std::string File;
  uint32_t Line = 0;
  uint32_t Column = 0;
};

class SourceManager {
public:
  SourceManager();
  ~SourceManager();
  SourceManager(const SourceManager &) = delete;
  SourceManager &operator=(const SourceManager &) = delete;

  /// The encoding of files that are not valid UTF-8; empty means Latin-1.
  /// When set to anything but UTF-8, every file is converted from it.
  void setEncoding(std::string Enc) { Encoding = std::move(Enc); }
  const std::string &getEncoding() const { return Encoding; }

  /// Reads \p Path (once; later calls give the same content). On failure
  /// returns null and sets \p Error to a message: the reason the file could
  /// not be read, "binary" for a file holding NUL bytes, or
  /// "encoding:REASON" when the conversion failed.
  const FileContent *getFile(const std::string &Path, std::string &Error);
  /// Takes \p Bytes as the content of a file named \p Name.
  const FileContent *addBuffer(const std::string &Name, const std::string &Bytes,
                               std::string &Error);

  /// A new entry for an inclusion of \p Content; \p IncludeLoc is the COPY
  /// statement's location (invalid for the main file), \p Member the name
  /// the COPY statement gave.
  FileID createEntry(const FileContent *Content, SourceLocation IncludeLoc,
                     std::string Member);

  const FileContent &getContent(FileID F) const;
  SourceLocation getIncludeLoc(FileID F) const;
  const std::string &getMember(FileID F) const;
  SourceLocation getStartLoc(FileID F) const;
  /// The entry \p Loc lies in (0 for an invalid location).
  FileID getFileID(SourceLocation Loc) const;
  /// Byte offset of \p Loc in its file's text.
  uint32_t getOffset(SourceLocation Loc) const;

  PresumedLoc getPresumedLoc(SourceLocation Loc) const;
  /// Line and column of \p Loc without the file name; returns its entry
  /// (0 for an invalid location, leaving Line and Column alone).
  FileID getLineColumn(SourceLocation Loc, uint32_t &Line,
                       uint32_t &Column) const;
  /// The COPY statements that brought \p Loc's text in, innermost first.
  std::vector<IncludeStep> getIncludeChain(SourceLocation Loc) const;

  /// Converts raw bytes to normalised UTF-8 text (see the file comment).
  /// Returns false and sets \p Error as getFile() does.
  static bool decode(const std::string &Bytes, const std::string &Encoding,
                     std::string &Text, bool &Converted, std::string &Error);

private:
  struct Entry {
    uint32_t Base;
    const FileContent *Content;
    SourceLocation IncludeLoc;
    std::string Member;
  };
  static void finish(FileContent &C);

  std::string Encoding;
  std::map<std::string, std::unique_ptr<FileContent>> Files;
  std::vector<std::unique_ptr<FileContent>> Buffers;
  std::vector<Entry> Entries;
  uint32_t NextBase = 1;
  mutable FileID LastLookup = 0;
  mutable const FileContent *LastContent = nullptr;
  mutable uint32_t LastLine = 0;
};

} // namespace korvid

#endif
