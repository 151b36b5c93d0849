// SPDX-License-Identifier: MPL-2.0
#include "InterlocuteurRegle.h"

namespace hote {

Decision InterlocuteurRegle::Decide(Question const& question) {
    bool const corrige = corrige_ && !question.suggestions.isEmpty();
    Ecris(presentation_.DonneFaute(question));
    if (!corrige) {
        Ecris(presentation_.DonneSuggestions(question.suggestions));
        return {Decision::Genre::Laisse, {}};
    }
    return {Decision::Genre::Corrige, question.suggestions.first()};
}

void InterlocuteurRegle::ApprendsIssue(FauteTraitee const& faute, bool envoyee) {
    Ecris(presentation_.DonneIssue(faute, envoyee));
}

void InterlocuteurRegle::ApprendsProgres(int zone, int nombreZones, int nombreFautes) {
    progression_.Montre(
        [&] { return PresentationTexte::DonneProgres(zone, nombreZones, nombreFautes); });
}

void InterlocuteurRegle::Ecris(std::string const& texte) {
    if (sortie_ == nullptr) {
        return;
    }
    progression_.Efface();
    sortie_->Ecris(texte);
}

} // namespace hote
