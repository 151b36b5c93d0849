// SPDX-License-Identifier: MPL-2.0
#include "Repondeur.h"

#include "Contrat.h"
#include "DocumentDeZones.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QSocketNotifier>
#include <QTimerEvent>

#include <chrono>
#include <cstdio>
#include <unistd.h>

namespace banc {

namespace {
constexpr std::chrono::milliseconds kRetard{100};
} // namespace

QString Repondeur::SynchronisePositions(QString const& leId) {
    if (leId != identifiant_) {
        auto const zones = leId.section(QLatin1Char('~'), 1).toInt();
        document_ = QString::fromStdString(FaisDocument(zones));
        identifiant_ = leId;
    }
    return document_;
}

QString Repondeur::DonneTitreDocument(QDBusMessage const& appel) {
    appel.setDelayedReply(true);
    enAttente_ = appel;
    startTimer(kRetard);
    return {};
}

void Repondeur::timerEvent(QTimerEvent* evenement) {
    killTimer(evenement->timerId());
    QDBusConnection::sessionBus().send(enAttente_.createReply(QStringLiteral("titre")));
}

int Reponds(QString const& instance) {
    auto bus = QDBusConnection::sessionBus();
    Repondeur repondeur;
    if (!bus.registerObject(QLatin1String(contrat::kPrefixeChemin) + instance, &repondeur,
                            QDBusConnection::ExportAllSlots) ||
        !bus.registerService(QLatin1String(contrat::kPrefixeService) + instance)) {
        std::fputs("the bench's companion cannot be published on the session bus\n", stderr);
        return 1;
    }
    std::puts("ready");
    std::fflush(stdout);
    QSocketNotifier fin(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&fin, &QSocketNotifier::activated, QCoreApplication::instance(),
                     &QCoreApplication::quit);
    return QCoreApplication::exec();
}

} // namespace banc
