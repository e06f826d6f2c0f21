// Writes what an installation makes of the program's own tables and picture into a folder: manual
// page, completion of the shell and icons, those of Windows in one file.
//
//     install_files FOLDER

#include "app/man_page.h"
#include "app/shell_completion.h"
#include "base/failure.h"
#include "base/whole_file.h"
#include "icon_file.h"
#include "mainwindow/program_icon.h"

#include <QBuffer>

#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

void Write(const fs::path &file, const std::string &bytes) {
    fs::create_directories(file.parent_path());
    loftwing::WriteWholeFile(file.string(), bytes);
}

std::string Png(int size) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    loftwing::ProgramImage(size).save(&buffer, "PNG");
    return buffer.data().toStdString();
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 2) {
        std::cerr << "usage: install_files FOLDER\n";
        return 2;
    }
    const fs::path folder = argv[1];
    const fs::path icons = folder / "icons" / "hicolor";
    try {
        Write(folder / "loftwing.1", loftwing::ManPage());
        Write(folder / "loftwing.bash", loftwing::BashCompletion());
        Write(icons / "scalable" / "apps" / "loftwing.svg", loftwing::ProgramSvg());
        std::vector<QImage> pictures;
        for (const int size : loftwing::kIconSizes) {
            const std::string side = std::to_string(size);
            pictures.push_back(loftwing::ProgramImage(size));
            Write(icons / (side + "x" + side) / "apps" / "loftwing.png", Png(size));
        }
        Write(folder / "loftwing.ico", loftwing::IconFile(pictures));
    } catch (const loftwing::Failure &failure) {
        std::cerr << "install_files: " << failure.detail << " can't be written\n";
        return 1;
    }
    return 0;
}
