// The pages of the help as they stand in the sources.

#include "base/whole_file.h"
#include "lang/LngIni.h"
#include "lang/aide.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <regex>
#include <set>
#include <vector>

namespace loftwing {
namespace {

namespace fs = std::filesystem;

const fs::path kAide = LOFTWING_SOURCE_DIR "/resources/help";

std::vector<std::string> Langues() {
    return LngIni::Languages(LOFTWING_SOURCE_DIR "/resources/lng");
}

std::set<std::string> PagesInContents() {
    std::set<std::string> names;
    for (const ChapitreAide &chapitre : ChapitresAide()) {
        for (const int contexte : chapitre.pages) {
            EXPECT_TRUE(names.insert(std::to_string(contexte) + ".html").second) << contexte;
        }
    }
    return names;
}

std::set<std::string> PagesOf(const std::string &language) {
    std::set<std::string> names;
    for (const auto &entry : fs::directory_iterator(kAide / language)) {
        names.insert(entry.path().filename().string());
    }
    return names;
}

std::string Page(const std::string &language, const std::string &name) {
    return ReadWholeFile((kAide / language / name).string());
}

/// What a tag's attribute has, everywhere on a page.
std::vector<std::string> Values(const std::string &page, const std::string &attribute) {
    const std::string wanted = attribute + "=\"";
    std::vector<std::string> values;
    for (std::size_t at = page.find(wanted); at != std::string::npos; at = page.find(wanted, at)) {
        at += wanted.size();
        values.push_back(page.substr(at, page.find('"', at) - at));
    }
    return values;
}

bool HasAnchor(const std::string &page, const std::string &name) {
    const std::vector<std::string> names = Values(page, "name");
    return std::find(names.begin(), names.end(), name) != names.end();
}

/// What is open and never closed, or closed and never open; empty where all is well.
std::string Malformed(const std::string &page) {
    const std::regex tag("<(/?)([a-z0-9]+)[^<>]*>");
    const std::set<std::string> known = {"html", "head", "meta", "title", "body",  "h1", "h2", "h3",
                                         "p",    "ul",   "ol",   "li",    "table", "tr", "th", "td",
                                         "b",    "i",    "code", "img",   "br",    "a"};
    const std::set<std::string> single = {"meta", "img", "br"};
    std::vector<std::string> open;
    for (std::sregex_iterator each(page.begin(), page.end(), tag), end; each != end; ++each) {
        const std::string name = (*each)[2];
        if (!known.contains(name)) {
            return "unknown " + name;
        }
        if (single.contains(name)) {
            continue;
        }
        if ((*each)[1].length() == 0) {
            open.push_back(name);
        } else if (open.empty() || open.back() != name) {
            return "closed " + name;
        } else {
            open.pop_back();
        }
    }
    return open.empty() ? "" : "open " + open.back();
}

/// Calls `check` with the language, the name and the text of every page.
template <class Check>
void EachPage(Check check) {
    for (const std::string &language : Langues()) {
        for (const std::string &name : PagesOf(language)) {
            if (name.ends_with(".html")) {
                check(language, name, Page(language, name));
            }
        }
    }
}

TEST(HelpFiles, EveryContextHasAPageInEveryLanguageAndThereIsNoOther) {
    const std::set<std::string> wanted = PagesInContents();
    ASSERT_GE(Langues().size(), 4U);
    for (const std::string &language : Langues()) {
        EXPECT_EQ(PagesOf(language), wanted) << language;
    }
}

TEST(HelpFiles, EveryContextOfTheSourcesIsInTheContents) {
    const std::regex declared(R"(int (kAide\w+) = (\d+);)");
    const std::string header = ReadWholeFile(LOFTWING_SOURCE_DIR "/src/lang/aide.h");
    const std::set<std::string> contents = PagesInContents();
    int count = 0;
    for (std::sregex_iterator each(header.begin(), header.end(), declared), end; each != end;
         ++each, ++count) {
        EXPECT_TRUE(contents.contains((*each)[2].str() + ".html")) << (*each)[1];
    }
    EXPECT_EQ(static_cast<std::size_t>(count), contents.size());
}

TEST(HelpFiles, HaveATitleThatIsTheirHeading) {
    const std::regex title("<title>\\s*([^<]+?)\\s*</title>");
    EachPage([&](const std::string &language, const std::string &name, const std::string &page) {
        std::smatch found;
        EXPECT_TRUE(std::regex_search(page, found, title)) << language << '/' << name;
        EXPECT_NE(page.find("<h1>"), std::string::npos) << language << '/' << name;
        EXPECT_NE(page.find("charset=\"utf-8\""), std::string::npos) << language << '/' << name;
    });
}

TEST(HelpFiles, AreWellFormed) {
    EachPage([](const std::string &language, const std::string &name, const std::string &page) {
        EXPECT_EQ(Malformed(page), "") << language << '/' << name;
    });
}

TEST(HelpFiles, EveryLinkHasATarget) {
    EachPage([](const std::string &language, const std::string &name, const std::string &page) {
        for (const std::string &link : Values(page, "href")) {
            const std::size_t mark = link.find('#');
            const std::string file = mark == 0 ? name : link.substr(0, mark);
            ASSERT_TRUE(fs::exists(kAide / language / file)) << language << '/' << name << link;
            if (mark != std::string::npos) {
                EXPECT_TRUE(HasAnchor(Page(language, file), link.substr(mark + 1)))
                    << language << '/' << name << ": " << link;
            }
        }
    });
}

TEST(HelpFiles, EveryPageIsReachedFromTheTour) {
    for (const std::string &language : Langues()) {
        const std::vector<std::string> links = Values(Page(language, "10.html"), "href");
        for (const std::string &name : PagesInContents()) {
            const bool linked = std::any_of(links.begin(), links.end(), [&](const auto &link) {
                return link == name || link.starts_with(name + "#");
            });
            EXPECT_TRUE(linked || name == "10.html") << language << ": " << name;
        }
    }
}

TEST(HelpFiles, HaveSketchesThatAreThere) {
    int sketches = 0;
    EachPage([&](const std::string &language, const std::string &name, const std::string &page) {
        for (const std::string &image : Values(page, "src")) {
            if (image.starts_with("../")) {
                ++sketches;
                EXPECT_TRUE(fs::exists(kAide / language / image)) << language << '/' << name;
            }
        }
    });
    EXPECT_GT(sketches, 0);
}

TEST(HelpFiles, HaveTheSamePicturesAndLinksInEveryLanguage) {
    for (const std::string &language : Langues()) {
        for (const std::string &name : PagesInContents()) {
            for (const char *attribute : {"src", "href", "name"}) {
                EXPECT_EQ(Values(Page(language, name), attribute),
                          Values(Page("English", name), attribute))
                    << language << '/' << name;
            }
        }
    }
}

} // namespace
} // namespace loftwing
