#!/usr/bin/env bash
# Sets up a fresh Debian 12 machine (as root) with what the build needs, checks that every C++ file
# is laid out as the committed .clang-format lays it out, then builds with warnings as errors and
# runs every test of the library three ways: the normal build (with the checks of what is shipped:
# exported symbols, prefix install, Debian packages under lintian, generated configuration, and the
# API reference without a Doxygen warning), the whole suite under AddressSanitizer and UBSan (with a
# short run of each fuzzer), and the concurrency test and the tool's batch on several jobs under
# ThreadSanitizer.
set -euo pipefail
cd "$(dirname "$0")/.."

bash tools/install-packages.sh cmake make g++ clang libclang-rt-14-dev clang-format-14 pkg-config python3 scdoc \
  groff-base libpoco-dev libgtest-dev libgmock-dev libbenchmark-dev dpkg-dev file lintian doxygen

jobs=$(nproc)
fuzz_seconds=${NUMBERING_FUZZ_SECONDS:-30}

echo "== formatting: every C++ file as the committed .clang-format lays it out"
find include src tests tools bench fuzz examples -name '*.h' -o -name '*.cpp' | sort |
  xargs clang-format-14 --dry-run --Werror

echo "== normal build"
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo -DNUMBERING_BUILD_BENCH=ON -DNUMBERING_WERROR=ON >/dev/null
cmake --build build -j"$jobs"
ctest --test-dir build -j"$jobs" --output-on-failure
cmake --build build --target docs # the API reference: any Doxygen warning fails the build

echo "== AddressSanitizer and UBSan build, with the fuzzers"
CXX=clang++ cmake -S . -B build-sanitize -DCMAKE_BUILD_TYPE=Debug -DNUMBERING_SANITIZE=address,undefined \
  -DNUMBERING_BUILD_FUZZ=ON -DNUMBERING_WERROR=ON >/dev/null
cmake --build build-sanitize -j"$jobs"
ASAN_OPTIONS=detect_leaks=1 ctest --test-dir build-sanitize -j"$jobs" --output-on-failure
# Each target's inputs may grow to its largest seed (at least 4096 bytes), so that no seed is cut.
for target in conversions property_files; do
  corpus=$(mktemp -d)
  log=$(mktemp)
  cp fuzz/corpus/"$target"/* "$corpus"/
  largest=$(wc -c fuzz/corpus/"$target"/* | grep -v ' total$' | sort -n | tail -n 1 | awk '{print $1}')
  max_len=$((largest > 4096 ? largest : 4096))
  if ! ./build-sanitize/fuzz/fuzz_"$target" -max_total_time="$fuzz_seconds" -max_len="$max_len" \
      -print_final_stats=1 "$corpus" >"$log" 2>&1; then
    tail -n 60 "$log"
    echo "fuzz_$target found a fault"
    exit 1
  fi
  echo "fuzz_$target: $(grep -E '^stat::number_of_executed_units' "$log") in ${fuzz_seconds}s"
  rm -rf "$corpus" "$log"
done

echo "== ThreadSanitizer build of the concurrency test and of the tool's batch on several jobs"
CXX=clang++ cmake -S . -B build-tsan -DCMAKE_BUILD_TYPE=RelWithDebInfo -DNUMBERING_SANITIZE=thread \
  -DNUMBERING_WERROR=ON >/dev/null
cmake --build build-tsan -j"$jobs" --target test_concurrency numbering
TSAN_OPTIONS=halt_on_error=1 ctest --test-dir build-tsan -R '^(concurrency|tool_batch)$' --output-on-failure
