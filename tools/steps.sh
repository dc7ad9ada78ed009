# shellcheck shell=bash disable=SC2154
# What ./run and ./check share; sourced by both, after they have set `root` (this checkout) and `me` (their name).
# All output of preparing goes to standard error: standard output belongs to the camera.

say() { printf '%s: %s\n' "$me" "$*" >&2; }
die() { say "$*"; exit 1; }

# logged TITLE FILE COMMAND...: the output goes to the file. On a terminal its last line is seen, elsewhere one now and
# then, so that a long step is seen to live. The title comes first, when there is something to do at all.
logged()
{
    local title=$1 log=$2
    shift 2
    "$@" 2>&1 </dev/null | tee "$log" | show_progress "$title"
}

show_progress()
{
    local title=$1 line next=$((SECONDS + 20))
    while IFS= read -r line; do
        [[ $line =~ ^ninja:|"Re-checking globbed" ]] && continue
        [ -z "$title" ] || say "$title"
        title=""
        if [ -t 2 ]; then
            printf '\r\e[K%s' "${line:0:78}" >&2
        elif ((SECONDS >= next)); then
            printf '    %s\n' "${line:0:110}" >&2
            next=$((SECONDS + 20))
        fi
    done
    [ ! -t 2 ] || printf '\r\e[K' >&2
}

as_root()
{
    if [ "$(id -u)" = 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

become_root()
{
    [ "$(id -u)" = 0 ] && return
    command -v sudo >/dev/null || return 1
    sudo -n true 2>/dev/null || { [ -t 0 ] && sudo -v; }
}

# The packages of these sections of packages.txt.
packages_of()
{
    awk -v sections=" $* " '
        { sub(/#.*/, "") }
        /^\[/ { gsub(/[][ ]/, ""); wanted = index(sections, " " $0 " "); next }
        wanted && NF { print $1 }' "$root/packages.txt"
}

# install_packages SECTION...: installs what is missing; without anything missing it is silent and needs no network.
install_packages()
{
    local wanted installed missing=() package step log
    command -v apt-get >/dev/null || die "apt-get not found: this needs Debian 12; packages.txt lists what to install"
    mapfile -t wanted < <(packages_of "$@")
    installed=$(dpkg-query -W -f='${db:Status-Status} ${Package} ' "${wanted[@]}" 2>/dev/null) || true
    for package in "${wanted[@]}"; do
        [[ " $installed" == *" installed $package "* ]] || missing+=("$package")
    done
    [ ${#missing[@]} = 0 ] && return
    become_root || die "cannot install ${missing[*]}: run as root or as a user with sudo"
    say "installing ${#missing[@]} packages and what they need: ${missing[*]}"
    log=$(mktemp)
    for step in update "install -y --no-install-recommends ${missing[*]}"; do
        # shellcheck disable=SC2086
        logged "" "$log" as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=120 $step || {
            tail -n 8 "$log" >&2
            die "apt-get ${step%% *} failed, its last lines stand above ($log)"
        }
    done
    rm -f "$log"
}

# A build folder that a root run left behind is handed to the present user.
own_build_folder()
{
    local dir="$root/build"
    mkdir -p "$dir" 2>/dev/null || die "cannot make $dir: the checkout must be writable"
    [ -z "$(find "$dir" ! -user "$(id -u)" -print -quit)" ] && return
    [ "$(id -u)" = 0 ] && return
    if ! become_root || ! sudo chown -R "$(id -u):$(id -g)" "$dir"; then
        die "$dir holds files of another user: remove it, or run as root"
    fi
}

# configure PRESET: only where needed; the build itself notices changed CMake files, but not changed presets or a
# checkout that has moved.
configure()
{
    local dir="$root/build/$1" fresh=() errors
    if [ -f "$dir/CMakeCache.txt" ]; then
        if ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$dir/CMakeCache.txt"; then
            fresh=(--fresh)
        elif [ -f "$dir/build.ninja" ] && [ ! "$root/CMakePresets.json" -nt "$dir/build.ninja" ]; then
            return
        fi
    fi
    say "configuring build/$1"
    errors=$(cmake -S "$root" --preset "$1" "${fresh[@]}" 2>&1 >/dev/null) || {
        printf '%s\n' "$errors" >&2
        die "configuring failed"
    }
}

# build PRESET TARGET...: silent when everything is up to date. A failure shows the compiler's message.
build()
{
    local name="build/$1"
    shift
    logged "building $name" "$root/$name/build.log" ninja -C "$root/$name" "$@" || {
        without_progress "$root/$name/build.log" >&2
        die "the build failed"
    }
}

# A log without the lines that only count or name a file under way.
without_progress() { grep -vE '^\[[0-9]+/[0-9]+\] |^ninja:|^clang-tidy|^[0-9]+ warnings? generated' "$1" || true; }
