#!/usr/bin/env bash
# Installs BUILD and moves the result to PREFIX: what is installed names no place outside itself.
set -euo pipefail
build=$1 prefix=$2

rm -rf "$prefix" "$prefix.staged"
"$CMAKE" --install "$build" --prefix "$prefix.staged" >/dev/null
mv "$prefix.staged" "$prefix"

if grep -rI -e "$build" -e "$prefix.staged" "$prefix"; then
  echo "names a place outside the prefix" >&2
  exit 1
fi
