// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "langue/Lexique.h"

#include <QHash>
#include <QSet>

/// A dictionary of a few words; suggestions are given word by word.
class LexiqueFaux : public hote::Lexique {
  public:
    LexiqueFaux(hote::Langue langue, QStringList const& mots)
        : langue_(langue)
        , mots_(mots.begin(), mots.end()) {}

    hote::Langue DonneLangue() const override { return langue_; }
    bool Connait(QString const& forme) override {
        demandes.append(forme);
        return mots_.contains(forme) || mots_.contains(forme.toLower());
    }
    QStringList Suggere(QString const& forme) override { return suggestions.value(forme); }

    QStringList DonneRacines(QString const& forme) override { return racines.value(forme); }

    QStringList demandes; ///< every word that was asked for
    QHash<QString, QStringList> suggestions;
    QHash<QString, QStringList> racines;

  private:
    hote::Langue langue_;
    QSet<QString> mots_;
};
