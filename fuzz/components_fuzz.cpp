// Any bytes as a rib components file: read or refused, and what was read is written so that it
// reads back as it is.

#include "persist/LireEcrire.h"
#include "programme/console_platform.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace loftwing {
namespace {

void Require(bool holds, const char *what) {
    if (!holds) {
        std::fprintf(stderr, "Not so: %s\n", what);
        std::abort();
    }
}

struct Reading {
    RibModel rib;
    std::string name;
    FormatComposants format = FormatComposants::courant;
    bool read = false;
};

void Read(const std::string &bytes, const std::string &Unite, Reading &reading) {
    static std::ostream nowhere(nullptr);
    static ConsolePlatform platform(nowhere, false);
    static const LngIni language;
    const Messages messages{platform, language};
    try {
        reading.format = LitComposants(bytes, reading.rib, Saisie{Unite, messages}, reading.name);
        reading.read = true;
    } catch (const Failure &failure) {
        Require(!messages.Description(failure).empty(), "failure with a description");
    }
}

/// What is written can be read. Spare lines and the heel's second height collapse to their numbers
/// at a reading, and a name shorter than its extension grows, so it takes some rounds until a file
/// stays as it is.
void CheckReadBack(const RibModel &rib, const std::string &Unite) {
    constexpr int kRounds = 4;
    std::string bytes = EcritComposants(rib, Unite);
    std::string before;
    for (int round = 0; round < kRounds; ++round) {
        Reading again;
        Read(bytes, Unite, again);
        Require(again.read, "what was written can be read");
        Require(again.format == FormatComposants::courant, "current format when written");
        Require(again.rib.NbLongeron == rib.NbLongeron, "same spars");
        Require(again.rib.NbTrou == rib.NbTrou, "same holes");
        before = bytes;
        bytes = EcritComposants(again.rib, Unite);
    }
    Require(bytes == before, "same bytes when written again");
}

void ReadAndWrite(const std::string &bytes, const std::string &Unite) {
    Reading reading;
    Read(bytes, Unite, reading);
    if (reading.read) {
        Require(reading.rib.NbLongeron < kSlots, "spars within their slots");
        Require(reading.rib.NbTrou < kSlots, "holes within their slots");
        CheckReadBack(reading.rib, Unite);
    }
}

} // namespace
} // namespace loftwing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char *>(data), size);
    loftwing::ReadAndWrite(bytes, std::string(loftwing::kUniteMm));
    loftwing::ReadAndWrite(bytes, std::string(loftwing::kUniteIn));
    return 0;
}
