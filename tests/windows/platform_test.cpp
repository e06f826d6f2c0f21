#include "output/printer.h"
#include "platform/qt_desktop.h"
#include "platform/qt_platform.h"
#include "platform/qt_pointer.h"
#include "platform/qt_text.h"
#include "support/qt_modal.h"
#include "support/qt_pdf.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDesktopServices>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPageSetupDialog>
#include <QPushButton>
#include <QTest>
#include <QUrl>

#include <filesystem>

namespace loftwing {

/// Catches what would open in a browser.
class PageCatcher : public QObject {
    Q_OBJECT

  public:
    PageCatcher() { QDesktopServices::setUrlHandler("http", this, "Open"); }
    ~PageCatcher() override { QDesktopServices::unsetUrlHandler("http"); }
    std::vector<QUrl> pages;

  public Q_SLOTS:
    void Open(const QUrl &page) { pages.push_back(page); }
};

namespace {

namespace fs = std::filesystem;

struct World {
    TempFolder folder;
    QtPlatform platform{LOFTWING_SOURCE_DIR "/resources"};
};

QMessageBox &BoxOf(QDialog &dialog) {
    auto *box = qobject_cast<QMessageBox *>(&dialog);
    if (box == nullptr) {
        throw std::runtime_error("the dialog is no box");
    }
    return *box;
}

/// Types a name into a file chooser and accepts it.
void TypeName(QDialog &chooser, const std::string &name) {
    auto *edit = chooser.findChild<QLineEdit *>("fileNameEdit");
    ASSERT_NE(edit, nullptr);
    edit->setText(Q(name));
    chooser.accept();
}

/// Lets the next search for programs find nothing but those of `folder`.
class ProgramsOnlyIn {
  public:
    explicit ProgramsOnlyIn(const std::string &folder) : path_(qgetenv("PATH")) {
        qputenv("PATH", QByteArray::fromStdString(folder));
    }
    ProgramsOnlyIn(const ProgramsOnlyIn &) = delete;
    ProgramsOnlyIn &operator=(const ProgramsOnlyIn &) = delete;
    ~ProgramsOnlyIn() { qputenv("PATH", path_); }

  private:
    QByteArray path_;
};

/// A program that writes its name and arguments to a file "started" beside itself.
void MakeProgram(const TempFolder &folder, const std::string &name) {
    const std::string path =
        folder.File(name, "#!/bin/sh\necho " + name + " \"$@\" > '" + folder.Path("started.part") +
                              "'\nexec /bin/mv '" + folder.Path("started.part") + "' '" +
                              folder.Path("started") + "'\n");
    fs::permissions(path, fs::perms::owner_all);
}

std::string Started(const TempFolder &folder) {
    const bool there = QTest::qWaitFor([&] { return fs::exists(folder.Path("started")); }, 10'000);
    return there ? folder.Bytes("started") : "nothing";
}

} // namespace

TEST(QtPlatformBox, ShowsPlainTextWithItsButtons) {
    World world;
    InNextDialog([](QDialog &dialog) {
        const QMessageBox &box = BoxOf(dialog);
        EXPECT_EQ(box.text(), "<b>Not</b> bold\nsecond line");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.windowTitle(), "Loftwing");
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
        EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::No));
        box.button(QMessageBox::Yes)->click();
    });
    EXPECT_EQ(world.platform.Show({"<b>Not</b> bold\nsecond line", "Loftwing", BoxIcon::warning,
                                   BoxButtons::yes_no, BoxAnswer::no}),
              BoxAnswer::yes);
}

TEST(QtPlatformBox, EscapeIsNoOrCancelOrOk) {
    World world;
    const std::pair<BoxButtons, BoxAnswer> cases[] = {{BoxButtons::yes_no, BoxAnswer::no},
                                                      {BoxButtons::ok_cancel, BoxAnswer::cancel},
                                                      {BoxButtons::retry_cancel, BoxAnswer::cancel},
                                                      {BoxButtons::ok, BoxAnswer::ok}};
    for (const auto &[buttons, answer] : cases) {
        InNextDialog([](QDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        EXPECT_EQ(world.platform.Show({"?", "t", BoxIcon::question, buttons, BoxAnswer::ok}),
                  answer);
    }
}

TEST(QtPlatformBox, ReturnIsTheDefaultButton) {
    World world;
    InNextDialog([](QDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
    EXPECT_EQ(world.platform.Show(
                  {"?", "t", BoxIcon::question, BoxButtons::retry_cancel, BoxAnswer::retry}),
              BoxAnswer::retry);
}

TEST(QtPlatformBox, TakesTheWordsOfTheLanguage) {
    World world;
    world.platform.SetButtonWords({"Bien", "Annuler", "Oui", "", ""});
    InNextDialog([](QDialog &dialog) {
        const QMessageBox &box = BoxOf(dialog);
        EXPECT_EQ(box.button(QMessageBox::Ok)->text(), "Bien");
        EXPECT_EQ(box.button(QMessageBox::Cancel)->text(), "Annuler");
    });
    world.platform.Show({"?", "t", BoxIcon::stop, BoxButtons::ok_cancel, BoxAnswer::ok});
    InNextDialog([](QDialog &dialog) {
        const QMessageBox &box = BoxOf(dialog);
        EXPECT_EQ(box.button(QMessageBox::Yes)->text(), "Oui");
        EXPECT_FALSE(box.button(QMessageBox::No)->text().isEmpty()) << "the toolkit's own";
    });
    world.platform.Show({"?", "t", BoxIcon::none, BoxButtons::yes_no, BoxAnswer::yes});
}

TEST(QtPlatformBox, StandsOverTheActiveWindow) {
    World world;
    QWidget window;
    window.show();
    QApplication::setActiveWindow(&window);
    InNextDialog([&window](QDialog &dialog) { EXPECT_EQ(dialog.parentWidget(), &window); });
    world.platform.Show({"!", "t"});
}

TEST(QtPlatformAsk, GivesTheLineOrNothing) {
    World world;
    InNextDialog([](QDialog &dialog) {
        auto &input = dynamic_cast<QInputDialog &>(dialog);
        EXPECT_EQ(input.labelText(), "Name");
        EXPECT_EQ(input.windowTitle(), "Title");
        EXPECT_EQ(input.textValue(), "rib");
        input.setTextValue("rib é");
        dialog.accept();
    });
    EXPECT_EQ(world.platform.Ask("Name", "Title", "rib"), "rib é");
    InNextDialog([](QDialog &dialog) { dialog.reject(); });
    EXPECT_EQ(world.platform.Ask("Name", "Title", "rib"), std::nullopt);
}

TEST(QtPlatformChooser, OpensAFileThatExists) {
    World world;
    const std::string path = world.folder.File("clark é.dat", "x");
    InNextDialog([](QDialog &dialog) {
        auto &chooser = dynamic_cast<QFileDialog &>(dialog);
        EXPECT_EQ(chooser.windowTitle(), "Open");
        EXPECT_EQ(chooser.nameFilters(), QStringList("Airfoils (*.dat *.cor)"));
        TypeName(dialog, "clark é.dat");
    });
    EXPECT_EQ(world.platform.ChooseOpenFile(
                  {"Open", world.folder.Path(), "", "Airfoils (*.dat *.cor)", "dat"}),
              path);
}

TEST(QtPlatformChooser, AnEmptyAnswerIsTheCancel) {
    World world;
    const FileQuestion question = {"t", world.folder.Path(), "rib", "PDF (*.pdf)", "pdf"};
    InNextDialog([](QDialog &dialog) { dialog.reject(); });
    EXPECT_EQ(world.platform.ChooseOpenFile(question), "");
    InNextDialog([](QDialog &dialog) { dialog.reject(); });
    EXPECT_EQ(world.platform.ChooseSaveFile(question), "");
    InNextDialog([](QDialog &dialog) { dialog.reject(); });
    EXPECT_EQ(world.platform.ChooseFolder("t", world.folder.Path()), "");
}

TEST(QtPlatformChooser, AddsTheExtensionToANameThatHasNone) {
    World world;
    const FileQuestion question = {"t", world.folder.Path(), "", "PDF (*.pdf)", "pdf"};
    InNextDialog([](QDialog &dialog) { TypeName(dialog, "rib"); });
    EXPECT_EQ(world.platform.ChooseSaveFile(question), world.folder.Path("rib.pdf"));
    InNextDialog([](QDialog &dialog) { TypeName(dialog, "rib.PDF"); });
    EXPECT_EQ(world.platform.ChooseSaveFile(question), world.folder.Path("rib.PDF"));
}

TEST(QtPlatformChooser, ProposesAName) {
    World world;
    InNextDialog([](QDialog &dialog) {
        EXPECT_EQ(dialog.findChild<QLineEdit *>("fileNameEdit")->text(), "Clark Y.pdf");
        dialog.accept();
    });
    EXPECT_EQ(world.platform.ChooseSaveFile(
                  {"t", world.folder.Path(), "Clark Y.pdf", "PDF (*.pdf)", "pdf"}),
              world.folder.Path("Clark Y.pdf"));
}

TEST(QtPlatformChooser, AsksBeforeAFileIsReplaced) {
    World world;
    const std::string path = world.folder.File("rib.pdf", "older");
    const FileQuestion question = {"t", world.folder.Path(), "", "PDF (*.pdf)", "pdf"};
    // The question is about the name with its extension; No goes back to the chooser.
    InNextDialog([](QDialog &chooser) {
        InNextDialog([](QDialog &box) {
            EXPECT_TRUE(BoxOf(box).text().contains("rib.pdf"));
            EXPECT_EQ(BoxOf(box).defaultButton(), BoxOf(box).button(QMessageBox::No));
            InNextDialog([](QDialog &again) {
                EXPECT_EQ(again.findChild<QLineEdit *>("fileNameEdit")->text(), "rib.pdf");
                InNextDialog(
                    [](QDialog &box_again) { BoxOf(box_again).button(QMessageBox::Yes)->click(); });
                again.accept();
            });
            BoxOf(box).button(QMessageBox::No)->click();
        });
        TypeName(chooser, "rib");
    });
    EXPECT_EQ(world.platform.ChooseSaveFile(question), path);
    EXPECT_EQ(world.folder.Bytes("rib.pdf"), "older") << "choosing doesn't write";
}

TEST(QtPlatformChooser, ChoosesAFolder) {
    World world;
    fs::create_directory(world.folder.Path("rib sets"));
    InNextDialog([](QDialog &dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Folder");
        TypeName(dialog, "rib sets");
    });
    EXPECT_EQ(world.platform.ChooseFolder("Folder", world.folder.Path()),
              world.folder.Path("rib sets"));
}

TEST(QtPlatformPointer, NormalUndoesBusyHoweverOften) {
    World world;
    world.platform.SetPointer(Pointer::normal);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    world.platform.SetPointer(Pointer::busy);
    world.platform.SetPointer(Pointer::busy);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    world.platform.SetPointer(Pointer::normal);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(QtPlatformPointer, IsNotBusyWhileABoxWaits) {
    World world;
    world.platform.SetPointer(Pointer::busy);
    InNextDialog(
        [](QDialog &) { EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::ArrowCursor); });
    world.platform.Show({"!", "t"});
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    world.platform.SetPointer(Pointer::normal);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(QtPlatformPointer, StaysNormalWhenTheWorkEndedMeanwhile) {
    ShowBusyPointer();
    {
        const PointerPause pause;
        ShowNormalPointer();
    }
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    ShowBusyPointer();
    {
        const PointerPause outer;
        const PointerPause inner;
        ShowBusyPointer();
    }
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    ShowNormalPointer();
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(QtPlatform, LetsPendingEventsThrough) {
    World world;
    bool came = false;
    QMetaObject::invokeMethod(
        qApp, [&came] { came = true; }, Qt::QueuedConnection);
    EXPECT_FALSE(came);
    world.platform.ProcessEvents();
    EXPECT_TRUE(came);
}

TEST(QtPlatform, TheDecimalSeparatorIsTheUsersOwn) {
    World world;
    const QByteArray locale = qgetenv("LC_ALL");
    const bool comma = locale.startsWith("fr") || locale.startsWith("de");
    EXPECT_EQ(world.platform.DecimalSeparator(), comma ? ',' : '.') << locale.toStdString();
}

TEST(QtPlatform, OpensAPage) {
    World world;
    PageCatcher catcher;
    world.platform.OpenPage("http://localhost/loftwing/fr/maj.html");
    ASSERT_EQ(catcher.pages.size(), 1U);
    EXPECT_EQ(catcher.pages[0], QUrl("http://localhost/loftwing/fr/maj.html"));
}

TEST(QtPlatform, HelpGoesWhereItsOwnerSends) {
    World world;
    world.platform.ShowHelp(10);
    world.platform.CloseHelp();
    std::vector<int> shown;
    int closed = 0;
    world.platform.SetHelp([&](int context) { shown.push_back(context); }, [&] { ++closed; });
    world.platform.ShowHelp(42);
    world.platform.CloseHelp();
    EXPECT_EQ(shown, std::vector<int>({42}));
    EXPECT_EQ(closed, 1);
}

TEST(QtPlatformPrograms, TheCalculatorIsTheOneThatIsThere) {
    World world;
    MakeProgram(world.folder, "xcalc");
    MakeProgram(world.folder, "kcalc");
    const ProgramsOnlyIn only(world.folder.Path());
    EXPECT_TRUE(world.platform.StartProgram("calc"));
    EXPECT_EQ(Started(world.folder), "kcalc\n");
}

TEST(QtPlatformPrograms, SaysWhenThereIsNone) {
    World world;
    const ProgramsOnlyIn only(world.folder.Path());
    EXPECT_FALSE(world.platform.StartProgram("calc"));
    EXPECT_FALSE(world.platform.StartProgram("nothing-of-that-name"));
}

TEST(QtPlatformPrograms, PrinterSettingsAreTheDesktops) {
    World world;
    MakeProgram(world.folder, "gnome-control-center");
    const ProgramsOnlyIn only(world.folder.Path());
    world.platform.ShowPrinterSettings();
    EXPECT_EQ(Started(world.folder), "gnome-control-center printers\n");
}

TEST(QtPlatformPrinter, WithoutOneThereIsNoName) {
    World world;
    EXPECT_EQ(world.platform.PrinterName(), "");
}

TEST(QtPlatformPrinter, WithoutOneAsksForAPdf) {
    World world;
    const std::string path = world.folder.Path("Clark Y.pdf");
    InNextDialog([&](QDialog &dialog) {
        EXPECT_EQ(dialog.findChild<QLineEdit *>("fileNameEdit")->text(), "Clark Y.pdf");
        dialog.accept();
    });
    const auto printer = world.platform.OpenPrinter({"Clark Y", true, 297, 210, path});
    ASSERT_NE(printer, nullptr);
    printer->SetOrientation(Orientation::landscape);
    printer->SetPaperSize(210, 297);
    printer->Line(0, 0, 567, 567, 0);
    printer->EndDoc();
    const ReadPdf pdf(Q(path));
    EXPECT_EQ(pdf.Information("Title"), "Clark Y");
    EXPECT_NEAR(pdf.PageSizes().at(0).width(), 841.89, 0.5);
}

TEST(QtPlatformPrinter, CancelIsNoPrinter) {
    World world;
    InNextDialog([](QDialog &dialog) { dialog.reject(); });
    EXPECT_EQ(world.platform.OpenPrinter({"rib", true, 0, 0, world.folder.Path("rib.pdf")}),
              nullptr);
    EXPECT_EQ(world.folder.Entries(), 0);
}

TEST(QtPlatformPrinter, ThePageSetUpChoosesThePrintersOwnPaper) {
    World world;
    {
        const ProgramsOnlyIn none(world.folder.Path());
        InNextDialog([](QDialog &dialog) {
            ASSERT_NE(qobject_cast<QPageSetupDialog *>(&dialog), nullptr);
            auto *sizes = dialog.findChild<QComboBox *>("pageSizeCombo");
            ASSERT_NE(sizes, nullptr);
            sizes->setCurrentIndex(sizes->findText("A5", Qt::MatchStartsWith));
            dialog.accept();
        });
        world.platform.ShowPrinterSettings();
    }
    const std::string path = world.folder.Path("rib.pdf");
    InNextDialog([](QDialog &dialog) { dialog.accept(); });
    const auto printer = world.platform.OpenPrinter({"rib", true, 0, 0, path});
    ASSERT_NE(printer, nullptr);
    printer->SetOrientation(Orientation::landscape);
    printer->SetPaperSize(0, 0);
    printer->EndDoc();
    EXPECT_NEAR(ReadPdf(Q(path)).PageSizes().at(0).width(), 210 * 72 / 25.4, 0.5);
}

} // namespace loftwing

#include "platform_test.moc"
