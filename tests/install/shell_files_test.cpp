// Manual page and completion, held against what --help prints.

#include "base/whole_file.h"
#include "install/installed.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <sstream>

namespace loftwing {
namespace {

namespace fs = std::filesystem;

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;
using testing::UnorderedElementsAre;
using testing::UnorderedElementsAreArray;

using Words = std::vector<std::string>;

std::string Help(const std::string &words) {
    return RunShell(ShellWord(Installed::Get().Program()) + " " + words + " --help").out;
}

/// The commands of the help: "loftwing NAME ...", without the window's line and the last one.
Words Verbs() {
    Words verbs;
    std::istringstream text(Help(""));
    for (std::string line; std::getline(text, line);) {
        std::istringstream words(line);
        std::string program;
        std::string verb;
        words >> program >> verb;
        if (program == "loftwing" && !verb.empty() && std::islower(verb[0]) != 0) {
            verbs.push_back(verb);
        }
    }
    return verbs;
}

/// The options of a command's help: lines that begin with two blanks and two minus signs.
Words Options(const std::string &verb) {
    Words options;
    std::istringstream text(Help(verb));
    for (std::string line; std::getline(text, line);) {
        if (line.starts_with("  --")) {
            options.push_back(line.substr(2, line.find(' ', 2) - 2));
        }
    }
    return options;
}

TEST(HelpThatIsRead, HasCommandsAndOptions) {
    EXPECT_THAT(Verbs(), IsSupersetOf({"draw", "info", "ribs", "table", "convert"}));
    EXPECT_THAT(Options("draw"), IsSupersetOf({"--output", "--chord", "--paper", "--help"}));
}

std::string PageFile() {
    return ShellWord(Installed::Get().Path("share/man/man1/loftwing.1.gz"));
}

/// The page as it is read in a terminal, each of its sections by its heading.
std::map<std::string, std::string> Sections() {
    std::map<std::string, std::string> sections;
    std::istringstream text(RunShell("LC_ALL=C.UTF-8 MANWIDTH=120 man -l " + PageFile()).out);
    std::string heading;
    for (std::string line; std::getline(text, line);) {
        // Headings stand at the margin, those of commands three blanks in; text seven.
        const std::size_t indent = line.find_first_not_of(' ');
        if (indent == 0 || indent == 3) {
            heading = line.substr(indent);
        } else {
            sections[heading] += line + "\n";
        }
    }
    return sections;
}

TEST(ManualPage, IsFormattedWithoutAWarning) {
    const Ran ran = RunShell("LC_ALL=C.UTF-8 MANROFFSEQ= man --warnings -E UTF-8 -l -Tutf8 -Z " +
                             PageFile() + " > /dev/null");
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.err, "");
}

TEST(ManualPage, NamesEveryCommandAndOption) {
    const auto sections = Sections();
    ASSERT_TRUE(sections.contains("OPTIONS OF EVERY COMMAND"));
    const std::string common = sections.at("OPTIONS OF EVERY COMMAND");
    for (const std::string &verb : Verbs()) {
        ASSERT_TRUE(sections.contains(verb)) << verb;
        EXPECT_THAT(sections.at("SYNOPSIS"), HasSubstr("loftwing " + verb + " "));
        for (const std::string &option : Options(verb)) {
            // "-o, --output OUT" or "--chord LENGTH" at the start of its paragraph.
            const std::string &text = sections.at(verb) + common;
            EXPECT_TRUE(text.find("\n       " + option) != std::string::npos ||
                        text.find("\n       -o, " + option) != std::string::npos)
                << verb << option;
        }
    }
    EXPECT_THAT(sections.at("NAME"), HasSubstr("loftwing - full-size rib drawings"));
    EXPECT_THAT(sections.at("EXIT STATUS"), HasSubstr("0      All is well."));
}

/// The words that the shell offers in the place of the last one.
Words Offered(const Words &words, const std::string &folder = "/") {
    std::string script =
        "cd " + ShellWord(folder) + "; . " +
        ShellWord(Installed::Get().Path("share/bash-completion/completions/loftwing")) +
        "; COMP_WORDS=(" + ShellWord(Installed::Get().Program());
    for (const std::string &word : words) {
        script += " " + ShellWord(word);
    }
    script += "); COMP_CWORD=" + std::to_string(words.size()) + "; _loftwing " +
              ShellWord(Installed::Get().Program()) +
              "; [[ ${#COMPREPLY[@]} -eq 0 ]] || printf '%s\\n' \"${COMPREPLY[@]}\"";
    const Ran ran = RunShell("bash --norc -u -c " + ShellWord(script));
    EXPECT_EQ(ran.status, 0) << ran.err;
    EXPECT_EQ(ran.err, "");
    Words offered;
    std::istringstream text(ran.out);
    for (std::string line; std::getline(text, line);) {
        offered.push_back(line);
    }
    return offered;
}

TEST(Completion, IsLoadedForTheProgram) {
    const Ran ran = RunShell(
        "bash --norc -c " +
        ShellWord(". " +
                  ShellWord(Installed::Get().Path("share/bash-completion/completions/loftwing")) +
                  "; complete -p loftwing"));
    EXPECT_EQ(ran.out, "complete -F _loftwing loftwing\n");
}

TEST(Completion, OffersEveryCommand) {
    const TempFolder empty;
    EXPECT_THAT(Offered({""}, empty.Path()), UnorderedElementsAreArray(Verbs()));
    EXPECT_THAT(Offered({"co"}, empty.Path()), UnorderedElementsAre("compare", "convert"));
    EXPECT_THAT(Offered({"--"}), UnorderedElementsAre("--help", "--version", "--settings"));
}

TEST(Completion, OffersTheOptionsOfACommand) {
    for (const std::string &verb : Verbs()) {
        EXPECT_THAT(Offered({verb, "--"}), UnorderedElementsAreArray(Options(verb))) << verb;
        const bool writes = testing::Value(Options(verb), Contains("--output"));
        EXPECT_EQ(testing::Value(Offered({verb, "-"}), Contains("-o")), writes) << verb;
    }
    EXPECT_THAT(Offered({"draw", "a.dat", "--chord", "200", "--stat"}), ElementsAre("--stations"));
}

TEST(Completion, OffersTheWordsThatAnOptionTakes) {
    EXPECT_THAT(Offered({"draw", "--paper", ""}),
                UnorderedElementsAre("A4", "Letter", "Fanfold", "Legal", "Executive", "B4",
                                     "US\\ B", "A3", "drawing"));
    EXPECT_THAT(Offered({"plot", "x.dat", "--paper", "A"}), UnorderedElementsAre("A4", "A3"));
    EXPECT_THAT(Offered({"table", "--unit", ""}), UnorderedElementsAre("mm", "in"));
    EXPECT_THAT(Offered({"table", "--unit", "=", "i"}), ElementsAre("in"));
    EXPECT_THAT(Offered({"table", "--unit", "="}), UnorderedElementsAre("mm", "in"));
    EXPECT_THAT(Offered({"draw", "--dxf", ""}), ElementsAre("plain"));
    EXPECT_THAT(Offered({"draw", "--to", ""}),
                UnorderedElementsAre("pdf", "svg", "png", "dxf", "lfw"));
    EXPECT_THAT(Offered({"compare", "--to", ""}), Not(Contains("lfw")));
    EXPECT_THAT(Offered({"info", "--language", "F"}), ElementsAre("French"));
    Words languages;
    for (const auto &entry : fs::directory_iterator(Installed::Get().Path("share/loftwing/lng"))) {
        languages.push_back(entry.path().stem().string());
    }
    EXPECT_THAT(Offered({"info", "--language", ""}), UnorderedElementsAreArray(languages));
}

class CompletionOfFiles : public testing::Test {
  protected:
    TempFolder folder;

    CompletionOfFiles() {
        for (const char *name : {"a.dat", "b.COR", "my rib.lfw", "d.txt", "e.pdf", "f.ini"}) {
            folder.File(name, "");
        }
        fs::create_directory(folder.Path("sub"));
    }
    Words Of(const Words &words) const { return Offered(words, folder.Path()); }
};

TEST_F(CompletionOfFiles, HaveTheEndingThatTheirPlaceWants) {
    const auto airfoils = UnorderedElementsAre("a.dat", "b.COR", "my rib.lfw", "sub");
    const auto all =
        UnorderedElementsAre("a.dat", "b.COR", "my rib.lfw", "d.txt", "e.pdf", "f.ini", "sub");
    EXPECT_THAT(Of({"draw", ""}), airfoils);
    EXPECT_THAT(Of({"draw", "a.dat", ""}), airfoils);
    EXPECT_THAT(Of({"draw", "--chord", "200", ""}), airfoils);
    EXPECT_THAT(Of({"draw", "my rib.lfw", "--on", "a.dat", "b.COR", ""}), airfoils);
    EXPECT_THAT(Of({"draw", "--import", ""}), all);
    EXPECT_THAT(Of({"convert", ""}), all);
    EXPECT_THAT(Of({"draw", "--settings", ""}), all);
    EXPECT_THAT(Of({"draw", "-o", ""}), UnorderedElementsAre("my rib.lfw", "e.pdf", "sub"));
    EXPECT_THAT(Of({"modify", "--output", ""}), UnorderedElementsAre("a.dat", "sub"));
    EXPECT_THAT(Of({"ribs", "-o", ""}), ElementsAre("sub"));
    EXPECT_THAT(Of({"draw", "--airfoils", "s"}), ElementsAre("sub"));
    EXPECT_THAT(Of({"draw", "my\\ r"}), ElementsAre("my rib.lfw"));
    EXPECT_THAT(Of({"--settings", ""}), all);
    EXPECT_THAT(Of({"my"}), ElementsAre("my rib.lfw"));
}

TEST_F(CompletionOfFiles, NothingStandsInForANumber) {
    EXPECT_THAT(Of({"draw", "--chord", ""}), IsEmpty());
    EXPECT_THAT(Of({"ribs", "--chords", "220", ""}), IsEmpty());
    EXPECT_THAT(Of({"ribs", "--chords", "220", "140", ""}), Contains("a.dat"));
    EXPECT_THAT(Of({"ribs", "--gaps", "60", "60", ""}), IsEmpty());
    EXPECT_THAT(Of({"dihedral", ""}), UnorderedElementsAreArray(Options("dihedral")));
}

} // namespace
} // namespace loftwing
