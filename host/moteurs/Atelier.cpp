// SPDX-License-Identifier: MPL-2.0
#include "Atelier.h"

#include <algorithm>
#include <exception>
#include <optional>

namespace hote {

/// A paragraph on its way through the engines.
struct Atelier::Travail {
    ParagrapheAExaminer paragraphe;
    bool prepare = false; ///< guarded by `preparation_`, as the paragraph until then
    Arret arret;
    std::vector<std::optional<std::vector<Remarque>>> resultats; ///< of each engine; `mutex_`
    std::size_t livres = 0;                                      ///< engines told of; `mutex_`
    std::vector<Remarque> montrees;                              ///< told so far; `mutex_`
};

/// An engine's place of work.
struct Atelier::Poste {
    MoteurFabrique fabrique;
    FileDeTravaux file;
    std::vector<std::thread> ouvriers; ///< started with the first paragraph
    EtatMoteur etat = EtatMoteur::Arrete;
    bool absent = false;
};

Atelier::Atelier(Reglage reglage, Abonne& abonne)
    : reglage_(std::move(reglage))
    , abonne_(abonne) {
    for (MoteurFabrique const& fabrique : reglage_.fabriques) {
        postes_.push_back(std::make_unique<Poste>());
        postes_.back()->fabrique = fabrique;
    }
}

Atelier::~Atelier() {
    {
        std::lock_guard<std::mutex> const verrou(mutex_);
        for (auto& [jeton, travail] : travaux_) {
            travail->arret.Demande();
        }
        travaux_.clear();
    }
    for (auto& poste : postes_) {
        poste->file.Ferme();
    }
    for (auto& poste : postes_) {
        for (std::thread& ouvrier : poste->ouvriers) {
            ouvrier.join();
        }
    }
}

Atelier::Jeton Atelier::Demande(ParagrapheAExaminer paragraphe, int priorite) {
    std::lock_guard<std::mutex> const verrou(mutex_);
    Jeton const jeton = ++dernier_;
    auto travail = std::make_shared<Travail>();
    travail->paragraphe = std::move(paragraphe);
    travail->resultats.resize(postes_.size());
    if (postes_.empty()) {
        abonne_.RecoisFin(jeton);
        return jeton;
    }
    travaux_.emplace(jeton, std::move(travail));
    for (auto& poste : postes_) {
        Ouvre(*poste);
        poste->file.Ajoute(jeton, priorite);
    }
    return jeton;
}

void Atelier::Annule(Jeton jeton) {
    std::lock_guard<std::mutex> const verrou(mutex_);
    auto const trouve = travaux_.find(jeton);
    if (trouve == travaux_.end()) {
        return;
    }
    trouve->second->arret.Demande();
    travaux_.erase(trouve);
    for (auto& poste : postes_) {
        poste->file.Retire(jeton);
    }
}

void Atelier::ChangePriorite(Jeton jeton, int priorite) {
    for (auto& poste : postes_) {
        poste->file.ChangePriorite(jeton, priorite);
    }
}

void Atelier::Ouvre(Poste& poste) {
    if (!poste.ouvriers.empty()) {
        return;
    }
    auto const rang =
        static_cast<std::size_t>(std::find_if(postes_.begin(), postes_.end(),
                                              [&](auto const& p) { return p.get() == &poste; }) -
                                 postes_.begin());
    for (int i = 0; i < poste.fabrique.exemplaires; ++i) {
        poste.ouvriers.emplace_back([this, rang] { Travaille(rang); });
    }
}

void Atelier::Travaille(std::size_t rang) {
    Poste& poste = *postes_[rang];
    std::unique_ptr<Moteur> moteur;
    while (auto const jeton = poste.file.Prends()) {
        std::shared_ptr<Travail> travail;
        {
            std::lock_guard<std::mutex> const verrou(mutex_);
            auto const trouve = travaux_.find(*jeton);
            travail = trouve == travaux_.end() ? nullptr : trouve->second;
        }
        if (travail) {
            Livre(*jeton, rang, Examine(rang, *travail, moteur));
        }
    }
}

void Atelier::Prepare(Travail& travail) {
    std::lock_guard<std::mutex> const verrou(preparation_);
    if (!travail.prepare && reglage_.prepare) {
        reglage_.prepare(travail.paragraphe);
    }
    travail.prepare = true;
}

std::vector<Remarque> Atelier::Examine(std::size_t rang, Travail& travail,
                                       std::unique_ptr<Moteur>& moteur) {
    Poste& poste = *postes_[rang];
    {
        std::lock_guard<std::mutex> const verrou(mutex_);
        if (poste.absent) {
            return {};
        }
    }
    try {
        Prepare(travail);
        if (!moteur) {
            moteur = poste.fabrique.cree();
        }
        auto const juge = [&](QString const& langue) {
            return !langue.isEmpty() && moteur->Juge(langue);
        };
        ParagrapheAExaminer const& paragraphe = travail.paragraphe;
        if (std::none_of(paragraphe.langues.begin(), paragraphe.langues.end(),
                         [&](EtendueDeLangue const& e) { return juge(e.langue); })) {
            return {};
        }
        ChangeEtat(rang, EtatMoteur::Demarre);
        auto remarques = moteur->Examine(paragraphe, travail.arret);
        ChangeEtat(rang, EtatMoteur::Pret);
        for (Remarque& remarque : remarques) {
            remarque.moteur = poste.fabrique.nom;
        }
        return Tri(paragraphe, juge, reglage_.refuse).Trie(std::move(remarques), {});
    } catch (ErreurDeMoteur const& erreur) {
        ChangeEtat(rang, erreur.EstAbsent() ? EtatMoteur::Absent : EtatMoteur::EnPanne,
                   QString::fromUtf8(erreur.what()));
    } catch (std::exception const& erreur) {
        ChangeEtat(rang, EtatMoteur::EnPanne, QString::fromUtf8(erreur.what()));
    }
    return {};
}

void Atelier::Livre(Jeton jeton, std::size_t rang, std::vector<Remarque> remarques) {
    std::lock_guard<std::mutex> const verrou(mutex_);
    auto const trouve = travaux_.find(jeton);
    if (trouve == travaux_.end()) {
        return;
    }
    Travail& travail = *trouve->second;
    travail.resultats[rang] = std::move(remarques);
    while (travail.livres < postes_.size() && travail.resultats[travail.livres]) {
        auto const tout = [](QString const& /*langue*/) { return true; };
        auto const nouvelles =
            Tri(travail.paragraphe, tout, nullptr)
                .Trie(std::move(*travail.resultats[travail.livres]), travail.montrees);
        travail.montrees.insert(travail.montrees.end(), nouvelles.begin(), nouvelles.end());
        abonne_.RecoisRemarques(jeton, postes_[travail.livres]->fabrique.nom, nouvelles);
        ++travail.livres;
    }
    if (travail.livres == postes_.size()) {
        abonne_.RecoisFin(jeton);
        travaux_.erase(trouve);
    }
}

void Atelier::ChangeEtat(std::size_t rang, EtatMoteur etat, QString const& message) {
    std::lock_guard<std::mutex> const verrou(mutex_);
    Poste& poste = *postes_[rang];
    bool const redemarre = etat == EtatMoteur::Demarre && poste.etat != EtatMoteur::Arrete;
    if (redemarre || etat == poste.etat) {
        return; // what works needs no telling at each paragraph
    }
    poste.etat = etat;
    poste.absent = etat == EtatMoteur::Absent;
    abonne_.RecoisEtat(poste.fabrique.nom, etat, message);
}

} // namespace hote
