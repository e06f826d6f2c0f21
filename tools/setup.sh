#!/usr/bin/env bash
# Installs the Debian packages that the project needs, those of them that are missing.
#
#     tools/setup.sh GROUP...
#
# Groups: build (compile the program), run (use it), package (make a Debian package), test, format,
# bench, fuzz, cross (compile for Windows), installer (pack that), wine (try it).
# With LOFTWING_NO_INSTALL set it does nothing: for machines where the same things come from
# elsewhere.
set -euo pipefail

declare -A packages=(
    [build]="cmake g++ libpolyclipping-dev ninja-build qt6-base-dev"
    [run]="fonts-liberation libqt6svg6 qt6-translations-l10n qt6-wayland xdg-utils"
    [package]="dpkg-dev file"
    [test]="appstream desktop-file-utils libglib2.0-bin libgmock-dev libgtest-dev librecad lintian
        locales man-db poppler-utils python3 python3-ezdxf shared-mime-info xauth xvfb"
    [format]="clang-format clang-tidy"
    [bench]="libbenchmark-dev"
    [fuzz]="clang"
    [cross]="cmake dpkg-dev g++-mingw-w64-x86-64-posix googletest ninja-build qt6-base-dev"
    [installer]="nsis"
    [wine]="fonts-wine imagemagick openbox poppler-utils wine wine64 xauth xdotool xvfb"
)

wanted_by() {
    local group
    for group in "$@"; do
        if [[ -z ${packages[$group]:-} ]]; then
            echo "setup.sh: no group '$group'; there are: ${!packages[*]}" >&2
            exit 2
        fi
        tr -s ' \n' '\n' <<<"${packages[$group]}"
    done
}

missing_of() {
    local package
    for package in "$@"; do
        dpkg-query -W -f='${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed ||
            echo "$package"
    done
}

install() {
    local as_root=()
    if [[ $EUID -ne 0 ]]; then
        if ! command -v sudo >/dev/null; then
            echo "These packages are missing, and installing them takes root:" >&2
            echo "    apt-get update && apt-get install $*" >&2
            exit 1
        fi
        echo "Installing takes root: sudo may ask for your password."
        as_root=(sudo)
    fi
    echo "Installing: $*"
    local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive
        apt-get -qq -o DPkg::Lock::Timeout=300 -o Dpkg::Use-Pty=0)
    "${apt[@]}" update </dev/null ||
        echo "The package lists could not be renewed; trying with those that are there." >&2
    "${apt[@]}" install -y --no-install-recommends "$@" </dev/null
}

[[ -z ${LOFTWING_NO_INSTALL:-} ]] || exit 0
list=$(wanted_by "$@")
mapfile -t wanted <<<"$list"

if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
    echo "This system has no apt. Wanted are, by their names in Debian:" >&2
    printf '    %s\n' "${wanted[@]}" >&2
    echo "When they are there under whatever name, set LOFTWING_NO_INSTALL=1 and start again." >&2
    exit 1
fi

mapfile -t missing < <(missing_of "${wanted[@]}")
[[ ${#missing[@]} -gt 0 ]] || exit 0
if ! install "${missing[@]}"; then
    echo "Installing failed. Still wanted: $(missing_of "${wanted[@]}" | paste -sd ' ')" >&2
    exit 1
fi
