// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "modele/TexteSuivi.h"

#include <memory>
#include <string>
#include <string_view>

inline compagnon::TextePartage Partage(std::u16string_view texte) {
    return std::make_shared<std::u16string const>(texte);
}

/// A host that was just given the text.
inline compagnon::TexteSuivi Suivi(std::u16string_view texte) {
    compagnon::TexteSuivi suivi;
    suivi.Donne(Partage(texte));
    return suivi;
}

/// A correction as a companion makes it in a document that is plain text.
inline compagnon::Localisation Corrige(compagnon::TexteSuivi& suivi, compagnon::Intervalle plage,
                                       std::u16string_view remplacement,
                                       compagnon::TextePartage& document) {
    compagnon::Localisation const trouvee = suivi.Localise(plage, *document);
    if (!trouvee) {
        suivi.NoteRefus(plage);
        return trouvee;
    }
    std::u16string apres = *document;
    apres.replace(trouvee.plage.DonneDebut(), trouvee.plage.DonneLongueur(), remplacement);
    document = Partage(apres);
    suivi.NoteCorrection(plage, remplacement);
    return trouvee;
}
