// SPDX-License-Identifier: MPL-2.0
#include "RapportSur.h"

#include "partage/Messages.h"

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
    return rapport;
}

} // namespace extension
