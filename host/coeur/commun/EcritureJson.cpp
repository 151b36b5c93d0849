// SPDX-License-Identifier: MPL-2.0
#include "EcritureJson.h"

namespace hote {

namespace {

bool EstAEchapper(ushort unite) {
    return unite < 0x20 || (unite >= 0x7F && unite < 0xA0) || unite == 0x2028 || unite == 0x2029;
}

QString Echappe(QChar unite) {
    return QStringLiteral("\\u%1").arg(unite.unicode(), 4, 16, QLatin1Char('0'));
}

} // namespace

EcritureJson& EcritureJson::EcrisCle(char const* nom) {
    EcrisVirgule();
    json_ += '"';
    json_ += nom;
    json_ += "\":";
    virgule_ = false;
    return *this;
}

EcritureJson& EcritureJson::EcrisTexte(QString const& texte) {
    EcrisVirgule();
    QString echappe;
    echappe.reserve(texte.size() + 2);
    echappe += QLatin1Char('"');
    for (int i = 0; i < texte.size(); ++i) {
        QChar const unite = texte.at(i);
        if (unite == QLatin1Char('"') || unite == QLatin1Char('\\')) {
            echappe += QLatin1Char('\\');
            echappe += unite;
        } else if (unite == QLatin1Char('\n')) {
            echappe += QLatin1String("\\n");
        } else if (unite == QLatin1Char('\t')) {
            echappe += QLatin1String("\\t");
        } else if (unite.isHighSurrogate() && i + 1 < texte.size() &&
                   texte.at(i + 1).isLowSurrogate()) {
            echappe += unite;
            echappe += texte.at(++i);
        } else if (unite.isSurrogate() || EstAEchapper(unite.unicode())) {
            echappe += Echappe(unite);
        } else {
            echappe += unite;
        }
    }
    echappe += QLatin1Char('"');
    json_ += echappe.toStdString();
    virgule_ = true;
    return *this;
}

EcritureJson& EcritureJson::EcrisEntier(long long valeur) {
    return EcrisBrut(std::to_string(valeur));
}

EcritureJson& EcritureJson::EcrisBooleen(bool valeur) {
    return EcrisBrut(valeur ? "true" : "false");
}

EcritureJson& EcritureJson::EcrisNul() {
    return EcrisBrut("null");
}

EcritureJson& EcritureJson::EcrisBrut(std::string const& json) {
    EcrisVirgule();
    json_ += json;
    virgule_ = true;
    return *this;
}

EcritureJson& EcritureJson::Ouvre(char signe) {
    EcrisVirgule();
    json_ += signe;
    virgule_ = false;
    return *this;
}

EcritureJson& EcritureJson::Ferme(char signe) {
    json_ += signe;
    virgule_ = true;
    return *this;
}

void EcritureJson::EcrisVirgule() {
    if (virgule_) {
        json_ += ',';
    }
}

} // namespace hote
