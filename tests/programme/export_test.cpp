#include "programme/export.h"

#include "programme/file_steps.h"
#include "support/components_text.h"
#include "support/steps_world.h"
#include "support/test_printer.h"

namespace loftwing {
namespace {

using testing::IsEmpty;

/// Print commands of a rib, into a printer whose job may be a file.
class PrintCommand : public StepsWorld {
  protected:
    PrintCommand() {
        OuvreFichier(programme, view, Sample("naca2412.dat"));
        platform.make_printer = [this](const PrintQuestion &) {
            auto printer = std::make_unique<TestPrinter>();
            printer->file = file;
            printer->fails_at_end = fails;
            return printer;
        };
    }
    FinImpression Print() {
        return ImprimeSurDemande(programme,
                                 ReglageDeFenetre(programme.messages, [] { return true; }));
    }

    std::string file;
    bool fails = false;
};

TEST_F(PrintCommand, APdfSaysWhereItWentAndWhatItIs) {
    file = "/home/builder/naca2412 200 mm.pdf";
    ExpectBox(BoxAnswer::ok,
              "The print is a PDF file :\n/home/builder/naca2412 200 mm.pdf\n"
              "Number of pages : 1\nA4 210 x 297 mm",
              "Loftwing");
    EXPECT_EQ(Print(), FinImpression::imprime);
    EXPECT_EQ(platform.boxes.size(), 1U);
}

TEST_F(PrintCommand, TheSheetsOfATiledRibAreCounted) {
    file = "/tmp/long.pdf";
    Rib().corde = 300; // two sheets of 252 mm
    programme.settings.page.NbPages = 2;
    programme.settings.page.recouvrement = 20;
    ExpectBox(BoxAnswer::ok,
              "The print is a PDF file :\n/tmp/long.pdf\nNumber of pages : 2\nA4 210 x 297 mm",
              "Loftwing");
    EXPECT_EQ(Print(), FinImpression::imprime);
}

TEST_F(PrintCommand, ThePrintersOwnPaperIsOneSheet) {
    file = "/tmp/own.pdf";
    programme.settings.page.NumIndex = kPapierImprimante;
    programme.settings.page.NbPages = 3; // of another print
    ExpectBox(BoxAnswer::ok,
              "The print is a PDF file :\n/tmp/own.pdf\nNumber of pages : 1\n"
              "Paper set in the printer",
              "Loftwing");
    EXPECT_EQ(Print(), FinImpression::imprime);
}

TEST_F(PrintCommand, ATemplateFromAFileIsTiledByItsWholeLength) {
    ComponentsText rib;
    rib.kind = "1";
    rib.chord = "230";
    rib.below = "20";
    rib.total = "60";
    rib.ramp = "30";
    rib.tail_ramp = "50"; // 310 mm with margins of 25 mm: more than 297, less than two steps of 252
    folder.File("airfoils/naca2412.dat", ReadWholeFile(Sample("naca2412.dat")));
    Rib().Modifie = false;
    OuvreFichier(programme, view, folder.File("template.lfw", rib.Current()));
    ASSERT_EQ(Rib().TypeGabarit, kGabaritMousse);
    file = "/tmp/template.pdf";
    ExpectBox(BoxAnswer::ok,
              "The print is a PDF file :\n/tmp/template.pdf\nNumber of pages : 2\nA4 210 x 297 mm",
              "Loftwing");
    EXPECT_EQ(Print(), FinImpression::imprime);
}

TEST_F(PrintCommand, APrinterNeedsNoWord) {
    EXPECT_EQ(Print(), FinImpression::imprime);
    EXPECT_THAT(platform.boxes, IsEmpty());
}

TEST_F(PrintCommand, AFileThatWasNotWrittenIsNotSaidToBeThere) {
    file = "/full/disk.pdf";
    fails = true;
    platform.ExpectBoxes(1); // the failure's
    EXPECT_EQ(Print(), FinImpression::echec);
    EXPECT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(platform.boxes.back().title, "Error");
}

TEST_F(PrintCommand, TheNameProposedIsTheOneOfAllBoxes) {
    platform.make_printer = nullptr;
    EXPECT_EQ(Print(), FinImpression::annule);
    EXPECT_EQ(platform.print_questions.back().proposed_pdf, "naca2412 200 mm.pdf");
    EXPECT_EQ(platform.print_questions.back().pdf_title,
              "No printer is installed: print to a PDF file");
    EXPECT_EQ(platform.print_questions.back().document, "naca2412"); // the job's name in the queue
    Rib().NomFichierRib = "root.lfw";
    Print();
    EXPECT_EQ(platform.print_questions.back().proposed_pdf, "root.pdf");
}

} // namespace
} // namespace loftwing
