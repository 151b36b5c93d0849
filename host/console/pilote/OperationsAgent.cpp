// SPDX-License-Identifier: MPL-2.0
#include "Operations.h"

#include "ImageCommune.h"

#include <QBuffer>

#include <type_traits>

namespace hote {

namespace {

using Agent = InterfaceAgentTexteur;

void Ecris(bool valeur, EcritureJson& json) {
    json.Booleen(valeur);
}
void Ecris(int valeur, EcritureJson& json) {
    json.Entier(valeur);
}
void Ecris(UniChaine const& valeur, EcritureJson& json) {
    json.Texte(valeur.VersQString());
}

/// An operation without arguments, and the result that its type says.
template <auto Operation>
void Appelle(Agent& agent, Banc& /*banc*/, Arguments const& /*arguments*/, EcritureJson& resultat) {
    if constexpr (std::is_void_v<decltype((agent.*Operation)())>) {
        (agent.*Operation)();
        resultat.Nul();
    } else {
        Ecris((agent.*Operation)(), resultat);
    }
}

template <void (Agent::*Operation)(int)>
void Mode(Agent& agent, Banc& /*banc*/, Arguments const& a, EcritureJson& resultat) {
    (agent.*Operation)(a.DonneEntier("mode"));
    resultat.Nul();
}

template <bool (Agent::*Operation)(CollectionZonesDeTexte&)>
void Zones(Agent& agent, Banc& banc, Arguments const& a, EcritureJson& resultat) {
    auto& zones = banc.tenu.DonneZones();
    if (a.DonneBooleen("vide", false)) {
        zones.Vide();
    }
    bool const ok = (agent.*Operation)(zones);
    resultat.Objet();
    resultat.Cle("ok").Booleen(ok);
    resultat.Cle("zones").Tableau();
    for (int i = 0; i < zones.DonneNombre(); ++i) {
        EcrisZone(*zones.DonneZone(i), resultat);
    }
    resultat.FinTableau();
    resultat.FinObjet();
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

void ImageApplication(Agent& agent, Banc& /*banc*/, Arguments const& /*arguments*/,
                      EcritureJson& resultat) {
    ImageCommune image;
    agent.DonneImageApplication(image);
    if (image.EstVide()) {
        resultat.Nul();
        return;
    }
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    image.DonnePixmap().save(&png, "PNG");
    resultat.Objet();
    resultat.Cle("largeur").Entier(image.DonnePixmap().width());
    resultat.Cle("hauteur").Entier(image.DonnePixmap().height());
    resultat.Cle("png").Texte(QString::fromLatin1(png.data().toBase64()));
    resultat.FinObjet();
}

void InitialiseTexteur(Agent& agent, Banc& /*banc*/, Arguments const& a, EcritureJson& resultat) {
    UniChaine const classe(a.DonneTexte("texte"));
    UniChaine message;
    resultat.Booleen(agent.InitialiseTexteur(classe, message, a.DonneEntier("mode")));
}

void AjusteSelectionPourOutils(Agent& agent, Banc& /*banc*/, Arguments const& a,
                               EcritureJson& resultat) {
    int const debut = a.DonneEntier("debut");
    resultat.Entier(agent.AjusteSelectionPourOutils(debut, a.DonneEntier("fin")));
}

void DonneContexte(Agent& agent, Banc& /*banc*/, Arguments const& /*arguments*/,
                   EcritureJson& resultat) {
    int debut = 0;
    int fin = 0;
    UniChaine const texte = agent.DonneContexte(&debut, &fin);
    resultat.Objet();
    resultat.Cle("texte").Texte(texte.VersQString());
    resultat.Cle("debut").Entier(debut);
    resultat.Cle("fin").Entier(fin);
    resultat.FinObjet();
}

void RemplaceEtReselectionne(Agent& agent, Banc& /*banc*/, Arguments const& a,
                             EcritureJson& resultat) {
    resultat.Entier(agent.RemplaceEtReselectionne(UniChaine(a.DonneTexte("texte"))));
}

void DonneAgentTexteur(Agent& agent, Banc& /*banc*/, Arguments const& /*arguments*/,
                       EcritureJson& resultat) {
    if (agent.DonneAgentTexteur() == nullptr) {
        resultat.Nul();
    } else {
        resultat.Booleen(true);
    }
}

struct Entree {
    char const* nom;
    OperationAgent operation;
};

// In slot order: first those of InterfaceTexteur, then those of InterfaceAgentTexteur.
constexpr Entree kTable[] = {
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
    {"DonneImageApplication", ImageApplication},
    {"DonneChaineAgent7", Appelle<&Agent::DonneChaineAgent7>},
    {"SynchronisePositions", Zones<&Agent::SynchronisePositions>},
    {"DonneZones", Zones<&Agent::DonneZones>},
    {"DonneNomApplication", Appelle<&Agent::DonneNomApplication>},
    {"DonneFinDeParagraphe", Appelle<&Agent::DonneFinDeParagraphe>},
    {"DonneTitreDocument", Appelle<&Agent::DonneTitreDocument>},
    {"Requete13", Appelle<&Agent::Requete13>},
    {"Requete14", Appelle<&Agent::Requete14>},
    {"InitialisePour", Mode<&Agent::InitialisePour>},
    {"InitialiseTexteur", InitialiseTexteur},
    {"Requete17", Appelle<&Agent::Requete17>},
    {"EstLie", Appelle<&Agent::EstLie>},
    {"Crochet19", Appelle<&Agent::Crochet19>},
    {"PermetsRetourDeCharriot", Appelle<&Agent::PermetsRetourDeCharriot>},
    {"Requete21", Appelle<&Agent::Requete21>},
    {"ActivePour", Mode<&Agent::ActivePour>},
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
    for (Entree const& entree : kTable) {
        if (nom == QLatin1String(entree.nom)) {
            return entree.operation;
        }
    }
    return nullptr;
}

} // namespace hote
