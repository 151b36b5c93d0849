// SPDX-License-Identifier: MPL-2.0
// The scripted plug-in's five exports. Compiled again and again, each time without one of them
// (VOCALYNE_SANS_…), for the plug-ins that are none.
#include "AgentFaux.h"
#include "InfosApplication.h"
#include "Scenario.h"

#define EXPORT extern "C" __attribute__((visibility("default")))

#ifdef VOCALYNE_LEVE_AU_CHARGEMENT
namespace {
bool const kRate = [] {
    throw std::runtime_error("au chargement");
    return true;
}();
} // namespace
#endif

#ifndef VOCALYNE_SANS_1
EXPORT void DonneNomsTexteurs(UniChaine* noms) {
    Scenario::Donne().Joue("DonneNomsTexteurs");
    *noms = UniChaine(QStringLiteral("Fenetre"));
}
#endif

#ifndef VOCALYNE_SANS_2
EXPORT InterfaceTexteur* CreeTexteur() {
    Scenario::Donne().Joue("CreeTexteur");
    return nullptr;
}
#endif

#ifndef VOCALYNE_SANS_3
EXPORT InterfaceTexteur* CreeTexteurPalette() {
    Scenario::Donne().Joue("CreeTexteurPalette");
    return nullptr;
}
#endif

#ifndef VOCALYNE_SANS_4
// An int, as a plug-in in C might have it, and true is not 1.
EXPORT int DonneIdentificateurDocumentCourant(InfosApplication const* infos,
                                              UniChaine* idDocument) {
    bool const servi = Scenario::Donne()
                           .Joue("DonneIdentificateurDocumentCourant")
                           .value(QLatin1String("reponse"))
                           .toBool(infos->Classe == UniChaine(QStringLiteral("Fenetre")));
    if (servi) {
        *idDocument = infos->Id;
    }
    return servi ? 2 : 0;
}
#endif

#ifndef VOCALYNE_SANS_5
EXPORT InterfaceAgentTexteur* CreeAgentTexteur(InfosApplication const* /*infos*/,
                                               UniChaine const* idDocument) {
    bool const fait =
        Scenario::Donne().Joue("CreeAgentTexteur").value(QLatin1String("reponse")).toBool(true);
    return fait ? new AgentFaux(*idDocument) : nullptr;
}
#endif
