// A panel file between two ribs that the bytes behind the last NUL choose: refused in words, or a
// wing whose plan has finite coordinates only and whose list of parts is a table of full rows.

#include "base/whole_file.h"
#include "fuzz_world.h"
#include "programme/liste_pieces.h"
#include "programme/panel_typed.h"
#include "programme/plan_aile.h"
#include "programme/wing_steps.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace loftwing {
namespace {

constexpr std::size_t kFewRibs = 4; // what holds for a few holds for many, and each takes its time

bool OfFewRibs(const std::string &path) {
    try {
        const FichierPanneau panel = LitPanneau(path);
        const double count = LeadingNumber(panel.nombre);
        return count <= static_cast<double>(kFewRibs) && panel.ecarts.size() <= kFewRibs + 1;
    } catch (const Failure &) {
        return false;
    }
}

/// An end as it would be opened.
std::optional<PartiesRib> End(bool inches, Choices &choices) {
    FuzzWorld world(inches);
    if (!world.TakeComponents(ChosenRib(choices).Current()) || !world.TakeAirfoil(UsualAirfoil())) {
        return std::nullopt;
    }
    return world.programme.rib.Partie<PartiesRib>();
}

void CheckPlan(const DessinPlan &plan) {
    for (const TraitPlan &line : plan.traits) {
        Require(std::all_of(line.points.begin(), line.points.end(),
                            [](const PointMm &point) {
                                return std::isfinite(point.x) && std::isfinite(point.y);
                            }),
                "plan of numbers");
    }
    for (const TextePlan &text : plan.textes) {
        Require(std::isfinite(text.place.x) && std::isfinite(text.place.y), "text in its place");
    }
    EtenduePlan(plan);
}

void CheckList(const std::vector<TableauPieces> &tables) {
    for (const TableauPieces &table : tables) {
        Require(table.nombre.size() == table.colonnes.size(), "kind of every column");
        Require(table.sommes <= table.rangees.size(), "sums among the rows");
        for (const std::vector<std::string> &row : table.rangees) {
            Require(row.size() == table.colonnes.size(), "full row");
        }
    }
    const std::string csv = ListeEnCsv(tables);
    Require(csv.empty() || csv.ends_with("\r\n"), "whole lines");
    Require(csv.find("nan") == std::string::npos && csv.find("inf") == std::string::npos,
            "list of numbers");
    ListeEnTexte("title", tables);
}

void Make(std::string_view bytes) {
    auto [file, choices] = Divide(bytes);
    const std::string path = ScratchFolder() + "panel.lfp";
    WriteWholeFile(path, file);
    if (!OfFewRibs(path)) {
        return;
    }
    const bool inches = choices.Yes();
    const bool alike = choices.Yes(); // ends that agree make a panel, others a refusal
    const Choices root = choices;
    Choices first = root;
    Choices second = alike ? root : choices;
    if (!alike) {
        ChosenRib(second); // the tip's values stand behind the root's
    }
    FuzzWorld world(inches);
    Programme &programme = world.programme;
    const std::array<std::optional<PartiesRib>, 2> ends = {End(inches, first), End(inches, second)};
    std::size_t asked = 0;
    const AileFaite made = FaitAile(programme, {path}, std::nullopt,
                                    [&](const std::string &) { return ends[asked++ % 2]; });
    if (!made.refus.empty()) {
        Require(!made.refus.front().empty(), "refusal in words");
        return;
    }
    const std::string &Unite = programme.settings.Unite;
    for (const DessinPlan &plan : DessinsDeLAile(made.aile, true, programme.messages, Unite)) {
        CheckPlan(plan);
    }
    CheckList(ListeDesPieces(made.aile, {}, programme.messages, Unite));
}

void MakeOrFail(std::string_view bytes) {
    try {
        Make(bytes);
    } catch (const Failure &failure) {
        Require(failure.number != 0, "failure with a number");
    }
}

} // namespace
} // namespace loftwing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    loftwing::MakeOrFail(loftwing::BytesOf(data, size));
    return 0;
}
