// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <optional>
#include <string_view>
#include <vector>

/// The zone objects of a zone-list document of the plain form that companions write: one object
/// with the one key "Zones", whose value is an array of objects, and nothing but white space around
/// them. Nothing for a document of any other form, whether it is right or wrong.
///
/// Each piece runs from an object's brace to the one that closes it; what stands inside is not
/// looked at further. A parser that takes every piece whole takes the document, and finds the same
/// in it. The pieces live as long as `document`.
std::optional<std::vector<std::string_view>> DecoupeZones(std::string_view document);
