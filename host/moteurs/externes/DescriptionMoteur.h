// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <string>
#include <vector>

namespace hote {

/// An engine outside the process, as its file `moteur.json` describes it (docs/moteurs.md).
struct DescriptionMoteur {
    QString nom;
    QStringList langues;               ///< BCP 47; "fr" stands for all its countries
    std::vector<std::string> commande; ///< the program and its arguments, places filled in
    QStringList fichiers;              ///< what must be there, or the engine is missing
    QString paquet;                    ///< the Debian package that brings it, or empty
    QString npm;                       ///< the npm package that brings it, or empty
    QString reglage;                   ///< the setting without which it is off, or empty
    int exemplaires = 1;
    int demarrageMs = 20000; ///< up to its first line
    int examenMs = 10000;    ///< up to the answer about a paragraph

    /// Is all there that it needs? The program is looked up in PATH.
    bool EstPresent() const;
    bool Juge(QString const& langue) const;
};

/// Where the description's places are.
struct LieuxMoteur {
    QString dossier; ///< of the description: {dossier}
    QString donnees; ///< of the person, where npm installs: {donnees}
    QString adresse; ///< of the person's server: {adresse}
};

/// Reads a description. Nothing, and `faute` says why in English, for what is none.
std::optional<DescriptionMoteur> LisDescription(QByteArray const& json, LieuxMoteur const& lieux,
                                                QString& faute);

} // namespace hote
