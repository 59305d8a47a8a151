#!/usr/bin/env bash
# Fuzzes the readers of files and of typed texts, each for SECONDS (60 by default):
# ./fuzz.sh [SECONDS]. With --runs N each reader gets N inputs from a fixed seed instead. An input that
# makes a reader fail is kept as build/fuzz/crash-...; make a test of it.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh
need_packages clang cmake ninja-build libclang-rt-14-dev python3-cryptography

limit=(-max_total_time="${1:-60}")
[ "${1:-}" = --runs ] && limit=(-runs="$2" -seed=1)

cmake -S tests/fuzz -B build/fuzz -G Ninja -DCMAKE_CXX_COMPILER=clang++ >/dev/null
cmake --build build/fuzz

# Seeds are the tests' own data; what is found while running is kept apart from them.
seeds=build/fuzz/seeds
mkdir -p $seeds/{native,legacy,rules}
cp tests/data/payload-*.bin $seeds/native
tests/data/make.py --json >$seeds/legacy/estimate.json
n=0
while IFS= read -r text; do printf '%s' "$text" >"$seeds/rules/$((n += 1))"; done <<'TEXTS'
 02/29/2024 9:00
2024-02-29T23:59:59.123Z
$1,234.50e-3
ann.lee@example.com
123-456-7890
62701-1234
CON: a/b\c|"?"
TEXTS

for target in native legacy rules; do
  mkdir -p build/fuzz/found/$target
  echo "== $target"
  build/fuzz/fuzz_$target "${limit[@]}" -print_final_stats=1 -artifact_prefix=build/fuzz/crash-$target- \
    build/fuzz/found/$target $seeds/$target 2>&1 | grep -E 'stat::(number|average|peak)|ERROR|SUMMARY|runtime error|artifact' &&
    [ "${PIPESTATUS[0]}" -eq 0 ] || { echo "$target failed"; exit 1; }
done
echo "Every reader survived."
