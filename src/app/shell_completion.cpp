#include "app/shell_completion.h"

#include "app/verbs.h"

#include <algorithm>
#include <cctype>
#include <string_view>
#include <vector>

namespace loftwing {

namespace {

/// What a script of bash holds literally.
std::string Quoted(const std::string &word) {
    std::string quoted = "'";
    for (const char letter : word) {
        quoted += letter == '\'' ? "'\\''" : std::string(1, letter);
    }
    return quoted + "'";
}

std::string Joined(const std::vector<std::string> &words) {
    std::string text;
    for (const std::string &word : words) {
        text += (text.empty() ? "" : " ") + Quoted(word);
    }
    return text;
}

/// "mm|in" is mm or in, "plain" is that; a value in capitals stands for something else.
std::vector<std::string> WordsOf(const OptionRule &rule) {
    if (!rule.choices.empty()) {
        return rule.choices;
    }
    std::vector<std::string> words;
    const std::string value(rule.value);
    if (std::islower(static_cast<unsigned char>(value.front())) == 0) {
        return words;
    }
    for (std::size_t from = 0; from <= value.size();) {
        const std::size_t to = std::min(value.find('|', from), value.size());
        words.push_back(value.substr(from, to - from));
        from = to + 1;
    }
    return words;
}

/// The endings of what a verb writes, those of its --to where it draws.
std::vector<std::string> WrittenEndings(const std::vector<OptionRule> &rules) {
    const auto to = std::find_if(rules.begin(), rules.end(), [](const OptionRule &rule) {
        return std::string_view(rule.name) == "--to";
    });
    return to == rules.end() ? std::vector<std::string>{"dat"} : to->choices;
}

/// The call of the script that offers values of an option.
std::string Offer(const OptionRule &rule, const std::vector<OptionRule> &rules) {
    const std::string value(rule.value);
    if (std::string_view(rule.name) == "--language") {
        return "_loftwing_languages";
    }
    if (const std::vector<std::string> words = WordsOf(rule); !words.empty()) {
        return "_loftwing_words " + Joined(words);
    }
    if (value.starts_with("OUT")) {
        return "_loftwing_files " + Joined(WrittenEndings(rules));
    }
    if (value.starts_with("DIR")) {
        return "_loftwing_folders";
    }
    if (value.starts_with("FILE")) {
        return rule.values == kAllWords ? "_loftwing_airfoils" : "_loftwing_files";
    }
    return ":"; // a number
}

/// How many words of what an option takes, as a branch of the script.
std::string Branch(const Verb &verb, const OptionRule &rule, const std::vector<OptionRule> &rules) {
    const int most = rule.values == kAllWords ? 9999 : rule.values;
    return "    " + Quoted(std::string(verb.name) + " " + rule.name) +
           ") left=" + std::to_string(most) + " offer=" + Quoted(Offer(rule, rules)) + " ;;\n";
}

std::string Rules() {
    std::string text = "_loftwing_rule() {\n    left=0 offer=:\n    case $1 in\n"
                       "    *' --settings') left=1 offer=_loftwing_files ;;\n";
    for (const Verb &verb : Verbs()) {
        const std::vector<OptionRule> rules = verb.options();
        for (const OptionRule &rule : rules) {
            text += rule.value == nullptr ? "" : Branch(verb, rule, rules);
        }
    }
    return text + "    esac\n}\n\n";
}

const char *FilesOffer(Takes takes) {
    switch (takes) {
    case Takes::nothing:
        return "_loftwing_words $options";
    case Takes::airfoils:
        return "_loftwing_airfoils";
    case Takes::any_files:
        break;
    }
    return "_loftwing_files";
}

/// The options of every verb and what its other words are.
std::string VerbTable() {
    std::string text = "_loftwing_verb() {\n    case $1 in\n";
    for (const Verb &verb : Verbs()) {
        std::string options = "-o ";
        const std::vector<OptionRule> rules = verb.options();
        const bool writes = std::any_of(rules.begin(), rules.end(), [](const OptionRule &rule) {
            return std::string_view(rule.name) == "--output";
        });
        options = writes ? options : "";
        for (const OptionRule &rule : rules) {
            options += std::string(rule.name) + " ";
        }
        options.pop_back();
        text += "    " + std::string(verb.name) + ") options=" + Quoted(options) +
                " files=" + Quoted(FilesOffer(verb.takes)) + " ;;\n";
    }
    return text + "    *) options='--settings --help --version' files=_loftwing_airfoils ;;\n"
                  "    esac\n}\n\n";
}

std::string VerbNames() {
    std::string names;
    for (const Verb &verb : Verbs()) {
        names += std::string(names.empty() ? "" : " ") + verb.name;
    }
    return names;
}

constexpr std::string_view kHelpers =
    R"bash(# bash completion of loftwing, made from the program's own tables.

# Those of the given words that begin as the word that is typed.
_loftwing_words() {
    local word
    for word; do
        printf -v word %q "$word"
        [[ $word == "$cur"* ]] && COMPREPLY+=("$word")
    done
}

# Folders, and files with one of these endings; all files without one.
_loftwing_files() {
    local path ending typed=${cur//\\/}
    compopt -o filenames 2>/dev/null
    while IFS= read -r path; do
        if [[ $# -eq 0 || -d ${path/#\~/$HOME} ]]; then
            COMPREPLY+=("$path")
            continue
        fi
        for ending; do
            [[ ${path,,} == *."$ending" ]] && COMPREPLY+=("$path")
        done
    done < <(compgen -f -- "${typed#[\"\']}")
}

_loftwing_folders() {
    local path typed=${cur//\\/}
    compopt -o filenames 2>/dev/null
    while IFS= read -r path; do
        COMPREPLY+=("$path")
    done < <(compgen -d -- "${typed#[\"\']}")
}

# An import reads files of any name.
_loftwing_airfoils() {
    if [[ " ${COMP_WORDS[*]} " == *' --import '* ]]; then
        _loftwing_files
    else
        _loftwing_files dat cor lfw
    fi
}

_loftwing_languages() {
    local file names=() program
    program=$(readlink -f -- "$(type -P -- "$command")")
    for file in "${program%/bin/*}"/share/loftwing/lng/*.lng; do
        file=${file##*/}
        [[ $file == '*.lng' ]] || names+=("${file%.lng}")
    done
    _loftwing_words "${names[@]}"
}

)bash";

constexpr std::string_view kMain = R"bash(_loftwing() {
    local command=$1 cur=${COMP_WORDS[COMP_CWORD]} verb=${COMP_WORDS[1]} options files
    local left=0 offer=: word i
    COMPREPLY=()
    [[ $COMP_CWORD -eq 1 ]] && verb=
    _loftwing_verb "$verb"
    # What the words before this one leave to be typed.
    for ((i = 1; i < COMP_CWORD; ++i)); do
        word=${COMP_WORDS[i]}
        [[ $word == -o ]] && word=--output
        if [[ $word == --* ]]; then
            _loftwing_rule "$verb $word"
        elif [[ $word != '=' && $left -gt 0 ]]; then
            left=$((left - 1))
        fi
    done
    # The shell takes the sign of --name=value for a word of its own.
    [[ $cur == '=' ]] && cur=
    if [[ $cur == -* ]]; then
        _loftwing_words $options
    elif [[ $left -gt 0 ]]; then
        eval "$offer"
    else
        [[ $COMP_CWORD -eq 1 ]] && _loftwing_words )bash";

constexpr std::string_view kMainEnd = R"bash(
        eval "$files"
    fi
}

complete -F _loftwing loftwing
)bash";

} // namespace

std::string BashCompletion() {
    return std::string(kHelpers) + Rules() + VerbTable() + std::string(kMain) + VerbNames() +
           std::string(kMainEnd);
}

} // namespace loftwing
