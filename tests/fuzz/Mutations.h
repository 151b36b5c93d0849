// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// A case derived from the seeds (at least one): bytes changed, left out, doubled, cut off, or
/// taken from another seed, a few times over. The same seeds and number always give the same case.
std::string Derive(std::vector<std::string> const& germes, std::uint64_t numero);
