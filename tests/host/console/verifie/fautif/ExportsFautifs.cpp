// SPDX-License-Identifier: MPL-2.0
#include "AgentFautif.h"
#include "Exports.h"
#include "RoutinesAgentTexteur.h"

#include <cstdlib>
#include <memory>

namespace {

UniChaine DonneClasse() {
    return UniChaine(QStringLiteral("org.example.Essai"));
}

/// Code of the library that runs once it goes.
struct Depart {
    ~Depart() {
        if (Faute("dechargement-plante")) {
            std::abort();
        }
    }
} leDepart;

bool EstServie(InfosApplication const* infos) {
    return infos != nullptr && infos->Classe == DonneClasse();
}

} // namespace

#ifdef VOCALYNE_BAVARD
extern "C" VOCALYNE_EXPORT void UneFonctionDeTrop() {}
#endif

void DonneNomsTexteurs(UniChaine* noms) {
    static int fois = 0;
    if (noms != nullptr || Faute("nul-plante")) {
        *noms = Faute("sans-nom") ? UniChaine() : DonneClasse();
        if (Faute("nom-changeant") && ++fois > 1) {
            noms->Ajoute(UniChaine(QString::number(fois)));
        }
    }
}

InterfaceTexteur* CreeTexteur() {
    return nullptr;
}

InterfaceTexteur* CreeTexteurPalette() {
    return nullptr;
}

bool DonneIdentificateurDocumentCourant(InfosApplication const* infos, UniChaine* idDocument) {
    if (infos == nullptr || idDocument == nullptr) {
        return Faute("nul-servi");
    }
    if (!EstServie(infos)) {
        if (Faute("refus-ecrit")) {
            *idDocument = UniChaine();
        }
        return false;
    }
    if (Faute("infos-ecrites")) {
        const_cast<InfosApplication*>(infos)->Genre = 9;
    }
    *idDocument = infos->Id;
    return true;
}

InterfaceAgentTexteur* CreeAgentTexteur(InfosApplication const* infos,
                                        UniChaine const* idDocument) {
    bool const refuse = idDocument == nullptr || !EstServie(infos) ||
                        (idDocument->EstVide() && !Faute("agent-sans-nom"));
    if (refuse || Faute("sans-agent")) {
        return nullptr;
    }
    auto agent = std::make_unique<AgentFautif>(*idDocument);
    return InitialiseAgentSelonInfos(agent.get(), *infos) ? agent.release() : nullptr;
}
