// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <chrono>
#include <string>

/// Is there a bus that answers? Connecting to one that is stopped holds QtDBus, and with it every
/// thread that uses it, for as long as the bus likes: its library knows no time-out for that. So
/// the first words of a connection are exchanged over a socket of our own, which does.
namespace sondeDuBus {

/// The session bus's address, or addresses, as the bus library would find them: the environment's,
/// else the user's own bus. Empty where only that library knows how to go on.
std::string DonneAdresse();

/// Does a bus at one of `adresses` answer the first words of the authentication within `delai`?
/// True at once for addresses that are no local sockets: nothing is known of those. Blocks the
/// calling thread; any thread. Leaves nothing open.
bool Repond(std::string const& adresses, std::chrono::milliseconds delai);

} // namespace sondeDuBus
