#!/usr/bin/env bash
# Configures SOURCE in BUILD with DXMD_INSTALL off, the command line included: nothing is left to install.
set -euo pipefail
source=$1 build=$2

rm -rf "$build"
"$CMAKE" -S "$source" -B "$build" -DDXMD_INSTALL=OFF -DDXMD_BUILD_TESTS=OFF >/dev/null
if grep -rF 'file(INSTALL' --include=cmake_install.cmake "$build"; then
  echo "something is installed" >&2
  exit 1
fi
