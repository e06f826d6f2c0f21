// Writes the bundled airfoil library. After a change of the formulas or of the list:
//
//     cmake --build --preset default --target airfoil_generator
//     build/tools/airfoil_generator resources/airfoils

#include "naca_series.h"

#include <filesystem>
#include <fstream>
#include <iostream>

namespace {

bool WriteFile(const std::filesystem::path &path, const std::string &text) {
    std::ofstream file(path, std::ios::binary);
    file << text;
    file.close();
    return file.good();
}

} // namespace

int main(int argc, char *argv[]) {
    if (argc != 2) {
        std::cerr << "usage: airfoil_generator FOLDER\n";
        return 2;
    }
    for (const loftwing::naca::Section &section : loftwing::naca::kLibrary) {
        const auto path = std::filesystem::path(argv[1]) / loftwing::naca::FileName(section);
        if (!WriteFile(path, loftwing::naca::FileText(section))) {
            std::cerr << "cannot write " << path.string() << '\n';
            return 1;
        }
    }
    return 0;
}
