#include "support/qt_tab_chain.h"

#include <QTest>

#include <algorithm>

namespace loftwing {

QWidget *TabOn(QWidget &window, bool back) {
    constexpr int kLinks = 100; // more than any page has
    QWidget *from = window.focusWidget();
    for (int press = 0; press < kLinks && window.focusWidget() == from; ++press) {
        back ? QTest::keyClick(from, Qt::Key_Backtab, Qt::ShiftModifier)
             : QTest::keyClick(from, Qt::Key_Tab);
    }
    return window.focusWidget();
}

std::vector<QWidget *> TabChain(QWidget &window) {
    std::vector<QWidget *> chain;
    QWidget *at = window.focusWidget();
    while (at != nullptr && std::find(chain.begin(), chain.end(), at) == chain.end()) {
        chain.push_back(at);
        at = TabOn(window);
    }
    return chain;
}

} // namespace loftwing
