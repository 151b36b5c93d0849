// SPDX-License-Identifier: MPL-2.0
#include "EcartJson.h"

#include <QJsonArray>

namespace hote {

namespace {

constexpr int kValeursParEtendue = 3;

} // namespace

QJsonObject EnJson(ParagrapheDuDocument const& paragraphe) {
    QJsonArray langues;
    for (EtendueDeLangue const& etendue : paragraphe.langues) {
        langues.append(etendue.debut);
        langues.append(etendue.fin);
        langues.append(etendue.langue);
    }
    return {{QStringLiteral("t"), paragraphe.texte}, {QStringLiteral("l"), langues}};
}

std::optional<ParagrapheDuDocument> LisParagraphe(QJsonObject const& objet) {
    ParagrapheDuDocument paragraphe;
    paragraphe.texte = objet.value(QLatin1String("t")).toString();
    QJsonArray const langues = objet.value(QLatin1String("l")).toArray();
    int place = 0;
    for (int i = 0; i + kValeursParEtendue <= langues.size(); i += kValeursParEtendue) {
        EtendueDeLangue const etendue{langues.at(i).toInt(-1), langues.at(i + 1).toInt(-1),
                                      langues.at(i + 2).toString()};
        if (etendue.debut != place || etendue.fin < place) {
            return std::nullopt;
        }
        place = etendue.fin;
        paragraphe.langues.push_back(etendue);
    }
    return place == paragraphe.texte.size() ? std::make_optional(paragraphe) : std::nullopt;
}

QJsonObject EnJson(Ecart const& ecart) {
    QJsonArray zones;
    for (ParagrapheDuDocument const& paragraphe : ecart.milieu) {
        zones.append(EnJson(paragraphe));
    }
    return {{QStringLiteral("debut"), ecart.gardesAuDebut},
            {QStringLiteral("fin"), ecart.gardesALaFin},
            {QStringLiteral("zones"), zones}};
}

std::optional<Ecart> LisEcart(QJsonObject const& objet) {
    Ecart ecart;
    ecart.gardesAuDebut = objet.value(QLatin1String("debut")).toInt(-1);
    ecart.gardesALaFin = objet.value(QLatin1String("fin")).toInt(-1);
    QJsonArray const zones = objet.value(QLatin1String("zones")).toArray();
    ecart.milieu.reserve(static_cast<std::size_t>(zones.size()));
    for (auto const& zone : zones) {
        auto paragraphe = LisParagraphe(zone.toObject());
        if (!paragraphe) {
            return std::nullopt;
        }
        ecart.milieu.push_back(std::move(*paragraphe));
    }
    return ecart;
}

} // namespace hote
