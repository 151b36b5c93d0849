// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Rapporteur.h"
#include "greffon/Greffon.h"

#include "CollectionZonesDeTexte.h"
#include "InterfaceAgentTexteur.h"

#include <QString>

#include <exception>
#include <memory>
#include <new>
#include <string>
#include <vector>

namespace hote {

/// Tells of an object's end before it is brought about: it is the connector's code that runs.
template <class Objet>
struct FinDite {
    Rapporteur* rapporteur;
    char const* operation;

    void operator()(Objet* objet) const {
        rapporteur->Appelle(operation);
        delete objet;
    }
};
using AgentEprouve = std::unique_ptr<InterfaceAgentTexteur, FinDite<InterfaceAgentTexteur>>;
using GreffonEprouve = std::unique_ptr<Greffon, FinDite<Greffon>>;

/// What the trials of one document share: the connector, the document, and how calls are made and
/// told. Main thread.
class Chantier {
  public:
    /// `id` may be empty: then a connector that needs none is tried with a name of ours.
    Chantier(std::string fichier, QString id, Rapporteur& rapporteur)
        : fichier_(std::move(fichier))
        , id_(std::move(id))
        , rapporteur_(rapporteur) {}

    Rapporteur& DonneRapporteur() const noexcept { return rapporteur_; }
    std::string const& DonneFichier() const noexcept { return fichier_; }
    bool AUnDocument() const noexcept { return !id_.isEmpty(); }
    UniChaine DonneId() const;

    /// A breach unless `vrai`; answers it.
    bool Exige(bool vrai, char const* regle, std::string const& constat) const {
        if (!vrai) {
            rapporteur_.Viole(regle, constat);
        }
        return vrai;
    }

    /// Calls an operation of the connector. Answers false when something was thrown, which is a
    /// breach; a std::exception is none where `peutLever`.
    template <class Travail>
    bool Appelle(char const* operation, Travail&& travail, bool peutLever = false) const {
        rapporteur_.Appelle(operation);
        try {
            travail();
            return true;
        } catch (std::bad_alloc const&) {
            throw;
        } catch (std::exception const& erreur) {
            if (!peutLever) {
                SignaleException(operation, erreur.what());
            }
        } catch (...) {
            SignaleException(operation, nullptr);
        }
        return false;
    }

    /// The connector, loaded. Throws ErreurHote when it is none.
    GreffonEprouve Charge() const;
    /// Takes charge of an agent, which may be null.
    AgentEprouve Tiens(InterfaceAgentTexteur* agent) const {
        return AgentEprouve(agent, {&rapporteur_, "~InterfaceAgentTexteur"});
    }
    /// An agent of the document, made ready to correct; null when there is none.
    AgentEprouve OuvreAgent(Greffon const& greffon) const;

    /// Reads the document into `zones`, which is emptied first; false when that failed.
    bool Lis(InterfaceAgentTexteur& agent, CollectionZonesDeTexte& zones) const;
    /// The texts of zones.
    std::vector<QString> DonneTextes(CollectionZonesDeTexte const& zones) const;

  private:
    /// `texte`: what it says; null for one that is no std::exception.
    void SignaleException(char const* operation, char const* texte) const;

    std::string fichier_;
    QString id_;
    Rapporteur& rapporteur_;
};

} // namespace hote
