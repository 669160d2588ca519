#!/usr/bin/env bash
# Installs the Debian packages that building and testing need, and only the missing ones.
# Usage: scripts/install-deps.sh [--fuzz]
set -euo pipefail

packages=(
  build-essential cmake ninja-build pkg-config gettext
  libcups2-dev libxml2-dev zlib1g-dev libcurl4-openssl-dev libplist-dev nlohmann-json3-dev
  libunistring-dev
  qt6-base-dev qt6-qpa-plugins
  googletest libgtest-dev libgmock-dev libbenchmark-dev
  cups cups-client cups-ipp-utils xvfb
)
if [[ "${1:-}" == "--fuzz" ]]; then
  packages+=(clang libclang-rt-14-dev)
fi

missing=()
for package in "${packages[@]}"; do
  status=$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null || true)
  [[ "$status" == "install ok installed" ]] || missing+=("$package")
done
[[ ${#missing[@]} -eq 0 ]] && exit 0

echo "Installing: ${missing[*]}"
sudo=()
[[ $(id -u) -eq 0 ]] || sudo=(sudo)
export DEBIAN_FRONTEND=noninteractive
"${sudo[@]}" apt-get update -qq
"${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
