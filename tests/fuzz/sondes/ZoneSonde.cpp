// SPDX-License-Identifier: MPL-2.0
#include "Sonde.h"
#include "ZoneJson.h"

#include <json/value.h>

#include <string>

int LLVMFuzzerTestOneInput(std::uint8_t const* octets, std::size_t taille) {
    auto const document = UniChaine::DepuisUtf8(std::string(octets, octets + taille));
    UniChaine nom;
    try {
        auto const lue = JsonVersChaineAttribuee(document, nom);
        UniChaine sansNom;
        auto const relue = JsonVersChaineAttribuee(ChaineAttribueeVersJson(lue), sansNom);
        Exige(relue == lue, "what was read comes back from what is written of it");
        Exige(sansNom.EstVide(), "an attributed string is written without a name");
        for (auto const& plage : lue.DonnePlages()) {
            Exige(plage.debut >= 0 && plage.debut < plage.fin && plage.fin <= lue.Longueur(),
                  "runs lie in the text");
        }
    } catch (Json::RuntimeError const& erreur) {
        Exige(std::string(erreur.what()) == "Type is not convertible to int",
              "the only error is that of integers");
    }
    return 0;
}
