#!/usr/bin/env bash
# Builds the benchmarks in a Release build of their own and runs them all: the conversions (with
# their allocations and the 1 and 2 thread throughput), the cold start, the plans, and, when the
# other phone number library is installed, the side-by-side comparison with its ratio table.
#
#   bash bench/run.sh [build directory, default build-bench] [extra Google Benchmark flags]
#
# Every figure is the median of the repetitions, which run in random order so that a noisy moment
# of the machine does not fall on one benchmark only.
set -euo pipefail
cd "$(dirname "$0")/.."

build=${1:-build-bench}
shift || true

cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Release -DNUMBERING_BUILD_BENCH=ON -DNUMBERING_BUILD_TESTS=OFF >/dev/null
cmake --build "$build" -j"$(nproc)" --target numbering_bench >/dev/null

flags=(--benchmark_repetitions=7 --benchmark_enable_random_interleaving=true
       --benchmark_report_aggregates_only=true --benchmark_min_time=0.2 --benchmark_color=false "$@")

# Only the medians of the aggregates are shown.
medians() { grep -vE '_(mean|stddev|cv) '; }

echo "== machine"
echo "$(nproc) cores, $(grep -m1 'model name' /proc/cpuinfo | cut -d: -f2 | sed 's/^ //'), $(uname -sr)"

echo "== conversions and cold start (shipped configuration, bench/inputs.tsv)"
"$build"/bench/numbering_bench_conversions "${flags[@]}" | medians

echo "== plans"
"$build"/bench/numbering_bench_plans "${flags[@]}" | medians

# The comparison is single-threaded: both libraries run on the same core, so that the ratios do
# not depend on which core the scheduler chose for each.
pin=()
if command -v taskset >/dev/null; then
  pin=(taskset -c "$(taskset -pc $$ | sed 's/.*: //; s/[-,].*//')")
fi

if [ -x "$build"/bench/numbering_bench_comparison ]; then
  echo "== side by side with the other library"
  "${pin[@]}" "$build"/bench/numbering_bench_comparison "${flags[@]}" | medians
else
  echo "== side by side: skipped (the other library is not installed)"
fi
