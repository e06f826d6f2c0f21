/// The main window with rib components files in folders of its own.
#pragma once

#include "base/whole_file.h"
#include "lang/ini_file.h"
#include "support/components_text.h"
#include "support/qt_window_world.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace loftwing {

class RibFiles : public testing::Test {
  protected:
    RibFiles() {
        Airfoil("airfoils/naca2412.dat");
        std::filesystem::create_directories(world.folder.Path("ribs"));
        world.Open();
    }

    /// A sample airfoil in the world's folders; its title can be another one.
    void Airfoil(const std::string &name, const std::string &title = "NACA 2412") {
        std::string bytes = ReadWholeFile(WindowWorld::Sample("naca2412.dat"));
        bytes.replace(0, bytes.find_first_of("\r\n"), title);
        std::filesystem::create_directories(
            std::filesystem::path(world.folder.Path(name)).parent_path());
        world.folder.File(name, bytes);
    }

    /// Chooses `path` in the chooser that the command `name` brings up.
    void Choose(const char *name, const std::string &path) {
        world.platform.files_expected.push_back(path);
        world.Action(name)->trigger();
    }
    void Open(const std::string &path) { Choose("mnu_fileopen", path); }
    /// Writes a file to the ribs' folder and opens it.
    std::string OpenBytes(const std::string &name, const std::string &bytes) {
        std::string path = world.folder.File("ribs/" + name, bytes);
        Open(path);
        return path;
    }

    /// The one report that every failure of an opening ends in.
    void ExpectReport(int number, const std::string &description) {
        world.platform.Expect(BoxAnswer::ok, {.text = "Error # " + std::to_string(number) +
                                                      " in Loftwing\n" + description,
                                              .title = "Error LireEcrire/newLfw"});
    }

    RibModel &Rib() { return world.programme.rib; }
    std::string Caption() const { return world.window->windowTitle().toStdString(); }
    const Recording *Drawing() const { return world.Find<PicView>("Pic")->Dessin(); }
    std::string Setting(const char *key) const {
        return GetINIFile("Repertoires", key, world.programme.paths.fichier);
    }
    bool Exists(const std::string &name) const {
        return std::filesystem::exists(world.folder.Path(name));
    }
    const FileQuestion &LastQuestion() const { return world.platform.file_questions.back(); }

    /// There is no rib, as after the command that clears it.
    void ExpectResetRib() {
        EXPECT_FALSE(Rib().ProfilCharge);
        EXPECT_EQ(Rib().NomProfil, "");
        EXPECT_EQ(Rib().cordeAfich, "200");
        EXPECT_EQ(Rib().NbLongeron, 0);
        EXPECT_EQ(Rib().NbTrou, 0);
        EXPECT_EQ(Rib().texte.InsTexte, "");
        EXPECT_FALSE(Rib().AffHaut);
        EXPECT_EQ(Drawing(), nullptr);
        EXPECT_EQ(Caption(), "Loftwing");
        EXPECT_FALSE(world.Action("mnu_filesaveas")->isEnabled());
        EXPECT_EQ(world.platform.pointer, Pointer::normal);
    }
    /// The program goes on working: a good file still opens.
    void ExpectAlive() {
        OpenBytes("good.lfw", ComponentsText{}.Current());
        EXPECT_TRUE(Rib().ProfilCharge);
        EXPECT_NE(Drawing(), nullptr);
    }

    WindowWorld world;
};

} // namespace loftwing
