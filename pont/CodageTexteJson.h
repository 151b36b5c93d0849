// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "UniChaine.h"

#include <string_view>

// Texts inside a zone document travel as Base64 of UTF-8, so that the JSON itself is plain ASCII
// whatever the document holds.

/// The Base64 characters of the text's UTF-8 bytes.
UniChaine EncodeTexteJson(UniChaine const& texte);

/// The text of a Base64 value; it ends at its first NUL byte. What does not decode gives whatever
/// the decoder made of it.
UniChaine DecodeTexteJson(std::string_view valeur);
