// SPDX-License-Identifier: MPL-2.0
#include "ArticlesJson.h"

#include "ChoixLangue.h"
#include "commun/EcritureJson.h"

namespace hote {

namespace {

void EcrisSens(EcritureJson& json, Sens const& sens) {
    json.Objet();
    json.Cle("genre").Texte(sens.genre);
    json.Cle("synonymes").Tableau();
    for (Synonyme const& synonyme : sens.synonymes) {
        json.Objet();
        json.Cle("mot").Texte(synonyme.mot);
        json.Cle("note").Texte(synonyme.note);
        json.FinObjet();
    }
    json.FinTableau();
    json.FinObjet();
}

} // namespace

std::string DonneArticlesJson(EnTeteArticles const& enTete, Recherche const& recherche) {
    EcritureJson json;
    json.Objet();
    json.Cle("id").Texte(enTete.id);
    json.Cle("titre").Texte(enTete.titre);
    json.Cle("langue").Texte(DonneCodeLangue(enTete.langue));
    json.Cle("langueTrouvee").Booleen(enTete.langueTrouvee);
    json.Cle("mot").Texte(enTete.mot);
    json.Cle("debut").Entier(recherche.mot.debut);
    json.Cle("fin").Entier(recherche.mot.fin);
    json.Cle("articles").Tableau();
    for (Article const& article : recherche.articles) {
        json.Objet();
        json.Cle("entree").Texte(article.entree);
        json.Cle("sens").Tableau();
        for (Sens const& sens : article.sens) {
            EcrisSens(json, sens);
        }
        json.FinTableau();
        json.FinObjet();
    }
    json.FinTableau();
    json.FinObjet();
    return json.DonneJson() + '\n';
}

} // namespace hote
