// Any bytes as a rib components file of either format: read or refused. What was read is written so
// that it reads back as it is, and drawn on an airfoil: the picture has finite coordinates only.

#include "fuzz_world.h"
#include "persist/LireEcrire.h"

namespace loftwing {
namespace {

struct Reading {
    RibModel rib;
    std::string name;
    FormatComposants format = FormatComposants::courant;
    bool read = false;
};

void Read(const std::string &bytes, const Saisie &saisie, Reading &reading) {
    try {
        reading.format = LitComposants(bytes, reading.rib, saisie, reading.name);
        reading.read = true;
    } catch (const Failure &failure) {
        Require(!saisie.messages.Description(failure).empty(), "failure with a description");
    }
}

/// What is written can be read. Spare lines and the heel's second height collapse to their numbers
/// at a reading, and a name shorter than its extension grows, so it takes some rounds until a file
/// stays as it is.
void CheckReadBack(const RibModel &rib, const Saisie &saisie) {
    constexpr int kRounds = 4;
    std::string bytes = EcritComposants(rib, saisie.Unite);
    std::string before;
    for (int round = 0; round < kRounds; ++round) {
        Reading again;
        Read(bytes, saisie, again);
        Require(again.read, "what was written can be read");
        Require(again.format == FormatComposants::courant, "current format when written");
        Require(again.rib.NbLongeron == rib.NbLongeron, "same spars");
        Require(again.rib.NbTrou == rib.NbTrou, "same holes");
        before = bytes;
        bytes = EcritComposants(again.rib, saisie.Unite);
    }
    Require(bytes == before, "same bytes when written again");
}

void Draw(FuzzWorld &world, const std::string &bytes) {
    world.TakeComponents(bytes);
    Require(world.TakeAirfoil(UsualAirfoil()), "airfoil that any rib can be made of");
    if (const auto drawing = world.Draw()) {
        Require(AllFinite(*drawing), "picture of numbers");
    }
}

void ReadAndWrite(const std::string &bytes, bool inches) {
    FuzzWorld world(inches);
    Reading reading;
    Read(bytes, world.programme.SaisieEnCours(), reading);
    if (reading.read) {
        Require(reading.rib.NbLongeron < kSlots, "spars within their slots");
        Require(reading.rib.NbTrou < kSlots, "holes within their slots");
        CheckReadBack(reading.rib, world.programme.SaisieEnCours());
        Draw(world, bytes);
    }
}

} // namespace
} // namespace loftwing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string bytes(loftwing::BytesOf(data, size));
    loftwing::ReadAndWrite(bytes, false);
    loftwing::ReadAndWrite(bytes, true);
    return 0;
}
