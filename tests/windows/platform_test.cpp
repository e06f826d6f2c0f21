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
#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPageSetupDialog>
#include <QPushButton>
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

/// Types a name into a file chooser and accepts it.
void TypeName(Seen &chooser, const std::string &name) {
    chooser.Fill("fileNameEdit", name);
    chooser.As<QDialog>().accept();
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
    const bool there = Eventually([&] { return fs::exists(folder.Path("started")); });
    return there ? folder.Bytes("started") : "nothing";
}

} // namespace

TEST(QtPlatformBox, ShowsPlainTextWithItsButtons) {
    World world;
    InNextDialog([](Seen &dialog) {
        const QMessageBox &box = dialog.As<QMessageBox>();
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
    const std::pair<BoxButtons, BoxAnswer> cases[] = {
        {BoxButtons::yes_no, BoxAnswer::no},
        {BoxButtons::ok_cancel, BoxAnswer::cancel},
        {BoxButtons::retry_cancel, BoxAnswer::cancel},
        {BoxButtons::locate_cancel, BoxAnswer::cancel},
        {BoxButtons::ok, BoxAnswer::ok}};
    for (const auto &[buttons, answer] : cases) {
        InNextDialog([](Seen &dialog) { dialog.Key(Qt::Key_Escape); });
        EXPECT_EQ(world.platform.Show({"?", "t", BoxIcon::question, buttons, BoxAnswer::ok}),
                  answer);
    }
}

TEST(QtPlatformBox, ReturnIsTheDefaultButton) {
    World world;
    InNextDialog([](Seen &dialog) { dialog.Key(Qt::Key_Return); });
    EXPECT_EQ(world.platform.Show(
                  {"?", "t", BoxIcon::question, BoxButtons::retry_cancel, BoxAnswer::retry}),
              BoxAnswer::retry);
}

TEST(QtPlatformBox, LocateIsAnAnswerWithAWordOfItsOwn) {
    World world;
    world.platform.SetButtonWords({"Bien", "Annuler", "Oui", "Non", "Encore", "Indiquer"});
    InNextDialog([](Seen &dialog) {
        QAbstractButton *locate = dialog.As<QMessageBox>().button(QMessageBox::Open);
        EXPECT_EQ(locate->text(), "&Indiquer");
        locate->click();
    });
    EXPECT_EQ(world.platform.Show(
                  {"?", "t", BoxIcon::question, BoxButtons::locate_cancel, BoxAnswer::cancel}),
              BoxAnswer::locate);
}

TEST(QtPlatformBox, TakesTheWordsOfTheLanguage) {
    World world;
    world.platform.SetButtonWords({"Bien", "Annuler", "Oui", "", ""});
    InNextDialog([](Seen &dialog) {
        const QMessageBox &box = dialog.As<QMessageBox>();
        EXPECT_EQ(box.button(QMessageBox::Ok)->text(), "Bien");
        EXPECT_EQ(box.button(QMessageBox::Cancel)->text(), "Annuler");
    });
    world.platform.Show({"?", "t", BoxIcon::stop, BoxButtons::ok_cancel, BoxAnswer::ok});
    InNextDialog([](Seen &dialog) {
        const QMessageBox &box = dialog.As<QMessageBox>();
        EXPECT_EQ(box.button(QMessageBox::Yes)->text(), "&Oui");
        EXPECT_FALSE(box.button(QMessageBox::No)->text().isEmpty()) << "the toolkit's own";
    });
    world.platform.Show({"?", "t", BoxIcon::none, BoxButtons::yes_no, BoxAnswer::yes});
}

TEST(QtPlatformBox, ATickBelowTheTextIsSetAtFirst) {
    World world;
    for (const bool taken_out : {false, true}) {
        InNextDialog([taken_out](Seen &dialog) {
            const QMessageBox &box = dialog.As<QMessageBox>();
            ASSERT_NE(box.checkBox(), nullptr);
            EXPECT_EQ(box.checkBox()->text(), "Not again");
            if (taken_out) {
                box.checkBox()->click();
            }
            dialog.Key(Qt::Key_Escape);
        });
        const TickedAnswer answer = world.platform.ShowWithTick(
            {"?", "t", BoxIcon::warning, BoxButtons::ok_cancel, BoxAnswer::ok}, "Not again");
        EXPECT_EQ(answer.answer, BoxAnswer::cancel);
        EXPECT_EQ(answer.ticked, !taken_out);
    }
}

TEST(QtPlatformBox, StandsOverTheActiveWindow) {
    World world;
    QWidget window;
    window.show();
    QApplication::setActiveWindow(&window);
    InNextDialog([&window](Seen &dialog) { EXPECT_EQ(dialog.Window().parentWidget(), &window); });
    world.platform.Show({"!", "t"});
}

TEST(QtPlatformAsk, GivesTheLineOrNothing) {
    World world;
    InNextDialog([](Seen &dialog) {
        auto &input = dialog.As<QInputDialog>();
        EXPECT_EQ(input.labelText(), "Name");
        EXPECT_EQ(dialog.Title(), "Title");
        EXPECT_EQ(input.textValue(), "rib");
        input.setTextValue("rib é");
        dialog.As<QDialog>().accept();
    });
    EXPECT_EQ(world.platform.Ask("Name", "Title", "rib"), "rib é");
    InNextDialog([](Seen &dialog) { dialog.Key(Qt::Key_Escape); });
    EXPECT_EQ(world.platform.Ask("Name", "Title", "rib"), std::nullopt);
}

TEST(QtPlatformChooser, OpensAFileThatExists) {
    World world;
    const std::string path = world.folder.File("clark é.dat", "x");
    InNextDialog([](Seen &dialog) {
        const auto &chooser = dialog.As<QFileDialog>();
        EXPECT_EQ(dialog.Title(), "Open");
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
    InNextDialog([](Seen &dialog) { dialog.Key(Qt::Key_Escape); });
    EXPECT_EQ(world.platform.ChooseOpenFile(question), "");
    InNextDialog([](Seen &dialog) { dialog.Key(Qt::Key_Escape); });
    EXPECT_EQ(world.platform.ChooseSaveFile(question), "");
    InNextDialog([](Seen &dialog) { dialog.Key(Qt::Key_Escape); });
    EXPECT_EQ(world.platform.ChooseFolder("t", world.folder.Path()), "");
}

TEST(QtPlatformChooser, AddsTheExtensionToANameThatHasNone) {
    World world;
    const FileQuestion question = {"t", world.folder.Path(), "", "PDF (*.pdf)", "pdf"};
    InNextDialog([](Seen &dialog) { TypeName(dialog, "rib"); });
    EXPECT_EQ(world.platform.ChooseSaveFile(question), world.folder.Path("rib.pdf"));
    InNextDialog([](Seen &dialog) { TypeName(dialog, "rib.PDF"); });
    EXPECT_EQ(world.platform.ChooseSaveFile(question), world.folder.Path("rib.PDF"));
}

TEST(QtPlatformChooser, ProposesAName) {
    World world;
    InNextDialog([](Seen &dialog) {
        EXPECT_EQ(dialog.Text("fileNameEdit"), "Clark Y.pdf");
        dialog.As<QDialog>().accept();
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
    InNextDialog([](Seen &chooser) {
        InNextDialog([](Seen &box) {
            EXPECT_TRUE(box.As<QMessageBox>().text().contains("rib.pdf"));
            EXPECT_EQ(box.As<QMessageBox>().defaultButton(),
                      box.As<QMessageBox>().button(QMessageBox::No));
            InNextDialog([](Seen &again) {
                EXPECT_EQ(again.Text("fileNameEdit"), "rib.pdf");
                InNextDialog([](Seen &box_again) {
                    box_again.As<QMessageBox>().button(QMessageBox::Yes)->click();
                });
                again.As<QDialog>().accept();
            });
            box.As<QMessageBox>().button(QMessageBox::No)->click();
        });
        TypeName(chooser, "rib");
    });
    EXPECT_EQ(world.platform.ChooseSaveFile(question), path);
    EXPECT_EQ(world.folder.Bytes("rib.pdf"), "older") << "choosing doesn't write";
}

TEST(QtPlatformChooser, StartsWithTheFormThatIsAskedFor) {
    World world;
    for (const int form : {0, 1}) {
        FileQuestion question = {"t", world.folder.Path(), "", "DXF Files (*.dxf)", "dxf"};
        question.form = form;
        InNextDialog([form](Seen &dialog) {
            EXPECT_EQ(dialog.As<QFileDialog>().selectedNameFilter(),
                      form == 0 ? "DXF Files (*.dxf)" : "DXF for cutters (*.dxf)");
            TypeName(dialog, "rib");
        });
        const FormAnswer answer =
            world.platform.ChooseSaveForm(question, {"DXF for cutters (*.dxf)"});
        EXPECT_EQ(answer.path, world.folder.Path("rib.dxf"));
        EXPECT_EQ(answer.form, form);
    }
}

TEST(QtPlatformChooser, TheNameFollowsTheFormBeforeItIsAskedWhetherToReplace) {
    World world;
    world.folder.File("rib.svg", "an older drawing");
    const FileQuestion question = {"t", world.folder.Path(), "rib.svg", "SVG (*.svg)", "svg"};
    InNextDialog([](Seen &dialog) {
        dialog.As<QFileDialog>().selectNameFilter("DXF (*.dxf)");
        dialog.As<QDialog>().accept();
    });
    const FormAnswer answer = world.platform.ChooseSaveForm(question, {"DXF (*.dxf)"});
    EXPECT_EQ(answer.path, world.folder.Path("rib.dxf"));
    EXPECT_EQ(answer.form, 1);
}

TEST(QtPlatformChooser, AnExtensionThatWasTypedChoosesItsForm) {
    World world;
    const FileQuestion question = {"t", world.folder.Path(), "", "SVG (*.svg)", "svg"};
    InNextDialog([](Seen &dialog) { TypeName(dialog, "rib.dxf"); });
    const FormAnswer answer = world.platform.ChooseSaveForm(question, {"DXF (*.dxf)"});
    EXPECT_EQ(answer.path, world.folder.Path("rib.dxf"));
    EXPECT_EQ(answer.form, 1);
}

TEST(QtPlatformChooser, ChoosesAFolder) {
    World world;
    fs::create_directory(world.folder.Path("rib sets"));
    InNextDialog([](Seen &dialog) {
        EXPECT_EQ(dialog.Title(), "Folder");
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
        [](Seen &) { EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::ArrowCursor); });
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
    InNextDialog([&](Seen &dialog) {
        EXPECT_EQ(dialog.Text("fileNameEdit"), "Clark Y.pdf");
        EXPECT_EQ(S(dialog.As<QDialog>().windowTitle()), "No printer: a PDF");
        dialog.As<QDialog>().accept();
    });
    const auto printer =
        world.platform.OpenPrinter({"Clark Y", true, 297, 210, path, "No printer: a PDF"});
    ASSERT_NE(printer, nullptr);
    EXPECT_EQ(printer->Fichier(), path);
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
    InNextDialog([](Seen &dialog) { dialog.Key(Qt::Key_Escape); });
    EXPECT_EQ(world.platform.OpenPrinter({"rib", true, 0, 0, world.folder.Path("rib.pdf")}),
              nullptr);
    EXPECT_EQ(world.folder.Entries(), 0);
}

TEST(QtPlatformPrinter, ThePageSetUpChoosesThePrintersOwnPaper) {
    World world;
    {
        const ProgramsOnlyIn none(world.folder.Path());
        InNextDialog([](Seen &dialog) {
            auto &setup = dialog.As<QPageSetupDialog>();
            auto &sizes = dialog.Find<QComboBox>("pageSizeCombo");
            sizes.setCurrentIndex(sizes.findText("A5", Qt::MatchStartsWith));
            setup.accept();
        });
        world.platform.ShowPrinterSettings();
    }
    const std::string path = world.folder.Path("rib.pdf");
    InNextDialog([](Seen &dialog) { dialog.As<QDialog>().accept(); });
    const auto printer = world.platform.OpenPrinter({"rib", true, 0, 0, path});
    ASSERT_NE(printer, nullptr);
    printer->SetOrientation(Orientation::landscape);
    printer->SetPaperSize(0, 0);
    printer->EndDoc();
    EXPECT_NEAR(ReadPdf(Q(path)).PageSizes().at(0).width(), 210 * 72 / 25.4, 0.5);
}

} // namespace loftwing

#include "platform_test.moc"
