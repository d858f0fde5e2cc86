#!/usr/bin/env bash
# Builds a copy of the examples in EXAMPLES on their own, in FOLDER, against what is installed in PREFIX, and runs their
# tests.
set -euo pipefail
examples=$1 folder=$2 prefix=$3

rm -rf "$folder"
cp -r "$examples" "$folder"
# One family of the smallest programs stands for all.
find "$folder/messages" -mindepth 1 -maxdepth 1 -type d ! -name queryservice -exec rm -r {} +
"$CMAKE" -S "$folder" -B "$folder/build" -DCMAKE_PREFIX_PATH="$prefix"
"$CMAKE" --build "$folder/build" --parallel 2
"${CMAKE%/*}/ctest" --test-dir "$folder/build" --output-on-failure --no-tests=error
