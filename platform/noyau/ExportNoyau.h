// SPDX-License-Identifier: MPL-2.0
#pragma once

/// Marks what libOutilsNoyau.so exports; everything else stays hidden.
#define VOCALYNE_NOYAU __attribute__((visibility("default")))
