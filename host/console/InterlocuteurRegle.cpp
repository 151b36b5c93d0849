// SPDX-License-Identifier: MPL-2.0
#include "InterlocuteurRegle.h"

#include "langue/Decoupeur.h"

namespace hote {

namespace {

constexpr double kSureteVoulue = 0.8;

} // namespace

Decision InterlocuteurRegle::Decide(Question const& question) {
    Faute const& faute = question.faute;
    bool const corrige =
        !faute.suggestions.isEmpty() &&
        (hardiesse_ == Hardiesse::Tout || (hardiesse_ == Hardiesse::Sur && EstSure(faute)));
    Ecris(presentation_.DonneFaute(question));
    if (!corrige) {
        Ecris(presentation_.DonneSuggestions(faute.suggestions));
        return {Decision::Genre::Laisse, {}};
    }
    return {Decision::Genre::Corrige, faute.suggestions.first()};
}

bool InterlocuteurRegle::EstSure(Faute const& faute) {
    if (faute.surete < kSureteVoulue || faute.regle == QLatin1String(kRegleNom)) {
        return false;
    }
    if (faute.genre != GenreDeRemarque::Orthographe) {
        return faute.suggestions.size() == 1;
    }
    QString& choisi = choisis_[DonneForme(faute.mot)];
    if (choisi.isNull()) {
        choisi = faute.suggestions.first();
    }
    return choisi == faute.suggestions.first();
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
