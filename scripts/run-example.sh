#!/usr/bin/env bash
# Builds the plugin and the command-line host, then lists the jobs of the
# bundled example scene (a Mantra driver with an IFD export and a preview).
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/install-deps.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build -j"$(nproc)" --target hipjobs
build/bin/hipjobs examples/mantra_ifd.hip "$@"
