// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <functional>
#include <string>
#include <vector>

/// The loaders of translation domains, in the order in which they were given.
///
/// They come from connectors, which are unloaded while this list lives on: a plain function is
/// called only while the library that it came from is still the one at its address. The thread that
/// loads libraries.
class ChargeursDeTraduction {
  public:
    /// Runs a loader and keeps it. A plain function given again is kept once.
    void Ajoute(std::function<void()> chargeur);

    /// Runs every loader whose code is still there and forgets the others.
    void Execute();

  private:
    using Fonction = void (*)();

    struct Chargeur {
        Fonction fonction;           ///< null when `autre` holds the callable
        std::string bibliotheque;    ///< where the function's code came from, see CodeEn
        std::function<void()> autre; ///< never set for a plain function: its copy, and even its
                                     ///< destruction, would run code of the library it came from
    };

    /// Identifies the library mapped at `fonction`; empty when nothing is.
    static std::string CodeEn(Fonction fonction);

    std::vector<Chargeur> chargeurs_;
};
