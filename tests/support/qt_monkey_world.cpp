#include "support/qt_monkey_world.h"

#include "lang/frmlang.h"
#include "platform/qt_form.h"
#include "programme/library_setup.h"
#include "programme/load.h"
#include "programme/startup.h"

namespace loftwing {

namespace {

Paths PathsIn(const TempFolder &folder) {
    const std::string resources = LOFTWING_SOURCE_DIR "/resources";
    return {resources, resources + "/lng", folder.Path("Loftwing.ini"), resources + "/help",
            folder.Path("recovery")};
}

} // namespace

MonkeyWorld::MonkeyWorld(Dice &dice, MonkeyFiles &files, MonkeyLog &log)
    : platform(dice, files, log), programme(PathsIn(files.Folder()), platform) {
    platform.SetHelp(
        [this](int context) {
            if (!help_) {
                help_ = std::make_unique<frmaide>(programme);
            }
            help_->Montre(context);
        },
        [this] { help_.reset(); });
}

MonkeyWorld::~MonkeyWorld() {
    help_.reset();
    splash_.reset(); // before the window, whose child it is
}

bool MonkeyWorld::Start(const std::string &file) {
    const auto main_window = [this]() -> frmmain & {
        if (!window) {
            window = std::make_unique<frmmain>(programme);
        }
        return *window;
    };
    ChargeLangue(programme, [&] {
        lang dialog(programme, main_window(), nullptr);
        ShowModal(dialog);
    });
    if (!ControleSeparateur(programme)) {
        return false;
    }
    platform.SetPointer(Pointer::busy);
    main_window().AppliqueLangue();
    main_window().show();
    splash_ = std::make_unique<frmSplash>(programme, window.get());
    splash_->show();
    if (programme.PremierDemarrage) {
        if (SansProfil(programme.settings.repertoires.RepProfil)) {
            installationProfils(programme);
        }
        FinPremierDemarrage(programme);
    }
    if (!window->OffreSecours()) {
        window->OuvreFichier(file);
    }
    return true;
}

void MonkeyWorld::Crash() {
    if (programme.rib.ProfilCharge && programme.rib.Modifie) {
        programme.secours.Ecrit(programme.rib, programme.settings.Unite);
    }
}

} // namespace loftwing
