// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <vector>

/// A run of vocalyne-hote: English messages, no colours, a home of its own, the real plug-in.
struct Fin {
    int code = -1;
    QByteArray sortie;
    QByteArray erreurs;

    QJsonDocument Json() const { return QJsonDocument::fromJson(sortie); }
};

/// Runs it to its end, while the test's own events are served. Fails the test past the usual delay,
/// and where a sanitizer complains.
Fin LanceHote(QStringList const& arguments, QByteArray const& entree = {});

/// The answers of `vocalyne-hote pilote` to requests, one each.
std::vector<QJsonObject> Dialogue(std::vector<QJsonObject> const& requetes);

inline QString Q(std::string const& texte) {
    return QString::fromStdString(texte);
}
