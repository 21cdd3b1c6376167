#!/usr/bin/env bash
# A prefix install, moved elsewhere, used by consumers through CMake and pkg-config and by its tool,
# none remembering the prefix or needing LD_LIBRARY_PATH.
#   check-install.sh <build directory>
set -euo pipefail
build_dir=$1
source_dir=$(cd "$(dirname "$0")" && pwd)/consumer
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
unset LD_LIBRARY_PATH NUMBERING_CONFIG_DIR

cmake --install "$build_dir" --prefix "$work/installed" >/dev/null
mv "$work/installed" "$work/prefix"
prefix=$work/prefix
library=$(find "$prefix" -name libNumbering.so.2)
libdir=$(dirname "$library")
echo "library: ${library#"$prefix"/}"

cmake -S "$source_dir" -B "$work/cmake-build" -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build "$work/cmake-build" >/dev/null
echo "find_package consumer: $(NUMBERING_CONFIG_DIR=$prefix/share/numbering/ "$work/cmake-build/consumer")"

export PKG_CONFIG_PATH="$libdir/pkgconfig"
test "$(realpath "$(pkg-config --variable=prefix numbering)")" = "$prefix"
# shellcheck disable=SC2046 # the flags are meant to split
g++ -std=c++17 "$source_dir/main.cpp" -o "$work/pc-consumer" $(pkg-config --cflags --libs numbering) \
  -Wl,-rpath,"$(pkg-config --variable=libdir numbering)"
echo "pkg-config consumer: $(NUMBERING_CONFIG_DIR=$prefix/share/numbering/ "$work/pc-consumer")"

# The tool finds the library by its RUNPATH and the configuration beside it, where a mask file counts.
tool=$prefix/bin/numbering
readelf -d "$tool" | grep -q 'RUNPATH.*\$ORIGIN/'
"$tool" --version
expect() {
    local got
    got=$("$tool" -c FR -x 0 -a 1 canonical "01 23 45 67 89")
    if [ "$got" != "$1" ]; then
        echo "installed tool: expected '$1', got '$got'"
        exit 1
    fi
}
expect "+33 (0) 1 23 45 67 89"
echo "Mask_33_1=C-A-x" >"$prefix/share/numbering/dlr_cnp_mask.properties"
expect "33-0-123456789"
echo "installed tool runs on its shipped configuration"
