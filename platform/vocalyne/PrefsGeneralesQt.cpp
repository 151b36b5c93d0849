// SPDX-License-Identifier: MPL-2.0
#include "PrefsGeneralesQt.h"

#include "FichierReglages.h"

#include <map>
#include <optional>

struct PrefsGeneralesQt::Contenu {
    FichierReglages fichier;
    std::map<QString, std::optional<QVariant>> lues; ///< what `conserve` kept, absences too
};

// By value, as their names in the library tell.
// NOLINTBEGIN(performance-unnecessary-value-param)
PrefsGeneralesQt::PrefsGeneralesQt(UniChaine chemin, ePrefsGenMode /*mode*/,
                                   ePrefsGenAcces /*acces*/, QSettings::Format format)
    : contenu_(new Contenu{FichierReglages(chemin.VersQString(), format), {}}) {}

QVariant PrefsGeneralesQt::Donne(UniChaine cle, QVariant defaut, bool conserve) const {
    QString const& nom = cle.VersQString();
    auto lue = contenu_->lues.find(nom);
    if (lue != contenu_->lues.end() && conserve) {
        return lue->second.value_or(defaut);
    }
    auto const valeur = contenu_->fichier.Lis(nom, true);
    if (conserve || lue != contenu_->lues.end()) {
        contenu_->lues[nom] = valeur;
    }
    return valeur.value_or(defaut);
}
// NOLINTEND(performance-unnecessary-value-param)

PrefsGeneralesQt::~PrefsGeneralesQt() = default;
