//===- korvid/Frontend/Token.h - Tokens of the source reader ----*- C++ -*-===//
//
// A token is one text-word of the expanded source (or a whole EXEC block)
// with its two locations: where it stands in the expanded source, the text
// -E prints (Line, Column; the file is the main file), and where its
// characters were written (Loc, EndLoc: ask the SourceManager for the file,
// line and column). For text brought in by REPLACING or REPLACE the written
// location is where the replacing text was written.
//
//===----------------------------------------------------------------------===//
#ifndef KORVID_FRONTEND_TOKEN_H
#define KORVID_FRONTEND_TOKEN_H

#include "korvid/Frontend/SourceManager.h"

#include <cstdint>
#include <string>

namespace korvid {

namespace tok {
enum Kind : uint8_t {
#define TOK(Name, Spelling) Name,
#include "korvid/Frontend/TokenKinds.def"
  NumKinds
};
/// Reserved words the reader itself acts on; NotKeyword for all others.
enum Keyword : uint8_t {
  NotKeyword,
#define KEYWORD(Name, Spelling) kw_##Name,
#include "korvid/Frontend/TokenKinds.def"
  NumKeywords
};
const char *getKindName(Kind K);
/// The keyword whose upper-case spelling is \p Upper, or NotKeyword.
Keyword getKeyword(const std::string &Upper);
} // namespace tok

class Token {
public:
  enum Flag : uint8_t {
    /// White space or a line start stood before it (not the start of a
    /// continuation line, which goes on from the line before).
    LeadingSpace = 1,
    Replaced = 2,     ///< Brought in or changed by REPLACING or REPLACE.
    Signed = 4,       ///< A numeric literal with a sign.
    Decimal = 8,      ///< A numeric literal with a decimal point.
  };

  tok::Kind Kind = tok::Unknown;
  tok::Keyword Keyword = tok::NotKeyword;
  uint8_t Flags = 0;
  /// Expanded location of the first character: line and column of the -E
  /// output (1-based; 0 until the layout gave them).
  uint32_t Line = 0, Column = 0;
  /// As-written locations of the first and last characters.
  SourceLocation Loc, EndLoc;
  /// Where -E places the token: Loc, or for replacing text the location of
  /// the text it replaced.
  SourceLocation LayoutLoc;
  /// The text as written (a continued literal joined; an EXEC block with
  /// runs of white space folded to one space).
  std::string Text;

  bool is(tok::Kind K) const { return Kind == K; }
  bool isKeyword(tok::Keyword K) const { return Keyword == K; }
  bool hasFlag(Flag F) const { return Flags & F; }
  bool isLiteral() const {
    return Kind >= tok::NumericLiteral && Kind <= tok::NullTerminatedLiteral;
  }
  /// The text in upper case (letters outside literals only).
  std::string getUpper() const;
  /// Number of characters of Text (its width in the -E output).
  uint32_t getWidth() const;
  /// Expanded column of the last character.
  uint32_t getEndColumn() const { return Column + getWidth() - 1; }
};

} // namespace korvid

#endif
