// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "FileDeTravaux.h"
#include "Moteur.h"
#include "Tri.h"

#include <map>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace hote {

/// Makes a paragraph ready before engines see it. Called from any thread, one at a time.
using PrepareParagraphe = std::function<void(ParagrapheAExaminer&)>;

/// Has paragraphs examined by several engines at once, each in threads of its own.
///
/// What the engines find reaches `Abonne` in the engines' order, whichever is quicker, so that the
/// same text gives the same remarks: an engine's are kept back until those before it are done.
class Atelier {
  public:
    using Jeton = quint64;

    /// Told of results, in the engines' threads, one call at a time. It must not call the workshop.
    class Abonne {
      public:
        virtual ~Abonne() = default;
        /// Once for each engine, in their order: what a person should see of its remarks.
        virtual void RecoisRemarques(Jeton jeton, QString const& moteur,
                                     std::vector<Remarque> const& remarques) = 0;
        /// All engines are done with the paragraph; nothing follows.
        virtual void RecoisFin(Jeton jeton) = 0;
        virtual void RecoisEtat(QString const& moteur, EtatMoteur etat, QString const& message) = 0;
    };

    struct Reglage {
        std::vector<MoteurFabrique> fabriques;
        PrepareParagraphe prepare; ///< may be empty
        EstRefusee refuse;         ///< may be empty
    };

    /// `abonne` must outlive the object.
    Atelier(Reglage reglage, Abonne& abonne);
    /// Waits for the examinations that run, which are asked to stop.
    ~Atelier();
    Atelier(Atelier const&) = delete;
    Atelier& operator=(Atelier const&) = delete;

    /// Has a paragraph examined; lower priorities come first. Any thread, as all that follows.
    Jeton Demande(ParagrapheAExaminer paragraphe, int priorite);
    /// Stops it: once this returns nothing more is told of it. Of no effect when it is done.
    void Annule(Jeton jeton);
    void ChangePriorite(Jeton jeton, int priorite);

  private:
    struct Travail;
    struct Poste;

    void Ouvre(Poste& poste);
    void Travaille(std::size_t rang);
    std::vector<Remarque> Examine(std::size_t rang, Travail& travail,
                                  std::unique_ptr<Moteur>& moteur);
    void Prepare(Travail& travail);
    void Livre(Jeton jeton, std::size_t rang, std::vector<Remarque> remarques);
    void ChangeEtat(std::size_t rang, EtatMoteur etat, QString const& message = {});

    Reglage reglage_;
    Abonne& abonne_;
    std::mutex mutex_; ///< of all below, and held while the subscriber is told
    std::map<Jeton, std::shared_ptr<Travail>> travaux_;
    Jeton dernier_ = 0;
    std::mutex preparation_;
    std::vector<std::unique_ptr<Poste>> postes_;
};

} // namespace hote
