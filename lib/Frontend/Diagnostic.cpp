//===- lib/Frontend/Diagnostic.cpp - Diagnostics of the reader ------------===//

#include "korvid/Frontend/Diagnostic.h"

using namespace korvid;

namespace {
struct Info {
  Severity Level;
  const char *Message;
};
const Info Infos[] = {
#define ERROR(Id, Message) {Severity::Error, Message},
#define WARNING(Id, Message) {Severity::Warning, Message},
#define NOTE(Id, Message) {Severity::Note, Message},
#include "korvid/Frontend/DiagnosticKinds.def"
};
} // namespace

Severity DiagnosticsEngine::getSeverity(diag::Kind Id) {
  return Infos[Id].Level;
}
const char *DiagnosticsEngine::getTemplate(diag::Kind Id) {
  return Infos[Id].Message;
}

std::string Diagnostic::getMessage() const {
  std::string Out;
  for (const char *P = DiagnosticsEngine::getTemplate(Id); *P; ++P) {
    if (P[0] == '%' && P[1] >= '0' && P[1] <= '9') {
      size_t N = P[1] - '0';
      if (N < Args.size())
        Out += Args[N];
      ++P;
    } else {
      Out += *P;
    }
  }
  return Out;
}

Diagnostic &DiagnosticsEngine::report(diag::Kind Id, SourceLocation Loc,
                                      std::vector<std::string> Args) {
  Diags.push_back({Id, getSeverity(Id), Loc, {}, std::move(Args)});
  if (Diags.back().Level == Severity::Error)
    ++NumErrors;
  else if (Diags.back().Level == Severity::Warning)
    ++NumWarnings;
  return Diags.back();
}

Diagnostic &DiagnosticsEngine::reportInFile(diag::Kind Id,
                                            std::string FileName,
                                            std::vector<std::string> Args) {
  Diagnostic &D = report(Id, SourceLocation(), std::move(Args));
  D.FileName = std::move(FileName);
  return D;
}

void DiagnosticsEngine::print(std::ostream &OS, const SourceManager &SM,
                              const Diagnostic &D) {
  static const char *const Names[] = {"note", "warning", "error"};
  if (D.Loc.isValid()) {
    auto Chain = SM.getIncludeChain(D.Loc);
    for (const IncludeStep &S : Chain)
      OS << "In COPY member " << S.Member << ", copied at " << S.File << ':'
         << S.Line << ":\n";
    PresumedLoc P = SM.getPresumedLoc(D.Loc);
    OS << P.File << ':' << P.Line << ':' << P.Column << ": ";
  } else if (!D.FileName.empty()) {
    OS << D.FileName << ": ";
  }
  OS << Names[static_cast<int>(D.Level)] << ": " << D.getMessage() << '\n';
}

void DiagnosticsEngine::print(std::ostream &OS,
                              const SourceManager &SM) const {
  for (const Diagnostic &D : Diags)
    print(OS, SM, D);
}
