// SPDX-License-Identifier: MPL-2.0
// The job that the office runs when its first window or a document opens: it starts the extension.
#include "Extension.h"

#include <com/sun/star/lang/XServiceInfo.hpp>
#include <com/sun/star/task/XJob.hpp>
#include <cppuhelper/implbase2.hxx>
#include <cppuhelper/supportsservice.hxx>

#include <cstdio>

using namespace com::sun::star;

namespace {

constexpr char kNom[] = "com.ombrel.vocalyne.libreoffice.Tache";

class Tache : public cppu::WeakImplHelper2<task::XJob, lang::XServiceInfo> {
  public:
    explicit Tache(uno::Reference<uno::XComponentContext> const& contexte)
        : contexte_(contexte) {}

    uno::Any SAL_CALL execute(uno::Sequence<beans::NamedValue> const& /*arguments*/) override {
        try {
            extension::Extension::Demarre(contexte_);
        } catch (uno::Exception const& erreur) {
            // A document must open even where this extension cannot work.
            std::fprintf(stderr, "vocalyne: cannot start: %s\n",
                         rtl::OUStringToOString(erreur.Message, RTL_TEXTENCODING_UTF8).getStr());
        }
        return {};
    }

    rtl::OUString SAL_CALL getImplementationName() override {
        return rtl::OUString::createFromAscii(kNom);
    }
    sal_Bool SAL_CALL supportsService(rtl::OUString const& service) override {
        return cppu::supportsService(this, service);
    }
    uno::Sequence<rtl::OUString> SAL_CALL getSupportedServiceNames() override {
        rtl::OUString const nom = rtl::OUString::createFromAscii(kNom);
        return {&nom, 1};
    }

  private:
    uno::Reference<uno::XComponentContext> contexte_;
};

} // namespace

/// Named in the package's list of components; the object is handed over with one reference.
extern "C" SAL_DLLPUBLIC_EXPORT uno::XInterface*
vocalyne_Tache_get_implementation(uno::XComponentContext* contexte,
                                  uno::Sequence<uno::Any> const& /*arguments*/) {
    cppu::OWeakObject* const tache = new Tache(contexte);
    tache->acquire();
    return tache;
}
