// SPDX-License-Identifier: MPL-2.0
#include "RapportSur.h"

#include "partage/Messages.h"

#include <utility>

namespace extension {

namespace {

/// Something that a document has several of: how it is told of one, and of "{1}".
struct Reste {
    char const* code;
    compagnon::Bilingue un;
    compagnon::Bilingue plusieurs;
};

constexpr Reste kProteges{"protege",
                          {"1 paragraphe est protégé", "1 paragraph is protected"},
                          {"{1} paragraphes sont protégés", "{1} paragraphs are protected"}};

/// What is not read, by reason.
constexpr std::pair<compagnon::RaisonNonLu, Reste> kNonLus[] = {
    {compagnon::RaisonNonLu::Choix,
     {"choix",
      {"1 choix dans une liste, ou une date, n’est pas lu",
       "1 choice from a list, or date, is not read"},
      {"{1} choix dans des listes, ou dates, ne sont pas lus",
       "{1} choices from lists, or dates, are not read"}}},
    {compagnon::RaisonNonLu::Masque,
     {"masque",
      {"1 passage masqué n’est pas lu", "1 hidden passage is not read"},
      {"{1} passages masqués ne sont pas lus", "{1} hidden passages are not read"}}},
    {compagnon::RaisonNonLu::Supprime,
     {"supprime",
      {"1 passage supprimé (modifications suivies) n’est pas lu",
       "1 deleted passage (tracked changes) is not read"},
      {"{1} passages supprimés (modifications suivies) ne sont pas lus",
       "{1} deleted passages (tracked changes) are not read"}}},
    {compagnon::RaisonNonLu::Saisie,
     {"saisie",
      {"1 champ de saisie de plusieurs lignes n’est pas lu",
       "1 input field of several lines is not read"},
      {"{1} champs de saisie de plusieurs lignes ne sont pas lus",
       "{1} input fields of several lines are not read"}}},
    {compagnon::RaisonNonLu::Genere,
     {"genere",
      {"1 passage que la suite produit (index, table, tableau croisé) n’est pas lu",
       "1 passage made by the office (index, contents, pivot table) is not read"},
      {"{1} passages que la suite produit (index, table, tableau croisé) ne sont pas lus",
       "{1} passages made by the office (index, contents, pivot table) are not read"}}},
};

void Ajoute(compagnon::Rapport& rapport, Reste const& reste, std::size_t nombre) {
    rapport.Laisse(
        reste.code, nombre,
        compagnon::Dis(nombre == 1 ? reste.un : reste.plusieurs, {std::to_string(nombre)}));
}

} // namespace

compagnon::Rapport RapportSur(DocumentOuvert const& document) {
    compagnon::Rapport rapport(document.DonneGenre(), document.DonneLangue(),
                               document.DonneNombreDeZones(), document.EstEnLectureSeule());
    Ajoute(rapport, kProteges, document.CompteProtegees());
    for (auto const& [raison, reste] : kNonLus) {
        Ajoute(rapport, reste, document.DonneNonLus().Donne(raison));
    }
    return rapport;
}

} // namespace extension
