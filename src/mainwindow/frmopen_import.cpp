// The way from a file that the airfoil picker refuses to its import.

#include "mainwindow/frmimport.h"
#include "mainwindow/frmopen.h"

namespace loftwing {

void frmopen::ProposeImport(const ResultatLecture &lecture) {
    cmdimporter.setVisible(lecture.issue != Lecture::lu && EssaieImport(Choisi()).has_value());
}

void frmopen::cmdimporter_Click() {
    const std::string path = Choisi();
    const auto airfoil = LitImport(programme_.messages, path);
    if (!airfoil) {
        return; // the file has changed meanwhile
    }
    if (const auto wanted = MontreImport(programme_, this, path, *airfoil)) {
        PrendImport(rib_, *wanted);
        Accepte();
    }
}

} // namespace loftwing
