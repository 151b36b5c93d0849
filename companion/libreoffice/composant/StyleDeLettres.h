// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <com/sun/star/uno/Any.hxx>
#include <com/sun/star/uno/Sequence.hxx>
#include <rtl/ustring.hxx>

#include <cstdint>

namespace bureau {

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

com::sun::star::uno::Sequence<rtl::OUString> NomsDesProprietesDeLettres();

/// The style bits (protocol/README.md) that their values mean.
std::uint16_t StyleDeLettres(com::sun::star::uno::Any const* valeurs);

} // namespace bureau
