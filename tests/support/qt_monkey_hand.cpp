#include "support/qt_monkey_hand.h"

#include "platform/qt_text.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QTabBar>
#include <QTest>
#include <QUrl>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>
#include <array>

namespace loftwing {

namespace {

constexpr int kNoDoubleClick = 1000; // ms between two clicks that are two

template <class Kept>
std::vector<QWidget *> Shown(QWidget &window, Kept kept) {
    std::vector<QWidget *> shown;
    for (QWidget *each : window.findChildren<QWidget *>()) {
        if (each->isVisible() && each->window() == &window && kept(*each)) {
            shown.push_back(each);
        }
    }
    return shown;
}

bool IsControl(const QWidget &widget) {
    return qobject_cast<const QAbstractButton *>(&widget) != nullptr ||
           qobject_cast<const QComboBox *>(&widget) != nullptr ||
           qobject_cast<const QAbstractItemView *>(&widget) != nullptr ||
           qobject_cast<const QTabBar *>(&widget) != nullptr;
}

std::string At(QPoint at) {
    return " (" + std::to_string(at.x()) + "," + std::to_string(at.y()) + ")";
}

} // namespace

std::string NameOf(const QWidget &widget) {
    const std::string name = S(widget.objectName());
    return name.empty() ? widget.metaObject()->className() : name;
}

MonkeyHand::Spot MonkeyHand::AnySpot(QWidget &window) {
    std::vector<QWidget *> all = Shown(window, [](const QWidget &) { return true; });
    if (dice_.OneIn(2)) {
        const std::vector<QWidget *> controls = Shown(window, IsControl);
        all = controls.empty() ? all : controls;
    }
    all.push_back(&window);
    QWidget *widget = dice_.Of(all);
    const QPoint inside(dice_.Below(std::max(1, widget->width())),
                        dice_.Below(std::max(1, widget->height())));
    return {widget, widget->mapTo(&window, inside)};
}

QWidget *MonkeyHand::AnyField(QWidget &window) {
    const std::vector<QWidget *> fields = Shown(window, [](const QWidget &widget) {
        return qobject_cast<const QLineEdit *>(&widget) != nullptr && widget.isEnabled();
    });
    return fields.empty() ? nullptr : dice_.Of(fields);
}

QString MonkeyHand::AnyText() {
    static const std::array<const char *, 20> kGood = {
        "0",  "1",  "1.5", "3",  "5",   "8",   "10",  "12.5", "20",  "25",
        "30", "40", "60",  "80", "100", "200", "350", "12%",  "30%", "50%"};
    static const std::array<const char *, 28> kOdd = {"",
                                                      "-0",
                                                      "-5",
                                                      "-30",
                                                      "1/0",
                                                      "3/8",
                                                      "2.3/8",
                                                      "2./8",
                                                      "/8",
                                                      ".",
                                                      "-",
                                                      "%",
                                                      "150%",
                                                      "1e308",
                                                      "1e-320",
                                                      "99999999999999999999",
                                                      "0.00000001",
                                                      "32768",
                                                      "256",
                                                      "13",
                                                      "5000",
                                                      "12 13 14;5*3",
                                                      "a\nb\r\nc\td",
                                                      "\xC3\xA9t\xC3\xA9 \xF0\x9F\x9B\xA9 \xD7\xA9",
                                                      "<b>&amp;%1 %n",
                                                      "=\"[x]\"",
                                                      "1,5",
                                                      "nan"};
    constexpr int kLong = 40;
    if (!dice_.OneIn(3)) {
        return QString::fromUtf8(dice_.Of(kGood));
    }
    return dice_.OneIn(kLong) ? QString(100'000, QLatin1Char('7'))
                              : QString::fromUtf8(dice_.Of(kOdd));
}

void MonkeyHand::Mouse(const QPointer<QWidget> &window, QPoint at, QEvent::Type type,
                       Qt::MouseButton button, bool held) {
    QWindow *handle = window ? window->windowHandle() : nullptr;
    if (handle == nullptr) {
        return;
    }
    const Qt::MouseButtons buttons = held ? button : Qt::NoButton;
    qt_handleMouseEvent(handle, at, handle->mapToGlobal(at), buttons,
                        type == QEvent::MouseMove ? Qt::NoButton : button, type, {}, time_);
}

void MonkeyHand::ClickAt(const QPointer<QWidget> &window, QPoint at, Qt::MouseButton button) {
    Mouse(window, at, QEvent::MouseButtonPress, button, true);
    Mouse(window, at, QEvent::MouseButtonRelease, button, false);
}

void MonkeyHand::Click(QWidget &window) {
    const Spot spot = AnySpot(window);
    constexpr int kOtherButton = 8;
    const auto button = !dice_.OneIn(kOtherButton) ? Qt::LeftButton
                        : dice_.OneIn(2)           ? Qt::RightButton
                                                   : Qt::MiddleButton;
    Says("click " + NameOf(*spot.widget) + At(spot.at) + " " + std::to_string(button));
    const QPointer<QWidget> kept(&window);
    time_ += kNoDoubleClick;
    Mouse(kept, spot.at, QEvent::MouseMove, Qt::NoButton, false);
    ClickAt(kept, spot.at, button);
}

void MonkeyHand::ClickOn(QWidget &window, QWidget &widget) {
    Says("click " + NameOf(widget));
    const QPoint at = widget.mapTo(&window, widget.rect().center());
    time_ += kNoDoubleClick;
    ClickAt(&window, at, Qt::LeftButton);
}

void MonkeyHand::DoubleClick(QWidget &window) {
    const Spot spot = AnySpot(window);
    Says("double click " + NameOf(*spot.widget) + At(spot.at));
    const QPointer<QWidget> kept(&window);
    time_ += kNoDoubleClick;
    ClickAt(kept, spot.at, Qt::LeftButton);
    ClickAt(kept, spot.at, Qt::LeftButton);
}

void MonkeyHand::Drag(QWidget &window) {
    const Spot from = AnySpot(window);
    const Spot to =
        dice_.OneIn(2)
            ? AnySpot(window)
            : Spot{from.widget, from.at + QPoint(dice_.Between(-40, 40), dice_.Between(-40, 40))};
    const auto button = dice_.OneIn(4) ? Qt::MiddleButton : Qt::LeftButton;
    Says("drag " + NameOf(*from.widget) + At(from.at) + " to" + At(to.at));
    const QPointer<QWidget> kept(&window);
    time_ += kNoDoubleClick;
    Mouse(kept, from.at, QEvent::MouseButtonPress, button, true);
    constexpr int kSteps = 4;
    for (int step = 1; step <= kSteps; ++step) {
        Mouse(kept, from.at + (to.at - from.at) * step / kSteps, QEvent::MouseMove, button, true);
    }
    Mouse(kept, to.at, QEvent::MouseButtonRelease, button, false);
}

void MonkeyHand::Wheel(QWidget &window) {
    const Spot spot = AnySpot(window);
    constexpr int kNotch = 120;
    const int turn = dice_.Between(-5, 5) * kNotch;
    Says("wheel " + NameOf(*spot.widget) + At(spot.at) + " " + std::to_string(turn));
    const Qt::KeyboardModifiers keys = dice_.OneIn(3) ? Qt::ControlModifier : Qt::NoModifier;
    if (QWindow *handle = window.windowHandle()) {
        QWheelEvent event(spot.at, handle->mapToGlobal(spot.at), {}, {0, turn}, Qt::NoButton, keys,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(handle, &event);
    }
}

void MonkeyHand::ContextMenu(QWidget &window) {
    const Spot spot = AnySpot(window);
    Says("context menu " + NameOf(*spot.widget));
    QContextMenuEvent event(QContextMenuEvent::Keyboard, spot.widget->rect().center(),
                            spot.widget->mapToGlobal(spot.widget->rect().center()));
    QCoreApplication::sendEvent(spot.widget, &event);
}

void MonkeyHand::Press(const QPointer<QWidget> &window, int key, Qt::KeyboardModifiers modifiers,
                       const QString &text) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        if (QWindow *handle = window ? window->windowHandle() : nullptr) {
            qt_handleKeyEvent(handle, type, key, modifiers, text);
        }
    }
}

void MonkeyHand::TypeText(const QPointer<QWidget> &window, const QString &text) {
    constexpr qsizetype kMost = 40; // nobody types more into a field
    for (const QChar letter : text.left(kMost)) {
        const char ascii = letter.toLatin1();
        const bool known = ascii > ' ' && ascii < '\x7f';
        Press(window, known ? QTest::asciiToKey(ascii) : Qt::Key_unknown, {}, QString(letter));
    }
}

void MonkeyHand::Type(QWidget &window) {
    const QPointer<QWidget> kept(&window);
    QWidget *field = AnyField(window);
    const std::string name = field != nullptr ? NameOf(*field) : NameOf(window);
    const QString text = AnyText();
    Says("type " + name + " \"" + S(text.left(40)) + "\"");
    if (field != nullptr) {
        field->setFocus();
    }
    if (dice_.OneIn(4)) { // behind what stands there
        Press(kept, Qt::Key_End, {}, {});
    } else {
        Press(kept, Qt::Key_A, Qt::ControlModifier, {});
    }
    TypeText(kept, text);
}

void MonkeyHand::Paste(QWidget &window) {
    const QPointer<QWidget> kept(&window);
    QWidget *field = AnyField(window);
    const QString text = AnyText();
    Says("paste " + NameOf(field != nullptr ? *field : window) + " \"" + S(text.left(40)) + "\"");
    if (field != nullptr) {
        field->setFocus();
    }
    QApplication::clipboard()->setText(text);
    if (dice_.OneIn(2)) {
        Press(kept, Qt::Key_A, Qt::ControlModifier, {});
    }
    Press(kept, Qt::Key_V, Qt::ControlModifier, {});
}

void MonkeyHand::Key(QWidget &window) {
    static const std::array<int, 22> kKeys = {
        Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Tab,       Qt::Key_Backtab,
        Qt::Key_Left,   Qt::Key_Right, Qt::Key_Up,     Qt::Key_Down,      Qt::Key_Home,
        Qt::Key_End,    Qt::Key_Space, Qt::Key_PageUp, Qt::Key_PageDown,  Qt::Key_Delete,
        Qt::Key_F1,     Qt::Key_F2,    Qt::Key_F6,     Qt::Key_Backspace, Qt::Key_Insert,
        Qt::Key_Menu,   Qt::Key_F10};
    static const std::array<int, 22> kLetters = {
        Qt::Key_A, Qt::Key_C,     Qt::Key_D,     Qt::Key_E,   Qt::Key_F,    Qt::Key_I,
        Qt::Key_M, Qt::Key_N,     Qt::Key_O,     Qt::Key_P,   Qt::Key_Plus, Qt::Key_R,
        Qt::Key_S, Qt::Key_T,     Qt::Key_V,     Qt::Key_X,   Qt::Key_Y,    Qt::Key_Z,
        Qt::Key_0, Qt::Key_Right, Qt::Key_Minus, Qt::Key_Left};
    static const std::array<Qt::KeyboardModifiers, 5> kModifiers = {
        Qt::ControlModifier, Qt::AltModifier, Qt::ShiftModifier,
        Qt::ControlModifier | Qt::ShiftModifier, Qt::ControlModifier | Qt::AltModifier};
    if (dice_.OneIn(4)) {
        const int key = dice_.Of(kLetters);
        const Qt::KeyboardModifiers modifiers = dice_.Of(kModifiers);
        Says("shortcut " + S(QKeySequence(key | modifiers).toString()));
        Press(&window, key, modifiers, {});
        return;
    }
    const int key = dice_.Of(kKeys);
    const int times = dice_.OneIn(4) ? dice_.Between(2, 6) : 1;
    Says("key " + S(QKeySequence(key).toString()) + " x" + std::to_string(times));
    const QPointer<QWidget> kept(&window);
    for (int i = 0; i < times; ++i) {
        Press(kept, key, {}, key == Qt::Key_Space ? " " : "");
    }
}

void MonkeyHand::Drop(QWidget &window, const std::string &path) {
    QWidget *field = dice_.OneIn(2) ? AnyField(window) : nullptr;
    QWidget *target = field != nullptr ? field : &window;
    const QString text = AnyText();
    Says("drop on " + NameOf(*target) + " " + (field != nullptr ? S(text.left(40)) : path));
    QMimeData data;
    if (field != nullptr) {
        data.setText(text);
    } else {
        data.setUrls({QUrl::fromLocalFile(Q(path))});
    }
    const QPoint place(target->width() / 2, target->height() / 2);
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &enter);
    if (enter.isAccepted()) {
        QDropEvent drop(QPointF(place), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &drop);
    }
}

void MonkeyHand::Resize(QWidget &window) {
    const int how = dice_.Below(6);
    const QSize size(dice_.Between(1, 1800), dice_.Between(1, 1200));
    Says("resize " + std::to_string(how) + At({size.width(), size.height()}));
    if (how == 0) {
        window.showMaximized();
    } else if (how == 1) {
        window.showNormal();
    } else {
        window.resize(size);
    }
}

} // namespace loftwing
