// SPDX-License-Identifier: MPL-2.0
#include "AgentFaux.h"

#include "ImageCommune.h"
#include "Scenario.h"
#include "ZoneFausse.h"

namespace {

bool Booleen(char const* operation, bool defaut) {
    return Scenario::Donne().Joue(operation).value(QLatin1String("reponse")).toBool(defaut);
}

int Entier(char const* operation, int defaut) {
    return Scenario::Donne().Joue(operation).value(QLatin1String("reponse")).toInt(defaut);
}

UniChaine Texte(char const* operation, QString const& defaut) {
    return UniChaine(
        Scenario::Donne().Joue(operation).value(QLatin1String("reponse")).toString(defaut));
}

} // namespace

AgentFaux::AgentFaux(UniChaine const& identificateur)
    : InterfaceTexteur(identificateur) {}

AgentFaux::~AgentFaux() {
    Scenario::Donne().Joue("~Agent");
    Scenario::Donne().EcrisJournal();
}

// Distinct answers, so that a caller that takes one operation for another is found out.
bool AgentFaux::Capacite1() {
    return Booleen("Capacite1", true);
}
bool AgentFaux::Capacite2() {
    return Booleen("Capacite2", false);
}
bool AgentFaux::Capacite3() {
    return Booleen("Capacite3", true);
}
bool AgentFaux::Capacite4() {
    return Booleen("Capacite4", true);
}
bool AgentFaux::Capacite5() {
    return Booleen("Capacite5", false);
}
bool AgentFaux::Capacite6() {
    return Booleen("Capacite6", false);
}
bool AgentFaux::Capacite7() {
    return Booleen("Capacite7", true);
}
int AgentFaux::Requete10() {
    return Entier("Requete10", 10);
}
int AgentFaux::Requete11() {
    return Entier("Requete11", 11);
}
int AgentFaux::Requete12() {
    return Entier("Requete12", 12);
}

void AgentFaux::TraiteTexteLu(TexteAvecAttributs& texte) {
    Scenario::Donne().Joue("TraiteTexteLu");
    texte.MetsUnite(0, u'#');
}
void AgentFaux::Crochet03() {
    Scenario::Donne().Joue("Crochet03");
}
bool AgentFaux::DocEstMort() {
    return Booleen("DocEstMort", Scenario::Donne().mort);
}
UniChaine AgentFaux::DonneCheminDocument() {
    return Texte("DonneCheminDocument", QStringLiteral("/un/chemin.txt"));
}
void AgentFaux::DonneImageApplication(ImageCommune& image) {
    if (Scenario::Donne().Joue("DonneImageApplication").value(QLatin1String("ignore")).toBool()) {
        return;
    }
    QPixmap carre(3, 2);
    carre.fill(Qt::black);
    image.Prends(carre);
}
UniChaine AgentFaux::DonneChaineAgent7() {
    return Texte("DonneChaineAgent7", QStringLiteral("sept"));
}
bool AgentFaux::SynchronisePositions(CollectionZonesDeTexte& zones) {
    Scenario& scenario = Scenario::Donne();
    QJsonObject const evenement = scenario.Joue("SynchronisePositions");
    int rang = 0;
    for (Scenario::Zone const& zone : scenario.zones) {
        zones.AjoutePossedee(std::make_unique<ZoneFausse>(rang++, zone.texte, zone.styles));
    }
    if (evenement.contains(QLatin1String("leveApres"))) {
        throw std::runtime_error("leveApres");
    }
    return evenement.value(QLatin1String("reponse")).toBool(true);
}
bool AgentFaux::DonneZones(CollectionZonesDeTexte& zones) {
    Scenario::Donne().Joue("DonneZones");
    return SynchronisePositions(zones);
}
UniChaine AgentFaux::DonneNomApplication() {
    return Texte("DonneNomApplication", QStringLiteral("Application fausse"));
}
UniChaine AgentFaux::DonneFinDeParagraphe() {
    return Texte("DonneFinDeParagraphe", QStringLiteral("\n"));
}
UniChaine AgentFaux::DonneTitreDocument() {
    return Texte("DonneTitreDocument", Scenario::Donne().titre);
}
int AgentFaux::Requete13() {
    return Entier("Requete13", 13);
}
int AgentFaux::Requete14() {
    return Entier("Requete14", 14);
}
void AgentFaux::InitialisePour(int mode) {
    Scenario::Donne().Joue(mode == 0 ? "InitialisePour(0)" : "InitialisePour");
}
bool AgentFaux::InitialiseTexteur(UniChaine const& classe, UniChaine& message, int mode) {
    Scenario::Donne().Joue("InitialiseTexteur");
    return classe.Longueur() == mode && message.EstVide();
}
bool AgentFaux::Requete17() {
    return Booleen("Requete17", true);
}
bool AgentFaux::EstLie() {
    return Booleen("EstLie", true);
}
void AgentFaux::Crochet19() {
    Scenario::Donne().Joue("Crochet19");
}
bool AgentFaux::PermetsRetourDeCharriot() {
    return Booleen("PermetsRetourDeCharriot", true);
}
bool AgentFaux::Requete21() {
    return Booleen("Requete21", false);
}
void AgentFaux::ActivePour(int mode) {
    Scenario::Donne().Joue(mode == 2 ? "ActivePour(2)" : "ActivePour");
}
void AgentFaux::Crochet23() {
    Scenario::Donne().Joue("Crochet23");
}
void AgentFaux::Crochet24() {
    Scenario::Donne().Joue("Crochet24");
}
void AgentFaux::RompsLienCorrecteur() {
    Scenario::Donne().Joue("RompsLienCorrecteur");
}
void AgentFaux::RompsLienTexteur() {
    Scenario::Donne().Joue("RompsLienTexteur");
}
void AgentFaux::Suspends() {
    Scenario::Donne().Joue("Suspends");
}
void AgentFaux::Crochet28() {
    Scenario::Donne().Joue("Crochet28");
}
void AgentFaux::Crochet29() {
    Scenario::Donne().Joue("Crochet29");
}
bool AgentFaux::Requete30() {
    return Booleen("Requete30", false);
}
int AgentFaux::AjusteSelectionPourOutils(int debut, int fin) {
    return Entier("AjusteSelectionPourOutils", debut * 100 + fin);
}
UniChaine AgentFaux::DonneContexte(int* debut, int* fin) {
    if (!Scenario::Donne().Joue("DonneContexte").value(QLatin1String("ignore")).toBool()) {
        *debut = 3;
        *fin = 5;
    }
    return UniChaine(QStringLiteral("le contexte"));
}
bool AgentFaux::Requete33() {
    return Booleen("Requete33", true);
}
int AgentFaux::RemplaceEtReselectionne(UniChaine const& texte) {
    return Entier("RemplaceEtReselectionne", texte.Longueur());
}
