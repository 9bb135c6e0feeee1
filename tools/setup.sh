#!/usr/bin/env bash
# Installs the Debian packages the build, the tests and the text rendering need, when missing,
# then configures and builds into the given folder with the given extra CMake arguments.
set -euo pipefail

PACKAGES=(
  g++ cmake make pkg-config
  qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools libgl-dev libqt6sql6-sqlite
  libplist-dev libudev-dev libmount-dev libpci-dev libatasmart-dev libxcb1-dev
  libgtest-dev libgmock-dev
  fonts-dejavu-core
  xvfb x11-utils trayer dbus-daemon
  # The metrics export's tests: promtool, a real Prometheus and the OpenMetrics parser. The
  # package's own service (on :9090) may start or not; the tests run theirs on a free port.
  prometheus python3-prometheus-client
  # tools/fuzz.sh: clang and its libFuzzer runtime.
  clang-14 libclang-rt-14-dev
  # The Debian package: icons drawn at build time, shared-library dependencies, its checks.
  librsvg2-bin dpkg-dev desktop-file-utils appstream man-db file lintian
  # The Wayland tests: a headless compositor and Qt's Wayland platform.
  weston qt6-wayland
)

install_missing() {
  local missing=()
  for p in "${PACKAGES[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "Installing: ${missing[*]}"
  local sudo=()
  [ "$(id -u)" -eq 0 ] || sudo=(sudo)
  "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -q
  "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q "${missing[@]}"
}

build() {
  local dir=$1; shift
  local src
  src=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
  cmake -S "$src" -B "$dir" "$@"
  cmake --build "$dir" -j"$(nproc)"
}

install_missing
build "$@"
