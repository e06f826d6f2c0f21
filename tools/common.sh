# shellcheck shell=bash
# What run, test and .ci/run share. To be sourced; sets `root`, the project's folder.

root=$(dirname "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")")

# say WORDS: a heading for what comes now.
say() {
    printf '\n== %s (after %d s)\n' "$1" "$SECONDS"
}

# configure PRESET [CMAKE OPTION...]: uses ccache where it is installed.
configure() {
    local preset=$1 launcher=
    shift
    if command -v ccache >/dev/null; then
        launcher=ccache
    fi
    (cd "$root" && cmake --preset "$preset" "-DCMAKE_CXX_COMPILER_LAUNCHER=$launcher" "$@")
}

# The program alone is built without GoogleTest, unless ./test has brought it in before: taking the
# tests out of such a build would throw away what is compiled of them.
configure_program() {
    local tests=OFF
    if grep -qs '^GTest_DIR:PATH=/' "$root/build/CMakeCache.txt"; then
        tests=ON
    fi
    configure default "-DLOFTWING_TESTS=$tests"
}

# build PRESET [TARGET...]
build() {
    local preset=$1
    shift
    (cd "$root" && cmake --build --preset "$preset" ${1:+--target "$@"})
}

# make_locales FOLDER: the locales besides C that the tests run under. Made here because few
# machines have them, and without touching those of the system.
make_locales() {
    local folder=$1 name
    mkdir -p "$folder"
    for name in fr_FR de_DE ja_JP; do
        [[ -d $folder/$name.UTF-8 ]] && continue
        rm -rf "$folder/$name.new"
        localedef -i "$name" -f UTF-8 "$folder/$name.new"
        mv "$folder/$name.new" "$folder/$name.UTF-8"
    done
}

# run_tests FOLDER [CTEST OPTION...]: the tests of a build folder.
run_tests() {
    local folder=$1
    shift
    make_locales "$folder/locales"
    ctest --test-dir "$folder" --output-on-failure --no-tests=error --parallel 2 "$@"
}
