// SPDX-License-Identifier: MPL-2.0
#include "Fabriques.h"

#include "langue/LocaliseDictionnaire.h"
#include "moteurs/internes/MoteurHunspell.h"
#include "moteurs/internes/MoteurRegles.h"
#include "moteurs/internes/Preparateur.h"

namespace hote {

Atelier::Reglage FaisReglage() {
    auto const dossiers = DonneDossiersDictionnaires();
    auto const preparateur = std::make_shared<Preparateur>(dossiers);
    Atelier::Reglage reglage;
    reglage.prepare = [preparateur](ParagrapheAExaminer& paragraphe) {
        preparateur->Prepare(paragraphe);
    };
    reglage.fabriques = {
        {QStringLiteral("hunspell"),
         [dossiers] { return std::make_unique<MoteurHunspell>(dossiers); }, 1},
        {QStringLiteral("regles"), [] { return std::make_unique<MoteurRegles>(true); }, 1},
    };
    return reglage;
}

} // namespace hote
