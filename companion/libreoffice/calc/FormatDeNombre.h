// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/table/CellAddress.hpp>
#include <com/sun/star/util/XNumberFormats.hpp>

namespace extension {

/// The number format of a cell as it is when this is made: what decides whether the office takes a
/// text put in there for a number or a formula. The cell is known by its place: undo comes back to
/// it when that is the same again. Main thread; operations may throw UNO exceptions.
class FormatDeNombre {
  public:
    FormatDeNombre(css::uno::Reference<css::frame::XModel> const& modele,
                   css::table::CellAddress const& adresse);

    /// Would the office take it for a number, or a formula?
    bool PrendPourUnNombre(rtl::OUString const& texte) const;
    bool PrendPourUneFormule(rtl::OUString const& texte) const;

    /// Gives the cell the format of text, and its own again: a format of the style's is no format
    /// of its own.
    void MetsTexte() const;
    void Retablis() const;
    /// The same, and no undo step holds it.
    void MetsTexteSansEtape() const;
    void RetablisSansEtape() const;

    /// Undo steps around a change of the cell's text, after which the office finds the format of
    /// text whenever it takes that back or does it once more. They stand unnamed in an open one.
    void AjouteEtapeAvant() const;
    void AjouteEtapeApres() const;

  private:
    css::uno::Reference<css::beans::XPropertySet> DonneCellule() const;
    css::uno::Reference<css::util::XNumberFormats> DonneFormats() const;

    css::uno::Reference<css::frame::XModel> modele_;
    css::table::CellAddress adresse_;
    css::uno::Any format_;
    bool herite_;
};

} // namespace extension
