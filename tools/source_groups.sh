#!/usr/bin/env bash
# Puts source files into groups that can be compiled or looked at together: no two files of a group
# have a name of their own (in an unnamed namespace) in common, and none has one that a header of
# src/ gives to a type or a constant.
#
#     source_groups.sh MOST FILE...    prints a line a file: the number of its group, a tab, the file
#
# A group has at most MOST files.
set -euo pipefail
root=$(readlink -f "$(dirname "${BASH_SOURCE[0]}")/..")
most=$1
shift

# The names that each file has to itself: what is declared at the left edge between "namespace {" and
# its end. A test's name is its suite's and its own.
own_names() {
    awk '
        FNR == 1 { inside = 0 }
        /^namespace \{/ { inside = 1; next }
        /^\} \/\/ namespace$/ { inside = 0 }
        inside && /^TEST/ { next }
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

# Types and constants of headers.
shared_names() {
    find "$root/src" \( -name '*.h' -o -name '*.h.in' \) -exec grep -hoE \
        -e '^(struct|class|enum class|enum|using) [A-Za-z_0-9]+' \
        -e '^(inline )?constexpr [^={(;]*[ *]k[A-Za-z_0-9]+' {} + |
        sed 's/.*[ *]//' | sort -u
}

# Each file into the first group that has none of its names; one with a name that some header has too
# stands alone.
awk -F '\t' -v most="$most" '
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
    }' <(shared_names) <(own_names "$@") <(printf '%s\n' "$@")
