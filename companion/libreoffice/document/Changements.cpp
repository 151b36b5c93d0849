// SPDX-License-Identifier: MPL-2.0
#include "Changements.h"

#include <com/sun/star/util/XModifyListener.hpp>
#include <cppuhelper/implbase1.hxx>

using namespace com::sun::star;

namespace extension {

class Changements::Ecoute : public cppu::WeakImplHelper1<util::XModifyListener> {
  public:
    void SAL_CALL modified(lang::EventObject const& /*evenement*/) override { ++nombre; }
    void SAL_CALL disposing(lang::EventObject const& /*source*/) override { ++nombre; }

    std::uint64_t nombre = 0; // told with the office's lock held, which the main thread has too
};

Changements::Changements(uno::Reference<frame::XModel> const& modele)
    : source_(modele, uno::UNO_QUERY_THROW)
    , ecoute_(new Ecoute) {
    source_->addModifyListener(ecoute_.get());
}

Changements::~Changements() {
    try {
        source_->removeModifyListener(ecoute_.get());
    } catch (uno::Exception const&) {
        source_.clear(); // the document is gone, and with it whom it told
    }
}

std::uint64_t Changements::DonneNombre() const noexcept {
    return ecoute_->nombre;
}

} // namespace extension
