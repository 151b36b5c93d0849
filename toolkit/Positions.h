// SPDX-License-Identifier: MPL-2.0
#pragma once

/// Position arithmetic that wraps instead of overflowing: positions come from the host, which may
/// give any 32-bit value. Any thread.
namespace positions {

inline int Somme(int a, int b) noexcept {
    return static_cast<int>(static_cast<unsigned>(a) + static_cast<unsigned>(b));
}

inline int Difference(int a, int b) noexcept {
    return static_cast<int>(static_cast<unsigned>(a) - static_cast<unsigned>(b));
}

} // namespace positions
