/// Windows that stay open beside the main one, in a scripted world.
#pragma once

#include "support/qt_nothing_cut.h"
#include "windows/dialog_fixture.h"

#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace loftwing {

/// A test that sees the window that it has opened.
template <class Opened>
class BesideTest : public DialogTest, protected Seen {
  protected:
    std::unique_ptr<Opened> window;

    Opened &Open() {
        window = std::make_unique<Opened>(programme, nullptr);
        Look(*window);
        window->show();
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
        return *window;
    }
    /// A box under the window's title.
    void ExpectBox(const std::string &text, BoxIcon icon, BoxAnswer answer = BoxAnswer::ok) {
        platform.Expect(answer, {.text = text, .title = Title(), .icon = icon});
    }
    void ExpectNothingCutAnywhere() {
        for (const double scale : {1.0, 2.0}) {
            const FontScale font(scale);
            for (const char *language : {"English", "French"}) {
                for (const std::string_view unit : {kUniteMm, kUniteIn}) {
                    SCOPED_TRACE(std::string(language) + S(Q(unit)) + std::to_string(scale));
                    Language(language);
                    programme.settings.Unite = unit;
                    ExpectNothingCut(Open());
                }
            }
        }
    }
};

} // namespace loftwing
