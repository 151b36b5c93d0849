// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ZoneRecue.h"

#include <functional>
#include <string>

/// Reads a zone-list document (UTF-8 bytes) and hands out its zones in order, each as soon as it is
/// read. All of the document is looked through before the first one is handed out.
///
/// Nothing is handed out for an empty document, one that does not parse as a whole, one whose root
/// is no object, whose "Zones" is neither an array nor null, or that is larger than any document:
/// more than 2,097,152 zones (`kZonesMax`), or more JSON values than that (`kValeursMax`) in one
/// zone or, where comments, escaped names or deep nesting have it parsed as a whole, in all of it.
/// An element of "Zones" that is no object is no zone. Throws
/// Json::RuntimeError at the first integer member that is none, after the zones before it were
/// handed out; and what `recois` throws.
void LisListeDeZones(std::string const& octets, std::function<void(ZoneRecue&&)> const& recois);
