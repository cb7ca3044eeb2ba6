#!/usr/bin/env bash
# Installs the built library into a temporary prefix, then builds and runs the outside host against it twice:
# through find_package(tqWorkRig CONFIG) and through pkg-config.
set -euo pipefail
build_dir=$1 host_dir=$2 flags=$3 cxx=$4
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake --install "$build_dir" --prefix "$work/prefix" > "$work/install.log"

cmake -S "$host_dir" -B "$work/cmake-build" -G Ninja -DCMAKE_BUILD_TYPE=Debug \
  -DCMAKE_PREFIX_PATH="$work/prefix" -DCMAKE_CXX_COMPILER="$cxx" \
  -DCMAKE_CXX_FLAGS="$flags" -DCMAKE_EXE_LINKER_FLAGS="$flags" > "$work/configure.log" \
  || { cat "$work/configure.log"; exit 1; }
cmake --build "$work/cmake-build" || exit 1
"$work/cmake-build/outside_host"

libdir=$(dirname "$(find "$work/prefix" -name 'libtqWorkRig.so' | head -n 1)")
pc="$libdir/pkgconfig"
[ -f "$pc/tqWorkRig.pc" ] || { echo "pkg-config file missing"; exit 1; }
# shellcheck disable=SC2046
"$cxx" -std=c++17 $flags "$host_dir/main.cpp" -o "$work/pc_host" \
  $(PKG_CONFIG_PATH="$pc" pkg-config --define-variable=prefix="$work/prefix" --cflags --libs tqWorkRig) \
  -Wl,-rpath,"$libdir"
"$work/pc_host"
echo "outside host: built and ran through the CMake package and through pkg-config"
