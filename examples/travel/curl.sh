#!/usr/bin/env bash
# Sends three commands with curl and says what came back: curl.sh [URL], by default that of the stand-in service.
set -euo pipefail
cd "$(dirname "$0")/../messages/queryframework"

url=${1:-http://127.0.0.1:8080}
reply=$(mktemp)
trap 'rm -f "$reply"' EXIT

ask() { # KIND [FILE]
  dxmd encode "$@" |
    curl --silent --show-error --header 'Content-Type: text/xml; charset=utf-8' --data-binary @- --output "$reply" "$url"
}

tell() {
  local status=0 told
  told=$(dxmd decode "$reply" 2>/dev/null) || status=$?
  case $status in
    0) dxmd decode response "$reply" --format table ;;
    6) echo "$told" ;; # a fault, or a reply that reports errors
    *) return "$status" ;;
  esac
}

ask execute execute.json
tell
sed 's/Sales/Orders/g' execute.json | ask execute
tell
ask validate validate.json
tell
