#!/usr/bin/env bash
# Compiles SOURCE into PROGRAM with what pkg-config says of the package in LIBDIR, and runs it.
set -euo pipefail
source=$1 libdir=$2 program=$3

# Nothing but this package: the program needs no other.
flags=$(PKG_CONFIG_LIBDIR=$libdir/pkgconfig pkg-config --cflags --libs dxmd-actionhelper)
# shellcheck disable=SC2086 # the flags are separate words
$CXX ${CXXFLAGS:-} "$source" -o "$program" $flags
LD_LIBRARY_PATH=$libdir "$program" | grep -F 'defaultName="Sales"'
