// SPDX-License-Identifier: MPL-2.0
#pragma once

/// Marks what libOutilsGui.so exports; everything else stays hidden.
#define VOCALYNE_GUI __attribute__((visibility("default")))
