// SPDX-License-Identifier: MPL-2.0
#include "ZoneJson.h"

#include "CodageTexteJson.h"
#include "LectureJson.h"

#include <json/writer.h>

namespace {

Json::Value PlageVersJson(contrat::PlageDeStyle const& lue) {
    Json::Value plage;
    plage["Debut"] = lue.debut;
    plage["Fin"] = lue.fin;
    plage["Style"] = lue.style;
    return plage;
}

Json::Value TexteVersJson(UniChaine const& texte) {
    return EncodeTexteJson(texte).VersUtf8();
}

UniChaine Ecris(Json::Value const& racine) {
// The writer that fixes the form of these documents.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    Json::FastWriter redacteur;
#pragma GCC diagnostic pop
    return UniChaine::DepuisUtf8(redacteur.write(racine));
}

} // namespace

UniChaine ZoneVersJson(std::vector<contrat::PlageDeStyle> const& styles, UniChaine const& texte,
                       UniChaine const& nom) {
    Json::Value racine;
    racine["Nom"] = TexteVersJson(nom);
    racine["Texte"] = TexteVersJson(texte);
    for (auto const& plage : styles) {
        racine["InfosStyle"].append(PlageVersJson(plage));
    }
    return Ecris(racine);
}

UniChaine ChaineAttribueeVersJson(TexteAvecAttributs const& texte) {
    Json::Value racine;
    racine["Texte"] = TexteVersJson(sdd::T(texte.DonneTexte()));
    for (auto const& plage : texte.DonnePlages()) {
        racine["InfosStyle"].append(PlageVersJson({plage.debut, plage.fin, plage.attribut}));
    }
    return Ecris(racine);
}

TexteAvecAttributs JsonVersChaineAttribuee(UniChaine const& json, UniChaine& nom) {
    TexteAvecAttributs texte;
    if (json.EstVide()) {
        return texte;
    }
    // Whether all of it parsed does not matter here: what the parser left is used.
    auto const racine = lectureJson::Analyse(json.VersUtf8()).racine;
    std::string tampon;
    nom = DecodeTexteJson(lectureJson::DonneTexte(racine, "Nom", tampon));
    texte.MetsTexte(sdd::T(DecodeTexteJson(lectureJson::DonneTexte(racine, "Texte", tampon))));
    auto const& styles = lectureJson::DonneMembre(racine, "InfosStyle");
    if (lectureJson::EstListe(styles)) {
        for (auto const& element : styles) {
            auto const plage = lectureJson::DonnePlage(element);
            texte.MetsAttribut(plage.debut, plage.DonneLongueur(), plage.style);
        }
    }
    return texte;
}
