#!/usr/bin/env bash
# Runs the installed command line with nothing set, and looks for what is installed beside it: the manual page and the
# completion it prints itself. Of Debian it names at run time the packages that PACKAGES lists, and no other.
set -euo pipefail
prefix=$1 packages=$2

env -i "$prefix/bin/dxmd" kinds >/dev/null
diff "$prefix/share/man/man1/dxmd.1" <("$prefix/bin/dxmd" help --man)
diff "$prefix/share/bash-completion/completions/dxmd" <("$prefix/bin/dxmd" help --bash)

# It finds the schemas from where it is.
env -i "$prefix/bin/dxmd" example packages | "$prefix/bin/dxmd" encode packages | "$prefix/bin/dxmd" check >/dev/null

# PACKAGES lists those of Debian 12; other releases have other names.
grep -qx 'VERSION_CODENAME=bookworm' /etc/os-release && command -v dpkg-query >/dev/null || exit 0
# What the program and its own libraries name; apt brings what that needs in turn.
named=$(ldd "$prefix/bin/dxmd" | awk -v own="$prefix/" '$2 == "=>" && index($3, own) == 1 { print $3 }' |
  xargs readelf -d "$prefix/bin/dxmd" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p')
# Some packages say /lib for what stands in /usr/lib.
needed=$({
  ldd "$prefix/bin/dxmd" | grep -F "$named" |
    awk -v own="$prefix/" '$2 == "=>" && index($3, own) != 1 { print $3 }' |
    xargs readlink -f | sed 'p; s|^/usr||' | xargs dpkg-query -S 2>/dev/null || true
} | sed 's/:.*//' | LC_ALL=C sort -u | grep -vE '^(libc6|libgcc-s1)$')
diff <("$packages" --list run | LC_ALL=C sort) <(echo "$needed")
