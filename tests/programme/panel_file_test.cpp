#include "programme/panel_file.h"

#include "base/failure.h"
#include "base/file_name.h"
#include "support/special_files.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace loftwing {
namespace {

using testing::HasSubstr;
using testing::Not;

class PanelFile : public testing::Test {
  protected:
    TempFolder folder;

    FichierPanneau Wing() const {
        return {{folder.Path("root.lfw"), folder.Path("ribs/tip.lfw")},
                "mm",
                "6",
                {},
                {"2"},
                "500",
                3,
                {{{GenreElement::longeron, 2}, {1, 5}}, {{GenreElement::gabarit, 0}, {2, 8}}}};
    }
    int Refused(const std::string &text) const {
        try {
            LitPanneau(folder.File("bad.lfp", text));
        } catch (const Failure &failure) {
            return failure.number;
        }
        return 0;
    }
};

TEST_F(PanelFile, WhatIsWrittenIsRead) {
    EnregistrePanneau(folder.Path("wing.lfp"), Wing());
    EXPECT_EQ(LitPanneau(folder.Path("wing.lfp")), Wing());
    FichierPanneau variable = Wing();
    variable.nombre.clear();
    variable.ecarts = {"60", "60.5"};
    variable.epaisseurs = {"3", "2", "3"};
    EnregistrePanneau(folder.Path("wing.lfp"), variable);
    EXPECT_EQ(LitPanneau(folder.Path("wing.lfp")), variable);
}

TEST_F(PanelFile, RibsMayHaveNamesOfEveryKind) {
    FichierPanneau wing = Wing();
    wing.bouts = {folder.Path(" lead, =[x];.lfw"), FromRoot(std::string(240, 'd') + "/\"tip.lfw")};
    EnregistrePanneau(folder.Path("wing.lfp"), wing);
    FichierPanneau read = LitPanneau(folder.Path("wing.lfp"));
    EXPECT_TRUE(std::filesystem::path(read.bouts[0]).lexically_normal() == wing.bouts[0])
        << read.bouts[0];
    EXPECT_EQ(read.bouts[1], wing.bouts[1]);
}

TEST_F(PanelFile, IsNotWrittenWhereARibCannotBeNamedInIt) {
    for (const char *name : {"a\nb.lfw", "a\xFF.lfw"}) {
        FichierPanneau wing = Wing();
        wing.bouts[1] = folder.Path(name);
        try {
            EnregistrePanneau(folder.Path("wing.lfp"), wing);
            ADD_FAILURE() << "it would name another rib";
        } catch (const Failure &failure) {
            EXPECT_EQ(failure.number, kPathFileAccess);
            EXPECT_EQ(failure.detail, wing.bouts[1]);
        }
    }
    EXPECT_EQ(folder.Entries(), 0);
}

TEST_F(PanelFile, RibsBelowItsFolderMoveWithIt) {
    FichierPanneau wing = Wing();
    wing.bouts[0] = FromRoot("elsewhere/root.lfw");
    EnregistrePanneau(folder.Path("wing.lfp"), wing);
    EXPECT_THAT(folder.Bytes("wing.lfp"), HasSubstr("Tip=ribs/tip.lfw\r\n"));
    EXPECT_THAT(folder.Bytes("wing.lfp"), HasSubstr("Root=" + WithSlashes(wing.bouts[0]) + "\r\n"));
    folder.File("moved.lfp", folder.Bytes("wing.lfp"));
    EXPECT_EQ(LitPanneau(folder.Path("moved.lfp")).bouts, wing.bouts);
}

TEST_F(PanelFile, AFileInTheCurrentFolderNamesRibsBesideIt) {
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path(""));
    FichierPanneau wing = Wing();
    wing.bouts = {"root.lfw", std::filesystem::path("ribs/tip.lfw").make_preferred().string()};
    EnregistrePanneau("here.lfp", wing);
    EXPECT_EQ(LitPanneau("here.lfp"), wing);
    std::filesystem::current_path(before);
}

TEST_F(PanelFile, UnknownKeysAreKeptAndRangesThatAreGoneStayGone) {
    const std::string path =
        folder.File("wing.lfp", "[Panel]\nTwist=12\n[Ranges]\nspar1=1-2\nflap1=3-4\n[Mine]\na=b\n");
    EnregistrePanneau(path, Wing());
    const std::string text = folder.Bytes("wing.lfp");
    EXPECT_THAT(text, HasSubstr("Twist=12\r\n"));
    EXPECT_THAT(text, HasSubstr("flap1=3-4\r\n"));
    EXPECT_THAT(text, HasSubstr("[Mine]\r\na=b\r\n"));
    EXPECT_EQ(LitPanneau(path), Wing());
}

TEST_F(PanelFile, WhatWasChosenForSheetsIsKept) {
    FichierPanneau wing = Wing();
    EnregistrePanneau(folder.Path("wing.lfp"), wing);
    EXPECT_THAT(folder.Bytes("wing.lfp"), Not(HasSubstr("[Sheets]"))); // nothing was
    wing.planches = {"90x500 60x400", "1", "0", "2", "0.1", true, true, false, true, "pdf"};
    EnregistrePanneau(folder.Path("wing.lfp"), wing);
    EXPECT_THAT(folder.Bytes("wing.lfp"), HasSubstr("Sizes=90x500 60x400\r\n"));
    EXPECT_EQ(LitPanneau(folder.Path("wing.lfp")), wing);
}

TEST_F(PanelFile, WhatIsNoPanelIsRefused) {
    EXPECT_EQ(Refused(""), kInvalidProcedureCall);
    EXPECT_EQ(Refused("[Panel]\nRoot=a.lfw\nUnit=mm\n"), kInvalidProcedureCall);
    const std::string ends = "[Panel]\nRoot=a.lfw\nTip=b.lfw\n";
    EXPECT_EQ(Refused(ends), kInvalidProcedureCall);
    EXPECT_EQ(Refused(ends + "Unit=cm\n"), kInvalidProcedureCall);
    EXPECT_EQ(Refused(ends + "Unit=in\n"), 0);
    EXPECT_EQ(Refused(ends + "Unit=in\nFirst=0\n"), kInvalidProcedureCall);
    EXPECT_EQ(Refused(ends + "Unit=in\n[Ranges]\nspar1=2\n"), kInvalidProcedureCall);
    EXPECT_EQ(Refused(ends + "Unit=in\n[Ranges]\nflap=2\n"), 0);
    EXPECT_THROW(LitPanneau(folder.Path("none.lfp")), Failure);
}

TEST_F(PanelFile, AFolderThatIsNotThereIsAFailure) {
    EXPECT_THROW(EnregistrePanneau(folder.Path("none/wing.lfp"), Wing()), Failure);
}

TEST(PanelRange, IsTwoNumbersWithADash) {
    EXPECT_EQ(PorteeLue("1-12"), (PorteePanneau{1, 12}));
    for (const char *text : {"", "-", "1", "1-", "-2", "1-2-3", "a-2", "1 -2", "0-2", "1-99999"}) {
        EXPECT_EQ(PorteeLue(text), std::nullopt) << text;
    }
    EXPECT_EQ(TextePortee({2, 7}), "2-7");
    EXPECT_TRUE(EstPanneau("a/Wing.LFP"));
    EXPECT_FALSE(EstPanneau("wing.lfw"));
}

} // namespace
} // namespace loftwing
