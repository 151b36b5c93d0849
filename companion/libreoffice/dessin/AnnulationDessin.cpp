// SPDX-License-Identifier: MPL-2.0
#include "AnnulationDessin.h"

#include "TexteDessine.h"
#include "commun/ChainesUno.h"
#include "partage/ErreurDuService.h"

#include <com/sun/star/document/XUndoAction.hpp>
#include <com/sun/star/document/XUndoManagerSupplier.hpp>
#include <cppuhelper/implbase1.hxx>

#include <utility>

using namespace com::sun::star;

namespace extension {

namespace {

class Annulation : public cppu::WeakImplHelper1<document::XUndoAction> {
  public:
    Annulation(std::shared_ptr<TexteDessine> texte, Gestes gestes, rtl::OUString const& nom)
        : texte_(std::move(texte))
        , gestes_(std::move(gestes))
        , nom_(nom) {}

    rtl::OUString SAL_CALL getTitle() override { return nom_; }
    void SAL_CALL undo() override { Rejoue(true); }
    void SAL_CALL redo() override { Rejoue(false); }

  private:
    /// A step that fails takes the document's whole undo list along. So this one never does: where
    /// the text is gone, or another program has changed it, it leaves it as it is.
    void Rejoue(bool aLEnvers) {
        try {
            texte_->Rejoue(gestes_, aLEnvers);
        } catch (uno::Exception const&) {
            return;
        } catch (compagnon::ErreurDuService const&) {
            return;
        }
    }

    std::shared_ptr<TexteDessine> texte_;
    Gestes gestes_;
    rtl::OUString nom_;
};

} // namespace

void AjouteAnnulation(std::shared_ptr<TexteDessine> const& texte, Gestes gestes,
                      std::u16string const& nom) {
    uno::Reference<document::XUndoManagerSupplier> const document(texte->DonneModele(),
                                                                  uno::UNO_QUERY_THROW);
    document->getUndoManager()->addUndoAction(new Annulation(texte, std::move(gestes), EnUno(nom)));
}

} // namespace extension
