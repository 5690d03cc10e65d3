# Windows by Wine, with a drive, a registry and a home of its own below build/windows; sourced by script/windows, not run.

wine_folder=$PWD/$made/wine
drive=$wine_folder/prefix/drive_c
user=$drive/users/$(id -un)
# No entries in this machine's own menus, no questions for what only some programs want.
export WINEPREFIX=$wine_folder/prefix WINEARCH=win64 WINEDEBUG=-all WINEDLLOVERRIDES='winemenubuilder.exe,mscoree,mshtml=d'

wine=(env "HOME=$wine_folder/home" /usr/lib/wine/wine64)

# Waits for all that runs there to end, or with -k ends it.
wine_ends() { /usr/lib/wine/wineserver64 "${1:--w}"; }

# A path of this machine as programs there have it.
windows_path() { realpath "$1" | sed 's#^#Z:#; s#/#\\#g'; }

# Writes a value to the registry: registry KEY NAME TYPE DATA.
registry() { "${wine[@]}" reg add "$1" /v "$2" /t "$3" /d "$4" /f; }

# A Danish Windows 10 that has never seen Tavrune.
start_wine() {
    [ ! -d "$WINEPREFIX" ] || wine_ends -k || true
    rm -rf "$wine_folder"
    mkdir -p "$wine_folder"/{home,locale}
    trap 'wine_ends -k || true; kill $(jobs -p) 2>/dev/null || true' EXIT
    step "Wine is set up" set_up_wine
    export LOCPATH=$wine_folder/locale
}

set_up_wine() {
    localedef -i da_DK -f UTF-8 "$wine_folder/locale/da_DK.UTF-8"
    export LOCPATH=$wine_folder/locale LC_ALL=da_DK.UTF-8
    "${wine[@]}" wineboot --init
    "${wine[@]}" winecfg -v win10
    wine_ends
    "${wine[@]}" cmd /c ver | grep 'Windows 10\.'
}
