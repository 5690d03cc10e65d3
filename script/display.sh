# Tavrune on a virtual display, played by real keys; sourced after common.sh, not run. `program` is what is
# started, `errors` the file that gets its messages.

# Words before the program: what it runs under. Words after it: there is none that it takes.
under=()
arguments=()

# A display of its own with a window manager, for as long as the script runs.
start_display() {
    unset WAYLAND_DISPLAY
    export QT_QPA_PLATFORM=xcb
    # Qt reads the locale from the environment and does not need it to be installed.
    export LC_ALL=${TAVRUNE_TOUR_LOCALE:-da_DK.UTF-8} 2>/dev/null
    export XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR:-$(mktemp -d)}

    local number=90
    while [ -e "/tmp/.X11-unix/X$number" ]; do number=$((number + 1)); done
    export DISPLAY=:$number
    Xvfb "$DISPLAY" -noreset -screen 0 800x600x24 >/dev/null 2>&1 &
    local xvfb=$!
    trap 'kill $(jobs -p) 2>/dev/null || true' EXIT
    for _ in $(seq 100); do xdpyinfo >/dev/null 2>&1 && break; sleep 0.05; done
    kill -0 "$xvfb" 2>/dev/null || fail "The virtual display could not be started."
    openbox >/dev/null 2>&1 &
    for _ in $(seq 100); do xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q window && break; sleep 0.05; done
    # The window manager announces itself a little before it takes windows.
    sleep 1
}

keys() { xdotool key --delay 30 "$@"; sleep 0.1; }
typed() { xdotool type --delay 10 "$1"; }

start() {
    "${under[@]}" "$program" "${arguments[@]}" 2>"$errors" &
    tavrune=$!
    local tries=0
    until xdotool search --onlyvisible --name '^Tavrune' >/dev/null 2>&1; do
        tries=$((tries + 1))
        [ "$tries" -lt 200 ] || fail "Tavrune did not start: $(cat "$errors")"
        sleep 0.1
    done
    # The page stands after its first tick.
    sleep 0.4
}

stop() {
    kill "$tavrune" 2>/dev/null || true
    wait "$tavrune" 2>/dev/null || true
}

# The entries of the menu that can be chosen, in order; those of pages that are not built are passed over by the
# arrow keys.
menu=(hjaelp afsaet andengradspolynomiet brok dlinie diff konvert gtm integralregning lininter lodret vandret
    tomto luk)

# Chooses an entry of the menu; for a subject with levels, the place in its submenu is the second argument.
# A third one is the entry that the page has disabled: its own.
choose() {
    local entry=$1 sub=${2:-} own=${3:-} candidate
    keys F10
    for candidate in "${menu[@]}"; do
        [ "$candidate" = "$entry" ] && break
        [ "$candidate" = "$own" ] || keys Down
    done
    keys Return
    if [ -n "$sub" ]; then
        for _ in $(seq 2 "$sub"); do keys Down; done
        keys Return
    fi
    sleep 0.4
}
