// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ConnexionPrivee.h"
#include "ListeDocuments.h"

#include <QDBusMessage>

#include <optional>
#include <vector>

namespace hote {

/// What a companion tells of one document beside its text, all of it optional: asked on a
/// connection of its own, a caller like any other. Each question waits within the limit given (ms)
/// and answers with nothing where the companion has none. Main thread, with an application object,
/// whose events run meanwhile.
class Renseignements {
  public:
    /// `id`: the whole identifier.
    explicit Renseignements(QString const& id);

    /// The document's entry in its companion's list.
    std::optional<DocumentAnnonce> DonneAnnonce(int delaiMs);

    struct Zone {
        QString cle;
        QString texte;
        QString nom; ///< for people, in the companion's language; may be empty
    };
    /// The document's zones as they stand now, in reading order. The companion reads the document
    /// for it.
    std::vector<Zone> LisZones(int delaiMs);

    /// Why the last correction that the plug-in of this process sent to the zone was refused, in
    /// the companion's words; empty when it was not, or nobody tells.
    QString DonneRefus(QString const& cle, int delaiMs);

  private:
    std::optional<QDBusMessage> Demande(QDBusConnection const& bus, char const* interface,
                                        char const* methode, QVariantList const& arguments,
                                        int delaiMs);

    QString id_;
    QString instance_;
    ConnexionPrivee connexion_;
};

} // namespace hote
