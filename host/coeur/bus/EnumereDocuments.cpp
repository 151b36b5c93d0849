// SPDX-License-Identifier: MPL-2.0
#include "EnumereDocuments.h"

#include "ConnexionPrivee.h"
#include "Contrat.h"
#include "Questions.h"
#include "commun/ErreurHote.h"
#include "commun/MessagesHote.h"

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QElapsedTimer>

#include <algorithm>

namespace hote {

namespace {

QString DonnePrefixe() {
    return QLatin1String(contrat::kPrefixeService);
}

ErreurHote DonneErreurSansBus(std::string const& raison) {
    return {kSortieDocument, Tr("Pas de bus de session D-Bus ({1}).", raison)};
}

void AvertisUsurpation(QString const& instance, ListeDocuments& liste) {
    liste.avertissements.push_back(
        Tr("Un autre programme répond à la place du compagnon {1} : ses documents manquent.",
           instance));
}

/// A companion by its name on the bus, and whoever has that now.
struct Compagnon {
    QString instance;
    QString proprietaire;
};

std::vector<Compagnon> DonneCompagnons(QDBusConnection const& bus, int delaiMs,
                                       ListeDocuments& liste) {
    auto const noms = Pose(bus, {QuestionAuBus(QStringLiteral("ListNames"))}, delaiMs).front();
    if (noms.genre == Reponse::Genre::Usurpee) {
        throw DonneErreurSansBus(Tr("un autre programme répond à sa place"));
    }
    if (noms.genre == Reponse::Genre::Muette) {
        throw DonneErreurSansBus(Tr("il ne répond pas"));
    }
    if (noms.message.type() == QDBusMessage::ErrorMessage) {
        throw DonneErreurSansBus(noms.message.errorMessage().toStdString());
    }
    QStringList services = noms.message.arguments().value(0).toStringList();
    services.sort();
    std::vector<Compagnon> compagnons;
    std::vector<QDBusMessage> questions;
    for (QString const& service : services) {
        QString const instance = DonneInstance(service);
        if (!instance.isEmpty()) {
            compagnons.push_back({instance, {}});
            questions.push_back(QuestionAuBus(QStringLiteral("GetNameOwner"), {service}));
        }
    }
    auto const reponses = Pose(bus, questions, delaiMs);
    for (std::size_t i = 0; i < compagnons.size(); ++i) {
        // Without an owner it has left meanwhile, and is none any more.
        compagnons[i].proprietaire = reponses[i].message.arguments().value(0).toString();
        if (reponses[i].genre == Reponse::Genre::Usurpee) {
            AvertisUsurpation(compagnons[i].instance, liste);
        }
    }
    return compagnons;
}

void Recueille(QString const& instance, Reponse const& reponse, ListeDocuments& liste) {
    if (reponse.genre == Reponse::Genre::Usurpee) {
        AvertisUsurpation(instance, liste);
    } else if (reponse.genre == Reponse::Genre::Muette) {
        liste.avertissements.push_back(Tr("Le compagnon {1} ne répond pas.", instance));
    } else if (reponse.message.type() == QDBusMessage::ErrorMessage) {
        liste.avertissements.push_back(Tr("Le compagnon {1} ne donne pas ses documents : {2}",
                                          instance, reponse.message.errorMessage()));
    } else {
        LisDocuments(instance, reponse.message.arguments().value(0).toString(), liste);
    }
}

} // namespace

QString DonneInstance(QString const& service) {
    if (!service.startsWith(DonnePrefixe())) {
        return {};
    }
    QString const instance = service.mid(DonnePrefixe().size());
    return contrat::EstInstanceValide(instance.toStdString()) ? instance : QString();
}

ListeDocuments EnumereDocuments(int delaiMs) {
    QElapsedTimer montre;
    montre.start();
    auto const reste = [&] { return delaiMs - static_cast<int>(montre.elapsed()); };
    ConnexionPrivee const connexion(QStringLiteral("vocalyne-hote-documents"));
    QDBusConnection const& bus = connexion.Donne();
    if (!bus.isConnected()) {
        throw DonneErreurSansBus(bus.lastError().message().toStdString());
    }

    ListeDocuments liste;
    auto compagnons = DonneCompagnons(bus, reste(), liste);
    compagnons.erase(std::remove_if(compagnons.begin(), compagnons.end(),
                                    [](auto const& c) { return c.proprietaire.isEmpty(); }),
                     compagnons.end());
    std::vector<QDBusMessage> questions;
    questions.reserve(compagnons.size());
    for (Compagnon const& compagnon : compagnons) {
        questions.push_back(QDBusMessage::createMethodCall(
            compagnon.proprietaire, QLatin1String(contrat::kPrefixeChemin) + compagnon.instance,
            QLatin1String(contrat::kInterfaceDocuments), QStringLiteral("DonneDocuments")));
    }
    auto const reponses = Pose(bus, questions, reste());
    for (std::size_t i = 0; i < compagnons.size(); ++i) {
        Recueille(compagnons[i].instance, reponses[i], liste);
    }
    return liste;
}

} // namespace hote
