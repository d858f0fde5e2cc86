#!/usr/bin/env bash
# Formats the manual page of the program DXMD, without a warning, and looks in it for every verb, option and status that
# the program's help has, and for every kind.
set -euo pipefail
dxmd=$1
export LC_ALL=C.UTF-8

page=$("$dxmd" help --man)
warnings=$(groff -ww -K utf8 -man -Tutf8 -z <<<"$page" 2>&1)
[ -z "$warnings" ] || {
  echo "$warnings" >&2
  exit 1
}
text=$(groff -K utf8 -man -Tascii -P-cbou -rLL=1000n <<<"$page")

status=0
needs() { # REGULAR EXPRESSION...
  for expression in "$@"; do
    grep -qE -e "$expression" <<<"$text" || {
      echo "the manual page lacks $expression" >&2
      status=1
    }
  done
}
named() { # LINES OF HELP BELOW HEADING...
  sed -nE "/^$1:/,/^\$/s/^  ([^ ]+).*/\1/p"
}

help=$("$dxmd" --help)
verbs=$(named Verbs <<<"$help")
kinds=$("$dxmd" kinds | sed 's/ .*//')
[ -n "$verbs" ] && [ -n "$kinds" ]
options=$(
  "$dxmd" --help | named Options
  for verb in $verbs; do
    "$dxmd" help "$verb" | named Options
    for kind in $("$dxmd" help "$verb" | named Kinds); do "$dxmd" help "$verb" "$kind" | named Options; done
  done
)
for name in $verbs; do needs "^ +dxmd $name "; done
for name in $kinds $(named 'Exit status' <<<"$help"); do needs "^ +$name( |$)"; done
for name in $(tr ',' '\n' <<<"$options" | sort -u); do needs "^ +(-., )?$name(,|[[:space:]]|$)"; done
exit $status
