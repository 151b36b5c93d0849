// SPDX-License-Identifier: MPL-2.0
#include "Dictionnaires.h"

#include "commun/ErreurHote.h"
#include "langue/DictionnaireHunspell.h"
#include "moteurs/FaisParagraphe.h"

namespace hote {

struct Dictionnaires::Fichiers {
    std::optional<FichiersDictionnaire> fichiers;
};

namespace {

Langue LisLangue(QString const& etiquette) {
    QString const langue = DonneLangueSansPays(etiquette);
    if (langue == QLatin1String("fr")) {
        return Langue::Francais;
    }
    return langue == QLatin1String("en") ? Langue::Anglais : Langue::Autre;
}

} // namespace

Dictionnaires::Dictionnaires(std::vector<std::string> dossiers)
    : dossiers_(std::move(dossiers)) {}

Dictionnaires::~Dictionnaires() = default;

bool Dictionnaires::AUn(QString const& langue) {
    auto& connu = connus_[langue];
    if (!connu) {
        connu = std::make_unique<Fichiers>();
        connu->fichiers = LocaliseDictionnaire(langue.toStdString(), dossiers_);
    }
    return connu->fichiers.has_value();
}

Lexique* Dictionnaires::Trouve(QString const& langue) {
    if (!AUn(langue)) {
        return nullptr;
    }
    auto const& fichiers = *connus_[langue]->fichiers;
    return Ouvre(langue, fichiers.affixes, fichiers.mots);
}

std::vector<Lexique*> Dictionnaires::TrouveVariantes(QString const& langue) {
    auto const trouvees = variantes_.find(langue);
    if (trouvees != variantes_.end()) {
        return trouvees->second;
    }
    std::vector<Lexique*>& lexiques = variantes_[langue];
    for (auto const& fichiers : LocaliseVariantes(langue.toStdString(), dossiers_)) {
        if (Lexique* const lexique = Ouvre(langue, fichiers.affixes, fichiers.mots)) {
            lexiques.push_back(lexique);
        }
    }
    return lexiques;
}

Lexique* Dictionnaires::Ouvre(QString const& langue, std::string const& affixes,
                              std::string const& mots) {
    auto const ouvert = ouverts_.find(mots);
    if (ouvert != ouverts_.end()) {
        return ouvert->second.get();
    }
    auto& lexique = ouverts_[mots];
    try {
        lexique = std::make_unique<DictionnaireHunspell>(LisLangue(langue),
                                                         FichiersDictionnaire{affixes, mots});
    } catch (ErreurHote const&) {
        // An encoding that nobody knows: as if it were not there.
    }
    return lexique.get();
}

} // namespace hote
