#!/usr/bin/env bash
# Installs the build tree into a scratch prefix and builds a tiny consumer against it twice: through
# the exported CMake package and through pkg-config.
set -euo pipefail
build_dir=$1
source_dir=$(cd "$(dirname "$0")" && pwd)/consumer
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake --install "$build_dir" --prefix "$work/prefix" >/dev/null
export NUMBERING_CONFIG_DIR="$work/prefix/share/numbering/"
export LD_LIBRARY_PATH="$work/prefix/lib:${LD_LIBRARY_PATH:-}"
libdir=$(ls -d "$work"/prefix/lib*/ | head -n 1)
export LD_LIBRARY_PATH="$libdir:$LD_LIBRARY_PATH"

cmake -S "$source_dir" -B "$work/cmake-build" -DCMAKE_PREFIX_PATH="$work/prefix" >/dev/null
cmake --build "$work/cmake-build" >/dev/null
echo "find_package consumer: $("$work/cmake-build/consumer")"

PKG_CONFIG_PATH="$libdir/pkgconfig" \
  g++ -std=c++17 "$source_dir/main.cpp" -o "$work/pc-consumer" $(PKG_CONFIG_PATH="$libdir/pkgconfig" pkg-config --define-prefix --cflags --libs numbering)
echo "pkg-config consumer: $("$work/pc-consumer")"

test -x "$work/prefix/bin/numbering"
ls "$work"/prefix/lib*/libNumbering.so.1 >/dev/null
echo "installed tree complete"
