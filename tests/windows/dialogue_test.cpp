#include "programme/qt_dialogue.h"

#include "support/qt_seen.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"

#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include <gmock/gmock.h>

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kAide = 77;

/// A window with a button of its own between those that it shares.
class Fenetre : public Dialogue {
  public:
    explicit Fenetre(Programme &programme) : Dialogue(programme, "fenetre", kAide, nullptr) {
        NameControl(cmdsave, "cmdsave");
        NameControl(cmdtest, "cmdtest");
        auto *rows = new QVBoxLayout(this);
        PoseBoutons(
            *rows,
            {SharedWord::apply, &cmdsave, SharedWord::ok, SharedWord::cancel, SharedWord::help},
            &cmdtest);
    }

    using Dialogue::PoseMotsPartages;
    using Dialogue::Seul;

    std::vector<std::string> called;
    bool fails = false;

  private:
    QPushButton cmdsave;
    QPushButton cmdtest;

    void Note(const char *handler) {
        called.emplace_back(handler);
        if (fails) {
            throw MakeFailure(kOverflow);
        }
    }
    void CmdApply_Click() override { Note("apply"); }
    void cmdok_Click() override {
        Note("ok");
        accept();
    }
    void cmdannuler_Click() override {
        Note("cancel");
        Renonce();
    }
};

class DialogueTest : public testing::Test {
  protected:
    DialogueTest() : programme(Paths{}, platform) { Speak("Fine", "Leave"); }

    void Speak(const std::string &ok, const std::string &cancel) {
        folder.File("Test.lng", "[TextButton]\n1=" + ok + "\n2=" + cancel + "\n3=Help\n4=Apply\n");
        programme.language.Charge(folder.Path(), "Test");
    }

    TempFolder folder;
    ScriptedPlatform platform;
    Programme programme;
};

TEST_F(DialogueTest, ButtonsStandInTheirRowWithTheirWords) {
    Fenetre window(programme);
    EXPECT_EQ(window.objectName(), "fenetre");
    std::vector<std::string> names;
    for (const QPushButton *button : window.findChildren<QPushButton *>()) {
        names.push_back(S(button->objectName()));
    }
    EXPECT_THAT(names,
                ElementsAre("cmdtest", "CmdApply", "cmdsave", "cmdok", "cmdannuler", "cmdaide"));
    EXPECT_EQ(Seen(window).Word("cmdok"), "Fine");
    EXPECT_TRUE(Seen(window).Find<QPushButton>("cmdok").isDefault());
    EXPECT_FALSE(Seen(window).Has("cmdfermer"));
}

TEST_F(DialogueTest, EachButtonCallsItsHandler) {
    Fenetre window(programme);
    window.show();
    for (const char *name : {"CmdApply", "cmdaide", "cmdsave", "cmdok"}) {
        Seen(window).Click(name);
    }
    EXPECT_THAT(window.called, ElementsAre("apply", "ok"));
    EXPECT_EQ(window.result(), QDialog::Accepted);
    EXPECT_THAT(platform.help_contexts, ElementsAre(kAide));
}

TEST_F(DialogueTest, EscapeAndTheClosingButtonCancel) {
    Fenetre window(programme);
    window.show();
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    window.show();
    EXPECT_TRUE(window.close());
    window.show();
    Seen(window).Click("cmdannuler");
    EXPECT_THAT(window.called, ElementsAre("cancel", "cancel", "cancel"));
    EXPECT_EQ(window.result(), QDialog::Rejected);
}

TEST_F(DialogueTest, AFailureOfAHandlerIsToldAndGoesNoFurther) {
    Fenetre window(programme);
    window.fails = true;
    window.show();
    for (const char *name : {"CmdApply", "cmdok", "cmdannuler"}) {
        platform.Expect(BoxAnswer::ok);
        Seen(window).Click(name);
        EXPECT_EQ(platform.boxes.back().title, std::string(" fenetre/") + name);
    }
    platform.Expect(BoxAnswer::ok);
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_TRUE(window.isVisible());
}

TEST_F(DialogueTest, AnotherLanguageIsTakenOverWhileItIsOpen) {
    Fenetre window(programme);
    Speak("Bien", "Sortir");
    EXPECT_EQ(Seen(window).Word("cmdok"), "Fine");
    window.PoseMotsPartages();
    EXPECT_EQ(Seen(window).Word("cmdok"), "Bien");
    EXPECT_EQ(Seen(window).Word("cmdannuler"), "Sortir");
}

TEST_F(DialogueTest, AnActionAloneLetsNoOtherStartUntilItIsDone) {
    Fenetre window(programme);
    std::vector<std::string> done;
    const auto inner = [&] { done.emplace_back("inner"); };
    window.Seul(" outer", [&] {
        window.Seul(" inner", inner);
        done.emplace_back("outer");
    });
    EXPECT_THAT(done, ElementsAre("outer"));
    // One that failed is done as well.
    platform.Expect(BoxAnswer::ok);
    window.Seul(" outer", [] { throw MakeFailure(kOverflow); });
    EXPECT_EQ(platform.boxes.back().title, " outer");
    window.Seul(" inner", inner);
    EXPECT_THAT(done, ElementsAre("outer", "inner"));
    EXPECT_THAT(window.called, IsEmpty());
}

} // namespace
} // namespace loftwing
