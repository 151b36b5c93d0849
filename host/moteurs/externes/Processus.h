// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "moteurs/Moteur.h"

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace hote {

/// A program that is spoken to by lines over pipes. Used by one thread, in which SIGPIPE stays
/// blocked from the first start on.
class Processus {
  public:
    using Instant = std::chrono::steady_clock::time_point;

    /// Starts `commande` (a path, or a name looked up in PATH, and its arguments). It stays in our
    /// process group, so that an interruption from the terminal ends it too. Throws ErreurDeMoteur
    /// when it cannot be started.
    explicit Processus(std::vector<std::string> const& commande);
    /// Closes the program's input, and kills it unless it ends within half a second.
    ~Processus();
    Processus(Processus const&) = delete;
    Processus& operator=(Processus const&) = delete;

    enum class Issue { Faite, Finie, EnRetard, Arretee, TropLongue };

    /// Writes all of `octets`; meanwhile takes in what the program says, up to the longest line.
    Issue Ecris(std::string const& octets, Instant echeance, Arret const& arret);
    /// The next line, without its end. `Finie`: the program has closed its output. `TropLongue`:
    /// beyond `kLigneMax` bytes.
    Issue LisLigne(std::string& ligne, Instant echeance, Arret const& arret);

    /// The last line that it wrote to its standard error so far; may be empty.
    std::string DonneDerniereErreur() const;

    static constexpr std::size_t kLigneMax = std::size_t{8} * 1024 * 1024; ///< bytes

  private:
    void Lance(std::vector<std::string> const& commande, int entree, int sortie, int erreur);
    bool AttendsFlux(bool ecriture, Instant echeance);
    void LisSortie();
    void LisErreur();

    pid_t pid_ = -1;
    int entree_ = -1;
    int sortie_ = -1;
    int erreur_ = -1;
    bool finie_ = false;
    std::string lu_;
    std::string plainte_;
};

} // namespace hote
