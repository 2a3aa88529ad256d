#!/usr/bin/env bash
# Installs the Debian 12 packages the project builds with, where they are missing.
set -euo pipefail
packages=(cmake ninja-build g++ libgtest-dev libgmock-dev libpugixml-dev libcli11-dev nlohmann-json3-dev
          libbenchmark-dev)
# Clang 19 builds the sanitizer suite and the fuzz targets (libFuzzer and the sanitizers are in its runtime).
packages+=(clang-19 libclang-rt-19-dev)
[ "${1:-}" = "--bench" ] && packages+=(libboost-serialization-dev libcereal-dev)
missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
    echo "bootstrap: installing ${missing[*]}"
    SUDO=""
    [ "$(id -u)" -ne 0 ] && SUDO="sudo"
    export DEBIAN_FRONTEND=noninteractive
    $SUDO apt-get update -qq || true
    $SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
