// SPDX-License-Identifier: MPL-2.0
#include "DocumentTexte.h"

#include "modele/DecaleSelection.h"
#include "modele/Frontieres.h"
#include "modele/Utf.h"
#include "partage/ErreurDuService.h"

#include <algorithm>
#include <utility>

namespace compagnon {

DocumentTexte::DocumentTexte(std::string cle, std::string chemin, LectureFichier lecture,
                             NumeroZone& prochainNumero)
    : cle_(std::move(cle))
    , chemin_(std::move(chemin))
    , cheminReel_(std::move(lecture.cheminReel))
    , octetsDuFichier_(std::move(lecture.octets))
    , inscriptible_(lecture.inscriptible) {
    TexteDecoupe decoupe = Decoupe(octetsDuFichier_);
    marque_ = decoupe.marque;
    zones_.reserve(decoupe.paragraphes.size());
    for (Paragraphe& paragraphe : decoupe.paragraphes) {
        unites_ += paragraphe.texte->size();
        zones_.push_back({prochainNumero++, std::move(paragraphe)});
    }
}

std::string DocumentTexte::DonneTitre() const {
    return chemin_.substr(chemin_.find_last_of('/') + 1);
}

std::optional<std::size_t> DocumentTexte::IndexDe(NumeroZone numero) const noexcept {
    auto const trouvee =
        numerosCroissants_
            ? std::lower_bound(zones_.begin(), zones_.end(), numero,
                               [](Zone const& zone, NumeroZone n) { return zone.numero < n; })
            : std::find_if(zones_.begin(), zones_.end(),
                           [numero](Zone const& zone) { return zone.numero == numero; });
    if (trouvee == zones_.end() || trouvee->numero != numero) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(trouvee - zones_.begin());
}

bool DocumentTexte::Selectionne(std::size_t zone, Intervalle plage) noexcept {
    std::u16string_view const texte = *DonneTexte(zone);
    if (!plage.EstDans(texte.size()) || CoupePaire(texte, plage.DonneDebut()) ||
        CoupePaire(texte, plage.DonneFin())) {
        return false;
    }
    selection_ = {zone, plage};
    return true;
}

void DocumentTexte::VerifieInscriptible() const {
    if (!inscriptible_) {
        throw ErreurDuService(contrat::Erreur::LectureSeule);
    }
}

void DocumentTexte::VerifieRecevable(std::size_t retirees, std::u16string_view texte) const {
    VerifieInscriptible();
    if (ContientFinDeLigne(texte) || !EstTransportable(texte)) {
        throw ErreurDuService(contrat::Erreur::FinDeLigne);
    }
    if (texte.size() > retirees && unites_ - retirees + texte.size() > kUnitesMax) {
        throw ErreurDuService(contrat::Erreur::TropGrand);
    }
}

void DocumentTexte::Remplace(std::size_t zone, Intervalle plage, std::u16string_view texte) {
    VerifieRecevable(plage.DonneLongueur(), texte);
    TextePartage& tenu = zones_[zone].paragraphe.texte;
    std::u16string nouveau(*tenu, 0, plage.DonneDebut());
    nouveau.append(texte).append(*tenu, plage.DonneFin());
    unites_ = unites_ - tenu->size() + nouveau.size();
    tenu = std::make_shared<std::u16string const>(std::move(nouveau));
    if (zone == selection_.zone) {
        selection_.plage = DecaleSelection(selection_.plage, plage, texte.size());
    }
}

void DocumentTexte::InsereApres(std::size_t zone, std::u16string_view texte, NumeroZone numero) {
    VerifieRecevable(0, texte);
    if (zones_.size() >= kParagraphesMax) {
        throw ErreurDuService(contrat::Erreur::TropGrand);
    }
    Paragraphe& avant = zones_[zone].paragraphe;
    FinDeLigne const fin = avant.fin;
    if (fin == FinDeLigne::Aucune) {
        avant.fin = zones_.front().paragraphe.fin == FinDeLigne::Aucune
                        ? FinDeLigne::LineFeed
                        : zones_.front().paragraphe.fin;
    }
    unites_ += texte.size();
    numerosCroissants_ = false;
    zones_.insert(zones_.begin() + static_cast<std::ptrdiff_t>(zone) + 1,
                  {numero, {std::make_shared<std::u16string const>(texte), fin}});
    if (selection_.zone > zone) {
        ++selection_.zone;
    }
}

void DocumentTexte::Supprime(std::size_t zone) {
    VerifieInscriptible();
    unites_ -= DonneTexte(zone)->size();
    if (zones_.size() == 1) {
        zones_.front().paragraphe.texte = std::make_shared<std::u16string const>();
        selection_ = {};
        return;
    }
    zones_.erase(zones_.begin() + static_cast<std::ptrdiff_t>(zone));
    if (selection_.zone == zone) {
        selection_ = {std::min(zone, zones_.size() - 1), {}};
    } else if (selection_.zone > zone) {
        --selection_.zone;
    }
}

std::string DocumentTexte::DonneOctets() const {
    TexteDecoupe texte;
    texte.marque = marque_;
    texte.paragraphes.reserve(zones_.size());
    for (Zone const& zone : zones_) {
        texte.paragraphes.push_back(zone.paragraphe);
    }
    return Recompose(texte);
}

std::optional<Ecriture> DocumentTexte::Enregistre() {
    std::string octets = DonneOctets();
    if (octets == octetsDuFichier_) {
        return std::nullopt;
    }
    if (!miseAilleurs_.ailleurs.empty() && octets == octetsMisAilleurs_) {
        return miseAilleurs_;
    }
    Ecriture ecriture = EcritureSure(cheminReel_, octetsDuFichier_).Ecris(octets);
    if (ecriture.issue == IssueEcriture::Faite || ecriture.issue == IssueEcriture::FaiteParDessus) {
        octetsDuFichier_ = std::move(octets);
    } else if (ecriture.issue != IssueEcriture::Perdue) {
        octetsMisAilleurs_ = std::move(octets);
        miseAilleurs_ = ecriture;
    }
    return ecriture;
}

} // namespace compagnon
