#!/usr/bin/env bash
# Builds Mosaic and runs the gallery. With a folder argument it renders every
# scene headless into that folder as PNG files.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j "$(nproc)" --target mosaic-gallery
if [ $# -gt 0 ]; then
  exec ./build/bin/mosaic-gallery --screenshots "$1"
fi
exec ./build/bin/mosaic-gallery
