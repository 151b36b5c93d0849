// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <com/sun/star/document/XUndoManager.hpp>
#include <com/sun/star/frame/XModel.hpp>

#include <memory>
#include <string>

namespace extension {

/// A document's undo list, into which corrections go in steps. A run of automatic corrections is
/// one: the office keeps a hundred steps and forgets the oldest, and a person who does not want
/// what was done undoes it at once. Main thread; operations may throw UNO exceptions unless they
/// say not.
class PileDAnnulation {
  public:
    /// Automatic corrections in one step. The office keeps them one in the other and goes down
    /// through all of them by calls when it undoes or forgets the step: its stack has an end.
    static constexpr int kAutomatiquesMax = 1000;

    explicit PileDAnnulation(css::uno::Reference<css::frame::XModel> const& modele);
    PileDAnnulation(PileDAnnulation const&) = delete;
    PileDAnnulation& operator=(PileDAnnulation const&) = delete;

    /// Opens a step of that name. What comes until `Sors` goes into it.
    void Entre(std::u16string const& nom);
    /// Opens a step for an automatic correction of that caller. What comes until `Sors` joins the
    /// step of its automatic correction before, if nothing else was done since: no edit, no undo,
    /// no saving, no correction of another kind or caller.
    void EntreAutomatique(std::string const& appelant);
    /// Closes the step. Without a step it does nothing.
    void Sors() noexcept;

    /// The next automatic correction begins a step of its own.
    void TermineSuite() noexcept;

  private:
    class Ecoute;
    struct Suivi;

    css::uno::Reference<css::document::XUndoManager> DonnePile() const;
    void Suis(css::uno::Reference<css::document::XUndoManager> const& pile);
    bool Continue(std::string const& appelant) const;
    bool EstModifie() const;

    css::uno::Reference<css::frame::XModel> modele_;
    css::uno::Reference<css::document::XUndoManager> ouverte_; ///< while a step is open in it
    std::shared_ptr<Suivi> suivi_; ///< empty until the first automatic correction
    std::string appelant_;         ///< whose run the last step is
    int longueur_ = 0;             ///< corrections in it
    bool modifie_ = false;         ///< did the document count as modified after the last of them?
};

} // namespace extension
