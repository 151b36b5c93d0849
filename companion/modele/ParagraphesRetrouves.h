// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace compagnon {

/// For each paragraph of a text as it is now: which one of the earlier text it is, where that can
/// be told from the words alone. Never guesses: of equal neighbours, one of which is new, neither
/// is known again; a paragraph whose words changed is known only when it alone did. Linear.
std::vector<std::optional<std::size_t>>
RetrouveParagraphes(std::vector<std::u16string> const& avant,
                    std::vector<std::u16string> const& maintenant);

} // namespace compagnon
