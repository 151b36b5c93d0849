// SPDX-License-Identifier: MPL-2.0
#include "ChoixLangue.h"

#include "Avertissement.h"
#include "InitialisationGenerale.h"
#include "commun/ErreurHote.h"
#include "commun/MessagesHote.h"
#include "langue/DetecteLangue.h"
#include "langue/DictionnaireHunspell.h"

#include <utility>

namespace hote {

namespace {

struct Ouverture {
    std::unique_ptr<Lexique> lexique;
    std::string manque; ///< why there is none
};

Ouverture Ouvre(Langue langue) {
    try {
        return {OuvreDictionnaire(langue), {}};
    } catch (ErreurHote const& erreur) {
        return {nullptr, erreur.what()};
    }
}

Langue DonneLangueAffichage() {
    return InitialisationGenerale::DonneLangue() == kLangueFrancais ? Langue::Francais
                                                                    : Langue::Anglais;
}

} // namespace

ChoixLangue ChoisisLangue(std::vector<QString> const& textes) {
    auto francais = Ouvre(Langue::Francais);
    auto anglais = Ouvre(Langue::Anglais);
    if (!francais.lexique && !anglais.lexique) {
        throw ErreurHote(kSortieDictionnaire, francais.manque + ' ' + anglais.manque);
    }
    if (!francais.lexique || !anglais.lexique) {
        bool const reste = francais.lexique != nullptr;
        Avertis(reste ? anglais.manque : francais.manque);
        return {std::move(reste ? francais.lexique : anglais.lexique), false};
    }
    DetecteLangue detecteur(*francais.lexique, *anglais.lexique);
    for (QString const& texte : textes) {
        if (detecteur.Compte(texte)) {
            break;
        }
    }
    // A text that does not tell is taken for one in the person's own language.
    auto const langue = detecteur.DonneLangue().value_or(DonneLangueAffichage());
    return {std::move(langue == Langue::Anglais ? anglais.lexique : francais.lexique), true};
}

std::string DonneNomLangue(Langue langue) {
    return langue == Langue::Francais ? Tr("français") : Tr("anglais");
}

QString DonneCodeLangue(Langue langue) {
    return langue == Langue::Francais ? QStringLiteral("fr") : QStringLiteral("en");
}

} // namespace hote
