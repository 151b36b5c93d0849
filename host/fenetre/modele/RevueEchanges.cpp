// SPDX-License-Identifier: MPL-2.0
// What the document and the engines tell.
#include "Revue.h"

#include "correction/Recalage.h"

#include <algorithm>

namespace hote {

namespace {

template <class Paragraphes, class Donne>
std::vector<QString> DonneTextes(Paragraphes const& paragraphes, Donne donne) {
    std::vector<QString> textes;
    textes.reserve(paragraphes.size());
    for (auto const& paragraphe : paragraphes) {
        textes.push_back(donne(paragraphe));
    }
    return textes;
}

} // namespace

void Revue::RecoisLecture(Lecture const& lecture) {
    // What was on its way is not done: it was sent to a document that has changed. It is taken back
    // here, then sent anew where its place is found again.
    auto const enRoute = std::move(envois_);
    envois_.clear();
    for (auto envoi = enRoute.rbegin(); envoi != enRoute.rend(); ++envoi) {
        Defais(envoi->second,
               envoi->second.estRetour ? EtatRemarque::Corrigee : EtatRemarque::AVoir, {});
    }
    auto const avant = Donne(courante_);
    std::size_t const nombreAvant = paragraphes_.size();
    paragraphes_ = Reporte(lecture);
    rangs_.clear();
    for (std::size_t rang = 0; rang < paragraphes_.size(); ++rang) {
        rangs_.insert(paragraphes_[rang].DonneId(), static_cast<int>(rang));
    }
    if (!lue_) {
        depart_ = lecture.endroit;
    }
    bool const nouveau = !lue_ || perdue_ || nombreAvant != paragraphes_.size();
    lue_ = true;
    perdue_ = false;
    DemandeTout();
    std::vector<Envoi> envois;
    for (auto const& envoi : enRoute) {
        envois.push_back(envoi.second);
    }
    Renvoie(envois);
    if (nouveau) {
        liaison_.Nomme();
    }
    if (avant && !Place(courante_)) {
        MetsCourante(
            ChercheDepuis(std::min(avant->paragraphe, static_cast<int>(paragraphes_.size()) - 1),
                          avant->remarque.debut, true));
    }
    Q_EMIT EtatChange();
    Q_EMIT ProgresChange();
    Q_EMIT Changee();
    ChoisisPremiere();
}

/// The paragraphs of a reading; those that stood in the last one keep what is known of them.
std::vector<ParagrapheSuivi> Revue::Reporte(Lecture const& lecture) {
    Recalage const recalage(
        DonneTextes(paragraphes_, [](ParagrapheSuivi const& p) { return p.DonneTexte(); }),
        DonneTextes(lecture.paragraphes, [](ParagrapheDuDocument const& p) { return p.texte; }));
    std::vector<int> anciens(lecture.paragraphes.size(), -1);
    for (std::size_t rang = 0; rang < paragraphes_.size(); ++rang) {
        if (auto const place = recalage.Retrouve(static_cast<int>(rang))) {
            anciens[static_cast<std::size_t>(*place)] = static_cast<int>(rang);
        } else {
            Oublie(paragraphes_[rang]);
        }
    }
    std::vector<ParagrapheSuivi> paragraphes;
    paragraphes.reserve(anciens.size());
    for (std::size_t rang = 0; rang < anciens.size(); ++rang) {
        ParagrapheDuDocument const& lu = lecture.paragraphes[rang];
        if (anciens[rang] < 0) {
            paragraphes.emplace_back(prochainParagraphe_++, lu);
            continue;
        }
        ParagrapheSuivi& ancien = paragraphes_[static_cast<std::size_t>(anciens[rang])];
        if (!(ancien.DonneLu() == lu)) {
            Oublie(ancien);
            ancien.Relis(lu);
        }
        paragraphes.push_back(std::move(ancien));
    }
    return paragraphes;
}

void Revue::RecoisNoms(QStringList const& noms) {
    if (noms.size() != static_cast<int>(paragraphes_.size())) {
        return;
    }
    for (int rang = 0; rang < noms.size(); ++rang) {
        paragraphes_[static_cast<std::size_t>(rang)].endroit = noms.at(rang);
    }
    Q_EMIT Changee();
}

void Revue::RecoisPerte() {
    perdue_ = true;
    Q_EMIT EtatChange();
}

void Revue::RecoisIssue(quint64 jeton, IssueDeCorrection issue, QString const& raison) {
    auto const place = std::find_if(envois_.begin(), envois_.end(),
                                    [jeton](auto const& envoi) { return envoi.first == jeton; });
    if (place == envois_.end()) {
        return; // taken back meanwhile
    }
    Envoi const envoi = place->second;
    envois_.erase(place);
    if (issue == IssueDeCorrection::Faite) {
        return;
    }
    EtatRemarque const etat = envoi.estRetour ? EtatRemarque::Corrigee : EtatRemarque::Refusee;
    Defais(envoi, etat, raison);
    auto const rang = rangs_.constFind(envoi.paragraphe);
    if (rang != rangs_.constEnd()) {
        Demande(paragraphes_[static_cast<std::size_t>(*rang)], 0);
    }
    liaison_.Lis();
    Q_EMIT Changee();
    Q_EMIT Refusee(raison);
    ChoisisPremiere();
}

ParagrapheSuivi* Revue::TrouveParagraphe(quint64 jeton) {
    auto const rang = rangs_.constFind(jetons_.value(jeton));
    if (!jetons_.contains(jeton) || rang == rangs_.constEnd()) {
        return nullptr;
    }
    return &paragraphes_[static_cast<std::size_t>(*rang)];
}

void Revue::RecoisRemarques(quint64 jeton, QString const& moteur,
                            std::vector<Remarque> const& remarques) {
    if (ParagrapheSuivi* const paragraphe = TrouveParagraphe(jeton)) {
        auto const avant = Donne(courante_);
        paragraphe->Recois(moteur, remarques, prochainId_);
        NoteLieux(*paragraphe);
        Q_EMIT Changee();
        if (avant && !Place(courante_)) {
            MetsCourante(ChercheDepuis(avant->paragraphe, avant->remarque.debut, true));
        }
        ChoisisPremiere();
    }
}

void Revue::RecoisFin(quint64 jeton) {
    ParagrapheSuivi* const paragraphe = TrouveParagraphe(jeton);
    jetons_.remove(jeton);
    if (paragraphe == nullptr) {
        return;
    }
    auto const avant = Donne(courante_);
    paragraphe->FinisExamen();
    if (avant && !Place(courante_)) {
        MetsCourante(ChercheDepuis(avant->paragraphe, avant->remarque.debut, true));
    }
    Q_EMIT ProgresChange();
    Q_EMIT Changee();
    ChoisisPremiere();
}

void Revue::NoteLieux(ParagrapheSuivi const& paragraphe) {
    for (RemarqueSuivie const& remarque : paragraphe.DonneRemarques()) {
        lieux_.insert(remarque.id, paragraphe.DonneId());
    }
}

void Revue::Demande(ParagrapheSuivi& paragraphe, int priorite) {
    Oublie(paragraphe);
    if (arretee_) {
        return;
    }
    paragraphe.jeton =
        verificateur_.Demande({paragraphe.DonneTexte(), paragraphe.DonneLu().langues}, priorite);
    jetons_.insert(paragraphe.jeton, paragraphe.DonneId());
}

void Revue::DemandeTout() {
    int const nombre = static_cast<int>(paragraphes_.size());
    int const depart = std::max(depart_.zone, 0);
    for (int pas = 0; pas < nombre; ++pas) {
        // What the person sees first is examined first.
        ParagrapheSuivi& paragraphe =
            paragraphes_[static_cast<std::size_t>((depart + pas) % nombre)];
        if (!paragraphe.EstExamine() && paragraphe.jeton == 0) {
            Demande(paragraphe, pas);
        }
    }
}

void Revue::Oublie(ParagrapheSuivi& paragraphe) {
    if (paragraphe.jeton != 0) {
        verificateur_.Annule(paragraphe.jeton);
        jetons_.remove(paragraphe.jeton);
        paragraphe.jeton = 0;
    }
}

void Revue::Arrete() {
    arretee_ = true;
    for (ParagrapheSuivi& paragraphe : paragraphes_) {
        Oublie(paragraphe);
    }
    Q_EMIT ProgresChange();
    ChoisisPremiere();
}

void Revue::Reprends() {
    arretee_ = false;
    DemandeTout();
    Q_EMIT ProgresChange();
}

void Revue::Reexamine() {
    for (ParagrapheSuivi& paragraphe : paragraphes_) {
        Oublie(paragraphe);
        paragraphe.RecommenceExamen();
    }
    Reprends();
}

} // namespace hote
