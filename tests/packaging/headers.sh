#!/usr/bin/env bash
# Compiles each installed header alone: it includes what it uses, and nothing that is not installed or belongs to the
# packages that the libraries use inside.
set -euo pipefail
includes=$1

compile_alone() {
  local log
  # shellcheck disable=SC2086 # the flags are separate words
  if ! log=$($CXX ${CXXFLAGS:-} -std=c++17 -Wall -Wextra -Wpedantic -Werror -H -fsyntax-only -I"$1" -x c++ "$2" 2>&1); then
    printf '%s does not compile alone:\n%s\n' "$2" "$log"
    return 1
  fi
  if grep -E '^\.+ .*/(unicode/|expat|xercesc/)' <<<"$log"; then
    echo "$2 includes a header of a dependency"
    return 1
  fi
}
export -f compile_alone

[ "$(find "$includes" -name '*.h' | wc -l)" -gt 50 ]
# shellcheck disable=SC2016 # the inner shell expands it
find "$includes" -name '*.h' -print0 | xargs -0 -n1 -P2 bash -c 'compile_alone "$0" "$1"' "$includes"
