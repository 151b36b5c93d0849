// SPDX-License-Identifier: MPL-2.0
#include "AlertesConnecteur.h"

#include "DAlerte.h"
#include "domaineTexteur.h"

#include <boost/locale/format.hpp>

#include <string>

namespace {

constexpr char const* kConsulterUtilisation =
    "Pour utiliser Vocalyne dans ce logiciel, veuillez consulter le document « Utilisation avec "
    "vos logiciels » (accessible par le menu Aide d’Vocalyne).";

UniChaine ComposePhrase(char const* message, char const* contexte,
                        UniChaine const& nomApplication) {
    // The name is an argument of the format, so braces in it stay as they are.
    auto const modele = _Tr(domaineTexteur, message, contexte).VersUtf8();
    auto const texte = (boost::locale::format(modele) % nomApplication.VersUtf8()).str();
    return UniChaine::DepuisUtf8(texte);
}

void Montre(UniChaine const& texte, UniChaine const& information) {
    DAlerte(nullptr, DAlerteInfo(DAlerteInfo::kAvertissement, texte, information, kUniChaineNulle));
}

} // namespace

void AlerteMiseAJourVocalyneRequise(UniChaine const& nomApplication) {
    auto information = ComposePhrase("L’intégration à {1} requiert une mise à jour d’Vocalyne.",
                                     nullptr, nomApplication);
    information.Ajoute(UniChaine("\n\n", UniChaine::kCodageLitteral));
    information.Ajoute(_Tr(domaineTexteur,
                           "Pour vérifier les mises à jour offertes, veuillez sélectionner "
                           "« Recherche de mise à jour » dans le menu Aide d’Vocalyne.",
                           nullptr));
    Montre(_Tr(domaineTexteur, "Impossible d’effectuer la requête", nullptr), information);
}

void AlerteConnecteurPasAJour(UniChaine const& /*nonLu*/, UniChaine const& nomApplication) {
    Montre(ComposePhrase("Le connecteur d’Vocalyne installé dans {1} n’est pas à jour.",
                         "... dans <nom_de_l_application> n’est pas ...", nomApplication),
           _Tr(domaineTexteur,
               "Pour mettre le connecteur à jour, veuillez lancer le programme d’installation des "
               "connecteurs, accessible par l’entrée « Installation dans vos logiciels » du menu "
               "Aide d’Vocalyne.",
               nullptr));
}

void AlerteAppelImpossible(UniChaine const& nomApplication) {
    Montre(ComposePhrase(
               "L’appel d’Vocalyne à partir de l’Agent Vocalyne n’est pas possible pour {1}.",
               "L’argument est un nom d’application", nomApplication),
           _Tr(domaineTexteur, kConsulterUtilisation, nullptr));
}

void AlerteConnecteurRequis(UniChaine const& nomApplication) {
    Montre(ComposePhrase("L’appel d’Vocalyne à partir de l’Agent Vocalyne pour {1} nécessite "
                         "l’installation d’un connecteur.",
                         nullptr, nomApplication),
           _Tr(domaineTexteur, kConsulterUtilisation, nullptr));
}
