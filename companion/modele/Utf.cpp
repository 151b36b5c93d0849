// SPDX-License-Identifier: MPL-2.0
#include "Utf.h"

#include "Frontieres.h"

namespace compagnon {

namespace {

bool EstPaire(std::u16string_view texte, std::size_t position) noexcept {
    return EstSurrogatHaut(texte[position]) && position + 1 < texte.size() &&
           EstSurrogatBas(texte[position + 1]);
}

bool EstIntransportable(char16_t unite) noexcept {
    return unite == 0 || EstSurrogatHaut(unite) || EstSurrogatBas(unite);
}

void AjouteOctet(std::string& sortie, char32_t valeur) {
    sortie.push_back(static_cast<char>(static_cast<unsigned char>(valeur)));
}

void AjoutePoint(std::string& sortie, char32_t point) {
    if (point < 0x80) {
        AjouteOctet(sortie, point);
    } else if (point < 0x800) {
        AjouteOctet(sortie, 0xC0 | (point >> 6));
        AjouteOctet(sortie, 0x80 | (point & 0x3F));
    } else if (point < 0x10000) {
        AjouteOctet(sortie, 0xE0 | (point >> 12));
        AjouteOctet(sortie, 0x80 | ((point >> 6) & 0x3F));
        AjouteOctet(sortie, 0x80 | (point & 0x3F));
    } else {
        AjouteOctet(sortie, 0xF0 | (point >> 18));
        AjouteOctet(sortie, 0x80 | ((point >> 12) & 0x3F));
        AjouteOctet(sortie, 0x80 | ((point >> 6) & 0x3F));
        AjouteOctet(sortie, 0x80 | (point & 0x3F));
    }
}

struct Sequence {
    std::size_t longueur = 0; // 0: not UTF-8
    char32_t point = 0;
};

Sequence LisSequence(std::string_view octets, std::size_t position) noexcept {
    auto const octet = [&](std::size_t i) {
        return static_cast<char32_t>(static_cast<unsigned char>(octets[position + i]));
    };
    char32_t const tete = octet(0);
    if (tete < 0x80) {
        return {1, tete};
    }
    std::size_t longueur = 0;
    char32_t minimum = 0;
    char32_t point = 0;
    if ((tete & 0xE0) == 0xC0) {
        longueur = 2;
        minimum = 0x80;
        point = tete & 0x1F;
    } else if ((tete & 0xF0) == 0xE0) {
        longueur = 3;
        minimum = 0x800;
        point = tete & 0x0F;
    } else if ((tete & 0xF8) == 0xF0) {
        longueur = 4;
        minimum = 0x10000;
        point = tete & 0x07;
    } else {
        return {};
    }
    if (octets.size() - position < longueur) {
        return {};
    }
    for (std::size_t i = 1; i < longueur; ++i) {
        if ((octet(i) & 0xC0) != 0x80) {
            return {};
        }
        point = (point << 6) | (octet(i) & 0x3F);
    }
    if (point < minimum || point > 0x10FFFF || (point >= 0xD800 && point <= 0xDFFF)) {
        return {};
    }
    return {longueur, point};
}

} // namespace

bool EstTransportable(std::u16string_view texte) noexcept {
    for (std::size_t i = 0; i < texte.size(); ++i) {
        if (EstPaire(texte, i)) {
            ++i;
        } else if (EstIntransportable(texte[i])) {
            return false;
        }
    }
    return true;
}

std::u16string RendsTransportable(std::u16string_view texte) {
    std::u16string resultat(texte);
    for (std::size_t i = 0; i < resultat.size(); ++i) {
        if (EstPaire(resultat, i)) {
            ++i;
        } else if (EstIntransportable(resultat[i])) {
            resultat[i] = kRemplissage;
        }
    }
    return resultat;
}

std::u16string RendsEnvoyable(std::u16string_view texte) {
    std::u16string resultat = RendsTransportable(texte);
    if (!resultat.empty() && resultat[0] == u'\uFEFF') {
        resultat[0] = kRemplissage;
    }
    return resultat;
}

void AjouteUtf8(std::u16string_view texte, std::string& sortie) {
    for (std::size_t i = 0; i < texte.size(); ++i) {
        char16_t const unite = texte[i];
        if (unite < 0x80 && unite != 0) {
            sortie.push_back(static_cast<char>(unite));
        } else if (EstPaire(texte, i)) {
            AjoutePoint(sortie, 0x10000 + ((char32_t{unite} - 0xD800) << 10) +
                                    (char32_t{texte[i + 1]} - 0xDC00));
            ++i;
        } else {
            AjoutePoint(sortie, EstIntransportable(unite) ? kRemplissage : unite);
        }
    }
}

std::size_t OctetsEnUtf8(std::u16string_view texte) noexcept {
    std::size_t octets = 0;
    for (char16_t const unite : texte) {
        bool const demie = unite >= 0xD800 && unite < 0xE000; // a pair takes four
        octets += unite < 0x80 ? 1U : unite < 0x800 || demie ? 2U : 3U;
    }
    return octets;
}

std::string Utf16VersUtf8(std::u16string_view texte) {
    std::string resultat;
    resultat.reserve(texte.size());
    AjouteUtf8(texte, resultat);
    return resultat;
}

std::optional<std::u16string> Utf8VersUtf16(std::string_view octets) {
    std::u16string resultat;
    resultat.reserve(octets.size());
    for (std::size_t position = 0; position < octets.size();) {
        Sequence const lue = LisSequence(octets, position);
        if (lue.longueur == 0) {
            return std::nullopt;
        }
        if (lue.point < 0x10000) {
            resultat.push_back(static_cast<char16_t>(lue.point));
        } else {
            resultat.push_back(static_cast<char16_t>(0xD800 + ((lue.point - 0x10000) >> 10)));
            resultat.push_back(static_cast<char16_t>(0xDC00 + ((lue.point - 0x10000) & 0x3FF)));
        }
        position += lue.longueur;
    }
    return resultat;
}

std::size_t PremierOctetNonUtf8(std::string_view octets) noexcept {
    for (std::size_t position = 0; position < octets.size();) {
        Sequence const lue = LisSequence(octets, position);
        if (lue.longueur == 0) {
            return position;
        }
        position += lue.longueur;
    }
    return std::string_view::npos;
}

} // namespace compagnon
