// SPDX-License-Identifier: MPL-2.0
#include "Orthographe.h"

#include "Contrat.h"
#include "Decoupeur.h"
#include "JugeMot.h"
#include "LangueDuStyle.h"

namespace hote {

namespace {

constexpr ushort kApostropheCourbe = 0x2019;

/// What the runs that a word touches say of it.
struct Nature {
    bool estExclu = false; ///< not to be proofed, or nobody knows in which language
    std::optional<Langue> langue;
};

/// `plage` moves forward with the words, so the whole text costs one pass over the runs.
Nature DonneNature(Mot const& mot, Orthographe::Plages const& plages, std::size_t& plage) {
    while (plage < plages.size() && plages[plage].fin <= mot.debut) {
        ++plage;
    }
    Nature nature;
    for (std::size_t i = plage; i < plages.size() && plages[i].debut < mot.fin; ++i) {
        auto const style = static_cast<std::uint16_t>(plages[i].attribut);
        LangueDuStyle const dite = LisLangueDuStyle(style);
        bool const seContredit = nature.langue && dite.estDite && dite.langue != nature.langue;
        if ((style & contrat::kStyleSansCorrection) != 0 || (dite.estDite && !dite.langue) ||
            seContredit) {
            return {true, std::nullopt};
        }
        nature.langue = dite.estDite ? dite.langue : nature.langue;
    }
    return nature;
}

} // namespace

Lexique* Orthographe::TrouveLexique(std::optional<Langue> langue) const {
    if (!langue || *langue == principal_.DonneLangue()) {
        return &principal_;
    }
    return autre_ ? autre_(*langue) : nullptr;
}

std::vector<Faute> Orthographe::Cherche(QString const& texte, Plages const& plages) const {
    std::vector<Faute> fautes;
    std::size_t plage = 0;
    for (Mot const& mot : DecoupeEnMots(texte)) {
        Nature const nature = DonneNature(mot, plages, plage);
        Lexique* const lexique = nature.estExclu ? nullptr : TrouveLexique(nature.langue);
        if (lexique == nullptr) {
            continue;
        }
        std::vector<Mot> inconnus;
        JugeMot(*lexique, texte, mot, inconnus);
        for (Mot const& inconnu : inconnus) {
            fautes.push_back({inconnu.debut, inconnu.fin,
                              texte.mid(inconnu.debut, inconnu.fin - inconnu.debut),
                              lexique != &principal_ ? nature.langue : std::nullopt});
        }
    }
    return fautes;
}

QStringList Orthographe::Suggere(Faute const& faute, bool apostropheCourbe) const {
    Lexique* const lexique = TrouveLexique(faute.langue);
    QStringList suggestions =
        lexique != nullptr ? lexique->Suggere(DonneForme(faute.mot)) : QStringList();
    if (apostropheCourbe) {
        suggestions.replaceInStrings(QStringLiteral("'"), QString(QChar(kApostropheCourbe)));
    }
    suggestions.removeDuplicates();
    suggestions.removeAll(faute.mot);
    return suggestions;
}

bool Orthographe::AUneApostropheCourbe(QString const& texte) {
    return texte.contains(QChar(kApostropheCourbe));
}

} // namespace hote
