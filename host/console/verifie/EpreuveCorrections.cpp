// SPDX-License-Identifier: MPL-2.0
// Corrections, one by one and several without reading in between, against a model.
#include "Epreuves.h"
#include "Essayeur.h"
#include "commun/MessagesHote.h"

#include <algorithm>

namespace hote {

namespace {

QString Allonge(QString const& mot) {
    return mot + QStringLiteral("xyz");
}

void EssaieUnMot(Chantier const& chantier, Essayeur& essayeur, MotTrouve const& m) {
    auto& rapporteur = chantier.DonneRapporteur();
    rapporteur.Essaie("corrections.attendu");
    bool peut = true;
    // Of the same length, so that nothing but the letters can tell.
    QString const autre(m.mot.size(), QLatin1Char('%'));
    chantier.Appelle("PeutCorriger", [&] {
        peut = essayeur.DonneZones().DonneZone(m.zone)->PeutCorriger(
            m.debut, m.debut + m.mot.size(), UniChaine(autre));
    });
    chantier.Exige(!peut, "corrections.attendu",
                   Tr("Zone {1} : il accepte « {2} » là où se lit « {3} ».", m.zone, autre, m.mot));
    rapporteur.Essaie("corrections.selection");
    rapporteur.Essaie("corrections.retour");
    essayeur.Essaie("corrections.faite", {{m.zone, m.debut, m.mot.size(), Allonge(m.mot)}});
    essayeur.Essaie("corrections.plus-courte",
                    {{m.zone, m.debut, m.mot.size(), m.mot.left(m.mot.size() - 1)}});
    rapporteur.Essaie("ajuste.bornes");
    int a = m.debut;
    int b = m.debut + m.mot.size();
    auto& zone = *essayeur.DonneZones().DonneZone(m.zone);
    chantier.Appelle("AjusteIntervalle", [&] {
        zone.AjusteIntervalle(m.debut, m.debut + m.mot.size(), &a, &b, false);
    });
    chantier.Exige(0 <= a && a <= b && b <= zone.DonneLongueur(), "ajuste.bornes",
                   Tr("De {1} à {2}, dans une zone de {3} unités.", a, b, zone.DonneLongueur()));
}

/// Two corrections of one zone, the second counted in the text that the first one leaves.
void EssaieUneZone(Chantier const& chantier, Essayeur& essayeur) {
    auto const mots = essayeur.TrouveMots(2, 200);
    auto const second = std::adjacent_find(
        mots.begin(), mots.end(), [](auto const& a, auto const& b) { return a.zone == b.zone; });
    if (second == mots.end()) {
        chantier.DonneRapporteur().Passe("corrections.meme-zone",
                                         Tr("aucune zone n’a deux mots à corriger"));
        return;
    }
    auto const& a = *second;
    auto const& b = *(second + 1);
    essayeur.Essaie("corrections.meme-zone",
                    {{a.zone, a.debut, a.mot.size(), Allonge(a.mot)},
                     {b.zone, b.debut + 3, b.mot.size(), b.mot.left(b.mot.size() - 1)}});
}

void EssaieDesZones(Chantier const& chantier, Essayeur& essayeur) {
    auto const mots = essayeur.TrouveMots(1, 4);
    if (mots.size() < 2) {
        chantier.DonneRapporteur().Passe("corrections.decalage",
                                         Tr("moins de deux zones se corrigent"));
        return;
    }
    std::vector<CorrectionEssayee> suite;
    for (auto const& m : mots) {
        bool const pair = suite.size() % 2 == 0;
        suite.push_back(
            {m.zone, m.debut, m.mot.size(), pair ? Allonge(m.mot) : m.mot.left(m.mot.size() - 1)});
    }
    essayeur.Essaie("corrections.decalage", suite);
    std::reverse(suite.begin(), suite.end());
    essayeur.Essaie("corrections.decalage", suite);
}

} // namespace

void EprouveCorrections(Chantier const& chantier) {
    auto const greffon = chantier.Charge();
    auto const agent = chantier.OuvreAgent(*greffon);
    if (!agent) {
        return;
    }
    Essayeur essayeur(chantier, *agent);
    if (!essayeur.Prepare()) {
        return;
    }
    auto const mots = essayeur.TrouveMots(1, 1);
    if (mots.empty()) {
        for (char const* regle :
             {"corrections.attendu", "corrections.faite", "corrections.plus-courte",
              "corrections.meme-zone", "corrections.decalage", "corrections.selection",
              "corrections.retour", "ajuste.bornes"}) {
            chantier.DonneRapporteur().Passe(regle, Tr("aucun mot du document ne se corrige"));
        }
        return;
    }
    EssaieUnMot(chantier, essayeur, mots.front());
    EssaieUneZone(chantier, essayeur);
    EssaieDesZones(chantier, essayeur);
}

} // namespace hote
