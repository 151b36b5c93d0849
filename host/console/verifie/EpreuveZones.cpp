// SPDX-License-Identifier: MPL-2.0
// What was read: each zone by itself, then the collection as a whole.
#include "Epreuves.h"
#include "commun/MessagesHote.h"

#include <set>

namespace hote {

namespace {

struct ZoneVue {
    TexteAvecAttributs texte;
    int longueur = 0;
    int debut = 0;
    int fin = 0;
};

ZoneVue Regarde(Chantier const& chantier, InterfaceZoneDeTexte& zone) {
    ZoneVue vue;
    chantier.Appelle("DonneTexte", [&] { vue.texte = zone.DonneTexte(); });
    chantier.Appelle("DonneLongueur", [&] { vue.longueur = zone.DonneLongueur(); });
    chantier.Appelle("DonneDebutSelection", [&] { vue.debut = zone.DonneDebutSelection(); });
    chantier.Appelle("DonneFinSelection", [&] { vue.fin = zone.DonneFinSelection(); });
    chantier.Appelle("DonneChaineAuxiliaire", [&] { zone.DonneChaineAuxiliaire(); });
    chantier.Appelle("EstMarquee", [&] { zone.EstMarquee(); });
    return vue;
}

bool StylesSontRanges(TexteAvecAttributs const& texte) {
    int fin = 0;
    for (auto const& plage : texte.DonnePlages()) {
        if (plage.debut < fin || plage.fin <= plage.debut || plage.fin > texte.Longueur()) {
            return false;
        }
        fin = plage.fin;
    }
    return true;
}

/// How many units at the end stand for text that was not read.
int CompteQueueNonLue(TexteAvecAttributs const& texte) {
    constexpr char16_t kNonLu = 0x07;
    int nombre = 0;
    while (nombre < texte.Longueur() &&
           texte.DonneTexte()[texte.Longueur() - 1 - nombre] == kNonLu) {
        ++nombre;
    }
    return nombre;
}

void JugeZone(Chantier const& chantier, int rang, ZoneVue const& vue) {
    chantier.Exige(
        vue.longueur == vue.texte.Longueur(), "zones.longueur",
        Tr("Zone {1} : {2}, et son texte a {3} unités.", rang, vue.longueur, vue.texte.Longueur()));
    chantier.Exige(vue.debut >= 0 && vue.debut <= vue.fin && vue.fin <= vue.texte.Longueur(),
                   "zones.selection",
                   Tr("Zone {1} de {2} unités : de {3} à {4}.", rang, vue.texte.Longueur(),
                      vue.debut, vue.fin));
    chantier.Exige(StylesSontRanges(vue.texte), "zones.styles", Tr("Zone {1}", rang));
    // A field or two may well end a paragraph, unreadable as they are.
    constexpr int kChamps = 8;
    int const queue = CompteQueueNonLue(vue.texte);
    chantier.Exige(queue <= kChamps, "zones.entieres",
                   Tr("Zone {1} : {2} unités de la fin n’ont pas été lues.", rang, queue));
}

void JugeLecture(Chantier const& chantier, CollectionZonesDeTexte const& zones) {
    auto& rapporteur = chantier.DonneRapporteur();
    for (char const* regle : {"zones.longueur", "zones.selection", "zones.selection-unique",
                              "zones.styles", "zones.entieres"}) {
        rapporteur.Essaie(regle);
    }
    int selections = 0;
    for (int i = 0; i < zones.DonneNombre(); ++i) {
        ZoneVue const vue = Regarde(chantier, *zones.DonneZone(i));
        JugeZone(chantier, i, vue);
        selections += vue.debut != 0 || vue.fin != 0 ? 1 : 0;
    }
    chantier.Exige(selections <= 1, "zones.selection-unique",
                   Tr("{1} zones en ont une.", selections));
}

/// A zone of the host's own, that a reading has to leave where it is.
class ZoneTemoin : public InterfaceZoneDeTexte {
  public:
    bool AccepteIntervalles(int, int, int, int) override { return true; }
    bool CorrigeDansTexteur(int, int, UniChaine const&, bool) override { return false; }
    int DonneDebutSelection() override { return 0; }
    int DonneFinSelection() override { return 0; }
    UniChaine DonneChaineAuxiliaire() override { return {}; }
    TexteAvecAttributs DonneTexte() override { return {}; }
    int DonneLongueur() override { return 0; }
    bool PeutCorriger(int, int, UniChaine const&) override { return false; }
    void AjusteIntervalle(int, int, int*, int*, bool) override {}
    bool SelectionneIntervalle(int, int) override { return false; }
};

void JugeCollection(Chantier const& chantier, InterfaceAgentTexteur& agent,
                    std::vector<QString> const& textes) {
    auto& rapporteur = chantier.DonneRapporteur();
    CollectionZonesDeTexte zones;
    auto temoin = std::make_unique<ZoneTemoin>();
    auto const* const adresse = temoin.get();
    zones.AjoutePossedee(std::move(temoin));
    rapporteur.Essaie("zones.ajoutees");
    chantier.Appelle(
        "SynchronisePositions", [&] { agent.SynchronisePositions(zones); }, true);
    if (!chantier.Exige(zones.DonneZone(0) == adresse, "zones.ajoutees",
                        Tr("La zone de l’hôte n’est plus la première."))) {
        return;
    }
    rapporteur.Essaie("zones.une-fois");
    chantier.Appelle(
        "SynchronisePositions", [&] { agent.SynchronisePositions(zones); }, true);
    std::set<InterfaceZoneDeTexte const*> vues;
    std::size_t pretees = 0;
    for (int i = 1; i < zones.DonneNombre(); ++i) {
        vues.insert(zones.DonneZone(i));
        pretees += zones.Possede(i) ? 0 : 1;
    }
    chantier.Exige(static_cast<int>(vues.size()) == zones.DonneNombre() - 1 &&
                       pretees <= textes.size(),
                   "zones.une-fois",
                   Tr("{1} zones lues deux fois en font {2}.", static_cast<int>(textes.size()),
                      zones.DonneNombre() - 1));
}

} // namespace

void EprouveZones(Chantier const& chantier) {
    auto& rapporteur = chantier.DonneRapporteur();
    auto const greffon = chantier.Charge();
    auto const agent = chantier.OuvreAgent(*greffon);
    if (!agent) {
        return;
    }
    CollectionZonesDeTexte zones;
    bool lu = false;
    rapporteur.Essaie("zones.lues");
    chantier.Appelle(
        "DonneZones", [&] { lu = agent->DonneZones(zones); }, true);
    if (!chantier.Exige(lu, "zones.lues", Tr("DonneZones répond non."))) {
        return;
    }
    JugeLecture(chantier, zones);
    auto const textes = chantier.DonneTextes(zones);
    rapporteur.Essaie("zones.stables");
    chantier.Exige(chantier.Lis(*agent, zones) && chantier.DonneTextes(zones) == textes,
                   "zones.stables", Tr("La seconde lecture diffère de la première."));
    zones.Vide();
    JugeCollection(chantier, *agent, textes);
}

} // namespace hote
