#!/usr/bin/env bash
# Quick start, second command: install what is missing; build with GCC and run the whole test suite; build
# with Clang under AddressSanitizer and UndefinedBehaviorSanitizer and run the suite again, with a short
# run of every fuzz target over its seed corpus; build the unit tests with Clang under ThreadSanitizer and
# run them (among them eight threads storing and reading lists at once).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/bootstrap.sh
for preset in default asan; do
    echo "== $preset"
    cmake --preset "$preset" >/dev/null
    cmake --build --preset "$preset"
    ctest --preset "$preset" -j "$(nproc)"
done
echo "== tsan"
cmake --preset tsan >/dev/null
cmake --build --preset tsan --target qbformul_tests
TSAN_OPTIONS="halt_on_error=1:second_deadlock_stack=1" build/tsan/tests/qbformul_tests --gtest_brief=1
