// SPDX-License-Identifier: MPL-2.0
#include "commun/Mesures.h"
#include "commun/ProcessusMesure.h"

namespace banc {

LigneDeMesure MesureChargement(Ampleur ampleur, QString const& greffon, QString const& temoin,
                               QString const& chargeur) {
    auto const charge = [&chargeur](QString const& bibliotheque) {
        return Processus(chargeur, {bibliotheque}).LisLigne().toDouble();
    };
    auto const medianes = Alterne(
        ampleur.Tours(201), [&] { return charge(greffon); }, [&] { return charge(temoin); });
    return {"loading the plug-in / a bare library with a QApplication",
            medianes.mesure,
            medianes.reference,
            "us",
            1.15,
            "each in a fresh process"};
}

} // namespace banc
