// SPDX-License-Identifier: MPL-2.0
#include "ErreurDuService.h"

#include "Messages.h"

namespace compagnon {

namespace {

using contrat::Erreur;

constexpr std::size_t kSujetMax = 16384; // bytes: paths are told whole

/// A caller may have sent us megabytes: its error need not carry them back.
std::string Abrege(std::string_view sujet) {
    if (sujet.size() <= kSujetMax) {
        return std::string(sujet);
    }
    std::size_t coupe = kSujetMax;
    while (coupe > 0 && (static_cast<unsigned char>(sujet[coupe]) & 0xC0U) == 0x80U) {
        --coupe;
    }
    return std::string(sujet.substr(0, coupe)) + "\u2026";
}

Bilingue Message(Erreur code) {
    switch (code) {
    case Erreur::Fermeture:
        return {"Ce programme se ferme", "This program is ending"};
    case Erreur::Occupe:
        return {"La suite est occupée\u00a0; rien n'a été fait, et rien ne le sera",
                "The office is busy; nothing was done and nothing will be"};
    case Erreur::DocumentInconnu:
        return {"Aucun document «\u00a0{1}\u00a0» ici", "No document \"{1}\" here"};
    case Erreur::AucunDocument:
        return {"Nommez d'abord un document (InitialiseTexteur ou SynchronisePositions)",
                "Name a document first (InitialiseTexteur or SynchronisePositions)"};
    case Erreur::DocumentFerme:
        return {"Le document a été fermé", "The document was closed"};
    case Erreur::ZoneInconnue:
        return {"Cette zone n'est pas, ou plus, dans un document ouvert, ou ne vous a pas été "
                "donnée (SynchronisePositions d'abord)",
                "That zone is not, or no longer, in an open document, or you were not given it "
                "(call SynchronisePositions first)"};
    case Erreur::LectureSeule:
        return {"Le document est en lecture seule", "The document is read-only"};
    case Erreur::DialogueOuvert:
        return {"Un dialogue est ouvert dans la suite", "A dialogue is open in the office"};
    case Erreur::SelectionImpossible:
        return {"Sélection impossible\u00a0: {1}", "Impossible selection: {1}"};
    case Erreur::Protege:
        return {"Le texte est protégé", "The text is protected"};
    case Erreur::Frappe:
        return {"La personne est en train d'y taper", "The person is typing in it"};
    case Erreur::FinDeLigne:
        return {"Le nouveau texte contient une fin de ligne ou un caractère qui ne peut pas y être",
                "The new text holds a line end or a character that cannot stand there"};
    case Erreur::TropGrand:
        return {
            "Trop grand\u00a0: le nouveau texte, le document ou la réponse dépasserait sa limite",
            "Too large: the new text, the document or the reply would pass its limit"};
    case Erreur::PlageRefusee:
        return {"Intervalle refusé\u00a0: {1}", "Range refused: {1}"};
    case Erreur::ChampDetruit:
        return {"La correction détruirait un champ, une ancre, un format ou du texte qui ne se "
                "voit pas",
                "The change would destroy a field, an anchor, a format, or text that is not shown"};
    case Erreur::Enregistrement:
        return {"{1}", "{1}"};
    case Erreur::Bureau:
        return {"La suite a échoué\u00a0: {1}", "The office failed: {1}"};
    case Erreur::Interne:
        break;
    }
    return {"Erreur interne\u00a0: {1}", "Internal error: {1}"};
}

Bilingue Raison(Refus refus) {
    switch (refus) {
    case Refus::HorsLimites:
        return {"hors du texte, ou bornes inversées", "outside the text, or bounds inverted"};
    case Refus::CoupePaire:
        return {"une borne coupe un caractère en deux (paire de substitution)",
                "a bound stands in the middle of a character (a surrogate pair)"};
    case Refus::Different:
        return {"le texte n'est pas celui attendu", "the text is not the expected one"};
    default:
        return {"le texte a changé à cet endroit depuis qu'il vous a été donné",
                "the text has changed there since you were given it"};
    }
}

} // namespace

ErreurDuService::ErreurDuService(Erreur code, std::string_view sujet)
    : std::runtime_error(Dis(Message(code), {Abrege(sujet)}))
    , code_(code) {}

ErreurDuService RefusDe(Refus refus, std::string_view zone) {
    return refus == Refus::Inconnu ? ErreurDuService(Erreur::ZoneInconnue, zone)
                                   : ErreurDuService(Erreur::PlageRefusee, Dis(Raison(refus)));
}

} // namespace compagnon
