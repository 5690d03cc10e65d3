# Tavrune on a virtual display, played by real keys; sourced after common.sh, not run. `program` is what is
# started, `errors` the file that gets its messages, `list_pages` the program that lists the pages.

# Words before the program: what it runs under. Words after it: there is none that it takes.
under=()
arguments=()

# A display of its own with a window manager, for as long as the script runs, of the given size, or 800x600.
start_display() {
    unset WAYLAND_DISPLAY
    export QT_QPA_PLATFORM=xcb
    # Qt reads the locale from the environment and does not need it to be installed.
    export LC_ALL=${TAVRUNE_TOUR_LOCALE:-da_DK.UTF-8} 2>/dev/null
    export XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR:-$(mktemp -d)}

    # One that is free; displays of another root have their sockets in common with this one, but not their files.
    local number=$((90 + BASHPID % 400))
    while [ -e "/tmp/.X11-unix/X$number" ] || grep -q "@/tmp/.X11-unix/X$number\$" /proc/net/unix; do
        number=$((number + 1))
    done
    export DISPLAY=:$number
    Xvfb "$DISPLAY" -noreset -screen 0 "${1:-800x600}x24" >/dev/null 2>&1 &
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
typed() { xdotool type --delay 10 -- "$1"; }

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

# Reads what `list_pages` prints of the pages, and how they are played; each line of the latter has to be a page's, or
# a kind's.
know_pages() {
    pages=$("$list_pages" 2>/dev/null) || fail "The pages could not be listed: $list_pages"
    walks=$(grep '^[a-z]' tests/tour.txt)
    local page
    while read -r page _; do
        grep -q "^$page \|^[a-z]* $page " <<<"$pages" || fail "tests/tour.txt tells of $page, which is no page."
    done <<<"$walks"
}

# One word of what is known of a page: told_of PAGE WORD, where WORD is as the list of pages calls it, in small letters.
told_of() {
    local kind file place subplace boxes steps name title
    while read -r kind file place subplace boxes steps name title; do
        [ "$file" != "$1" ] || { say "${!2}" && return; }
    done <<<"$pages"
    fail "There is no page $1."
}

# The words of a page in the tour; fails if there are none.
walk_of() {
    sed -n "s/^$1 \+//p" <<<"$walks" | grep . || sed -n "s/^$(told_of "$1" kind) \+//p" <<<"$walks" | grep .
}

pages_to_play() {
    local page
    while read -r _ page _; do
        ! walk_of "$page" >/dev/null || say "$page"
    done <<<"$pages"
}

# A wrong number in so many boxes, and "OK".
answer() {
    local box
    for box in $(seq "$1"); do
        typed "9$box,31"
        keys Return
    done
    keys Return
}

# Plays an open page as the tour tells. `picture` is the caller's.
play() {
    local page=$1 word many
    for word in $(walk_of "$page"); do
        many=${word#*:}
        case $word in
            @*) word=${word#@} && picture "${word//%/$page}" ;;
            answer) answer "$(told_of "$page" boxes)" ;;
            answer:*) answer "$many" ;;
            vis) press_steps "$(told_of "$page" steps)" ;;
            vis:*) press_steps "$many" ;;
            wait) sleep 1 ;;
            *) keys "$word" ;;
        esac
    done
}

# Every page, each by a program of its own.
play_all() {
    local page
    for page in $(pages_to_play); do
        start
        [ "$(told_of "$page" place)" = - ] || choose "$page"
        play "$page"
        stop
    done
}

press_steps() { for _ in $(seq "$1"); do keys Return; done; }

# Chooses a page in the menu, or "luk", the way out. The second argument is the page that stands open, where its own
# entry stands before: that is disabled, and the arrow keys pass over it.
choose() {
    local place subplace own=-1 at
    place=$(told_of "$1" place)
    subplace=$(told_of "$1" subplace)
    [ -z "${2:-}" ] || own=$(told_of "$2" place)
    keys F10
    for ((at = 0; at < place; at++)); do
        [ "$at" -eq "$own" ] || keys Down
    done
    keys Return
    if [ "$subplace" -gt 0 ]; then
        for _ in $(seq 2 "$subplace"); do keys Down; done
        keys Return
    fi
    sleep 0.4
}
