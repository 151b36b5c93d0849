// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "CommandeBureau.h"
#include "Processus.h"
#include "outils/DossierTemporaire.h"

#include <filesystem>
#include <initializer_list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// A text office under test, in a process of its own, on the bus at DBUS_SESSION_BUS_ADDRESS, with
/// its control interface. Comes back from its construction when every document can be called.
class BureauDeTest {
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
    /// stand before them on the command line, after "--commande".
    BureauDeTest(std::initializer_list<Fichier> fichiers,
                 std::vector<std::string> const& options = {},
                 std::map<std::string, std::string> const& environnement = {});
    /// Ends the office, which must come out with the code 0, unless `Finis` or `Tue` was called or
    /// the test has awaited its end.
    ~BureauDeTest();
    BureauDeTest(BureauDeTest const&) = delete;
    BureauDeTest& operator=(BureauDeTest const&) = delete;

    /// INSTANCE~DOCUMENT, as the office printed it.
    std::string const& Identifiant(std::size_t rang = 0) const { return identifiants_.at(rang); }
    std::string Instance() const;
    std::string Service() const;
    std::string Objet() const;
    std::filesystem::path Chemin(std::size_t rang = 0) const { return chemins_.at(rang); }
    /// What the file holds on disk now.
    std::string Contenu(std::size_t rang = 0) const { return LisOctets(Chemin(rang)); }
    std::filesystem::path const& Dossier() const noexcept { return dossier_.Chemin(); }

    /// Made at the first use, by a connection of its own.
    CommandeBureau& DonneCommande();
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
    std::unique_ptr<CommandeBureau> commande_;
};

/// Path of the program under test.
std::string CheminBureauTexte();
