// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <com/sun/star/frame/XModel.hpp>

#include <functional>
#include <string>

namespace extension {

/// Adds a step of that name to the document's undo list, for what the office records none of.
/// `rejoue` takes it back (true) or does it once more (false), for as long as the step is kept. A
/// step that fails would take the whole list along: what `rejoue` throws is lost. Main thread.
void AjouteEtape(css::uno::Reference<css::frame::XModel> const& modele, std::u16string const& nom,
                 std::function<void(bool aLEnvers)> rejoue);

/// No undo step holds what is done while it lives. Main thread; its start may throw UNO exceptions.
class SansEtape {
  public:
    explicit SansEtape(css::uno::Reference<css::frame::XModel> const& modele);
    ~SansEtape();
    SansEtape(SansEtape const&) = delete;
    SansEtape& operator=(SansEtape const&) = delete;

  private:
    css::uno::Reference<css::frame::XModel> modele_;
};

} // namespace extension
