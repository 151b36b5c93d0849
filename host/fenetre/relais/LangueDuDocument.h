// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QString>

#include <vector>

namespace hote {

/// The language, "fr" or "en", that most words of the texts are in; empty where none tells, or no
/// dictionary is there to ask. Opens dictionaries: takes a tenth of a second.
QString DevineLangue(std::vector<QString> const& textes);

} // namespace hote
