// SPDX-License-Identifier: MPL-2.0
#include "InterfaceZoneDeTexte.h"
#include "commun/Mesures.h"

namespace banc {

namespace {

constexpr int kPas = 5; // units from one run to the next
constexpr int kLongueur = 3;

void MetsEnOrdre(sdd::ChaineN const& texte, int nombre) {
    TexteAvecAttributs attribue(texte);
    for (int plage = 0; plage < nombre; ++plage) {
        attribue.MetsAttribut(plage * kPas, kLongueur, static_cast<std::uint16_t>(1 + plage % 2));
    }
}

} // namespace

LigneDeMesure MesureAttributs(Ampleur ampleur) {
    auto const petit = ampleur.Taille(10000);
    auto const grand = petit * 10;
    sdd::ChaineN const texte(grand * kPas, u'a');
    auto const medianes = Alterne(
        ampleur.Tours(101), [&] { return Occupe([&] { MetsEnOrdre(texte, grand); }); },
        [&] { return Occupe([&] { MetsEnOrdre(texte, petit); }); });
    return {"ten times as many style runs in order",
            medianes.mesure,
            medianes.reference,
            "us",
            11,
            std::to_string(grand) + " / " + std::to_string(petit) + " runs"};
}

} // namespace banc
