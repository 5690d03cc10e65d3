# Qt's base for Windows, from Debian's source, built once; sourced by script/windows, not run. `qt` is its folder then.

qt_version=$(dpkg-query -W -f '${Version}' qt6-base-dev)
# Shared, so that whoever has the program can exchange it: it stands under the LGPL. What Tavrune has no use for is left
# out, and what is not in the source; the libraries that Qt stands on are those that it brings along.
qt_options=(
    -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=ON -DCMAKE_INSTALL_PREFIX=/qt -DPKG_CONFIG_EXECUTABLE=/bin/false
    -DQT_HOST_PATH=/usr "-DQT_HOST_PATH_CMAKE_DIR=/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)/cmake"
    -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DINPUT_opengl=no
    # The fonts' engine wants it.
    -DFEATURE_direct2d=ON
)
for feature in androiddeployqt concurrent dbus direct2d1_1 gif glib icu jpeg network pkg_config printsupport sql tabletevent \
    vulkan xml zstd system_{doubleconversion,freetype,harfbuzz,pcre2,png,zlib}; do
    qt_options+=("-DFEATURE_$feature=OFF")
done

caches=${XDG_CACHE_HOME:-$HOME/.cache}/tavrune
qt_key=$({ printf '%s\n' "$qt_version" "${qt_options[@]}" && cat packaging/windows/toolchain.cmake; } | sha256sum | cut -c 1-12)
qt=$caches/qt-${qt_version%%[+-]*}-windows-$qt_key
qt_making=$qt.unfinished
# No message in it tells where it was built.
qt_options+=("-DCMAKE_C_FLAGS=-ffile-prefix-map=$qt_making/=" "-DCMAKE_CXX_FLAGS=-ffile-prefix-map=$qt_making/=")

# Debian's source of that very version.
fetch_qt() {
    rm -rf "$qt_making/fetched" "$qt_making/unpacked"
    fetch_source "qt6-base=$qt_version" "$qt_making/fetched"
    dpkg-source -x "$qt_making"/fetched/qt6-base_*.dsc "$qt_making/unpacked"
    mv "$qt_making/unpacked" "$qt_making/source"
}

# What was configured stays as it is where this copy of Tavrune goes: its own toolchain lies beside it.
configure_qt() {
    cp packaging/windows/toolchain.cmake "$qt_making/"
    rm -rf "$qt_making/tree"
    cmake -S "$qt_making/source" -B "$qt_making/tree" -G Ninja "-DCMAKE_TOOLCHAIN_FILE=$qt_making/toolchain.cmake" "${qt_options[@]}"
    touch "$qt_making/configured"
}

# The licences of what Qt brings along and is built with it.
third_parties() {
    local part text
    cd "$qt_making/source/src/3rdparty"
    for part in blake2 double-conversion easing freetype{,/docs} harfbuzz-ng icc libpng md4c pcre2 pixman rfc6234 sha3 tinycbor zlib; do
        for text in $(find "$part" -maxdepth 1 '(' -iname '*LICEN[CS]E*' -o -name 'COPYING*' -o -name FTL.TXT ')' | sort); do
            printf '==== %s\n\n' "$text"
            cat "$text"
            printf '\n'
        done
    done
}

# The finished folder appears at once, so that a stop leaves none that is half made.
install_qt() {
    rm -rf "$qt_making/installed"
    DESTDIR=$qt_making/installed cmake --install "$qt_making/tree" --strip
    mkdir "$qt_making/installed/qt/licences" "$qt_making/installed/qt/translations"
    cp /usr/share/qt6/translations/qtbase_da.qm "$qt_making/installed/qt/translations/"
    cp "$qt_making"/source/LICENSES/*GPL-3.0-only.txt "$qt_making/source/debian/copyright" "$qt_making/installed/qt/licences/"
    (third_parties) >"$qt_making/installed/qt/licences/third-parties"
    mv "$qt_making/installed/qt" "$qt"
}

make_qt() {
    [ ! -d "$qt" ] || return 0
    mkdir -p "$qt_making" 2>/dev/null || fail "Qt can't be put into $caches: no folder can be made there."
    # Of what it takes, some may be there from an earlier run.
    need_megabytes "$caches" $((3072 - $(du -sm "$qt_making" | cut -f 1)))
    [ -d "$qt_making/source" ] || step "Qt's source, $qt_version" fetch_qt
    [ -e "$qt_making/configured" ] || step "Qt is configured" configure_qt
    step "Qt is built, once: a quarter of an hour on two processors" cmake --build "$qt_making/tree"
    step "Qt is put into $qt" install_qt
    rm -rf "$qt_making"
}
