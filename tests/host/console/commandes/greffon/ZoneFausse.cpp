// SPDX-License-Identifier: MPL-2.0
#include "ZoneFausse.h"

#include "Scenario.h"

namespace {

bool Booleen(QJsonObject const& evenement, bool defaut) {
    return evenement.value(QLatin1String("reponse")).toBool(defaut);
}

int Entier(QJsonObject const& evenement, int defaut) {
    return evenement.value(QLatin1String("reponse")).toInt(defaut);
}

} // namespace

ZoneFausse::~ZoneFausse() {
    Scenario::Donne().Joue("~Zone");
}

bool ZoneFausse::AccepteIntervalles(int debut1, int fin1, int debut2, int fin2) {
    return Booleen(Scenario::Donne().Joue("AccepteIntervalles"), debut1 == debut2 && fin1 == fin2);
}

bool ZoneFausse::CorrigeDansTexteur(int debut, int fin, UniChaine const& texte, bool drapeau) {
    Scenario& scenario = Scenario::Donne();
    QJsonObject const evenement = scenario.Joue("CorrigeDansTexteur");
    bool const la = rang_ < static_cast<int>(scenario.zones.size());
    if (!evenement.value(QLatin1String("ignore")).toBool() && la &&
        scenario.zones[rang_].texte == texte_) {
        scenario.zones[rang_].texte.replace(debut, fin - debut, texte.VersQString());
    }
    texte_.replace(debut, fin - debut, texte.VersQString());
    return Booleen(evenement, drapeau);
}

int ZoneFausse::DonneDebutSelection() {
    return Entier(Scenario::Donne().Joue("DonneDebutSelection"), 0);
}

int ZoneFausse::DonneFinSelection() {
    return Entier(Scenario::Donne().Joue("DonneFinSelection"), 0);
}

UniChaine ZoneFausse::DonneChaineAuxiliaire() {
    return UniChaine(
        Scenario::Donne().Joue("DonneChaineAuxiliaire").value(QLatin1String("reponse")).toString());
}

TexteAvecAttributs ZoneFausse::DonneTexte() {
    Scenario::Donne().Joue("DonneTexte");
    TexteAvecAttributs texte{sdd::ChaineN(texte_)};
    for (QJsonValue const style : styles_) {
        QJsonArray const s = style.toArray();
        texte.MetsAttribut(s.at(0).toInt(), s.at(1).toInt(),
                           static_cast<std::uint16_t>(s.at(2).toInt()));
    }
    return texte;
}

int ZoneFausse::DonneLongueur() {
    return Entier(Scenario::Donne().Joue("DonneLongueur"), texte_.size());
}

bool ZoneFausse::PeutCorriger(int debut, int fin, UniChaine const& texte) {
    Scenario& scenario = Scenario::Donne();
    QJsonObject const evenement = scenario.Joue("PeutCorriger");
    bool const la = rang_ < static_cast<int>(scenario.zones.size());
    return Booleen(evenement, la && !scenario.mort && scenario.zones[rang_].texte == texte_ &&
                                  texte_.mid(debut, fin - debut) == texte.VersQString());
}

void ZoneFausse::AjusteIntervalle(int debut, int fin, int* debutAjuste, int* finAjustee,
                                  bool drapeau) {
    if (Scenario::Donne().Joue("AjusteIntervalle").value(QLatin1String("ignore")).toBool()) {
        return;
    }
    *debutAjuste = debut - 1;
    *finAjustee = drapeau ? fin + 1 : fin;
}

bool ZoneFausse::SelectionneIntervalle(int debut, int fin) {
    return Booleen(Scenario::Donne().Joue("SelectionneIntervalle"), debut < fin);
}
