#!/usr/bin/env bash
# Builds the fuzz targets (clang, libFuzzer, ASan + UBSan) and runs each one
# for a bounded time or number of executions; exits non-zero on any finding.
#
#   bash scripts/run-fuzz.sh                       # the bounded run of the test command
#   bash scripts/run-fuzz.sh --load 10000000x --file 3600s --paths 600s
#
# A budget is seconds ("90s") or executions ("5000x"); 0 skips the target.
# Corpora grow in build-fuzz/corpus/TARGET and are kept between runs;
# findings (crash-*, timeout-*, oom-*, leak-*) go to build-fuzz/findings/TARGET.
# The last lines are the figures of each run, tab-separated.
set -euo pipefail
cd "$(dirname "$0")/.."

declare -A budget=([load]=60s [file]=40s [paths]=20s)
while [ $# -gt 0 ]; do
    case "$1" in
    --load | --file | --paths)
        budget[${1#--}]="$2"
        shift 2
        ;;
    *)
        echo "usage: run-fuzz.sh [--load B] [--file B] [--paths B]  (B: 90s, 5000x or 0)" >&2
        exit 2
        ;;
    esac
done

build=build-fuzz
cmake --preset fuzz > /dev/null
cmake --build "$build" -j"$(nproc)" --target zkFuzzLoad zkFuzzLoadFile zkFuzzPaths

rm -rf "$build/seeds"
bash fuzz/make-seeds.sh "$build/seeds"

# A quarantine of 64 MB instead of 256: what it holds counts against the
# memory limit below, and a load frees little at a time.
export ASAN_OPTIONS="abort_on_error=1:detect_leaks=1:quarantine_size_mb=64"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
export LSAN_OPTIONS="suppressions=$PWD/scripts/lsan.supp"

declare -A program=([load]=zkFuzzLoad [file]=zkFuzzLoadFile [paths]=zkFuzzPaths)
declare -A seeds=([load]=load [file]=load [paths]=paths)
figures=()
failed=0
for target in load file paths; do
    b="${budget[$target]}"
    [ "$b" = 0 ] && continue
    case "$b" in
    *s) limit=(-max_total_time="${b%s}") ;;
    *x) limit=(-runs="${b%x}") ;;
    *)
        echo "bad budget for $target: $b" >&2
        exit 2
        ;;
    esac
    corpus="$build/corpus/$target"
    findings="$build/findings/$target"
    log="$build/fuzz-$target.log"
    mkdir -p "$corpus" "$findings"
    echo "== fuzz $target ($b)"
    start=$(date +%s)
    touch "$build/fuzz-$target.stamp"
    status=0
    # -timeout: one input running 10 s is a hang; -rss_limit_mb: growth past
    # 2.5 GB is unbounded memory. Both are findings like a crash.
    "$build/bin/${program[$target]}" "${limit[@]}" -timeout=10 -rss_limit_mb=2560 \
        -max_len=20000 -dict=fuzz/scene.dict -print_final_stats=1 \
        -artifact_prefix="$findings/" "$corpus" "$build/seeds/${seeds[$target]}" \
        > "$log" 2>&1 || status=$?
    seconds=$(($(date +%s) - start))
    runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -1)
    speed=$(sed -n 's/^stat::average_exec_per_sec: *//p' "$log" | tail -1)
    cov=$(grep -o 'cov: [0-9]* ft: [0-9]*' "$log" | tail -1)
    found=$(find "$findings" -type f -newer "$build/fuzz-$target.stamp" | wc -l)
    if [ "$status" -ne 0 ] || [ "$found" -ne 0 ]; then
        failed=1
        tail -n 60 "$log"
        echo "fuzz $target: FINDING (exit $status); inputs in $findings"
    fi
    figures+=("$(printf '%s\t%s runs\t%s exec/s\t%s\t%s s\t%s findings' \
        "$target" "${runs:-?}" "${speed:-?}" "${cov:-cov: ?}" "$seconds" "$found")")
done

echo "== fuzz figures"
printf '%s\n' "${figures[@]}"
exit "$failed"
