#!/usr/bin/env bash
# Run in a system where nothing is installed, with the packages as a tar file in its input: installs them, uses them, and
# removes them. Packages come first that programs run with, so that it shows if they need more than they say.
set -euo pipefail
consumer=$PWD/tests/packaging/consumer
work=$(mktemp -d)
tar -x -C "$work"
cd "$work"

install() {
  DEBIAN_FRONTEND=noninteractive apt-get -qq install -y --no-install-recommends "$@" </dev/null >/dev/null
}
apt-get -qq update

install ./libdxmd-actionhelper1_*_amd64.deb ./dxmd_*_amd64.deb
dxmd --version
dxmd example execute | dxmd encode execute >execute.xml
dxmd decode execute --show-secrets execute.xml | dxmd encode execute | cmp - execute.xml

install ./libdxmd-actionhelper-dev_*_amd64.deb g++ cmake make pkg-config
# shellcheck disable=SC2046 # the flags are separate words
g++ "$consumer/main.cpp" -o with_pkgconfig $(pkg-config --cflags --libs dxmd-actionhelper)
cmake -S "$consumer" -B with_cmake >/dev/null
cmake --build with_cmake
for program in ./with_pkgconfig with_cmake/consumer; do
  "$program" | grep -F 'defaultName="Sales"'
done

apt-get -qq purge -y dxmd libdxmd-actionhelper-dev libdxmd-actionhelper1 >/dev/null
if find / -xdev \( -path /dxmd -o -path "$work" -o -path /proc \) -prune -o -iname '*dxmd*' -print -o -iname 'libTRN*' -print |
  grep .; then
  echo "is left behind" >&2
  exit 1
fi

# The archive, on what else the packages depended on.
tar -xzf dxmd-actionhelper-*-x86_64-linux-gnu.tar.gz
archive=$(echo "$work"/dxmd-actionhelper-*-x86_64-linux-gnu)
"$archive/bin/dxmd" --version
cmake -S "$consumer" -B with_archive -DCMAKE_PREFIX_PATH="$archive" >/dev/null
cmake --build with_archive
with_archive/consumer | grep -F 'defaultName="Sales"'
