// SPDX-License-Identifier: MPL-2.0
#include "FichierMarkdown.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <optional>

namespace {

std::optional<QByteArray> LisOctets(QString const& chemin) {
    constexpr qint64 kTailleMax = qint64{32} * 1024 * 1024;
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    QByteArray octets = fichier.read(kTailleMax + 1);
    if (fichier.error() != QFileDevice::NoError || octets.size() > kTailleMax) {
        return std::nullopt;
    }
    return octets;
}

} // namespace

bool FichierMarkdown::Lis() {
    octets_.clear();
    texte_.clear();
    auto const octets = LisOctets(chemin_);
    if (!octets) {
        return false;
    }
    QString texte = QString::fromUtf8(*octets);
    // What cannot be written back as it was is not to be touched: bytes that are no UTF-8, or the
    // mark at the start, which Qt drops.
    if (texte.toUtf8() != *octets) {
        return false;
    }
    octets_ = *octets;
    texte_ = std::move(texte);
    return true;
}

bool FichierMarkdown::EstAJour() const {
    auto const octets = LisOctets(chemin_);
    return octets && *octets == octets_;
}

bool FichierMarkdown::Ecris(QString const& texte) {
    QByteArray const octets = texte.toUtf8();
    QSaveFile fichier(chemin_);
    if (!fichier.open(QIODevice::WriteOnly) || fichier.write(octets) != octets.size() ||
        !fichier.commit()) {
        return false;
    }
    octets_ = octets;
    texte_ = texte;
    return true;
}

bool FichierMarkdown::Existe() const {
    return QFileInfo(chemin_).isFile();
}

bool FichierMarkdown::EstModifiable() const {
    return QFileInfo(chemin_).isWritable();
}
