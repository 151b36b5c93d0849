// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "EcritureSure.h"
#include "LectureFichier.h"
#include "partage/Messages.h"

#include <string>
#include <string_view>

namespace compagnon {

/// What to tell about a file that cannot be served.
std::string DisProbleme(LectureFichier const& lecture, std::string_view chemin);
/// What to tell about a save that is not `Faite`.
std::string DisEcriture(Ecriture const& ecriture, std::string_view chemin);

} // namespace compagnon
