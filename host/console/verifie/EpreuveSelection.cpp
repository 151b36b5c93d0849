// SPDX-License-Identifier: MPL-2.0
// A selection asked for through a zone, and read again.
#include "Epreuves.h"
#include "Essayeur.h"
#include "commun/MessagesHote.h"

namespace hote {

void EprouveSelection(Chantier const& chantier) {
    auto& rapporteur = chantier.DonneRapporteur();
    auto const greffon = chantier.Charge();
    auto const agent = chantier.OuvreAgent(*greffon);
    if (!agent) {
        return;
    }
    Essayeur essayeur(chantier, *agent);
    auto& zones = essayeur.DonneZones();
    auto const mots = essayeur.Prepare() ? essayeur.TrouveMots(1, 3) : std::vector<MotTrouve>();
    if (mots.empty()) {
        rapporteur.Passe("selection.relue", Tr("aucun mot du document ne se corrige"));
        return;
    }
    rapporteur.Essaie("selection.relue");
    for (auto const& m : mots) {
        int const fin = m.debut + m.mot.size();
        bool demandee = false;
        chantier.Appelle("SelectionneIntervalle", [&] {
            demandee = zones.DonneZone(m.zone)->SelectionneIntervalle(m.debut, fin);
        });
        if (!essayeur.Prepare()) {
            return;
        }
        for (int i = 0; demandee && i < zones.DonneNombre(); ++i) {
            int const a = zones.DonneZone(i)->DonneDebutSelection();
            int const b = zones.DonneZone(i)->DonneFinSelection();
            bool const celle = i == m.zone && a == m.debut && b == fin;
            chantier.Exige((a == 0 && b == 0) || celle, "selection.relue",
                           Tr("Zone {1}, de {2} à {3}, au lieu de la zone {4}, de {5} à {6}.", i, a,
                              b, m.zone, m.debut, fin));
        }
    }
}

} // namespace hote
