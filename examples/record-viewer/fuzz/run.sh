#!/usr/bin/env bash
# Builds the fuzz target with clang, writes its seeds and runs it: run.sh [INPUTS], by default a million.
# An input that takes longer than a second counts as a failure, as do leaks and undefined behaviour.
set -eu
cd "$(dirname "$0")/../../.."
inputs=${1:-1000000}

cmake --preset fuzz >/dev/null
cmake --build --preset fuzz
tools=build/fuzz/examples/record-viewer/fuzz
$tools/make-fuzz-seeds build/fuzz/seeds
mkdir -p build/fuzz/corpus
exec $tools/fuzz-record -runs="$inputs" -timeout=1 -max_len=4096 -print_final_stats=1 \
    -dict=examples/record-viewer/fuzz/record.dict -artifact_prefix=build/fuzz/ build/fuzz/corpus build/fuzz/seeds
