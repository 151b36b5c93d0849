// SPDX-License-Identifier: MPL-2.0
// An agent by itself: what it is, and what never changes.
#include "Epreuves.h"
#include "commun/MessagesHote.h"

namespace hote {

namespace {

/// What a connector answers alike every time, and through every agent.
QString DonneConstantes(Chantier const& chantier, InterfaceAgentTexteur& agent) {
    QString constantes;
    auto const note = [&](char const* nom, auto demande) {
        chantier.Appelle(nom, [&] { constantes += QString::number(demande()) + QLatin1Char(' '); });
    };
    note("Capacite1", [&] { return int{agent.Capacite1()}; });
    note("Capacite2", [&] { return int{agent.Capacite2()}; });
    note("Capacite3", [&] { return int{agent.Capacite3()}; });
    note("Capacite4", [&] { return int{agent.Capacite4()}; });
    note("Capacite5", [&] { return int{agent.Capacite5()}; });
    note("Capacite6", [&] { return int{agent.Capacite6()}; });
    note("Capacite7", [&] { return int{agent.Capacite7()}; });
    chantier.Appelle("DonneFinDeParagraphe",
                     [&] { constantes += agent.DonneFinDeParagraphe().VersQString(); });
    return constantes;
}

} // namespace

void EprouveAgent(Chantier const& chantier) {
    auto& rapporteur = chantier.DonneRapporteur();
    auto const greffon = chantier.Charge();
    auto const agent = chantier.OuvreAgent(*greffon);
    if (!agent) {
        if (chantier.AUnDocument()) {
            rapporteur.Essaie("agent.cree");
            rapporteur.Viole("agent.cree", Tr("Il n’en a pas : est-il à portée ?"));
        } else {
            rapporteur.Passe("agent.cree", Tr("sans document : donnez-en un, GREFFON ID"));
        }
        return;
    }
    rapporteur.Essaie("agent.cree");
    rapporteur.Essaie("agent.identifiant");
    UniChaine id;
    chantier.Appelle("DonneIdentificateur", [&] { id = agent->DonneIdentificateur(); });
    chantier.Exige(id == chantier.DonneId(), "agent.identifiant",
                   Tr("« {1} » : la base virtuelle se construit dans la classe la plus dérivée.",
                      id.VersQString()));
    rapporteur.Essaie("agent.meme-objet");
    InterfaceAgentTexteur* meme = nullptr;
    chantier.Appelle("DonneAgentTexteur", [&] { meme = agent->DonneAgentTexteur(); });
    chantier.Exige(meme == nullptr || meme == agent.get(), "agent.meme-objet",
                   Tr("Il en donne un autre."));
    rapporteur.Essaie("agent.constantes");
    QString const constantes = DonneConstantes(chantier, *agent);
    chantier.Exige(constantes == DonneConstantes(chantier, *agent), "agent.constantes",
                   Tr("Le même agent répond autrement la seconde fois."));
    if (auto const autre = chantier.OuvreAgent(*greffon)) {
        chantier.Exige(constantes == DonneConstantes(chantier, *autre), "agent.constantes",
                       Tr("Un autre agent répond autrement."));
    }
    rapporteur.Essaie("agent.vivant");
    bool mort = false;
    chantier.Appelle("DocEstMort", [&] { mort = agent->DocEstMort(); });
    chantier.Exige(!mort, "agent.vivant", Tr("Il l’est, dès l’ouverture."));
}

} // namespace hote
