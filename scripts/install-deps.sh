#!/usr/bin/env bash
# Installs what the build and the tests need on a fresh Debian machine;
# does nothing when everything is already there.
set -euo pipefail

packages=(cmake make g++ pkg-config qt6-base-dev libgtest-dev libgmock-dev libbenchmark-dev
          clang-format binutils clang libclang-rt-14-dev
          python3 python3-jsonschema help2man graphviz)

missing=()
for p in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
        missing+=("$p")
    fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "installing: ${missing[*]}"
sudo=""
if [ "$(id -u)" -ne 0 ]; then
    sudo="sudo"
fi
$sudo apt-get update
DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y --no-install-recommends "${missing[@]}"
