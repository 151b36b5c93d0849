// SPDX-License-Identifier: MPL-2.0
#include "DAlerteInfo.h"

#include <utility>

DAlerteInfo::DAlerteInfo(eTypeDialogue genre, UniChaine texte, UniChaine information,
                         UniChaine details)
    : genre_(genre)
    , texte_(std::move(texte))
    , information_(std::move(information))
    , details_(std::move(details)) {}
