// SPDX-License-Identifier: MPL-2.0
#include "Essayeur.h"

#include "commun/MessagesHote.h"

#include <QRegularExpression>

#include <algorithm>

namespace hote {

namespace {

/// The first difference, for people.
std::string DonneEcart(std::vector<QString> const& voulus, std::vector<QString> const& lus) {
    if (voulus.size() != lus.size()) {
        return Tr("Il a maintenant {1} zones, et en avait {2}.", static_cast<int>(lus.size()),
                  static_cast<int>(voulus.size()));
    }
    auto const ecart = std::mismatch(voulus.begin(), voulus.end(), lus.begin());
    constexpr int kExtrait = 60;
    return Tr("Zone {1} : « {2} » au lieu de « {3} »",
              static_cast<int>(ecart.first - voulus.begin()), ecart.second->left(kExtrait),
              ecart.first->left(kExtrait));
}

/// What turns `de` into `vers` in a zone: the stretch between their common ends.
CorrectionEssayee DonneDifference(int zone, QString const& de, QString const& vers) {
    int const commun = std::min(de.size(), vers.size());
    int debut = 0;
    while (debut < commun && de[debut] == vers[debut]) {
        ++debut;
    }
    int fin = 0;
    while (fin < commun - debut && de[de.size() - 1 - fin] == vers[vers.size() - 1 - fin]) {
        ++fin;
    }
    return {zone, debut, de.size() - debut - fin, vers.mid(debut, vers.size() - debut - fin)};
}

} // namespace

bool Essayeur::Prepare() {
    if (!chantier_.Lis(agent_, zones_)) {
        return false;
    }
    textes_ = chantier_.DonneTextes(zones_);
    return true;
}

std::vector<MotTrouve> Essayeur::TrouveMots(int parZone, std::size_t nombre) {
    static QRegularExpression const mot(QStringLiteral("\\b[A-Za-z]{3,}\\b"));
    std::vector<MotTrouve> mots;
    for (int i = 0; i < zones_.DonneNombre() && mots.size() < nombre; ++i) {
        auto trouves = mot.globalMatch(textes_[static_cast<std::size_t>(i)]);
        for (int deLaZone = 0; trouves.hasNext() && deLaZone < parZone && mots.size() < nombre;) {
            auto const trouve = trouves.next();
            bool peut = false;
            chantier_.Appelle("PeutCorriger", [&] {
                peut = zones_.DonneZone(i)->PeutCorriger(
                    trouve.capturedStart(), trouve.capturedEnd(), UniChaine(trouve.captured()));
            });
            if (!peut) {
                break; // the others of this zone will hardly do
            }
            mots.push_back({i, trouve.capturedStart(), trouve.captured()});
            ++deLaZone;
        }
    }
    return mots;
}

void Essayeur::Corrige(CorrectionEssayee const& r) {
    if (r.zone >= zones_.DonneNombre()) {
        return;
    }
    auto& zone = *zones_.DonneZone(r.zone);
    int debut = 0;
    int fin = 0;
    chantier_.Appelle("DonneDebutSelection", [&] { debut = zone.DonneDebutSelection(); });
    chantier_.Appelle("DonneFinSelection", [&] { fin = zone.DonneFinSelection(); });
    chantier_.Appelle("CorrigeDansTexteur", [&] {
        zone.CorrigeDansTexteur(r.debut, r.debut + r.longueur, UniChaine(r.texte), true);
    });
    chantier_.Exige(debut == zone.DonneDebutSelection() && fin == zone.DonneFinSelection(),
                    "corrections.selection", Tr("Zone {1}", r.zone));
}

void Essayeur::Essaie(char const* regle, std::vector<CorrectionEssayee> const& corrections) {
    chantier_.DonneRapporteur().Essaie(regle);
    auto modele = textes_;
    for (auto const& r : corrections) {
        Corrige(r);
        modele[static_cast<std::size_t>(r.zone)].replace(r.debut, r.longueur, r.texte);
    }
    if (chantier_.Exige(chantier_.Lis(agent_, zones_), regle,
                        Tr("Le document ne se lit plus ensuite."))) {
        auto const lus = chantier_.DonneTextes(zones_);
        bool const pareils = lus == modele;
        chantier_.Exige(pareils, regle, pareils ? "" : DonneEcart(modele, lus));
    }
    Remets();
}

void Essayeur::Remets() {
    auto const lus = chantier_.DonneTextes(zones_);
    for (std::size_t i = 0; i < lus.size() && i < textes_.size(); ++i) {
        if (lus[i] != textes_[i]) {
            Corrige(DonneDifference(static_cast<int>(i), lus[i], textes_[i]));
        }
    }
    bool const relu = chantier_.Lis(agent_, zones_);
    auto const remis = chantier_.DonneTextes(zones_);
    bool const pareils = relu && remis == textes_;
    chantier_.Exige(pareils, "corrections.retour", pareils ? "" : DonneEcart(textes_, remis));
}

} // namespace hote
