// SPDX-License-Identifier: MPL-2.0
#include "FaisParagraphe.h"

#include "Contrat.h"
#include "Langues.h"

#include <algorithm>

namespace hote {

namespace {

/// The language that a style says, or `langue` where it says none.
QString LisLangue(std::uint16_t style, QString const& langue) {
    if ((style & contrat::kStyleSansCorrection) != 0) {
        return {};
    }
    std::uint8_t const numero = contrat::DonneNumeroDuStyle(style);
    if (numero == 0) {
        return langue;
    }
    auto const etiquette = contrat::DonneEtiquetteDeLangue(numero);
    return QString::fromLatin1(etiquette.data(), static_cast<int>(etiquette.size()));
}

void Ajoute(std::vector<EtendueDeLangue>& langues, int debut, int fin, QString const& langue) {
    if (debut >= fin) {
        return;
    }
    if (!langues.empty() && langues.back().langue == langue) {
        langues.back().fin = fin;
    } else {
        langues.push_back({debut, fin, langue});
    }
}

} // namespace

ParagrapheAExaminer FaisParagraphe(QString const& texte,
                                   std::vector<sdd::PlageAttribut> const& plages,
                                   QString const& langue) {
    ParagrapheAExaminer paragraphe{texte, {}};
    int position = 0;
    for (sdd::PlageAttribut const& plage : plages) {
        // Runs were read with the text, which our own corrections may have shortened since.
        int const debut = std::min(plage.debut, texte.size());
        int const fin = std::min(plage.fin, texte.size());
        Ajoute(paragraphe.langues, position, debut, langue);
        Ajoute(paragraphe.langues, std::max(position, debut), fin,
               LisLangue(plage.attribut, langue));
        position = std::max(position, fin);
    }
    Ajoute(paragraphe.langues, position, texte.size(), langue);
    return paragraphe;
}

void MetsLangue(ParagrapheAExaminer& paragraphe, int debut, int fin, QString const& langue) {
    std::vector<EtendueDeLangue> langues;
    for (EtendueDeLangue const& etendue : paragraphe.langues) {
        Ajoute(langues, etendue.debut, std::min(etendue.fin, debut), etendue.langue);
        Ajoute(langues, std::max(etendue.debut, debut), std::min(etendue.fin, fin), langue);
        Ajoute(langues, std::max(etendue.debut, fin), etendue.fin, etendue.langue);
    }
    paragraphe.langues = std::move(langues);
}

QString DonneLangueSansPays(QString const& langue) {
    return langue.section(QLatin1Char('-'), 0, 0).toLower();
}

} // namespace hote
