//===- tools/korvid-xml.cpp - The korvid command-line tool ----------------===//
//
//   korvid-xml -E [-I DIR]... [--format F] [--encoding E] [-o FILE] FILE
//
// prints the expanded source of FILE (COPY members inserted, REPLACE
// applied) and the diagnostics on standard error. Exit status: 0 when no
// error was diagnosed, 1 when errors were, 2 for bad usage or unreadable
// input.
//
//===----------------------------------------------------------------------===//

#include "korvid/Frontend/SourceReader.h"

#include <CLI/CLI.hpp>

#include <fstream>
#include <iostream>

using namespace korvid;

#ifndef KORVID_VERSION
#define KORVID_VERSION "unknown"
#endif

int main(int Argc, char **Argv) {
  CLI::App App{"korvid-xml: reads COBOL source for analysis", "korvid-xml"};
  bool Preprocess = false, Debugging = false, StarComments = false,
       ShowVersion = false;
  std::string Input, Output, Format = "auto", Encoding;
  std::vector<std::string> IncludeDirs, Extensions;
  App.add_flag("-E", Preprocess,
               "Print the expanded source (COPY members inserted, REPLACE "
               "applied)");
  App.add_option("-o", Output, "Write the output to FILE instead of stdout")
      ->option_text("FILE");
  App.add_option("-I", IncludeDirs,
                 "Search DIR for COPY members (repeatable)")
      ->option_text("DIR")
      ->allow_extra_args(false);
  App.add_option("--format", Format,
                 "Source format: fixed, free, variable or auto (default)")
      ->check(CLI::IsMember({"fixed", "free", "variable", "auto"},
                            CLI::ignore_case));
  App.add_option("--encoding", Encoding,
                 "Encoding of the input (iconv name; default: UTF-8, else "
                 "Latin-1)");
  App.add_option("--copy-ext", Extensions,
                 "Extensions tried for COPY members, in order (repeatable; "
                 "replaces the default list)")
      ->option_text("EXT")
      ->allow_extra_args(false);
  App.add_flag("--debugging-mode", Debugging,
               "Read debugging lines (D in the indicator area) as program "
               "text");
  App.add_flag("--free-star-comments", StarComments,
               "In free format, a '*' in column 1 starts a comment line");
  App.add_flag("--version", ShowVersion, "Print the version and exit");
  App.add_option("file", Input, "The COBOL source file")->option_text("FILE");
  App.set_help_flag("-h,--help", "Print this help and exit");
  try {
    App.parse(Argc, Argv);
  } catch (const CLI::CallForHelp &E) {
    return App.exit(E);
  } catch (const CLI::ParseError &E) {
    App.exit(E);
    return 2;
  }
  if (ShowVersion) {
    std::cout << "korvid-xml " << KORVID_VERSION << '\n';
    return 0;
  }
  if (Input.empty()) {
    std::cerr << "korvid-xml: no input file (see --help)\n";
    return 2;
  }
  if (!Preprocess) {
    std::cerr << "korvid-xml: only -E (print the expanded source) is "
                 "available yet\n";
    return 2;
  }

  ReaderOptions Opts;
  parseSourceFormat(Format, Opts.Format);
  Opts.IncludeDirs = IncludeDirs;
  if (!Extensions.empty()) {
    Opts.CopyExtensions.clear();
    for (std::string E : Extensions)
      Opts.CopyExtensions.push_back(E.empty() || E[0] == '.' ? E : "." + E);
  }
  Opts.Encoding = Encoding;
  Opts.DebuggingMode = Debugging;
  Opts.FreeStarComments = StarComments;

  SourceReader Reader(Opts);
  bool Read = Reader.readFile(Input);
  Reader.getDiagnostics().print(std::cerr, Reader.getSourceManager());
  if (!Read)
    return 2;
  if (Output.empty()) {
    std::cout << Reader.getExpandedText();
    std::cout.flush();
  } else {
    std::ofstream Out(Output, std::ios::binary);
    Out << Reader.getExpandedText();
    Out.close();
    if (!Out) {
      std::cerr << "korvid-xml: cannot write '" << Output << "'\n";
      return 2;
    }
  }
  return Reader.getDiagnostics().hasErrors() ? 1 : 0;
}
