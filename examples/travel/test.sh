#!/usr/bin/env bash
# Asks the stand-in service by program and by curl: test.sh BUILD. What they print stands beside.
set -euo pipefail
build=$1
cd "$(dirname "$0")"

exec 3< <(exec "$build/examples/travel/stand_in_service" ../messages)
service=$!
trap 'kill $service' EXIT
read -r url <&3
export no_proxy=127.0.0.1

"$build/examples/travel/travel" "$url" | diff travel.txt -
PATH=$build/tools/dxmd:$PATH ./curl.sh "$url" | diff curl.txt -
