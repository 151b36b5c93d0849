// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "LienBus.h"

#include <string>
#include <vector>

/// A zone of a zone document, as it was read.
struct ZoneServie {
    std::string nom;
    std::string texte; // UTF-8
    int debutSel = 0;
    int finSel = 0;
};

/// A bare caller of an office's 24 methods, by a connection of its own: what the plug-in is to the
/// office, without the plug-in. Positions in UTF-16 units.
class ClientBureau {
  public:
    explicit ClientBureau(std::string const& instance);

    QDBusMessage Appelle(char const* methode, QVariantList const& arguments = {}) const {
        return lien_.Appelle(QLatin1String(methode), arguments);
    }
    /// The error's name; empty where the call was answered.
    std::string Erreur(char const* methode, QVariantList const& arguments = {}) const;

    void Initialise(std::string const& cle) const;
    /// The document's zones; none, and a failed test, on an error.
    std::vector<ZoneServie> Synchronise(std::string const& identifiant) const;
    bool PeutCorriger(std::string const& zone, int debut, int fin,
                      std::string const& attendu) const;
    /// The error's name; empty where the correction was made.
    std::string Corrige(std::string const& zone, int debut, int fin,
                        std::string const& texte) const;
    std::string Texte(char const* methode) const;
    int Entier(char const* methode) const;

    LienBus& Lien() noexcept { return lien_; }

  private:
    LienBus lien_;
};
