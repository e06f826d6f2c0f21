// Whatever a file of the user is encoded in, its texts are read alike.

#include "core/airfoil_reader.h"
#include "lang/ini_file.h"
#include "persist/LireEcrire.h"
#include "programme/import_steps.h"
#include "programme/panel_file.h"
#include "programme/wing_file.h"
#include "support/components_text.h"
#include "support/rib_world.h"
#include "support/temp_folder.h"
#include "support/words.h"
#include "utilities/coord.h"

#include <gtest/gtest.h>

#include <functional>

namespace loftwing {
namespace {

/// Makes a file of a text whose letters are all of the first 256, one byte each.
struct Encoding {
    const char *name;
    std::function<std::string(const std::string &letters)> bytes;
};

std::string Doubled(const std::string &letters, bool big) {
    std::string bytes;
    for (const char letter : letters) {
        bytes += big ? std::string{'\0', letter} : std::string{letter, '\0'};
    }
    return bytes;
}

std::string AsUtf8(const std::string &letters) {
    std::string bytes;
    for (const char letter : letters) {
        const auto code = static_cast<unsigned char>(letter);
        if (code < 0x80U) {
            bytes += letter;
        } else {
            bytes += static_cast<char>(code < 0xC0U ? 0xC2 : 0xC3); // 110000xx
            bytes += static_cast<char>(0x80U + code % 0x40U);
        }
    }
    return bytes;
}

void PrintTo(const Encoding &encoding, std::ostream *out) {
    *out << encoding.name;
}

class Encodings : public testing::TestWithParam<Encoding> {
  protected:
    /// A file of `letters`, each of which is one byte.
    std::string File(const char *name, const std::string &letters) const {
        return words.folder.File(name, GetParam().bytes(letters));
    }

    Words words{"[a]\n1=b\n"};
    const std::string wing = "Fl\xFCgel \xE9";         // as one byte a letter
    const std::string read = "Fl\xC3\xBCgel \xC3\xA9"; // as the program keeps it
    const std::string airfoil = wing + "\r\n1 0\r\n0.5 0.1\r\n0 0\r\n0.5 -0.1\r\n1 0\r\n";
};

TEST_P(Encodings, OfAnAirfoilMakeNoDifference) {
    RibModel rib;
    rib.CheminProfil = File("a.dat", airfoil);
    EXPECT_EQ(FichierLecture(rib, words.messages, "").issue, Lecture::lu);
    EXPECT_EQ(rib.EnteteProfil, read);
    EXPECT_EQ(rib.NbPoints, 5);
    EXPECT_EQ(rib.ProfilY.Values().back(), 0);
}

TEST_P(Encodings, OfAnImportMakeNoDifference) {
    const auto imported = EssaieImport(File("a.dat", airfoil));
    ASSERT_TRUE(imported);
    EXPECT_EQ(imported->title, read);
}

TEST_P(Encodings, OfAnAirfoilInTheEditorMakeNoDifference) {
    const FichierCoord file = LitCoord(File("a.dat", airfoil));
    EXPECT_EQ(file.titre, read);
    EXPECT_EQ(file.lignes.size(), 5U);
}

TEST_P(Encodings, OfARibFileMakeNoDifference) {
    RibWorld world;
    ComponentsText text;
    text.airfoil = wing + ".dat";
    text.text = wing;
    text.chord = "180";
    std::string name;
    EXPECT_EQ(LitComposants(GetParam().bytes(text.Current()), world.rib,
                            Saisie{world.settings.Unite, world.messages}, name),
              FormatComposants::courant);
    EXPECT_EQ(name, read + ".dat");
    EXPECT_EQ(world.rib.texte.InsTexte, read);
    EXPECT_EQ(world.rib.corde, 180.0F);
}

TEST_P(Encodings, OfSettingsMakeNoDifference) {
    const std::string path = File("a.ini", "[" + wing + "]\r\nkey=" + wing + "\r\n");
    EXPECT_EQ(GetINIFile(read, "key", path), read);
    EXPECT_TRUE(WriteINIFile(read, "other", "1", path));
    EXPECT_EQ(words.folder.Bytes("a.ini"), "[" + read + "]\r\nkey=" + read + "\r\nother=1\r\n");
}

TEST_P(Encodings, OfALanguageMakeNoDifference) {
    File("Any.lng", "[Window]\r\n1=" + wing + "\r\n");
    LngIni language;
    language.Charge(words.folder.Path(), "Any");
    EXPECT_EQ(language.LngText({"Window", "1"}), read);
}

TEST_P(Encodings, OfPanelAndWingMakeNoDifference) {
    const FichierPanneau panel = LitPanneau(
        File("a.lfp", "[Panel]\nUnit=mm\nRoot=" + wing + ".lfw\nTip=tip.lfw\nCount=3\n"));
    EXPECT_EQ(panel.bouts[0], words.folder.Path(read + ".lfw"));
    EXPECT_EQ(panel.nombre, "3");
    EXPECT_EQ(LitAile(File("a.lfa", "[Wing]\nPanel1=" + wing + ".lfp\n")).panneaux,
              std::vector<std::string>{words.folder.Path(read + ".lfp")});
}

INSTANTIATE_TEST_SUITE_P(
    All, Encodings,
    testing::Values(
        Encoding{"Windows1252", [](const std::string &letters) { return letters; }},
        Encoding{"Utf8", AsUtf8},
        Encoding{"Utf8WithMark",
                 [](const std::string &letters) { return "\xEF\xBB\xBF" + AsUtf8(letters); }},
        Encoding{"Utf16Little", [](const std::string &letters) { return Doubled(letters, false); }},
        Encoding{"Utf16Big", [](const std::string &letters) { return Doubled(letters, true); }},
        Encoding{"Utf16LittleWithMark",
                 [](const std::string &letters) { return "\xFF\xFE" + Doubled(letters, false); }},
        Encoding{"Utf16BigWithMark",
                 [](const std::string &letters) { return "\xFE\xFF" + Doubled(letters, true); }}),
    [](const testing::TestParamInfo<Encoding> &each) { return each.param.name; });

} // namespace
} // namespace loftwing
