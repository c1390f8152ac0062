//===- lib/Frontend/Token.cpp - Tokens of the source reader ---------------===//

#include "korvid/Frontend/Token.h"

#include <unordered_map>

using namespace korvid;

const char *tok::getKindName(Kind K) {
  static const char *const Names[] = {
#define TOK(Name, Spelling) #Name,
#include "korvid/Frontend/TokenKinds.def"
  };
  return K < NumKinds ? Names[K] : "?";
}

tok::Keyword tok::getKeyword(const std::string &Upper) {
  static const std::unordered_map<std::string, Keyword> Map = {
#define KEYWORD(Name, Spelling) {Spelling, kw_##Name},
#include "korvid/Frontend/TokenKinds.def"
  };
  auto It = Map.find(Upper);
  return It == Map.end() ? NotKeyword : It->second;
}

std::string Token::getUpper() const {
  std::string S = Text;
  if (isLiteral() && Kind != tok::NumericLiteral && Kind != tok::FloatLiteral)
    return S;
  if (Kind == tok::ExecBlock) {
    // Letters outside quotes only.
    char Quote = 0;
    for (char &C : S) {
      if (Quote) {
        if (C == Quote)
          Quote = 0;
      } else if (C == '"' || C == '\'') {
        Quote = C;
      } else if (C >= 'a' && C <= 'z') {
        C -= 'a' - 'A';
      }
    }
    return S;
  }
  for (char &C : S)
    if (C >= 'a' && C <= 'z')
      C -= 'a' - 'A';
  return S;
}

uint32_t Token::getWidth() const {
  uint32_t N = 0;
  for (char C : Text)
    N += (static_cast<unsigned char>(C) & 0xC0) != 0x80;
  return N;
}
