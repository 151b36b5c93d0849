// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <chrono>
#include <string>

namespace hote {

/// Shows on standard error how far a long work is: on a terminal one line that changes in place,
/// elsewhere a line every few seconds. Short works show nothing. VOCALYNE_PROGRESSION_MS in the
/// environment sets another period, in ms.
class Progression {
  public:
    Progression();
    ~Progression() { Efface(); }
    Progression(Progression const&) = delete;
    Progression& operator=(Progression const&) = delete;

    /// `texte` is made only when it is shown.
    template <class Fabrique>
    void Montre(Fabrique&& texte) {
        if (EstTemps()) {
            Affiche(texte());
        }
    }

    /// Takes the line away, before something else is written to the terminal.
    void Efface();

  private:
    bool EstTemps();
    void Affiche(std::string const& texte);

    using Horloge = std::chrono::steady_clock;
    bool terminal_;
    bool affichee_ = false;
    Horloge::duration periode_;
    Horloge::time_point prochaine_;
};

} // namespace hote
