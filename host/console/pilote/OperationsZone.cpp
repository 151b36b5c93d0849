// SPDX-License-Identifier: MPL-2.0
#include "Operations.h"

namespace hote {

namespace {

using Zone = InterfaceZoneDeTexte;

void AccepteIntervalles(Zone& zone, Arguments const& a, EcritureJson& resultat) {
    int const debut = a.DonneEntier("debut");
    int const fin = a.DonneEntier("fin");
    int const debut2 = a.DonneEntier("debut2", debut);
    int const fin2 = a.DonneEntier("fin2", fin);
    resultat.Booleen(zone.AccepteIntervalles(debut, fin, debut2, fin2));
}

void CorrigeDansTexteur(Zone& zone, Arguments const& a, EcritureJson& resultat) {
    int const debut = a.DonneEntier("debut");
    int const fin = a.DonneEntier("fin");
    UniChaine const texte(a.DonneTexte("texte"));
    resultat.Booleen(zone.CorrigeDansTexteur(debut, fin, texte, a.DonneBooleen("drapeau")));
}

void PeutCorriger(Zone& zone, Arguments const& a, EcritureJson& resultat) {
    int const debut = a.DonneEntier("debut");
    int const fin = a.DonneEntier("fin");
    resultat.Booleen(zone.PeutCorriger(debut, fin, UniChaine(a.DonneTexte("texte"))));
}

void AjusteIntervalle(Zone& zone, Arguments const& a, EcritureJson& resultat) {
    int const debut = a.DonneEntier("debut");
    int const fin = a.DonneEntier("fin");
    // What a zone that writes nothing leaves is what it was given.
    int debutAjuste = debut;
    int finAjustee = fin;
    zone.AjusteIntervalle(debut, fin, &debutAjuste, &finAjustee, a.DonneBooleen("drapeau"));
    resultat.Objet();
    resultat.Cle("debut").Entier(debutAjuste);
    resultat.Cle("fin").Entier(finAjustee);
    resultat.FinObjet();
}

void SelectionneIntervalle(Zone& zone, Arguments const& a, EcritureJson& resultat) {
    int const debut = a.DonneEntier("debut");
    resultat.Booleen(zone.SelectionneIntervalle(debut, a.DonneEntier("fin")));
}

void DonneTexte(Zone& zone, Arguments const& /*arguments*/, EcritureJson& resultat) {
    EcrisTexteAttribue(zone.DonneTexte(), resultat);
}

void DonneChaineAuxiliaire(Zone& zone, Arguments const& /*arguments*/, EcritureJson& resultat) {
    resultat.Texte(zone.DonneChaineAuxiliaire().VersQString());
}

template <int (Zone::*Operation)()>
void Entier(Zone& zone, Arguments const& /*arguments*/, EcritureJson& resultat) {
    resultat.Entier((zone.*Operation)());
}

void EstMarquee(Zone& zone, Arguments const& /*arguments*/, EcritureJson& resultat) {
    resultat.Booleen(zone.EstMarquee());
}

struct Entree {
    char const* nom;
    OperationZone operation;
};

// In slot order.
constexpr Entree kTable[] = {
    {"AccepteIntervalles", AccepteIntervalles},
    {"CorrigeDansTexteur", CorrigeDansTexteur},
    {"DonneDebutSelection", Entier<&Zone::DonneDebutSelection>},
    {"DonneFinSelection", Entier<&Zone::DonneFinSelection>},
    {"DonneChaineAuxiliaire", DonneChaineAuxiliaire},
    {"DonneTexte", DonneTexte},
    {"DonneLongueur", Entier<&Zone::DonneLongueur>},
    {"PeutCorriger", PeutCorriger},
    {"AjusteIntervalle", AjusteIntervalle},
    {"SelectionneIntervalle", SelectionneIntervalle},
    {"EstMarquee", EstMarquee},
};

} // namespace

OperationZone TrouveOperationZone(QString const& nom) {
    for (Entree const& entree : kTable) {
        if (nom == QLatin1String(entree.nom)) {
            return entree.operation;
        }
    }
    return nullptr;
}

void EcrisZone(InterfaceZoneDeTexte& zone, EcritureJson& json) {
    auto const texte = zone.DonneTexte();
    json.Objet();
    json.Cle("texte").Texte(texte.DonneTexte().VersQString());
    json.Cle("longueur").Entier(zone.DonneLongueur());
    json.Cle("debutSelection").Entier(zone.DonneDebutSelection());
    json.Cle("finSelection").Entier(zone.DonneFinSelection());
    EcrisStyles(texte, json);
    json.Cle("marquee").Booleen(zone.EstMarquee());
    json.FinObjet();
}

} // namespace hote
