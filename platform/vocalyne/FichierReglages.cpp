// SPDX-License-Identifier: MPL-2.0
#include "FichierReglages.h"

#include "CopieDurable.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include <utility>

FichierReglages::FichierReglages(QString const& chemin, QSettings::Format format)
    : chemin_(CopieDurable(chemin))
    , format_(format) {}

std::optional<QVariant> FichierReglages::Lis(QString const& cle, bool relis) {
    if (chemin_.isEmpty() || cle.isEmpty()) {
        return std::nullopt;
    }
    if (!lecture_) {
        lecture_ = std::make_unique<QSettings>(chemin_, format_);
    } else if (relis) {
        lecture_->sync();
    }
    auto valeur = lecture_->value(cle);
    return valeur.isValid() ? std::make_optional(std::move(valeur)) : std::nullopt;
}

bool FichierReglages::Ecris(Changements const& changements) {
    if (changements.empty()) {
        return true;
    }
    if (chemin_.isEmpty() || !EstLisibleEntier()) {
        return false;
    }
    QSettings ecriture(chemin_, format_);
    for (auto const& [cle, valeur] : changements) {
        // QSettings keeps what it wrote in a cache that lives as long as the process.
        if (valeur) {
            ecriture.setValue(CopieDurable(cle), *valeur);
        } else {
            ecriture.remove(cle);
        }
    }
    ecriture.sync();
    return ecriture.status() == QSettings::NoError;
}

/// Would QSettings read the whole file? What it does not understand it drops when it writes. It
/// tells only the first reader of a path, as it shares what it read: hence the copy.
bool FichierReglages::EstLisibleEntier() const {
    QFile fichier(chemin_);
    if (!QFileInfo::exists(chemin_)) {
        return true;
    }
    QTemporaryFile copie;
    if (!fichier.open(QIODevice::ReadOnly) || !copie.open()) {
        return false;
    }
    auto const octets = fichier.readAll();
    if (fichier.error() != QFileDevice::NoError || copie.write(octets) != octets.size() ||
        !copie.flush()) {
        return false;
    }
    QSettings const lecture(copie.fileName(), format_);
    lecture.allKeys(); // sections are read when they are first needed
    return lecture.status() == QSettings::NoError;
}
