# A student under Wine, on a virtual display, by real keys: installs, starts, plays every page, solves an exercise,
# removes; sourced by script/windows after display.sh and wine.sh, not run. Leaves pictures in build/windows/tour/.

pictures=$made/tour
errors=$pictures/errors.txt
installed=$user/AppData/Local/Programs/Tavrune
link="$user/AppData/Roaming/Microsoft/Windows/Start Menu/Programs/Tavrune.lnk"
uninstall_entry='HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Tavrune'
list_pages=build/run/tavrune_list_pages
program=$installed/tavrune.exe
under=("${wine[@]}")

picture() {
    import -window root "$pictures/$1.png"
    say "   $pictures/$1.png"
}

# Waits until there is a window of such a name, or with "no" before it, none.
window() {
    local wanted=0 tries
    [ "$1" != no ] || { wanted=1 && shift; }
    for ((tries = 0; tries < 600; tries++)); do
        local found=0
        xdotool search --onlyvisible --name "$1" >/dev/null 2>&1 || found=1
        if [ "$found" -eq "$wanted" ]; then
            # What it shows stands a little later.
            sleep 1
            return 0
        fi
        sleep 0.1
    done
    fail "A window that is called $1: $([ "$wanted" -eq 0 ] && echo it has not come || echo it does not go)."
}

# Runs a program to its end, which has to have the status: ends_with STATUS PROGRAM [word...].
ends_with() {
    local wanted=$1 status=0
    shift
    "${wine[@]}" "$@" >>"$errors" 2>&1 || status=$?
    [ "$status" -eq "$wanted" ] || fail "$(basename "$1"): status $status instead of $wanted."
}

# Everything on the drive but Windows itself and what it keeps for a while.
on_the_drive() { (cd "$drive" && find . '(' -path ./windows -o -ipath '*/temp' ')' -prune -o -print | sort); }

is_installed() {
    diff <(cd "$staged" && { find . -type f && echo ./uninstall.exe; } | sort) <(cd "$installed" && find . -type f | sort) ||
        fail "This is not just what is installed."
    [ -e "$link" ] || fail "There is no entry in the start menu."
    "${wine[@]}" reg query "$uninstall_entry" | tr -d '\r' | grep -q "DisplayVersion.*$version\$" || fail "The list of programs does not have it."
}

is_gone() {
    local tries
    for ((tries = 0; tries < 100; tries++)); do [ ! -d "$installed" ] || sleep 0.1; done
    wine_ends
    diff "$pictures/before.txt" <(on_the_drive) || fail "This is left on the drive."
    ! grep -ain 'tavrune' "$WINEPREFIX/user.reg" || fail "This is left in the registry."
}

install_silently() {
    ends_with 0 "$setup" /S
    is_installed
    ends_with 0 "$installed/uninstall.exe" /S
    is_gone
    say "   installed and removed without a question"
}

install_visibly() {
    "${wine[@]}" "$setup" >>"$errors" 2>&1 &
    window '^Installation af Tavrune|^Tavrune.*Installation'
    sleep 3
    picture setup
    is_installed
    keys Return
    window '^Tavrune - '
    picture setup-starts-it
}

# The program of another version, while it runs: nobody is asked, or somebody, and nothing changes; then it is replaced.
install_over() {
    touch "$installed/Qt6Old.dll"
    ends_with 2 "$setup" /S
    [ -e "$installed/Qt6Old.dll" ] || fail "An installation over a program that runs has changed something."
    "${wine[@]}" "$setup" >>"$errors" 2>&1 &
    window '^Installation af Tavrune|^Tavrune.*Installation'
    picture setup-while-it-runs
    keys Escape
    window no '^Installation af Tavrune|^Tavrune.*Installation'
    choose luk
    window no '^Tavrune'
    ends_with 0 "$setup" /S
    is_installed
    say "   not replaced while it runs, replaced afterwards"
}

# How many pixels of the display are of the green of a right answer.
green() {
    import -window root png:- | convert - -fill black +opaque '#008200' -fill white -opaque '#008200' \
        -format '%[fx:int(mean*w*h)]' info:
}

# From the start menu: whole numbers are tried for a slope until the page says that one is right.
solve() {
    "${wine[@]}" start /unix "$link" >>"$errors" 2>&1
    window '^Tavrune - '
    picture start-menu
    choose diff
    local number
    for _ in $(seq 20); do
        for number in $(seq 0 30) $(seq -30 -1); do
            keys ctrl+a
            typed "$number"
            keys Return Return
            [ "$(green)" -gt 0 ] || continue
            picture solved
            choose luk diff
            window no '^Tavrune'
            return
        done
        keys alt+n
    done
    fail "No number was right."
}

# On a dark desktop, and with a theme of high contrast, a page is the same to the pixel.
start_in_other_colours() {
    local theme colour
    start && choose form1 && picture colours-light && stop
    registry 'HKCU\Software\Microsoft\Windows\CurrentVersion\Themes\Personalize' AppsUseLightTheme REG_DWORD 0 >/dev/null
    start && choose form1 && picture colours-dark && stop
    "${wine[@]}" reg export 'HKCU\Control Panel\Colors' "$(windows_path "$pictures/colours.reg")" /y >/dev/null
    registry 'HKCU\Control Panel\Accessibility\HighContrast' Flags REG_SZ 127 >/dev/null
    for colour in Window ButtonFace Menu MenuBar ButtonHilight ButtonShadow; do
        registry 'HKCU\Control Panel\Colors' "$colour" REG_SZ '0 0 0' >/dev/null
    done
    for colour in WindowText ButtonText MenuText Hilight; do
        registry 'HKCU\Control Panel\Colors' "$colour" REG_SZ '255 255 0' >/dev/null
    done
    start && choose form1 && picture colours-contrast && stop
    for theme in dark contrast; do
        cmp <(convert "$pictures/colours-light.png" rgb:-) <(convert "$pictures/colours-$theme.png" rgb:-) ||
            fail "The page has other colours where the desktop is $theme."
    done
    "${wine[@]}" reg import "$(windows_path "$pictures/colours.reg")" >/dev/null
    registry 'HKCU\Control Panel\Accessibility\HighContrast' Flags REG_SZ 126 >/dev/null
    "${wine[@]}" reg delete 'HKCU\Software\Microsoft\Windows\CurrentVersion\Themes\Personalize' /f >/dev/null
}

# Whether the dark ground of the start page is on the display.
is_painted() { import -window root -crop 1x1+20+300 txt:- | grep -qi '#404040'; }

# From the start to the painted start page, in ms, and the most memory up to then, in KB: the median of several.
measure() {
    local began at tries painted=() memory=()
    for _ in $(seq 11); do
        ! is_painted || fail "A page is still on the display."
        began=$(date +%s%3N)
        "${wine[@]}" "$program" 2>>"$errors" &
        tavrune=$!
        for ((tries = 0; ; tries++)); do
            ! is_painted || break
            [ "$tries" -lt 1000 ] || fail "The start page has not been painted."
        done
        at=$(date +%s%3N)
        painted+=($((at - began)))
        memory+=("$(sed -n 's/^VmHWM:[^0-9]*\([0-9]*\) kB/\1/p' "/proc/$tavrune/status")")
        stop
        sleep 0.5
    done
    say "   start to the painted page: $(median "${painted[@]}") ms; most memory up to then: $(median "${memory[@]}") KB"
}

median() { printf '%s\n' "$@" | sort -n | sed -n "$((($# + 1) / 2))p"; }

remove_visibly() {
    "${wine[@]}" "$installed/uninstall.exe" >>"$errors" 2>&1
    window 'Tavrune'
    picture removal
    keys Return
    sleep 3
    picture removed
    keys Return
    window no 'Tavrune'
    is_gone
    say "   nothing is left"
}

tour() {
    rm -rf "$pictures"
    mkdir -p "$pictures"
    say "== A student"
    quietly build run --target tavrune_list_pages
    know_pages
    start_display
    "${wine[@]}" wineboot >>"$errors" 2>&1
    wine_ends
    on_the_drive >"$pictures/before.txt"
    install_silently
    install_visibly
    install_over
    solve
    play_all
    start_in_other_colours
    measure
    remove_visibly
    # All pages there are.
    [ "$(find "$pictures" -name '*-1-task.png' | wc -l)" -eq "$(grep -c '^form' <<<"$pages")" ] || fail "Pictures are missing."
}
