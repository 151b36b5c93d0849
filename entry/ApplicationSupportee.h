// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "InfosApplication.h"

/// Does the record describe a LibreOffice or OpenOffice.org window? Only its `Classe` is read, as a
/// whole text. Any thread.
bool EstApplicationSupportee(InfosApplication const& infos);
