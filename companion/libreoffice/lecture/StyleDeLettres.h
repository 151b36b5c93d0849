// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "modele/PlagesDeStyle.h"

#include <com/sun/star/uno/Any.hxx>
#include <com/sun/star/uno/Reference.hxx>
#include <com/sun/star/uno/Sequence.hxx>
#include <com/sun/star/uno/XInterface.hpp>
#include <rtl/ustring.hxx>

#include <cstdint>
#include <vector>

namespace extension {

/// The properties of letters that are asked for together, in this order: ascending, as the office
/// looks them up fastest. Cells know neither `kExposant`, `kMasque` nor `kGenre`, and leave them
/// void.
enum ProprieteDeLettres {
    kExposant,
    kMasque,
    kLangue,
    kInclinaison,
    kBarre,
    kSoulignement,
    kGraisse,
    kGenre,
    kNombreDeProprietes
};

/// Their names in the office. Main thread, as all of these.
css::uno::Sequence<rtl::OUString> NomsDesProprietesDeLettres();

/// The style (protocol/README.md) that their values mean for letters of Latin script, with the
/// number of their language whichever the document's main one is.
std::uint16_t StyleDeLettres(css::uno::Any const* valeurs);

/// The style bits of a text in one format, whose values those are: weight, posture and language are
/// each script's own.
std::vector<compagnon::PlageDeStyle>
StylesDeLettres(css::uno::Reference<css::uno::XInterface> const& source,
                css::uno::Any const* valeurs, rtl::OUString const& texte);

} // namespace extension
