#!/usr/bin/env bash
# Fuzzes the readers of files and of typed texts, starting from the inputs in tests/fuzz/corpus.
#   ./fuzz.sh [SECONDS]   each reader for so long (60 by default), also from what earlier runs found
#   ./fuzz.sh --runs N    each reader with N inputs, from a fixed seed and the corpus alone; only one
#                         reader with --runs N native, legacy or rules
#   ./fuzz.sh --keep      makes the corpus anew: the fewest inputs that do all that is found by now
#   ./fuzz.sh --coverage  how many lines of the readers the corpus reaches, and why not the others
# An input that makes a reader fail is kept as build/fuzz/crash-...; make a test of it. To add an input
# by hand, put it into build/fuzz/found/native (or legacy, or rules) and run --keep.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh

targets='native legacy rules'
corpus=tests/fuzz/corpus
fuzz=build/fuzz

build() {  # folder, compiler flags
  need_packages clang cmake ninja-build libclang-rt-14-dev
  cmake -S tests/fuzz -B "$1" -G Ninja -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_CXX_FLAGS="${2:-}" >/dev/null
  cmake --build "$1"
}

unpack() {
  for target in $targets; do
    rm -rf $fuzz/{corpus,merged}/$target
    mkdir -p $fuzz/{corpus,merged,new,found}/$target
    tar -xzf $corpus/$target.tar.gz -C $fuzz/corpus/$target
    # Here, and not after a run, so that one that was ended early counts too.
    find $fuzz/new/$target -type f -exec mv -t $fuzz/found/$target {} +
  done
  # So that a new version of the format is fuzzed from its first day.
  cp tests/data/payload-*.bin $fuzz/corpus/native
}

run() {  # the folders to start from, the options
  for target in $targets; do
    echo "== $target"
    local log=$fuzz/$target.log outcome=0 longest=4096
    # Typed texts are short, and long ones take most of the time.
    [ $target != rules ] || longest=512
    $fuzz/fuzz_$target "${@:2}" -max_len=$longest -timeout=20 -print_final_stats=1 \
      -artifact_prefix=$fuzz/crash-$target- $fuzz/new/$target $(printf "$fuzz/%s/$target " $1) \
      >$log 2>&1 || outcome=$?
    grep -E 'DONE|stat::(number|average|peak)|ERROR|SUMMARY|runtime error|artifact' $log || true
    [ $outcome -eq 0 ] || { echo "$target failed: see $log"; exit 1; }
  done
  echo "Every reader survived."
}

keep() {
  for target in $targets; do
    $fuzz/fuzz_$target -set_cover_merge=1 $fuzz/{merged,corpus,found}/$target 2>&1 | tail -n 1
    # The same inputs give the same archive.
    tar --sort=name --mtime=@0 --owner=0 --group=0 --numeric-owner --mode=644 --format=ustar -c \
      -C $fuzz/merged/$target . | gzip -n9 >$corpus/$target.tar.gz
    rm -r $fuzz/found/$target
  done
  du -bc $corpus/*
}

coverage() {
  local folder=build/fuzz-coverage programs=()
  build $folder '-fprofile-instr-generate -fcoverage-mapping'
  need_packages llvm-14 python3
  for target in $targets; do
    LLVM_PROFILE_FILE=$folder/$target.profraw $folder/fuzz_$target -runs=0 $fuzz/corpus/$target \
      2>$folder/$target.log
    programs+=(-object $folder/fuzz_$target)
  done
  llvm-profdata-14 merge -o $folder/all.profdata $folder/*.profraw
  programs+=(-instr-profile=$folder/all.profdata -ignore-filename-regex=tests/)
  # It warns that a function of the targets has the same name in each.
  llvm-cov-14 report -show-region-summary=0 -show-branch-summary=0 "${programs[@]}" 2>/dev/null
  llvm-cov-14 export -format=lcov "${programs[@]}" 2>/dev/null | tests/fuzz/unreached.py
}

case ${1:-60} in
  [0-9]*) build $fuzz; unpack; run 'corpus found' -max_total_time="${1:-60}" ;;
  --runs) build $fuzz; unpack; targets=${3:-$targets}; run corpus -runs="$2" -seed=1 ;;
  --keep) build $fuzz; unpack; keep ;;
  --coverage) unpack; coverage ;;
  *) sed -n '2,9s/^# //p' "$0"; exit 2 ;;
esac
