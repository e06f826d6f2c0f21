#include "icon_file.h"

#include <QBuffer>

#include <cstdint>

namespace loftwing {

namespace {

constexpr int kLargest = 256;
constexpr std::uint32_t kBitsOfPixel = 32;

/// Whole numbers, the lowest byte first.
void Put16(std::string &bytes, std::uint32_t number) {
    bytes += static_cast<char>(number & 0xFFU);
    bytes += static_cast<char>(number >> 8U & 0xFFU);
}

void Put32(std::string &bytes, std::uint32_t number) {
    Put16(bytes, number & 0xFFFFU);
    Put16(bytes, number >> 16U);
}

std::string Png(const QImage &picture) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return buffer.data().toStdString();
}

/// Header, pixels from the lowest row up, and a mask of one bit a pixel that hides nothing: how
/// much of a pixel is seen stands in itself.
std::string Bitmap(const QImage &picture) {
    const QImage pixels = picture.convertToFormat(QImage::Format_ARGB32);
    const int side = pixels.width();
    const auto size = static_cast<std::uint32_t>(side);
    std::string bytes;
    Put32(bytes, 40); // bytes of this header
    Put32(bytes, size);
    Put32(bytes, 2 * size); // the mask counts
    Put16(bytes, 1);
    Put16(bytes, kBitsOfPixel);
    for (int unused = 0; unused < 6; ++unused) {
        Put32(bytes, 0);
    }
    for (int row = side - 1; row >= 0; --row) {
        for (int column = 0; column < side; ++column) {
            Put32(bytes, pixels.pixel(column, row));
        }
    }
    const std::size_t mask_row = static_cast<std::size_t>((side + 31) / 32) * 4;
    return bytes + std::string(mask_row * size, '\0');
}

} // namespace

std::string IconFile(const std::vector<QImage> &pictures) {
    constexpr std::uint32_t kHeader = 6;
    constexpr std::uint32_t kEntry = 16;
    std::string entries;
    std::string data;
    const auto count = static_cast<std::uint32_t>(pictures.size());
    for (const QImage &picture : pictures) {
        const std::string bytes = picture.width() == kLargest ? Png(picture) : Bitmap(picture);
        const char side = static_cast<char>(picture.width() % kLargest); // 0 means the largest
        entries += {side, side, '\0', '\0'};
        Put16(entries, 1);
        Put16(entries, kBitsOfPixel);
        Put32(entries, static_cast<std::uint32_t>(bytes.size()));
        Put32(entries, kHeader + kEntry * count + static_cast<std::uint32_t>(data.size()));
        data += bytes;
    }
    std::string file;
    Put16(file, 0);
    Put16(file, 1); // an icon, no pointer
    Put16(file, count);
    return file + entries + data;
}

} // namespace loftwing
