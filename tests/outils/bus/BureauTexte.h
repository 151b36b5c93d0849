// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Processus.h"
#include "outils/DossierTemporaire.h"

#include <filesystem>
#include <initializer_list>
#include <map>
#include <memory>
#include <string>
#include <vector>

/// Path of the program under test.
std::string CheminBureauTexte();

/// The text office as it is installed, in a process of its own, on the bus at
/// DBUS_SESSION_BUS_ADDRESS. Comes back from its construction when every document can be called.
class BureauTexte {
  public:
    struct Fichier {
        // Not an aggregate: braces around two texts then mean one file and nothing else.
        Fichier(std::string nomDonne, std::string octetsDonnes)
            : nom(std::move(nomDonne))
            , octets(std::move(octetsDonnes)) {}

        std::string nom;
        std::string octets;
    };

    /// The files are written to a temporary folder, in this order: the first is "doc1". `options`
    /// stand before them on the command line.
    BureauTexte(std::initializer_list<Fichier> fichiers,
                std::vector<std::string> const& options = {},
                std::map<std::string, std::string> const& environnement = {},
                std::string const& programme = CheminBureauTexte());
    /// Ends the office, which must come out with the code 0, unless `Finis` or `Tue` was called or
    /// the test has awaited its end.
    ~BureauTexte();
    BureauTexte(BureauTexte const&) = delete;
    BureauTexte& operator=(BureauTexte const&) = delete;

    /// INSTANCE~DOCUMENT, as the office printed it.
    std::string const& Identifiant(std::size_t rang = 0) const { return identifiants_.at(rang); }
    std::string Instance() const;
    std::string Service() const;
    std::string Objet() const;
    std::filesystem::path Chemin(std::size_t rang = 0) const { return chemins_.at(rang); }
    /// What the file holds on disk now.
    std::string Contenu(std::size_t rang = 0) const { return LisOctets(Chemin(rang)); }
    std::filesystem::path const& Dossier() const noexcept { return dossier_.Chemin(); }
    Processus& DonneProcessus() noexcept { return *processus_; }

    /// Asks it to end (it saves) and waits; its exit code.
    int Finis();
    /// Kills it and waits.
    void Tue();

  private:
    DossierTemporaire dossier_;
    std::vector<std::filesystem::path> chemins_;
    std::vector<std::string> identifiants_;
    std::unique_ptr<Processus> processus_;
};
