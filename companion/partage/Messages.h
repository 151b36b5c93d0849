// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace compagnon {

/// One message in both languages (UTF-8), with "{1}", "{2}"… for what is filled in.
struct Bilingue {
    char const* francais;
    char const* anglais;
};

/// Does the person read French? As `MetsFrancais` said; until then by LC_ALL, LC_MESSAGES, LANG,
/// the first that is set, read once. English otherwise. Any thread.
bool ParleFrancais();
/// For a program that knows its person's language by itself.
void MetsFrancais(bool vrai);

/// The message in the person's language, in UTF-8. Arguments go in as they are, bytes included. Any
/// thread.
std::string Dis(Bilingue message, std::initializer_list<std::string_view> arguments = {});

} // namespace compagnon
