// No window cuts a text, in no language and at no size of the font.

#include "support/qt_all_windows.h"
#include "support/qt_nothing_cut.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

class AllWindowsCut : public testing::TestWithParam<double> {};

TEST_P(AllWindowsCut, NoTextIsCutInAnyLanguage) {
    const FontScale font(GetParam());
    for (const std::string &language : LanguagesHeld()) {
        for (const char *unit : {"mm", "in"}) {
            LookAtAllWindows(language, unit, [](QWidget &window) { ExpectNothingCut(window); });
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Fonts, AllWindowsCut, testing::Values(1.0, 2.0));

} // namespace
} // namespace loftwing
