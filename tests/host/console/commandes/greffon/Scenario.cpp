// SPDX-License-Identifier: MPL-2.0
#include "Scenario.h"

#include "DAlerte.h"

#include <QFile>
#include <QJsonDocument>

#include <cstdio>
#include <stdexcept>

Scenario& Scenario::Donne() {
    static Scenario scenario;
    return scenario;
}

Scenario::Scenario() {
    QFile fichier(QString::fromLocal8Bit(qgetenv("VOCALYNE_GREFFON_FAUX")));
    if (!fichier.open(QIODevice::ReadOnly)) {
        return;
    }
    QJsonObject const script = QJsonDocument::fromJson(fichier.readAll()).object();
    titre = script.value(QLatin1String("titre")).toString();
    evenements_ = script.value(QLatin1String("evenements")).toArray();
    journal_ = script.value(QLatin1String("journal")).toString();
    MetsZones(script.value(QLatin1String("zones")).toArray());
}

void Scenario::MetsZones(QJsonArray const& liste) {
    zones.clear();
    for (QJsonValue const zone : liste) {
        zones.push_back({zone.toObject().value(QLatin1String("texte")).toString(),
                         zone.toObject().value(QLatin1String("styles")).toArray()});
    }
}

QJsonObject Scenario::Joue(char const* operation) {
    QString const nom = QString::fromLatin1(operation);
    int const appel = ++compte_[nom];
    appels_.append(nom);
    for (QJsonValue const valeur : evenements_) {
        QJsonObject e = valeur.toObject();
        bool const lieu = e.value(QLatin1String("op")).toString() == nom &&
                          e.value(QLatin1String("appel")).toInt(appel) == appel;
        if (!lieu) {
            continue;
        }
        if (e.contains(QLatin1String("zones"))) {
            MetsZones(e.value(QLatin1String("zones")).toArray());
        }
        mort = mort || e.value(QLatin1String("mort")).toBool();
        if (e.contains(QLatin1String("avertis"))) {
            DAlerte(nullptr, DAlerteInfo(DAlerteInfo::kQuestion,
                                         UniChaine(e.value(QLatin1String("avertis")).toString()),
                                         UniChaine(), UniChaine()));
        }
        if (e.contains(QLatin1String("leve"))) {
            throw std::runtime_error(e.value(QLatin1String("leve")).toString().toStdString());
        }
        if (e.contains(QLatin1String("leveEntier"))) {
            throw e.value(QLatin1String("leveEntier")).toInt();
        }
        if (e.contains(QLatin1String("imprime"))) {
            std::puts(e.value(QLatin1String("imprime")).toString().toUtf8().constData());
            std::fflush(stdout);
        }
        return e;
    }
    return {};
}

void Scenario::EcrisJournal() const {
    QFile fichier(journal_);
    if (journal_.isEmpty() || !fichier.open(QIODevice::WriteOnly)) {
        return;
    }
    QJsonArray textes;
    for (Zone const& zone : zones) {
        textes.append(zone.texte);
    }
    QJsonObject const journal{{QStringLiteral("zones"), textes},
                              {QStringLiteral("appels"), QJsonArray::fromStringList(appels_)}};
    fichier.write(QJsonDocument(journal).toJson());
}
