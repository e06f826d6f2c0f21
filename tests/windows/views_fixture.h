/// The main window with the tools that put a view in the rib's place.
#pragma once

#include "base/whole_file.h"
#include "output/styles.h"
#include "support/qt_window_world.h"
#include "support/test_printer.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <functional>
#include <string>
#include <vector>

namespace loftwing {

class Views : public testing::Test {
  protected:
    Views() {
        world.Open();
        ValeursDefautTraits(world.programme.settings); // colours and styles that tell lines apart
    }

    using Act = std::function<void(QDialog &)>;
    /// Goes through the modal dialogs that come up one after the other.
    static void InDialogs(std::vector<Act> acts) {
        if (acts.empty()) {
            return;
        }
        const Act first = acts.front();
        acts.erase(acts.begin());
        InNextDialog([first, acts](QDialog &dialog) {
            InDialogs(acts);
            first(dialog);
        });
    }

    static void Click(QDialog &dialog, const char *name) {
        auto *button = dialog.findChild<QPushButton *>(name);
        ASSERT_NE(button, nullptr) << name;
        QTest::mouseClick(button, Qt::LeftButton);
    }
    static std::string Text(QDialog &dialog, const char *name) {
        auto *field = dialog.findChild<QLineEdit *>(name);
        return field == nullptr ? "no field" : field->text().toStdString();
    }
    static void Type(QDialog &dialog, const char *name, const char *text) {
        auto *field = dialog.findChild<QLineEdit *>(name);
        ASSERT_NE(field, nullptr) << name;
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        QTest::keyClicks(field, text);
    }

    /// Acts in the value dialog and in the airfoil picker.
    static Act Chord(const char *text) {
        return [text](QDialog &dialog) {
            ASSERT_EQ(dialog.objectName(), "frmInput");
            Type(dialog, "infotxt", text);
            Click(dialog, "cmdok");
        };
    }
    static Act Pick(const std::string &path) {
        return [path](QDialog &dialog) {
            ASSERT_EQ(dialog.objectName(), "frmopen");
            dialog.findChild<QLineEdit *>("txtchemin")->setText(QString::fromStdString(path));
            Click(dialog, "cmdouvrir");
        };
    }
    static Act PickSample(const char *name) { return Pick(WindowWorld::Sample(name)); }
    static void Cancel(QDialog &dialog) { dialog.reject(); }

    /// Runs a command whose dialogs are gone through in this way.
    void Run(const char *action, const std::vector<Act> &acts) {
        InDialogs(acts);
        world.Action(action)->trigger();
    }
    void Compare() {
        Run("mnu_OutilCompare",
            {Chord("150"), PickSample("naca0012.dat"), PickSample("naca2412.dat")});
    }
    void OpenRib() {
        world.window->OuvreFichier(WindowWorld::Sample("naca2412.dat"));
        Rib().Modifie = false;
    }
    void ExpectBox(BoxAnswer answer, const std::string &text) {
        world.platform.boxes_expected.push_back(
            {answer, [text](const MessageBox &box) { EXPECT_EQ(box.text, text); }});
    }
    /// Prints the view; the question is answered with Yes.
    std::vector<Operation> Printed(const std::string &question) {
        std::vector<Operation> sheet;
        world.platform.make_printer = [&](const PrintQuestion &) {
            return std::make_unique<Keeping>(sheet);
        };
        ExpectBox(BoxAnswer::yes, question);
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
