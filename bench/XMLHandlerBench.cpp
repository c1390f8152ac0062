//===- bench/XMLHandlerBench.cpp - Speed of the document builder ----------===//
//
// The builder is the hot path of every run: a real program document holds
// millions of located elements. These benchmarks build and save a document
// of 1,000,000 located elements, and append 100,000 located children to one
// parent in source order and in reverse order.
//
//   korvid-bench-xmlhandler --benchmark_min_time=1
//
//===----------------------------------------------------------------------===//

#include "korvid/XMLHandler.h"

#include <benchmark/benchmark.h>
#include <tinyxml2.h>

#include <cstdio>
#include <malloc.h>
#include <memory>
#include <string>
#include <unistd.h>

using korvid::XMLHandler;
using tinyxml2::XMLElement;

namespace {

// Keep freed memory in the process between iterations: otherwise glibc
// hands it back to the kernel and each iteration measures page faults on
// fresh memory (about 50 ms per 100,000 elements here) instead of the
// builder.
const int KeepFreedMemory = mallopt(M_TRIM_THRESHOLD, 1 << 30);

const std::string MainFile = "PROGRAM.cbl", CopyFile = "COPYBOOK.cpy";

void stamp(XMLHandler &H, XMLElement *E, unsigned Line, unsigned Col) {
  H.attributeLoc(E, Line, Col, Line, Col + 9, MainFile, Line, Col, Line,
                 Col + 9, (Line & 7) ? MainFile : CopyFile);
}

/// A document shaped like a program's: statements of 10 located children
/// each (20 of them with a text), 1,000,000 located elements in all.
std::unique_ptr<XMLHandler> buildDocument(unsigned Elements) {
  auto H = std::make_unique<XMLHandler>();
  H->appendCommentToDoc(MainFile.c_str());
  XMLElement *Root = H->newRetElement("COBOL_SOURCE");
  H->setAttribute(Root, "FILE", MainFile.c_str());
  XMLElement *Div = H->newRetElement("PROCEDURE_DIVISION");
  stamp(*H, Div, 1, 8);
  unsigned Line = 1;
  for (unsigned Made = 1; Made < Elements; Made += 10, ++Line) {
    XMLElement *Stmt = H->newRetElement("MOVE_STATEMENT");
    for (unsigned K = 0; K < 9; ++K) {
      XMLElement *Op = H->newElement(K % 2 ? "SOURCE" : "TARGET");
      if (K % 4 == 0)
        H->appendChildLast(H->newText("WS-FIELD"), Op);
      stamp(*H, Op, Line, 12 + 4 * K);
      H->appendChildOrdered(Op, Stmt);
    }
    stamp(*H, Stmt, Line, 12);
    H->appendChildOrdered(Stmt, Div);
  }
  H->appendChildOrdered(Div, Root);
  H->appendElementToDoc(Root);
  return H;
}

void BM_Build1MLocatedElements(benchmark::State &State) {
  for (auto _ : State) {
    auto H = buildDocument(1000000);
    benchmark::DoNotOptimize(H.get());
    State.PauseTiming();
    H.reset(); // freeing is not building
    State.ResumeTiming();
  }
  State.SetItemsProcessed(State.iterations() * 1000000);
}
BENCHMARK(BM_Build1MLocatedElements)->Unit(benchmark::kMillisecond);

void BM_Save1MLocatedElements(benchmark::State &State) {
  auto H = buildDocument(1000000);
  std::string Path = "/tmp/korvid-bench-" + std::to_string(getpid()) + ".xml";
  for (auto _ : State)
    H->saveFile(Path.c_str());
  if (!H->saveSucceeded())
    State.SkipWithError(H->getSaveError().c_str());
  std::remove(Path.c_str());
  State.SetItemsProcessed(State.iterations() * 1000000);
}
BENCHMARK(BM_Save1MLocatedElements)->Unit(benchmark::kMillisecond);

// Each child is made, stamped and appended at once, as the emitter does:
// tinyxml2 keeps the elements not yet in the tree in a list it searches on
// insertion, so making them all first would measure that search instead.
void appendChildren(benchmark::State &State, bool Reverse) {
  const unsigned N = static_cast<unsigned>(State.range(0));
  for (auto _ : State) {
    State.PauseTiming();
    auto H = std::make_unique<XMLHandler>();
    XMLElement *Parent = H->newElement("PARENT");
    State.ResumeTiming();
    for (unsigned I = 0; I < N; ++I) {
      XMLElement *Kid = H->newElement("CHILD");
      stamp(*H, Kid, Reverse ? N - I : I + 1, 8);
      H->appendChildOrdered(Kid, Parent);
    }
    benchmark::DoNotOptimize(Parent->LastChild());
    State.PauseTiming();
    H.reset();
    State.ResumeTiming();
  }
  State.SetItemsProcessed(State.iterations() * N);
  State.SetComplexityN(N);
}

void BM_AppendInSourceOrder(benchmark::State &State) {
  appendChildren(State, false);
}
BENCHMARK(BM_AppendInSourceOrder)
    ->RangeMultiplier(10)->Range(1000, 100000)->Complexity()
    ->Unit(benchmark::kMicrosecond);

void BM_AppendInReverseOrder(benchmark::State &State) {
  appendChildren(State, true);
}
BENCHMARK(BM_AppendInReverseOrder)
    ->RangeMultiplier(10)->Range(1000, 100000)->Complexity()
    ->Unit(benchmark::kMicrosecond);

} // namespace
