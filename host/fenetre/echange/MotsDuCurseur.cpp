// SPDX-License-Identifier: MPL-2.0
#include "MotsDuCurseur.h"

#include <QJsonArray>

namespace hote {

namespace {

QString const kEntree = QStringLiteral("entree");
QString const kSens = QStringLiteral("sens");
QString const kGenre = QStringLiteral("genre");
QString const kSynonymes = QStringLiteral("synonymes");

QJsonArray EnJson(std::vector<Sens> const& sens) {
    QJsonArray tableau;
    for (Sens const& un : sens) {
        QJsonArray synonymes; // a word, then its note
        for (Synonyme const& synonyme : un.synonymes) {
            synonymes.append(synonyme.mot);
            synonymes.append(synonyme.note);
        }
        tableau.append(QJsonObject{{kGenre, un.genre}, {kSynonymes, synonymes}});
    }
    return tableau;
}

std::vector<Sens> LisSens(QJsonArray const& tableau) {
    std::vector<Sens> sens;
    for (auto const& valeur : tableau) {
        Sens un{valeur.toObject().value(kGenre).toString(), {}};
        QJsonArray const synonymes = valeur.toObject().value(kSynonymes).toArray();
        for (int i = 0; i + 1 < synonymes.size(); i += 2) {
            un.synonymes.push_back({synonymes.at(i).toString(), synonymes.at(i + 1).toString()});
        }
        sens.push_back(std::move(un));
    }
    return sens;
}

} // namespace

QJsonObject EnJson(MotsDuCurseur const& mots) {
    QJsonArray articles;
    for (Article const& article : mots.articles) {
        articles.append(QJsonObject{{kEntree, article.entree}, {kSens, EnJson(article.sens)}});
    }
    return {{QStringLiteral("texte"), mots.texte},
            {QStringLiteral("places"),
             QJsonArray{mots.debutSelection, mots.finSelection, mots.debut, mots.fin}},
            {QStringLiteral("connu"), mots.connu},
            {QStringLiteral("suggestions"), QJsonArray::fromStringList(mots.suggestions)},
            {QStringLiteral("articles"), articles}};
}

MotsDuCurseur LisMots(QJsonObject const& objet) {
    MotsDuCurseur mots;
    mots.texte = objet.value(QLatin1String("texte")).toString();
    QJsonArray const places = objet.value(QLatin1String("places")).toArray();
    int* const lues[] = {&mots.debutSelection, &mots.finSelection, &mots.debut, &mots.fin};
    for (int i = 0; i < 4; ++i) {
        *lues[i] = places.at(i).toInt(-1);
        if (*lues[i] < 0 || *lues[i] > mots.texte.size()) {
            return {};
        }
    }
    mots.connu = objet.value(QLatin1String("connu")).toBool(true);
    for (auto const& suggestion : objet.value(QLatin1String("suggestions")).toArray()) {
        mots.suggestions.append(suggestion.toString());
    }
    for (auto const& valeur : objet.value(QLatin1String("articles")).toArray()) {
        mots.articles.push_back({valeur.toObject().value(kEntree).toString(),
                                 LisSens(valeur.toObject().value(kSens).toArray())});
    }
    return mots;
}

} // namespace hote
