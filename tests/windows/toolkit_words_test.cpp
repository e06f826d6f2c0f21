#include "mainwindow/toolkit_words.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

namespace loftwing {
namespace {

QString LookIn() {
    return QCoreApplication::translate("QFileDialog", "Look in:");
}

TEST(ToolkitWords, FollowTheLanguageByItsName) {
    const QString before = LookIn();
    {
        ToolkitWords words;
        words.Follow("French");
        EXPECT_NE(LookIn(), "Look in:");
        words.Follow("English");
        EXPECT_EQ(LookIn(), "Look in:");
        words.Follow("French");
        words.Follow("no language at all");
        EXPECT_EQ(LookIn(), "Look in:");
        words.Follow("French");
    }
    EXPECT_EQ(LookIn(), before);
}

} // namespace
} // namespace loftwing
