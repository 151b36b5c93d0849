// SPDX-License-Identifier: MPL-2.0
#include "BilanJson.h"

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

char const* DonneNomGenre(GenreDeRemarque genre) {
    switch (genre) {
    case GenreDeRemarque::Orthographe:
        return "orthographe";
    case GenreDeRemarque::Accord:
        return "accord";
    case GenreDeRemarque::Confusion:
        return "confusion";
    case GenreDeRemarque::Typographie:
        return "typographie";
    case GenreDeRemarque::Repetition:
        return "repetition";
    case GenreDeRemarque::Style:
        break;
    }
    return "style";
}

void EcrisFaute(EcritureJson& json, FauteTraitee const& faute) {
    json.OuvreObjet();
    json.EcrisCle("zone").EcrisEntier(faute.zone);
    json.EcrisCle("debut").EcrisEntier(faute.faute.debut);
    json.EcrisCle("fin").EcrisEntier(faute.faute.fin);
    json.EcrisCle("mot").EcrisTexte(faute.faute.mot);
    json.EcrisCle("contexte").EcrisTexte(faute.contexte);
    json.EcrisCle("suggestions").OuvreTableau();
    for (QString const& suggestion : faute.faute.suggestions) {
        json.EcrisTexte(suggestion);
    }
    json.FermeTableau();
    json.EcrisCle("genre").EcrisTexte(QLatin1String(DonneNomGenre(faute.faute.genre)));
    json.EcrisCle("moteur").EcrisTexte(faute.faute.moteur);
    json.EcrisCle("regle").EcrisTexte(faute.faute.regle);
    json.EcrisCle("explication").EcrisTexte(faute.faute.explication);
    json.EcrisCle("etat").EcrisTexte(QLatin1String(DonneNomEtat(faute.etat)));
    json.EcrisCle("remplacement");
    if (faute.etat == EtatFaute::Laissee) {
        json.EcrisNul();
    } else {
        json.EcrisTexte(faute.remplacement);
    }
    json.FermeObjet();
}

} // namespace

std::string DonneBilanJson(EnTeteJson const& enTete, bool automatique, Bilan const& bilan) {
    EcritureJson json;
    json.OuvreObjet();
    EcrisEnTete(enTete, json);
    json.EcrisCle("automatique").EcrisBooleen(automatique);
    json.EcrisCle("zones").EcrisEntier(bilan.zones);
    json.EcrisCle("corrigees").EcrisEntier(bilan.Compte(EtatFaute::Corrigee));
    json.EcrisCle("refusees").EcrisEntier(bilan.Compte(EtatFaute::Refusee));
    json.EcrisCle("laissees").EcrisEntier(bilan.Compte(EtatFaute::Laissee));
    json.EcrisCle("nonVerifiees").EcrisEntier(bilan.Compte(EtatFaute::NonVerifiee));
    json.EcrisCle("fautes").OuvreTableau();
    for (FauteTraitee const& faute : bilan.fautes) {
        EcrisFaute(json, faute);
    }
    json.FermeTableau();
    json.EcrisCle("erreur");
    if (bilan.erreur) {
        json.EcrisTexte(QString::fromUtf8(bilan.erreur->what()));
    } else {
        json.EcrisNul();
    }
    json.FermeObjet();
    return json.DonneJson() + '\n';
}

} // namespace hote
