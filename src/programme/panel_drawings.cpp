#include "programme/panel_drawings.h"

#include "features/talon.h"

namespace loftwing {

DessinsPanneau::DessinsPanneau(Programme &programme, const PanneauFait &fait, int premier,
                               const ReglagePage &page, const std::string &nom)
    : pile_(Demande(programme, fait, premier, page, nom)) {}

DemandePile DessinsPanneau::Demande(Programme &programme, const PanneauFait &fait, int premier,
                                    const ReglagePage &page, const std::string &nom) {
    DemandePile demand{{},           programme.settings, programme.messages, nom,
                       DateDuJour(), page.regle,         page.noms};
    for (const NervureFaite &nervure : fait.nervures) {
        ribs_.push_back(std::make_unique<RibModel>());
        RibModel &rib = *ribs_.back();
        rib.Partie<PartiesRib>() = nervure.rib;
        PrendMarges(rib, programme.SaisieEnCours());
        demand.nervures.push_back(
            {rib, EtiquetteNumerotee(rib, premier++, programme.settings.Unite)});
    }
    return demand;
}

} // namespace loftwing
