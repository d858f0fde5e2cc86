#!/usr/bin/env bash
# Installs BUILD component by component: together they are all that is installed in PREFIX, so that no package lacks any.
set -euo pipefail
build=$1 prefix=$2
parts=$prefix.components

rm -rf "$parts"
for component in runtime development tool; do
  "$CMAKE" --install "$build" --prefix "$parts" --component "$component" >/dev/null
done
diff -u <(cd "$prefix" && find . ! -type d | LC_ALL=C sort) <(cd "$parts" && find . ! -type d | LC_ALL=C sort)
