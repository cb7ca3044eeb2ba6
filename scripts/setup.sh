#!/usr/bin/env bash
# Installs the Debian packages the build, the tests and the benchmarks need; does nothing when all are there.
set -euo pipefail

packages=(
  g++ cmake ninja-build ccache pkg-config make
  libtinyxml-dev libminizip-dev zlib1g-dev libboost-filesystem-dev
  libgtest-dev libgmock-dev libbenchmark-dev
  unzip libxml2-utils python3 python3-stl
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
sudo=""
if [ "$(id -u)" -ne 0 ]; then sudo="sudo"; fi
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
