// SPDX-License-Identifier: MPL-2.0
#pragma once

namespace compagnon {

/// Gives a new file (a descriptor) owner, group, mode and extended attributes of the one in whose
/// place it comes (another), its access control list among them, and no list that it has from its
/// folder. Another's file keeps its owner only where we may give it; where the group cannot be
/// kept, the group's rights go, as they would be another group's. Nobody may do more with the new
/// file than with the old one: false, with `errno` set, where that or an attribute could not be
/// had.
bool ReprendsAttributs(int ancien, int nouveau);

} // namespace compagnon
