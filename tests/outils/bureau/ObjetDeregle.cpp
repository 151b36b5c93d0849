// SPDX-License-Identifier: MPL-2.0
#include "ObjetDeregle.h"

#include "commandeadaptor.h"

ObjetDeregle::ObjetDeregle(compagnon::Bureau& bureau, bool peutEnregistrer,
                           compagnon::Publication& publication)
    : ObjetBureau(bureau, peutEnregistrer)
    , dereglements_(bureau)
    , commande_(bureau, dereglements_) {
    new CommandeAdaptor(&commande_); // owned by it
    QDBusConnection connexion = publication.DonneConnexion();
    connexion.registerObject(QStringLiteral("/com/ombrel/vocalyne/commande"), &commande_,
                             QDBusConnection::ExportAdaptors);
    auto const quitte = [connexion, service = publication.DonneService()]() mutable {
        connexion.unregisterService(service);
    };
    connect(&dereglements_, &Dereglements::QuitteLeNom, this, quitte);
    connect(&commande_, &ObjetCommande::NomAQuitter, this, quitte);
    connect(&commande_, &ObjetCommande::NomAReprendre, this,
            [connexion, service = publication.DonneService()]() mutable {
                connexion.registerService(service);
            });
}

void ObjetDeregle::Reponds(QDBusMessage const& appel, QDBusConnection const& connexion,
                           std::function<QDBusMessage()> const& sers) {
    if (!dereglements_.Prends(appel, connexion, sers)) {
        ObjetBureau::Reponds(appel, connexion, sers);
    }
}
