// SPDX-License-Identifier: MPL-2.0
#include "ChercheMots.h"

#include "commun/ErreurHote.h"
#include "langue/Decoupeur.h"
#include "langue/DictionnaireHunspell.h"
#include "langue/ThesaurusMyThes.h"

#include <optional>

namespace hote {

namespace {

std::optional<Langue> LisLangue(QString const& etiquette) {
    QString const langue = etiquette.section(QLatin1Char('-'), 0, 0).toLower();
    if (langue == QLatin1String("fr")) {
        return Langue::Francais;
    }
    return langue == QLatin1String("en") ? std::make_optional(Langue::Anglais) : std::nullopt;
}

template <class Ouverture>
auto OuvreOuRien(Ouverture ouverture) -> decltype(ouverture()) {
    try {
        return ouverture();
    } catch (ErreurHote const&) {
        return nullptr;
    }
}

/// A dictionary without a word, where none is installed.
class ThesaurusVide : public Thesaurus {
  public:
    std::vector<Sens> Cherche(QString const& /*entree*/) override { return {}; }
};

} // namespace

ChercheMots::Livres& ChercheMots::Ouvre(Langue langue) {
    auto const [place, nouveau] = livres_.try_emplace(langue);
    Livres& livres = place->second;
    if (nouveau) {
        livres.lexique = OuvreOuRien([langue] { return OuvreDictionnaire(langue); });
        livres.thesaurus = OuvreOuRien([langue] { return OuvreThesaurus(langue); });
        if (!livres.thesaurus) {
            livres.thesaurus = std::make_unique<ThesaurusVide>();
        }
    }
    return livres;
}

MotsDuCurseur ChercheMots::Cherche(QString const& texte, int debut, int fin,
                                   QString const& langue) {
    MotsDuCurseur mots;
    mots.texte = texte;
    mots.debutSelection = mots.debut = debut;
    mots.finSelection = mots.fin = fin;
    auto const connue = LisLangue(langue);
    if (!connue || !Ouvre(*connue).lexique) {
        return mots;
    }
    Livres& livres = Ouvre(*connue);
    auto trouves = ChercheArticles(texte, debut, fin, *livres.thesaurus, *livres.lexique);
    mots.debut = trouves.mot.debut;
    mots.fin = trouves.mot.fin;
    mots.articles = std::move(trouves.articles);
    QString const forme = DonneForme(mots.DonneMot());
    mots.connu =
        forme.isEmpty() || DecoupeEnMots(mots.DonneMot()).empty() || livres.lexique->Connait(forme);
    if (!mots.connu) {
        mots.suggestions = livres.lexique->Suggere(forme);
    }
    return mots;
}

} // namespace hote
