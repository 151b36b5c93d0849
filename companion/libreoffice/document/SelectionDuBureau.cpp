// SPDX-License-Identifier: MPL-2.0
#include "SelectionDuBureau.h"

#include <com/sun/star/frame/XController.hpp>
#include <com/sun/star/view/XSelectionSupplier.hpp>

using namespace com::sun::star;

namespace extension {

void SelectionneDans(uno::Reference<frame::XModel> const& modele, uno::Any const& objet) {
    uno::Reference<view::XSelectionSupplier> const vue(modele->getCurrentController(),
                                                       uno::UNO_QUERY_THROW);
    vue->select(objet);
}

} // namespace extension
