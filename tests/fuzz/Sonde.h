// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <cstddef>
#include <cstdint>

/// One case: any bytes, valid during the call. Aborts when a promise is broken, returns 0
/// otherwise. The name is libFuzzer's.
// NOLINTNEXTLINE(readability-identifier-naming): libFuzzer calls it so.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* octets, std::size_t taille);

/// Says what was promised and aborts, unless it holds.
void Exige(bool tenu, char const* promesse);
