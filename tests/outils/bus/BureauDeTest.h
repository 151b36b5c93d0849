// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "BureauTexte.h"
#include "CommandeBureau.h"

#include <initializer_list>
#include <map>
#include <memory>
#include <string>
#include <vector>

/// The same text office with the tests' hold on it, its control interface (`outils/bureau`).
class BureauDeTest : public BureauTexte {
  public:
    BureauDeTest(std::initializer_list<Fichier> fichiers,
                 std::vector<std::string> const& options = {},
                 std::map<std::string, std::string> const& environnement = {});

    /// Made at the first use, by a connection of its own.
    CommandeBureau& DonneCommande();

  private:
    std::unique_ptr<CommandeBureau> commande_;
};
