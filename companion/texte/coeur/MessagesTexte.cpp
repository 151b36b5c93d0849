// SPDX-License-Identifier: MPL-2.0
#include "MessagesTexte.h"

#include <system_error>

namespace compagnon {

namespace {

std::string Systeme(int erreur) {
    return std::generic_category().message(erreur);
}

} // namespace

std::string DisProbleme(LectureFichier const& lecture, std::string_view chemin) {
    std::string const position = std::to_string(lecture.position);
    switch (lecture.probleme) {
    case ProblemeFichier::Aucun:
        break;
    case ProblemeFichier::Introuvable:
        return Dis({"{1} : fichier introuvable", "{1}: no such file"}, {chemin});
    case ProblemeFichier::Illisible:
        return Dis({"{1} : lecture impossible ({2})", "{1}: cannot be read ({2})"},
                   {chemin, Systeme(lecture.erreurSysteme)});
    case ProblemeFichier::Dossier:
        return Dis({"{1} : c'est un dossier", "{1}: is a folder"}, {chemin});
    case ProblemeFichier::PasUnFichier:
        return Dis({"{1} : ce n'est pas un fichier ordinaire (tube, périphérique…)",
                    "{1}: is not a regular file (a pipe, a device…)"},
                   {chemin});
    case ProblemeFichier::TropGrand:
        return Dis({"{1} : trop grand, plus de {2} Mio", "{1}: too large, more than {2} MiB"},
                   {chemin, std::to_string(kTailleFichierMax >> 20)});
    case ProblemeFichier::TropDeLignes:
        return Dis({"{1} : trop de lignes, plus de {2}", "{1}: too many lines, more than {2}"},
                   {chemin, std::to_string(kParagraphesMax)});
    case ProblemeFichier::Binaire:
        return Dis({"{1} : ce n'est pas du texte (octet nul à la position {2})",
                    "{1}: is not text (NUL byte at offset {2})"},
                   {chemin, position});
    case ProblemeFichier::PasUtf8:
        return Dis({"{1} : ce n'est pas de l'UTF-8 (octet {2})", "{1}: is not UTF-8 (byte {2})"},
                   {chemin, position});
    }
    return {};
}

std::string DisEcriture(Ecriture const& ecriture, std::string_view chemin) {
    std::string const raison = Systeme(ecriture.erreurSysteme);
    switch (ecriture.issue) {
    case IssueEcriture::Faite:
        break;
    case IssueEcriture::FaiteParDessus:
        return Dis({"{1} : changé par un autre pendant l'enregistrement ; sa version est dans {2}",
                    "{1}: changed by another while it was saved; their version is in {2}"},
                   {chemin, ecriture.ailleurs});
    case IssueEcriture::Conflit:
        return Dis({"{1} : changé par un autre, laissé tel quel ; le texte corrigé est dans {2}",
                    "{1}: changed by another, left as it is; the corrected text is in {2}"},
                   {chemin, ecriture.ailleurs});
    case IssueEcriture::Echec:
        return Dis({"{1} : enregistrement impossible ({2}) ; le texte corrigé est dans {3}",
                    "{1}: cannot be saved ({2}); the corrected text is in {3}"},
                   {chemin, raison, ecriture.ailleurs});
    case IssueEcriture::Perdue:
        return Dis({"{1} : enregistrement impossible, même ailleurs ({2}) ; l'original est intact",
                    "{1}: cannot be saved, nor anywhere else ({2}); the original is untouched"},
                   {chemin, raison});
    }
    return {};
}

} // namespace compagnon
