// SPDX-License-Identifier: MPL-2.0
#include "IdentificateurDocument.h"

#include "Contrat.h"

#include <QStringList>

IdentificateurDocument::IdentificateurDocument(UniChaine const& identificateur) {
    auto const parties = identificateur.VersQString().split(QLatin1Char(contrat::kSeparateur),
                                                            Qt::KeepEmptyParts, Qt::CaseSensitive);
    instance_ = parties.value(0);
    document_ = parties.value(1);
}

QString IdentificateurDocument::DonneService() const {
    return QLatin1String(contrat::kPrefixeService) + instance_;
}

QString IdentificateurDocument::DonneChemin() const {
    return QLatin1String(contrat::kPrefixeChemin) + instance_;
}
