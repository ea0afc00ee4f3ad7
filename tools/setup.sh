# Installs what building and testing Quarzel needs on Debian 12, if missing.
# Sourced by ./run and ./test.
QUARZEL_PACKAGES=(cmake ninja-build g++ qt6-base-dev libgl-dev libgtest-dev libbenchmark-dev fonts-dejavu-core)

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
