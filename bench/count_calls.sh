#!/usr/bin/env bash
# Counts the calls one warm makeCanonicalNumber makes (a German installation in Munich), with
# callgrind: counters zeroed on entry to the measured call and dumped on its return, then every
# call arc of the dump summed. String copies and library calls count like our own functions.
#
#   bash bench/count_calls.sh [build directory, default build] [number, default "+49 89 123456"]
set -euo pipefail
cd "$(dirname "$0")/.."
build=$(realpath "${1:-build}")
shift || true
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# -fno-ipa-icf: the warm-up and the measured call stay two functions.
g++ -std=c++17 -O2 -fno-ipa-icf -Iinclude -I"$build/include" bench/support/OneConversion.cpp -o "$work/one" \
  -L"$build" -lNumbering -Wl,-rpath,"$build" -lPocoFoundation
NUMBERING_CONFIG_DIR=$PWD/data/ valgrind --tool=callgrind --callgrind-out-file="$work/out" \
  --zero-before=measured --dump-after=measured "$work/one" "$@" 2>/dev/null
python3 - "$work"/out.* <<'PY'
import collections, re, sys
names, calls = {}, collections.Counter()
for line in open(sys.argv[1]):
    m = re.match(r'cfn=\((\d+)\)(?: (.*))?', line)
    if m:
        callee = names.setdefault(m.group(1), (m.group(2) or '').strip())
    m = re.match(r'fn=\((\d+)\) (.*)', line)
    if m:
        names[m.group(1)] = m.group(2).strip()
    m = re.match(r'calls=(\d+)', line)
    if m:
        calls[callee] += int(m.group(1))
print(f"{sum(calls.values())} calls, {len(calls)} functions")
for name, n in calls.most_common():
    if n:
        print(f"{n:4} {name[:120]}")
PY
