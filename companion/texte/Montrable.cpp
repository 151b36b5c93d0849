// SPDX-License-Identifier: MPL-2.0
#include "Montrable.h"

#include "ChainesQt.h"

#include <QChar>
#include <QVector>

namespace compagnon {

namespace {

bool SeMontre(uint caractere) {
    switch (QChar::category(caractere)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return true;
    }
}

} // namespace

std::string Montrable(std::string const& texte) {
    QString montre;
    for (uint const caractere : VersQString(texte).toUcs4()) {
        if (SeMontre(caractere)) {
            montre += QString::fromUcs4(&caractere, 1);
        } else {
            montre += QStringLiteral("<U+%1>").arg(QString::number(caractere, 16).toUpper(), 4,
                                                   QLatin1Char('0'));
        }
    }
    return VersUtf8(montre);
}

} // namespace compagnon
