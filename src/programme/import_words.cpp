#include "programme/import_words.h"

#include "base/number_text.h"

#include <cmath>

namespace loftwing {

namespace {

void Say(std::string &story, const std::string &sentence) {
    story += (story.empty() ? "" : " ") + sentence;
}

std::string OrderText(const Messages &messages, FileOrder order) {
    switch (order) {
    case FileOrder::selig:
        return {};
    case FileOrder::reversed:
        return messages.Text({"Import", "1"});
    case FileOrder::lists:
        return messages.Text({"Import", "2"});
    case FileOrder::columns:
        return messages.Text({"Import", "3"});
    case FileOrder::rotated:
        return messages.Text({"Import", "4"});
    }
    return {};
}

std::string ReasonText(const Messages &messages, ImportReason reason) {
    switch (reason) {
    case ImportReason::too_few_points:
        return messages.Text({"Import", "21"});
    case ImportReason::too_many_points:
        return messages.Text({"Import", "28"});
    case ImportReason::one_surface:
        return messages.Text({"Import", "22"});
    case ImportReason::several_curves:
        return messages.Text({"Import", "23"});
    case ImportReason::noise:
        return messages.Text({"Import", "24"});
    case ImportReason::crossing:
        return messages.Text({"Import", "25"});
    case ImportReason::no_chord:
        return messages.Text({"Import", "26"});
    }
    return {};
}

/// What became of the points themselves, with the figures.
std::string PointsText(const Messages &messages, const ImportedAirfoil &airfoil) {
    const std::string within = " " + DeviationPercent(airfoil.after) + " ";
    if (airfoil.laid == 0) {
        return messages.Text({"Import", "10"}) + within + messages.Text({"Import", "11"});
    }
    std::string text = std::to_string(airfoil.laid) + " " + messages.Text({"Import", "12"});
    Say(text, airfoil.before
                  ? messages.Text({"Import", "13"}) + " " + DeviationPercent(*airfoil.before) +
                        " " + messages.Text({"Import", "15"})
                  : messages.Text({"Import", "14"}));
    Say(text, messages.Text({"Import", "16"}) + within + messages.Text({"Import", "17"}));
    if (airfoil.by_surface) {
        Say(text, messages.Text({"Import", "18"}));
    }
    return text;
}

} // namespace

std::string DeviationPercent(double deviation) {
    const double percent = 100 * deviation;
    const double scale = percent < 1 ? 1000 : 10;
    return NumberText(std::round(percent * scale) / scale) + " %";
}

std::string ImportStory(const Messages &messages, const ImportedAirfoil &airfoil) {
    std::string story;
    if (airfoil.order != FileOrder::selig) {
        Say(story, OrderText(messages, airfoil.order));
    }
    if (airfoil.turned != 0) {
        Say(story, messages.Text({"Import", "5"}) + " " +
                       NumberText(std::round(airfoil.turned * 100) / 100) + "\xC2\xB0.");
    }
    if (airfoil.scaled) {
        Say(story, messages.Text({"Import", "6"}));
    }
    if (airfoil.dropped > 0) {
        Say(story, messages.Text({"Import", "7"}) + " " + std::to_string(airfoil.dropped) + ".");
    }
    if (airfoil.added > 0) {
        Say(story, messages.Text({"Import", "8"}) + " " + std::to_string(airfoil.added) + ".");
    }
    Say(story, PointsText(messages, airfoil));
    return story;
}

std::string ImportRefusalText(const Messages &messages, const ImportRefusal &refusal) {
    std::string text = messages.Text({"Import", "20"}) + " " + ReasonText(messages, refusal.reason);
    if (refusal.line > 0) {
        text += " (" + messages.Text({"Import", "27"}) + " " + std::to_string(refusal.line) + ")";
    }
    return text + ".";
}

std::string DeviationWarning(const Messages &messages, double deviation) {
    if (deviation <= kImportTolerance) {
        return {};
    }
    return messages.Text({"Import", "30"}) + " " + DeviationPercent(deviation) + " " +
           messages.Text({"Import", "31"});
}

} // namespace loftwing
