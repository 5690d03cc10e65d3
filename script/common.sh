# Shared by the scripts beside it; sourced, not run.

set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

say() { printf '%s\n' "$*"; }

fail() {
    printf '%s\n' "$*" >&2
    exit 1
}

# Installs those of the named Debian packages that are missing, and says which. Never asks.
need() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    command -v apt-get >/dev/null || fail "These packages are missing, and there is no apt-get to install them: ${missing[*]}"
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || fail "These packages are missing, and only root or sudo can install them: ${missing[*]}"
        as_root=(sudo)
    fi
    say "Installing: ${missing[*]}"
    local log
    log=$(mktemp)
    if ! { "${as_root[@]}" apt-get update -qq &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"; } \
        >"$log" 2>&1 </dev/null; then
        tail -n 20 "$log" >&2
        fail "These packages could not be installed: ${missing[*]}"
    fi
    rm -f "$log"
}

need_build() { need g++ cmake ninja-build qt6-base-dev fonts-liberation; }
need_tests() { need libgtest-dev libgmock-dev librapidcheck-dev; }
need_style() { need clang clang-format clang-tidy; }
need_tour() { need xvfb openbox xdotool imagemagick x11-utils; }
need_bench() { need libbenchmark-dev; }
need_package() {
    need dpkg-dev file lintian appstream desktop-file-utils man-db groff-base xvfb xdotool qt6-translations-l10n
}
need_proof() { need strace dbus xvfb openbox xdotool x11-utils clang libclang-rt-dev; }

# Runs a command that has something to say only if it fails.
quietly() {
    local said
    said=$("$@" 2>&1) || {
        printf '%s\n' "$said" >&2
        return 1
    }
}

# Configures once and builds what has changed: build PRESET [cmake --build option...].
build() {
    local preset=$1 tree=$1
    shift
    # The programs under the sanitizers stand beside the others.
    [ "$preset" != watched ] || tree=dev
    [ -f "build/$tree/build.ninja" ] || quietly cmake --preset "$tree" || fail "The preset $tree could not be configured."
    cmake --build --preset "$preset" "$@"
}
