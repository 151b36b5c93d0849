// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <com/sun/star/lang/Locale.hpp>

#include <cstdint>
#include <string>

namespace extension {

/// The office's name of a language as a BCP 47 tag; empty for none, and for "not to be proofed".
/// Any thread.
std::string EtiquetteDeLangue(css::lang::Locale const& langue);

/// Its number in a style (protocol/Langues.h); 0 for none. Quick where the same one is asked for
/// again and again. Main thread.
std::uint8_t NumeroDeLangue(css::lang::Locale const& langue);

} // namespace extension
