#!/usr/bin/env bash
# Quick start, first command: install what is missing, build, run the example application.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/bootstrap.sh
cmake --preset default >/dev/null
cmake --build --preset default
if [ -x build/default/tools/qbformul ]; then
    build/default/tools/qbformul demo "${1:-build/demo}"
else
    build/default/examples/qbformul_demo "${1:-build/demo}"
fi
