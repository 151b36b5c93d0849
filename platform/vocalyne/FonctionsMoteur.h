// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <locale>

class CatalogueMo;

// The doors of libOutilsTraduction.so, known to libOutilsVocalyne.so alone: what MoteurTraduction.h
// says of each.
extern "C" {
__attribute__((visibility("default"))) bool vocalyneFaisLocale(CatalogueMo const& catalogue,
                                                               std::locale& locale);
__attribute__((visibility("default"))) char const*
vocalyneTraduis(std::locale const& locale, char const* contexte, char const* message);
}
