// SPDX-License-Identifier: MPL-2.0
#include "AppelsNotes.h"

#include <QDBusAbstractInterface>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCall>

#include <stdexcept>
#include <utility>

namespace {

std::vector<appelsNotes::Appel> lesAppels;
bool leRefus = false;
bool laLevee = false;

} // namespace

// The program's own definition comes before the library's, for the generated proxy as well.
QDBusPendingCall QDBusAbstractInterface::asyncCallWithArgumentList(QString const& method,
                                                                   QList<QVariant> const& args) {
    lesAppels.push_back({service(), method, args, timeout()});
    if (laLevee) {
        throw std::runtime_error("sending");
    }
    if (leRefus) {
        return QDBusPendingCall::fromError(
            QDBusError(QDBusError::Disconnected, QStringLiteral("refused")));
    }
    return QDBusPendingCall::fromCompletedCall(
        QDBusMessage::createMethodCall(service(), path(), interface(), method).createReply());
}

std::vector<appelsNotes::Appel> appelsNotes::Prends() {
    return std::exchange(lesAppels, {});
}

void appelsNotes::Refuse(bool refuse) {
    leRefus = refuse;
}

void appelsNotes::Leve(bool leve) {
    laLevee = leve;
}

bool appelsNotes::operator==(Appel const& a, Appel const& b) {
    if (a.service != b.service || a.methode != b.methode || a.delai != b.delai ||
        a.arguments.size() != b.arguments.size()) {
        return false;
    }
    // QVariant's own comparison converts between types; on the wire they differ.
    for (int i = 0; i < a.arguments.size(); ++i) {
        if (a.arguments[i].userType() != b.arguments[i].userType() ||
            a.arguments[i] != b.arguments[i]) {
            return false;
        }
    }
    return true;
}

void appelsNotes::PrintTo(Appel const& appel, std::ostream* sortie) {
    *sortie << appel.methode.toStdString() << '(';
    for (auto const& argument : appel.arguments) {
        *sortie << argument.typeName() << ' ' << argument.toString().toStdString() << ", ";
    }
    *sortie << ") to " << appel.service.toStdString() << " within " << appel.delai;
}
