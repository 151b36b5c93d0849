// SPDX-License-Identifier: MPL-2.0
#include "BilanJson.h"

#include "ChoixLangue.h"
#include "commun/EcritureJson.h"

namespace hote {

namespace {

char const* DonneNomEtat(EtatFaute etat) {
    switch (etat) {
    case EtatFaute::Corrigee:
        return "corrigee";
    case EtatFaute::Refusee:
        return "refusee";
    case EtatFaute::NonVerifiee:
        return "nonVerifiee";
    case EtatFaute::Laissee:
        break;
    }
    return "laissee";
}

void EcrisFaute(EcritureJson& json, FauteTraitee const& faute) {
    json.Objet();
    json.Cle("zone").Entier(faute.zone);
    json.Cle("debut").Entier(faute.faute.debut);
    json.Cle("fin").Entier(faute.faute.fin);
    json.Cle("mot").Texte(faute.faute.mot);
    json.Cle("contexte").Texte(faute.contexte);
    json.Cle("suggestions").Tableau();
    for (QString const& suggestion : faute.suggestions) {
        json.Texte(suggestion);
    }
    json.FinTableau();
    json.Cle("etat").Texte(QLatin1String(DonneNomEtat(faute.etat)));
    json.Cle("remplacement");
    if (faute.etat == EtatFaute::Laissee) {
        json.Nul();
    } else {
        json.Texte(faute.remplacement);
    }
    json.FinObjet();
}

} // namespace

std::string DonneBilanJson(EnTete const& enTete, Bilan const& bilan) {
    EcritureJson json;
    json.Objet();
    json.Cle("id").Texte(enTete.id);
    json.Cle("titre").Texte(enTete.titre);
    json.Cle("langue").Texte(DonneCodeLangue(enTete.langue));
    json.Cle("langueTrouvee").Booleen(enTete.langueTrouvee);
    json.Cle("automatique").Booleen(enTete.automatique);
    json.Cle("zones").Entier(bilan.zones);
    json.Cle("corrigees").Entier(bilan.Compte(EtatFaute::Corrigee));
    json.Cle("refusees").Entier(bilan.Compte(EtatFaute::Refusee));
    json.Cle("laissees").Entier(bilan.Compte(EtatFaute::Laissee));
    json.Cle("nonVerifiees").Entier(bilan.Compte(EtatFaute::NonVerifiee));
    json.Cle("fautes").Tableau();
    for (FauteTraitee const& faute : bilan.fautes) {
        EcrisFaute(json, faute);
    }
    json.FinTableau();
    json.Cle("erreur");
    if (bilan.erreur) {
        json.Texte(QString::fromUtf8(bilan.erreur->what()));
    } else {
        json.Nul();
    }
    json.FinObjet();
    return json.DonneJson() + '\n';
}

} // namespace hote
