// SPDX-License-Identifier: MPL-2.0
#include "OuvreAgent.h"

#include "InfosApplication.h"
#include "commun/ErreurHote.h"
#include "commun/MessagesHote.h"

namespace hote {

std::unique_ptr<InterfaceAgentTexteur> OuvreAgent(Greffon const& greffon, QString const& id,
                                                  ModeAgent mode) {
    InfosApplication infos;
    greffon.DonneNomsTexteurs(infos.Classe);
    infos.ClasseInitialisation = infos.Classe;
    infos.Id = UniChaine(id);
    infos.Genre = static_cast<int>(mode) + 1; // kinds of request are the modes, counted from 1
    UniChaine idDocument;
    if (!greffon.DonneIdentificateurDocumentCourant(infos, idDocument)) {
        throw ErreurHote(kSortieDocument, Tr("Le connecteur ne sert pas le document {1}.", id));
    }
    auto agent = greffon.CreeAgentTexteur(infos, idDocument);
    if (!agent) {
        throw ErreurHote(kSortieDocument,
                         Tr("Le document {1} n’est pas à portée : est-il ouvert, et son logiciel "
                            "a-t-il l’extension de Vocalyne ? « vocalyne-hote documents » donne "
                            "ceux qui le sont.",
                            id));
    }
    // Not ActivePour, which would take the keyboard from the terminal that the person looks at.
    agent->InitialisePour(static_cast<int>(mode));
    return agent;
}

} // namespace hote
