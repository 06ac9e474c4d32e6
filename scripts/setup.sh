#!/usr/bin/env bash
# Installs every Debian package that building, testing and running Mosaic needs.
# Idempotent: when everything is present it installs nothing and touches no package list.
set -euo pipefail

packages=(
  build-essential cmake pkg-config ninja-build ccache clang libclang-rt-14-dev clang-format clang-tidy doxygen
  libcairo2-dev libpango1.0-dev libfontconfig-dev fonts-dejavu-core
  nlohmann-json3-dev libsimdjson-dev libloki-dev libsdl2-dev libx11-dev
  libavformat-dev libavcodec-dev libswscale-dev libavutil-dev
  libgtest-dev libgmock-dev googletest libbenchmark-dev
  xvfb xdotool xauth
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done

if [ ${#missing[@]} -eq 0 ]; then
  exit 0
fi

SUDO=""
[ "$(id -u)" -eq 0 ] || SUDO="sudo"
export DEBIAN_FRONTEND=noninteractive
$SUDO apt-get update -qq
$SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}"
