#!/usr/bin/env bash
# Sets up what is missing, builds the release tree, makes the Debian package and installs it.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
build=$here/build/release
# The same folder and settings as ./run.sh, so either reuses what the other built.
"$here/tools/setup.sh" "$build" -DCMAKE_BUILD_TYPE=Release -DTARVEL_BUILD_TESTS=OFF >/dev/null
rm -f "$build"/tarvel_*.deb
cmake --build "$build" -j"$(nproc)" --target package >/dev/null
deb=$(ls "$build"/tarvel_*.deb)
echo "$deb"
sudo=()
[ "$(id -u)" -eq 0 ] || sudo=(sudo)
# Another apt run on the machine holds the lock for a while: wait for it rather than fail.
"${sudo[@]}" env DEBIAN_FRONTEND=noninteractive \
  apt-get install -y -q -o DPkg::Lock::Timeout=600 --reinstall "$deb"
