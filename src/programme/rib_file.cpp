#include "programme/rib_file.h"

#include "base/version.h"
#include "base/whole_file.h"
#include "core/airfoil_reader.h"
#include "features/inserted_text.h"
#include "persist/LireEcrire.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

namespace loftwing {

namespace {

void Rapporte(const Programme &programme, const Failure &failure) {
    const Messages &messages = programme.messages;
    messages.Report(failure, messages.Text({"Erreur", "1"}) + " LireEcrire/newLfw");
}

/// The values of the file; gives the name of its airfoil.
std::string LitFichier(Programme &programme, const DemandeComposants &demande) {
    std::string name;
    const FormatComposants format =
        LitComposants(ReadWholeFile(demande.path), programme.rib, programme.SaisieEnCours(), name);
    if (format == FormatComposants::ancien && demande.reecrit) {
        WriteWholeFile(demande.path, EcritComposants(programme.rib));
    }
    return name;
}

/// Two boxes: where was searched, and the report that every failure of an opening ends in.
void DitIntrouvable(const Programme &programme, const DemandeComposants &demande) {
    const Messages &messages = programme.messages;
    const RibModel &rib = programme.rib;
    std::string text = messages.Text({"fileopen", "3"}) + " " + rib.NomProfil + "." +
                       rib.ExtProfil + "\n " + messages.Text({"fileopen", "4"}) + " \n";
    std::string between;
    for (const std::string &folder : demande.dossiers) {
        text += between + folder;
        between = " " + messages.Text({"fileopen", "5"}) + " ";
    }
    messages.Inform(text, messages.Text({"fileopen", "2"}));
    Rapporte(programme, Failure{0, {}});
}

void NoteOuvert(RibModel &rib, const std::string &path, const Messages &messages) {
    rib.NomFichierRib = std::filesystem::path(path).filename().string();
    rib.FichierRibOuvert = true;
    rib.ProfilCharge = true;
    rib.Modifie = false;
    rib.texte.TexteUtilisateur = !EstEtiquette(rib, messages);
}

OuvertureComposants LitProfil(Programme &programme, const DemandeComposants &demande) {
    RibModel &rib = programme.rib;
    rib.SansApercu = true;
    const ResultatLecture read =
        FichierLecture(rib, programme.messages, programme.Text({"frmopen", "1"}));
    rib.SansApercu = false;
    if (read.issue == Lecture::echec) {
        return OuvertureComposants::echec_lecture;
    }
    if (read.issue == Lecture::refuse) {
        return OuvertureComposants::sans_profil;
    }
    NoteOuvert(rib, demande.path, programme.messages);
    return OuvertureComposants::ouverte;
}

} // namespace

bool EstComposants(const std::string &path) {
    std::string extension = std::filesystem::path(path).extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return extension == ".lfw";
}

OuvertureComposants OuvreComposants(Programme &programme, const DemandeComposants &demande) {
    try {
        const std::string name = LitFichier(programme, demande);
        programme.rib.CheminProfil = ChercheProfil(
            demande.dossiers, name, [&programme] { programme.platform.ProcessEvents(); });
        if (programme.rib.CheminProfil.empty()) {
            DitIntrouvable(programme, demande);
            return OuvertureComposants::echec;
        }
    } catch (const Failure &failure) {
        Rapporte(programme, failure);
        return OuvertureComposants::echec;
    }
    return LitProfil(programme, demande);
}

std::string TitreComposants(const Programme &programme, const std::string &ecart) {
    const Messages &messages = programme.messages;
    return std::string(kTitre) + " " + messages.Text({"MainTolbar", "25"}) + " : " +
           programme.rib.NomFichierRib + ecart + messages.Text({"MainTolbar", "11"}) + " : " +
           programme.rib.NomProfil;
}

} // namespace loftwing
