// SPDX-License-Identifier: MPL-2.0
// The bench's witness inside the office: reads a document's paragraphs with their formats, as any
// corrector must, and does nothing with them. Never part of the product.
#include <com/sun/star/awt/XCallback.hpp>
#include <com/sun/star/awt/XRequestCallback.hpp>
#include <com/sun/star/beans/XMultiPropertySet.hpp>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/container/XEnumerationAccess.hpp>
#include <com/sun/star/lang/XMultiComponentFactory.hpp>
#include <com/sun/star/lang/XServiceInfo.hpp>
#include <com/sun/star/task/XJob.hpp>
#include <com/sun/star/text/XTextDocument.hpp>
#include <cppuhelper/implbase1.hxx>
#include <cppuhelper/implbase2.hxx>
#include <cppuhelper/supportsservice.hxx>

#include <array>
#include <chrono>
#include <functional>
#include <future>
#include <vector>

using namespace com::sun::star;

namespace {

constexpr char kNom[] = "com.ombrel.vocalyne.banc.Temoin";

/// What a portion is and looks like, in the ascending order that the office looks up fastest.
uno::Sequence<rtl::OUString> Proprietes() {
    std::array<rtl::OUString, 8> const noms{"CharEscapement", "CharHidden",     "CharLocale",
                                            "CharPosture",    "CharStrikeout",  "CharUnderline",
                                            "CharWeight",     "TextPortionType"};
    return {noms.data(), static_cast<sal_Int32>(noms.size())};
}

struct Portion {
    rtl::OUString texte;
    uno::Sequence<uno::Any> valeurs;
};

using LisFormats = uno::Sequence<uno::Any> (*)(uno::Reference<text::XTextRange> const& portion,
                                               uno::Sequence<rtl::OUString> const& proprietes);

/// The plain way: each property by its name.
uno::Sequence<uno::Any> LisUnAUn(uno::Reference<text::XTextRange> const& portion,
                                 uno::Sequence<rtl::OUString> const& proprietes) {
    uno::Reference<beans::XPropertySet> const formats(portion, uno::UNO_QUERY_THROW);
    uno::Sequence<uno::Any> valeurs(proprietes.getLength());
    for (sal_Int32 i = 0; i < proprietes.getLength(); ++i) {
        valeurs[i] = formats->getPropertyValue(proprietes[i]);
    }
    return valeurs;
}

/// The lean way, which the extension takes too: all of them in one call.
uno::Sequence<uno::Any> LisEnsemble(uno::Reference<text::XTextRange> const& portion,
                                    uno::Sequence<rtl::OUString> const& proprietes) {
    uno::Reference<beans::XMultiPropertySet> const formats(portion, uno::UNO_QUERY_THROW);
    return formats->getPropertyValues(proprietes);
}

void LisParagraphe(uno::Any const& paragraphe, LisFormats lisFormats,
                   uno::Sequence<rtl::OUString> const& proprietes, std::vector<Portion>& lues) {
    uno::Reference<container::XEnumerationAccess> const portions(paragraphe, uno::UNO_QUERY);
    if (!portions.is()) {
        return;
    }
    uno::Reference<container::XEnumeration> const suite = portions->createEnumeration();
    while (suite->hasMoreElements()) {
        uno::Reference<text::XTextRange> const portion(suite->nextElement(), uno::UNO_QUERY_THROW);
        lues.push_back({portion->getString(), lisFormats(portion, proprietes)});
    }
}

void LisTout(uno::Reference<text::XTextDocument> const& document, LisFormats lisFormats) {
    auto const proprietes = Proprietes();
    std::vector<Portion> lues;
    uno::Reference<container::XEnumerationAccess> const corps(document->getText(),
                                                              uno::UNO_QUERY_THROW);
    uno::Reference<container::XEnumeration> const suite = corps->createEnumeration();
    while (suite->hasMoreElements()) {
        LisParagraphe(suite->nextElement(), lisFormats, proprietes, lues);
    }
}

double Chronometre(uno::Reference<text::XTextDocument> const& document, LisFormats lisFormats) {
    auto const debut = std::chrono::steady_clock::now();
    LisTout(document, lisFormats);
    std::chrono::duration<double, std::micro> const duree =
        std::chrono::steady_clock::now() - debut;
    return duree.count();
}

class Rappel : public cppu::WeakImplHelper1<awt::XCallback> {
  public:
    explicit Rappel(std::function<void()> travail)
        : travail_(std::move(travail)) {}
    void SAL_CALL notify(uno::Any const& /*donnee*/) override { travail_(); }

  private:
    std::function<void()> travail_;
};

class Temoin : public cppu::WeakImplHelper2<task::XJob, lang::XServiceInfo> {
  public:
    explicit Temoin(uno::Reference<uno::XComponentContext> const& contexte)
        : fil_(contexte->getServiceManager()->createInstanceWithContext(
                   "com.sun.star.awt.AsyncCallback", contexte),
               uno::UNO_QUERY_THROW) {}

    /// Arguments: the document; whether to read each property on its own. Result: the microseconds
    /// that the reading took, on the office's main thread, where the extension reads too.
    uno::Any SAL_CALL execute(uno::Sequence<beans::NamedValue> const& arguments) override {
        uno::Reference<text::XTextDocument> const document(arguments[0].Value,
                                                           uno::UNO_QUERY_THROW);
        bool unAUn = false;
        arguments[1].Value >>= unAUn;
        std::promise<double> duree;
        fil_->addCallback(new Rappel([&] {
                              try {
                                  duree.set_value(
                                      Chronometre(document, unAUn ? LisUnAUn : LisEnsemble));
                              } catch (...) {
                                  duree.set_exception(std::current_exception());
                              }
                          }),
                          uno::Any());
        return uno::Any(duree.get_future().get());
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
    uno::Reference<awt::XRequestCallback> fil_;
};

} // namespace

extern "C" SAL_DLLPUBLIC_EXPORT uno::XInterface*
banc_Temoin_get_implementation(uno::XComponentContext* contexte,
                               uno::Sequence<uno::Any> const& /*arguments*/) {
    cppu::OWeakObject* const temoin = new Temoin(contexte);
    temoin->acquire();
    return temoin;
}
