#!/usr/bin/env bash
# Fuzzing: builds the libFuzzer targets (fuzz preset: Clang, ASan and UBSan, optimised), makes their seed
# corpora and runs each target (all four, or those named) for SECONDS (default 60), at most RUNS executions
# if --runs is given, two targets at a time (QBFORMUL_FUZZ_JOBS changes that). Prints per target the executions, the coverage
# reached and the findings; exits 1 when there is a finding. The corpus each run grows is kept in
# build/fuzz/lauf/<target> for the next run; findings are written to build/fuzz/funde/.
#
#     scripts/fuzz.sh 600                    # ten minutes each
#     scripts/fuzz.sh 7200 --runs 10000000   # a campaign: ten million executions each, two hours at most
#     scripts/fuzz.sh 60 xml liste           # two of the targets
set -euo pipefail
cd "$(dirname "$0")/.."
sekunden=60 runs=-1 ziele=()
while [ $# -gt 0 ]; do
    case "$1" in
    --runs) runs=$2; shift 2 ;;
    [0-9]*) sekunden=$1; shift ;;
    formular | liste | xml | werkzeug) ziele+=("$1"); shift ;;
    *) echo "usage: scripts/fuzz.sh [SECONDS] [--runs N] [formular|liste|xml|werkzeug]..." >&2; exit 2 ;;
    esac
done
[ ${#ziele[@]} -gt 0 ] || ziele=(formular liste xml werkzeug)
scripts/bootstrap.sh
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --target qbformul_fuzz_korpus "${ziele[@]/#/qbformul_fuzz_}"
bau=build/fuzz/fuzz
korpus="$bau/korpus-$$"
trap 'rm -rf "$korpus"' EXIT
"$bau/qbformul_fuzz_korpus" "$korpus" "$PWD"
mkdir -p "$bau/funde"

# explain takes time in proportion to the file: the tool's target gets inputs of at most 2 kB, which hold
# records of every old layout of the example and the list's XML of the demo (the XML target reads the
# large documents).
maximum() { [ "$1" = werkzeug ] && echo 2048 || echo 0; }

laufe() {
    local ziel=$1
    mkdir -p "$bau/lauf/$ziel"
    ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 "$bau/qbformul_fuzz_$ziel" -max_total_time="$sekunden" \
        -max_len="$(maximum "$ziel")" \
        -runs="$runs" -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 -dict=fuzz/qbformul.dict \
        -artifact_prefix="$bau/funde/$ziel-" "$bau/lauf/$ziel" "$korpus/$ziel" >"$bau/$ziel.log" 2>&1 || true
}
jobs_max=${QBFORMUL_FUZZ_JOBS:-2}
for ziel in "${ziele[@]}"; do
    while [ "$(jobs -rp | wc -l)" -ge "$jobs_max" ]; do wait -n || true; done
    echo "fuzz: $ziel for ${sekunden}s$([ "$runs" -ge 0 ] && echo ", at most $runs executions")"
    laufe "$ziel" &
done
wait

befund=0
printf '%-10s %14s %8s %8s %s\n' target executions cov ft findings
for ziel in "${ziele[@]}"; do
    log="$bau/$ziel.log"
    ausfuehrungen=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -n1)
    abdeckung=$(grep -o 'cov: [0-9]*' "$log" | tail -n1 | cut -d' ' -f2)
    merkmale=$(grep -o 'ft: [0-9]*' "$log" | tail -n1 | cut -d' ' -f2)
    funde=$(ls "$bau/funde" | grep -c "^$ziel-" || true)
    if grep -qE '^==[0-9]+==ERROR|runtime error|deadly signal|Test unit written' "$log"; then
        funde=$((funde > 0 ? funde : 1))
    fi
    [ "$funde" -gt 0 ] && befund=1
    printf '%-10s %14s %8s %8s %s\n' "$ziel" "${ausfuehrungen:-?}" "${abdeckung:-?}" "${merkmale:-?}" "$funde"
done
[ "$befund" -eq 0 ] || echo "fuzz: findings in $bau/funde (logs: $bau/<target>.log)"
exit "$befund"
