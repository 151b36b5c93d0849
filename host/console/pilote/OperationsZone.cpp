// SPDX-License-Identifier: MPL-2.0
#include "Operations.h"
#include "TableOperations.h"

namespace hote {

namespace {

using Zone = InterfaceZoneDeTexte;

void AccepteIntervalles(Zone& zone, Arguments const& a, EcritureJson& resultat) {
    int const debut = a.DonneEntier("debut");
    int const fin = a.DonneEntier("fin");
    int const debut2 = a.DonneEntier("debut2", debut);
    int const fin2 = a.DonneEntier("fin2", fin);
    resultat.EcrisBooleen(zone.AccepteIntervalles(debut, fin, debut2, fin2));
}

void CorrigeDansTexteur(Zone& zone, Arguments const& a, EcritureJson& resultat) {
    int const debut = a.DonneEntier("debut");
    int const fin = a.DonneEntier("fin");
    UniChaine const texte(a.DonneTexte("texte"));
    resultat.EcrisBooleen(zone.CorrigeDansTexteur(debut, fin, texte, a.DonneBooleen("drapeau")));
}

void PeutCorriger(Zone& zone, Arguments const& a, EcritureJson& resultat) {
    int const debut = a.DonneEntier("debut");
    int const fin = a.DonneEntier("fin");
    resultat.EcrisBooleen(zone.PeutCorriger(debut, fin, UniChaine(a.DonneTexte("texte"))));
}

void AjusteIntervalle(Zone& zone, Arguments const& a, EcritureJson& resultat) {
    int const debut = a.DonneEntier("debut");
    int const fin = a.DonneEntier("fin");
    // What a zone that writes nothing leaves is what it was given.
    int debutAjuste = debut;
    int finAjustee = fin;
    zone.AjusteIntervalle(debut, fin, &debutAjuste, &finAjustee, a.DonneBooleen("drapeau"));
    resultat.OuvreObjet();
    resultat.EcrisCle("debut").EcrisEntier(debutAjuste);
    resultat.EcrisCle("fin").EcrisEntier(finAjustee);
    resultat.FermeObjet();
}

void SelectionneIntervalle(Zone& zone, Arguments const& a, EcritureJson& resultat) {
    int const debut = a.DonneEntier("debut");
    resultat.EcrisBooleen(zone.SelectionneIntervalle(debut, a.DonneEntier("fin")));
}

void DonneTexte(Zone& zone, Arguments const& /*arguments*/, EcritureJson& resultat) {
    EcrisTexteAttribue(zone.DonneTexte(), resultat);
}

void DonneChaineAuxiliaire(Zone& zone, Arguments const& /*arguments*/, EcritureJson& resultat) {
    resultat.EcrisTexte(zone.DonneChaineAuxiliaire().VersQString());
}

template <int (Zone::*Operation)()>
void AppelleEntier(Zone& zone, Arguments const& /*arguments*/, EcritureJson& resultat) {
    resultat.EcrisEntier((zone.*Operation)());
}

void EstMarquee(Zone& zone, Arguments const& /*arguments*/, EcritureJson& resultat) {
    resultat.EcrisBooleen(zone.EstMarquee());
}

// In slot order.
constexpr EntreeOperation<OperationZone> kTable[] = {
    {"AccepteIntervalles", AccepteIntervalles},
    {"CorrigeDansTexteur", CorrigeDansTexteur},
    {"DonneDebutSelection", AppelleEntier<&Zone::DonneDebutSelection>},
    {"DonneFinSelection", AppelleEntier<&Zone::DonneFinSelection>},
    {"DonneChaineAuxiliaire", DonneChaineAuxiliaire},
    {"DonneTexte", DonneTexte},
    {"DonneLongueur", AppelleEntier<&Zone::DonneLongueur>},
    {"PeutCorriger", PeutCorriger},
    {"AjusteIntervalle", AjusteIntervalle},
    {"SelectionneIntervalle", SelectionneIntervalle},
    {"EstMarquee", EstMarquee},
};

} // namespace

OperationZone TrouveOperationZone(QString const& nom) {
    return TrouveOperation(kTable, nom);
}

void EcrisZone(InterfaceZoneDeTexte& zone, EcritureJson& json) {
    auto const texte = zone.DonneTexte();
    json.OuvreObjet();
    json.EcrisCle("texte").EcrisTexte(texte.DonneTexte().VersQString());
    json.EcrisCle("longueur").EcrisEntier(zone.DonneLongueur());
    json.EcrisCle("debutSelection").EcrisEntier(zone.DonneDebutSelection());
    json.EcrisCle("finSelection").EcrisEntier(zone.DonneFinSelection());
    EcrisStyles(texte, json);
    json.EcrisCle("marquee").EcrisBooleen(zone.EstMarquee());
    json.FermeObjet();
}

} // namespace hote
