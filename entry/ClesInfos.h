// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "UniChaine.h"

/// The host's names for the entries of its application-information record, in each unit that
/// includes this header from load to unload. Kept for code that reads the record by name; the
/// exports read its fields. Any thread.
namespace clesInfos {

UniChaine const kApplication("Application", UniChaine::kCodageLitteral, -1);
UniChaine const kClasse("Classe", UniChaine::kCodageLitteral, -1);
UniChaine const kId("Id", UniChaine::kCodageLitteral, -1);
UniChaine const kTexteFenetre("TexteFenetre", UniChaine::kCodageLitteral, -1);
UniChaine const kNoVersion("NoVersion", UniChaine::kCodageLitteral, -1);
UniChaine const kTitre("Titre", UniChaine::kCodageLitteral, -1);

} // namespace clesInfos
