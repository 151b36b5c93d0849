// SPDX-License-Identifier: MPL-2.0
#include "TexteSuivi.h"

#include "EditionMinimale.h"
#include "Frontieres.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace compagnon {

namespace {

constexpr std::size_t kPositionMax = std::numeric_limits<std::int32_t>::max();

Localisation Refuse(Refus raison) noexcept {
    return {raison, {}};
}

/// The document's text with a range of it replaced.
std::u16string Remplace(std::u16string_view texte, Intervalle plage, std::u16string_view par) {
    std::u16string resultat;
    resultat.reserve(texte.size() - plage.DonneLongueur() + par.size());
    resultat.append(texte.substr(0, plage.DonneDebut()));
    resultat.append(par);
    resultat.append(texte.substr(plage.DonneFin()));
    return resultat;
}

/// Mostly they are one text shared (see Corrige), and a long one is then not read through.
bool EstLeMemeTexte(std::u16string_view a, std::u16string_view b) noexcept {
    return a.size() == b.size() && (a.data() == b.data() || a == b);
}

/// Has a cut that parted no visible character in the belief come to part one in the document?
bool EstDevenueCoupure(std::u16string_view croyance, std::int32_t avant,
                       std::u16string_view document, std::int32_t apres) noexcept {
    return CoupeCaractere(document, static_cast<std::size_t>(apres)) &&
           !CoupeCaractere(croyance, static_cast<std::size_t>(avant));
}

Localisation RetrouveApresEdition(Intervalle plage, std::u16string_view croyance,
                                  std::u16string_view document) noexcept {
    std::size_t const debutCommun = LongueurDebutCommun(croyance, document);
    std::size_t const finCommune = LongueurFinCommune(croyance, document);
    std::size_t const plusCourt = std::min(croyance.size(), document.size());
    bool const ambigu = debutCommun + finCommune > plusCourt;
    std::size_t const debutSur = ambigu ? plusCourt - finCommune : debutCommun;
    std::size_t const finSure = croyance.size() - (ambigu ? plusCourt - debutCommun : finCommune);

    std::size_t const strict = plage.EstVide() ? 1 : 0;
    Intervalle trouvee = plage;
    if (plage.DonneFin() + strict > debutSur) {
        if (plage.DonneDebut() < finSure + strict) {
            return Refuse(Refus::Incertain);
        }
        auto const versFin = [&](std::int32_t position) {
            return static_cast<std::int32_t>(document.size() - croyance.size() + position);
        };
        trouvee = {versFin(plage.debut), versFin(plage.fin)};
    }
    if (EstDevenueCoupure(croyance, plage.debut, document, trouvee.debut) ||
        EstDevenueCoupure(croyance, plage.fin, document, trouvee.fin)) {
        return Refuse(Refus::Incertain);
    }
    return {Refus::Aucun, trouvee};
}

} // namespace

void TexteSuivi::Donne(TextePartage texte) noexcept {
    croyance_ = std::move(texte);
    borneSure_ = DonneCroyance().size();
}

bool TexteSuivi::Confirme(std::u16string_view texte) noexcept {
    if (!croyance_ || *croyance_ != texte) {
        return false;
    }
    borneSure_ = texte.size();
    return true;
}

void TexteSuivi::Oublie() noexcept {
    Donne(nullptr);
}

std::u16string_view TexteSuivi::DonneCroyance() const noexcept {
    return croyance_ ? std::u16string_view(*croyance_) : std::u16string_view();
}

Localisation TexteSuivi::Localise(Intervalle plage, std::u16string_view document) const noexcept {
    if (!croyance_) {
        return Refuse(Refus::Inconnu);
    }
    std::u16string_view const croyance = *croyance_;
    if (!plage.EstDans(croyance.size()) || document.size() > kPositionMax) {
        return Refuse(Refus::HorsLimites);
    }
    if (CoupePaire(croyance, plage.DonneDebut()) || CoupePaire(croyance, plage.DonneFin())) {
        return Refuse(Refus::CoupePaire);
    }
    if (plage.DonneFin() > borneSure_) {
        return Refuse(Refus::Incertain);
    }
    if (EstLeMemeTexte(croyance, document)) {
        return {Refus::Aucun, plage};
    }
    return RetrouveApresEdition(plage, croyance, document);
}

Localisation TexteSuivi::Localise(Intervalle plage, std::u16string_view document,
                                  std::u16string_view attendu) const noexcept {
    Localisation const trouvee = Localise(plage, document);
    if (trouvee &&
        document.substr(trouvee.plage.DonneDebut(), trouvee.plage.DonneLongueur()) != attendu) {
        return Refuse(Refus::Different);
    }
    return trouvee;
}

void TexteSuivi::NoteCorrection(Intervalle plage, std::u16string_view remplacement) {
    std::u16string_view const croyance = DonneCroyance();
    if (!croyance_ || !plage.EstDans(croyance.size())) {
        NoteRefus(plage);
        return;
    }
    // The part that is certain ends after the range (see Localise), so it moves with the text.
    std::size_t const borne = std::max(borneSure_, plage.DonneFin());
    std::size_t const nouvelleBorne = borne - plage.DonneLongueur() + remplacement.size();
    croyance_ = std::make_shared<std::u16string const>(Remplace(croyance, plage, remplacement));
    borneSure_ = nouvelleBorne;
}

void TexteSuivi::NoteRefus(Intervalle plage) noexcept {
    std::int32_t const depart = std::max(0, std::min(plage.debut, plage.fin));
    borneSure_ = std::min(borneSure_, static_cast<std::size_t>(depart));
}

} // namespace compagnon
