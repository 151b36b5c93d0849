// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string>

namespace extension {

/// How the extension stands on the session bus. A value; any thread, as what tells it in words.
struct EtatDuBus {
    enum class Genre { Demarre, SansBus, BusMuet, BusParti, NonPublie, NomPris, Sert };

    Genre genre = Genre::Demarre;
    /// Whoever holds the name, or what the bus or GLib said; empty elsewhere. UTF-8.
    std::string precision;
};

/// One line in English, for the office's standard error. `nom`: the service's.
std::string PourLeJournal(EtatDuBus const& etat, std::string const& nom);

/// What is wrong and what to do about it, in the person's language; empty when all is well. UTF-8.
std::string RemedeDuBus(EtatDuBus const& etat, std::string const& nom);

} // namespace extension
