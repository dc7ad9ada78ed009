#!/usr/bin/env bash
# Installs a build of the product, moves it elsewhere, and builds and runs a host against it: once with CMake's package
# file, once with pkg-config. The second build folder holds a library whose resources are on this machine.
#   install_test.sh PRODUCT_BUILD BUILD_WITH_RESOURCES
set -euo pipefail
here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
product=$(readlink -f "$1")
with_resources=$(readlink -f "$2")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() { echo "install test: $*"; exit 1; }

cmake --install "$product" --prefix "$work/first" >/dev/null
mv "$work/first" "$work/moved"
lib=$(dirname "$(find "$work/moved" -name libosdmenu.so)")

dynamic=$(readelf -dW "$lib/libosdmenu.so")
grep -qF 'soname: [libosdmenu.so.1]' <<<"$dynamic" || fail "the SONAME is not libosdmenu.so.1"
! grep -qE 'RPATH|RUNPATH' <<<"$dynamic" || fail "the library holds a search path"
paths=$(strings -a "$lib/libosdmenu.so" | grep resource || true)
grep -q '^/app/resource/ttf/font\.ttf' <<<"$paths" || fail "/app/resource is not the resource folder"
! grep -rlF -e "$product" -e "$work/first" -e "$(readlink -f "$here/../..")" "$work/moved" || fail "build paths are inside"

mkdir -p "$work/tests/build"
cp -r "$here/host" "$work/tests/build"
cmake -S "$work/tests/build/host" -B "$work/host-cmake" -G Ninja -DCMAKE_PREFIX_PATH="$work/moved" >/dev/null
ninja -C "$work/host-cmake" >/dev/null
export PKG_CONFIG_PATH=$lib/pkgconfig
# shellcheck disable=SC2046
g++ -std=c++17 -I"$work" "$work"/tests/build/host/*.cpp -o "$work/host-pkgconfig" $(pkg-config --cflags --libs osdmenu tinyxml2)

# The product without its fonts has to refuse, cleanly; the same host opens the menu where there are fonts.
expected=refuse
[ ! -e /app/resource/ttf/font.ttf ] || expected=open
export LD_BIND_NOW=1
for host in "$work/host-cmake/host" "$work/host-pkgconfig"; do
    LD_LIBRARY_PATH=$lib "$host" "$expected" || fail "$host with the installed library"
    LD_LIBRARY_PATH=$with_resources "$host" open || fail "$host with the library in $2"
done

# The page tools of the second build find their fonts wherever they are put.
cmake --install "$with_resources" --prefix "$work/first" >/dev/null
mv "$work/first" "$work/tools"
[ -s "$work/tools/share/osdmenu/ttf/font.ttf" ] || fail "the page tools come without fonts"
env -i "$work/tools/bin/osdmenu-pages" check "$here/../pages/good" || fail "the installed page tools"
rm "$work/tools/share/osdmenu/ttf/font.ttf"
! env -i "$work/tools/bin/osdmenu-pages" check "$here/../pages/good" >/dev/null 2>&1 || fail "a font's absence isn't told"
