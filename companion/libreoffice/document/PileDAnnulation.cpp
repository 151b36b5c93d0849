// SPDX-License-Identifier: MPL-2.0
#include "PileDAnnulation.h"

#include "commun/ChainesUno.h"
#include "commun/NomDeCorrection.h"

#include <com/sun/star/document/XUndoManagerSupplier.hpp>
#include <com/sun/star/util/XModifiable.hpp>
#include <cppuhelper/implbase1.hxx>

#include <atomic>
#include <thread>

using namespace com::sun::star;

namespace extension {

/// What the undo list tells. Kept apart: whoever listens may live longer than the list's document.
struct PileDAnnulation::Suivi {
    std::thread::id const fil = std::this_thread::get_id();
    std::atomic<bool> chezNous{false}; ///< a step of ours is open
    std::atomic<bool> auSommet{false}; ///< the last step is ours, and nothing came after it
};

/// Hears whatever happens to the undo list. Programs may change it on any thread.
class PileDAnnulation::Ecoute : public cppu::WeakImplHelper1<document::XUndoManagerListener> {
  public:
    explicit Ecoute(std::shared_ptr<Suivi> suivi)
        : suivi_(std::move(suivi)) {}

    void SAL_CALL undoActionAdded(document::UndoManagerEvent const& /*e*/) override { Autre(); }
    void SAL_CALL actionUndone(document::UndoManagerEvent const& /*e*/) override { Autre(); }
    void SAL_CALL actionRedone(document::UndoManagerEvent const& /*e*/) override { Autre(); }
    void SAL_CALL allActionsCleared(lang::EventObject const& /*e*/) override { Autre(); }
    void SAL_CALL redoActionsCleared(lang::EventObject const& /*e*/) override { Autre(); }
    void SAL_CALL resetAll(lang::EventObject const& /*e*/) override { Autre(); }
    void SAL_CALL enteredContext(document::UndoManagerEvent const& /*e*/) override { Autre(); }
    void SAL_CALL enteredHiddenContext(document::UndoManagerEvent const& /*e*/) override {
        Autre();
    }
    void SAL_CALL leftContext(document::UndoManagerEvent const& /*e*/) override { Ferme(); }
    void SAL_CALL leftHiddenContext(document::UndoManagerEvent const& /*e*/) override { Ferme(); }
    void SAL_CALL cancelledContext(document::UndoManagerEvent const& /*e*/) override { Autre(); }
    void SAL_CALL disposing(lang::EventObject const& /*e*/) override { Autre(); }

  private:
    bool EstDeNous() const { return suivi_->chezNous && std::this_thread::get_id() == suivi_->fil; }
    void Autre() {
        if (!EstDeNous()) {
            suivi_->auSommet = false;
        }
    }
    void Ferme() { suivi_->auSommet = EstDeNous(); }

    std::shared_ptr<Suivi> suivi_;
};

PileDAnnulation::PileDAnnulation(uno::Reference<frame::XModel> const& modele)
    : modele_(modele) {}

uno::Reference<document::XUndoManager> PileDAnnulation::DonnePile() const {
    uno::Reference<document::XUndoManagerSupplier> const source(modele_, uno::UNO_QUERY);
    return source.is() ? source->getUndoManager() : uno::Reference<document::XUndoManager>();
}

void PileDAnnulation::Suis(uno::Reference<document::XUndoManager> const& pile) {
    if (!suivi_) {
        auto const suivi = std::make_shared<Suivi>();
        pile->addUndoManagerListener(new Ecoute(suivi)); // for as long as the document lives
        suivi_ = suivi;
    }
}

bool PileDAnnulation::EstModifie() const {
    uno::Reference<util::XModifiable> const document(modele_, uno::UNO_QUERY);
    return document.is() && document->isModified();
}

bool PileDAnnulation::Continue(std::string const& appelant) const {
    return suivi_->auSommet && appelant_ == appelant && longueur_ < kAutomatiquesMax &&
           (!modifie_ || EstModifie()); // saved since: what was saved is what an undo leads to
}

void PileDAnnulation::Entre(std::u16string const& nom) {
    TermineSuite();
    uno::Reference<document::XUndoManager> const pile = DonnePile();
    if (pile.is()) {
        pile->enterUndoContext(EnUno(nom));
        ouverte_ = pile;
    }
}

void PileDAnnulation::EntreAutomatique(std::string const& appelant) {
    uno::Reference<document::XUndoManager> const pile = DonnePile();
    if (!pile.is()) {
        return;
    }
    Suis(pile);
    if (Continue(appelant)) {
        pile->enterHiddenUndoContext();
        ++longueur_;
    } else {
        pile->enterUndoContext(EnUno(NomDeSuiteAutomatique()));
        longueur_ = 1;
    }
    appelant_ = appelant;
    ouverte_ = pile;
    suivi_->chezNous = true;
}

void PileDAnnulation::Sors() noexcept {
    try {
        if (ouverte_.is()) {
            ouverte_->leaveUndoContext();
        }
        modifie_ = EstModifie();
    } catch (uno::Exception const&) {
        TermineSuite(); // the document goes: nobody will undo in it
    }
    ouverte_.clear();
    if (suivi_) {
        suivi_->chezNous = false;
    }
}

void PileDAnnulation::TermineSuite() noexcept {
    if (suivi_) {
        suivi_->auSommet = false;
    }
}

} // namespace extension
