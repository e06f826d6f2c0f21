#include "platform/save_form.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

const std::vector<std::string> kExtensions = {"svg", "dxf", "pdf"};

void ExpectForm(const FormAnswer &answer, const std::string &path, int form) {
    EXPECT_EQ(answer.path, path);
    EXPECT_EQ(answer.form, form);
}

TEST(SaveForm, TheNameFollowsTheFormThatWasChosen) {
    ExpectForm(FormeVoulue("/ribs/root.svg", 0, 1, kExtensions), "/ribs/root.dxf", 1);
    ExpectForm(FormeVoulue("/ribs/root.SVG", 0, 2, kExtensions), "/ribs/root.pdf", 2);
    ExpectForm(FormeVoulue("/ribs/root.svg", 0, 0, kExtensions), "/ribs/root.svg", 0);
}

TEST(SaveForm, AnExtensionThatWasTypedChoosesItsForm) {
    ExpectForm(FormeVoulue("root.dxf", 0, 0, kExtensions), "root.dxf", 1);
    ExpectForm(FormeVoulue("root.PDF", 1, 1, kExtensions), "root.PDF", 2);
}

TEST(SaveForm, ANameWithoutExtensionGetsThatOfItsForm) {
    ExpectForm(FormeVoulue("root", 0, 0, kExtensions), "root.svg", 0);
    ExpectForm(FormeVoulue("/v1.2/root", 0, 2, kExtensions), "/v1.2/root.pdf", 2);
}

TEST(SaveForm, AForeignExtensionStays) {
    ExpectForm(FormeVoulue("root.txt", 0, 1, kExtensions), "root.txt", 1);
}

TEST(SaveForm, FormsOfOneExtensionAreToldApartByTheListAlone) {
    const std::vector<std::string> same = {"dxf", "dxf"};
    ExpectForm(FormeVoulue("root.dxf", 1, 1, same), "root.dxf", 1);
    ExpectForm(FormeVoulue("root.dxf", 0, 1, same), "root.dxf", 1);
    ExpectForm(FormeVoulue("root.dxf", 1, 0, same), "root.dxf", 0);
}

TEST(SaveForm, ACancelStaysOne) {
    ExpectForm(FormeVoulue("", 0, 1, kExtensions), "", 1);
}

TEST(SaveForm, ExtensionsAreThoseOfTheFilters) {
    EXPECT_EQ(ExtensionsDe({"SVG (*.svg)", "DXF for cutters (*.DXF)", "All (*)", ""}),
              (std::vector<std::string>{"svg", "dxf", "", ""}));
}

} // namespace
} // namespace loftwing
