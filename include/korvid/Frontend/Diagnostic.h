//===- korvid/Frontend/Diagnostic.h - Diagnostics of the reader -*- C++ -*-===//
//
// Diagnostics are collected, never thrown: the reader goes on after every
// problem. Each one has an id from DiagnosticKinds.def, a severity, an
// as-written location and its arguments. print() writes them the way
// compilers do, the COPY chain first:
//
//   In COPY member INNER, copied at COPY1.cpy:3:
//   In COPY member COPY1, copied at main.cbl:12:
//   INNER.cpy:2:20: error: unterminated literal
//
//===----------------------------------------------------------------------===//
#ifndef KORVID_FRONTEND_DIAGNOSTIC_H
#define KORVID_FRONTEND_DIAGNOSTIC_H

#include "korvid/Frontend/SourceManager.h"

#include <ostream>
#include <string>
#include <vector>

namespace korvid {

namespace diag {
enum Kind : uint16_t {
#define ERROR(Id, Message) Id,
#define WARNING(Id, Message) Id,
#define NOTE(Id, Message) Id,
#include "korvid/Frontend/DiagnosticKinds.def"
  NumKinds
};
} // namespace diag

enum class Severity : uint8_t { Note, Warning, Error };

struct Diagnostic {
  diag::Kind Id;
  Severity Level;
  SourceLocation Loc;      ///< May be invalid (e.g. the main file is unreadable).
  std::string FileName;    ///< Used when Loc is invalid; may be empty.
  std::vector<std::string> Args;

  /// The message with its arguments filled in.
  std::string getMessage() const;
};

class DiagnosticsEngine {
public:
  Diagnostic &report(diag::Kind Id, SourceLocation Loc,
                     std::vector<std::string> Args = {});
  Diagnostic &reportInFile(diag::Kind Id, std::string FileName,
                           std::vector<std::string> Args = {});

  const std::vector<Diagnostic> &getDiagnostics() const { return Diags; }
  unsigned getNumErrors() const { return NumErrors; }
  unsigned getNumWarnings() const { return NumWarnings; }
  bool hasErrors() const { return NumErrors != 0; }

  static Severity getSeverity(diag::Kind Id);
  /// The message template of \p Id, with %0... unfilled.
  static const char *getTemplate(diag::Kind Id);

  /// Writes every diagnostic, each preceded by its COPY chain.
  void print(std::ostream &OS, const SourceManager &SM) const;
  /// One diagnostic, as print() writes it.
  static void print(std::ostream &OS, const SourceManager &SM,
                    const Diagnostic &D);

private:
  std::vector<Diagnostic> Diags;
  unsigned NumErrors = 0, NumWarnings = 0;
};

} // namespace korvid

#endif
