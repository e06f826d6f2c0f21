#!/usr/bin/env bash
# clang-tidy over all sources, in groups: what costs most is reading the toolkit's headers, which a
# group does once. Where a group clashes its files are looked at one by one.
#
#     tidy.sh BUILD_FOLDER    a folder configured with compile commands
set -euo pipefail
root=$(readlink -f "$(dirname "${BASH_SOURCE[0]}")/..")
build=$(readlink -f "$1")
groups=$build/tidy-groups
rm -rf "$groups"
mkdir -p "$groups"

mapfile -t sources < <(cd "$root" && find src -name '*.cpp' | LC_ALL=C sort)
(cd "$root" && tools/source_groups.sh 12 "${sources[@]}") >"$groups/groups"
while IFS=$'\t' read -r group file; do
    printf '#include "%s"\n' "$root/$file" >>"$groups/group_$group.cpp"
done <"$groups/groups"

# Every file is read with the commands of one that has the toolkit.
flags=$(grep -m 1 '"command".*src/mainwindow/' "$build/compile_commands.json" |
    sed 's/^[^:]*: "//; s/ -o .*//; s/\\"/"/g; s/^[^ ]* //; s/\\\\/\\/g')

one_by_one() {
    sed 's/#include "\(.*\)"/\1/' "$1" |
        xargs -d '\n' -n 1 clang-tidy -p "$build" --quiet
}

check() {
    local said
    # That a group includes sources is how it is made, and what shadows a name of another file's own
    # is nothing that the compiler would see.
    if said=$(eval "clang-tidy --quiet --config-file='$root/.clang-tidy' \
        --checks=-bugprone-suspicious-include '$1' -- $flags -Wno-shadow" 2>"$1.err"); then
        return 0
    fi
    if grep -q 'clang-diagnostic-error' <<<"$said"; then
        one_by_one "$1"
    else
        printf '%s\n' "$said"
        return 1
    fi
}
export -f check one_by_one
export flags build root
find "$groups" -name 'group_*.cpp' -print0 | LC_ALL=C sort -z |
    xargs -0 -n 1 -P "$(nproc)" bash -c 'check "$1"' check
