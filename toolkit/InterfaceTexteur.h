// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "UniChaine.h"

#include <cstdint>

class InterfaceAgentTexteur;

/// A word processor as a whole: a few capability questions, and the way to its agent.
///
/// The host calls every operation through the virtual table, by position: the order below is
/// frozen, and so are the two fields. All operations run on the host's calling thread. An agent
/// holds exactly one of these (virtual inheritance), and the host may keep it by either pointer.
class InterfaceTexteur {
  public:
    /// Copies `identificateur`, the document identifier that the host gave; the state starts at 0.
    explicit InterfaceTexteur(UniChaine const& identificateur)
        : identificateur_(identificateur) {}
    InterfaceTexteur(InterfaceTexteur const&) = delete;
    InterfaceTexteur& operator=(InterfaceTexteur const&) = delete;

    virtual ~InterfaceTexteur() = default;

    /// Seven constants of the connector, by which the host decides what it may ask. What each one
    /// announces is the host's knowledge: only position and value are fixed.
    virtual bool Capacite1() = 0;
    virtual bool Capacite2() = 0;
    virtual bool Capacite3() = 0;
    virtual bool Capacite4() = 0;
    virtual bool Capacite5() = 0;
    virtual bool Capacite6() = 0;
    virtual bool Capacite7() = 0;

    /// The agent behind this word processor, or null when there is none. The pointer is into the
    /// same object: never delete through it.
    virtual InterfaceAgentTexteur* DonneAgentTexteur() { return nullptr; }

    /// Reserved questions of the host; 0 unless a connector answers otherwise.
    virtual int Requete10() { return 0; }
    virtual int Requete11() { return 0; }
    virtual int Requete12() { return 0; }

    /// A copy of the document identifier given at construction (not a slot: not virtual).
    UniChaine DonneIdentificateur() const { return identificateur_; }

    /// The state, 0 from construction on (not a slot).
    std::int32_t DonneEtat() const noexcept { return etat_; }

  private:
    UniChaine identificateur_;
    std::int32_t etat_ = 0;
};
