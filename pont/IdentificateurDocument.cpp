// SPDX-License-Identifier: MPL-2.0
#include "IdentificateurDocument.h"

#include <QStringList>

IdentificateurDocument::IdentificateurDocument(UniChaine const& identificateur) {
    auto const parties =
        identificateur.VersQString().split(QLatin1Char('~'), Qt::KeepEmptyParts, Qt::CaseSensitive);
    instance_ = parties.value(0);
    document_ = parties.value(1);
}

QString IdentificateurDocument::DonneService() const {
    return QStringLiteral("com.ombrel.vocalyne.texteurs.OpenOffice.") + instance_;
}

QString IdentificateurDocument::DonneChemin() const {
    return QStringLiteral("/com/ombrel/vocalyne/texteurs/OpenOffice/") + instance_;
}
