// SPDX-License-Identifier: MPL-2.0
#include "AgentMarkdown.h"

#include <QFileInfo>

#include <algorithm>

namespace {

/// The style of what is not to be proofed.
constexpr std::uint16_t kHorsCorrection = 64;

} // namespace

bool AgentMarkdown::InitialiseTexteur(UniChaine const& /*classe*/, UniChaine& /*message*/,
                                      int /*mode*/) {
    return fichier_.Lis();
}

UniChaine AgentMarkdown::DonneCheminDocument() {
    return UniChaine(QFileInfo(fichier_.DonneChemin()).absoluteFilePath());
}

UniChaine AgentMarkdown::DonneNomApplication() {
    return UniChaine(QStringLiteral("Markdown"));
}

UniChaine AgentMarkdown::DonneFinDeParagraphe() {
    return UniChaine(QStringLiteral("\n"));
}

UniChaine AgentMarkdown::DonneTitreDocument() {
    return UniChaine(QFileInfo(fichier_.DonneChemin()).fileName());
}

/// The toolkit calls this before it asks for the length and the bounds: the one place where what
/// was read may change.
void AgentMarkdown::PrepareLecture() {
    fichier_.Lis(); // a file that cannot be read has no text, and no zone
    Analyse();
}

void AgentMarkdown::Analyse() {
    blocs_ = markdown::Decoupe(DonneTexte());
    exclusions_ = markdown::TrouveExclusions(DonneTexte(), blocs_);
    selection_.debut = std::clamp(selection_.debut, 0, DonneTexte().size());
    selection_.fin = std::clamp(selection_.fin, selection_.debut, DonneTexte().size());
}

int AgentMarkdown::DonneFinZone(int position) {
    auto const bloc = std::upper_bound(
        blocs_.begin(), blocs_.end(), position,
        [](int p, markdown::BlocMarkdown const& candidat) { return p < candidat.fin; });
    return bloc == blocs_.end() ? DonneTexte().size() : bloc->fin;
}

TexteAvecAttributs AgentMarkdown::DonneTexteAvecAttributs(int debut, int fin) {
    TexteAvecAttributs texte{sdd::ChaineN(DonneTexte().mid(debut, fin - debut))};
    auto exclusion = std::upper_bound(
        exclusions_.begin(), exclusions_.end(), debut,
        [](int p, markdown::PlageMarkdown const& candidat) { return p < candidat.fin; });
    for (; exclusion != exclusions_.end() && exclusion->debut < fin; ++exclusion) {
        int const premier = std::max(exclusion->debut, debut);
        // What lies beyond the text is left out.
        texte.MetsAttribut(premier - debut, exclusion->fin - premier, kHorsCorrection);
    }
    return texte;
}

UniChaine AgentMarkdown::DonneTexteSelection() {
    return UniChaine(DonneTexte().mid(selection_.debut, selection_.fin - selection_.debut));
}

bool AgentMarkdown::Contient(int debut, int fin) const noexcept {
    return 0 <= debut && debut <= fin && fin <= DonneTexte().size();
}

int AgentMarkdown::SelectionneDansTexteur(int debut, int fin) {
    if (!Contient(debut, fin)) {
        return 0;
    }
    selection_ = {debut, fin};
    return 1; // anything but 0: a selection may well begin there
}

bool AgentMarkdown::PeutCorrigerZone(int debut, int fin, UniChaine const& texte) {
    auto const touche = [&](markdown::PlageMarkdown const& e) {
        return e.debut < fin && debut < e.fin;
    };
    return Contient(debut, fin) && DonneTexte().mid(debut, fin - debut) == texte.VersQString() &&
           std::none_of(exclusions_.begin(), exclusions_.end(), touche) &&
           fichier_.EstModifiable() && fichier_.EstAJour();
}

/// A file that another program has changed since is left alone: positions are of what was read, and
/// the host sees at its next reading that nothing was corrected.
bool AgentMarkdown::Remplace(int debut, int fin, QString const& texte) {
    if (!Contient(debut, fin) || !fichier_.EstAJour()) {
        return false;
    }
    QString nouveau = DonneTexte();
    nouveau.replace(debut, fin - debut, texte);
    if (!fichier_.Ecris(nouveau)) {
        return false;
    }
    int const delta = texte.size() - (fin - debut);
    if (fin <= selection_.debut) {
        selection_.debut += delta;
    }
    if (fin <= selection_.fin) {
        selection_.fin += delta;
    }
    Analyse();
    return true;
}

void AgentMarkdown::RemplaceDansTexteur(int debut, int fin, int /*finZone*/, UniChaine const& texte,
                                        bool /*drapeau*/) {
    Remplace(debut, fin, texte.VersQString());
}

void AgentMarkdown::AvantRemplacement(UniChaine const& texte) {
    auto const avant = selection_;
    if (Remplace(avant.debut, avant.fin, texte.VersQString())) {
        selection_ = {avant.debut, avant.debut + texte.Longueur()};
    }
}
