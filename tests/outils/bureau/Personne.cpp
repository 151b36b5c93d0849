// SPDX-License-Identifier: MPL-2.0
#include "Personne.h"

#include "modele/Frontieres.h"

using compagnon::Bureau;
using compagnon::DocumentTexte;
using compagnon::ErreurDuService;
using compagnon::Intervalle;
using contrat::Erreur;

void Personne::Tape(std::string const& zone, Intervalle plage, std::u16string_view texte) {
    Bureau::Place const place = bureau_.ChercheZone(zone);
    std::u16string_view const avant = *place.document->DonneTexte(place.index);
    if (!plage.EstDans(avant.size()) || compagnon::CoupePaire(avant, plage.DonneDebut()) ||
        compagnon::CoupePaire(avant, plage.DonneFin())) {
        throw ErreurDuService(Erreur::PlageRefusee);
    }
    place.document->Remplace(place.index, plage, texte);
}

void Personne::Selectionne(std::string const& zone, Intervalle plage) {
    Bureau::Place const place = bureau_.ChercheZone(zone);
    if (!place.document->Selectionne(place.index, plage)) {
        throw ErreurDuService(Erreur::SelectionImpossible);
    }
}

std::string Personne::InsereApres(std::string const& zone, std::u16string_view texte) {
    Bureau::Place const place = bureau_.ChercheZone(zone);
    compagnon::NumeroZone const numero = bureau_.NouveauNumero();
    place.document->InsereApres(place.index, texte, numero);
    return Bureau::CleDeZone(numero);
}

void Personne::Supprime(std::string const& zone) {
    Bureau::Place const place = bureau_.ChercheZone(zone);
    place.document->Supprime(place.index);
}

void Personne::Ferme(std::string const& cle) {
    if (!bureau_.Cherche(cle)) {
        throw ErreurDuService(Erreur::DocumentInconnu, cle);
    }
    bureau_.DonneDocuments().remove_if(
        [&](DocumentTexte const& document) { return document.DonneCle() == cle; });
    bureau_.DonneAppelants().GardeDocuments(
        [this](std::string const& reste) { return bureau_.Cherche(reste) != nullptr; });
}
