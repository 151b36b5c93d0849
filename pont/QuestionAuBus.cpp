// SPDX-License-Identifier: MPL-2.0
#include "QuestionAuBus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>

#include <algorithm>
#include <thread>

namespace {

using Horloge = std::chrono::steady_clock;
using std::chrono::microseconds;
using std::chrono::milliseconds;

/// How often the bus is asked anew when somebody else has answered.
constexpr int kEssais = 8;

} // namespace

namespace questionAuBus {

// QtDBus' own wait has no limit of its own and does not end when the bus goes away, so the call is
// looked at again and again: at once at first, then after pauses that grow with the time waited, so
// that they never add more than a sixteenth to it. The bus is looked at only from then on: that
// takes the lock under which the reply would come in.
bool AttendsLaFin(QDBusConnection const& bus, QDBusPendingCall const& appel, milliseconds delai) {
    constexpr microseconds kSansPause{1000};
    constexpr microseconds kPauseMax{5000};
    auto const depart = Horloge::now();
    while (!appel.isFinished()) {
        auto const attendu = std::chrono::duration_cast<microseconds>(Horloge::now() - depart);
        if (attendu < kSansPause) {
            std::this_thread::yield();
            continue;
        }
        if (attendu >= delai || !bus.isConnected()) {
            return appel.isFinished();
        }
        std::this_thread::sleep_for(std::min(attendu / 16, kPauseMax));
    }
    return true;
}

std::optional<QVariant> Demande(QDBusConnection const& bus, QString const& methode,
                                QVariantList const& arguments, milliseconds delai) {
    auto const nomDuBus = QStringLiteral("org.freedesktop.DBus");
    auto demande = QDBusMessage::createMethodCall(nomDuBus, QStringLiteral("/org/freedesktop/DBus"),
                                                  nomDuBus, methode);
    demande.setArguments(arguments);
    auto const echeance = Horloge::now() + delai;
    for (int essai = 0; essai < kEssais; ++essai) {
        auto const reste = std::max(
            std::chrono::duration_cast<milliseconds>(echeance - Horloge::now()), milliseconds(1));
        auto const appel = bus.asyncCall(demande, static_cast<int>(reste.count()));
        if (!AttendsLaFin(bus, appel, reste)) {
            return std::nullopt;
        }
        // The bus itself is the only one that can sign with its name.
        auto const reponse = appel.reply();
        if (reponse.service() == nomDuBus) {
            return appel.isError() ? QVariant() : reponse.arguments().value(0);
        }
        if (reponse.service().isEmpty()) {
            return std::nullopt; // made up on this side: no connection, no reply
        }
    }
    return std::nullopt;
}

} // namespace questionAuBus
