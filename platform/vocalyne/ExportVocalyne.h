// SPDX-License-Identifier: MPL-2.0
#pragma once

/// Marks what libOutilsVocalyne.so exports; everything else stays hidden.
#define VOCALYNE_OUTILS __attribute__((visibility("default")))
