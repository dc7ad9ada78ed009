#!/usr/bin/env bash
# Each public header stands alone: as C11 and as C++17, for both compilers, without a warning.
#   headers_test.sh [FLAG OF THE COMPILERS...]
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/../.."
flags="$* $(pkg-config --cflags sdl2 SDL2_ttf | sed 's/-I/-isystem /g')"
failed=0
for header in include/*.h platform/*_service.h; do
    # What has C++ types in it is for C++ alone. The last exception: the numbers in an item's value area have no name of
    # their own in C++ either.
    for compiler in "gcc -x c -std=c11" "clang -x c -std=c11" "g++ -x c++ -std=c++17" \
        "clang++ -x c++ -std=c++17 -Wno-nested-anon-types"; do
        [ "$header" != include/osd_xml.h ] || [[ $compiler == *c++* ]] || continue
        # shellcheck disable=SC2086
        $compiler -Wall -Wextra -pedantic -Werror -fsyntax-only -I. -Iinclude $flags -include "$header" /dev/null || {
            echo "$header: not clean with $compiler"
            failed=1
        }
    done
done
exit $failed
