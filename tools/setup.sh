# Installs what building and testing Quarzel needs on Debian 12, if missing.
# Sourced by ./run, ./test and tools/package.sh.
# The program alone (with Qt's German texts):
QUARZEL_RUN_PACKAGES=(cmake ninja-build g++ qt6-base-dev libgl-dev qt6-translations-l10n)
# Everything the build with its tests needs: the package test builds the .deb
# (dpkg-dev brings dpkg-shlibdeps), the validators check the desktop entry
# and the AppStream metadata, the print test renders a PDF with pdftoppm.
QUARZEL_PACKAGES=("${QUARZEL_RUN_PACKAGES[@]}" libgtest-dev fonts-dejavu-core dpkg-dev desktop-file-utils appstream
  poppler-utils libbenchmark-dev)
# The fuzz targets need clang with its libFuzzer and sanitizer runtimes.
QUARZEL_FUZZ_PACKAGES=(clang-14 libclang-rt-14-dev)

quarzel_ensure_packages() {  # quarzel_ensure_packages [packages...]; none given: QUARZEL_PACKAGES
  local missing=() wanted=("$@")
  [ ${#wanted[@]} -eq 0 ] && wanted=("${QUARZEL_PACKAGES[@]}")
  for p in "${wanted[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "Installiere fehlende Pakete: ${missing[*]}"
  local sudo=""
  [ "$(id -u)" -ne 0 ] && sudo="sudo"
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

quarzel_build() {  # quarzel_build BUILD_DIR [cmake options...]
  local dir=$1
  shift
  cmake -S . -B "$dir" -G Ninja "$@" >/dev/null
  cmake --build "$dir" -j "$(nproc)"
}

quarzel_build_fuzz() {  # the core library and its fuzz targets, built with clang in build-fuzz
  CC=clang-14 CXX=clang++-14 quarzel_build build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DQUARZEL_FUZZ=ON
}
