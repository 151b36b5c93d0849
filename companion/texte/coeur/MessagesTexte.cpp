// SPDX-License-Identifier: MPL-2.0
#include "MessagesTexte.h"

#include <cstdlib>
#include <cstring>
#include <system_error>

namespace compagnon {

namespace {

bool LisLangue() {
    for (char const* const nom : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        char const* const valeur = std::getenv(nom);
        if (valeur && *valeur) {
            return std::strncmp(valeur, "fr", 2) == 0 &&
                   (valeur[2] == 0 || std::strchr("_.@", valeur[2]));
        }
    }
    return false;
}

std::string Systeme(int erreur) {
    return std::generic_category().message(erreur);
}

Bilingue RaisonDuRefus(Refus refus) {
    switch (refus) {
    case Refus::Aucun:
        break;
    case Refus::Inconnu:
        return {"cette zone ne vous a pas été donnée (SynchronisePositions d'abord)",
                "you were not given this zone (call SynchronisePositions first)"};
    case Refus::HorsLimites:
        return {"hors du texte, ou bornes inversées", "outside the text, or bounds inverted"};
    case Refus::CoupePaire:
        return {"une borne coupe un caractère en deux (paire de substitution)",
                "a bound stands in the middle of a character (a surrogate pair)"};
    case Refus::Different:
        return {"le texte n'est pas celui attendu", "the text is not the expected one"};
    case Refus::Incertain:
        return {"le texte a changé à cet endroit depuis qu'il vous a été donné",
                "the text has changed there since you were given it"};
    }
    return {"", ""};
}

} // namespace

bool ParleFrancais() {
    static bool const resultat = LisLangue();
    return resultat;
}

std::string Dis(Bilingue message, std::initializer_list<std::string_view> arguments) {
    std::string_view const modele = ParleFrancais() ? message.francais : message.anglais;
    std::string texte;
    for (std::size_t i = 0; i < modele.size(); ++i) {
        if (i + 2 < modele.size() && modele[i] == '{' && modele[i + 2] == '}') {
            auto const rang = static_cast<std::size_t>(modele[i + 1] - '1');
            if (rang < arguments.size()) {
                texte += arguments.begin()[rang];
                i += 2;
                continue;
            }
        }
        texte += modele[i];
    }
    return texte;
}

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

std::string DisErreur(Erreur const& erreur) {
    switch (erreur.code) {
    case CodeErreur::IdentifiantInconnu:
        return Dis({"Aucun document « {1} » ici", "No document \"{1}\" here"}, {erreur.sujet});
    case CodeErreur::ZoneInconnue:
        return Dis({"Aucune zone « {1} » ici", "No zone \"{1}\" here"}, {erreur.sujet});
    case CodeErreur::AucunDocument:
        return Dis({"Nommez d'abord un document (InitialiseTexteur ou SynchronisePositions)",
                    "Name a document first (InitialiseTexteur or SynchronisePositions)"});
    case CodeErreur::LectureSeule:
        return Dis({"Le fichier est en lecture seule", "The file is read-only"});
    case CodeErreur::FinDeLigne:
        return Dis({"Une correction ne peut pas contenir de fin de ligne",
                    "A correction cannot hold a line end"});
    case CodeErreur::TropGrand:
        return Dis({"Trop grand : le document ou la réponse dépasserait sa limite",
                    "Too large: the document or the reply would pass its limit"});
    case CodeErreur::SelectionImpossible:
        return Dis({"Cette sélection sort de son paragraphe ou coupe un caractère en deux",
                    "This selection leaves its paragraph or stands in the middle of a character"});
    case CodeErreur::PlageRefusee:
        return Dis({"Intervalle refusé : {1}", "Range refused: {1}"},
                   {Dis(RaisonDuRefus(erreur.refus))});
    case CodeErreur::Enregistrement:
        return erreur.sujet;
    }
    return {};
}

char const* NomErreur(CodeErreur code) noexcept {
    switch (code) {
    case CodeErreur::IdentifiantInconnu:
        return "com.ombrel.vocalyne.Erreur.IdentifiantInconnu";
    case CodeErreur::ZoneInconnue:
        return "com.ombrel.vocalyne.Erreur.ZoneInconnue";
    case CodeErreur::AucunDocument:
        return "com.ombrel.vocalyne.Erreur.AucunDocument";
    case CodeErreur::LectureSeule:
        return "com.ombrel.vocalyne.Erreur.LectureSeule";
    case CodeErreur::FinDeLigne:
        return "com.ombrel.vocalyne.Erreur.FinDeLigne";
    case CodeErreur::TropGrand:
        return "com.ombrel.vocalyne.Erreur.TropGrand";
    case CodeErreur::SelectionImpossible:
        return "com.ombrel.vocalyne.Erreur.SelectionImpossible";
    case CodeErreur::PlageRefusee:
        return "com.ombrel.vocalyne.Erreur.PlageRefusee";
    case CodeErreur::Enregistrement:
        return "com.ombrel.vocalyne.Erreur.Enregistrement";
    }
    return "com.ombrel.vocalyne.Erreur";
}

} // namespace compagnon
