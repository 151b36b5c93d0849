// SPDX-License-Identifier: MPL-2.0
#include "DialogueModal.h"

#include <com/sun/star/awt/XDialog.hpp>
#include <com/sun/star/awt/XExtendedToolkit.hpp>
#include <com/sun/star/awt/XTopWindow.hpp>
#include <com/sun/star/awt/XWindow2.hpp>
#include <com/sun/star/lang/XMultiComponentFactory.hpp>

#include <dlfcn.h>

#include <memory>

using namespace com::sun::star;

namespace extension {

// The office marks its list of windows as deprecated, and has nothing in its place.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace {

// What is used of GTK 3, without depending on it: most offices run without.
struct ListeGtk {
    void* donnee;
    ListeGtk* suivant;
};

template <typename Fonction>
Fonction Symbole(void* bibliotheque, char const* nom) {
    return reinterpret_cast<Fonction>(dlsym(bibliotheque, nom));
}

/// With GTK the office's dialogues are GTK's own windows, which the office's toolkit does not list.
bool UnDialogueGtkEstOuvert() {
    struct Fermeture {
        void operator()(void* bibliotheque) const { dlclose(bibliotheque); }
    };
    std::unique_ptr<void, Fermeture> const gtk(dlopen("libgtk-3.so.0", RTLD_LAZY | RTLD_NOLOAD));
    if (!gtk) {
        return false;
    }
    auto const fenetres = Symbole<ListeGtk* (*)()>(gtk.get(), "gtk_window_list_toplevels");
    auto const estModale = Symbole<int (*)(void*)>(gtk.get(), "gtk_window_get_modal");
    auto const estVisible = Symbole<int (*)(void*)>(gtk.get(), "gtk_widget_get_mapped");
    auto const libere = Symbole<void (*)(ListeGtk*)>(gtk.get(), "g_list_free");
    auto const ecran = Symbole<void* (*)()>(gtk.get(), "gdk_screen_get_default");
    if (fenetres == nullptr || estModale == nullptr || estVisible == nullptr || libere == nullptr ||
        ecran == nullptr || ecran() == nullptr) {
        return false; // loaded by something else: the office does not show itself with it
    }
    bool ouvert = false;
    ListeGtk* const liste = fenetres();
    for (ListeGtk* element = liste; element != nullptr; element = element->suivant) {
        ouvert = ouvert || (estModale(element->donnee) != 0 && estVisible(element->donnee) != 0);
    }
    libere(liste);
    return ouvert;
}

} // namespace

bool DialogueModal::EstOuvert() const {
    if (UnDialogueGtkEstOuvert()) {
        return true;
    }
    uno::Reference<awt::XExtendedToolkit> const fenetres(
        contexte_->getServiceManager()->createInstanceWithContext("com.sun.star.awt.Toolkit",
                                                                  contexte_),
        uno::UNO_QUERY);
    for (sal_Int32 i = 0; fenetres.is() && i < fenetres->getTopWindowCount(); ++i) {
        uno::Reference<uno::XInterface> const fenetre(fenetres->getTopWindow(i), uno::UNO_QUERY);
        uno::Reference<awt::XWindow2> const vue(fenetre, uno::UNO_QUERY);
        // Nothing tells the office's own modal dialogues from its others, not even accessibility:
        // each that shows counts.
        bool const dialogue = uno::Reference<awt::XDialog>(fenetre, uno::UNO_QUERY).is();
        if (dialogue && vue.is() && vue->isVisible()) {
            return true;
        }
    }
    return false;
}

} // namespace extension
