// SPDX-License-Identifier: MPL-2.0
#include "Operations.h"
#include "TableOperations.h"

#include "ImageCommune.h"

#include <QBuffer>

#include <type_traits>

namespace hote {

namespace {

using Agent = InterfaceAgentTexteur;

void Ecris(bool valeur, EcritureJson& json) {
    json.EcrisBooleen(valeur);
}
void Ecris(int valeur, EcritureJson& json) {
    json.EcrisEntier(valeur);
}
void Ecris(UniChaine const& valeur, EcritureJson& json) {
    json.EcrisTexte(valeur.VersQString());
}

/// An operation without arguments, and the result that its type says.
template <auto Operation>
void Appelle(Agent& agent, Banc& /*banc*/, Arguments const& /*arguments*/, EcritureJson& resultat) {
    if constexpr (std::is_void_v<decltype((agent.*Operation)())>) {
        (agent.*Operation)();
        resultat.EcrisNul();
    } else {
        Ecris((agent.*Operation)(), resultat);
    }
}

template <void (Agent::*Operation)(int)>
void AppelleMode(Agent& agent, Banc& /*banc*/, Arguments const& a, EcritureJson& resultat) {
    (agent.*Operation)(a.DonneEntier("mode"));
    resultat.EcrisNul();
}

template <bool (Agent::*Operation)(CollectionZonesDeTexte&)>
void AppelleZones(Agent& agent, Banc& banc, Arguments const& a, EcritureJson& resultat) {
    auto& zones = banc.tenu.DonneZones();
    if (a.DonneBooleen("vide", false)) {
        zones.Vide();
    }
    bool const ok = (agent.*Operation)(zones);
    resultat.OuvreObjet();
    resultat.EcrisCle("ok").EcrisBooleen(ok);
    resultat.EcrisCle("zones").OuvreTableau();
    for (int i = 0; i < zones.DonneNombre(); ++i) {
        EcrisZone(*zones.DonneZone(i), resultat);
    }
    resultat.FermeTableau();
    resultat.FermeObjet();
}

void TraiteTexteLu(Agent& agent, Banc& /*banc*/, Arguments const& a, EcritureJson& resultat) {
    TexteAvecAttributs texte{sdd::ChaineN(a.DonneTexte("texte"))};
    for (Arguments const& style : a.DonneObjets("styles")) {
        int const debut = style.DonneEntier("debut");
        int const longueur = style.DonneEntier("longueur");
        texte.MetsAttribut(debut, longueur, static_cast<std::uint16_t>(style.DonneEntier("style")));
    }
    agent.TraiteTexteLu(texte);
    EcrisTexteAttribue(texte, resultat);
}

void DonneImageApplication(Agent& agent, Banc& /*banc*/, Arguments const& /*arguments*/,
                           EcritureJson& resultat) {
    ImageCommune image;
    agent.DonneImageApplication(image);
    if (image.EstVide()) {
        resultat.EcrisNul();
        return;
    }
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    image.DonnePixmap().save(&png, "PNG");
    resultat.OuvreObjet();
    resultat.EcrisCle("largeur").EcrisEntier(image.DonnePixmap().width());
    resultat.EcrisCle("hauteur").EcrisEntier(image.DonnePixmap().height());
    resultat.EcrisCle("png").EcrisTexte(QString::fromLatin1(png.data().toBase64()));
    resultat.FermeObjet();
}

void InitialiseTexteur(Agent& agent, Banc& /*banc*/, Arguments const& a, EcritureJson& resultat) {
    UniChaine const classe(a.DonneTexte("texte"));
    UniChaine message;
    resultat.EcrisBooleen(agent.InitialiseTexteur(classe, message, a.DonneEntier("mode")));
}

void AjusteSelectionPourOutils(Agent& agent, Banc& /*banc*/, Arguments const& a,
                               EcritureJson& resultat) {
    int const debut = a.DonneEntier("debut");
    resultat.EcrisEntier(agent.AjusteSelectionPourOutils(debut, a.DonneEntier("fin")));
}

void DonneContexte(Agent& agent, Banc& /*banc*/, Arguments const& /*arguments*/,
                   EcritureJson& resultat) {
    int debut = 0;
    int fin = 0;
    UniChaine const texte = agent.DonneContexte(&debut, &fin);
    resultat.OuvreObjet();
    resultat.EcrisCle("texte").EcrisTexte(texte.VersQString());
    resultat.EcrisCle("debut").EcrisEntier(debut);
    resultat.EcrisCle("fin").EcrisEntier(fin);
    resultat.FermeObjet();
}

void RemplaceEtReselectionne(Agent& agent, Banc& /*banc*/, Arguments const& a,
                             EcritureJson& resultat) {
    resultat.EcrisEntier(agent.RemplaceEtReselectionne(UniChaine(a.DonneTexte("texte"))));
}

void DonneAgentTexteur(Agent& agent, Banc& /*banc*/, Arguments const& /*arguments*/,
                       EcritureJson& resultat) {
    if (agent.DonneAgentTexteur() == nullptr) {
        resultat.EcrisNul();
    } else {
        resultat.EcrisBooleen(true);
    }
}

// In slot order: first those of InterfaceTexteur, then those of InterfaceAgentTexteur.
constexpr EntreeOperation<OperationAgent> kTable[] = {
    {"Capacite1", Appelle<&Agent::Capacite1>},
    {"Capacite2", Appelle<&Agent::Capacite2>},
    {"Capacite3", Appelle<&Agent::Capacite3>},
    {"Capacite4", Appelle<&Agent::Capacite4>},
    {"Capacite5", Appelle<&Agent::Capacite5>},
    {"Capacite6", Appelle<&Agent::Capacite6>},
    {"Capacite7", Appelle<&Agent::Capacite7>},
    {"DonneAgentTexteur", DonneAgentTexteur},
    {"Requete10", Appelle<&Agent::Requete10>},
    {"Requete11", Appelle<&Agent::Requete11>},
    {"Requete12", Appelle<&Agent::Requete12>},
    {"TraiteTexteLu", TraiteTexteLu},
    {"Crochet03", Appelle<&Agent::Crochet03>},
    {"DocEstMort", Appelle<&Agent::DocEstMort>},
    {"DonneCheminDocument", Appelle<&Agent::DonneCheminDocument>},
    {"DonneImageApplication", DonneImageApplication},
    {"DonneChaineAgent7", Appelle<&Agent::DonneChaineAgent7>},
    {"SynchronisePositions", AppelleZones<&Agent::SynchronisePositions>},
    {"DonneZones", AppelleZones<&Agent::DonneZones>},
    {"DonneNomApplication", Appelle<&Agent::DonneNomApplication>},
    {"DonneFinDeParagraphe", Appelle<&Agent::DonneFinDeParagraphe>},
    {"DonneTitreDocument", Appelle<&Agent::DonneTitreDocument>},
    {"Requete13", Appelle<&Agent::Requete13>},
    {"Requete14", Appelle<&Agent::Requete14>},
    {"InitialisePour", AppelleMode<&Agent::InitialisePour>},
    {"InitialiseTexteur", InitialiseTexteur},
    {"Requete17", Appelle<&Agent::Requete17>},
    {"EstLie", Appelle<&Agent::EstLie>},
    {"Crochet19", Appelle<&Agent::Crochet19>},
    {"PermetsRetourDeCharriot", Appelle<&Agent::PermetsRetourDeCharriot>},
    {"Requete21", Appelle<&Agent::Requete21>},
    {"ActivePour", AppelleMode<&Agent::ActivePour>},
    {"Crochet23", Appelle<&Agent::Crochet23>},
    {"Crochet24", Appelle<&Agent::Crochet24>},
    {"RompsLienCorrecteur", Appelle<&Agent::RompsLienCorrecteur>},
    {"RompsLienTexteur", Appelle<&Agent::RompsLienTexteur>},
    {"Suspends", Appelle<&Agent::Suspends>},
    {"Crochet28", Appelle<&Agent::Crochet28>},
    {"Crochet29", Appelle<&Agent::Crochet29>},
    {"Requete30", Appelle<&Agent::Requete30>},
    {"AjusteSelectionPourOutils", AjusteSelectionPourOutils},
    {"DonneContexte", DonneContexte},
    {"Requete33", Appelle<&Agent::Requete33>},
    {"RemplaceEtReselectionne", RemplaceEtReselectionne},
};

} // namespace

OperationAgent TrouveOperationAgent(QString const& nom) {
    return TrouveOperation(kTable, nom);
}

} // namespace hote
