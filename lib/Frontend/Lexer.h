//===- lib/Frontend/Lexer.h - Reference format and text-words ---*- C++ -*-===//
//
// The lexer reads one inclusion of one file: it finds the program-text area
// of each line (fixed, free or variable format, switched by >>SOURCE
// directives), skips comment lines, debugging lines (unless debugging mode is
// on), compiler directives and $SET/CBL/PROCESS cards, joins continued
// literals and words, and cuts the text into text-words. An EXEC ... END-EXEC
// block comes out as one token.
//
// Picture character-strings and level numbers are not recognised here: at
// this level "X(10)" is four text-words, as COPY REPLACING and REPLACE must
// see it. The reader joins them after REPLACE.
//
//===----------------------------------------------------------------------===//
#ifndef KORVID_LIB_FRONTEND_LEXER_H
#define KORVID_LIB_FRONTEND_LEXER_H

#include "korvid/Frontend/Diagnostic.h"
#include "korvid/Frontend/SourceReader.h"
#include "korvid/Frontend/Token.h"

namespace korvid {

/// What the text read so far changes in reading the rest, for every file of
/// the program.
struct ProgramState {
  /// DECIMAL-POINT IS COMMA was read: numeric literals take a comma.
  bool DecimalComma = false;
  /// WITH DEBUGGING MODE was read (or asked for): debugging lines are text.
  bool DebuggingMode = false;
};

class Lexer {
public:
  Lexer(const SourceManager &SM, FileID F, const ReaderOptions &Opts,
        DiagnosticsEngine &Diags, ProgramState &State);

  /// The next token; false at the end of the file.
  bool lex(Token &T);

  /// The format the file was read in last (after detection and directives).
  SourceFormat getFormat() const { return Format; }

private:
  enum class LineKind { Skip, Text, Continuation, Directive, Card };
  struct LineInfo {
    LineKind Kind = LineKind::Skip;
    uint32_t Begin = 0, End = 0; ///< Program-text area (bytes).
    uint32_t AreaBegin = 0;      ///< Byte offset of column 8 (fixed) or line start.
    uint32_t Width = 0;          ///< Characters the area may hold (0: no limit).
    char Indicator = ' ';
  };

  void detectFormat();
  void lineBounds(uint32_t Line, uint32_t &B, uint32_t &E) const;
  LineInfo classify(uint32_t Line) const;
  bool nextLine();
  /// If the next line with text continues this one, its index and info.
  bool peekContinuation(uint32_t &Line, LineInfo &Info) const;
  void handleDirective(const LineInfo &I);
  void handleCard(const LineInfo &I);
  uint32_t firstNonBlank(uint32_t B, uint32_t E) const;
  uint32_t charsBetween(uint32_t B, uint32_t E) const;

  bool lexRaw(Token &T);
  void lexWordOrNumber(Token &T);
  /// The character at Pos if it may go on with a word, crossing to a
  /// continuation line; '\0' if none.
  char wordChar();
  void lexLiteral(Token &T, uint32_t Start);
  void lexExec(Token &T);
  bool lexCommentEntry(Token &T);
  void setKeyword(Token &T);
  SourceLocation locAt(uint32_t Off) const { return Start.getLocWithOffset(Off); }

  const SourceManager &SM;
  const FileContent &File;
  const std::string &Text;
  const ReaderOptions &Opts;
  DiagnosticsEngine &Diags;
  ProgramState &State;
  bool &DecimalComma;
  SourceLocation Start;
  SourceFormat Format;

  uint32_t NextLine = 0;  ///< Next physical line to read (0-based).
  LineInfo Cur;           ///< The line being read.
  uint32_t Pos = 0;       ///< Position in the current line's area.
  bool HaveLine = false;
  bool AtLineStart = true;
  bool SeenText = false;
  bool InExec = false;
  bool ContinuedLine = false; ///< The current line is a '-' line.
  bool InIdDivision = false;
  /// 1: a comment-entry paragraph name was read, 2: and its period.
  int CommentEntryState = 0;
  tok::Keyword Prev1 = tok::NotKeyword, Prev2 = tok::NotKeyword;
};

} // namespace korvid

#endif
