# Installs what building and testing Quarzel needs on Debian 12, if missing.
# Sourced by ./run and ./test.
QUARZEL_PACKAGES=(cmake ninja-build g++ qt6-base-dev libgl-dev libgtest-dev fonts-dejavu-core)
# The fuzz targets need clang with its libFuzzer and sanitizer runtimes.
QUARZEL_FUZZ_PACKAGES=(clang-14 libclang-rt-14-dev)

quarzel_ensure_packages() {
  local missing=()
  for p in "${QUARZEL_PACKAGES[@]}" "$@"; do
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
