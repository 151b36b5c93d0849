// SPDX-License-Identifier: MPL-2.0
#include "InterlocuteurTerminal.h"

#include "DemandeLigne.h"
#include "LisTouche.h"
#include "commun/MessagesHote.h"

#include <string>

namespace hote {

namespace {

constexpr int kChiffres = 9; ///< suggestions that a key can choose
constexpr char const* kRetrait = "      ";

} // namespace

Decision InterlocuteurTerminal::Decide(Question const& question) {
    progression_.Efface();
    QStringList const suggestions = question.faute.suggestions.mid(0, kChiffres);
    sortie_.Ecris('\n' + presentation_.DonneFaute(question) +
                  presentation_.DonneChoix(suggestions));
    for (;;) {
        auto const touche = LisTouche(entree_, sortie_, DonneInvite(suggestions.size()));
        if (!touche) {
            return {Decision::Genre::Quitte, {}};
        }
        if (auto decision = Comprends(*touche, suggestions)) {
            return *decision;
        }
    }
}

std::string InterlocuteurTerminal::DonneInvite(int choix) {
    std::string const lettres = Tr("r remplacer, i ignorer, q quitter, ? aide");
    if (choix == 0) {
        return kRetrait + lettres;
    }
    return kRetrait + (choix == 1 ? Tr("1 choisir") : Tr("1-{1} choisir", choix)) + ", " +
           Tr("t corriger partout") + ", " + lettres;
}

void InterlocuteurTerminal::ApprendsIssue(FauteTraitee const& faute, bool envoyee) {
    sortie_.Ecris(presentation_.DonneIssue(faute, envoyee));
}

void InterlocuteurTerminal::ApprendsProgres(int zone, int nombreZones, int nombreFautes) {
    progression_.Montre(
        [&] { return PresentationTexte::DonneProgres(zone, nombreZones, nombreFautes); });
}

std::optional<Decision> InterlocuteurTerminal::Comprends(QString const& touche,
                                                         QStringList const& suggestions) {
    if (touche == QLatin1String("q")) {
        return Decision{Decision::Genre::Quitte, {}};
    }
    if (touche == QLatin1String("i")) {
        return Decision{Decision::Genre::Laisse, {}};
    }
    if (touche == QLatin1String("I")) {
        return Decision{Decision::Genre::LaisseTout, {}};
    }
    if (touche == QLatin1String("b")) {
        return Decision{Decision::Genre::Retour, {}};
    }
    if (touche == QLatin1String("t") && !suggestions.isEmpty()) {
        return Decision{Decision::Genre::CorrigeTout, suggestions.first()};
    }
    if (touche == QLatin1String("r")) {
        return DemandeTexte();
    }
    bool nombre = false;
    int const choix = touche.toInt(&nombre);
    if (nombre && choix >= 1 && choix <= suggestions.size()) {
        return Decision{Decision::Genre::Corrige, suggestions.at(choix - 1)};
    }
    sortie_.Ecris(presentation_.DonneAideDesTouches());
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
