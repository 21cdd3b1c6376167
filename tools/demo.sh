#!/usr/bin/env bash
# Sets up a fresh Debian 12 machine (as root) with what the build needs, builds the library and its
# command-line tool, and runs the tool on real numbers with the shipped default configuration.
set -euo pipefail
cd "$(dirname "$0")/.."

bash tools/install-packages.sh cmake make g++ libpoco-dev scdoc

cmake -S . -B build-tool -DCMAKE_BUILD_TYPE=Release -DNUMBERING_BUILD_TESTS=OFF >/dev/null
cmake --build build-tool -j"$(nproc)" --target numbering >/dev/null
numbering=./build-tool/tools/numbering/numbering
# The shipped configuration, whatever the machine's library directory holds.
export NUMBERING_CONFIG_DIR=$PWD/data/

show() { printf '$ numbering'; printf ' %q' "$@"; printf '\n'; "$numbering" "$@"; echo; }

echo "A French installation (outside-line prefix 0, own area code 1):"
show -c FR -x 0 -a 1 canonical "01 23 45 67 89"
show -c FR -x 0 -a 1 dial "+49 (89) 123456"
show -c FR -x 0 -a 1 clid "0123456789" "0612345678" "0044 20 7946 0958"
show -c FR -x 0 -a 1 gsm "06 12 34 56 78"

echo "A German installation in Munich (outside-line prefix 0, area code 89):"
show -c DE -x 0 -a 89 canonical "030 1234567" "1234567"
show -c DE -x 0 -a 89 dial "+49 (30) 1234567" "+49 (89) 1234567"

echo "A batch from standard input, for a United States installation (outside-line prefix 9):"
printf '%s\n' "2125551234" "5551234" "+44 20 7946 0958" | \
  { echo "$ printf ... | numbering -c US -x 9 -a 212 canonical"; "$numbering" -c US -x 9 -a 212 canonical; }
