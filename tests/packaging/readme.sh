#!/usr/bin/env bash
# Compiles each C++ program that the document FILE shows, against the installed headers in INCLUDES.
set -euo pipefail
file=$1 includes=$2

blocks=$(grep -c '^```cpp$' "$file")
[ "$blocks" -gt 0 ]
for ((block = 1; block <= blocks; ++block)); do
  # shellcheck disable=SC2086 # the flags are separate words
  awk -v wanted="$block" '/^```cpp$/ { inside = ++n == wanted; next } /^```$/ { inside = 0 } inside' "$file" |
    $CXX ${CXXFLAGS:-} -std=c++17 -Wall -Wextra -Wpedantic -Werror -fsyntax-only -I"$includes" -x c++ -
done
