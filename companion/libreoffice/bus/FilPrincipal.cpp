// SPDX-License-Identifier: MPL-2.0
#include "FilPrincipal.h"

#include <com/sun/star/awt/XCallback.hpp>
#include <com/sun/star/lang/XMultiComponentFactory.hpp>
#include <cppuhelper/implbase1.hxx>

#include <utility>

using namespace com::sun::star;

namespace extension {

namespace {

class Rappel : public cppu::WeakImplHelper1<awt::XCallback> {
  public:
    explicit Rappel(std::shared_ptr<Demande> demande)
        : demande_(std::move(demande)) {}

    void SAL_CALL notify(uno::Any const& /*donnee*/) override { demande_->Execute(); }

  private:
    std::shared_ptr<Demande> demande_;
};

} // namespace

FilPrincipal::FilPrincipal(uno::Reference<uno::XComponentContext> const& contexte)
    : file_(contexte->getServiceManager()->createInstanceWithContext(
                "com.sun.star.awt.AsyncCallback", contexte),
            uno::UNO_QUERY_THROW) {}

void FilPrincipal::Poste(std::shared_ptr<Demande> demande) {
    file_->addCallback(new Rappel(std::move(demande)), uno::Any());
}

} // namespace extension
