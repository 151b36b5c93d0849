// SPDX-License-Identifier: MPL-2.0
#include "InterlocuteurRegle.h"

#include "commun/MessagesHote.h"

namespace hote {

Decision InterlocuteurRegle::Decide(Question const& question) {
    bool const corrige = corrige_ && !question.suggestions.isEmpty();
    Ecris(presentation_.Faute(question));
    if (!corrige) {
        Ecris(presentation_.Suggestions(question.suggestions));
        return {Decision::Genre::Laisse, {}};
    }
    return {Decision::Genre::Corrige, question.suggestions.first()};
}

void InterlocuteurRegle::ApprendsIssue(FauteTraitee const& faute, bool envoyee) {
    Ecris(presentation_.Issue(faute, envoyee));
}

void InterlocuteurRegle::ApprendsProgres(int zone, int nombreZones, int nombreFautes) {
    progression_.Montre(
        [&] { return Tr("Zone {1} sur {2}, fautes : {3}", zone + 1, nombreZones, nombreFautes); });
}

void InterlocuteurRegle::Ecris(std::string const& texte) {
    if (sortie_ == nullptr) {
        return;
    }
    progression_.Efface();
    sortie_->Ecris(texte);
}

} // namespace hote
