/// The panel's window with two rib files.
#pragma once

#include "mainwindow/frmpanneau.h"
#include "windows/frmmain_files_fixture.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <string>
#include <vector>

namespace loftwing {

/// A root of 240 and a tip of 120 mm, each with a spar at 30 % of its chord.
class PanelWindow : public RibFiles {
  protected:
    PanelWindow() {
        std::filesystem::create_directories(world.folder.Path("out"));
        root.chord = "240";
        root.spars = {SparAt("72"), ComponentsText::BlankSpar()};
        tip.chord = "120";
        tip.spars = {SparAt("36"), ComponentsText::BlankSpar()};
    }

    ComponentsText root, tip;

    static ComponentsText::Lines SparAt(const char *place) {
        return {place, "4", "3", "1", "0", "1", "0", "0", "0"};
    }
    std::string Written(const ComponentsText &rib, const char *name) {
        return world.folder.File(std::string("ribs/") + name, rib.Current());
    }
    std::string Out() const { return world.folder.Path("out"); }
    bool NothingWritten() const { return std::filesystem::is_empty(Out()); }
    /// Who goes loses what no panel file has.
    void Use(const User &user, std::vector<User> more = {}) {
        more.insert(more.begin(), [this, user](Seen &dialog) {
            user(dialog);
            Leave(dialog);
        });
        world.Run("mnu_outilpanneau", more);
    }
    void Leave(Seen &dialog) {
        if (!dialog.IsOpen()) {
            return;
        }
        const bool asks = dialog.As<frmpanneau>().Modifie();
        if (asks) {
            world.platform.Expect(BoxAnswer::yes,
                                  {.text = testing::StartsWith("The panel has changes that no")});
        }
        dialog.As<QDialog>().reject();
        EXPECT_FALSE(dialog.IsOpen());
        if (asks) {
            world.platform.boxes.pop_back();
        }
    }

    void Take(const Seen &dialog, int end, const std::string &path) {
        world.platform.files_expected.push_back(path);
        dialog.Click({"cmdchoisir", end});
    }
    void TakeBoth(const Seen &dialog) {
        Take(dialog, 0, Written(root, "root.lfw"));
        Take(dialog, 1, Written(tip, "tip.lfw"));
    }
    static QTableWidget &Ribs(const Seen &dialog) { return dialog.Find<QTableWidget>("Nervures"); }
    static QTableWidget &Ranges(const Seen &dialog) { return dialog.Find<QTableWidget>("Portees"); }
    static std::string Cell(const QTableWidget &table, int row, int column) {
        const QTableWidgetItem *item = table.item(row, column);
        return item == nullptr ? "none" : S(item->text());
    }
    static std::vector<std::string> Column(const QTableWidget &table, int column) {
        std::vector<std::string> texts;
        for (int row = 0; row < table.rowCount(); ++row) {
            texts.push_back(Cell(table, row, column));
        }
        return texts;
    }
    static const PlanPanneau &Plan(const Seen &dialog) {
        return dialog.Find<PlanPicture>("Plan").Plan();
    }
    /// Types the number of ribs between the ends and lets the panel be computed.
    static void TypeCount(const Seen &dialog, int count) {
        dialog.Type({"txt", 0}, std::to_string(count));
        EXPECT_TRUE(Eventually([&] { return Ribs(dialog).rowCount() == count + 2; }));
    }
    static void ExpectSaid(const Seen &dialog, const std::string &text) {
        EXPECT_TRUE(Eventually([&] { return dialog.Label("lblavis") == text; }))
            << dialog.Label("lblavis");
    }
    /// The button for the files, with a folder chosen.
    void Make(const Seen &dialog) {
        world.platform.folders_expected.push_back(Out());
        dialog.Click("cmdnervures");
    }
};

} // namespace loftwing
