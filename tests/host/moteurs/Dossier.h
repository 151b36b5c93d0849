// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QFile>
#include <QTemporaryDir>

#include <string>
#include <vector>

/// A folder of small spelling dictionaries of a test's own.
class Dossier {
  public:
    void Pose(char const* nom, std::vector<char const*> const& mots) const {
        QByteArray liste = QByteArray::number(static_cast<int>(mots.size())) + '\n';
        for (char const* mot : mots) {
            liste += QByteArray(mot) + '\n';
        }
        Ecris(QLatin1String(nom) + QLatin1String(".dic"), liste);
        Ecris(QLatin1String(nom) + QLatin1String(".aff"),
              "SET UTF-8\nTRY aeioustrnlcdmpghbfvyxkwqjz\nWORDCHARS '\n");
    }
    std::vector<std::string> Dossiers() const { return {dossier_.path().toStdString()}; }

  private:
    void Ecris(QString const& nom, QByteArray const& contenu) const {
        QFile fichier(dossier_.filePath(nom));
        if (fichier.open(QIODevice::WriteOnly)) {
            fichier.write(contenu);
        }
    }

    QTemporaryDir dossier_;
};
