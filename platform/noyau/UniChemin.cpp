// SPDX-License-Identifier: MPL-2.0
#include "UniChemin.h"

UniChaine UniChemin::DonneNomAffiche() const {
    QString const& chemin = chemin_.VersQString();
    QString const nom = chemin.mid(chemin.lastIndexOf(QLatin1Char('/')) + 1);
    int const point = nom.lastIndexOf(QLatin1Char('.'));
    // A name that begins with its only dot is a hidden file's whole name, not an extension.
    return UniChaine(point > 0 ? nom.left(point) : nom);
}
