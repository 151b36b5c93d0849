// SPDX-License-Identifier: MPL-2.0
#include "Sonde.h"
#include "coeur/Paragraphes.h"
#include "modele/Utf.h"

#include <string>

int LLVMFuzzerTestOneInput(std::uint8_t const* octets, std::size_t taille) {
    std::string const fichier(octets, octets + taille);
    if (fichier.find('\0') != std::string::npos ||
        compagnon::PremierOctetNonUtf8(fichier) != std::string_view::npos) {
        return 0; // refused before it is cut up
    }
    auto const texte = compagnon::Decoupe(fichier);
    Exige(compagnon::Recompose(texte) == fichier, "the file goes together again byte for byte");
    Exige(texte.paragraphes.size() == compagnon::CompteParagraphes(fichier),
          "the paragraphs are counted right");
    for (auto const& paragraphe : texte.paragraphes) {
        Exige(paragraphe.texte && !compagnon::ContientFinDeLigne(*paragraphe.texte),
              "no paragraph holds a line end");
    }
    return 0;
}
