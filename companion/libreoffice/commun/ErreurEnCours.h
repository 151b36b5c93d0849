// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "partage/ErreurDuService.h"

namespace extension {

/// What the exception that is being handled means to a caller. Inside of a `catch` alone; any
/// thread.
compagnon::ErreurDuService ErreurEnCours();

} // namespace extension
