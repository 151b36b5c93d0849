// SPDX-License-Identifier: MPL-2.0
// The five functions by which a host knows the connector.
#include "AgentMarkdown.h"

#include <Exports.h>
#include <RoutinesAgentTexteur.h>

#include <memory>

namespace {

/// The class of the windows that are served: an editor of Markdown would have its own.
UniChaine DonneClasse() {
    return UniChaine(QStringLiteral("org.example.Markdown"));
}

bool EstServie(InfosApplication const* infos) {
    return infos != nullptr && infos->Classe == DonneClasse();
}

} // namespace

void DonneNomsTexteurs(UniChaine* noms) {
    if (noms != nullptr) {
        *noms = DonneClasse();
    }
}

InterfaceTexteur* CreeTexteur() {
    return nullptr;
}

InterfaceTexteur* CreeTexteurPalette() {
    return nullptr;
}

bool DonneIdentificateurDocumentCourant(InfosApplication const* infos, UniChaine* idDocument) {
    if (!EstServie(infos) || idDocument == nullptr) {
        return false;
    }
    *idDocument = infos->Id;
    return true;
}

InterfaceAgentTexteur* CreeAgentTexteur(InfosApplication const* infos,
                                        UniChaine const* idDocument) {
    if (!EstServie(infos) || idDocument == nullptr || idDocument->EstVide()) {
        return nullptr;
    }
    auto agent = std::make_unique<AgentMarkdown>(*idDocument);
    return InitialiseAgentSelonInfos(agent.get(), *infos) ? agent.release() : nullptr;
}
