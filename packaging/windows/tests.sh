# The tests, built for Windows and run under Wine; sourced by script/windows, not run.

libraries=$made/libraries

# What tests are written with, of the versions that are installed for this machine's own tests.
make_googletest() {
    for_windows /usr/src/googletest "$libraries/googletest" "-DCMAKE_INSTALL_PREFIX=$PWD/$libraries/googletest/installed"
    cmake --build "$libraries/googletest" --target install
}

# Where its source can't be had, what wants it stays behind.
make_rapidcheck() {
    local source=$libraries/rapidcheck-source
    rm -rf "$source" "$libraries/rapidcheck"
    if ! (fetch_source "rapidcheck=$(version_of librapidcheck-dev)" "$source"); then
        echo "   The tests that want it stay behind." >&3
        return
    fi
    dpkg-source -x "$source"/rapidcheck_*.dsc "$source/rapidcheck"
    for_windows "$source/rapidcheck" "$libraries/rapidcheck" "-DCMAKE_INSTALL_PREFIX=$PWD/$libraries/rapidcheck/installed" \
        -DRC_ENABLE_GTEST=ON "-DCMAKE_FIND_ROOT_PATH=$PWD/$libraries/googletest/installed" \
        -DCMAKE_POLICY_DEFAULT_CMP0063=NEW
    cmake --build "$libraries/rapidcheck" --target install
}

make_tests() {
    local googletest=$libraries/googletest/installed/lib/cmake/GTest
    local rapidcheck=$libraries/rapidcheck/installed/share/rapidcheck/cmake
    [ -d "$googletest" ] || step "GoogleTest is built" make_googletest
    [ -d "$rapidcheck" ] || step "RapidCheck is built" make_rapidcheck
    step "The tests are configured" configure_program -DBUILD_TESTING=ON "-DGTest_DIR=$PWD/$googletest" \
        "-Drapidcheck_DIR=$PWD/$rapidcheck" -DCMAKE_REQUIRE_FIND_PACKAGE_GTest=ON
    step "The tests are built" cmake --build "$made/tree" --target tavrune_core_tests tavrune_gui_tests
}

# Runs a test program, as many at once as there are processors, and says how many tests have passed; the words after its
# name go to it.
run_test_program() {
    local name=$1 shards share failed=0 shares=()
    shift
    shards=$(nproc)
    rm -f "$made/$name".*.txt
    for ((share = 0; share < shards; share++)); do
        # Wine keeps variables of Qt's own from a program: they are set there. What is written comes beside it.
        (
            cd "$made"
            export GTEST_TOTAL_SHARDS=$shards GTEST_SHARD_INDEX=$share
            "${wine[@]}" cmd /c "set QT_QPA_FONTDIR=$(windows_path fonts)&& $(windows_path "tree/tests/$name.exe") --gtest_brief=1 $*"
        ) >"$made/$name.$share.txt" 2>&1 &
        shares+=($!)
    done
    for share in "${shares[@]}"; do wait "$share" || failed=1; done
    cat "$made/$name".*.txt
    [ "$failed" -eq 0 ]
    sed -n 's/.*\[  PASSED  \] \([0-9]*\) tests.*/\1/p' "$made/$name".*.txt |
        awk -v name="$name" '{ sum += $1 } END { print "   " name ": " sum " tests have passed"; exit sum == 0 }' >&3
}

run_tests() {
    local gcc
    gcc=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++-6.dll)")
    # Without a screen, Qt for Windows takes what lies there: the font that this machine's own tests have.
    mkdir -p "$made/fonts"
    cp $(dpkg -L fonts-liberation | grep '\.ttf$') "$made/fonts/"
    # Where the libraries are.
    export WINEPATH
    WINEPATH="$(windows_path "$qt/bin");$(windows_path "$gcc");$(windows_path /usr/x86_64-w64-mingw32/lib)"
    step "Tests without a screen" run_test_program tavrune_core_tests
    step "Tests of the forms" run_test_program tavrune_gui_tests
    LC_ALL=da_DK.UTF-8 step "Tests of what is typed and heard, on a Danish Windows" run_test_program tavrune_gui_tests \
        "--gtest_filter=Application.Begins*:ProcessLocale.*:*TypedAnswers*:*BlindStudentOn*"
    # What is shipped has to do without.
    unset WINEPATH
}
