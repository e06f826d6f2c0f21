/// What the fuzz targets share: claims that must hold, values taken out of an input, and a rib in a
/// program of its own.
#pragma once

#include "output/recording.h"
#include "programme/console_platform.h"
#include "programme/programme.h"
#include "support/components_text.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace loftwing {

/// Ends the run where a claim doesn't hold.
void Require(bool holds, const char *what);

/// The bytes of an input.
inline std::string_view BytesOf(const std::uint8_t *data, std::size_t size) {
    return {reinterpret_cast<const char *>(data), size};
}

/// Values chosen by the bytes of an input, one byte each. Behind the last byte all are the first of
/// their kind.
class Choices {
  public:
    explicit Choices(std::string_view bytes) : rest_(bytes) {}

    unsigned Byte();
    /// 0 to `count` - 1; `count` is at most 256.
    int Below(int count) { return static_cast<int>(Byte()) % count; }
    bool Yes() { return Below(2) == 1; }
    bool Empty() const { return rest_.empty(); }
    /// A length, mostly one that a rib may have, as somebody types or spoils it.
    std::string Length();
    /// A place on the chord, which may be a percentage.
    std::string Place();
    std::string Figure(int count) { return std::to_string(Below(count)); }
    /// Any number in 64 bits, of eight bytes.
    double Number();

  private:
    std::string_view rest_;

    std::string Spoiled();
};

/// An input that is a file, and behind its last NUL the choices for what is done with it.
struct FileAndChoices {
    std::string_view file;
    Choices choices;
};
FileAndChoices Divide(std::string_view bytes);

/// A rib that carries what is chosen.
ComponentsText ChosenRib(Choices &choices);

/// A program without words, settings and anybody to ask. Boxes go nowhere.
class FuzzWorld {
  public:
    explicit FuzzWorld(bool inches = false, const std::string &settings = {});

    ConsolePlatform platform;
    Programme programme;

    /// Takes the values of a rib components file into the rib. False when they are refused.
    bool TakeComponents(const std::string &bytes);
    /// Reads an airfoil and prepares its contour. False when it is refused or has none.
    bool TakeAirfoil(const std::string &bytes);
    /// The picture of the rib from a primed plot, which `programme.plot` is left with. Nothing
    /// where the rib doesn't fit or the plot fails.
    std::unique_ptr<Recording> Draw();
};

/// The text of an airfoil that any rib can be made of: 2 % camber at 40 %, 12 % thick.
const std::string &UsualAirfoil();

/// A folder for the files of this process, ending in a separator.
const std::string &ScratchFolder();

bool AllFinite(const Recording &drawing);

} // namespace loftwing
