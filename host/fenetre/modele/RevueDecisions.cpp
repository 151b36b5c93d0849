// SPDX-License-Identifier: MPL-2.0
// What the person decides, and takes back.
#include "Revue.h"

#include <algorithm>

namespace hote {

namespace {

bool EstPareille(RemarqueMontree const& modele, RemarqueSuivie const& remarque) {
    bool const orthographe = modele.remarque.genre == GenreDeRemarque::Orthographe;
    return remarque.remarque.genre == modele.remarque.genre &&
           (orthographe || (remarque.remarque.moteur == modele.remarque.moteur &&
                            remarque.remarque.regle == modele.remarque.regle));
}

QString DonneLangue(ParagrapheDuDocument const& paragraphe, int position) {
    for (EtendueDeLangue const& etendue : paragraphe.langues) {
        if (position < etendue.fin) {
            return etendue.langue;
        }
    }
    return {};
}

} // namespace

void Revue::Corrige(QString const& texte) {
    CorrigeToutes({courante_}, texte);
}

void Revue::CorrigeTousPareils(QString const& texte) {
    if (auto const montree = Donne(courante_)) {
        CorrigeToutes(DonnePareilles(*montree), texte);
    }
}

std::vector<quint64> Revue::DonnePareilles(RemarqueMontree const& modele) const {
    QString const extrait = modele.DonneExtrait();
    std::vector<quint64> pareilles;
    for (ParagrapheSuivi const& paragraphe : paragraphes_) {
        for (RemarqueSuivie const& remarque : paragraphe.DonneRemarques()) {
            if (EstADecider(paragraphe, remarque) && EstPareille(modele, remarque) &&
                DonneExtrait(paragraphe, remarque) == extrait) {
                pareilles.push_back(remarque.id);
            }
        }
    }
    return pareilles;
}

void Revue::CorrigeToutes(std::vector<quint64> const& ids, QString const& texte) {
    auto const montree = Donne(courante_);
    if (!montree || montree->etat == EtatRemarque::Corrigee || perdue_) {
        return;
    }
    gestes_.push_back({Geste::Genre::Corrige, ids, montree->remarque, montree->DonneExtrait(), {}});
    for (quint64 const id : ids) {
        if (auto const place = Place(id)) {
            Envoie(place->first, id, texte, false);
        }
    }
    Q_EMIT Changee();
    Suivante();
}

/// Sends a correction, and shows the text as if it were made.
void Revue::Envoie(int rang, quint64 id, QString const& apres, bool estRetour) {
    ParagrapheSuivi& paragraphe = paragraphes_[static_cast<std::size_t>(rang)];
    RemarqueSuivie* const remarque = paragraphe.Trouve(id);
    int const debut = remarque->remarque.debut;
    QString const avant = DonneExtrait(paragraphe, *remarque);
    quint64 const jeton = prochainEnvoi_++;
    envois_.emplace_back(jeton, Envoi{paragraphe.DonneId(), id, avant, apres, estRetour});
    remarque->etat = estRetour ? EtatRemarque::AVoir : EtatRemarque::Corrigee;
    remarque->raison.clear();
    if (!estRetour) {
        remarque->avant = avant;
    }
    paragraphe.Remplace(debut, debut + avant.size(), apres, id);
    liaison_.Corrige(jeton, rang, debut, avant, apres);
    Demande(paragraphe, 0);
}

/// Takes back what was shown of a correction that was not made.
void Revue::Defais(Envoi const& envoi, EtatRemarque etat, QString const& raison) {
    auto const rang = rangs_.constFind(envoi.paragraphe);
    if (rang == rangs_.constEnd()) {
        return;
    }
    ParagrapheSuivi& paragraphe = paragraphes_[static_cast<std::size_t>(*rang)];
    RemarqueSuivie* const remarque = paragraphe.Trouve(envoi.remarque);
    if (remarque == nullptr || DonneExtrait(paragraphe, *remarque) != envoi.apres) {
        return;
    }
    remarque->etat = etat;
    remarque->raison = raison;
    int const debut = remarque->remarque.debut;
    Oublie(paragraphe);
    paragraphe.Remplace(debut, debut + envoi.apres.size(), envoi.avant, envoi.remarque);
}

void Revue::Renvoie(std::vector<Envoi> const& envois) {
    for (Envoi const& envoi : envois) {
        auto const place = Place(envoi.remarque);
        if (!place) {
            continue;
        }
        ParagrapheSuivi& paragraphe = paragraphes_[static_cast<std::size_t>(place->first)];
        if (DonneExtrait(paragraphe, *paragraphe.Trouve(envoi.remarque)) == envoi.avant) {
            Envoie(place->first, envoi.remarque, envoi.apres, envoi.estRetour);
        }
    }
}

void Revue::Ignore() {
    auto const montree = Donne(courante_);
    // A name is asked about once a document, not at each place.
    bool const nom = montree && montree->remarque.regle == QLatin1String(kRegleNom);
    Decide(nom ? Geste::Genre::IgnorePartout : Geste::Genre::Ignore);
}

void Revue::IgnorePartout() {
    Decide(Geste::Genre::IgnorePartout);
}

void Revue::AjouteAuxMots() {
    Decide(Geste::Genre::AjouteAuxMots);
}

void Revue::EteinsRegle() {
    Decide(Geste::Genre::EteinsRegle);
}

void Revue::Decide(Geste::Genre genre) {
    auto const montree = Donne(courante_);
    if (!montree || montree->etat == EtatRemarque::Corrigee) {
        return;
    }
    ParagrapheDuDocument const& lu =
        paragraphes_[static_cast<std::size_t>(montree->paragraphe)].DonneLu();
    Geste const geste{genre,
                      {courante_},
                      montree->remarque,
                      montree->DonneExtrait(),
                      DonneLangue(lu, montree->remarque.debut)};
    gestes_.push_back(geste);
    MetsDecision(geste, true);
    Q_EMIT Changee();
    Suivante();
}

void Revue::MetsDecision(Geste const& geste, bool fait) {
    switch (geste.genre) {
    case Geste::Genre::Ignore:
        if (auto const place = Place(geste.remarques.front())) {
            paragraphes_[static_cast<std::size_t>(place->first)]
                .Trouve(geste.remarques.front())
                ->etat = fait ? EtatRemarque::Ignoree : EtatRemarque::AVoir;
        }
        break;
    case Geste::Genre::AjouteAuxMots:
        Q_EMIT MotAjoute(geste.extrait, geste.langue, fait);
        decisions_.MetsPassage(geste.remarque, geste.extrait, fait);
        break;
    case Geste::Genre::IgnorePartout:
        decisions_.MetsPassage(geste.remarque, geste.extrait, fait);
        break;
    case Geste::Genre::EteinsRegle:
        Q_EMIT RegleEteinte(geste.remarque.moteur, geste.remarque.regle, fait);
        decisions_.MetsRegle(geste.remarque, fait);
        break;
    case Geste::Genre::Corrige:
        break;
    }
}

void Revue::Annule() {
    if (gestes_.empty() || perdue_) {
        return;
    }
    Geste const geste = gestes_.back();
    gestes_.pop_back();
    if (geste.genre == Geste::Genre::Corrige) {
        for (quint64 const id : geste.remarques) {
            auto const place = Place(id);
            if (!place) {
                continue; // the document has another text there since
            }
            RemarqueSuivie const* const remarque =
                paragraphes_[static_cast<std::size_t>(place->first)].Trouve(id);
            if (remarque->etat == EtatRemarque::Corrigee) {
                Envoie(place->first, id, remarque->avant, true);
            }
        }
    } else {
        MetsDecision(geste, false);
    }
    Q_EMIT Changee();
    if (courante_ == geste.remarques.front()) {
        Q_EMIT CouranteChangee();
    }
    Montre(geste.remarques.front());
}

} // namespace hote
