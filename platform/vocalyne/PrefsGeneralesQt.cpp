// SPDX-License-Identifier: MPL-2.0
#include "PrefsGeneralesQt.h"

#include "FichierReglages.h"

struct PrefsGeneralesQt::Contenu {
    FichierReglages fichier;
    ePrefsGenAcces acces;
    std::map<QString, std::optional<QVariant>> lues; ///< what `conserve` kept, absences too
    FichierReglages::Changements aEcrire;
};

PrefsGeneralesQt::PrefsGeneralesQt(UniChaine const& chemin, ePrefsGenMode /*mode*/,
                                   ePrefsGenAcces acces, QSettings::Format format)
    : contenu_(new Contenu{FichierReglages(chemin.VersQString(), format), acces, {}, {}}) {}

PrefsGeneralesQt::~PrefsGeneralesQt() {
    Enregistre();
}

QVariant PrefsGeneralesQt::Donne(UniChaine const& cle, QVariant const& defaut,
                                 bool conserve) const {
    QString const& nom = cle.VersQString();
    if (auto const mise = contenu_->aEcrire.find(nom); mise != contenu_->aEcrire.end()) {
        return mise->second.value_or(defaut);
    }
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

bool PrefsGeneralesQt::Mets(UniChaine const& cle, QVariant const& valeur) {
    if (contenu_->acces != kPrefsGenLectureEcriture || cle.EstVide()) {
        return false;
    }
    contenu_->aEcrire[cle.VersQString()] = valeur;
    return true;
}

bool PrefsGeneralesQt::Enregistre() {
    if (!contenu_->fichier.Ecris(contenu_->aEcrire)) {
        return false;
    }
    for (auto const& [cle, valeur] : contenu_->aEcrire) {
        contenu_->lues.erase(cle);
    }
    contenu_->aEcrire.clear();
    return true;
}
