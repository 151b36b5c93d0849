// SPDX-License-Identifier: MPL-2.0
#include "Bureau.h"

#include "modele/EcrivainZones.h"
#include "modele/Frontieres.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace compagnon {

namespace {

Erreur Inconnu(std::string_view identifiant) {
    return {CodeErreur::IdentifiantInconnu, std::string(identifiant), {}};
}

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

std::u16string Remplace(std::u16string_view texte, Intervalle plage, std::u16string_view par) {
    std::u16string resultat(texte.substr(0, plage.DonneDebut()));
    resultat.append(par).append(texte.substr(plage.DonneFin()));
    return resultat;
}

} // namespace

std::string Bureau::CleDeZone(NumeroZone numero) {
    return "z" + std::to_string(numero);
}

DocumentTexte& Bureau::Ouvre(std::string chemin, LectureFichier lecture) {
    return documents_.emplace_back("doc" + std::to_string(++ouverts_), std::move(chemin),
                                   std::move(lecture), prochainNumero_);
}

bool Bureau::Ferme(std::string_view cle) {
    auto const document = std::find_if(documents_.begin(), documents_.end(),
                                       [&](DocumentTexte const& d) { return d.DonneCle() == cle; });
    if (document == documents_.end()) {
        return false;
    }
    appelants_.OublieDocument(document->DonneCle());
    documents_.erase(document);
    return true;
}

std::string Bureau::DonneIdentifiant(DocumentTexte const& document) const {
    return instance_ + "~" + document.DonneCle();
}

DocumentTexte* Bureau::Cherche(std::string_view cle) noexcept {
    auto const document = std::find_if(documents_.begin(), documents_.end(),
                                       [&](DocumentTexte const& d) { return d.DonneCle() == cle; });
    return document == documents_.end() ? nullptr : &*document;
}

DocumentTexte* Bureau::ChercheIdentifiant(std::string_view identifiant) noexcept {
    if (identifiant.size() <= instance_.size() || identifiant[instance_.size()] != '~' ||
        identifiant.substr(0, instance_.size()) != instance_) {
        return nullptr;
    }
    return Cherche(identifiant.substr(instance_.size() + 1));
}

Resultat<Bureau::Place> Bureau::ChercheZone(std::string const& zone) {
    if (auto const numero = Numero(zone)) {
        for (DocumentTexte& document : documents_) {
            if (auto const index = document.IndexDe(*numero)) {
                return Place{&document, *numero, *index};
            }
        }
    }
    return Erreur{CodeErreur::ZoneInconnue, zone, {}};
}

Resultat<Bureau::Place> Bureau::ChercheZone(std::string const& appelant, std::string const& zone) {
    Resultat<Place> place = ChercheZone(zone);
    if (place) {
        appelants_.Donne(appelant).document = place->document->DonneCle();
    }
    return place;
}

TexteSuivi* Bureau::Croyance(std::string const& appelant, Place const& place) {
    return appelants_.Donne(appelant).Croyance(place.document->DonneCle(), place.numero);
}

Resultat<Rien> Bureau::InitialiseTexteur(std::string const& appelant, std::string const& cle) {
    if (!Cherche(cle)) {
        return Inconnu(cle);
    }
    appelants_.Donne(appelant).document = cle;
    return Rien{};
}

Resultat<std::string> Bureau::SynchronisePositions(std::string const& appelant,
                                                   std::string const& identifiant) {
    DocumentTexte const* const document = ChercheIdentifiant(identifiant);
    if (!document) {
        return Inconnu(identifiant);
    }
    appelants_.Donne(appelant).document = document->DonneCle();

    Selection const& selection = document->DonneSelection();
    EcrivainZones ecrivain;
    for (std::size_t i = 0; i < document->DonneZones().size(); ++i) {
        DocumentTexte::Zone const& zone = document->DonneZones()[i];
        Intervalle const choisie = i == selection.zone ? selection.plage : Intervalle{};
        if (!ecrivain.Ajoute(CleDeZone(zone.numero), *zone.paragraphe.texte, choisie)) {
            return Erreur{CodeErreur::TropGrand, identifiant, {}};
        }
    }
    std::optional<std::string> reponse = ecrivain.Termine();
    if (!reponse) {
        return Erreur{CodeErreur::TropGrand, identifiant, {}};
    }
    // Only now: a caller that got an error was given nothing.
    Appelant::Croyances croyances;
    croyances.reserve(document->DonneZones().size());
    for (DocumentTexte::Zone const& zone : document->DonneZones()) {
        croyances[zone.numero].Donne(zone.paragraphe.texte);
    }
    appelants_.Donne(appelant, document->DonneCle(), std::move(croyances));
    return std::move(*reponse);
}

Resultat<bool> Bureau::PeutCorriger(std::string const& appelant, std::string const& zone,
                                    Intervalle plage, std::u16string_view attendu) {
    Resultat<Place> const place = ChercheZone(appelant, zone);
    if (!place) {
        return place.DonneErreur();
    }
    TexteSuivi const* const croyance = Croyance(appelant, *place);
    return place->document->EstInscriptible() && croyance &&
           croyance->Localise(plage, *place->document->DonneTexte(place->index), attendu);
}

Resultat<Rien> Bureau::CorrigeDansTexteur(std::string const& appelant, std::string const& zone,
                                          Intervalle plage, std::u16string_view texte) {
    Resultat<Place> const place = ChercheZone(appelant, zone);
    if (!place) {
        return place.DonneErreur();
    }
    TexteSuivi* const croyance = Croyance(appelant, *place);
    if (!croyance) {
        return Erreur{CodeErreur::PlageRefusee, zone, Refus::Inconnu};
    }
    TextePartage document = place->document->DonneTexte(place->index);
    std::size_t const retirees =
        plage.EstDans(croyance->DonneCroyance().size()) ? plage.DonneLongueur() : 0;
    if (auto const raison = place->document->PeutRecevoir(retirees, texte)) {
        croyance->NoteRefus(plage);
        return Erreur{*raison, zone, {}};
    }
    Localisation const faite = croyance->Corrige(plage, texte, document);
    if (!faite) {
        return Erreur{CodeErreur::PlageRefusee, zone, faite.refus};
    }
    place->document->MetsTexte(place->index, std::move(document));
    place->document->SuisEdition(place->index, faite.plage, texte.size());
    return Rien{};
}

Resultat<Rien> Bureau::SelectionneIntervalle(std::string const& appelant, std::string const& zone,
                                             Intervalle plage) {
    Resultat<Place> const place = ChercheZone(appelant, zone);
    if (!place) {
        return place.DonneErreur();
    }
    TexteSuivi const* const croyance = Croyance(appelant, *place);
    Localisation const trouvee =
        croyance ? croyance->Localise(plage, *place->document->DonneTexte(place->index))
                 : Localisation{Refus::Inconnu, {}};
    if (!trouvee) {
        return Erreur{CodeErreur::PlageRefusee, zone, trouvee.refus};
    }
    place->document->Selectionne(place->index, trouvee.plage);
    return Rien{};
}

Resultat<DocumentTexte*> Bureau::Courant(std::string const& appelant) {
    if (!appelants_.Connait(appelant)) {
        return Erreur{CodeErreur::AucunDocument, {}, {}};
    }
    std::string const& cle = appelants_.Donne(appelant).document;
    if (cle.empty()) {
        return Erreur{CodeErreur::AucunDocument, {}, {}};
    }
    DocumentTexte* const document = Cherche(cle);
    if (!document) {
        return Inconnu(cle); // it has been closed
    }
    return document;
}

Resultat<Rien> Bureau::Active(std::string const& appelant) {
    Resultat<DocumentTexte*> const document = Courant(appelant);
    if (!document) {
        return document.DonneErreur();
    }
    auto const place = std::find_if(documents_.begin(), documents_.end(),
                                    [&](DocumentTexte const& d) { return &d == *document; });
    documents_.splice(documents_.begin(), documents_, place);
    return Rien{};
}

Resultat<Rien> Bureau::AjusteSelection(std::string const& appelant, std::int32_t deltaDebut,
                                       std::int32_t deltaFin) {
    Resultat<DocumentTexte*> const document = Courant(appelant);
    if (!document) {
        return document.DonneErreur();
    }
    Selection const& selection = (*document)->DonneSelection();
    std::int64_t const debut = std::int64_t{selection.plage.debut} + deltaDebut;
    std::int64_t const fin = std::int64_t{selection.plage.fin} + deltaFin;
    constexpr std::int64_t kMax = std::numeric_limits<std::int32_t>::max();
    if (debut < 0 || fin < debut || fin > kMax ||
        !(*document)->Selectionne(
            selection.zone, {static_cast<std::int32_t>(debut), static_cast<std::int32_t>(fin)})) {
        return Erreur{CodeErreur::SelectionImpossible, {}, {}};
    }
    return Rien{};
}

Resultat<Rien> Bureau::RemplaceEtReselectionne(std::string const& appelant,
                                               std::u16string_view mot) {
    Resultat<DocumentTexte*> const document = Courant(appelant);
    if (!document) {
        return document.DonneErreur();
    }
    Selection const selection = (*document)->DonneSelection();
    if (auto const raison = (*document)->PeutRecevoir(selection.plage.DonneLongueur(), mot)) {
        return Erreur{*raison, {}, {}};
    }
    (*document)->MetsTexte(selection.zone,
                           std::make_shared<std::u16string const>(Remplace(
                               *(*document)->DonneTexte(selection.zone), selection.plage, mot)));
    (*document)->Selectionne(
        selection.zone,
        {selection.plage.debut, selection.plage.debut + static_cast<std::int32_t>(mot.size())});
    return Rien{};
}

void Bureau::RompsLien(std::string const& appelant) {
    Resultat<DocumentTexte*> const document = Courant(appelant);
    if (!document) {
        return;
    }
    Appelant& celui = appelants_.Donne(appelant);
    celui.croyances.erase((*document)->DonneCle());
    celui.document.clear();
}

Resultat<Rien> Bureau::Tape(std::string const& zone, Intervalle plage, std::u16string_view texte) {
    Resultat<Place> const place = ChercheZone(zone);
    if (!place) {
        return place.DonneErreur();
    }
    DocumentTexte& document = *place->document;
    std::u16string_view const avant = *document.DonneTexte(place->index);
    if (!plage.EstDans(avant.size())) {
        return Erreur{CodeErreur::PlageRefusee, zone, Refus::HorsLimites};
    }
    if (CoupePaire(avant, plage.DonneDebut()) || CoupePaire(avant, plage.DonneFin())) {
        return Erreur{CodeErreur::PlageRefusee, zone, Refus::CoupePaire};
    }
    if (auto const raison = document.PeutRecevoir(plage.DonneLongueur(), texte)) {
        return Erreur{*raison, zone, {}};
    }
    document.MetsTexte(place->index,
                       std::make_shared<std::u16string const>(Remplace(avant, plage, texte)));
    document.SuisEdition(place->index, plage, texte.size());
    return Rien{};
}

Resultat<Rien> Bureau::Selectionne(std::string const& zone, Intervalle plage) {
    Resultat<Place> const place = ChercheZone(zone);
    if (!place) {
        return place.DonneErreur();
    }
    if (!place->document->Selectionne(place->index, plage)) {
        return Erreur{CodeErreur::SelectionImpossible, zone, {}};
    }
    return Rien{};
}

Resultat<std::string> Bureau::InsereApres(std::string const& zone, std::u16string_view texte) {
    Resultat<Place> const place = ChercheZone(zone);
    if (!place) {
        return place.DonneErreur();
    }
    DocumentTexte& document = *place->document;
    if (auto const raison = document.PeutRecevoir(0, texte)) {
        return Erreur{*raison, zone, {}};
    }
    if (document.DonneZones().size() >= kParagraphesMax) {
        return Erreur{CodeErreur::TropGrand, zone, {}};
    }
    return CleDeZone(document.InsereApres(
        place->index, std::make_shared<std::u16string const>(texte), prochainNumero_));
}

Resultat<Rien> Bureau::Supprime(std::string const& zone) {
    Resultat<Place> const place = ChercheZone(zone);
    if (!place) {
        return place.DonneErreur();
    }
    if (!place->document->EstInscriptible()) {
        return Erreur{CodeErreur::LectureSeule, zone, {}};
    }
    place->document->Supprime(place->index);
    return Rien{};
}

} // namespace compagnon
