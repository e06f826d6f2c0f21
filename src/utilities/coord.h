/// Coordinates typed by hand: lines of text that become an airfoil file.
#pragma once

#include "core/messages.h"

#include <cstdint>
#include <string>
#include <vector>

namespace loftwing {

/// A file of coordinates: nothing of it is read as a number.
struct FichierCoord {
    std::string titre;
    std::vector<std::string> lignes;
};

/// The line of a point, both values divided by the number of `diviseur`. A negative y stands one
/// blank closer, so that columns stay in line with its sign. Failure 11 for a divisor of 0, 6 for a
/// value beyond 64 bits.
std::string LigneDePoint(const std::string &x, const std::string &y, const std::string &diviseur);

/// A divisor as its box shows it, with blanks between thousands; empty for 0. Failure 6 for a
/// number beyond 64 bits.
std::string TexteDiviseur(const std::string &typed);

/// Whether a divisor reads as 0.
bool EstNul(const std::string &diviseur);

/// A count of lines. Failure 6 above 32767.
std::int16_t CompteLignes(std::size_t count);

/// The name that a file is saved under unless the user says otherwise.
std::string NomPropose(const std::string &nom);
/// The name of a file without its folder and its extension.
std::string NomDuFichier(const std::string &path);

/// The questions for a line to insert and for the new text of `ligne`.
std::string QuestionInsertion(const Messages &messages);
std::string QuestionLigne(const Messages &messages, const std::string &ligne);

/// The file at `path`; its first line is the title, whatever it holds. Failures of ReadWholeFile,
/// 13 for a file that is no text, 62 for an empty one, 6 for one of more than 32767 lines below the
/// title.
FichierCoord LitCoord(const std::string &path);

/// Writes title and lines as they stand, in UTF-8 and every line ended by CR LF, so that they
/// outlast a power cut. A file that was there stays when that fails; failures as WriteWholeFile.
void EcritCoord(const std::string &path, const FichierCoord &fichier);

} // namespace loftwing
