#include "programme/wing_file.h"

#include "base/failure.h"
#include "base/file_name.h"
#include "support/special_files.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class WingFile : public testing::Test {
  protected:
    TempFolder folder;

    FichierAile Wing() const {
        return {7, {folder.Path("inner.lfp"), folder.Path("tips/outer.lfp")}};
    }
    /// What the detail of the failure names behind the path; "read" where there is none.
    std::string Refused(const std::string &text) const {
        const std::string path = folder.File("bad.lfa", text);
        try {
            LitAile(path);
        } catch (const Failure &failure) {
            EXPECT_EQ(failure.number, kInvalidProcedureCall);
            EXPECT_TRUE(failure.detail.starts_with(path + ", ")) << failure.detail;
            return failure.detail.substr(std::min(failure.detail.size(), path.size() + 2));
        }
        return "read";
    }
    static std::string Panels(int count) {
        std::string text = "[Wing]\n";
        for (int number = 1; number <= count; ++number) {
            text += "Panel" + std::to_string(number) + "=a.lfp\n";
        }
        return text;
    }
};

TEST_F(WingFile, PanelsMayHaveLongNamesButNoLineEndInThem) {
    FichierAile wing{1, {FromRoot(std::string(240, 'd') + "/inner.lfp")}};
    EnregistreAile(folder.Path("wing.lfa"), wing);
    EXPECT_EQ(LitAile(folder.Path("wing.lfa")), wing);
    const std::string before = folder.Bytes("wing.lfa");
    wing.panneaux.push_back(folder.Path("outer\n.lfp"));
    try {
        EnregistreAile(folder.Path("wing.lfa"), wing);
        ADD_FAILURE() << "it would name another panel";
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.number, kPathFileAccess);
        EXPECT_EQ(failure.detail, wing.panneaux[1]);
    }
    EXPECT_EQ(folder.Bytes("wing.lfa"), before);
}

TEST_F(WingFile, WhatIsWrittenIsRead) {
    EnregistreAile(folder.Path("wing.lfa"), Wing());
    EXPECT_EQ(LitAile(folder.Path("wing.lfa")), Wing());
    EXPECT_TRUE(EstAile("a/Wing.LFA"));
    EXPECT_FALSE(EstAile("wing.lfp"));
}

TEST_F(WingFile, PanelsBelowItsFolderMoveWithIt) {
    FichierAile wing = Wing();
    const std::string elsewhere = FromRoot("elsewhere/last.lfp");
    wing.panneaux.push_back(elsewhere);
    EnregistreAile(folder.Path("wing.lfa"), wing);
    EXPECT_EQ(folder.Bytes("wing.lfa"), "[Wing]\r\nFirst=7\r\nPanel1=inner.lfp\r\n"
                                        "Panel2=tips/outer.lfp\r\nPanel3=" +
                                            WithSlashes(elsewhere) + "\r\n");
    folder.File("moved.lfa", folder.Bytes("wing.lfa"));
    EXPECT_EQ(LitAile(folder.Path("moved.lfa")), wing);
}

TEST_F(WingFile, APanelThatIsGoneStaysGoneAndUnknownKeysAreKept) {
    const std::string path = folder.File(
        "wing.lfa", "[Wing]\nPanel1=a.lfp\nPanel2=b.lfp\nPanel3=c.lfp\nSpan=9\n[Mine]\na=b\n");
    EnregistreAile(path, Wing());
    EXPECT_EQ(LitAile(path), Wing());
    EXPECT_THAT(folder.Bytes("wing.lfa"), HasSubstr("Span=9\r\n"));
    EXPECT_THAT(folder.Bytes("wing.lfa"), HasSubstr("[Mine]\r\na=b\r\n"));
    EXPECT_THAT(folder.Bytes("wing.lfa"), Not(HasSubstr("c.lfp")));
}

TEST_F(WingFile, PanelsStandInTheOrderOfTheirNumbers) {
    const std::string path = folder.File("wing.lfa", "[wing]\npanel2=b.lfp\nPANEL1=a.lfp\n");
    EXPECT_THAT(LitAile(path).panneaux, ElementsAre(folder.Path("a.lfp"), folder.Path("b.lfp")));
    EXPECT_EQ(LitAile(path).premier, 1);
}

TEST_F(WingFile, WhatIsNoWingIsRefused) {
    EXPECT_EQ(Refused(""), "Panel1");
    EXPECT_EQ(Refused("[Wing]\nFirst=3\n"), "Panel1");
    EXPECT_EQ(Refused("[Wing]\nPanel1=\n"), "Panel1");
    EXPECT_EQ(Refused("[Wing]\nPanel1=a.lfp\nPanel3=c.lfp\n"), "Panel2");
    EXPECT_EQ(Refused("[Wing]\nPanel1=a.lfp\nFirst=0\n"), "First");
    EXPECT_EQ(Refused("[Wing]\nPanel1=a.lfp\nFirst=x\n"), "First");
    EXPECT_EQ(Refused("[Wing]\nPanel1=a.lfp\nFirst=10000\n"), "First");
    EXPECT_EQ(Refused("[Wing]\nPanel1=a.lfp\nPanels=2\n"), "read");
    EXPECT_EQ(Refused(Panels(20)), "read");
    EXPECT_EQ(Refused(Panels(21)), "Panel21");
}

TEST_F(WingFile, AFileOrFolderThatIsNotThereIsAFailure) {
    try {
        LitAile(folder.Path("none.lfa"));
        ADD_FAILURE();
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.number, kFileNotFound);
    }
    EXPECT_THROW(EnregistreAile(folder.Path("none/wing.lfa"), Wing()), Failure);
}

} // namespace
} // namespace loftwing
