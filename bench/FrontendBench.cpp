//===- bench/FrontendBench.cpp - Speed of the source reader ---------------===//
//
// Reads and expands the whole NIST COBOL-85 suite (458 programs with their
// copybooks) in one process, as `korvid-xml -E -I ../copybooks` does from
// the programs folder, and reports lines per second (lines of the programs
// as written, copybooks not counted). For comparison, CobcPreprocessor runs
// `cobc -E -std=cobol85` over the same programs, one process per program as
// that compiler works.
//
//   korvid-bench-frontend --benchmark_min_time=1
//
//===----------------------------------------------------------------------===//

#include "korvid/Frontend/SourceReader.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <dirent.h>
#include <fstream>
#include <string>
#include <unistd.h>
#include <vector>

#ifndef KORVID_CORPUS_DIR
#define KORVID_CORPUS_DIR ""
#endif

namespace {

const std::string Programs = std::string(KORVID_CORPUS_DIR) + "/nist/programs";

struct Suite {
  std::vector<std::string> Names;
  size_t Lines = 0;
};

const Suite &suite() {
  static Suite S = [] {
    Suite R;
    if (DIR *D = opendir(Programs.c_str())) {
      while (dirent *E = readdir(D)) {
        std::string N = E->d_name;
        if (N.size() > 4 && N.substr(N.size() - 4) == ".CBL")
          R.Names.push_back(N);
      }
      closedir(D);
    }
    std::sort(R.Names.begin(), R.Names.end());
    for (const std::string &N : R.Names) {
      std::ifstream In(Programs + "/" + N);
      R.Lines += std::count(std::istreambuf_iterator<char>(In),
                            std::istreambuf_iterator<char>(), '\n');
    }
    return R;
  }();
  return S;
}

bool enterSuite(benchmark::State &State) {
  if (suite().Names.empty() || chdir(Programs.c_str()) != 0) {
    State.SkipWithError("NIST corpus not found");
    return false;
  }
  return true;
}

void ReadNistSuite(benchmark::State &State) {
  if (!enterSuite(State))
    return;
  korvid::ReaderOptions Opts;
  Opts.IncludeDirs = {"../copybooks"};
  Opts.UseCOBCPY = false;
  size_t Tokens = 0;
  for (auto _ : State) {
    for (const std::string &N : suite().Names) {
      korvid::SourceReader R(Opts);
      R.readFile(N);
      Tokens += R.getTokens().size();
      benchmark::DoNotOptimize(R.getExpandedText().data());
    }
  }
  State.counters["lines/s"] = benchmark::Counter(
      double(suite().Lines) * State.iterations(), benchmark::Counter::kIsRate);
  State.counters["tokens/s"] =
      benchmark::Counter(double(Tokens), benchmark::Counter::kIsRate);
}
BENCHMARK(ReadNistSuite)->Unit(benchmark::kMillisecond)->UseRealTime();

void CobcPreprocessor(benchmark::State &State) {
  if (!enterSuite(State))
    return;
  if (std::system("cobc --version >/dev/null 2>&1") != 0) {
    State.SkipWithError("cobc is not installed");
    return;
  }
  for (auto _ : State)
    for (const std::string &N : suite().Names) {
      std::string Cmd = "cobc -E -std=cobol85 -I ../copybooks " + N +
                        " >/dev/null 2>&1";
      benchmark::DoNotOptimize(std::system(Cmd.c_str()));
    }
  State.counters["lines/s"] = benchmark::Counter(
      double(suite().Lines) * State.iterations(), benchmark::Counter::kIsRate);
}
BENCHMARK(CobcPreprocessor)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);

} // namespace
