#!/usr/bin/env bash
# clang-tidy over all sources, in groups: what costs most is reading the toolkit's headers, which a
# group does once. No two files of a group have a name of their own (in an unnamed namespace) in
# common; where a group clashes all the same its files are looked at one by one.
#
#     tidy.sh BUILD_FOLDER    a folder configured with compile commands
set -euo pipefail
root=$(readlink -f "$(dirname "${BASH_SOURCE[0]}")/..")
build=$(readlink -f "$1")
groups=$build/tidy-groups
rm -rf "$groups"
mkdir -p "$groups"

# The names that each file has to itself: what is declared at the left edge between "namespace {" and
# its end.
own_names() {
    awk '
        FNR == 1 { inside = 0 }
        /^namespace \{/ { inside = 1; next }
        /^\} \/\/ namespace$/ { inside = 0 }
        inside && /^[A-Za-z_]/ && !/^(template|namespace|using namespace)/ {
            head = $0
            sub(/[({=;\[].*/, "", head)
            while (gsub(/<[^<>]*>/, "", head)) {}
            sub(/ : .*/, "", head)
            sub(/[ ]+$/, "", head)
            if (match(head, /[A-Za-z_][A-Za-z_0-9]*$/) &&
                substr(head, RSTART - 2, 2) != "::") {
                print FILENAME "\t" substr(head, RSTART)
            }
        }' "$@"
}

# Files into groups of at most `most`, each into the first one that has none of its names. A file with
# a name that some header has too stands alone.
grouped() {
    awk -F '\t' -v most="$1" '
        FILENAME == ARGV[1] { shared[$1]; next }
        FILENAME == ARGV[2] { names[$1] = names[$1] " " $2; next }
        {
            count = split(names[$0], own, " ")
            alone = 0
            for (i = 1; i <= count; ++i) alone = alone || own[i] in shared
            for (group = 1; ; ++group) {
                if (size[group] >= (alone ? 1 : most)) continue
                free = 1
                for (i = 1; i <= count && free; ++i) free = !((group, own[i]) in taken)
                if (free) break
            }
            for (i = 1; i <= count; ++i) taken[group, own[i]] = 1
            size[group] += alone ? most : 1
            print group "\t" $0
        }' "$2" "$3" "$4"
}

mapfile -t sources < <(cd "$root" && find src -name '*.cpp' | LC_ALL=C sort)
(cd "$root" && own_names "${sources[@]}") >"$groups/names"
printf '%s\n' "${sources[@]}" >"$groups/sources"
find "$root/src" -name '*.h' -exec grep -hoE '^(struct|class|enum class|enum) [A-Za-z_]+' {} + |
    sed 's/.* //' | sort -u >"$groups/shared"
grouped 12 "$groups/shared" "$groups/names" "$groups/sources" >"$groups/groups"
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
