//===- lib/Frontend/Lexer.cpp - Reference format and text-words -----------===//

#include "Lexer.h"

#include <cctype>

using namespace korvid;

namespace {

bool isSpace(char C) { return C == ' ' || (C > 0 && C < ' ' && C != '\n'); }
bool isDigit(char C) { return C >= '0' && C <= '9'; }
bool isAlpha(char C) {
  return (C >= 'A' && C <= 'Z') || (C >= 'a' && C <= 'z');
}
/// Letters, digits, hyphens, underscores and any non-ASCII character.
bool isWordChar(char C) {
  return isAlpha(C) || isDigit(C) || C == '-' || C == '_' ||
         (static_cast<unsigned char>(C) & 0x80);
}
bool isContinuationByte(char C) {
  return (static_cast<unsigned char>(C) & 0xC0) == 0x80;
}
std::string upper(std::string S) {
  for (char &C : S)
    if (C >= 'a' && C <= 'z')
      C -= 'a' - 'A';
  return S;
}

/// Columns of program text: fixed ends at 72, variable at 250.
constexpr uint32_t FixedWidth = 65, VariableWidth = 243;
/// Continued text belongs in area B: column 12 on.
constexpr uint32_t AreaBColumn = 12;

} // namespace

Lexer::Lexer(const SourceManager &SM, FileID F, const ReaderOptions &Opts,
             DiagnosticsEngine &Diags, ProgramState &State)
    : SM(SM), File(SM.getContent(F)), Text(File.Text), Opts(Opts),
      Diags(Diags), State(State), DecimalComma(State.DecimalComma),
      Start(SM.getStartLoc(F)),
      Format(Opts.Format) {
  if (Format == SourceFormat::Auto)
    detectFormat();
}

void Lexer::lineBounds(uint32_t Line, uint32_t &B, uint32_t &E) const {
  B = File.LineStarts[Line];
  E = Line + 1 < File.LineStarts.size() ? File.LineStarts[Line + 1] - 1
                                        : Text.size();
  if (E > B && E == Text.size() && Text[E - 1] == '\n')
    --E;
}

uint32_t Lexer::firstNonBlank(uint32_t B, uint32_t E) const {
  while (B < E && isSpace(Text[B]))
    ++B;
  return B;
}

uint32_t Lexer::charsBetween(uint32_t B, uint32_t E) const {
  uint32_t N = 0;
  for (; B < E; ++B)
    N += !isContinuationByte(Text[B]);
  return N;
}

void Lexer::detectFormat() {
  // Free if some line carries text in columns 1-6 that is not a sequence
  // number, or runs past column 80. A line of nothing but a sequence area
  // says nothing, nor does one whose column 7 holds an indicator: fixed
  // sources may put anything in columns 1-6.
  Format = SourceFormat::Fixed;
  for (uint32_t L = 0; L < File.LineStarts.size(); ++L) {
    uint32_t B, E;
    lineBounds(L, B, E);
    uint32_t Col = 0;
    bool Sequence = true;
    for (uint32_t I = B; I < E && Col < 7; ++I) {
      if (isContinuationByte(Text[I]))
        continue;
      ++Col;
      char C = Text[I];
      if (Col <= 6 && !isDigit(C) && !isSpace(C))
        Sequence = false;
      if (Col == 7 && !Sequence &&
          !(C == ' ' || C == '*' || C == '/' || C == '-' || C == 'D' ||
            C == 'd' || C == '$')) {
        Format = SourceFormat::Free;
        return;
      }
    }
    if (E - B > 80 && charsBetween(B, E) > 80) {
      Format = SourceFormat::Free;
      return;
    }
  }
}

Lexer::LineInfo Lexer::classify(uint32_t Line) const {
  LineInfo I;
  uint32_t B, E;
  lineBounds(Line, B, E);
  if (Format == SourceFormat::Free) {
    I.Begin = I.AreaBegin = B;
    I.End = E;
    uint32_t F = firstNonBlank(B, E);
    if (F == E)
      return I;
    if (Text.compare(F, 2, ">>") == 0)
      I.Kind = LineKind::Directive;
    else if (Text[F] == '$')
      I.Kind = LineKind::Card;
    else if (Text[F] == '*' && (Text.compare(F, 2, "*>") == 0 ||
                                (F == B && Opts.FreeStarComments)))
      I.Kind = LineKind::Skip;
    else
      I.Kind = LineKind::Text;
    return I;
  }
  // Fixed and variable: find column 7.
  uint32_t P = B, Col = 1;
  while (P < E && Col < 7) {
    ++P;
    while (P < E && isContinuationByte(Text[P]))
      ++P;
    ++Col;
  }
  if (P >= E)
    return I; // Nothing past the sequence area.
  I.Indicator = Text[P];
  I.AreaBegin = I.Begin = P + 1;
  while (I.AreaBegin < E && isContinuationByte(Text[I.AreaBegin]))
    I.Begin = ++I.AreaBegin;
  I.Width = Format == SourceFormat::Variable ? VariableWidth : FixedWidth;
  uint32_t Q = I.Begin, N = 0;
  while (Q < E && N < I.Width) {
    ++Q;
    while (Q < E && isContinuationByte(Text[Q]))
      ++Q;
    ++N;
  }
  I.End = Q;
  uint32_t F = firstNonBlank(I.Begin, I.End);
  switch (I.Indicator) {
  case '*':
  case '/':
    return I;
  case 'D':
  case 'd':
    if (!State.DebuggingMode)
      return I;
    break;
  case '-':
    I.Kind = LineKind::Continuation;
    return I;
  case '$':
    I.Begin = P;
    I.Kind = LineKind::Card;
    return I;
  case '>':
    if (P + 1 < E && Text[P + 1] == '>') {
      I.Begin = P;
      I.Kind = LineKind::Directive;
      return I;
    }
    break;
  default:
    break;
  }
  if (F == I.End)
    return I;
  if (Text.compare(F, 2, ">>") == 0)
    I.Kind = LineKind::Directive;
  else
    I.Kind = LineKind::Text;
  return I;
}

bool Lexer::peekContinuation(uint32_t &Line, LineInfo &Info) const {
  if (Format == SourceFormat::Free)
    return false;
  for (uint32_t L = NextLine; L < File.LineStarts.size(); ++L) {
    LineInfo I = classify(L);
    if (I.Kind == LineKind::Skip)
      continue;
    if (I.Kind != LineKind::Continuation)
      return false;
    Line = L;
    Info = I;
    return true;
  }
  return false;
}

void Lexer::handleCard(const LineInfo &I) {
  uint32_t F = firstNonBlank(I.Begin, I.End);
  uint32_t W = F;
  while (W < I.End && !isSpace(Text[W]))
    ++W;
  std::string Card = Text.substr(F, W - F);
  std::string Rest = upper(Text.substr(W, I.End - W));
  // $SET SOURCEFORMAT"FREE" and the like switch the format all the same.
  size_t SF = Rest.find("SOURCEFORMAT");
  if (SF != std::string::npos) {
    if (Rest.find("FREE", SF) != std::string::npos)
      Format = SourceFormat::Free;
    else if (Rest.find("VARIABLE", SF) != std::string::npos)
      Format = SourceFormat::Variable;
    else if (Rest.find("FIXED", SF) != std::string::npos)
      Format = SourceFormat::Fixed;
  }
  Diags.report(diag::warn_card_skipped, locAt(F), {upper(Card)});
}

void Lexer::handleDirective(const LineInfo &I) {
  uint32_t F = firstNonBlank(I.Begin, I.End);
  uint32_t P = F + 2;
  std::vector<std::string> Words;
  std::vector<uint32_t> At;
  while (true) {
    P = firstNonBlank(P, I.End);
    if (P >= I.End || Text.compare(P, 2, "*>") == 0)
      break;
    uint32_t W = P;
    while (W < I.End && !isSpace(Text[W]))
      ++W;
    Words.push_back(upper(Text.substr(P, W - P)));
    At.push_back(P);
    P = W;
  }
  if (Words.empty()) {
    Diags.report(diag::warn_unknown_directive, locAt(F), {">>"});
    return;
  }
  if (Words[0] == "SOURCE") {
    size_t K = 1;
    if (K < Words.size() && Words[K] == "FORMAT")
      ++K;
    if (K < Words.size() && Words[K] == "IS")
      ++K;
    SourceFormat NewFormat;
    if (K < Words.size() && parseSourceFormat(Words[K], NewFormat) &&
        NewFormat != SourceFormat::Auto)
      Format = NewFormat;
    else
      Diags.report(diag::err_bad_source_format,
                   locAt(K < Words.size() ? At[K] : F),
                   {K < Words.size() ? Words[K] : std::string()});
    return;
  }
  // Directives that change nothing the reader delivers.
  static const char *const Ignored[] = {"PAGE", "LISTING", "TURN",
                                        "CALL-CONVENTION", "FLAG-85",
                                        "FLAG-02", "FEATURE"};
  for (const char *Name : Ignored)
    if (Words[0] == Name)
      return;
  Diags.report(diag::warn_unknown_directive, locAt(F), {">>" + Words[0]});
}

bool Lexer::nextLine() {
  while (NextLine < File.LineStarts.size()) {
    LineInfo I = classify(NextLine++);
    switch (I.Kind) {
    case LineKind::Skip:
      continue;
    case LineKind::Directive:
      if (Format == SourceFormat::Free) {
        uint32_t F = firstNonBlank(I.Begin, I.End);
        // >>D starts a debugging line in free format.
        if (Text.compare(F, 3, ">>D") == 0 &&
            (F + 3 >= I.End || isSpace(Text[F + 3]))) {
          if (!State.DebuggingMode)
            continue;
          I.Begin = F + 3;
          break;
        }
      }
      handleDirective(I);
      continue;
    case LineKind::Card:
      handleCard(I);
      continue;
    case LineKind::Text:
    case LineKind::Continuation:
      if (I.Indicator != ' ' && I.Indicator != '-' && I.Indicator != 'D' &&
          I.Indicator != 'd' && Format != SourceFormat::Free)
        Diags.report(diag::err_bad_indicator, locAt(I.Begin - 1),
                     {std::string(1, I.Indicator)});
      break;
    }
    if (!SeenText) {
      // An IBM CBL or PROCESS card before the program.
      uint32_t LB, LE;
      lineBounds(NextLine - 1, LB, LE);
      uint32_t F = firstNonBlank(LB, LE);
      for (const char *Card : {"CBL", "PROCESS"}) {
        size_t N = std::char_traits<char>::length(Card);
        if (upper(Text.substr(F, N)) == Card &&
            (F + N >= LE || isSpace(Text[F + N]))) {
          Diags.report(diag::warn_card_skipped, locAt(F), {Card});
          I.Kind = LineKind::Skip;
        }
      }
      if (I.Kind == LineKind::Skip)
        continue;
    }
    Cur = I;
    Pos = I.Begin;
    HaveLine = true;
    // A '-' line goes on from the last character of the line before.
    AtLineStart = I.Kind != LineKind::Continuation;
    ContinuedLine = I.Kind == LineKind::Continuation;
    return true;
  }
  return false;
}

void Lexer::setKeyword(Token &T) {
  if (T.Kind != tok::Word)
    return;
  T.Keyword = tok::getKeyword(upper(T.Text));
}

bool Lexer::lex(Token &T) {
  if (CommentEntryState == 2) {
    CommentEntryState = 0;
    if (lexCommentEntry(T))
      return true;
  }
  if (!lexRaw(T))
    return false;
  switch (T.Keyword) {
  case tok::kw_IDENTIFICATION:
  case tok::kw_ID:
    InIdDivision = true;
    break;
  case tok::kw_ENVIRONMENT:
  case tok::kw_DATA:
  case tok::kw_PROCEDURE:
    InIdDivision = false;
    break;
  case tok::kw_AUTHOR:
  case tok::kw_INSTALLATION:
  case tok::kw_DATE_WRITTEN:
  case tok::kw_DATE_COMPILED:
  case tok::kw_SECURITY:
  case tok::kw_REMARKS:
    if (InIdDivision && T.hasFlag(Token::LeadingSpace))
      CommentEntryState = 1;
    break;
  default:
    if (CommentEntryState == 1 && T.Kind == tok::Period)
      CommentEntryState = 2;
    else
      CommentEntryState = 0;
    break;
  }
  if (!InExec && (T.Keyword == tok::kw_EXEC || T.Keyword == tok::kw_EXECUTE))
    lexExec(T);
  // DECIMAL-POINT IS COMMA holds from here on, for every file read later.
  if (T.Keyword == tok::kw_COMMA &&
      (Prev1 == tok::kw_DECIMAL_POINT ||
       (Prev1 == tok::kw_IS && Prev2 == tok::kw_DECIMAL_POINT)))
    DecimalComma = true;
  // WITH DEBUGGING MODE makes debugging lines program text from here on.
  if (Prev1 == tok::kw_DEBUGGING && T.Keyword == tok::kw_MODE)
    State.DebuggingMode = true;
  Prev2 = Prev1;
  Prev1 = T.Keyword;
  return true;
}

bool Lexer::lexCommentEntry(Token &T) {
  // The entry runs from after the paragraph's period to the next line with
  // text in area A (fixed and variable format) or, in free format, to the
  // next line that starts with a paragraph or division name. It is one
  // token, its lines joined by one space.
  auto EndsEntry = [&](const LineInfo &I) {
    uint32_t F = firstNonBlank(I.Begin, I.End);
    if (Format != SourceFormat::Free)
      return charsBetween(I.AreaBegin, F) < 4;
    uint32_t W = F;
    while (W < I.End && (isWordChar(Text[W])))
      ++W;
    tok::Keyword K = tok::getKeyword(upper(Text.substr(F, W - F)));
    switch (K) {
    case tok::kw_AUTHOR: case tok::kw_INSTALLATION: case tok::kw_DATE_WRITTEN:
    case tok::kw_DATE_COMPILED: case tok::kw_SECURITY: case tok::kw_REMARKS:
    case tok::kw_ENVIRONMENT: case tok::kw_DATA: case tok::kw_PROCEDURE:
    case tok::kw_IDENTIFICATION: case tok::kw_ID:
      return true;
    default:
      return upper(Text.substr(F, W - F)) == "END";
    }
  };
  bool Any = false;
  auto Add = [&](uint32_t B, uint32_t E) {
    B = firstNonBlank(B, E);
    while (E > B && isSpace(Text[E - 1]))
      --E;
    if (B == E)
      return;
    if (!Any) {
      T = Token();
      T.Kind = tok::CommentEntry;
      T.Loc = T.LayoutLoc = locAt(B);
      T.Flags = Token::LeadingSpace;
    } else {
      T.Text += ' ';
    }
    Any = true;
    T.Text += Text.substr(B, E - B);
    T.EndLoc = locAt(E - 1);
  };
  if (HaveLine)
    Add(Pos, Cur.End);
  HaveLine = false;
  while (NextLine < File.LineStarts.size()) {
    LineInfo I = classify(NextLine);
    if (I.Kind == LineKind::Skip) {
      ++NextLine;
      continue;
    }
    if (I.Kind != LineKind::Text && I.Kind != LineKind::Continuation)
      break;
    if (EndsEntry(I))
      break;
    ++NextLine;
    Add(I.Begin, I.End);
  }
  return Any;
}

void Lexer::lexExec(Token &T) {
  // The block is one token; its text keeps every character but folds runs
  // of white space (line breaks included) to one space.
  InExec = true;
  Token Sub;
  bool Closed = false;
  while (lexRaw(Sub)) {
    if (Sub.hasFlag(Token::LeadingSpace))
      T.Text += ' ';
    T.Text += Sub.Text;
    T.EndLoc = Sub.EndLoc;
    if (Sub.Keyword == tok::kw_END_EXEC) {
      Closed = true;
      break;
    }
  }
  InExec = false;
  T.Kind = tok::ExecBlock;
  T.Keyword = tok::NotKeyword;
  if (!Closed)
    Diags.report(diag::err_unterminated_exec, T.Loc);
}

bool Lexer::lexRaw(Token &T) {
  T = Token();
  for (;;) {
    if (!HaveLine) {
      if (!nextLine())
        return false;
    }
    uint32_t P = firstNonBlank(Pos, Cur.End);
    bool Space = AtLineStart || (P != Pos && !(ContinuedLine && Pos == Cur.Begin));
    Pos = P;
    if (Pos >= Cur.End) {
      HaveLine = false;
      continue;
    }
    if (Text.compare(Pos, 2, "*>") == 0) {
      HaveLine = false; // A comment to the end of the line.
      continue;
    }
    AtLineStart = false;
    ContinuedLine = false;
    SeenText = true;
    if (Space)
      T.Flags |= Token::LeadingSpace;
    break;
  }
  uint32_t B = Pos;
  T.Loc = T.LayoutLoc = locAt(B);
  char C = Text[B];
  char N = B + 1 < Cur.End ? Text[B + 1] : '\0';
  char N2 = B + 2 < Cur.End ? Text[B + 2] : '\0';
  char DP = DecimalComma ? ',' : '.';
  auto Single = [&](tok::Kind K, uint32_t Len) {
    T.Kind = K;
    T.Text = Text.substr(B, Len);
    Pos = B + Len;
  };

  // Literals with a prefix: X"..", N"..", NX"..", B"..", BX"..", Z"..", G"..".
  if (isAlpha(C)) {
    uint32_t L = 0;
    while (L < 2 && B + L < Cur.End && isAlpha(Text[B + L]))
      ++L;
    if (B + L < Cur.End && (Text[B + L] == '"' || Text[B + L] == '\'')) {
      std::string Prefix = upper(Text.substr(B, L));
      if (Prefix == "X" || Prefix == "N" || Prefix == "NX" || Prefix == "B" ||
          Prefix == "BX" || Prefix == "Z" || Prefix == "G" || Prefix == "U") {
        Pos = B + L;
        lexLiteral(T, B);
        T.Kind = Prefix == "X"                     ? tok::HexLiteral
                 : Prefix == "N" || Prefix == "G"  ? tok::NationalLiteral
                 : Prefix == "U"                   ? tok::NationalLiteral
                 : Prefix == "NX"                  ? tok::NationalHexLiteral
                 : Prefix == "Z"                   ? tok::NullTerminatedLiteral
                                                   : tok::BooleanLiteral;
        return true;
      }
    }
  }
  if (C == '"' || C == '\'') {
    lexLiteral(T, B);
    T.Kind = tok::AlphanumericLiteral;
    return true;
  }
  if (isWordChar(C)) {
    lexWordOrNumber(T);
    setKeyword(T);
    return true;
  }
  // A sign or a decimal point opening a numeric literal: only where a
  // literal may start (after a space or a parenthesis).
  char Before = B > Cur.Begin ? Text[B - 1] : ' ';
  bool CanStart = T.hasFlag(Token::LeadingSpace) ||
                  !(isWordChar(Before) || Before == ')' || Before == '"' ||
                    Before == '\'');
  if (CanStart && (C == '+' || C == '-') &&
      (isDigit(N) || (N == DP && isDigit(N2)) ||
       firstNonBlank(B + 1, Cur.End) == Cur.End)) {
    lexWordOrNumber(T);
    return true;
  }
  if (CanStart && C == DP && isDigit(N)) {
    lexWordOrNumber(T);
    return true;
  }
  switch (C) {
  case '=':
    if (N == '=')
      Single(tok::PseudoTextDelimiter, 2);
    else
      Single(tok::Equal, 1);
    break;
  case '.': Single(tok::Period, 1); break;
  case ',': Single(tok::Comma, 1); break;
  case ';': Single(tok::Semicolon, 1); break;
  case '(': Single(tok::LParen, 1); break;
  case ')': Single(tok::RParen, 1); break;
  case ':': Single(tok::Colon, 1); break;
  case '&': Single(tok::Ampersand, 1); break;
  case '+': Single(tok::Plus, 1); break;
  case '-': Single(tok::Minus, 1); break;
  case '/': Single(tok::Slash, 1); break;
  case '*':
    if (N == '*')
      Single(tok::Power, 2);
    else
      Single(tok::Star, 1);
    break;
  case '<':
    if (N == '=')
      Single(tok::LessEqual, 2);
    else if (N == '>')
      Single(tok::NotEqual, 2);
    else
      Single(tok::Less, 1);
    break;
  case '>':
    if (N == '=')
      Single(tok::GreaterEqual, 2);
    else
      Single(tok::Greater, 1);
    break;
  default: {
    // One character the language does not know (reported later unless it
    // ends up inside a picture character-string).
    uint32_t L = 1;
    while (B + L < Cur.End && isContinuationByte(Text[B + L]))
      ++L;
    Single(tok::Unknown, L);
    break;
  }
  }
  T.EndLoc = locAt(Pos - 1);
  return true;
}

char Lexer::wordChar() {
  if (Pos < Cur.End && !isSpace(Text[Pos]))
    return Text[Pos];
  // A word or number ending the line goes on at the first character of a
  // following '-' line, unless that is a quote.
  if (firstNonBlank(Pos, Cur.End) != Cur.End)
    return '\0';
  uint32_t ContLine;
  LineInfo Next;
  if (!peekContinuation(ContLine, Next))
    return '\0';
  uint32_t F = firstNonBlank(Next.Begin, Next.End);
  if (F >= Next.End || Text[F] == '"' || Text[F] == '\'')
    return '\0';
  if (charsBetween(Next.AreaBegin, F) + 8 < AreaBColumn)
    Diags.report(diag::warn_continuation_area_a, locAt(F));
  NextLine = ContLine + 1;
  Cur = Next;
  Pos = F;
  return Text[Pos];
}

void Lexer::lexWordOrNumber(Token &T) {
  char DP = DecimalComma ? ',' : '.';
  auto Take = [&] {
    T.EndLoc = locAt(Pos);
    T.Text += Text[Pos++];
  };
  bool Signed = Text[Pos] == '+' || Text[Pos] == '-';
  if (Signed)
    Take();
  bool AllDigits = true;
  for (char C; (C = wordChar()) && isWordChar(C);) {
    AllDigits &= isDigit(C);
    Take();
  }
  // A decimal point followed by a digit goes on with the number; a
  // floating-point literal has a mantissa with a point, E and an exponent.
  T.Kind = AllDigits ? tok::NumericLiteral : tok::Word;
  if (AllDigits && wordChar() == DP) {
    LineInfo SavedLine = Cur;
    uint32_t SavedPos = Pos, SavedNext = NextLine;
    ++Pos;
    if (isDigit(wordChar())) {
      T.Text += DP;
      T.Flags |= Token::Decimal;
      for (char C; (C = wordChar()) && isDigit(C);)
        Take();
      if (wordChar() == 'E' || wordChar() == 'e') {
        LineInfo L2 = Cur;
        uint32_t P2 = Pos, N2 = NextLine;
        std::string Exp(1, Text[Pos++]);
        char C = wordChar();
        if (C == '+' || C == '-') {
          Exp += C;
          ++Pos;
        }
        if (isDigit(wordChar())) {
          T.Text += Exp;
          for (char D; (D = wordChar()) && isDigit(D);)
            Take();
          T.Kind = tok::FloatLiteral;
        } else {
          Cur = L2, Pos = P2, NextLine = N2;
        }
      }
    } else {
      Cur = SavedLine, Pos = SavedPos, NextLine = SavedNext;
    }
  }
  if (T.Text.size() == 1 && Signed)
    T.Kind = T.Text[0] == '+' ? tok::Plus : tok::Minus;
  else if (Signed && T.Kind != tok::Word)
    T.Flags |= Token::Signed;
}

void Lexer::lexLiteral(Token &T, uint32_t Start) {
  char Q = Text[Pos];
  T.Text = Text.substr(Start, Pos + 1 - Start);
  ++Pos;
  for (;;) {
    uint32_t P = Pos;
    while (P < Cur.End && Text[P] != Q)
      ++P;
    if (P < Cur.End) {
      if (P + 1 < Cur.End && Text[P + 1] == Q) { // A doubled quote.
        T.Text += Text.substr(Pos, P + 2 - Pos);
        Pos = P + 2;
        continue;
      }
      T.Text += Text.substr(Pos, P + 1 - Pos);
      Pos = P + 1;
      T.EndLoc = locAt(P);
      // Free format: "ABC"- at the end of a line goes on after the opening
      // quote of the next line with text.
      if (Format == SourceFormat::Free && Pos < Cur.End && Text[Pos] == '-' &&
          firstNonBlank(Pos + 1, Cur.End) == Cur.End) {
        uint32_t L = NextLine;
        LineInfo Next;
        while (L < File.LineStarts.size() &&
               (Next = classify(L)).Kind == LineKind::Skip)
          ++L;
        uint32_t F = L < File.LineStarts.size()
                         ? firstNonBlank(Next.Begin, Next.End)
                         : 0;
        if (L < File.LineStarts.size() && Next.Kind == LineKind::Text &&
            F < Next.End && Text[F] == Q) {
          T.Text.pop_back(); // The closing quote: the literal goes on.
          NextLine = L + 1;
          Cur = Next;
          Pos = F + 1;
          continue;
        }
      }
      // A quote in the last column of a full line, and a continuation line
      // going on with two quotes: a doubled quote split over the lines.
      uint32_t ContLine;
      LineInfo Next;
      if (Pos == Cur.End && Cur.Width &&
          charsBetween(Cur.Begin, Cur.End) == Cur.Width &&
          peekContinuation(ContLine, Next)) {
        uint32_t F = firstNonBlank(Next.Begin, Next.End);
        if (F + 1 < Next.End && Text[F] == Q && Text[F + 1] == Q) {
          NextLine = ContLine + 1;
          Cur = Next;
          T.Text += Q;
          Pos = F + 2;
          continue;
        }
      }
      return;
    }
    // The line ends inside the literal: it runs to the end of the area and
    // goes on after the quote of a continuation line.
    T.Text += Text.substr(Pos, Cur.End - Pos);
    uint32_t ContLine;
    LineInfo Next;
    if (peekContinuation(ContLine, Next)) {
      uint32_t Pad = 0;
      if (Cur.Width) {
        uint32_t Used = charsBetween(Cur.Begin, Cur.End);
        Pad = Used < Cur.Width ? Cur.Width - Used : 0;
      }
      uint32_t F = firstNonBlank(Next.Begin, Next.End);
      uint32_t PrevEnd = Cur.End;
      NextLine = ContLine + 1;
      Cur = Next;
      if (F < Next.End && Text[F] == Q) {
        if (charsBetween(Next.AreaBegin, F) + 8 < AreaBColumn)
          Diags.report(diag::warn_continuation_area_a, locAt(F));
        T.Text.append(Pad, ' ');
        Pos = F + 1;
        continue;
      }
      // Not a continued literal after all: close it here; the line is read
      // as text of its own.
      AtLineStart = true;
      Diags.report(diag::err_continuation_quote, locAt(F < Next.End ? F : Next.Begin));
      T.EndLoc = locAt(PrevEnd > 0 ? PrevEnd - 1 : 0);
      Pos = F;
      return;
    }
    Diags.report(diag::err_unterminated_literal, locAt(Start));
    Pos = Cur.End;
    T.EndLoc = locAt(Pos > 0 ? Pos - 1 : 0);
    return;
  }
}
