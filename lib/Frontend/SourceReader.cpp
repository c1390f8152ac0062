//===- lib/Frontend/SourceReader.cpp - COBOL source reader ----------------===//
//
// Reading runs in four steps:
//   1. expand: each file is lexed, its COPY statements parsed and replaced
//      by the member's text (read the same way, recursively), and the
//      member's COPY ... REPLACING applied to that text;
//   2. REPLACE statements are taken out of the text and applied;
//   3. picture character-strings and level numbers are recognised;
//   4. layout: the expanded source is written and every token gets its line
//      and column there.
//
//===----------------------------------------------------------------------===//

#include "korvid/Frontend/SourceReader.h"

#include "Lexer.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <deque>
#include <set>
#include <sys/stat.h>

using namespace korvid;

bool korvid::parseSourceFormat(const std::string &Name, SourceFormat &Out) {
  std::string U = Name;
  std::transform(U.begin(), U.end(), U.begin(), ::toupper);
  if (U == "FIXED")
    Out = SourceFormat::Fixed;
  else if (U == "FREE")
    Out = SourceFormat::Free;
  else if (U == "VARIABLE")
    Out = SourceFormat::Variable;
  else if (U == "AUTO")
    Out = SourceFormat::Auto;
  else
    return false;
  return true;
}

namespace {

std::string toUpper(std::string S) {
  for (char &C : S)
    if (C >= 'a' && C <= 'z')
      C -= 'a' - 'A';
  return S;
}
std::string toLower(std::string S) {
  for (char &C : S)
    if (C >= 'A' && C <= 'Z')
      C += 'a' - 'A';
  return S;
}

std::string dirOf(const std::string &Path) {
  size_t P = Path.rfind('/');
  if (P == std::string::npos)
    return "";
  return P == 0 ? "/" : Path.substr(0, P);
}

std::string join(const std::string &Dir, const std::string &Name) {
  if (Dir.empty() || (!Name.empty() && Name[0] == '/'))
    return Name;
  if (Dir.back() == '/')
    return Dir + Name;
  return Dir + "/" + Name;
}

bool isRegularFile(const std::string &Path) {
  struct stat St;
  return ::stat(Path.c_str(), &St) == 0 && S_ISREG(St.st_mode);
}

std::string canonical(const std::string &Path) {
  char Buf[PATH_MAX];
  if (::realpath(Path.c_str(), Buf))
    return Buf;
  return Path;
}

/// The value of a name given as a literal: the characters between quotes.
std::string nameOf(const Token &T) {
  if (T.Kind == tok::AlphanumericLiteral && T.Text.size() >= 2)
    return T.Text.substr(1, T.Text.size() - 2);
  return T.Text;
}

bool isSeparator(const Token &T) {
  return T.Kind == tok::Comma || T.Kind == tok::Semicolon;
}

/// Two text-words are equal when their characters are, letters of words
/// compared without case.
bool sameTextWord(const Token &A, const Token &B) {
  if (A.Kind != B.Kind || A.Text.size() != B.Text.size())
    return false;
  if (A.Kind != tok::Word)
    return A.Text == B.Text;
  for (size_t I = 0; I < A.Text.size(); ++I) {
    char X = A.Text[I], Y = B.Text[I];
    if (X >= 'a' && X <= 'z')
      X -= 'a' - 'A';
    if (Y >= 'a' && Y <= 'z')
      Y -= 'a' - 'A';
    if (X != Y)
      return false;
  }
  return true;
}

/// One REPLACING or REPLACE rule.
struct Rule {
  enum Mode { Full, Leading, Trailing } How = Full;
  std::vector<Token> From; ///< Text-words to match (separators left out).
  std::vector<Token> To;   ///< Replacing text as written.
};

/// Reads tokens from a lexer or from a list, with lookahead.
class Cursor {
public:
  explicit Cursor(Lexer &L) : L(&L) {}
  Cursor(const std::vector<Token> &V, size_t Pos) : V(&V), VPos(Pos) {}

  const Token *peek(size_t K = 0) {
    if (V)
      return VPos + K < V->size() ? &(*V)[VPos + K] : nullptr;
    while (Pending.size() <= K) {
      Token T;
      if (!L->lex(T))
        return nullptr;
      Pending.push_back(std::move(T));
    }
    return &Pending[K];
  }
  Token take() {
    if (V)
      return (*V)[VPos++];
    peek();
    Token T = std::move(Pending.front());
    Pending.pop_front();
    return T;
  }
  bool atKeyword(tok::Keyword K, size_t Ahead = 0) {
    const Token *T = peek(Ahead);
    return T && T->Keyword == K;
  }
  bool at(tok::Kind K, size_t Ahead = 0) {
    const Token *T = peek(Ahead);
    return T && T->Kind == K;
  }
  size_t position() const { return VPos; }

private:
  Lexer *L = nullptr;
  const std::vector<Token> *V = nullptr;
  size_t VPos = 0;
  std::deque<Token> Pending;
};

struct CopyStatement {
  SourceLocation Loc;
  std::string Member, Library;
  bool LibraryIsLiteral = false;
  std::vector<Rule> Rules;
};

} // namespace

struct SourceReader::Impl {
  SourceReader &R;
  SourceManager &SM;
  DiagnosticsEngine &Diags;
  const ReaderOptions &Opts;
  ProgramState State;
  std::vector<std::string> Active; ///< Canonical paths being expanded.
  std::vector<std::string> SearchDirs;

  explicit Impl(SourceReader &R)
      : R(R), SM(*R.SM), Diags(R.Diags), Opts(R.Opts) {
    State.DebuggingMode = Opts.DebuggingMode;
    SearchDirs = Opts.IncludeDirs;
    if (Opts.UseCOBCPY)
      if (const char *Env = std::getenv("COBCPY")) {
        std::string S = Env;
        size_t B = 0;
        while (B <= S.size()) {
          size_t E = S.find(':', B);
          if (E == std::string::npos)
            E = S.size();
          if (E > B)
            SearchDirs.push_back(S.substr(B, E - B));
          B = E + 1;
        }
      }
  }

  // --- Statement parsing --------------------------------------------------
  void skipToPeriod(Cursor &C) {
    while (const Token *T = C.peek()) {
      bool Done = T->Kind == tok::Period;
      C.take();
      if (Done)
        return;
    }
  }

  bool parseOperand(Cursor &C, const char *What, SourceLocation StmtLoc,
                    std::vector<Token> &Op) {
    const Token *T = C.peek();
    if (!T) {
      Diags.report(diag::err_expected_operand, StmtLoc, {What});
      return false;
    }
    if (T->Kind == tok::PseudoTextDelimiter) {
      Token Open = C.take();
      while (true) {
        const Token *U = C.peek();
        if (!U) {
          Diags.report(diag::err_unterminated_pseudo_text, Open.Loc);
          return false;
        }
        if (U->Kind == tok::PseudoTextDelimiter) {
          C.take();
          return true;
        }
        Op.push_back(C.take());
      }
    }
    if (T->isLiteral()) {
      Op.push_back(C.take());
      return true;
    }
    if (T->Kind == tok::Word && T->Keyword != tok::kw_BY) {
      // An identifier: qualified, subscripted.
      Op.push_back(C.take());
      while ((C.atKeyword(tok::kw_OF) || C.atKeyword(tok::kw_IN)) &&
             C.at(tok::Word, 1)) {
        Op.push_back(C.take());
        Op.push_back(C.take());
      }
      if (C.at(tok::LParen)) {
        int Depth = 0;
        while (const Token *U = C.peek()) {
          if (U->Kind == tok::Period)
            break;
          Depth += U->Kind == tok::LParen;
          Depth -= U->Kind == tok::RParen;
          Op.push_back(C.take());
          if (Depth == 0)
            break;
        }
      }
      return true;
    }
    Diags.report(diag::err_expected_operand, T->Loc, {What});
    return false;
  }

  /// Reads "op BY op" pairs up to the period (not taken). False on a
  /// syntax error (reported).
  bool parseRules(Cursor &C, const char *What, SourceLocation StmtLoc,
                  std::vector<Rule> &Rules) {
    while (const Token *T = C.peek()) {
      if (T->Kind == tok::Period)
        break;
      Rule Ru;
      if ((T->Keyword == tok::kw_LEADING || T->Keyword == tok::kw_TRAILING) &&
          !C.atKeyword(tok::kw_BY, 1)) {
        Ru.How = T->Keyword == tok::kw_LEADING ? Rule::Leading : Rule::Trailing;
        C.take();
      }
      SourceLocation OpLoc = C.peek() ? C.peek()->Loc : StmtLoc;
      if (!parseOperand(C, What, StmtLoc, Ru.From))
        return false;
      if (!C.atKeyword(tok::kw_BY)) {
        Diags.report(diag::err_expected_by,
                     C.peek() ? C.peek()->Loc : StmtLoc, {What});
        return false;
      }
      C.take();
      if (!parseOperand(C, What, StmtLoc, Ru.To))
        return false;
      Ru.From.erase(std::remove_if(Ru.From.begin(), Ru.From.end(), isSeparator),
                    Ru.From.end());
      if (Ru.How != Rule::Full) {
        // A partial word may read as several text-words ("-IN" is a minus
        // and a word): written together, it is one.
        joinAdjacent(Ru.From);
        joinAdjacent(Ru.To);
      }
      if (Ru.From.empty()) {
        Diags.report(diag::err_expected_operand, OpLoc, {What});
        continue;
      }
      if (Ru.How != Rule::Full &&
          (Ru.From.size() != 1 || Ru.From[0].Kind != tok::Word ||
           Ru.To.size() > 1)) {
        Diags.report(diag::err_partial_operand, OpLoc,
                     {Ru.How == Rule::Leading ? "LEADING" : "TRAILING"});
        continue;
      }
      Rules.push_back(std::move(Ru));
    }
    return true;
  }

  static void joinAdjacent(std::vector<Token> &Op) {
    if (Op.size() < 2)
      return;
    for (size_t I = 1; I < Op.size(); ++I)
      if (Op[I].hasFlag(Token::LeadingSpace))
        return;
    for (size_t I = 1; I < Op.size(); ++I) {
      Op[0].Text += Op[I].Text;
      Op[0].EndLoc = Op[I].EndLoc;
    }
    Op[0].Kind = tok::Word;
    Op.resize(1);
  }

  bool expectPeriod(Cursor &C, const char *What, SourceLocation StmtLoc) {
    if (C.at(tok::Period)) {
      C.take();
      return true;
    }
    Diags.report(diag::err_missing_period, StmtLoc, {What});
    return false;
  }

  /// COPY name [OF|IN library] [SUPPRESS [PRINTING]] [REPLACING ...] .
  bool parseCopy(Cursor &C, const Token &Copy, CopyStatement &S) {
    S.Loc = Copy.Loc;
    const Token *T = C.peek();
    if (!T || (T->Kind != tok::Word && T->Kind != tok::AlphanumericLiteral)) {
      Diags.report(diag::err_copy_missing_name, Copy.Loc);
      skipToPeriod(C);
      return false;
    }
    S.Member = nameOf(C.take());
    if (C.atKeyword(tok::kw_OF) || C.atKeyword(tok::kw_IN)) {
      Token Of = C.take();
      const Token *L = C.peek();
      if (L && (L->Kind == tok::Word || L->Kind == tok::AlphanumericLiteral)) {
        S.LibraryIsLiteral = L->Kind == tok::AlphanumericLiteral;
        S.Library = nameOf(C.take());
      } else {
        Diags.report(diag::err_copy_missing_library, Of.Loc,
                     {toUpper(Of.Text)});
      }
    }
    if (C.atKeyword(tok::kw_SUPPRESS)) {
      C.take();
      if (C.atKeyword(tok::kw_PRINTING))
        C.take();
    }
    if (C.atKeyword(tok::kw_REPLACING)) {
      C.take();
      if (!parseRules(C, "COPY", Copy.Loc, S.Rules)) {
        skipToPeriod(C);
        return true;
      }
    }
    expectPeriod(C, "COPY", Copy.Loc);
    return true;
  }

  // --- COPY ---------------------------------------------------------------
  std::string resolve(const CopyStatement &S, const std::string &FromDir,
                      std::vector<std::string> &Tried) {
    std::vector<std::string> Dirs{FromDir};
    Dirs.insert(Dirs.end(), SearchDirs.begin(), SearchDirs.end());
    std::vector<std::string> Names{S.Member};
    for (std::string N : {toUpper(S.Member), toLower(S.Member)})
      if (std::find(Names.begin(), Names.end(), N) == Names.end())
        Names.push_back(N);
    std::set<std::string> Seen;
    for (const std::string &D : Dirs) {
      std::string Base = S.Library.empty() ? D : join(D, S.Library);
      for (const std::string &N : Names) {
        for (size_t E = 0; E <= Opts.CopyExtensions.size(); ++E) {
          std::string P = join(Base, E ? N + Opts.CopyExtensions[E - 1] : N);
          if (!Seen.insert(P).second)
            continue;
          Tried.push_back(P);
          if (isRegularFile(P))
            return P;
        }
      }
      if (!S.Library.empty() && S.Library[0] == '/')
        break; // An absolute library is one place only.
    }
    return "";
  }

  /// Copies member S into Out; false if it was not copied.
  bool include(const CopyStatement &S, FileID From, std::vector<Token> &Out) {
    CopyRecord Rec;
    Rec.Member = S.Member;
    Rec.Library = S.Library;
    Rec.FromFile = SM.getContent(From).Path;
    Rec.Line = SM.getPresumedLoc(S.Loc).Line;
    Rec.CopyLoc = S.Loc;
    std::string Path = resolve(S, dirOf(Rec.FromFile), Rec.Tried);
    if (Path.empty()) {
      Diags.report(diag::err_copy_not_found, S.Loc, {S.Member});
      std::string List;
      size_t Shown = std::min<size_t>(Rec.Tried.size(), 3);
      for (size_t I = 0; I < Shown; ++I)
        List += (I ? ", " : "") + Rec.Tried[I];
      if (Rec.Tried.size() > Shown)
        List += " and " + std::to_string(Rec.Tried.size() - Shown) +
                " other paths";
      Diags.report(diag::note_copy_tried, S.Loc, {List});
      R.Missing.push_back(std::move(Rec));
      return false;
    }
    std::string Canon = canonical(Path);
    if (std::find(Active.begin(), Active.end(), Canon) != Active.end()) {
      Diags.report(diag::err_copy_cycle, S.Loc, {S.Member});
      return false;
    }
    std::string Error;
    const FileContent *Content = SM.getFile(Path, Error);
    if (!Content) {
      reportUnreadable(Path, Error, S.Loc);
      return false;
    }
    Rec.Path = Path;
    Rec.Tried.clear();
    R.Found.push_back(std::move(Rec));
    FileID Child = SM.createEntry(Content, S.Loc, S.Member);
    Active.push_back(Canon);
    if (S.Rules.empty()) {
      expand(Child, Out);
    } else {
      std::vector<Token> Local;
      expand(Child, Local);
      applyRules(Local, S.Rules, Out);
    }
    Active.pop_back();
    return true;
  }

  void reportUnreadable(const std::string &Path, const std::string &Error,
                        SourceLocation At) {
    if (Error == "binary") {
      Diags.report(diag::err_file_binary, At, {Path}).FileName = Path;
    } else if (Error.compare(0, 9, "encoding:") == 0) {
      Diags
          .report(diag::err_encoding, At,
                  {Path, SM.getEncoding().empty() ? "Latin-1" : SM.getEncoding(),
                   Error.substr(9)})
          .FileName = Path;
    } else {
      Diags.report(diag::err_file_unreadable, At, {Path, Error}).FileName =
          Path;
    }
  }

  /// "EXEC SQL INCLUDE name END-EXEC": the member's name.
  static bool isSqlInclude(const Token &T, std::string &Name) {
    std::vector<std::string> Words;
    size_t B = 0;
    const std::string &S = T.Text;
    while (B < S.size()) {
      size_t E = S.find(' ', B);
      if (E == std::string::npos)
        E = S.size();
      Words.push_back(S.substr(B, E - B));
      B = E + 1;
    }
    if (Words.size() != 5 || toUpper(Words[1]) != "SQL" ||
        toUpper(Words[2]) != "INCLUDE" || toUpper(Words[4]) != "END-EXEC")
      return false;
    Name = Words[3];
    if (Name.size() >= 2 && (Name[0] == '\'' || Name[0] == '"'))
      Name = Name.substr(1, Name.size() - 2);
    return !Name.empty();
  }

  void expand(FileID F, std::vector<Token> &Out) {
    Lexer L(SM, F, Opts, Diags, State);
    // About one token for every 6 bytes of COBOL. (Only into an empty list:
    // reserving more at every member would defeat the list's growth.)
    if (Out.empty())
      Out.reserve(SM.getContent(F).Text.size() / 6);
    Cursor C(L);
    while (const Token *T = C.peek()) {
      if (T->Keyword == tok::kw_COPY) {
        Token Copy = C.take();
        CopyStatement S;
        if (parseCopy(C, Copy, S))
          include(S, F, Out);
        continue;
      }
      std::string Member;
      if (T->Kind == tok::ExecBlock && isSqlInclude(*T, Member)) {
        Token Exec = C.take();
        CopyStatement S;
        S.Loc = Exec.Loc;
        S.Member = Member;
        if (include(S, F, Out)) {
          if (C.at(tok::Period))
            C.take(); // The member stands for the whole sentence.
        } else {
          Out.push_back(std::move(Exec));
        }
        continue;
      }
      Out.push_back(C.take());
    }
  }

  // --- REPLACING and REPLACE ------------------------------------------------
  /// Whether \p Ru matches In at \p I; End is one past the text matched.
  static bool matches(const std::vector<Token> &In, size_t I, const Rule &Ru,
                      size_t &End) {
    if (Ru.How != Rule::Full) {
      const Token &T = In[I];
      const std::string &P = Ru.From[0].Text;
      if (T.Kind != tok::Word || T.Text.size() < P.size())
        return false;
      Token Probe;
      Probe.Kind = tok::Word;
      Probe.Text = Ru.How == Rule::Leading
                       ? T.Text.substr(0, P.size())
                       : T.Text.substr(T.Text.size() - P.size());
      End = I + 1;
      return sameTextWord(Probe, Ru.From[0]);
    }
    size_t J = I;
    for (size_t K = 0; K < Ru.From.size(); ++K, ++J) {
      while (K && J < In.size() && isSeparator(In[J]))
        ++J;
      if (J >= In.size() || !sameTextWord(In[J], Ru.From[K]))
        return false;
    }
    End = J;
    return true;
  }

  static void emit(const std::vector<Token> &In, size_t I, const Rule &Ru,
                   std::vector<Token> &Out) {
    const Token &First = In[I];
    if (Ru.How != Rule::Full) {
      // The word keeps where it was written; its changed part is replaced.
      Token T = First;
      size_t N = Ru.From[0].Text.size();
      std::string Repl = Ru.To.empty() ? std::string() : Ru.To[0].Text;
      T.Text = Ru.How == Rule::Leading
                   ? Repl + T.Text.substr(N)
                   : T.Text.substr(0, T.Text.size() - N) + Repl;
      T.Flags |= Token::Replaced;
      T.Keyword = tok::getKeyword(toUpper(T.Text));
      if (!T.Text.empty())
        Out.push_back(std::move(T));
      return;
    }
    for (size_t K = 0; K < Ru.To.size(); ++K) {
      Token T = Ru.To[K];
      T.LayoutLoc = First.LayoutLoc;
      T.Flags |= Token::Replaced;
      if (K == 0)
        T.Flags = (T.Flags & ~Token::LeadingSpace) |
                  (First.Flags & Token::LeadingSpace);
      Out.push_back(std::move(T));
    }
  }

  /// Applies \p Rules to In: at each text-word the first rule that matches
  /// replaces the text it matched, and matching goes on after it (replacing
  /// text is never matched again).
  static void applyRules(const std::vector<Token> &In,
                         const std::vector<Rule> &Rules,
                         std::vector<Token> &Out) {
    for (size_t I = 0; I < In.size();) {
      size_t End = 0;
      const Rule *Hit = nullptr;
      if (!isSeparator(In[I]))
        for (const Rule &Ru : Rules)
          if (matches(In, I, Ru, End)) {
            Hit = &Ru;
            break;
          }
      if (!Hit) {
        Out.push_back(In[I++]);
        continue;
      }
      emit(In, I, *Hit, Out);
      I = End;
    }
  }

  /// REPLACE [ALSO] op BY op ... . | REPLACE [LAST] OFF .
  void parseReplace(Cursor &C, const Token &Replace,
                    std::vector<std::vector<Rule>> &Levels) {
    bool Also = false;
    if (C.atKeyword(tok::kw_ALSO)) {
      C.take();
      Also = true;
    }
    if (C.atKeyword(tok::kw_LAST) && C.atKeyword(tok::kw_OFF, 1)) {
      C.take();
      C.take();
      if (Levels.empty())
        Diags.report(diag::err_replace_last_off, Replace.Loc);
      else
        Levels.pop_back();
    } else if (C.atKeyword(tok::kw_OFF) && !C.atKeyword(tok::kw_BY, 1)) {
      C.take();
      Levels.clear();
    } else {
      std::vector<Rule> Rules;
      if (!parseRules(C, "REPLACE", Replace.Loc, Rules)) {
        skipToPeriod(C);
        return;
      }
      if (Rules.empty())
        Diags.report(diag::err_expected_operand,
                     C.peek() ? C.peek()->Loc : Replace.Loc, {"REPLACE"});
      if (!Also)
        Levels.clear();
      Levels.push_back(std::move(Rules));
    }
    expectPeriod(C, "REPLACE", Replace.Loc);
  }

  void replacePass(std::vector<Token> &In, std::vector<Token> &Out) {
    std::vector<std::vector<Rule>> Levels;
    Out.reserve(In.size());
    for (size_t I = 0; I < In.size();) {
      if (In[I].Keyword == tok::kw_REPLACE) {
        Cursor C(In, I + 1);
        parseReplace(C, In[I], Levels);
        I = C.position();
        continue;
      }
      const Rule *Hit = nullptr;
      size_t End = 0;
      if (!isSeparator(In[I]))
        // The newest REPLACE first.
        for (auto L = Levels.rbegin(); L != Levels.rend() && !Hit; ++L)
          for (const Rule &Ru : *L)
            if (matches(In, I, Ru, End)) {
              Hit = &Ru;
              break;
            }
      if (!Hit) {
        Out.push_back(std::move(In[I++]));
        continue;
      }
      emit(In, I, *Hit, Out);
      I = End;
    }
  }

  // --- Pictures and level numbers -------------------------------------------
  void finishTokens(std::vector<Token> &In, std::vector<Token> &Out) {
    Out.reserve(In.size());
    bool InData = false;
    for (size_t I = 0; I < In.size(); ++I) {
      Token &T = In[I];
      if (T.Keyword == tok::kw_DIVISION && !Out.empty()) {
        tok::Keyword P = Out.back().Keyword;
        if (P == tok::kw_DATA)
          InData = true;
        else if (P == tok::kw_PROCEDURE || P == tok::kw_ENVIRONMENT ||
                 P == tok::kw_IDENTIFICATION)
          InData = false;
      }
      if (T.Keyword == tok::kw_PIC || T.Keyword == tok::kw_PICTURE) {
        Out.push_back(std::move(T));
        size_t J = I + 1;
        if (J < In.size() && In[J].Keyword == tok::kw_IS)
          Out.push_back(std::move(In[J++]));
        if (J < In.size() && In[J].Kind != tok::Period &&
            !isSeparator(In[J])) {
          // The string runs to a space, or to a period, comma or semicolon
          // followed by a space.
          Token M = std::move(In[J]);
          size_t K = J + 1;
          for (; K < In.size() && !In[K].hasFlag(Token::LeadingSpace); ++K) {
            if ((In[K].Kind == tok::Period || isSeparator(In[K])) &&
                (K + 1 == In.size() || In[K + 1].hasFlag(Token::LeadingSpace)))
              break;
            M.Text += In[K].Text;
            M.EndLoc = In[K].EndLoc;
            M.Flags |= In[K].Flags & Token::Replaced;
          }
          M.Kind = tok::PictureString;
          M.Keyword = tok::NotKeyword;
          M.Flags &= ~(Token::Signed | Token::Decimal);
          Out.push_back(std::move(M));
          I = K - 1;
        } else {
          I = J - 1;
        }
        continue;
      }
      if (InData && T.Kind == tok::NumericLiteral && T.Text.size() <= 2 &&
          !(T.Flags & (Token::Signed | Token::Decimal)) &&
          (Out.empty() || Out.back().Kind == tok::Period)) {
        int V = std::atoi(T.Text.c_str());
        if ((V >= 1 && V <= 49) || V == 66 || V == 77 || V == 88)
          T.Kind = tok::LevelNumber;
      }
      if (T.Kind == tok::Unknown)
        Diags.report(diag::err_unknown_character, T.Loc, {T.Text});
      Out.push_back(std::move(T));
    }
  }

  // --- Layout ---------------------------------------------------------------
  void layout(std::vector<Token> &Toks, std::string &Out) {
    Out.clear();
    Out.reserve(Toks.size() * 12);
    uint32_t Line = 1, Col = 1;
    FileID PrevF = 0;
    uint32_t PrevLine = 0;
    for (size_t I = 0; I < Toks.size(); ++I) {
      Token &T = Toks[I];
      PresumedLoc P;
      FileID F = SM.getLineColumn(T.LayoutLoc, P.Line, P.Column);
      uint32_t Breaks = 0;
      // A token written right after the one before (on a continuation line
      // too) stays joined to it.
      bool Glued = I && !T.hasFlag(Token::LeadingSpace);
      if (Glued)
        Breaks = 0;
      else if (I == 0)
        Breaks = F == 1 ? P.Line - 1 : 0;
      else if (F == PrevF && P.Line > PrevLine)
        Breaks = P.Line - PrevLine;
      else if (F != PrevF || P.Line != PrevLine)
        Breaks = 1;
      if (Breaks) {
        Out.append(Breaks, '\n');
        Line += Breaks;
        Col = 1;
      }
      if (!Glued && P.Column > Col) {
        Out.append(P.Column - Col, ' ');
        Col = P.Column;
      } else if (!Glued && Col > 1) {
        Out += ' ';
        ++Col;
      }
      T.Line = Line;
      T.Column = Col;
      Out += T.Text;
      Col += T.getWidth();
      // Joined text does not move the line count on: the next line written
      // after it keeps its distance to the line the output line began with.
      if (!Glued) {
        PrevF = F;
        PrevLine = P.Line;
      }
    }
    if (!Out.empty())
      Out += '\n';
  }
};

SourceReader::SourceReader(ReaderOptions Opts)
    : Opts(std::move(Opts)), SM(std::make_unique<SourceManager>()) {
  SM->setEncoding(this->Opts.Encoding);
}
SourceReader::~SourceReader() = default;

bool SourceReader::readFile(const std::string &Path) {
  std::string Error;
  const FileContent *C = SM->getFile(Path, Error);
  return read(C, Error, Path);
}

bool SourceReader::readBuffer(const std::string &Name,
                              const std::string &Bytes) {
  std::string Error;
  const FileContent *C = SM->addBuffer(Name, Bytes, Error);
  return read(C, Error, Name);
}

bool SourceReader::read(const FileContent *Main, const std::string &Error,
                        const std::string &Name) {
  MainName = Name;
  Impl I(*this);
  if (!Main) {
    I.reportUnreadable(Name, Error, SourceLocation());
    return false;
  }
  FileID F = SM->createEntry(Main, SourceLocation(), "");
  I.Active.push_back(canonical(Name));
  std::vector<Token> Copied, Replaced;
  I.expand(F, Copied);
  I.replacePass(Copied, Replaced);
  Copied.clear();
  I.finishTokens(Replaced, Tokens);
  I.layout(Tokens, Expanded);
  return true;
}

PresumedLoc SourceReader::getWrittenBegin(const Token &T) const {
  return SM->getPresumedLoc(T.Loc);
}
PresumedLoc SourceReader::getWrittenEnd(const Token &T) const {
  return SM->getPresumedLoc(T.EndLoc);
}
