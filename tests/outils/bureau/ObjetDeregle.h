// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Dereglements.h"
#include "ObjetBureau.h"
#include "ObjetCommande.h"
#include "Publication.h"

/// The office's object, each call of which goes past the tests' hold on it first; publishes that
/// hold, the control interface, on the same connection.
class ObjetDeregle : public compagnon::ObjetBureau {
    Q_OBJECT

  public:
    /// The last two must outlive the object.
    ObjetDeregle(compagnon::Bureau& bureau, bool peutEnregistrer,
                 compagnon::Publication& publication);

  protected:
    void Reponds(QDBusMessage const& appel, QDBusConnection const& connexion,
                 std::function<QDBusMessage()> const& sers) override;

  private:
    Dereglements dereglements_;
    ObjetCommande commande_;
};
