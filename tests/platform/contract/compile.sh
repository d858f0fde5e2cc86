#!/usr/bin/env bash
# Compiles every source of the helper library against platform/contract in the place of a platform: it uses nothing
# else. Each header of the contract must compile alone, too. TREE is the source tree.
set -euo pipefail
tree=$1

compile() {
  # shellcheck disable=SC2086 # the flags are separate words
  $CXX ${CXXFLAGS:-} -std=c++17 -Wall -Wextra -Wpedantic -Werror -fsyntax-only -Iplatform/contract -I. \
    -DDXMD_QUERY_SERVICE_NAMESPACE='""' -DDXMD_SERVICE_BUS_NAMESPACE='""' -x c++ "$1"
}
export -f compile

cd "$tree"
[ "$(find dxmd -name '*.cpp' | wc -l)" -gt 40 ]
# shellcheck disable=SC2016 # the inner shell expands it
find dxmd platform/contract \( -name '*.cpp' -o -path '*/contract/*.h' \) -print0 | xargs -0 -n1 -P2 bash -c 'compile "$0"'
