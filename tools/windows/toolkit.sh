# shellcheck shell=bash
# The libraries that the program stands on, built for Windows from Debian's own source packages. To be
# sourced by who has set `root` and `windows`, the folder that everything is built in.
#
# A library is built once: what says so stands in its folder, and removing that builds it anew.

prefix=$windows/libraries

# The lists of source packages are the project's own and go with the work: the system's own stay as they
# are, and nobody must be root for this.
fetch_source() {
    local apt=$windows/apt key=/usr/share/keyrings/debian-archive-keyring.gpg
    rm -rf "$apt"
    mkdir -p "$apt/lists/partial" "$apt/cache" "$apt/unpacked"
    apt-get indextargets --format "deb-src [signed-by=$key] \$(SITE) \$(RELEASE) main" \
        'Identifier: Packages' 'Component: main' 'Origin: Debian' | sort -u >"$apt/sources.list"
    local options=(-qq -o "Dir::Etc::SourceList=$apt/sources.list" -o Dir::Etc::SourceParts=/dev/null
        -o "Dir::State::Lists=$apt/lists" -o "Dir::Cache=$apt/cache"
        -o "APT::Sandbox::User=$(id -un)")
    apt-get "${options[@]}" update
    (cd "$apt/unpacked" && apt-get "${options[@]}" source "$1")
    # Only what has been unpacked to its end.
    find "$apt/unpacked" -mindepth 1 -maxdepth 1 -type d -exec mv {} "$windows/sources" \;
    rm -rf "$apt"
}

unpacked_source() {
    find "$windows/sources" -maxdepth 1 -type d -name "$1-*"
}

# source_of PACKAGE: the folder of its source, which is fetched where it isn't there.
source_of() {
    mkdir -p "$windows/sources"
    if [[ -z $(unpacked_source "$1") ]]; then
        fetch_source "$1" >&2
    fi
    unpacked_source "$1"
}

# build_library NAME SOURCE [CMAKE OPTION...]: into `prefix`.
build_library() {
    local name=$1 source=$2 built=$windows/$1
    shift 2
    [[ -e $built/installed ]] && return
    cmake -S "$source" -B "$built" -G Ninja -DCMAKE_BUILD_TYPE=Release \
        "-DCMAKE_TOOLCHAIN_FILE=$root/tools/windows/toolchain.cmake" \
        "-DLOFTWING_CROSS_ROOT=$prefix" "-DCMAKE_INSTALL_PREFIX=$prefix" "$@"
    cmake --build "$built"
    cmake --install "$built" --strip >"$built/installed.log"
    touch "$built/installed"
}

build_clipper() {
    local source
    source=$(source_of libpolyclipping)
    build_library clipper "$source/cpp" -DBUILD_SHARED_LIBS=OFF -DCMAKE_POLICY_DEFAULT_CMP0115=OLD
}

build_gtest() {
    build_library gtest /usr/src/googletest
}

# What the program has no use for is left out, and so is what Debian's source hasn't got: the header
# of graphics tablets. Nothing of the machine's own libraries may come in.
build_qt() {
    local source off=() feature
    for feature in tabletevent network sql testlib dbus opengl vulkan concurrent xml icu glib \
        zstd pkg_config system_zlib system_pcre2 system_png system_jpeg system_freetype \
        system_harfbuzz system_doubleconversion gif; do
        off+=("-DFEATURE_$feature=OFF")
    done
    source=$(source_of qt6-base)
    build_library qt "$source" -DQT_HOST_PATH=/usr \
        -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake -DQT_QMAKE_TARGET_MKSPEC=win32-g++ \
        -DCMAKE_CXX_FLAGS=-Wno-attributes -DINPUT_opengl=no -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF "${off[@]}"
}
