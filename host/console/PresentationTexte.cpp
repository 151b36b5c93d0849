// SPDX-License-Identifier: MPL-2.0
#include "PresentationTexte.h"

#include "commun/MessagesHote.h"
#include "langue/Contexte.h"

namespace hote {

namespace {

constexpr int kLargeurContexte = 30;
constexpr int kLargeur = 72; ///< of a line behind its margin, characters
constexpr char const* kRetrait = "      ";
constexpr char const* kSuspension = "…";

std::string Montre(QString const& texte) {
    return DonnePourTerminal(texte).toStdString();
}

/// What takes a range out, or is made of spaces alone, must be seen all the same.
QString DonneVisible(QString const& suggestion) {
    if (suggestion.isEmpty()) {
        return QString::fromStdString(Tr("(rien)"));
    }
    return suggestion.trimmed().isEmpty() ? QString::fromStdString(Tr("(une espace)")) : suggestion;
}

QStringList DonneVisibles(QStringList suggestions) {
    for (QString& suggestion : suggestions) {
        suggestion = DonneVisible(suggestion);
    }
    return suggestions;
}

/// Lines of at most so many characters, parted between words.
std::vector<std::string> Plie(std::string const& texte, int largeur) {
    std::vector<std::string> lignes;
    QString ligne;
    for (QString const& mot : QString::fromStdString(texte).split(QLatin1Char(' '))) {
        if (!ligne.isEmpty() && ligne.size() + 1 + mot.size() > largeur) {
            lignes.push_back(ligne.toStdString());
            ligne.clear();
        }
        ligne += (ligne.isEmpty() ? QString() : QStringLiteral(" ")) + mot;
    }
    lignes.push_back(ligne.toStdString());
    return lignes;
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
           Montre(contexte.apres) + (contexte.coupeApres ? kSuspension : "") + '\n' +
           DonneRaison(faute);
}

std::string PresentationTexte::DonneRaison(hote::Faute const& faute) const {
    // That a word is in no dictionary goes without saying; a name is asked about.
    bool const evidente =
        faute.genre == GenreDeRemarque::Orthographe && faute.regle != QLatin1String(kRegleNom);
    if (evidente || faute.explication.isEmpty()) {
        return {};
    }
    std::string texte;
    for (std::string const& ligne : Plie(Montre(faute.explication), kLargeur)) {
        texte += kRetrait + couleurs_.Attenue(ligne) + '\n';
    }
    return texte;
}

std::string PresentationTexte::DonneAideDesTouches() {
    return Tr("      1 à 9  prendre cette suggestion\n"
              "      t      prendre la première, ici et partout où c’est la même faute\n"
              "      r      écrire autre chose\n"
              "      i      laisser ; I laisser partout\n"
              "      b      revenir à la faute d’avant\n"
              "      q      finir\n");
}

std::string PresentationTexte::DonneSuggestions(QStringList const& suggestions) const {
    if (suggestions.isEmpty()) {
        return kRetrait + couleurs_.Attenue(Tr("pas de suggestion")) + '\n';
    }
    return kRetrait +
           couleurs_.MarqueCorrection(
               Montre(DonneVisibles(suggestions).join(QStringLiteral(", ")))) +
           '\n';
}

std::string PresentationTexte::DonneChoix(QStringList const& suggestions) const {
    if (suggestions.isEmpty()) {
        return DonneSuggestions(suggestions);
    }
    std::string texte = kRetrait;
    int colonne = 0;
    for (int i = 0; i < suggestions.size(); ++i) {
        QString const suggestion = DonneVisible(suggestions.at(i));
        int const largeur = suggestion.size() + 4;
        if (colonne > 0 && colonne + largeur > kLargeur) {
            texte += std::string("\n") + kRetrait;
            colonne = 0;
        }
        texte += (colonne == 0 ? "" : "  ") + couleurs_.Attenue(std::to_string(i + 1)) + ' ' +
                 couleurs_.MarqueCorrection(Montre(suggestion));
        colonne += largeur;
    }
    return texte + '\n';
}

std::string PresentationTexte::DonneIssue(FauteTraitee const& faute, bool envoyee) const {
    std::string const remplacement =
        couleurs_.MarqueCorrection(Montre(DonneVisible(faute.remplacement)));
    return kRetrait + (envoyee ? "→ " + remplacement : Tr("refusée : {1}", remplacement)) + '\n';
}

std::string PresentationTexte::DonneProgres(int zone, int nombreZones, int nombreFautes) {
    return Tr("Paragraphe {1} sur {2}, fautes : {3}", zone + 1, nombreZones, nombreFautes);
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
