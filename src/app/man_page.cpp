#include "app/man_page.h"

#include "app/console_program.h"
#include "app/verbs.h"
#include "base/version.h"

#include <algorithm>
#include <cctype>
#include <sstream>
#include <string_view>

namespace loftwing {

namespace {

/// Text as the formatter leaves it alone: a minus is a minus, no hyphen.
std::string WithoutMarkup(std::string_view text) {
    std::string plain;
    for (const char letter : text) {
        plain += letter == '\\' ? "\\e" : letter == '-' ? "\\-" : std::string(1, letter);
    }
    // At the start of a line these two would be commands.
    return plain.starts_with('.') || plain.starts_with('\'') ? "\\&" + plain : plain;
}

std::string Bold(std::string_view text) {
    return "\\fB" + WithoutMarkup(text) + "\\fR";
}

std::string Italic(std::string_view text) {
    return "\\fI" + WithoutMarkup(text) + "\\fR";
}

/// The words of a usage: what is typed as it stands is bold, what stands for something else italic.
std::string Usage(const std::string &usage) {
    std::istringstream words("loftwing " + usage);
    std::string styled;
    for (std::string word; words >> word;) {
        const bool stands_for = std::isupper(static_cast<unsigned char>(word.front())) != 0;
        const bool typed = word.front() == '-' || std::islower(word.front()) != 0;
        styled += (styled.empty() ? "" : " ") + (stands_for ? Italic(word)
                                                 : typed    ? Bold(word)
                                                            : WithoutMarkup(word));
    }
    return styled;
}

std::string Option(const OptionRule &rule) {
    const std::string name(rule.name);
    std::string text = ".TP\n" + (name == "--output" ? Bold("-o") + ", " : "") + Bold(name);
    if (rule.value != nullptr) {
        text += " " + Italic(rule.value);
    }
    return text + "\n" + WithoutMarkup(rule.help) + "\n";
}

bool IsCommon(const OptionRule &rule) {
    const std::vector<OptionRule> common = CommonOptions();
    return std::any_of(common.begin(), common.end(), [&](const OptionRule &each) {
        return std::string_view(each.name) == rule.name;
    });
}

std::string Synopsis() {
    std::string text = ".SH SYNOPSIS\n" + Bold("loftwing") + " [" + Bold("--settings") + " " +
                       Italic("FILE") + "] [" + Italic("FILE") + "]\n";
    for (const Verb &verb : Verbs()) {
        text += ".br\n" + Usage(verb.usage) + "\n";
    }
    return text + ".br\n" + Bold("loftwing --help") + " | " + Bold("--version") + " | " +
           Italic("COMMAND") + " " + Bold("--help") + "\n";
}

std::string Command(const Verb &verb) {
    std::string text = ".SS " + WithoutMarkup(verb.name) + "\n" + Usage(verb.usage) + "\n.br\n" +
                       WithoutMarkup(verb.summary);
    if (verb.other_usage != nullptr) {
        text += "\n.PP\n" + Usage(verb.other_usage) + "\n.br\n" + WithoutMarkup(verb.other_summary);
    }
    text += "\n";
    for (const OptionRule &rule : verb.options()) {
        text += IsCommon(rule) ? "" : Option(rule);
    }
    return text;
}

std::string CommonPart() {
    std::string text = ".SH OPTIONS OF EVERY COMMAND\n";
    for (const OptionRule &rule : CommonOptions()) {
        text += Option(rule);
    }
    return text;
}

constexpr std::string_view kDescription = R"(.SH DESCRIPTION
Loftwing turns an airfoil coordinate file into a full\-size rib drawing.
Without a command it opens its window, with a
.I FILE
in it: an airfoil (.dat, .cor), a rib (.lfw), a wing panel (.lfp) or a wing (.lfa).
In the window stand the name of the settings file,
.BR \-\-settings ,
and the options of the toolkit.
The commands draw and compute without a display, and leave the settings of the window alone.
)";

constexpr std::string_view kEnd = R"(.SH EXIT STATUS
.TP
.B 0
All is well.
.TP
.B 1
Something was refused: a line on standard error tells why, a second one which of several files.
No file is left of what was refused.
.TP
.B 2
The command line is wrong.
.SH FILES
.TP
.I ~/.config/loftwing/
The settings of the window.
.TP
.I Loftwing
In the folder of documents: the user's airfoils and sets of ribs.
.SH EXAMPLES
.nf
loftwing draw naca2412.dat \-o rib.svg \-\-chord 180 \-\-sheeting 1.5 \-\-le 8 \-\-te 25
loftwing draw *.dat \-\-to pdf \-o ribs/ \-\-chord 320 \-\-paper A4
loftwing ribs root.dat tip.dat \-\-chords 220 140 \-\-count 8 \-o wing/
loftwing panel wing.lfp \-\-plan wing.pdf \-\-parts wing.csv \-\-density 140
loftwing plan inner.lfp tip.lfp \-o wing.pdf
loftwing convert lednicer.txt \-o lednicer.dat
.fi
)";

} // namespace

std::string ManPage() {
    const std::string version(kVersion);
    std::string text = ".TH LOFTWING 1 " + std::string(kReleaseDate) + " \"loftwing " + version +
                       "\" \"User Commands\"\n.SH NAME\nloftwing \\- " + WithoutMarkup(kWhatItIs) +
                       "\n" + Synopsis() + std::string(kDescription) + ".SH COMMANDS\n";
    for (const Verb &verb : Verbs()) {
        text += Command(verb);
    }
    return text + CommonPart() + std::string(kEnd);
}

} // namespace loftwing
