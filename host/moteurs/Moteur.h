// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Remarque.h"

#include <atomic>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace hote {

/// Tells a long work that nobody waits for it any more. Copies tell the same. Any thread.
class Arret {
  public:
    Arret()
        : demande_(std::make_shared<std::atomic<bool>>(false)) {}

    void Demande() noexcept { *demande_ = true; }
    bool EstDemande() const noexcept { return *demande_; }

  private:
    std::shared_ptr<std::atomic<bool>> demande_;
};

enum class EtatMoteur {
    Arrete,  ///< not needed so far
    Demarre, ///< being made
    Pret,    ///< has answered
    Absent,  ///< not installed: the message says the command that installs it
    EnPanne, ///< the last examination failed: the message says why; the next one is tried again
};

/// An engine that cannot examine. The message is for the person: UTF-8, translated.
class ErreurDeMoteur : public std::runtime_error {
  public:
    /// `absent`: it is not there, and asking again is of no use.
    ErreurDeMoteur(bool absent, std::string const& message)
        : std::runtime_error(message)
        , absent_(absent) {}

    bool EstAbsent() const noexcept { return absent_; }

  private:
    bool absent_;
};

/// Finds what is wrong in a paragraph. Made, used and destroyed by one thread, never two at a time.
class Moteur {
  public:
    Moteur() = default;
    virtual ~Moteur() = default;
    Moteur(Moteur const&) = delete;
    Moteur& operator=(Moteur const&) = delete;

    virtual QString DonneNom() const = 0;
    /// Has it anything to say about texts in this language? Quick, and starts nothing.
    virtual bool Juge(QString const& langue) const = 0;
    /// The remarks on the parts in the languages that it judges, in any order. May block for a
    /// bounded time; ends early, with any result, once `arret` is asked for. Throws ErreurDeMoteur.
    virtual std::vector<Remarque> Examine(ParagrapheAExaminer const& paragraphe,
                                          Arret const& arret) = 0;
};

/// How engines of one kind are made: each in a thread of its own, when there is work for it.
struct MoteurFabrique {
    QString nom;
    std::function<std::unique_ptr<Moteur>()> cree; ///< called in that thread; throws ErreurDeMoteur
    int exemplaires = 1;                           ///< how many work side by side
};

} // namespace hote
