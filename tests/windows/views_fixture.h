/// The main window with the tools that put a view in the rib's place.
#pragma once

#include "base/whole_file.h"
#include "output/styles.h"
#include "support/qt_window_world.h"
#include "support/test_printer.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace loftwing {

class Views : public testing::Test {
  protected:
    Views() {
        world.Open();
        ValeursDefautTraits(world.programme.settings); // colours and styles that tell lines apart
        world.programme.settings.page.temoin = false;  // what is printed is the view alone
    }

    /// Acts in the value dialog and in the airfoil picker.
    static User Chord(const char *text) {
        return [text](Seen &dialog) {
            ASSERT_EQ(dialog.Name(), "frmInput");
            dialog.Type("infotxt", text);
            dialog.Click("cmdok");
        };
    }
    static User Pick(const std::string &path) {
        return [path](Seen &dialog) {
            ASSERT_EQ(dialog.Name(), "frmopen");
            dialog.Fill("txtchemin", path);
            dialog.Click("cmdouvrir");
        };
    }
    static User PickSample(const char *name) { return Pick(WindowWorld::Sample(name)); }
    /// Lets the picker read and show that file, without taking it.
    static void LookAt(Seen &picker, const std::string &path) {
        picker.Fill("txtchemin", path);
        picker.Key("txtchemin", Qt::Key_Return);
        EXPECT_TRUE(Eventually([&picker] { return !picker.Label("nomfile1").empty(); })) << path;
    }
    static void Cancel(Seen &dialog) { dialog.Key(Qt::Key_Escape); }

    /// Runs a command whose dialogs are gone through in this way.
    void Run(const char *command, const std::vector<User> &users) const {
        world.Run(command, users);
    }
    void Compare() {
        Run("mnu_OutilCompare",
            {Chord("150"), PickSample("naca0012.dat"), PickSample("naca2412.dat")});
    }
    void OpenRib() {
        world.window->OuvreFichier(WindowWorld::Sample("naca2412.dat"));
        Rib().Modifie = false;
    }
    /// Prints the view; the question is answered with Yes.
    std::vector<Operation> Printed(const std::string &question) {
        std::vector<Operation> sheet;
        world.platform.make_printer = [&](const PrintQuestion &) {
            return std::make_unique<Keeping>(sheet);
        };
        world.platform.Expect(BoxAnswer::yes, {.text = question});
        world.Action("mnu_fileprint")->trigger();
        return sheet;
    }

    RibModel &Rib() { return world.programme.rib; }
    const Recording *Drawing() const { return world.Find<PicView>("Pic")->Dessin(); }
    std::string Caption() const { return world.window->windowTitle().toStdString(); }
    bool Enabled(const char *name) const { return world.Action(name)->isEnabled(); }

    WindowWorld world;

  private:
    /// A printer whose first sheet outlives it.
    class Keeping : public TestPrinter {
      public:
        explicit Keeping(std::vector<Operation> &kept) : kept_(kept) {}
        ~Keeping() override { kept_ = sheets.front(); }

      private:
        std::vector<Operation> &kept_;
    };
};

/// The segments of a drawing.
inline std::vector<DrawnSegment> SegmentsOf(const std::vector<Operation> &operations) {
    std::vector<DrawnSegment> segments;
    for (const Operation &operation : operations) {
        if (const auto *segment = std::get_if<DrawnSegment>(&operation)) {
            segments.push_back(*segment);
        }
    }
    return segments;
}

/// The texts of a drawing.
inline std::vector<std::string> TextsOf(const std::vector<Operation> &operations) {
    std::vector<std::string> texts;
    for (const Operation &operation : operations) {
        if (const auto *text = std::get_if<DrawnText>(&operation)) {
            texts.push_back(text->text);
        }
    }
    return texts;
}

} // namespace loftwing
