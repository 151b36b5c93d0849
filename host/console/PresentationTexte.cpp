// SPDX-License-Identifier: MPL-2.0
#include "PresentationTexte.h"

#include "commun/MessagesHote.h"
#include "langue/Contexte.h"

namespace hote {

namespace {

constexpr int kLargeurContexte = 30;
constexpr char const* kRetrait = "      ";
constexpr char const* kSuspension = "…";

std::string Montre(QString const& texte) {
    return DonnePourTerminal(texte).toStdString();
}

} // namespace

std::string PresentationTexte::DonneFaute(Question const& question) const {
    hote::Faute const& faute = question.faute;
    Contexte const contexte =
        DonneContexte(question.texte, faute.debut, faute.fin, kLargeurContexte);
    std::string const numero = std::to_string(question.zone + 1);
    std::string const marge(numero.size() < 5 ? 5 - numero.size() : 0, ' ');
    return couleurs_.Attenue(marge + numero) + ' ' + (contexte.coupeAvant ? kSuspension : "") +
           Montre(contexte.avant) + couleurs_.MarqueFaute(Montre(faute.mot)) +
           Montre(contexte.apres) + (contexte.coupeApres ? kSuspension : "") + '\n';
}

std::string PresentationTexte::DonneSuggestions(QStringList const& suggestions) const {
    if (suggestions.isEmpty()) {
        return kRetrait + couleurs_.Attenue(Tr("pas de suggestion")) + '\n';
    }
    return kRetrait + couleurs_.MarqueCorrection(Montre(suggestions.join(QStringLiteral(", ")))) +
           '\n';
}

std::string PresentationTexte::DonneChoix(QStringList const& suggestions) const {
    if (suggestions.isEmpty()) {
        return DonneSuggestions(suggestions);
    }
    std::string texte = kRetrait;
    for (int i = 0; i < suggestions.size(); ++i) {
        texte += (i == 0 ? "" : "  ") + couleurs_.Attenue(std::to_string(i + 1)) + ' ' +
                 couleurs_.MarqueCorrection(Montre(suggestions.at(i)));
    }
    return texte + '\n';
}

std::string PresentationTexte::DonneIssue(FauteTraitee const& faute, bool envoyee) const {
    std::string const remplacement = couleurs_.MarqueCorrection(Montre(faute.remplacement));
    return kRetrait + (envoyee ? "→ " + remplacement : Tr("refusée : {1}", remplacement)) + '\n';
}

std::string PresentationTexte::DonneProgres(int zone, int nombreZones, int nombreFautes) {
    return Tr("Zone {1} sur {2}, fautes : {3}", zone + 1, nombreZones, nombreFautes);
}

std::string PresentationTexte::DonneFin(Bilan const& bilan, bool change) const {
    int const laissees = bilan.Compte(EtatFaute::Laissee);
    if (bilan.fautes.empty() && !bilan.erreur) {
        return Tr("Aucune faute.") + '\n';
    }
    if (!change) {
        return Tr("Fautes : {1}. Rien n’a été changé (--automatique corrige).", laissees) + '\n';
    }
    std::string texte =
        Tr("Corrigées : {1}, refusées : {2}, laissées : {3}.", bilan.Compte(EtatFaute::Corrigee),
           bilan.Compte(EtatFaute::Refusee), laissees) +
        '\n';
    int const nonVerifiees = bilan.Compte(EtatFaute::NonVerifiee);
    if (nonVerifiees > 0) {
        texte += Tr("Envoyées sans pouvoir être vérifiées : {1}.", nonVerifiees) + '\n';
    }
    return texte;
}

} // namespace hote
