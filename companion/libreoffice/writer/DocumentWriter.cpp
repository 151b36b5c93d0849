// SPDX-License-Identifier: MPL-2.0
#include "DocumentWriter.h"

#include "ParcoursWriter.h"
#include "SelectionWriter.h"

#include <utility>

using namespace com::sun::star;

namespace extension {

DocumentWriter::DocumentWriter(uno::Reference<frame::XModel> const& modele, std::string cle)
    : DocumentOuvert(modele, std::move(cle))
    , fond_(std::make_shared<FondWriter>(FondWriter{modele, {}, Suppressions(modele)})) {}

void DocumentWriter::ParcoursZones(RecueilDeZones const& recueil) {
    ParcoursWriter(fond_, Carnet(), recueil).Parcours();
}

std::unique_ptr<SelectionVue> DocumentWriter::LisSelectionDuBureau() {
    return LisSelectionWriter(DonneModele());
}

} // namespace extension
