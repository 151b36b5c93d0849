// SPDX-License-Identifier: MPL-2.0
#include "Renvoi.h"

#include <QFile>
#include <QRegularExpression>

namespace hote {

Renvoi TrouveRenvoi(QString const& nomOperation) {
    QString const operation =
        nomOperation.startsWith(QLatin1Char('~')) ? nomOperation.mid(1) : nomOperation;
    // What a line is that declares it, whatever its comments say of it elsewhere.
    QRegularExpression const declaration(
        QStringLiteral("^(?!\\s*//).*(?:class\\s+%1\\b|(?:virtual|VOCALYNE_EXPORT|UniChaine)\\b"
                       "[^(]*(?<![~\\w])%1\\()")
            .arg(QRegularExpression::escape(operation)));
    for (char const* nom : {"Exports.h", "InterfaceTexteur.h", "InterfaceAgentTexteur.h",
                            "InterfaceZoneDeTexte.h", "CollectionZonesDeTexte.h"}) {
        QFile entete(QStringLiteral(":/entetes/") + QLatin1String(nom));
        if (!entete.open(QIODevice::ReadOnly | QIODevice::Text)) {
            continue;
        }
        auto const lignes = QString::fromUtf8(entete.readAll()).split(QLatin1Char('\n'));
        for (int i = 0; i < lignes.size(); ++i) {
            if (declaration.match(lignes.at(i)).hasMatch() &&
                !lignes.at(i).endsWith(QStringLiteral("class %1;").arg(operation))) {
                return {QLatin1String(nom), i + 1};
            }
        }
    }
    return {};
}

} // namespace hote
