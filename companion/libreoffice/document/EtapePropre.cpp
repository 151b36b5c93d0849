// SPDX-License-Identifier: MPL-2.0
#include "EtapePropre.h"

#include "commun/ChainesUno.h"
#include "partage/ErreurDuService.h"

#include <com/sun/star/document/XUndoAction.hpp>
#include <com/sun/star/document/XUndoManagerSupplier.hpp>
#include <cppuhelper/implbase1.hxx>

#include <utility>

using namespace com::sun::star;

namespace extension {

namespace {

uno::Reference<document::XUndoManager> PileDe(uno::Reference<frame::XModel> const& modele) {
    return uno::Reference<document::XUndoManagerSupplier>(modele, uno::UNO_QUERY_THROW)
        ->getUndoManager();
}

class Etape : public cppu::WeakImplHelper1<document::XUndoAction> {
  public:
    Etape(std::u16string const& nom, std::function<void(bool)> rejoue)
        : nom_(EnUno(nom))
        , rejoue_(std::move(rejoue)) {}

    rtl::OUString SAL_CALL getTitle() override { return nom_; }
    void SAL_CALL undo() override { Rejoue(true); }
    void SAL_CALL redo() override { Rejoue(false); }

  private:
    void Rejoue(bool aLEnvers) {
        try {
            rejoue_(aLEnvers);
        } catch (uno::Exception const&) {
            return;
        } catch (compagnon::ErreurDuService const&) {
            return;
        }
    }

    rtl::OUString nom_;
    std::function<void(bool)> rejoue_;
};

} // namespace

void AjouteEtape(uno::Reference<frame::XModel> const& modele, std::u16string const& nom,
                 std::function<void(bool)> rejoue) {
    PileDe(modele)->addUndoAction(new Etape(nom, std::move(rejoue)));
}

SansEtape::SansEtape(uno::Reference<frame::XModel> const& modele)
    : modele_(modele) {
    PileDe(modele_)->lock();
}

SansEtape::~SansEtape() {
    try {
        PileDe(modele_)->unlock();
    } catch (uno::Exception const&) { // NOLINT(bugprone-empty-catch): the document is going
    }
}

} // namespace extension
