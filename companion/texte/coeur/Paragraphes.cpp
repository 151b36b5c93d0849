// SPDX-License-Identifier: MPL-2.0
#include "Paragraphes.h"

#include "modele/Utf.h"

namespace compagnon {

namespace {

constexpr std::string_view kMarque = "\xEF\xBB\xBF";

struct LigneDeFichier {
    std::string_view texte;
    FinDeLigne fin;
};

/// The first line of what is left, taken off it.
LigneDeFichier PrendsLigne(std::string_view& reste) noexcept {
    std::size_t const longueur = reste.find_first_of("\r\n");
    if (longueur == std::string_view::npos) {
        LigneDeFichier const derniere{reste, FinDeLigne::Aucune};
        reste = {};
        return derniere;
    }
    FinDeLigne fin = FinDeLigne::LineFeed;
    if (reste[longueur] == '\r') {
        fin = reste.substr(longueur, 2) == "\r\n" ? FinDeLigne::Les2 : FinDeLigne::RetourChariot;
    }
    LigneDeFichier const ligne{reste.substr(0, longueur), fin};
    reste.remove_prefix(longueur + Octets(fin).size());
    return ligne;
}

bool CommenceParMarque(std::string_view octets) noexcept {
    return octets.substr(0, kMarque.size()) == kMarque;
}

} // namespace

std::string_view Octets(FinDeLigne fin) noexcept {
    switch (fin) {
    case FinDeLigne::LineFeed:
        return "\n";
    case FinDeLigne::RetourChariot:
        return "\r";
    case FinDeLigne::Les2:
        return "\r\n";
    case FinDeLigne::Aucune:
        break;
    }
    return "";
}

std::size_t CompteParagraphes(std::string_view octets) noexcept {
    if (CommenceParMarque(octets)) {
        octets.remove_prefix(kMarque.size());
    }
    std::size_t nombre = 0;
    do {
        PrendsLigne(octets);
        ++nombre;
    } while (!octets.empty());
    return nombre;
}

TexteDecoupe Decoupe(std::string_view octets) {
    TexteDecoupe resultat;
    resultat.paragraphes.reserve(CompteParagraphes(octets));
    resultat.marque = CommenceParMarque(octets);
    if (resultat.marque) {
        octets.remove_prefix(kMarque.size());
    }
    do {
        LigneDeFichier const ligne = PrendsLigne(octets);
        resultat.paragraphes.push_back({std::make_shared<std::u16string const>(
                                            Utf8VersUtf16(ligne.texte).value_or(std::u16string())),
                                        ligne.fin});
    } while (!octets.empty());
    return resultat;
}

std::string Recompose(TexteDecoupe const& texte) {
    std::string octets;
    if (texte.marque) {
        octets += kMarque;
    }
    for (Paragraphe const& paragraphe : texte.paragraphes) {
        AjouteUtf8(*paragraphe.texte, octets);
        octets += Octets(paragraphe.fin);
    }
    return octets;
}

bool ContientFinDeLigne(std::u16string_view texte) noexcept {
    return texte.find_first_of(u"\r\n") != std::u16string_view::npos;
}

} // namespace compagnon
