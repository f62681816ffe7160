#!/usr/bin/env bash
# Builds and runs every test twice: in the normal build and in an
# AddressSanitizer + UndefinedBehaviorSanitizer build. Also checks formatting
# and runs each fuzz target for a bounded time (about two minutes in all),
# failing on any finding.
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/install-deps.sh
jobs="$(nproc)"

echo "== format check"
git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run -Werror

echo "== normal build"
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo -DZK_WERROR=ON
cmake --build build -j"$jobs"
(cd build && ctest --output-on-failure -j"$jobs")

echo "== fuzz targets"
bash scripts/run-fuzz.sh

echo "== sanitizer build"
cmake -S . -B build-asan -DCMAKE_BUILD_TYPE=Debug -DZK_SANITIZE=ON -DZK_WERROR=ON -DZK_BENCH=OFF
cmake --build build-asan -j"$jobs"
export ASAN_OPTIONS="detect_leaks=1:abort_on_error=1:strict_string_checks=1"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
export LSAN_OPTIONS="suppressions=$PWD/scripts/lsan.supp"
(cd build-asan && ctest --output-on-failure -j"$jobs")

bash scripts/test-ratio.sh
