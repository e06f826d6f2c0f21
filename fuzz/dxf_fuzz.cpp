// The two DXF forms of a rib that the bytes behind the last NUL choose, on the airfoil in front of
// it or the usual one. A file is pairs of a code and a value, every entity is complete, and its
// coordinates are those of the drawing within six decimals, in the drawing's order.

#include "base/text_encoding.h"
#include "fuzz_world.h"
#include "output/dxf.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

namespace loftwing {
namespace {

constexpr double kDecimals = 6e-7;

using Item = std::pair<int, std::string>;

std::vector<Item> ItemsOf(const std::string &bytes) {
    Require(bytes.ends_with("0\r\nEOF\r\n"), "file to its end");
    const std::vector<std::string> lines = SplitLines(bytes);
    Require(lines.size() % 2 == 0, "pairs of code and value");
    std::vector<Item> items;
    for (std::size_t i = 0; i < lines.size(); i += 2) {
        int code = -1;
        const std::string &text = lines[i];
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), code);
        Require(error == std::errc() && end == text.data() + text.size(), "code of digits");
        items.emplace_back(code, lines[i + 1]);
    }
    return items;
}

double NumberOf(const std::string &text) {
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    Require(error == std::errc() && end == text.data() + text.size(), "value that is a number");
    Require(std::isfinite(value), "finite value");
    return value;
}

/// A record of the section of entities: its kind and its values.
struct Entity {
    std::string kind;
    std::vector<Item> values;

    bool Has(int code) const {
        return std::any_of(values.begin(), values.end(),
                           [code](const Item &item) { return item.first == code; });
    }
    double Number(int code) const {
        const auto found = std::find_if(values.begin(), values.end(),
                                        [code](const Item &item) { return item.first == code; });
        Require(found != values.end(), "value that every such entity has");
        return NumberOf(found->second);
    }
    DxfPoint Place(int code) const { return {Number(code), Number(code + 10)}; }
};

std::vector<Entity> EntitiesOf(const std::string &bytes) {
    std::vector<Entity> entities;
    std::optional<std::string> section;
    bool named = true;
    bool inside = false;
    for (const auto &[code, value] : ItemsOf(bytes)) {
        if (code == 0 && value == "SECTION") {
            Require(!section, "section within no other one");
            named = false;
        } else if (!named) {
            Require(code == 2, "name of a section");
            section = value;
            named = true;
            inside = value == "ENTITIES";
        } else if (code == 0 && value == "ENDSEC") {
            Require(section.has_value(), "end of a section");
            section.reset();
            inside = false;
        } else if (inside && code == 0) {
            entities.push_back({value, {}});
        } else if (inside) {
            Require(!entities.empty(), "kind before its values");
            entities.back().values.emplace_back(code, value);
        }
    }
    Require(!section, "sections that end");
    return entities;
}

bool Same(const DxfPoint &one, const DxfPoint &other) {
    const auto near = [](double a, double b) {
        return std::abs(a - b) <= kDecimals + 1e-14 * std::abs(b);
    };
    return near(one.x, other.x) && near(one.y, other.y);
}

std::vector<DxfEntite> DrawnEntities(const DxfSource &source) {
    std::vector<DxfEntite> drawn;
    EntitesDxf(source, [&drawn](const DxfEntite &entity) { drawn.push_back(entity); });
    return drawn;
}

/// Walks the file's records along the drawing's entities.
class Follower {
  public:
    explicit Follower(const std::vector<Entity> &read) : read_(read) {}

    void operator()(const DxfPolyligne &line) {
        const Entity &head = Next("POLYLINE");
        Require(head.Number(66) == 1, "points that follow");
        Require((head.Number(70) == 1) == line.fermee, "closed as drawn");
        for (const DxfPoint &point : line.points) {
            Require(Same(Next("VERTEX").Place(10), point), "point of the drawing");
        }
        Next("SEQEND");
    }
    void operator()(const DxfCercle &circle) {
        const Entity &read = Next("CIRCLE");
        Require(Same(read.Place(10), circle.centre), "centre of the drawing");
        Require(Same({read.Number(40), 0}, {circle.rayon, 0}), "radius of the drawing");
    }
    bool AtEnd() const { return at_ == read_.size(); }

  private:
    const std::vector<Entity> &read_;
    std::size_t at_ = 0;

    const Entity &Next(const char *kind) {
        Require(at_ < read_.size() && read_[at_].kind == kind, kind);
        return read_[at_++];
    }
};

void CheckInterchange(const DxfSource &source) {
    std::string bytes;
    EcritDxf(source, bytes);
    const std::vector<Entity> read = EntitiesOf(bytes);
    Follower follower(read);
    for (const DxfEntite &entity : DrawnEntities(source)) {
        std::visit(follower, entity);
    }
    Require(follower.AtEnd(), "nothing that wasn't drawn");
}

/// Nothing but what every reader takes, each with all its values.
void CheckClean(const DxfSource &source) {
    const std::string bytes = EcritDxfSimple(source);
    for (const Entity &entity : EntitiesOf(bytes)) {
        Require(entity.Has(8), "layer");
        entity.Place(10);
        if (entity.kind == "LINE") {
            entity.Place(11);
        } else if (entity.kind == "CIRCLE") {
            Require(entity.Number(40) >= 0, "circle with a radius");
        } else if (entity.kind == "TEXT") {
            Require(entity.Number(40) >= 0 && entity.Has(1), "text with a height");
        } else {
            Require(false, "line, circle or text");
        }
    }
}

template <class Action>
void Try(const FuzzWorld &world, const Action &action) {
    try {
        action();
    } catch (const Failure &failure) {
        Require(!world.programme.messages.Description(failure).empty(), "failure that is told");
    }
}

void DrawAndWrite(std::string_view bytes) {
    auto [file, choices] = Divide(bytes);
    FuzzWorld world(choices.Yes());
    Programme &programme = world.programme;
    if (!world.TakeComponents(ChosenRib(choices).Current()) ||
        !world.TakeAirfoil(file.empty() ? UsualAirfoil() : std::string(file)) || !world.Draw()) {
        return;
    }
    DxfSource source{programme.rib, programme.plot, programme.settings.Unite};
    Try(world, [&] { CheckInterchange(source); });
    source.echelle_juste = true;
    Try(world, [&] { CheckClean(source); });
}

} // namespace
} // namespace loftwing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    loftwing::DrawAndWrite(loftwing::BytesOf(data, size));
    return 0;
}
