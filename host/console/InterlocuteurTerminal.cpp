// SPDX-License-Identifier: MPL-2.0
#include "InterlocuteurTerminal.h"

#include "DemandeLigne.h"
#include "commun/MessagesHote.h"

#include <string>

namespace hote {

Decision InterlocuteurTerminal::Decide(Question const& question) {
    progression_.Efface();
    sortie_.Ecris('\n' + presentation_.DonneFaute(question) +
                  presentation_.DonneChoix(question.suggestions));
    for (;;) {
        auto const reponse = DemandeLigne(
            entree_, sortie_,
            question.suggestions.isEmpty()
                ? Tr("r remplacer, i ignorer, I tout ignorer, q quitter")
                : Tr("1-{1} choisir, r remplacer, i ignorer, I tout ignorer, q quitter",
                     question.suggestions.size()));
        if (!reponse) {
            return {Decision::Genre::Quitte, {}};
        }
        if (auto decision = Comprends(*reponse, question.suggestions)) {
            return *decision;
        }
    }
}

void InterlocuteurTerminal::ApprendsIssue(FauteTraitee const& faute, bool envoyee) {
    sortie_.Ecris(presentation_.DonneIssue(faute, envoyee));
}

void InterlocuteurTerminal::ApprendsProgres(int zone, int nombreZones, int nombreFautes) {
    progression_.Montre(
        [&] { return PresentationTexte::DonneProgres(zone, nombreZones, nombreFautes); });
}

std::optional<Decision> InterlocuteurTerminal::Comprends(QString const& reponse,
                                                         QStringList const& suggestions) {
    QString const mot = reponse.trimmed();
    if (mot == QLatin1String("q")) {
        return Decision{Decision::Genre::Quitte, {}};
    }
    if (mot == QLatin1String("i")) {
        return Decision{Decision::Genre::Laisse, {}};
    }
    if (mot == QLatin1String("I")) {
        return Decision{Decision::Genre::LaisseTout, {}};
    }
    if (mot == QLatin1String("r")) {
        return DemandeTexte();
    }
    bool nombre = false;
    int const choix = mot.toInt(&nombre);
    if (nombre && choix >= 1 && choix <= suggestions.size()) {
        return Decision{Decision::Genre::Corrige, suggestions.at(choix - 1)};
    }
    return std::nullopt; // the question is put again
}

std::optional<Decision> InterlocuteurTerminal::DemandeTexte() {
    auto const texte = DemandeLigne(entree_, sortie_, Tr("remplacer par (rien pour renoncer)"));
    if (!texte) {
        return Decision{Decision::Genre::Quitte, {}};
    }
    // What did not decode must not go into the document either.
    if (texte->trimmed().isEmpty() || texte->contains(QChar::ReplacementCharacter)) {
        return std::nullopt;
    }
    return Decision{Decision::Genre::Corrige, texte->trimmed()};
}

} // namespace hote
