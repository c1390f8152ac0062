//===- korvid/Frontend/SourceReader.h - COBOL source reader -----*- C++ -*-===//
//
// The first stage of the front end: reads a COBOL source file the way a
// compiler's text-manipulation phase does. It reads the reference format
// (fixed, free or variable), joins continued lines, expands COPY statements
// (with REPLACING), applies REPLACE, and gives the token stream of the
// expanded source, each token with its expanded and as-written locations.
// It records every COPY member found and every one missing, and collects
// diagnostics; it never stops at the first problem.
//
// The expanded source (what `korvid-xml -E` prints) is laid out as follows:
// a token starts a new line when it was written on another line than the
// token before it (a later line of the same inclusion gives as many line
// breaks as lie between, so text before any COPY keeps its line numbers);
// on its line it stands at the column it was written at if that column is
// still free, else one space after the token before it. Text brought in by
// REPLACING or REPLACE stands where the text it replaced stood. Comments,
// COPY and REPLACE statements and compiler directives are left out, and
// continued literals and words are joined on the line where they began
// (the lines after keep their numbers). A token written right after the one
// before it stays right after it. The result is free-format text.
//
// Rules of REPLACING and REPLACE: operands are pseudo-text, a word or
// identifier (qualified, subscripted) or a literal; text is matched
// text-word by text-word, commas, semicolons, spaces and comment lines not
// counting, words without regard to case; at each text-word the first rule
// that matches applies, and matching goes on after the replaced text (it is
// not matched again). LEADING and TRAILING replace part of a word. COPY
// REPLACING applies to the member's text, nested members included; REPLACE
// applies after all COPY statements. REPLACE ALSO adds its rules to those in
// effect (tried first), REPLACE LAST OFF takes back the last statement's,
// REPLACE OFF ends them all, and a plain REPLACE replaces them all.
//
// Comment-entries (the text of AUTHOR, INSTALLATION, DATE-WRITTEN,
// DATE-COMPILED, SECURITY and REMARKS) are one CommentEntry token each.
// EXEC ... END-EXEC is one ExecBlock token; EXEC SQL INCLUDE member is
// looked up like a COPY member and, if found, replaced by its text.
//
//===----------------------------------------------------------------------===//
#ifndef KORVID_FRONTEND_SOURCEREADER_H
#define KORVID_FRONTEND_SOURCEREADER_H

#include "korvid/Frontend/Diagnostic.h"
#include "korvid/Frontend/SourceManager.h"
#include "korvid/Frontend/Token.h"

#include <memory>
#include <string>
#include <vector>

namespace korvid {

enum class SourceFormat : uint8_t {
  Auto,     ///< Decided per file: free if any line has text in columns 1-6
            ///< that is not a sequence number or runs past column 80.
  Fixed,    ///< Columns 1-6 sequence, 7 indicator, 8-72 program text.
  Free,     ///< Program text anywhere on the line.
  Variable, ///< As fixed, program text to column 250.
};

/// Parses "fixed", "free", "variable" or "auto" (any case).
bool parseSourceFormat(const std::string &Name, SourceFormat &Out);

struct ReaderOptions {
  SourceFormat Format = SourceFormat::Auto;
  /// Debugging lines ('D' in the indicator area, ">>D" in free format) are
  /// program text from the start. Without it they are from where the
  /// program says WITH DEBUGGING MODE on.
  bool DebuggingMode = false;
  /// In free format, a '*' in column 1 starts a comment line.
  bool FreeStarComments = false;
  /// Directories searched for COPY members after the including file's.
  std::vector<std::string> IncludeDirs;
  /// Also search the directories of the COBCPY environment variable.
  bool UseCOBCPY = true;
  /// Extensions tried after the name as given, in order (.dcl: members
  /// made by DCLGEN for EXEC SQL INCLUDE).
  std::vector<std::string> CopyExtensions = {
      ".cpy",  ".CPY",  ".cbl", ".CBL", ".cob", ".COB",
      ".copy", ".COPY", ".dcl", ".DCL"};
  /// Encoding of files that are not UTF-8 (empty: Latin-1).
  std::string Encoding;
};

/// A COPY member looked up, found or not.
struct CopyRecord {
  std::string Member;   ///< The name the COPY statement gave.
  std::string Library;  ///< The library (OF/IN) if one was given.
  std::string FromFile; ///< As-written name of the file holding the COPY.
  uint32_t Line = 0;    ///< Line of the COPY statement in FromFile.
  SourceLocation CopyLoc;
  std::string Path;                  ///< The file found (empty if missing).
  std::vector<std::string> Tried;    ///< Paths tried, for a missing member.
};

class SourceReader {
public:
  explicit SourceReader(ReaderOptions Opts = {});
  ~SourceReader();
  SourceReader(const SourceReader &) = delete;
  SourceReader &operator=(const SourceReader &) = delete;

  /// Reads \p Path and everything it copies. Returns false if the file
  /// itself could not be read (a diagnostic says why); errors in its text
  /// are diagnostics and still give a token stream.
  bool readFile(const std::string &Path);
  /// Reads \p Bytes as the content of a main file named \p Name (COPY
  /// members are looked up relative to \p Name's directory).
  bool readBuffer(const std::string &Name, const std::string &Bytes);

  const std::vector<Token> &getTokens() const { return Tokens; }
  /// The expanded source, as -E prints it.
  const std::string &getExpandedText() const { return Expanded; }
  /// The file name of the expanded source: the main file's name.
  const std::string &getMainFileName() const { return MainName; }

  const std::vector<CopyRecord> &getCopyTargets() const { return Found; }
  const std::vector<CopyRecord> &getMissingCopybooks() const { return Missing; }

  SourceManager &getSourceManager() { return *SM; }
  const SourceManager &getSourceManager() const { return *SM; }
  DiagnosticsEngine &getDiagnostics() { return Diags; }
  const DiagnosticsEngine &getDiagnostics() const { return Diags; }

  /// As-written file, line and column of the first and last characters.
  PresumedLoc getWrittenBegin(const Token &T) const;
  PresumedLoc getWrittenEnd(const Token &T) const;

  struct Impl;

private:
  bool read(const FileContent *Main, const std::string &Error,
            const std::string &Name);

  ReaderOptions Opts;
  std::unique_ptr<SourceManager> SM;
  DiagnosticsEngine Diags;
  std::string MainName;
  std::vector<Token> Tokens;
  std::string Expanded;
  std::vector<CopyRecord> Found, Missing;
};

} // namespace korvid

#endif
