#include "core/airfoil_reader.h"

#include "base/file_name.h"
#include "base/number_text.h"
#include "base/text_encoding.h"
#include "base/whole_file.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <string_view>

namespace loftwing {

namespace {

constexpr std::size_t kDebutDeLigne = 40; // characters of a line that a failure shows

/// Words of a refusal: for the picker's label and for the box.
struct RefusLecture {
    std::string etiquette;
    std::string boite;
    BoxIcon icone = BoxIcon::information;
};

/// The whole file with a line feed behind each line. Made in place: a list of lines would take
/// gigabytes for a large file of line ends.
std::string TamponDeLignes(const std::string &octets) {
    std::string tampon = AnyToUtf8(octets);
    if (!tampon.empty() && !tampon.ends_with('\n')) {
        tampon += '\n';
    }
    std::size_t kept = 0;
    for (std::size_t i = 0; i < tampon.size(); ++i) {
        const bool before_end = tampon[i] == '\r' && tampon[i + 1] == '\n';
        if (!before_end) {
            tampon[kept++] = tampon[i];
        }
    }
    tampon.resize(kept);
    return tampon;
}

/// Tabs become blanks, from the first one on as long as it isn't the file's very first character.
void RemplaceTabulations(std::string &tampon) {
    if (tampon.starts_with('\t')) {
        return;
    }
    std::replace(tampon.begin(), tampon.end(), '\t', ' ');
}

bool HasLetter(std::string_view text) {
    return std::any_of(text.begin(), text.end(),
                       [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); });
}

/// The y of a data line: the number behind its first blank. It ends at the next blank behind a
/// digit, so that a further column is not taken for more of its digits; a sign may stand apart.
double Ordonnee(std::string_view line, std::size_t blank) {
    const std::string_view text = line.substr(blank);
    const std::size_t digit = std::min(text.find_first_of("0123456789"), text.size());
    return LeadingNumber(text.substr(0, text.find(' ', digit)));
}

class LecteurProfil {
  public:
    LecteurProfil(RibModel &rib, const Messages &messages) : rib_(rib), messages_(messages) {}

    /// Nothing when the airfoil was read.
    std::optional<RefusLecture> Lit(const std::string &octets);

  private:
    RibModel &rib_;
    const Messages &messages_;
    std::string tampon_;
    std::size_t debut_ = 0; // what lies before is read

    std::string_view Reste() const { return std::string_view(tampon_).substr(debut_); }
    void LitEntete();
    std::optional<RefusLecture> LitPoints();
    std::optional<RefusLecture> LitPoint(std::string_view line, bool &last);

    std::string Point(long k) const;
    std::string PointEtX(long k) const;
    void Situe(Failure &failure, std::string_view line) const;
    RefusLecture SansEntete() const;
    RefusLecture PremierX() const;
    RefusLecture PointsEgaux(long k) const;
    RefusLecture DernierX(long k) const;
};

RefusLecture LecteurProfil::SansEntete() const {
    const std::string text = messages_.Text({"frmopen", "11"}) + "\n" + Cloture(messages_);
    return {text, text};
}

std::string LecteurProfil::Point(long k) const {
    return messages_.Text({"frmopen", "190"}) + " " + std::to_string(k);
}

/// The line of a refusal that names a point and its x; none where no point is at fault, as in a
/// list without any or with the first one alone.
std::string LecteurProfil::PointEtX(long k) const {
    return k < 1 || rib_.ProfilX(k) == 1.0
               ? ""
               : Point(k) + ", x = " + NumberText(rib_.ProfilX(k)) + "\n";
}

RefusLecture LecteurProfil::PremierX() const {
    const std::string end = "\n" + PointEtX(1) + Cloture(messages_);
    return {messages_.Text({"frmopen", "12"}) + end,
            messages_.Text({"frmopen", "13"}) + "\n" + messages_.Text({"frmopen", "14"}) + end};
}

RefusLecture LecteurProfil::PointsEgaux(long k) const {
    const std::string text = messages_.Text({"frmopen", "16"}) + "= " +
                             NumberText(rib_.ProfilX(k)) + messages_.Text({"frmopen", "17"}) +
                             "= " + NumberText(rib_.ProfilX(k - 1)) + "\n" +
                             messages_.Text({"frmopen", "191"}) + " " + std::to_string(k - 1) +
                             " " + messages_.Text({"frmopen", "192"}) + " " + std::to_string(k) +
                             ", x = " + NumberText(rib_.ProfilX(k)) +
                             ", y = " + NumberText(rib_.ProfilY(k)) + "\n" + Cloture(messages_);
    return {text, text, BoxIcon::none};
}

RefusLecture LecteurProfil::DernierX(long k) const {
    const std::string text =
        messages_.Text({"frmopen", "18"}) + "\n" + PointEtX(k) + Cloture(messages_);
    return {text, messages_.Text({"frmopen", "19"}) + "\n" + text};
}

void LecteurProfil::LitEntete() {
    const std::size_t end = std::min(tampon_.find('\n'), tampon_.size());
    const std::string_view line = std::string_view(tampon_).substr(0, end);
    rib_.EnteteProfil = Trim(line);
    if (HasLetter(line)) {
        debut_ = std::min(end + 1, tampon_.size());
    }
}

/// Says of a failure at which point of which file it was, with the beginning of its line.
void LecteurProfil::Situe(Failure &failure, std::string_view line) const {
    failure.Precise(NameIn(rib_.CheminProfil) + ", " + Point(rib_.ProfilX.Count()) +
                    (line.empty() ? "" : ", ") + FirstCharacters(std::string(line), kDebutDeLigne));
}

std::optional<RefusLecture> LecteurProfil::LitPoint(std::string_view line, bool &last) {
    const long k = rib_.ProfilX.Count();
    const std::size_t blank = line.find(' ');
    rib_.ProfilX(k) =
        blank == std::string_view::npos ? 0.0 : LeadingNumber(line.substr(0, blank + 1));
    if (k == 1 && rib_.ProfilX(1) != 1.0) {
        return PremierX();
    }
    if (blank == std::string_view::npos) {
        throw MakeFailure(kInvalidProcedureCall);
    }
    rib_.ProfilY(k) = Ordonnee(line, blank);
    last = k > 1 && rib_.ProfilX(k) >= 1.0;
    if (!last && k > 1 && rib_.ProfilX(k) == rib_.ProfilX(k - 1) &&
        rib_.ProfilY(k) == rib_.ProfilY(k - 1)) {
        return PointsEgaux(k);
    }
    return std::nullopt;
}

std::optional<RefusLecture> LecteurProfil::LitPoints() {
    std::int16_t k = 1;
    bool last = false;
    rib_.ProfilX.Append(0.0);
    rib_.ProfilY.Append(0.0);
    while (!Reste().empty() && Reste() != "\n") {
        const std::size_t end = Reste().find('\n');
        const std::string_view line = Trim(Reste().substr(0, end));
        try {
            if (auto refus = LitPoint(line, last)) {
                return refus;
            }
        } catch (Failure &failure) {
            Situe(failure, line);
            throw;
        }
        if (last) {
            break;
        }
        debut_ += end + 1;
        Increment(k);
        rib_.ProfilX.Append(0.0);
        rib_.ProfilY.Append(0.0);
    }
    if (rib_.ProfilX(k) != 1.0) {
        return DernierX(last ? k : k - 1);
    }
    rib_.NbPoints = k;
    return std::nullopt;
}

std::optional<RefusLecture> LecteurProfil::Lit(const std::string &octets) {
    rib_.NbPoints = 0;
    rib_.ProfilX.Clear();
    rib_.ProfilY.Clear();
    tampon_ = TamponDeLignes(octets);
    RemplaceTabulations(tampon_);
    rib_.texte.TexteUtilisateur = false;
    LitEntete();
    if (rib_.EnteteProfil.empty()) {
        return SansEntete();
    }
    return LitPoints();
}

} // namespace

std::string Cloture(const Messages &messages) {
    return messages.Text({"TextButton", "3"}) + "/" + messages.Text({"frmopen", "1"});
}

std::string RefusTropCourt(const Messages &messages) {
    return messages.Text({"frmopen", "23"}) + "\n" + Cloture(messages);
}

namespace {

ResultatLecture Essaie(RibModel &rib, const Messages &messages,
                       const std::function<std::string()> &octets) {
    try {
        LecteurProfil lecteur(rib, messages);
        const std::optional<RefusLecture> refus = lecteur.Lit(octets());
        if (!refus) {
            return {};
        }
        rib.NbPoints = 0;
        rib.SansApercu = false;
        return {Lecture::refuse, refus->etiquette, refus->boite, refus->icone};
    } catch (const Failure &failure) {
        rib.NbPoints = 0;
        return {Lecture::echec, {}, messages.TexteEchec(failure)};
    }
}

} // namespace

ResultatLecture EssaieLecture(RibModel &rib, const Messages &messages) {
    return Essaie(rib, messages, [&rib] { return ReadWholeFile(rib.CheminProfil); });
}

ResultatLecture EssaieLecture(RibModel &rib, const std::string &octets, const Messages &messages) {
    return Essaie(rib, messages, [&octets] { return octets; });
}

void AnnonceLecture(const ResultatLecture &read, const Messages &messages,
                    const std::string &titre) {
    if (read.issue != Lecture::lu) {
        messages.Tell(read.boite, read.issue == Lecture::refuse ? titre : " Open/FichierLecture",
                      read.icone);
    }
}

ResultatLecture FichierLecture(RibModel &rib, const Messages &messages, const std::string &titre) {
    ResultatLecture read = EssaieLecture(rib, messages);
    AnnonceLecture(read, messages, titre);
    return read;
}

} // namespace loftwing
