// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace banc {

/// How much is measured: enough for a figure, or just enough to see that everything runs.
struct Ampleur {
    bool essai = false;
    int Tours(int tours) const noexcept { return essai ? 2 : tours; }
    int Taille(int taille) const noexcept { return essai ? (taille + 99) / 100 : taille; }
};

/// One line of the table. `mesure` and `reference` are in `unite`.
struct LigneDeMesure {
    std::string nom;
    double mesure;
    double reference;
    std::string unite;
    double limite;
    std::string remarque;

    double Rapport() const noexcept { return mesure / reference; }
    bool EstTenue() const noexcept { return Rapport() <= limite; }
};

/// What one size costs, here and by the reference.
struct PointDeCourbe {
    int taille; ///< zones
    double mesure;
    double reference;
};

/// A cost against the size of a document. `nom`, `mesure` and `reference` are for its reader.
struct Courbe {
    std::string nom;
    std::string mesure;
    std::string reference;
    std::vector<PointDeCourbe> points;
};

double Mediane(std::vector<double> valeurs);

struct Medianes {
    double mesure;
    double reference;
};

/// Takes both readings in turn, the first of each pair changing every time, and gives the medians:
/// whatever slows the machine down meanwhile slows both. One unrecorded turn comes first.
Medianes Alterne(int tours, std::function<double()> const& mesure,
                 std::function<double()> const& reference);

/// Microseconds of processor time that this thread spends in `travail`.
double Occupe(std::function<void()> const& travail);

/// Microseconds that pass during `travail`.
double Passe(std::function<void()> const& travail);

} // namespace banc
