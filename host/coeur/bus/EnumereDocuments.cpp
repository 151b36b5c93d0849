// SPDX-License-Identifier: MPL-2.0
#include "EnumereDocuments.h"

#include "Contrat.h"
#include "ProxyDocuments.h"
#include "commun/ErreurHote.h"
#include "commun/MessagesHote.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>
#include <memory>

namespace hote {

namespace {

QString DonnePrefixe() {
    return QLatin1String(contrat::kPrefixeService);
}

/// A connection of its own: whatever companions send here cannot harm the one that the plug-in
/// works on.
class ConnexionPrivee {
  public:
    ConnexionPrivee()
        : bus_(QDBusConnection::connectToBus(QDBusConnection::SessionBus, DonneNom())) {}
    ~ConnexionPrivee() { QDBusConnection::disconnectFromBus(DonneNom()); }
    ConnexionPrivee(ConnexionPrivee const&) = delete;
    ConnexionPrivee& operator=(ConnexionPrivee const&) = delete;

    QDBusConnection const& Donne() const noexcept { return bus_; }

  private:
    static QString DonneNom() { return QStringLiteral("vocalyne-hote-documents"); }

    QDBusConnection bus_;
};

/// Lets events run until all calls are answered or the time is up. (Blocking on a reply would be
/// simpler, but that wait does not end when the bus itself dies.)
void Attends(std::vector<QDBusPendingCall> const& appels, int delaiMs) {
    QEventLoop boucle;
    std::vector<std::unique_ptr<QDBusPendingCallWatcher>> guetteurs;
    std::size_t restants = 0;
    for (QDBusPendingCall const& appel : appels) {
        if (appel.isFinished()) {
            continue;
        }
        ++restants;
        guetteurs.push_back(std::make_unique<QDBusPendingCallWatcher>(appel));
        QObject::connect(guetteurs.back().get(), &QDBusPendingCallWatcher::finished, &boucle, [&] {
            if (--restants == 0) {
                boucle.quit();
            }
        });
    }
    if (restants == 0) {
        return;
    }
    QTimer minuterie;
    QObject::connect(&minuterie, &QTimer::timeout, &boucle, &QEventLoop::quit);
    minuterie.start(std::max(delaiMs, 0));
    boucle.exec();
}

ErreurHote DonneErreurSansBus(QString const& raison) {
    return {kSortieDocument, Tr("Pas de bus de session D-Bus ({1}).", raison)};
}

QStringList DonneServices(QDBusConnection const& bus, int delaiMs) {
    QDBusMessage const demande = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("ListNames"));
    QDBusPendingReply<QStringList> const reponse = bus.asyncCall(demande, delaiMs);
    Attends({reponse}, delaiMs);
    if (!reponse.isFinished()) {
        throw DonneErreurSansBus(QString::fromStdString(Tr("il ne répond pas")));
    }
    if (reponse.isError()) {
        throw DonneErreurSansBus(reponse.error().message());
    }
    QStringList services = reponse.value();
    services.sort();
    return services;
}

void Recueille(QString const& instance, QDBusPendingReply<QString> const& reponse,
               ListeDocuments& liste) {
    if (!reponse.isFinished()) {
        liste.avertissements.push_back(Tr("Le compagnon {1} ne répond pas.", instance));
    } else if (reponse.isError()) {
        liste.avertissements.push_back(Tr("Le compagnon {1} ne donne pas ses documents : {2}",
                                          instance, reponse.error().message()));
    } else {
        LisDocuments(instance, reponse.value(), liste);
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
    ConnexionPrivee const connexion;
    QDBusConnection const& bus = connexion.Donne();
    if (!bus.isConnected()) {
        throw DonneErreurSansBus(bus.lastError().message());
    }

    QStringList instances;
    std::vector<std::unique_ptr<ProxyDocuments>> proxys;
    std::vector<QDBusPendingCall> appels;
    for (QString const& service : DonneServices(bus, delaiMs)) {
        QString const instance = DonneInstance(service);
        if (instance.isEmpty()) {
            continue;
        }
        proxys.push_back(std::make_unique<ProxyDocuments>(
            service, QLatin1String(contrat::kPrefixeChemin) + instance, bus));
        instances.append(instance);
        appels.push_back(proxys.back()->DonneDocuments());
    }
    Attends(appels, reste());

    ListeDocuments liste;
    for (int i = 0; i < instances.size(); ++i) {
        Recueille(instances.at(i), appels[static_cast<std::size_t>(i)], liste);
    }
    return liste;
}

} // namespace hote
