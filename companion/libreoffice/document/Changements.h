// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/uno/Reference.hxx>
#include <com/sun/star/util/XModifyBroadcaster.hpp>

#include <cstdint>

namespace extension {

/// Watches whether anything changes in a document: typing, corrections, undo, formats. Counts from
/// its making to its end. Main thread.
class Changements {
  public:
    explicit Changements(css::uno::Reference<css::frame::XModel> const& modele);
    Changements(Changements const&) = delete;
    Changements& operator=(Changements const&) = delete;
    ~Changements();

    /// How many changes the office has told of.
    std::uint64_t DonneNombre() const noexcept;

  private:
    class Ecoute;

    css::uno::Reference<css::util::XModifyBroadcaster> source_;
    css::uno::Reference<Ecoute> ecoute_;
};

} // namespace extension
