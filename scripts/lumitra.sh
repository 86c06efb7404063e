#!/usr/bin/env bash
# One entry point for a fresh Debian 12 machine:
#   scripts/lumitra.sh run    install what is missing, build, start the application
#   scripts/lumitra.sh test   install what is missing, build, run the whole test suite
# Extra arguments after "run" are handed to the application.
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build_dir=${LUMITRA_BUILD_DIR:-$here/build}
mode=${1:-run}
shift || true

packages=(
  build-essential cmake ninja-build pkg-config
  qtbase5-dev qtbase5-dev-tools libqt5serialport5-dev libqt5websockets5-dev
  qttools5-dev qttools5-dev-tools
  libopencv-core-dev libopencv-imgproc-dev libpotrace-dev libdxflib-dev
  libzint-dev zbar-tools qttranslations5-l10n qtkeychain-qt5-dev zlib1g-dev
  xvfb xauth
  libpolyclipping-dev
)

install_missing() {
  local missing=()
  for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "Installing: ${missing[*]}"
  local sudo=""
  [ "$(id -u)" -ne 0 ] && sudo="sudo"
  $sudo apt-get update
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y --no-install-recommends "${missing[@]}"
}

build() {
  cmake -S "$here" -B "$build_dir" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo
  cmake --build "$build_dir" --parallel "$(nproc)"
}

install_missing
build
case "$mode" in
  run)
    exec "$build_dir/app/lumitra" "$@"
    ;;
  test)
    cd "$build_dir"
    QT_QPA_PLATFORM=offscreen ctest --output-on-failure --parallel "$(nproc)" "$@"
    ;;
  *)
    echo "usage: $0 run|test" >&2
    exit 2
    ;;
esac
