# Makes the change log of a Debian package from the program's: one entry for the version that is
# built, with the points of its heading and of the changes that no version has yet.
#
#     awk -v version=1.0.0 -v release=1 -v maintainer='NAME <ADDRESS>' -v made=FILE -f ... CHANGELOG.md

/^## / {
    inside = $2 == version || $2 == "Unreleased"
    if ($2 == version)
        day = $4
    bullet = 0
    next
}
/^#/ || /^$/ { bullet = 0; next }
inside && /^- / { bullet = 1; points[++count] = substr($0, 3); next }
inside && bullet { sub(/^ +/, ""); points[count] = points[count] " " $0 }

# A line of an entry has at most 80 characters.
function wrapped(text, words, number, i, line, all) {
    gsub(/\*\*|`/, "", text)
    number = split(text, words, " ")
    line = "  *"
    for (i = 1; i <= number; i++) {
        if (length(line) + 1 + length(words[i]) > 78) {
            all = all line "\n"
            line = "   "
        }
        line = line " " words[i]
    }
    return all line "\n"
}

END {
    command = "LC_ALL=C date -u -R -d " day
    command | getline date
    printf "loftwing (%s-%s) unstable; urgency=medium\n\n", version, release > made
    for (i = 1; i <= count; i++)
        printf "%s", wrapped(points[i]) > made
    printf "\n -- %s  %s\n", maintainer, date > made
}
