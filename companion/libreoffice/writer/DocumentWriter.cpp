// SPDX-License-Identifier: MPL-2.0
#include "DocumentWriter.h"

#include "ChoixWriter.h"
#include "ParcoursWriter.h"

#include <utility>

using namespace com::sun::star;

namespace bureau {

DocumentWriter::DocumentWriter(uno::Reference<frame::XModel> const& modele, std::string cle)
    : DocumentOuvert(modele, std::move(cle))
    , fond_(std::make_shared<FondWriter>(FondWriter{modele, {}, Suppressions(modele)})) {}

void DocumentWriter::ParcoursZones(Recueil const& recueil) {
    ParcoursWriter(fond_, Carnet(), recueil).Parcours();
}

std::unique_ptr<Choix> DocumentWriter::LisChoixDuBureau() {
    return LisChoixWriter(Modele());
}

} // namespace bureau
