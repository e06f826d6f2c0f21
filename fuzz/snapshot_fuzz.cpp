// Any bytes as the recovery snapshot of a rib, and any as the content of one whose sum is right.
// What is taken for a snapshot is written as the same bytes, and its rib can be drawn or is
// refused: somebody's disk may have lied.

#include "core/contour.h"
#include "fuzz_world.h"
#include "persist/rib_snapshot.h"

namespace loftwing {
namespace {

/// The sum of a content, as a text of eight bytes.
std::string SumOf(std::string_view content) {
    std::uint64_t sum = 0xCBF29CE484222325U;
    for (const char byte : content) {
        sum ^= static_cast<unsigned char>(byte);
        sum *= 0x100000001B3U;
    }
    std::string text;
    for (int i = 0; i < 8; ++i) {
        text += static_cast<char>(sum >> (8 * i) & 0xFF);
    }
    return text;
}

void Use(const Instantane &snapshot) {
    FuzzWorld world;
    Programme &programme = world.programme;
    programme.settings.Unite = snapshot.Unite;
    programme.rib.Partie<PartiesRib>() = snapshot.parties;
    if (PrepareContour(programme.rib, programme.messages) == Preparation::impossible) {
        return;
    }
    if (const auto drawing = world.Draw()) {
        Require(AllFinite(*drawing), "picture of numbers");
    }
}

void Read(const std::string &bytes) {
    InstantanePlusRecent(bytes);
    const auto snapshot = LitInstantane(bytes);
    if (!snapshot) {
        return;
    }
    Require(EcritInstantane(snapshot->parties, snapshot->Unite) == bytes, "same bytes again");
    Use(*snapshot);
}

} // namespace
} // namespace loftwing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string bytes(loftwing::BytesOf(data, size));
    loftwing::Read(bytes);
    constexpr std::size_t kHead = 20 + 8; // kind with version, and sum
    const std::string content = bytes.size() > kHead ? bytes.substr(kHead) : std::string();
    loftwing::Read("Loftwing recovery 1\n" + loftwing::SumOf(content) + content);
    return 0;
}
