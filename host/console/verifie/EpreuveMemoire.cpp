// SPDX-License-Identifier: MPL-2.0
// What a document that was opened, read and closed again leaves behind, time after time.
#include "Epreuves.h"
#include "commun/MessagesHote.h"

#include <QCoreApplication>

#include <malloc.h>

#include <algorithm>

namespace hote {

namespace {

void JoueUnTour(Chantier const& chantier, Greffon const& greffon) {
    auto const agent = chantier.OuvreAgent(greffon);
    if (!agent) {
        return;
    }
    CollectionZonesDeTexte zones;
    chantier.Lis(*agent, zones);
    chantier.DonneTextes(zones);
    chantier.Lis(*agent, zones);
    int debut = 0;
    int fin = 0;
    chantier.Appelle("DonneContexte", [&] { agent->DonneContexte(&debut, &fin); });
    chantier.Appelle("RompsLienCorrecteur", [&] { agent->RompsLienCorrecteur(); });
    chantier.Appelle("RompsLienTexteur", [&] { agent->RompsLienTexteur(); });
    zones.Vide();
}

/// Bytes that the process holds, all of them.
std::size_t DonneOctetsTenus() {
    auto const etat = mallinfo2();
    return etat.uordblks + etat.hblkhd;
}

} // namespace

void EprouveMemoire(Chantier const& chantier) {
    auto& rapporteur = chantier.DonneRapporteur();
    auto const greffon = chantier.Charge();
    if (!chantier.OuvreAgent(*greffon)) {
        return;
    }
    rapporteur.Essaie("memoire.croissance");
    constexpr int kTours = 10;
    constexpr int kTranches = 15;
    // The bus library keeps some bytes of its own; the smallest object takes this much.
    constexpr long long kAdmis = 32LL * kTours;
    long long moindre = kAdmis;
    // What is kept on purpose is there after a while, and other threads of the process come and go;
    // a leak grows in every stretch.
    for (int tranche = 0; tranche < kTranches && moindre >= kAdmis; ++tranche) {
        auto const avant = static_cast<long long>(DonneOctetsTenus());
        for (int i = 0; i < kTours; ++i) {
            JoueUnTour(chantier, *greffon);
            QCoreApplication::processEvents(); // as between two actions in any host
        }
        auto const croissance = static_cast<long long>(DonneOctetsTenus()) - avant;
        moindre = tranche == 0 ? croissance : std::min(moindre, croissance);
    }
    chantier.Exige(moindre < kAdmis, "memoire.croissance",
                   Tr("{1} octets de plus à chaque fois.", moindre / kTours));
}

} // namespace hote
