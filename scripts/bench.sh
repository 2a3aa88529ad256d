#!/usr/bin/env bash
# Benchmarks: install what is missing, build the bench preset, run the benchmarks and rewrite
# bench/RESULTS.md from their JSON output. Options go to bench/report.py (--set-before LABEL keeps this
# run's figures as the "before" figures). QBFORMUL_BENCH_BUILD_DIR chooses another build folder.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/bootstrap.sh --bench
build="${QBFORMUL_BENCH_BUILD_DIR:-build/bench}"
cmake --preset bench -B "$build" >/dev/null
cmake --build "$build" --target qbformul_bench
json="$build/bench-results.json"
repetitions=10 min_time=0.1
"$build/bench/qbformul_bench" --benchmark_repetitions=$repetitions --benchmark_min_time=$min_time \
    --benchmark_enable_random_interleaving=true \
    --benchmark_report_aggregates_only=true --benchmark_out="$json" --benchmark_out_format=json
version() { dpkg-query -W -f='${Version}' "$1" 2>/dev/null || echo "?"; }
commit="$(git rev-parse --short HEAD 2>/dev/null || echo "?")"
[ -n "$(git status --porcelain 2>/dev/null)" ] && commit="$commit (with local changes)"
python3 bench/report.py "$json" --out bench/RESULTS.md \
    --cpu "$(lscpu | sed -n 's/^Model name:[[:space:]]*//p' | head -n1)" --cores "$(nproc)" \
    --kernel "$(uname -sr)" --commit "$commit" --repetitions "$repetitions" --min-time "$min_time" \
    --versions "Boost.Serialization $(version libboost-serialization-dev), cereal $(version libcereal-dev), Google Benchmark $(version libbenchmark-dev), pugixml $(version libpugixml-dev)" \
    "$@"
echo "bench: figures in bench/RESULTS.md"
