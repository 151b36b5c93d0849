// SPDX-License-Identifier: MPL-2.0
#include "eLangue.h"

#include <QByteArray>
#include <QtGlobal>

namespace {

/// The language part of a POSIX locale name: "fr" of "fr_CA.UTF-8@euro".
QByteArray DonnePartieLangue(QByteArray const& locale) {
    int fin = 0;
    while (fin < locale.size() && locale[fin] != '_' && locale[fin] != '.' && locale[fin] != '@') {
        ++fin;
    }
    return locale.left(fin).toLower();
}

} // namespace

eLangue eLangueSelonELangueAffichage(eLangueAffichage affichage) {
    if (affichage == kAffichageFrancais) {
        return kLangueFrancais;
    }
    if (affichage == kAffichageAnglais) {
        return kLangueAnglais;
    }
    // QLocale::system() goes by other categories too (numbers in French make nobody French), and
    // setlocale's state is the host's affair: the variables themselves say what was asked for.
    for (auto const* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        auto const locale = qgetenv(variable);
        if (!locale.isEmpty()) {
            return DonnePartieLangue(locale) == "fr" ? kLangueFrancais : kLangueAnglais;
        }
    }
    return kLangueAnglais;
}
