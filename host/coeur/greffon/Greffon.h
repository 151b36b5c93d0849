// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <memory>
#include <string>

class InterfaceAgentTexteur;
class InterfaceTexteur;
class UniChaine;
struct InfosApplication;

namespace hote {

/// A connector plug-in, held by its five exported functions and nothing else.
///
/// Everything that came from the plug-in (agents, zones, exceptions) must be gone before this
/// object is: its destructor unloads the library, and the library may take the Qt application
/// object with it. The five operations let the plug-in's exceptions through. Main thread.
class Greffon {
  public:
    /// Loads the library at `fichier` (a path, relative to the working directory unless absolute).
    /// Throws ErreurHote (kSortieGreffon) that says what is wrong: the loader's own words, or which
    /// exported function is missing.
    static std::unique_ptr<Greffon> Charge(std::string const& fichier);

    ~Greffon();
    Greffon(Greffon const&) = delete;
    Greffon& operator=(Greffon const&) = delete;

    /// Replaces `noms` by the name of the word processor that the plug-in serves.
    void DonneNomsTexteurs(UniChaine& noms) const;
    /// Null from every plug-in so far.
    InterfaceTexteur* CreeTexteur() const;
    InterfaceTexteur* CreeTexteurPalette() const;
    /// Is the window served? If so, replaces `idDocument` by the document's identifier.
    bool DonneIdentificateurDocumentCourant(InfosApplication const& infos,
                                            UniChaine& idDocument) const;
    /// A new agent, null when the plug-in makes none.
    std::unique_ptr<InterfaceAgentTexteur> CreeAgentTexteur(InfosApplication const& infos,
                                                            UniChaine const& idDocument) const;

  private:
    struct Exports;
    Greffon(void* bibliotheque, std::unique_ptr<Exports> exports);

    void* bibliotheque_;
    std::unique_ptr<Exports> exports_;
};

} // namespace hote
