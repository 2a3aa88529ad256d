#!/usr/bin/env bash
# Quick start, second command: install what is missing; build with GCC and run the whole test suite; build
# with Clang under AddressSanitizer and UndefinedBehaviorSanitizer and run the suite again, with a short
# run of every fuzz target over its seed corpus.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/bootstrap.sh
for preset in default asan; do
    echo "== $preset"
    cmake --preset "$preset" >/dev/null
    cmake --build --preset "$preset"
    ctest --preset "$preset" -j "$(nproc)"
done
