// SPDX-License-Identifier: MPL-2.0
#include "LignesJson.h"

#include "commun/EcritureJson.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace hote {

namespace {

constexpr int kRemarquesMax = 2000;
constexpr int kSuggestionsMax = 20;
constexpr int kTexteMax = 1000; ///< UTF-16 units

/// A text for people: bounded, on one line.
QString LisTexte(QJsonValue const& valeur) {
    QString texte = valeur.toString().left(kTexteMax);
    for (QChar& unite : texte) {
        if (unite.category() == QChar::Other_Control) {
            unite = QLatin1Char(' ');
        }
    }
    return texte.trimmed();
}

GenreDeRemarque LisGenre(QString const& nom) {
    static QStringList const noms = {QStringLiteral("orthographe"), QStringLiteral("accord"),
                                     QStringLiteral("confusion"),   QStringLiteral("typographie"),
                                     QStringLiteral("repetition"),  QStringLiteral("style")};
    int const rang = noms.indexOf(nom);
    return rang < 0 ? GenreDeRemarque::Style : static_cast<GenreDeRemarque>(rang);
}

QStringList LisSuggestions(QJsonValue const& valeur) {
    QStringList suggestions;
    for (auto const& element : valeur.toArray()) {
        QString const suggestion = element.toString();
        bool const bonne = element.isString() && suggestion.size() <= kTexteMax &&
                           std::none_of(suggestion.begin(), suggestion.end(), [](QChar unite) {
                               return unite.category() == QChar::Other_Control;
                           });
        if (bonne && suggestions.size() < kSuggestionsMax) {
            suggestions.append(suggestion);
        }
    }
    return suggestions;
}

Remarque LisRemarque(QJsonObject const& objet) {
    Remarque remarque{};
    remarque.debut = objet.value(QLatin1String("debut")).toInt(-1);
    remarque.fin = objet.value(QLatin1String("fin")).toInt(-1);
    remarque.genre = LisGenre(objet.value(QLatin1String("genre")).toString());
    remarque.regle = LisTexte(objet.value(QLatin1String("regle")));
    remarque.explication = LisTexte(objet.value(QLatin1String("explication")));
    remarque.suggestions = LisSuggestions(objet.value(QLatin1String("suggestions")));
    remarque.surete = std::clamp(objet.value(QLatin1String("surete")).toDouble(0.5), 0.0, 1.0);
    return remarque;
}

std::optional<QJsonObject> LisObjet(std::string const& ligne) {
    auto const document =
        QJsonDocument::fromJson(QByteArray(ligne.data(), static_cast<int>(ligne.size())));
    return document.isObject() ? std::make_optional(document.object()) : std::nullopt;
}

} // namespace

std::string FaisDemande(qint64 id, TexteNu const& texte) {
    EcritureJson json;
    json.OuvreObjet().EcrisCle("id").EcrisEntier(id).EcrisCle("texte").EcrisTexte(texte.texte);
    json.EcrisCle("langues").OuvreTableau();
    for (EtendueDeLangue const& etendue : texte.langues) {
        json.OuvreObjet().EcrisCle("debut").EcrisEntier(etendue.debut);
        json.EcrisCle("fin").EcrisEntier(etendue.fin);
        json.EcrisCle("langue").EcrisTexte(etendue.langue).FermeObjet();
    }
    json.FermeTableau().FermeObjet();
    return json.DonneJson() + '\n';
}

std::optional<Accueil> LisAccueil(std::string const& ligne) {
    auto const objet = LisObjet(ligne);
    if (!objet || !objet->value(QLatin1String("moteur")).isString() ||
        objet->value(QLatin1String("contrat")).toInt() != 1) {
        return std::nullopt;
    }
    return Accueil{LisTexte(objet->value(QLatin1String("moteur"))),
                   LisTexte(objet->value(QLatin1String("version"))),
                   LisTexte(objet->value(QLatin1String("absent")))};
}

std::optional<ReponseDeMoteur> LisReponse(std::string const& ligne) {
    auto const objet = LisObjet(ligne);
    QJsonValue const id = objet ? objet->value(QLatin1String("id")) : QJsonValue();
    if (!id.isDouble() || std::abs(id.toDouble()) > 1e15) {
        return std::nullopt;
    }
    ReponseDeMoteur reponse{
        static_cast<qint64>(id.toDouble()), LisTexte(objet->value(QLatin1String("erreur"))), {}};
    QJsonValue const remarques = objet->value(QLatin1String("remarques"));
    if (!remarques.isArray() && reponse.erreur.isEmpty()) {
        return std::nullopt;
    }
    for (auto const& remarque : remarques.toArray()) {
        if (reponse.remarques.size() < kRemarquesMax && remarque.isObject()) {
            reponse.remarques.push_back(LisRemarque(remarque.toObject()));
        }
    }
    return reponse;
}

} // namespace hote
