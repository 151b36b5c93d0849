// SPDX-License-Identifier: MPL-2.0
// Which remarks there are, and which one is shown.
#include "Revue.h"

#include <algorithm>

namespace hote {

Revue::Revue(Liaison& liaison, Verificateur& verificateur, QObject* parent)
    : QObject(parent)
    , liaison_(liaison)
    , verificateur_(verificateur) {
    connect(&liaison, &Liaison::Lue, this, &Revue::RecoisLecture);
    connect(&liaison, &Liaison::Nommee, this, &Revue::RecoisNoms);
    connect(&liaison, &Liaison::Corrigee, this, &Revue::RecoisIssue);
    connect(&liaison, &Liaison::Perdue, this, &Revue::RecoisPerte);
    connect(&verificateur, &Verificateur::Trouvees, this, &Revue::RecoisRemarques);
    connect(&verificateur, &Verificateur::Examine, this, &Revue::RecoisFin);
}

std::vector<quint64> Revue::DonneFile() const {
    std::vector<quint64> file;
    for (ParagrapheSuivi const& paragraphe : paragraphes_) {
        for (RemarqueSuivie const& remarque : paragraphe.DonneRemarques()) {
            if (EstADecider(paragraphe, remarque)) {
                file.push_back(remarque.id);
            }
        }
    }
    return file;
}

std::optional<RemarqueMontree> Revue::Donne(quint64 id) const {
    auto const place = Place(id);
    if (!place) {
        return std::nullopt;
    }
    ParagrapheSuivi const& paragraphe = paragraphes_[static_cast<std::size_t>(place->first)];
    RemarqueSuivie const& suivie =
        paragraphe.DonneRemarques()[static_cast<std::size_t>(place->second)];
    return RemarqueMontree{
        id,          place->first, paragraphe.endroit, paragraphe.DonneTexte(), suivie.remarque,
        suivie.etat, suivie.raison};
}

Revue::Progres Revue::DonneProgres() const {
    auto const examines = std::count_if(paragraphes_.begin(), paragraphes_.end(),
                                        [](ParagrapheSuivi const& p) { return p.EstExamine(); });
    return {static_cast<int>(examines), static_cast<int>(paragraphes_.size())};
}

std::optional<std::pair<int, int>> Revue::Place(quint64 id) const {
    auto const rang = rangs_.constFind(lieux_.value(id));
    if (id == 0 || rang == rangs_.constEnd()) {
        return std::nullopt;
    }
    auto const& remarques = paragraphes_[static_cast<std::size_t>(*rang)].DonneRemarques();
    auto const trouvee = std::find_if(remarques.begin(), remarques.end(),
                                      [id](RemarqueSuivie const& r) { return r.id == id; });
    if (trouvee == remarques.end()) {
        return std::nullopt;
    }
    return std::make_pair(*rang, static_cast<int>(trouvee - remarques.begin()));
}

QString Revue::DonneExtrait(ParagrapheSuivi const& paragraphe, RemarqueSuivie const& remarque) {
    return paragraphe.DonneTexte().mid(remarque.remarque.debut,
                                       remarque.remarque.fin - remarque.remarque.debut);
}

bool Revue::EstADecider(ParagrapheSuivi const& paragraphe, RemarqueSuivie const& remarque) const {
    return remarque.EstADecider() &&
           !decisions_.Regle(remarque.remarque, DonneExtrait(paragraphe, remarque));
}

/// The nearest remark to be decided on from a place, around the whole document; refused ones come
/// when no other is left. 0 when there is none.
quint64 Revue::ChercheDepuis(int paragraphe, int debut, bool enAvant) const {
    int const nombre = static_cast<int>(paragraphes_.size());
    quint64 refusee = 0;
    for (int pas = 0; pas <= nombre && nombre > 0; ++pas) {
        int const rang = ((paragraphe + (enAvant ? pas : -pas)) % nombre + nombre) % nombre;
        ParagrapheSuivi const& ici = paragraphes_[static_cast<std::size_t>(rang)];
        auto remarques = ici.DonneRemarques();
        if (!enAvant) {
            std::reverse(remarques.begin(), remarques.end());
        }
        for (RemarqueSuivie const& remarque : remarques) {
            bool const passee =
                enAvant ? remarque.remarque.debut < debut : remarque.remarque.debut >= debut;
            // In the paragraph that it starts in, the other half comes last.
            if ((pas == 0 && passee) || (pas == nombre && !passee) || !EstADecider(ici, remarque)) {
                continue;
            }
            if (remarque.etat == EtatRemarque::AVoir) {
                return remarque.id;
            }
            refusee = refusee == 0 ? remarque.id : refusee;
        }
    }
    return refusee;
}

void Revue::MetsCourante(quint64 id) {
    if (id == courante_) {
        return;
    }
    courante_ = id;
    prochainAlors_ = prochainId_;
    if (auto const montree = Donne(id)) {
        liaison_.Selectionne(montree->paragraphe, montree->remarque.debut, montree->remarque.fin);
    }
    Q_EMIT CouranteChangee();
}

void Revue::Montre(quint64 id) {
    if (Place(id)) {
        MetsCourante(id);
    }
}

void Revue::Suivante() {
    auto const montree = Donne(courante_);
    if (!montree) {
        ChoisisPremiere();
        return;
    }
    quint64 const tardive = ChercheTardive(*montree);
    MetsCourante(tardive != 0
                     ? tardive
                     : ChercheDepuis(montree->paragraphe, montree->remarque.debut + 1, true));
    ChoisisPremiere();
}

/// The first remark before the one shown that has come since that was chosen: engines are not
/// equally quick, and the order is the text's all the same.
quint64 Revue::ChercheTardive(RemarqueMontree const& montree) const {
    int const nombre = static_cast<int>(paragraphes_.size());
    int const depart = std::clamp(depart_.zone, 0, std::max(nombre - 1, 0));
    for (int pas = 0; pas < nombre; ++pas) {
        int const rang = (depart + pas) % nombre;
        ParagrapheSuivi const& ici = paragraphes_[static_cast<std::size_t>(rang)];
        for (RemarqueSuivie const& remarque : ici.DonneRemarques()) {
            if (rang == montree.paragraphe && remarque.remarque.debut >= montree.remarque.debut) {
                return 0;
            }
            if (remarque.id >= prochainAlors_ && remarque.etat == EtatRemarque::AVoir &&
                EstADecider(ici, remarque)) {
                return remarque.id;
            }
        }
        if (rang == montree.paragraphe) {
            return 0;
        }
    }
    return 0;
}

void Revue::Precedente() {
    auto const montree = Donne(courante_);
    if (montree) {
        MetsCourante(ChercheDepuis(montree->paragraphe, montree->remarque.debut, false));
    }
}

/// Where nothing is shown: the first remark from where the person is, once all before it has been
/// looked at.
void Revue::ChoisisPremiere() {
    if (courante_ != 0) {
        return;
    }
    int const nombre = static_cast<int>(paragraphes_.size());
    int const depart = std::clamp(depart_.zone, 0, std::max(nombre - 1, 0));
    for (int pas = 0; pas < nombre; ++pas) {
        ParagrapheSuivi const& ici =
            paragraphes_[static_cast<std::size_t>((depart + pas) % nombre)];
        if (!ici.EstVu() && !arretee_) {
            return;
        }
        auto const& remarques = ici.DonneRemarques();
        if (std::any_of(remarques.begin(), remarques.end(),
                        [&](auto const& r) { return EstADecider(ici, r); })) {
            MetsCourante(ChercheDepuis(depart, depart_.zone < 0 ? 0 : depart_.debut, true));
            return;
        }
    }
}

} // namespace hote
