// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "moteurs/externes/DescriptionMoteur.h"
#include "reglages/ReglagesHote.h"

#include <vector>

namespace hote {

/// Where engines outside the process are described, a folder each: those of VOCALYNE_MOTEURS
/// (separated by ":") and no others where it is set, even empty; else the person's own, the
/// program's, the system's.
QStringList DonneDossiersMoteurs();

/// Where npm installs an engine for the person.
QString DonneDossierNpm(QString const& moteur);

/// The engines that are described, whether they are installed or not, in the order of their names;
/// of two with one name, the first found. What is not understood is passed over, and told in
/// `fautes`, in English.
std::vector<DescriptionMoteur> DecouvreMoteurs(ReglagesHote const& reglages, QStringList& fautes);

} // namespace hote
