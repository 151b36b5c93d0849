// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "UniChaine.h"

#include <cstdint>

class InterfaceAgentTexteur;

// The form of a contract. What is said of an operation of the three interfaces, and of an export,
// ends in one line in brackets:
//
//     [THREAD; needs STATE; leaves STATE; waits; throws WHAT; fails ANSWER]
//
// THREAD  `host`: the thread that loaded the connector, Qt's main one. Operations run on it one at
//         a time: none is entered while another runs, but from the event loop of an alert that the
//         other shows. `any`: any thread, also at the same time as others.
// needs   What must have happened. In another state nothing is promised but that of the word
//         processor nothing is changed by accident.
//           loaded   the library is loaded, and not being unloaded
//           made     the agent exists
//           served   made, and its `InitialiseTexteur` has answered true: the state of every agent
//                    that the host is given, and it stays so to the agent's end. From then on
//                    operations may come in any order, any number of times.
//           listed   the zone stands in a collection, and its agent lives
// leaves  The state afterwards, or what has changed for later operations. Without the word: the
//         state before, and nothing that a later operation could tell.
// waits   The word processor is asked, and the call blocks until it answers, as long as the
//         connector's own header says. Without the word the call returns at once: where it changes
//         the word processor, the change is asked for, and only what is read later shows whether it
//         was made.
// throws  What may leave the operation. Without the word: nothing but std::bad_alloc.
// fails   What it answers when it cannot be served. Without the word: it always can, or has no
//         answer.
//
// Where nothing else is said: what is passed by reference or address is the caller's and is used
// during the call only; what is returned by value is the caller's; positions and lengths are signed
// 32-bit counts of UTF-16 code units, a start inclusive, an end exclusive; an out is never null.

/// A word processor as a whole: a few capability questions, and the way to its agent.
///
/// The host calls every operation through the virtual table, by position: the order below is
/// frozen, and so are the two fields. An agent holds exactly one of these (virtual inheritance),
/// and the host may keep it by either pointer.
///
/// Slots whose meaning is the host's own (`Capacite…`, `Requete…`, `Crochet…`, here and in the
/// agent) are fixed by place and value. An implementer may rely on the line in brackets, on their
/// having no argument but those shown, and on a connector that answers as the interface's default
/// does, or as the generic agent does, being a right one.
class InterfaceTexteur {
  public:
    /// Copies `identificateur`, the document identifier that the host gave; the state starts at 0.
    /// [host; needs loaded; leaves made]
    explicit InterfaceTexteur(UniChaine const& identificateur)
        : identificateur_(identificateur) {}
    InterfaceTexteur(InterfaceTexteur const&) = delete;
    InterfaceTexteur& operator=(InterfaceTexteur const&) = delete;

    /// Sends nothing to the word processor. Zones of the agent are gone before.
    /// [host; needs made, loaded; leaves nothing]
    virtual ~InterfaceTexteur() = default;

    /// Seven constants of the connector, by which the host decides what it may ask. What each one
    /// announces is the host's knowledge: only place and value are fixed. The same answer every
    /// time, and from every agent of a connector.
    /// [host; needs made]
    virtual bool Capacite1() = 0;
    /// [host; needs made]
    virtual bool Capacite2() = 0;
    /// [host; needs made]
    virtual bool Capacite3() = 0;
    /// [host; needs made]
    virtual bool Capacite4() = 0;
    /// [host; needs made]
    virtual bool Capacite5() = 0;
    /// [host; needs made]
    virtual bool Capacite6() = 0;
    /// [host; needs made]
    virtual bool Capacite7() = 0;

    /// The agent behind this word processor, or null when there is none. The pointer is into the
    /// same object and lives as long: never delete through it.
    /// [host; needs made]
    virtual InterfaceAgentTexteur* DonneAgentTexteur() { return nullptr; }

    /// Reserved questions of the host; 0 unless a connector answers otherwise.
    /// [host; needs made]
    virtual int Requete10() { return 0; }
    /// [host; needs made]
    virtual int Requete11() { return 0; }
    /// [host; needs made]
    virtual int Requete12() { return 0; }

    /// A copy of the document identifier given at construction (not a slot: not virtual).
    /// [host; needs made]
    UniChaine DonneIdentificateur() const { return identificateur_; }

    /// The state, 0 from construction on (not a slot).
    /// [host; needs made]
    std::int32_t DonneEtat() const noexcept { return etat_; }

  private:
    UniChaine identificateur_;
    std::int32_t etat_ = 0;
};
