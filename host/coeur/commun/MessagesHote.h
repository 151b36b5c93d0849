// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QString>

#include <string>

namespace hote {

/// Sets up what the host says and in which language: the person's choice in the settings file that
/// host and connectors share, else the system's language. Main thread, once, before anything is
/// said; needs no application object.
void InitialiseMessages();

/// The message in the display language, UTF-8. `message` is its French text, the catalog's key.
/// Before `InitialiseMessages` it is that French text itself.
std::string Tr(char const* message);

namespace detail {
std::string RemplacePlaces(std::string const& message, std::string const* valeurs, int nombre);
inline std::string DonneUtf8(std::string const& valeur) {
    return valeur;
}
inline std::string DonneUtf8(char const* valeur) {
    return valeur;
}
std::string DonneUtf8(QString const& valeur);
std::string DonneUtf8(long long valeur);
inline std::string DonneUtf8(int valeur) {
    return DonneUtf8(static_cast<long long>(valeur));
}
} // namespace detail

/// The same with {1}, {2}… replaced by the values; what the values hold is taken as it stands.
template <class... Valeurs>
std::string Tr(char const* message, Valeurs const&... valeurs) {
    std::string const textes[] = {detail::DonneUtf8(valeurs)...};
    return detail::RemplacePlaces(Tr(message), textes, static_cast<int>(sizeof...(valeurs)));
}

} // namespace hote
