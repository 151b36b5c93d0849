// SPDX-License-Identifier: MPL-2.0
#include "Bureau.h"

#include "modele/EcrivainZones.h"
#include "partage/EcritureNoms.h"
#include "partage/LimiteDeRemplacement.h"
#include "partage/Messages.h"

#include <algorithm>
#include <charconv>

namespace compagnon {

namespace {

using contrat::Erreur;

/// The number in a key of ours; nothing for any other text, however close.
std::optional<NumeroZone> Numero(std::string const& cle) {
    NumeroZone numero = 0;
    auto const lu = std::from_chars(cle.data() + std::min<std::size_t>(cle.size(), 1),
                                    cle.data() + cle.size(), numero);
    if (lu.ec != std::errc() || cle != Bureau::CleDeZone(numero)) {
        return std::nullopt;
    }
    return numero;
}

std::u16string_view Texte(Bureau::Place const& place) {
    return *place.document->DonneTexte(place.index);
}

SelectionDite Dite(DocumentTexte const& document) {
    Selection const& selection = document.DonneSelection();
    return {Bureau::CleDeZone(document.DonneZones()[selection.zone].numero),
            *document.DonneTexte(selection.zone), selection.plage};
}

} // namespace

std::string Bureau::CleDeZone(NumeroZone numero) {
    return "z" + std::to_string(numero);
}

DocumentTexte& Bureau::Ouvre(std::string chemin, LectureFichier lecture) {
    return documents_.emplace_back("doc" + std::to_string(++ouverts_), std::move(chemin),
                                   std::move(lecture), prochainNumero_);
}

std::string Bureau::DonneIdentifiant(DocumentTexte const& document) const {
    return instance_ + contrat::kSeparateur + document.DonneCle();
}

DocumentTexte* Bureau::Cherche(std::string_view cle) noexcept {
    auto const document = std::find_if(documents_.begin(), documents_.end(),
                                       [&](DocumentTexte const& d) { return d.DonneCle() == cle; });
    return document == documents_.end() ? nullptr : &*document;
}

DocumentTexte& Bureau::ChercheIdentifiant(std::string_view identifiant) {
    auto const document =
        std::find_if(documents_.begin(), documents_.end(),
                     [&](DocumentTexte const& d) { return DonneIdentifiant(d) == identifiant; });
    if (document == documents_.end()) {
        throw ErreurDuService(Erreur::DocumentInconnu, identifiant);
    }
    return *document;
}

Bureau::Place Bureau::ChercheZone(std::string const& zone) {
    if (auto const numero = Numero(zone)) {
        for (DocumentTexte& document : documents_) {
            if (auto const index = document.IndexDe(*numero)) {
                return {&document, *numero, *index};
            }
        }
    }
    throw ErreurDuService(Erreur::ZoneInconnue, zone);
}

TexteSuivi& Bureau::Croyance(std::string const& appelant, Place const& place) {
    return appelants_.NommeZone(appelant, place.document->DonneCle(), CleDeZone(place.numero));
}

void Bureau::InitialiseTexteur(std::string const& appelant, std::string const& cle) {
    if (!Cherche(cle)) {
        throw ErreurDuService(Erreur::DocumentInconnu, cle);
    }
    appelants_.Nomme(appelant, cle);
}

std::string Bureau::SynchronisePositions(std::string const& appelant,
                                         std::string const& identifiant) {
    DocumentTexte const& document = ChercheIdentifiant(identifiant);
    Selection const& selection = document.DonneSelection();
    EcrivainZones ecrivain;
    DocumentDonne donne;
    donne.zones.reserve(document.DonneZones().size());
    for (std::size_t i = 0; i < document.DonneZones().size(); ++i) {
        DocumentTexte::Zone const& zone = document.DonneZones()[i];
        std::string cle = CleDeZone(zone.numero);
        ecrivain.Ajoute(cle, *zone.paragraphe.texte,
                        i == selection.zone ? selection.plage : Intervalle{});
        donne.zones[std::move(cle)].Donne(zone.paragraphe.texte);
    }
    std::optional<std::string> reponse = ecrivain.Termine();
    if (!reponse) {
        throw ErreurDuService(Erreur::TropGrand);
    }
    // Only now: a caller that got an error was given nothing.
    appelants_.Donne(appelant, document.DonneCle(), std::move(donne));
    return std::move(*reponse);
}

std::string Bureau::DonneNomsDeZones(std::string const& appelant, std::string const& identifiant) {
    DocumentTexte const& document = ChercheIdentifiant(identifiant);
    DocumentDonne const* const donne = appelants_.DonneDonne(appelant, document.DonneCle());
    EcritureNoms ecriture;
    for (std::size_t i = 0; donne && i < document.DonneZones().size(); ++i) {
        std::string const cle = CleDeZone(document.DonneZones()[i].numero);
        if (donne->zones.count(cle) != 0) {
            ecriture.Ajoute(cle, Dis({"ligne {1}", "line {1}"}, {std::to_string(i + 1)}));
        }
    }
    return ecriture.Termine();
}

bool Bureau::PeutCorriger(std::string const& appelant, std::string const& zone, Intervalle plage,
                          std::u16string_view attendu) {
    std::optional<ErreurDuService> refus; // as the correction would be refused
    try {
        Place const place = ChercheZone(zone);
        TexteSuivi const& croyance = Croyance(appelant, place);
        place.document->VerifieInscriptible();
        Localisation const trouvee = croyance.Localise(plage, Texte(place), attendu);
        if (!trouvee) {
            refus = RefusDe(trouvee.refus, zone);
        }
    } catch (ErreurDuService const& erreur) {
        refus = erreur;
    }
    appelants_.NoteIssue(appelant, zone, refus);
    return !refus;
}

void Bureau::CorrigeDansTexteur(std::string const& appelant, std::string const& zone,
                                Intervalle plage, std::u16string_view texte) {
    try {
        Corrige(appelant, zone, plage, texte);
        appelants_.NoteIssue(appelant, zone, std::nullopt);
    } catch (ErreurDuService const& erreur) {
        appelants_.NoteIssue(appelant, zone, erreur);
        throw;
    }
}

void Bureau::Corrige(std::string const& appelant, std::string const& zone, Intervalle plage,
                     std::u16string_view texte) {
    Place const place = ChercheZone(zone);
    TexteSuivi& croyance = Croyance(appelant, place);
    try {
        VerifieRemplacement(texte);
        place.document->VerifieInscriptible();
        Localisation const trouvee = croyance.Localise(plage, Texte(place));
        if (!trouvee) {
            throw RefusDe(trouvee.refus, zone);
        }
        place.document->Remplace(place.index, trouvee.plage, texte);
    } catch (ErreurDuService const&) {
        croyance.NoteRefus(plage);
        throw;
    }
    croyance.NoteCorrection(plage, texte);
}

void Bureau::SelectionneIntervalle(std::string const& appelant, std::string const& zone,
                                   Intervalle plage) {
    Place const place = ChercheZone(zone);
    Localisation const trouvee = Croyance(appelant, place).Localise(plage, Texte(place));
    if (!trouvee) {
        throw RefusDe(trouvee.refus, zone);
    }
    place.document->Selectionne(place.index, trouvee.plage);
    appelants_.MetsSelection(appelant, Dite(*place.document));
}

DocumentTexte& Bureau::Courant(std::string const& appelant) {
    DocumentTexte* const document = Cherche(appelants_.DonneDocument(appelant));
    if (!document) {
        throw ErreurDuService(Erreur::DocumentFerme);
    }
    return *document;
}

void Bureau::Active(std::string const& appelant) {
    DocumentTexte const& document = Courant(appelant);
    auto const place = std::find_if(documents_.begin(), documents_.end(),
                                    [&](DocumentTexte const& d) { return &d == &document; });
    documents_.splice(documents_.begin(), documents_, place);
}

void Bureau::InitialisePour(std::string const& appelant) {
    Courant(appelant);
    appelants_.MetsSelection(appelant, std::nullopt);
}

SelectionDite Bureau::DisSelection(std::string const& appelant) {
    SelectionDite dite = Dite(Courant(appelant));
    appelants_.MetsSelection(appelant, dite);
    return dite;
}

void Bureau::AjusteSelection(std::string const& appelant, std::int32_t deltaDebut,
                             std::int32_t deltaFin) {
    DocumentTexte& document = Courant(appelant);
    Selection const& selection = document.DonneSelection();
    document.Selectionne(selection.zone, DecaleBornes(selection.plage, deltaDebut, deltaFin,
                                                      *document.DonneTexte(selection.zone)));
    appelants_.MetsSelection(appelant, Dite(document));
}

void Bureau::RemplaceEtReselectionne(std::string const& appelant, std::u16string_view mot) {
    DocumentTexte& document = Courant(appelant);
    VerifieRemplacement(mot);
    document.VerifieInscriptible();
    appelants_.VerifieSelection(appelant, Dite(document));
    Selection const selection = document.DonneSelection();
    document.Remplace(selection.zone, selection.plage, mot);
    document.Selectionne(
        selection.zone,
        {selection.plage.debut, selection.plage.debut + static_cast<std::int32_t>(mot.size())});
    appelants_.MetsSelection(appelant, Dite(document));
}

} // namespace compagnon
