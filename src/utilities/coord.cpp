#include "utilities/coord.h"

#include "base/failure.h"
#include "base/file_name.h"
#include "base/number_text.h"
#include "base/text_encoding.h"
#include "base/whole_file.h"
#include "utilities/tool_files.h"

#include <algorithm>
#include <limits>

namespace loftwing {

namespace {

constexpr std::string_view kPictureCoordonnee = "0.000000";
constexpr std::string_view kPictureDiviseur = "# ### ###";
constexpr std::string_view kPositif = "    ";
constexpr std::string_view kNegatif = "   ";
constexpr auto kLignesMaxi = static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max());

double Partage(const std::string &text, const std::string &diviseur) {
    return Quotient(LeadingNumber(text), LeadingNumber(diviseur));
}

} // namespace

std::string LigneDePoint(const std::string &x, const std::string &y, const std::string &diviseur) {
    const double X = Partage(x, diviseur);
    const double Y = Partage(y, diviseur);
    const std::string_view gap = Y < 0.0 ? kNegatif : kPositif;
    return Format(X, kPictureCoordonnee) + std::string(gap) + Format(Y, kPictureCoordonnee);
}

std::string TexteDiviseur(const std::string &typed) {
    // Without the blanks that the picture sets in front of a short number: they would grow into the
    // box while the user types.
    return std::string(TrimLeft(Format(LeadingNumber(typed), kPictureDiviseur)));
}

bool EstNul(const std::string &diviseur) {
    return LeadingNumber(diviseur) == 0.0;
}

std::int16_t CompteLignes(std::size_t count) {
    return ToInt16(static_cast<double>(count));
}

std::string NomPropose(const std::string &nom) {
    return AsFileName(nom + ".dat");
}

std::string NomDuFichier(const std::string &path) {
    return StemOf(path);
}

std::string QuestionInsertion(const Messages &messages) {
    return messages.Text({"TextButton", "19"}) + "\n" + messages.Text({"Frmcoord", "6"}) + "\n" +
           messages.Text({"Frmcoord", "7"}) + "\n" + messages.Text({"Frmcoord", "8"}) + "\n" +
           messages.Text({"Frmcoord", "9"});
}

std::string QuestionLigne(const Messages &messages, const std::string &ligne) {
    return messages.Text({"Frmcoord", "15"}) + ligne + " ?";
}

FichierCoord LitCoord(const std::string &path) {
    const std::string bytes = AnyToUtf8(ReadWholeFile(path));
    if (bytes.find('\0') != std::string::npos) {
        throw MakeFailure(kTypeMismatch, path);
    }
    // Counted before they are taken apart: a large file may be nothing but line ends.
    const auto ends = static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\n'));
    if (ends > kLignesMaxi + 1) {
        throw MakeFailure(kOverflow, path);
    }
    std::vector<std::string> lines = SplitLines(bytes);
    if (lines.empty()) {
        throw MakeFailure(kInputPastEnd, path);
    }
    FichierCoord fichier{lines.front(), {lines.begin() + 1, lines.end()}};
    CompteLignes(fichier.lignes.size());
    return fichier;
}

void EcritCoord(const std::string &path, const FichierCoord &fichier) {
    std::vector<std::string> lines = {fichier.titre};
    lines.insert(lines.end(), fichier.lignes.begin(), fichier.lignes.end());
    WriteWholeFile(path, TexteDeLignes(lines), Flush::yes);
}

} // namespace loftwing
