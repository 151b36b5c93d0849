// SPDX-License-Identifier: MPL-2.0
#include "ParcoursJson.h"

#include <cstring>

namespace {

// Zone, list of runs, run: deeper nesting is for the parser to judge.
constexpr int kProfondeurMax = 8;
constexpr int kChiffresMax = 18;     // any more may not fit in 64 bits
constexpr int kChiffresDUnPetit = 9; // nor in 32

bool EstBlanc(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

} // namespace

void ParcoursJson::PasseBlancs() {
    while (ici_ != fin_ && EstBlanc(*ici_)) {
        ++ici_;
    }
}

bool ParcoursJson::EstALaFin() {
    PasseBlancs();
    return ici_ == fin_;
}

bool ParcoursJson::Prends(char attendu) {
    PasseBlancs();
    if (ici_ == fin_ || *ici_ != attendu) {
        return false;
    }
    ++ici_;
    return true;
}

bool ParcoursJson::PrendsCle(std::string_view& cle) {
    return PrendsTexteSansEchappement(cle) && Prends(':');
}

bool ParcoursJson::PrendsTexteSansEchappement(std::string_view& texte) {
    if (!Prends('"')) {
        return false;
    }
    auto const* const debut = ici_;
    auto const* const guillemet = static_cast<char const*>(std::memchr(ici_, '"', DonneReste()));
    if (guillemet == nullptr) {
        return false;
    }
    texte = std::string_view(debut, static_cast<std::size_t>(guillemet - debut));
    ici_ = guillemet + 1;
    return texte.find('\\') == std::string_view::npos;
}

bool ParcoursJson::PrendsPetitEntier(int& entier) {
    PasseBlancs();
    auto const* chiffre = ici_;
    if (!PasseEntier()) {
        return false;
    }
    bool const negatif = *chiffre == '-';
    chiffre += negatif ? 1 : 0;
    if (ici_ - chiffre > kChiffresDUnPetit) {
        return false;
    }
    int valeur = 0;
    for (; chiffre != ici_; ++chiffre) {
        valeur = valeur * 10 + (*chiffre - '0');
    }
    entier = negatif ? -valeur : valeur;
    return true;
}

ParcoursJson::Verdict ParcoursJson::PrendsValeur(std::string_view& valeur, std::size_t& valeurs) {
    PasseBlancs();
    auto const* const debut = ici_;
    auto const valeursAvant = valeurs;
    auto verdict = Verdict::Juste;
    if (!PasseJuste(0, valeurs)) {
        // Once more, with brackets and texts alone in view.
        ici_ = debut;
        valeurs = valeursAvant;
        if (!PasseCorps(valeurs)) {
            return Verdict::Perdue;
        }
        verdict = Verdict::Douteuse;
    }
    valeur = std::string_view(debut, static_cast<std::size_t>(ici_ - debut));
    return verdict;
}

bool ParcoursJson::PasseJuste(int profondeur, std::size_t& valeurs) {
    ++valeurs;
    if (ici_ == fin_ || profondeur > kProfondeurMax) {
        return false;
    }
    switch (*ici_) {
    case '{':
        ++ici_;
        return PasseMembres('}', profondeur + 1, valeurs);
    case '[':
        ++ici_;
        return PasseMembres(']', profondeur + 1, valeurs);
    case '"':
        ++ici_;
        return PasseTexteSimple();
    case 't':
        return PasseMot("true");
    case 'f':
        return PasseMot("false");
    case 'n':
        return PasseMot("null");
    default:
        return PasseEntier();
    }
}

/// From behind the opening bracket to behind the closing one.
bool ParcoursJson::PasseMembres(char fermante, int profondeur, std::size_t& valeurs) {
    if (Prends(fermante)) {
        return true;
    }
    do {
        if (fermante == '}' && !(Prends('"') && PasseTexteSimple() && Prends(':'))) {
            return false;
        }
        PasseBlancs();
        if (!PasseJuste(profondeur, valeurs)) {
            return false;
        }
    } while (Prends(','));
    return Prends(fermante);
}

/// From inside a text to behind its closing quote; only the escapes of one letter are simple.
bool ParcoursJson::PasseTexteSimple() {
    auto const* guillemet = static_cast<char const*>(std::memchr(ici_, '"', DonneReste()));
    while (guillemet != nullptr) {
        // Texts in Base64 hold no backslash: this looks at each character twice, at full speed.
        auto const* const oblique = static_cast<char const*>(
            std::memchr(ici_, '\\', static_cast<std::size_t>(guillemet - ici_)));
        if (oblique == nullptr) {
            ici_ = guillemet + 1;
            return true;
        }
        ici_ = oblique + 1; // no further than the quote
        if (std::string_view("\"\\/bfnrt").find(*ici_) == std::string_view::npos) {
            return false;
        }
        if (ici_++ == guillemet) {
            guillemet = static_cast<char const*>(std::memchr(ici_, '"', DonneReste()));
        }
    }
    return false;
}

bool ParcoursJson::PasseMot(std::string_view mot) {
    if (std::string_view(ici_, DonneReste()).substr(0, mot.size()) != mot) {
        return false;
    }
    ici_ += mot.size();
    return FinitUnMot();
}

bool ParcoursJson::PasseEntier() {
    if (ici_ != fin_ && *ici_ == '-') {
        ++ici_;
    }
    auto const* const debut = ici_;
    while (ici_ != fin_ && *ici_ >= '0' && *ici_ <= '9') {
        ++ici_;
    }
    return ici_ != debut && ici_ - debut <= kChiffresMax && FinitUnMot();
}

bool ParcoursJson::FinitUnMot() const {
    return ici_ == fin_ || EstBlanc(*ici_) || *ici_ == ',' || *ici_ == ']' || *ici_ == '}';
}

/// Over an object to the bracket that closes it, whatever stands between.
bool ParcoursJson::PasseCorps(std::size_t& valeurs) {
    if (ici_ == fin_ || *ici_ != '{') {
        return false;
    }
    int profondeur = 0;
    do {
        if (ici_ == fin_) {
            return false;
        }
        switch (*ici_++) {
        case '"':
            if (!PasseFinDeTexte()) {
                return false;
            }
            break;
        case '{':
        case '[':
            ++valeurs;
            if (++profondeur > kProfondeurMax) {
                return false;
            }
            break;
        case '}':
        case ']':
            --profondeur;
            break;
        case ',':
            ++valeurs;
            break;
        case '/':
            return false; // a comment: quotes and brackets in it mean nothing
        default:
            break;
        }
    } while (profondeur > 0);
    return true;
}

/// From inside a text to behind its closing quote, whatever its escapes.
bool ParcoursJson::PasseFinDeTexte() {
    while (ici_ != fin_) {
        char const c = *ici_++;
        if (c == '"') {
            return true;
        }
        if (c == '\\' && ici_ != fin_) {
            ++ici_;
        }
    }
    return false;
}
