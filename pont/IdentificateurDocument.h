// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "UniChaine.h"

#include <QString>

/// A document identifier taken apart: an office-suite instance and a document in it, joined by "~".
/// Empty parts are kept; without "~" the document part is empty.
class IdentificateurDocument {
  public:
    explicit IdentificateurDocument(UniChaine const& identificateur);

    /// "com.ombrel.vocalyne.texteurs.OpenOffice." + instance. Not necessarily a name that a bus can
    /// have: the proxy then refuses every call at once.
    QString DonneService() const;
    /// "/com/ombrel/vocalyne/texteurs/OpenOffice/" + instance.
    QString DonneChemin() const;
    QString const& DonneDocument() const noexcept { return document_; }

  private:
    QString instance_;
    QString document_;
};
