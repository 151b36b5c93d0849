// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QString>

#include <cstddef>

/// Decodes UTF-8 as text and not as a file: a leading U+FEFF is a character like any other, and
/// U+0000 is kept. Bytes that do not decode become U+FFFD. Throws std::bad_alloc when the text is
/// longer than a QString can be. Any thread.
QString DecodeUtf8(char const* octets, std::size_t taille);
