// SPDX-License-Identifier: MPL-2.0
#include "ArticlesJson.h"

#include "commun/EcritureJson.h"

namespace hote {

namespace {

void EcrisSens(EcritureJson& json, Sens const& sens) {
    json.OuvreObjet();
    json.EcrisCle("genre").EcrisTexte(sens.genre);
    json.EcrisCle("synonymes").OuvreTableau();
    for (Synonyme const& synonyme : sens.synonymes) {
        json.OuvreObjet();
        json.EcrisCle("mot").EcrisTexte(synonyme.mot);
        json.EcrisCle("note").EcrisTexte(synonyme.note);
        json.FermeObjet();
    }
    json.FermeTableau();
    json.FermeObjet();
}

} // namespace

std::string DonneArticlesJson(EnTeteJson const& enTete, QString const& mot,
                              ArticlesTrouves const& recherche) {
    EcritureJson json;
    json.OuvreObjet();
    EcrisEnTete(enTete, json);
    json.EcrisCle("mot").EcrisTexte(mot);
    json.EcrisCle("debut").EcrisEntier(recherche.mot.debut);
    json.EcrisCle("fin").EcrisEntier(recherche.mot.fin);
    json.EcrisCle("articles").OuvreTableau();
    for (Article const& article : recherche.articles) {
        json.OuvreObjet();
        json.EcrisCle("entree").EcrisTexte(article.entree);
        json.EcrisCle("sens").OuvreTableau();
        for (Sens const& sens : article.sens) {
            EcrisSens(json, sens);
        }
        json.FermeTableau();
        json.FermeObjet();
    }
    json.FermeTableau();
    json.FermeObjet();
    return json.DonneJson() + '\n';
}

} // namespace hote
