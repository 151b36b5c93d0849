// SPDX-License-Identifier: MPL-2.0
#include "Mesure.h"

#include <algorithm>
#include <ctime>

namespace banc {

namespace {

double Horloge(clockid_t horloge) {
    timespec instant{};
    clock_gettime(horloge, &instant);
    return static_cast<double>(instant.tv_sec) * 1e6 + static_cast<double>(instant.tv_nsec) / 1e3;
}

double Duree(clockid_t horloge, std::function<void()> const& travail) {
    auto const depart = Horloge(horloge);
    travail();
    return Horloge(horloge) - depart;
}

} // namespace

double Mediane(std::vector<double> valeurs) {
    auto const milieu = valeurs.begin() + static_cast<std::ptrdiff_t>(valeurs.size() / 2);
    std::nth_element(valeurs.begin(), milieu, valeurs.end());
    return *milieu;
}

Medianes Alterne(int tours, std::function<double()> const& mesure,
                 std::function<double()> const& reference) {
    std::vector<double> mesures;
    std::vector<double> references;
    mesure();
    reference();
    for (int tour = 0; tour < tours; ++tour) {
        if (tour % 2 == 0) {
            mesures.push_back(mesure());
            references.push_back(reference());
        } else {
            references.push_back(reference());
            mesures.push_back(mesure());
        }
    }
    return {Mediane(std::move(mesures)), Mediane(std::move(references))};
}

double Occupe(std::function<void()> const& travail) {
    return Duree(CLOCK_THREAD_CPUTIME_ID, travail);
}

double Passe(std::function<void()> const& travail) {
    return Duree(CLOCK_MONOTONIC, travail);
}

} // namespace banc
