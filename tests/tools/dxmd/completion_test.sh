#!/usr/bin/env bash
# Completes command lines as bash would with the script that the program DXMD prints.
set -euo pipefail
dxmd=$(realpath "$1")
export LC_ALL=C

# shellcheck source=/dev/null
source <("$dxmd" help --bash)
[[ $(complete -p dxmd) == *' -F _dxmd '* ]]

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
touch reply.xml 'reply two.xml' kinds.txt

status=0
# What stands for WORDS, of which the last is being typed: one line each.
offered() { # WORDS...
  COMP_WORDS=(dxmd "$@")
  COMP_CWORD=$#
  _dxmd
  [ ${#COMPREPLY[@]} -eq 0 ] || printf '%s\n' "${COMPREPLY[@]}" | sort
}
expect() { # EXPECTED, IN ONE LINE; WORDS...
  local expected=$1 found
  shift
  found=$(offered "$@" | paste -sd ' ')
  [ "$found" = "$expected" ] || {
    printf 'dxmd %s: offers "%s" and not "%s"\n' "$*" "$found" "$expected" >&2
    status=1
  }
}
lines() { # HEADING: the names below it in help
  sed -nE "/^$1:/,/^\$/s/^  ([^ ]+).*/\1/p" | sort | paste -sd ' '
}

expect "$("$dxmd" --help | lines Verbs)" ''
expect "$("$dxmd" kinds | sed 's/ .*//' | sort | paste -sd ' ')" encode ''
expect "$("$dxmd" help encode execute | lines Options | sed 's/[, ]/\n/g' | sort | paste -sd ' ')" encode execute -
expect 'decode' dec
expect 'execute' encode exec
expect 'execute' encode --indent 2 exec
expect 'execute' kinds exe
expect '' kinds execute ''
expect 'kinds' help ki
expect 'execute' help encode exe
expect "reply two.xml reply.xml" decode response re
expect 'kinds.txt' decode response ki
expect '' encode execute reply.xml kin
expect 'kinds.txt' decode response reply.xml kin
expect 'kinds.txt' check ki
expect '--format' decode response --fo
expect '' decode execute --fo
expect 'csv json ndjson table' decode response --format ''
expect 'json text' decode feedback reply.xml --format ''
expect 'table' decode response --format = ta
expect 'csv json ndjson table' decode response --format =
expect 'kinds.txt' encode execute --output ki
expect 'kinds.txt' encode definitionFile --from ki
expect '' encode execute --indent ''
exit $status
