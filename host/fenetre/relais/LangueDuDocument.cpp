// SPDX-License-Identifier: MPL-2.0
#include "LangueDuDocument.h"

#include "commun/ErreurHote.h"
#include "langue/DetecteLangue.h"
#include "langue/DictionnaireHunspell.h"

namespace hote {

namespace {

std::unique_ptr<Lexique> OuvreOuRien(Langue langue) {
    try {
        return OuvreDictionnaire(langue);
    } catch (ErreurHote const&) {
        return nullptr;
    }
}

} // namespace

QString DevineLangue(std::vector<QString> const& textes) {
    auto const francais = OuvreOuRien(Langue::Francais);
    auto const anglais = OuvreOuRien(Langue::Anglais);
    if (!francais || !anglais) {
        return francais ? QStringLiteral("fr") : anglais ? QStringLiteral("en") : QString();
    }
    DetecteLangue detecteur(*francais, *anglais);
    for (QString const& texte : textes) {
        if (detecteur.Compte(texte)) {
            break;
        }
    }
    auto const langue = detecteur.DonneLangue();
    if (!langue) {
        return {};
    }
    return *langue == Langue::Francais ? QStringLiteral("fr") : QStringLiteral("en");
}

} // namespace hote
