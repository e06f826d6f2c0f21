/// The windows of spars and of holes in a scripted world, with a user who is a function.
#pragma once

#include "features/qt_numbered_list.h"
#include "windows/dialog_fixture.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace loftwing {

/// A window of spars or holes as its user sees it.
class SeenSlots : public Seen {
  public:
    SeenSlots(QWidget &window, const char *numbers) : Seen(window), numbers_(numbers) {}

    using Seen::Box;
    using Seen::Type;
    QLineEdit &Box(int index) const { return Box({"Text1", index}); }
    void Type(int index, const char *text) const { Type({"Text1", index}, text); }
    /// What Text1 holds, joined by "|".
    std::string Texts(int count) const {
        std::string all;
        for (int i = 0; i < count; ++i) {
            all += (i == 0 ? "" : "|") + Text({"Text1", i});
        }
        return all;
    }
    ControlName NumberName(int index) const { return {numbers_, index}; }
    ClickLabel &Number(int index) const { return Find<ClickLabel>(NumberName(index)); }
    void ClickNumber(int index) const { Click(NumberName(index)); }
    /// The numbers as "1 2 [3]", the one with a border in brackets.
    std::string Numbers() const {
        std::string all;
        for (int i = 0; i < kNumeros; ++i) {
            const std::string text = Number(i).text().toStdString();
            const bool border = Number(i).frameShape() != QFrame::NoFrame;
            if (!text.empty() || border) {
                all += (all.empty() ? "" : " ") + (border ? "[" + text + "]" : text);
            }
        }
        return all;
    }

  private:
    const char *numbers_;
};

/// The box about a refused value: the rule that it breaks, what can be done, the value.
inline std::string Refused(const std::string &rule, const std::string &value) {
    return rule +
           " Please correct it. To leave it as it was, click number 1 and then Close : "
           "Dimensions = " +
           value;
}

template <class Window>
class SlotsTest : public DialogTest {
  protected:
    virtual const char *NumbersName() const = 0;

    /// Shows the window as a command does, lets `user` act in it, and tells how it was left.
    Left Use(const std::function<void(SeenSlots &)> &user) {
        Window window(programme, view, nullptr);
        return UseModal(window, [&](Seen &seen) {
            SeenSlots slots(seen.Window(), NumbersName());
            user(slots);
        });
    }
    int Drawn() const { return static_cast<int>(view.asked.size()); }
};

} // namespace loftwing
