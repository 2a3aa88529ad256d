#!/usr/bin/env bash
# Builds and runs examples/consumer against qbformul, as a consumer would: mode "subdirectory" through
# add_subdirectory of the source tree, mode "package" through find_package after cmake --install, mode
# "static" through add_subdirectory with the library linked statically. Runs both programs of the example:
# the one that names its forms and the one that reaches them only through the factory.
set -euo pipefail
mode=$1 source_dir=$2 build_dir=$3 work=$4
rm -rf "$work" && mkdir -p "$work"
case "$mode" in
subdirectory)
    cmake -S "$source_dir/examples/consumer" -B "$work/build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DQBFORMUL_SOURCE_DIR="$source_dir" >/dev/null
    ;;
package)
    cmake --install "$build_dir" --prefix "$work/prefix" >/dev/null
    cmake -S "$source_dir/examples/consumer" -B "$work/build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_PREFIX_PATH="$work/prefix" >/dev/null
    ;;
static)
    cmake -S "$source_dir/examples/consumer" -B "$work/build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DQBFORMUL_SOURCE_DIR="$source_dir" -DBUILD_SHARED_LIBS=OFF >/dev/null
    ;;
*) echo "usage: consumer_test.sh subdirectory|package|static SOURCE BUILD WORK" >&2; exit 2 ;;
esac
cmake --build "$work/build" >/dev/null
export LD_LIBRARY_PATH="$work/prefix/lib:${LD_LIBRARY_PATH:-}"
"$work/build/consumer" "$work"
"$work/build/fabrik" "$work"
