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
    explicit Rappel(std::function<void()> travail)
        : travail_(std::move(travail)) {}

    void SAL_CALL notify(uno::Any const& /*donnee*/) override { travail_(); }

  private:
    std::function<void()> travail_;
};

} // namespace

FilPrincipal::FilPrincipal(uno::Reference<uno::XComponentContext> const& contexte)
    : file_(contexte->getServiceManager()->createInstanceWithContext(
                "com.sun.star.awt.AsyncCallback", contexte),
            uno::UNO_QUERY_THROW) {}

void FilPrincipal::Poste(std::function<void()> travail) {
    file_->addCallback(new Rappel(std::move(travail)), uno::Any());
}

} // namespace extension
