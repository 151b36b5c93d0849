// SPDX-License-Identifier: MPL-2.0
#include "BureauDeTest.h"

BureauDeTest::BureauDeTest(std::initializer_list<Fichier> fichiers,
                           std::vector<std::string> const& options,
                           std::map<std::string, std::string> const& environnement)
    : BureauTexte(fichiers, options, environnement, CHEMIN_BUREAU_DEREGLE) {}

CommandeBureau& BureauDeTest::DonneCommande() {
    if (!commande_) {
        LienBus const bus(QStringLiteral("org.freedesktop.DBus"),
                          QStringLiteral("/org/freedesktop/DBus"),
                          QStringLiteral("org.freedesktop.DBus"));
        QDBusMessage const reponse =
            bus.Appelle(QStringLiteral("GetNameOwner"), {QString::fromStdString(Service())});
        commande_ = std::make_unique<CommandeBureau>(reponse.arguments().value(0).toString());
    }
    return *commande_;
}
