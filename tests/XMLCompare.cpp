//===- tests/XMLCompare.cpp - Comparing emitted documents -----------------===//

#include "XMLCompare.h"

#include <tinyxml2.h>

#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>
#include <unistd.h>

using namespace tinyxml2;

namespace korvid {
namespace test {

namespace {

std::string describe(const XMLNode *N) {
  if (!N)
    return "nothing";
  if (const XMLElement *E = N->ToElement())
    return std::string("element <") + E->Name() + ">";
  if (N->ToText())
    return std::string("text \"") + N->Value() + "\"";
  if (N->ToComment())
    return std::string("comment \"") + N->Value() + "\"";
  return "other node";
}

// Children worth comparing: declarations are left out.
const XMLNode *next(const XMLNode *N) {
  while (N && N->ToDeclaration())
    N = N->NextSibling();
  return N;
}

bool compareNodes(const XMLNode *Exp, const XMLNode *Act,
                  const std::string &Path, std::string &Diff) {
  Exp = next(Exp);
  Act = next(Act);
  std::map<std::string, int> Seen;
  for (; Exp || Act; Exp = next(Exp->NextSibling()),
                     Act = next(Act->NextSibling())) {
    if (!Exp || !Act) {
      Diff = Path + ": found " + describe(Act) + ", expected " + describe(Exp);
      return false;
    }
    const XMLElement *EE = Exp->ToElement(), *AE = Act->ToElement();
    if (!EE || !AE) {
      if (bool(EE) != bool(AE) || bool(Exp->ToText()) != bool(Act->ToText()) ||
          std::string(Exp->Value()) != Act->Value()) {
        Diff = Path + ": found " + describe(Act) + ", expected " +
               describe(Exp);
        return false;
      }
      continue;
    }
    if (std::string(EE->Name()) != AE->Name()) {
      Diff = Path + ": found " + describe(Act) + ", expected " + describe(Exp);
      return false;
    }
    std::string Here = Path + "/" + EE->Name();
    int N = ++Seen[EE->Name()];
    if (N > 1)
      Here += "[" + std::to_string(N) + "]";
    const XMLAttribute *EA = EE->FirstAttribute(), *AA = AE->FirstAttribute();
    for (int I = 1; EA || AA; ++I, EA = EA ? EA->Next() : nullptr,
             AA = AA ? AA->Next() : nullptr) {
      auto Show = [](const XMLAttribute *A) {
        return A ? std::string(A->Name()) + "=\"" + A->Value() + "\""
                 : std::string("no attribute");
      };
      if (!EA || !AA || std::string(EA->Name()) != AA->Name() ||
          std::string(EA->Value()) != AA->Value()) {
        Diff = Here + ": attribute " + std::to_string(I) + ": " + Show(AA) +
               ", expected " + Show(EA);
        return false;
      }
    }
    if (!compareNodes(EE->FirstChild(), AE->FirstChild(), Here, Diff))
      return false;
  }
  return true;
}

} // namespace

::testing::AssertionResult sameXML(const std::string &Expected,
                                   const std::string &Actual) {
  XMLDocument E, A;
  if (E.Parse(Expected.c_str()) != XML_SUCCESS)
    return ::testing::AssertionFailure()
           << "expected document does not parse: " << E.ErrorStr();
  if (A.Parse(Actual.c_str()) != XML_SUCCESS)
    return ::testing::AssertionFailure()
           << "emitted document does not parse: " << A.ErrorStr() << "\n"
           << Actual;
  std::string Diff;
  if (compareNodes(E.FirstChild(), A.FirstChild(), "", Diff))
    return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << Diff << "\nemitted document:\n"
                                       << Actual;
}

std::string readFile(const std::string &Path) {
  std::ifstream In(Path, std::ios::binary);
  std::ostringstream S;
  S << In.rdbuf();
  return S.str();
}

std::string tempPath(const std::string &Name) {
  const char *Dir = std::getenv("TMPDIR");
  return std::string(Dir ? Dir : "/tmp") + "/korvid-test-" +
         std::to_string(::getpid()) + "-" + Name;
}

::testing::AssertionResult wellFormed(const std::string &Path) {
  std::string Lint = KORVID_XMLLINT;
  if (Lint.empty())
    return ::testing::AssertionSuccess() << "xmllint not found";
  std::string Cmd = Lint + " --noout '" + Path + "' 2>&1";
  if (std::system(Cmd.c_str()) == 0)
    return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "xmllint rejects " << Path;
}

} // namespace test
} // namespace korvid
