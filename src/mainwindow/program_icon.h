/// The program's own picture, a rib with its spar notches: on its windows, in the desktop's menu
/// and wherever else an icon stands for it.
#pragma once

#include <QIcon>
#include <QImage>

#include <string>

namespace loftwing {

/// The sizes that desktops ask for.
inline constexpr int kIconSizes[] = {16, 22, 24, 32, 48, 64, 128, 256};

QIcon ProgramIcon();
/// The picture `size` pixels wide and high, on nothing.
QImage ProgramImage(int size);
/// The same picture as the text of an SVG file.
std::string ProgramSvg();

} // namespace loftwing
