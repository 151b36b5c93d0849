// SPDX-License-Identifier: MPL-2.0
#include "EcritureJson.h"

namespace hote {

namespace {

void AjouteEchappee(std::string& json, unsigned unite) {
    static char const chiffres[] = "0123456789abcdef";
    json += "\\u";
    for (int decalage = 12; decalage >= 0; decalage -= 4) {
        json += chiffres[(unite >> decalage) & 0xFU];
    }
}

bool EstAEchapper(unsigned unite) {
    return unite < 0x20 || (unite >= 0x7F && unite < 0xA0) || unite == 0x2028 || unite == 0x2029;
}

void AjouteUtf8(std::string& json, char32_t code) {
    auto const octet = [&json](char32_t valeur) { json += static_cast<char>(valeur); };
    if (code < 0x80) {
        octet(code);
    } else if (code < 0x800) {
        octet(0xC0 | (code >> 6));
        octet(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
        octet(0xE0 | (code >> 12));
        octet(0x80 | ((code >> 6) & 0x3F));
        octet(0x80 | (code & 0x3F));
    } else {
        octet(0xF0 | (code >> 18));
        octet(0x80 | ((code >> 12) & 0x3F));
        octet(0x80 | ((code >> 6) & 0x3F));
        octet(0x80 | (code & 0x3F));
    }
}

} // namespace

EcritureJson& EcritureJson::Cle(char const* nom) {
    Virgule();
    json_ += '"';
    json_ += nom;
    json_ += "\":";
    virgule_ = false;
    return *this;
}

EcritureJson& EcritureJson::Texte(QString const& texte) {
    Virgule();
    json_ += '"';
    for (int i = 0; i < texte.size(); ++i) {
        QChar const unite = texte.at(i);
        if (unite == QLatin1Char('"') || unite == QLatin1Char('\\')) {
            json_ += '\\';
            json_ += static_cast<char>(unite.unicode());
        } else if (unite == QLatin1Char('\n')) {
            json_ += "\\n";
        } else if (unite == QLatin1Char('\t')) {
            json_ += "\\t";
        } else if (unite.isHighSurrogate() && i + 1 < texte.size() &&
                   texte.at(i + 1).isLowSurrogate()) {
            AjouteUtf8(json_, QChar::surrogateToUcs4(unite, texte.at(i + 1)));
            ++i;
        } else if (unite.isSurrogate() || EstAEchapper(unite.unicode())) {
            AjouteEchappee(json_, unite.unicode());
        } else {
            AjouteUtf8(json_, unite.unicode());
        }
    }
    json_ += '"';
    virgule_ = true;
    return *this;
}

EcritureJson& EcritureJson::Entier(long long valeur) {
    return Brut(std::to_string(valeur));
}

EcritureJson& EcritureJson::Booleen(bool valeur) {
    return Brut(valeur ? "true" : "false");
}

EcritureJson& EcritureJson::Nul() {
    return Brut("null");
}

EcritureJson& EcritureJson::Brut(std::string const& json) {
    Virgule();
    json_ += json;
    virgule_ = true;
    return *this;
}

EcritureJson& EcritureJson::Ouvre(char signe) {
    Virgule();
    json_ += signe;
    virgule_ = false;
    return *this;
}

EcritureJson& EcritureJson::Ferme(char signe) {
    json_ += signe;
    virgule_ = true;
    return *this;
}

void EcritureJson::Virgule() {
    if (virgule_) {
        json_ += ',';
    }
}

} // namespace hote
