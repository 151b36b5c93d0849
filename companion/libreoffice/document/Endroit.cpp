// SPDX-License-Identifier: MPL-2.0
#include "Endroit.h"

#include "modele/Utf.h"
#include "partage/Messages.h"

#include <algorithm>

namespace extension {

namespace {

using compagnon::Dis;
using Genre = Endroit::Genre;

/// How a kind of place is called: by its name "{1}" where it has one, else by its number "{1}".
struct Mots {
    compagnon::Bilingue parNom;
    compagnon::Bilingue parNumero;
};

Mots MotsDe(Genre genre) {
    switch (genre) {
    case Genre::EnTete:
        return {{"en-tête de page «\u00a0{1}\u00a0»", "page header “{1}”"},
                {"en-tête de page", "page header"}};
    case Genre::PiedDePage:
        return {{"pied de page «\u00a0{1}\u00a0»", "page footer “{1}”"},
                {"pied de page", "page footer"}};
    case Genre::Note:
        return {{"note {1}", "footnote {1}"}, {"note {1}", "footnote {1}"}};
    case Genre::NoteDeFin:
        return {{"note de fin {1}", "endnote {1}"}, {"note de fin {1}", "endnote {1}"}};
    case Genre::Commentaire:
        return {{"commentaire {1}", "comment {1}"}, {"commentaire {1}", "comment {1}"}};
    case Genre::Cadre:
        return {{"cadre «\u00a0{1}\u00a0»", "frame “{1}”"}, {"cadre {1}", "frame {1}"}};
    case Genre::Forme:
        return {{"forme «\u00a0{1}\u00a0»", "shape “{1}”"}, {"forme {1}", "shape {1}"}};
    case Genre::Titre:
        return {{"titre", "title"}, {"titre", "title"}};
    case Genre::Tableau:
        return {{"tableau «\u00a0{1}\u00a0»", "table “{1}”"}, {"tableau {1}", "table {1}"}};
    case Genre::Diapo:
        return {{"diapo {1}", "slide {1}"}, {"diapo {1}", "slide {1}"}};
    case Genre::Notes:
        return {{"notes", "notes"}, {"notes", "notes"}};
    case Genre::Page:
        return {{"page {1}", "page {1}"}, {"page {1}", "page {1}"}};
    case Genre::Corps:
        return {{"texte", "text"}, {"texte", "text"}};
    case Genre::CelluleDeTableau:
    case Genre::Feuille:
    case Genre::Cellule:
        break;
    }
    return {{"{1}", "{1}"}, {"{1}", "{1}"}};
}

std::string DisEndroit(Endroit const& endroit) {
    Endroit const* const autour = endroit.autour.get();
    if (endroit.genre == Genre::Commentaire && autour && autour->genre == Genre::Cellule) {
        return Dis({"commentaire de {1}", "comment of {1}"}, {DisEndroit(*autour)});
    }
    Mots const mots = MotsDe(endroit.genre);
    std::string ici = endroit.nom.empty()
                          ? Dis(mots.parNumero, {std::to_string(endroit.numero)})
                          : Dis(mots.parNom, {compagnon::Utf16VersUtf8(endroit.nom)});
    if (!autour) {
        return ici;
    }
    // A sheet's name is no word: "A4 (Sheet1)".
    return autour->genre == Genre::Feuille ? ici + " (" + DisEndroit(*autour) + ")"
                                           : DisEndroit(*autour) + ", " + ici;
}

} // namespace

std::string DisLieu(Lieu const& lieu) {
    if (!lieu.endroit) {
        return {};
    }
    std::string paragraphe = Dis({"paragraphe {1}", "paragraph {1}"}, {std::to_string(lieu.rang)});
    if (lieu.endroit->genre == Genre::Corps) {
        return paragraphe;
    }
    std::string const endroit = DisEndroit(*lieu.endroit);
    return lieu.rang > 1 ? endroit + ", " + paragraphe : endroit;
}

std::u16string NomDeCellule(int colonne, int ligne) {
    std::u16string lettres;
    for (int reste = colonne + 1; reste > 0; reste = (reste - 1) / 26) {
        lettres.insert(lettres.begin(), static_cast<char16_t>(u'A' + (reste - 1) % 26));
    }
    std::string const chiffres = std::to_string(ligne + 1);
    return lettres + std::u16string(chiffres.begin(), chiffres.end());
}

} // namespace extension
