#!/usr/bin/env bash
# Builds the Debian package of Quarzel in build-deb:
#   tools/package.sh   ->  build-deb/quarzel_<version>_<arch>.deb
# Install it with `sudo apt install ./build-deb/quarzel_*.deb`.
set -euo pipefail
cd "$(dirname "$0")/.."
source tools/setup.sh
quarzel_ensure_packages "${QUARZEL_RUN_PACKAGES[@]}" dpkg-dev
quarzel_build build-deb -DCMAKE_BUILD_TYPE=Release -DQUARZEL_TESTS=OFF
(cd build-deb && cpack -G DEB >/dev/null)
ls build-deb/quarzel_*.deb
