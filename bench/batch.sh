#!/usr/bin/env bash
# Batch mode of the command-line tool on one and on every core: numbers per second of
#   numbering -c FR canonical --jobs N < numbers > results
# over the numbers of bench/inputs.tsv repeated, with the results written to a file.
#
#   bash bench/batch.sh [build directory, default build-bench] [numbers, default 2000000] [runs, default 5]
#
# The runs of each job count alternate; the medians are shown, the CPU time per number too, with
# the load average before and after: on a machine busy with other work only the CPU time means much.
set -euo pipefail
cd "$(dirname "$0")/.."

build=${1:-build-bench}
count=${2:-2000000}
runs=${3:-5}

if [ ! -x "$build/tools/numbering/numbering" ]; then
  cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Release -DNUMBERING_BUILD_TESTS=OFF >/dev/null
  cmake --build "$build" -j"$(nproc)" --target numbering >/dev/null
fi
tool=$build/tools/numbering/numbering
export NUMBERING_CONFIG_DIR=$PWD/data/

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
tail -n +2 bench/inputs.tsv | cut -f6 >"$work/set"
awk -v count="$count" '{ number[NR] = $0 } END { for (i = 0; i < count; ++i) print number[i % NR + 1] }' \
  "$work/set" >"$work/numbers"

cores=$(nproc)
echo "$cores cores, $(grep -m1 'model name' /proc/cpuinfo | cut -d: -f2 | sed 's/^ //'); $count numbers"
echo "load average before: $(cut -d' ' -f1-3 /proc/loadavg)"
# Wall and CPU seconds (user + system) of each run, by job count.
declare -A wall cpu
TIMEFORMAT='%R %U %S'
for ((run = 0; run < runs; ++run)); do
  for jobs in 1 "$cores"; do
    read -r real user system < <({ time "$tool" -c FR canonical --jobs "$jobs" <"$work/numbers" \
      >"$work/results"; } 2>&1)
    wall[$jobs]+="$real "
    cpu[$jobs]+="$(awk -v u="$user" -v s="$system" 'BEGIN { print u + s }') "
  done
done
echo "load average after: $(cut -d' ' -f1-3 /proc/loadavg)"

median() { tr ' ' '\n' | grep . | sort -g | awk '{ v[NR] = $1 } END { print v[int((NR + 1) / 2)] }'; }
for jobs in 1 "$cores"; do
  awk -v n="$count" -v jobs="$jobs" -v wall="$(median <<<"${wall[$jobs]}")" \
    -v cpu="$(median <<<"${cpu[$jobs]}")" 'BEGIN {
    printf "--jobs %d: %.2f M numbers/s (%.2f s), %.0f ns of CPU a number\n", jobs, n / wall / 1e6, wall,
      cpu / n * 1e9 }'
done
awk -v one="$(median <<<"${wall[1]}")" -v all="$(median <<<"${wall[$cores]}")" \
  'BEGIN { printf "ratio: %.2fx\n", one / all }'
