# Shared by the scripts beside it; sourced, not run.

set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# The same words, numbers and order on every machine; `as_at_home` goes back to the user's own.
users_locale=${LC_ALL-}
export LC_ALL=C.UTF-8
as_at_home() { if [ -n "$users_locale" ]; then export LC_ALL=$users_locale; else unset LC_ALL; fi; }

say() { printf '%s\n' "$*"; }

fail() {
    printf '%s\n' "$*" >&2
    exit 1
}

# Fails where the disk of a folder has less room: need_megabytes FOLDER MEGABYTES.
need_megabytes() {
    local free
    free=$(df --output=avail -B 1M "$1" | tail -n 1 | tr -d ' ')
    [ "$free" -ge "$2" ] || fail "Only $free MB of the disk of $(cd "$1" && pwd) are free; $2 MB are needed."
}

# What everything that is built and installed for it takes, with room to spare.
need_room() {
    local place
    for place in . /usr; do need_megabytes "$place" 2048; done
}

# The oldest compilers with C++20 and conversions of floating-point numbers: GCC 11, clang 14.
need_compiler() {
    local compiler=${CXX:-c++}
    command -v "$compiler" >/dev/null || return 0
    printf '%s\n' '#include <charconv>' '#include <compare>' \
        'double read(const char* a, const char* b) { double x = 0; std::from_chars(a, b, x); return x; }' |
        "$compiler" -std=c++20 -fsyntax-only -x c++ - >/dev/null 2>&1 ||
        fail "The compiler $compiler is too old: C++20 with conversions of floating-point numbers is needed, as GCC 11 and clang 14 have it."
}

# Installs those of the named Debian packages that are missing, and says which. Never asks.
need() {
    need_room
    need_compiler
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    command -v apt-get >/dev/null || fail "These packages are missing, and there is no apt-get to install them: ${missing[*]}"
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        { command -v sudo && sudo true; } >/dev/null || fail "These packages are missing, and only root or sudo can install them: ${missing[*]}"
        as_root=(sudo)
    fi
    say "Installing: ${missing[*]}"
    local log reached=yes
    log=$(mktemp)
    # By itself apt goes on with old lists where it reaches no network.
    "${as_root[@]}" apt-get update -qq -o APT::Update::Error-Mode=any >"$log" 2>&1 </dev/null || reached=no
    if ! "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
        "${missing[@]}" >>"$log" 2>&1 </dev/null; then
        [ "$reached" = yes ] || fail "These packages are missing, and Debian's archive can't be reached to install them (see $log): ${missing[*]}"
        fail "These packages could not be installed (see $log): ${missing[*]}"
    fi
    rm -f "$log"
    # It may just have come.
    need_compiler
}

need_build() { need g++ cmake ninja-build qt6-base-dev fonts-liberation; }
need_tests() { need libgtest-dev libgmock-dev librapidcheck-dev locales; }
need_style() { need clang clang-format clang-tidy; }
need_tour() { need xvfb openbox xdotool imagemagick x11-utils; }
need_bench() { need libbenchmark-dev dbus at-spi2-core; }
need_package() {
    need dpkg-dev binutils devscripts file lintian appstream desktop-file-utils man-db groff-base xvfb xdotool \
        qt6-translations-l10n
}
need_bare() { need debootstrap; }
need_proof() { need strace dbus xvfb openbox xdotool x11-utils clang libclang-rt-dev; }
need_listen() {
    need orca at-spi2-core dbus speech-dispatcher speech-dispatcher-audio-plugins libao4 xvfb openbox xdotool x11-utils \
        python3-pyatspi python3-speechd locales
}
need_windows() {
    need g++-mingw-w64-x86-64-posix mingw-w64-tools dpkg-dev debian-archive-keyring icoutils imagemagick nsis qt6-translations-l10n
}
need_wine() { need wine64 fonts-wine locales; }

# Runs a command that has something to say only if it fails.
quietly() {
    local said
    said=$("$@" 2>&1) || {
        printf '%s\n' "$said" >&2
        return 1
    }
}

# Configures, anew where the presets have changed, and builds what has changed: build PRESET [cmake --build option...].
build() {
    local preset=$1 tree=$1
    shift
    # The programs under the sanitizers stand beside the others.
    [ "$preset" != watched ] || tree=dev
    [ "build/$tree/build.ninja" -nt CMakePresets.json ] || quietly cmake --preset "$tree" || fail "The preset $tree could not be configured."
    cmake --build --preset "$preset" "$@"
}
