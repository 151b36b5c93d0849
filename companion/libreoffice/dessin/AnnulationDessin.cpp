// SPDX-License-Identifier: MPL-2.0
#include "AnnulationDessin.h"

#include "TexteDessine.h"
#include "commun/ChainesUno.h"

#include <com/sun/star/document/UndoFailedException.hpp>
#include <com/sun/star/document/XUndoAction.hpp>
#include <com/sun/star/document/XUndoManagerSupplier.hpp>
#include <cppuhelper/implbase1.hxx>

#include <string>
#include <utility>

using namespace com::sun::star;

namespace extension {

namespace {

class Annulation : public cppu::WeakImplHelper1<document::XUndoAction> {
  public:
    Annulation(std::shared_ptr<TexteDessine> texte, std::size_t rang,
               CorrectionPrete const& correction)
        : texte_(std::move(texte))
        , rang_(rang)
        , debut_(correction.debut)
        , avant_(correction.avant)
        , apres_(correction.apres)
        , nom_(EnUno(correction.nom)) {}

    rtl::OUString SAL_CALL getTitle() override { return nom_; }
    void SAL_CALL undo() override { Remplace(apres_, avant_); }
    void SAL_CALL redo() override { Remplace(avant_, apres_); }

  private:
    void Remplace(std::u16string const& avant, std::u16string const& apres) {
        bool fait = false;
        try {
            fait = texte_->Remplace(rang_, debut_, avant, apres);
        } catch (uno::Exception const&) {
            fait = false; // the shape is gone
        }
        if (!fait) {
            throw document::UndoFailedException("the text has changed", *this, uno::Any());
        }
    }

    std::shared_ptr<TexteDessine> texte_;
    std::size_t rang_;
    std::size_t debut_;
    std::u16string avant_;
    std::u16string apres_;
    rtl::OUString nom_;
};

} // namespace

void AjouteAnnulation(std::shared_ptr<TexteDessine> const& texte, std::size_t rang,
                      CorrectionPrete const& correction) {
    uno::Reference<document::XUndoManagerSupplier> const document(texte->DonneModele(),
                                                                  uno::UNO_QUERY_THROW);
    document->getUndoManager()->addUndoAction(new Annulation(texte, rang, correction));
}

} // namespace extension
