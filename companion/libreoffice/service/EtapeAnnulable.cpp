// SPDX-License-Identifier: MPL-2.0
#include "EtapeAnnulable.h"

#include "commun/ChainesUno.h"

#include <com/sun/star/document/XUndoManagerSupplier.hpp>

using namespace com::sun::star;

namespace extension {

EtapeAnnulable::EtapeAnnulable(DocumentOuvert const& document, std::u16string const& nom) {
    uno::Reference<document::XUndoManagerSupplier> const source(document.DonneModele(),
                                                                uno::UNO_QUERY);
    if (source.is()) {
        pile_ = source->getUndoManager();
        pile_->enterUndoContext(EnUno(nom));
    }
}

EtapeAnnulable::~EtapeAnnulable() {
    try {
        if (pile_.is()) {
            pile_->leaveUndoContext();
        }
    } catch (uno::Exception const&) {
        pile_.clear(); // the document goes: nobody will undo in it
    }
}

} // namespace extension
