#include "programme/rib_file.h"

#include "base/file_name.h"
#include "base/text_encoding.h"
#include "base/version.h"
#include "base/whole_file.h"
#include "features/inserted_text.h"
#include "output/screen_plot.h"
#include "persist/LireEcrire.h"
#include "programme/dossiers.h"

#include <algorithm>

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
        WriteWholeFile(demande.path, EcritComposants(programme.rib, programme.settings.Unite),
                       Flush::yes);
    }
    return name;
}

/// What is looked for, and where it was.
std::string TexteIntrouvable(const Programme &programme, const DemandeComposants &demande) {
    const Messages &messages = programme.messages;
    const RibModel &rib = programme.rib;
    std::string text = messages.Text({"fileopen", "3"}) + " " + rib.NomProfil + "." +
                       rib.ExtProfil + "\n " + messages.Text({"fileopen", "4"}) + " \n";
    std::string between;
    for (const std::string &folder : demande.dossiers) {
        text += between + folder;
        between = " " + messages.Text({"fileopen", "5"}) + " ";
    }
    if (demande.puis_demande) {
        text += "\n " + messages.Text({"fileopen", "180"}) + " \n" + DossierDe(demande.path);
    }
    return text;
}

/// Asks the user where the airfoil is; empty when the user doesn't say.
std::string Localise(const Programme &programme, const DemandeComposants &demande) {
    const Messages &messages = programme.messages;
    if (programme.platform.Show({TexteIntrouvable(programme, demande),
                                 messages.Text({"fileopen", "2"}), BoxIcon::information,
                                 BoxButtons::locate_cancel, BoxAnswer::locate}) !=
        BoxAnswer::locate) {
        return {};
    }
    FileQuestion question;
    question.title = messages.Text({"fileopen", "181"}) + " " + programme.rib.NomProfil + "." +
                     programme.rib.ExtProfil;
    question.folder = DossierDe(demande.path);
    question.filter_text = messages.Text({"frmopen", "4"}) + " (*.dat *.cor)";
    question.more_filters = {messages.Text({"fileopen", "182"}) + " (*)"};
    return programme.platform.ChooseOpenFile(question);
}

/// Where the airfoil `nom` is: in the folders, beside the file, or where the user says. Empty when
/// it is nowhere, which a box told.
std::string CheminDuProfil(const Programme &programme, const DemandeComposants &demande,
                           const std::string &nom) {
    std::string path =
        ChercheProfil(demande.dossiers, nom, [&programme] { programme.platform.ProcessEvents(); });
    if (!path.empty()) {
        return path;
    }
    if (!demande.puis_demande) {
        programme.messages.Inform(TexteIntrouvable(programme, demande),
                                  programme.Text({"fileopen", "2"}));
        return {};
    }
    path = ProfilACote(demande.path, nom);
    return path.empty() ? Localise(programme, demande) : path;
}

void NoteFichier(RibModel &rib, const std::string &path) {
    rib.NomFichierRib = NameIn(path);
    rib.FichierRibOuvert = true;
    rib.Modifie = false;
    rib.CheminRib = CheminEntier(path);
}

void NoteOuvert(RibModel &rib, const std::string &path, const Messages &messages) {
    NoteFichier(rib, path);
    rib.ProfilCharge = true;
    rib.texte.TexteUtilisateur = !EstEtiquette(rib, messages);
}

/// The airfoil that the user located may have another name than the file says: the rib is then one
/// of that airfoil, which isn't saved yet, and its label says so.
void PrendNom(RibModel &rib, const Messages &messages) {
    NommeProfil(rib, rib.CheminProfil);
    rib.Modifie = true;
    if (!rib.texte.InsTexte.empty()) {
        RegenereTexte(rib, messages);
    }
}

/// Reads the airfoil that was found; `name` is the one that the file has for it.
OuvertureComposants LitProfil(Programme &programme, const DemandeComposants &demande,
                              const std::string &name) {
    RibModel &rib = programme.rib;
    rib.SansApercu = true;
    const ResultatLecture read =
        ReadAirfoil(rib, programme.messages, programme.Text({"frmopen", "1"}), demande.lecture);
    rib.SansApercu = false;
    if (read.issue == Lecture::echec) {
        return OuvertureComposants::echec_lecture;
    }
    if (read.issue == Lecture::refuse) {
        return OuvertureComposants::sans_profil;
    }
    NoteOuvert(rib, demande.path, programme.messages);
    if (NameIn(rib.CheminProfil) != name) {
        PrendNom(rib, programme.messages);
    }
    return OuvertureComposants::ouverte;
}

} // namespace

bool EstComposants(const std::string &path) {
    return LowerAscii(ExtensionOf(path)) == ".lfw";
}

OuvertureComposants OuvreComposants(Programme &programme, const DemandeComposants &demande) {
    std::string name;
    try {
        name = LitFichier(programme, demande);
        programme.rib.CheminProfil = CheminDuProfil(programme, demande, name);
        if (programme.rib.CheminProfil.empty()) {
            Rapporte(programme, Failure{0, {}});
            return OuvertureComposants::echec;
        }
    } catch (const Failure &failure) {
        Rapporte(programme, failure);
        return OuvertureComposants::echec;
    }
    return LitProfil(programme, demande, name);
}

bool OuvreSansProfil(Programme &programme, const std::string &path) {
    try {
        LitFichier(programme, {path, {}, false});
    } catch (const Failure &failure) {
        Rapporte(programme, failure);
        return false;
    }
    NoteFichier(programme.rib, path);
    return true;
}

std::string TitreComposants(const Programme &programme, const std::string &ecart) {
    const Messages &messages = programme.messages;
    return std::string(kTitre) + " " + messages.Text({"MainTolbar", "25"}) + " : " +
           programme.rib.NomFichierRib + ecart + messages.Text({"MainTolbar", "11"}) + " : " +
           programme.rib.NomProfil;
}

std::string TitreDuRib(const Programme &programme) {
    return programme.rib.CheminRib.empty() ? TitreFenetre(programme.rib, programme.messages)
                                           : TitreComposants(programme, " ");
}

} // namespace loftwing
