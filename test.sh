#!/usr/bin/env bash
# Builds korvid twice and runs the whole test suite with each build:
#   build/       release build (as installed)
#   build-asan/  debug build under AddressSanitizer and UBSan
set -euo pipefail
cd "$(dirname "$0")"
jobs=$(nproc)
cmake -S . -B build -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build build -j"$jobs"
ctest --test-dir build -j"$jobs" --output-on-failure
cmake -S . -B build-asan -DCMAKE_BUILD_TYPE=Debug -DKORVID_SANITIZE=ON \
      -DKORVID_BUILD_BENCHMARKS=OFF >/dev/null
cmake --build build-asan -j"$jobs"
ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 \
  ctest --test-dir build-asan -j"$jobs" --output-on-failure
