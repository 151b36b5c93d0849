// SPDX-License-Identifier: MPL-2.0
#include "IdentificateurDocument.h"
#include "Sonde.h"

#include <cstring>
#include <vector>

int LLVMFuzzerTestOneInput(std::uint8_t const* octets, std::size_t taille) {
    // Two bytes a unit: every unit there is, halves of pairs and U+0000 too.
    std::vector<char16_t> unites(taille / 2);
    if (!unites.empty()) {
        std::memcpy(unites.data(), octets, unites.size() * 2);
    }
    UniChaine const texte(unites.data(), static_cast<int>(unites.size()));
    IdentificateurDocument const identificateur(texte);

    auto const prefixe = QString::fromLatin1("com.ombrel.vocalyne.texteurs.OpenOffice.");
    auto const racine = QString::fromLatin1("/com/ombrel/vocalyne/texteurs/OpenOffice/");
    auto const service = identificateur.DonneService();
    Exige(service.startsWith(prefixe), "the service has its prefix");
    auto const instance = service.mid(prefixe.size());
    Exige(identificateur.DonneChemin() == racine + instance, "service and path name one instance");
    auto const& cle = identificateur.DonneDocument();
    Exige(!instance.contains(QLatin1Char('~')) && !cle.contains(QLatin1Char('~')),
          "no part holds what parts them");
    auto const& entier = texte.VersQString();
    Exige(entier == instance ||
              (entier + QLatin1Char('~'))
                  .startsWith(instance + QLatin1Char('~') + cle + QLatin1Char('~')),
          "both parts stand at the identifier's beginning");
    return 0;
}
