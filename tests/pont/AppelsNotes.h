// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QList>
#include <QString>
#include <QVariant>

#include <ostream>
#include <vector>

/// What the proxies of this program sent: AppelsNotes.cpp stands in for QtDBus's sending operation,
/// so that nothing leaves and nobody has to answer.
namespace appelsNotes {

struct Appel {
    QString service;
    QString methode;
    QList<QVariant> arguments;
    int delai; ///< the proxy's time-out at that moment
};

/// The calls since the last time this was asked.
std::vector<Appel> Prends();

/// Are calls refused at once, as where there is no bus? Otherwise they count as sent.
void Refuse(bool refuse);

/// Does sending throw a std::runtime_error, once it is noted?
void Leve(bool leve);

bool operator==(Appel const& a, Appel const& b);
void PrintTo(Appel const& appel, std::ostream* sortie);

} // namespace appelsNotes
