// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "langue/Articles.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace hote {

/// What is known of the word that is selected, or at the caret. Positions are UTF-16 units of
/// `texte`, the paragraph around it.
struct MotsDuCurseur {
    QString texte; ///< empty: nothing is selected
    int debutSelection = 0;
    int finSelection = 0;
    int debut = 0; ///< the word; empty where there is none
    int fin = 0;
    bool connu = true;       ///< is it spelt right?
    QStringList suggestions; ///< what may be meant, where it is not
    std::vector<Article> articles;

    QString DonneMot() const { return texte.mid(debut, fin - debut); }
};

/// As JSON and back. What is not of that form reads as nothing selected.
QJsonObject EnJson(MotsDuCurseur const& mots);
MotsDuCurseur LisMots(QJsonObject const& objet);

} // namespace hote
