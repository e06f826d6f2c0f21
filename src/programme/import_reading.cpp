#include "programme/import_reading.h"

#include "base/number_text.h"
#include "base/whole_file.h"
#include "programme/import_words.h"

namespace loftwing {

namespace {

ResultatLecture Import(RibModel &rib, const Messages &messages) {
    ResultatLecture read;
    rib.NbPoints = 0;
    try {
        TakeImport(rib, ImportFile(rib.CheminProfil));
    } catch (const ImportRefusal &refusal) {
        rib.SansApercu = false;
        read.issue = Lecture::refuse;
        read.etiquette = ImportRefusalText(messages, refusal);
        read.boite = rib.CheminProfil + "\n" + read.etiquette;
    } catch (const Failure &failure) {
        rib.SansApercu = false;
        read.issue = Lecture::refuse;
        read.etiquette = messages.Description(failure);
        read.boite = rib.CheminProfil + "\n" + read.etiquette;
    }
    return read;
}

} // namespace

ImportedAirfoil ImportFile(const std::string &path, const ImportWishes &wishes) {
    return ImportAirfoil(ReadWholeFile(path), wishes);
}

void TakeImport(RibModel &rib, const ImportedAirfoil &airfoil) {
    rib.Partie<PointsLus>() = {};
    for (const ImportPoint &point : airfoil.points) {
        rib.ProfilX.Append(point.at.x);
        rib.ProfilY.Append(point.at.y);
    }
    rib.NbPoints = ToInt16(static_cast<double>(airfoil.points.size()));
    rib.EnteteProfil = Trim(AirfoilTitle(airfoil, rib.NomProfil));
    rib.texte.TexteUtilisateur = false;
}

ResultatLecture ReadAirfoil(RibModel &rib, const Messages &messages, const std::string &titre,
                            ReadingWay way) {
    ResultatLecture read =
        way == ReadingWay::by_import ? Import(rib, messages) : EssaieLecture(rib, messages);
    AnnonceLecture(read, messages, titre);
    return read;
}

} // namespace loftwing
