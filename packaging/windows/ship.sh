# What a student gets: the program, what it stands on, an installer and an archive; sourced by script/windows, not run.

version=$(sed -n 's/^project(tavrune VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
staged=$made/stage/Tavrune
setup=$made/tavrune-$version-setup.exe
archive=$made/tavrune-$version-windows.zip

# Configures what is built for Windows, by the toolchain that Qt was built with: for_windows SOURCE TREE [option...].
for_windows() {
    local source=$1 tree=$2
    shift 2
    cmake -S "$source" -B "$tree" -G Ninja -DCMAKE_BUILD_TYPE=Release "-DCMAKE_CXX_FLAGS_RELEASE=-O2 -DNDEBUG" \
        "-DCMAKE_TOOLCHAIN_FILE=$qt/lib/cmake/Qt6/qt.toolchain.cmake" \
        "-DQT_CHAINLOAD_TOOLCHAIN_FILE=$PWD/packaging/windows/toolchain.cmake" "$@"
}

configure_program() {
    for_windows . "$made/tree" -DCMAKE_COMPILE_WARNING_AS_ERROR=ON -DTAVRUNE_BENCH=OFF "$@"
}

make_program() {
    step "Tavrune is configured" configure_program -DBUILD_TESTING=OFF
    step "Tavrune is built" cmake --build "$made/tree" --target tavrune
}

# All that is shipped, and nothing else: packaging/windows/check knows each file.
stage() {
    local runtime
    rm -rf "$staged"
    mkdir -p "$staged"/{platforms,translations,licenser}
    cp "$made/tree/src/tavrune.exe" "$qt"/bin/Qt6{Core,Gui,Widgets}.dll "$staged/"
    cp "$qt/plugins/platforms/qwindows.dll" "$staged/platforms/"
    for runtime in libgcc_s_seh-1 libstdc++-6 libwinpthread-1; do
        cp "$(x86_64-w64-mingw32-g++-posix -print-file-name=$runtime.dll)" "$staged/"
    done
    x86_64-w64-mingw32-strip "$staged"/*.{exe,dll} "$staged"/platforms/*.dll
    cp "$qt/translations/qtbase_da.qm" "$staged/translations/"
    stage_licences
    find "$staged" -type f -exec chmod 644 {} +
    packaging/windows/check "$staged" >&3
}

# The licences of all that is shipped, as those who wrote it tell them.
stage_licences() {
    local to=$staged/licenser doc=/usr/share/doc
    cp "$qt/licences/LGPL-3.0-only.txt" "$to/LGPL-3.0.txt"
    cp "$qt/licences/GPL-3.0-only.txt" "$to/GPL-3.0.txt"
    cp "$qt/licences/copyright" "$to/Qt.txt"
    cp "$qt/licences/third-parties" "$to/Qt-third-parties.txt"
    cp "$doc/qt6-translations-l10n/copyright" "$to/Qt-translations.txt"
    cp "$doc/gcc-mingw-w64-base/copyright" "$to/GCC.txt"
    cp "$doc/mingw-w64-common/copyright" "$to/MinGW-w64.txt"
    sed -e "s/@VERSION@/$version/g" -e "s/@QT@/$qt_version/g" -e "s/@GCC@/$(version_of gcc-mingw-w64-base)/g" \
        -e "s/@MINGW@/$(version_of mingw-w64-common)/g" -e "s/@TRANSLATIONS@/$(version_of qt6-translations-l10n)/g" \
        packaging/windows/LICENSER.txt.in >"$staged/LICENSER.txt"
    ! grep '@[A-Z]*@' "$staged/LICENSER.txt" || exit 1
    # As Windows ends lines.
    sed -i 's/\r*$/\r/' "$staged/LICENSER.txt" "$to"/*.txt
}

version_of() { dpkg-query -W -f '${Version}' "$1"; }

make_setup() {
    convert -size 164x314 xc:white packaging/icons/128.png -geometry +18+18 -composite -type truecolor "BMP3:$made/beside.bmp"
    makensis -V2 -NOCD -WX "-DVERSION=$version" "-DFROM=$staged" "-DICON=$made/tree/src/windows/tavrune.ico" \
        "-DPICTURE=$made/beside.bmp" "-DTO=$setup" packaging/windows/setup.nsi
}

make_archive() {
    rm -f "$archive"
    (cd "$made/stage" && cmake -E tar cf "../$(basename "$archive")" --format=zip Tavrune)
}

ship() {
    local one
    rm -f "$made"/tavrune-*
    step "What is shipped is gathered and checked" stage
    step "The installer is made" make_setup
    step "The archive is made" make_archive
    for one in "$setup" "$archive"; do say "$one: $(($(stat -c %s "$one") / 1024)) KB"; done
}
