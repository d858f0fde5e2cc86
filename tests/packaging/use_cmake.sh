#!/usr/bin/env bash
# Configures the project SOURCE afresh in BUILD with the options given, builds it and runs its program.
set -euo pipefail
source=$1 build=$2
shift 2

rm -rf "$build"
"$CMAKE" -S "$source" -B "$build" "$@"
"$CMAKE" --build "$build" --parallel 2
"$build/consumer" | grep -F 'defaultName="Sales"'
