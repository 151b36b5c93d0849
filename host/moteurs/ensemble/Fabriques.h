// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "moteurs/Atelier.h"
#include "reglages/ReglagesHote.h"

namespace hote {

/// All engines of this system that are not off, in the order in which their remarks count, with
/// what is done to paragraphs before them. `reglages` is asked about each remark: what the person
/// turns off or accepts later counts for what is examined from then on. `document`: where the
/// document is (a URL), for the words that are ignored in it; may be empty.
Atelier::Reglage FaisReglage(std::shared_ptr<ReglagesHote const> reglages,
                             QString const& document = {});

} // namespace hote
