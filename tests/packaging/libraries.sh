#!/usr/bin/env bash
# Looks into the installed libraries: each carries its name and version, needs what it should, and exports nothing but
# what its own headers declare.
set -euo pipefail
libdir=$1 includes=$2 version=$3

fail() {
  echo "$*" >&2
  exit 1
}

dynamic() { # TAG LIBRARY
  readelf -d "$libdir/$2" | sed -n "s/.*($1).*\[\(.*\)\]/\1/p"
}

# check LIBRARY HEADERS-FOLDER NEEDED...
check() {
  local library=$1 headers=$2 runtime='^lib(stdc\+\+|gcc_s|c|m)\.so|^ld-linux'
  shift 2
  [ "$(dynamic SONAME "$library.so")" = "$library.so.${version%%.*}" ] || fail "$library: wrong SONAME"
  [ -f "$libdir/$library.so.$version" ] || fail "$library: no file of version $version"

  local needed
  needed=$(dynamic NEEDED "$library.so" | grep -Ev "$runtime" | sed 's/\.so.*//; s/-[0-9.]*$//' | LC_ALL=C sort | xargs)
  [ "$needed" = "$*" ] || fail "$library: needs \"$needed\" and not \"$*\""

  # The interface is what the headers declare with the library's export macro, classes and functions alike.
  local interface exported foreign
  interface=$(grep -rhoE '[A-Z]+_API [^(;{]*' "$includes/$headers" |
    sed -E 's/ (final|:) .*//; s/ +$//; s/.*[ &*]//' | sort -u | paste -sd '|')
  # An absolute symbol (A) is the version's own name.
  exported=$(nm -DC --defined-only --without-symbol-versions "$libdir/$library.so" | cut -d' ' -f2- | sed -n 's/^[^A] //p' |
    sed -E 's/^(vtable|VTT|typeinfo|typeinfo name) for //; s/^(trn|trnidom)_detail:://; s/^std::hash<I18NString>:://')
  [ -n "$exported" ] || fail "$library: exports nothing"
  foreign=$(grep -Ev "^(dxmd_actionhelper_resources::)?($interface)([^A-Za-z0-9_]|$)" <<<"$exported" || true)
  [ -z "$foreign" ] || fail "$library exports more than its interface: $foreign"
}

check libTRNCore trn libicuuc
check libTRNIDOM trnidom libTRNCore libexpat libicuuc
check libDXMD_ActionHelper dxmd libTRNCore libTRNIDOM
