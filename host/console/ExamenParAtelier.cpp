// SPDX-License-Identifier: MPL-2.0
#include "ExamenParAtelier.h"

#include "moteurs/FaisParagraphe.h"

#include <algorithm>

namespace hote {

ExamenParAtelier::ExamenParAtelier(Atelier::Reglage reglage, QString langue)
    : langue_(std::move(langue))
    , atelier_(
          std::make_unique<Atelier>(std::move(reglage), static_cast<Atelier::Abonne&>(*this))) {}

ExamenParAtelier::~ExamenParAtelier() = default;

void ExamenParAtelier::Prevois(QString const& texte, Plages const& plages) {
    auto const paragraphe = FaisParagraphe(texte, plages, langue_);
    if (Trouve(paragraphe) == 0) {
        Lance(paragraphe);
    }
}

std::vector<Faute> ExamenParAtelier::Cherche(QString const& texte, Plages const& plages) {
    auto const paragraphe = FaisParagraphe(texte, plages, langue_);
    auto jeton = Trouve(paragraphe);
    if (jeton == 0) {
        jeton = Lance(paragraphe);
    }
    std::vector<Faute> fautes;
    std::unique_lock<std::mutex> verrou(mutex_);
    fin_.wait(verrou, [&] { return resultats_[jeton].fini; });
    auto remarques = std::move(resultats_[jeton].remarques);
    resultats_.erase(jeton);
    verrou.unlock();
    std::sort(remarques.begin(), remarques.end(),
              [](Remarque const& a, Remarque const& b) { return a.debut < b.debut; });
    for (Remarque& remarque : remarques) {
        fautes.emplace_back(std::move(remarque), texte);
    }
    return fautes;
}

QStringList ExamenParAtelier::PrendsPlaintes() {
    std::lock_guard<std::mutex> const verrou(mutex_);
    return std::exchange(plaintes_, {});
}

Atelier::Jeton ExamenParAtelier::Trouve(ParagrapheAExaminer const& paragraphe) {
    std::lock_guard<std::mutex> const verrou(mutex_);
    auto const trouve = std::find_if(resultats_.begin(), resultats_.end(), [&](auto const& r) {
        return r.second.texte == paragraphe.texte && r.second.langues == paragraphe.langues;
    });
    return trouve == resultats_.end() ? 0 : trouve->first;
}

Atelier::Jeton ExamenParAtelier::Lance(ParagrapheAExaminer const& paragraphe) {
    auto const jeton = atelier_->Demande(paragraphe, ++ordre_);
    std::lock_guard<std::mutex> const verrou(mutex_);
    // The engines may have been quicker: what they told stands already.
    resultats_[jeton].texte = paragraphe.texte;
    resultats_[jeton].langues = paragraphe.langues;
    return jeton;
}

void ExamenParAtelier::RecoisRemarques(Atelier::Jeton jeton, QString const& /*moteur*/,
                                       std::vector<Remarque> const& remarques) {
    std::lock_guard<std::mutex> const verrou(mutex_);
    auto& recues = resultats_[jeton].remarques;
    recues.insert(recues.end(), remarques.begin(), remarques.end());
}

void ExamenParAtelier::RecoisFin(Atelier::Jeton jeton) {
    std::lock_guard<std::mutex> const verrou(mutex_);
    resultats_[jeton].fini = true;
    fin_.notify_all();
}

void ExamenParAtelier::RecoisEtat(QString const& /*moteur*/, EtatMoteur /*etat*/,
                                  QString const& message) {
    std::lock_guard<std::mutex> const verrou(mutex_);
    if (!message.isEmpty() && !plaintes_.contains(message)) {
        plaintes_.append(message);
    }
}

} // namespace hote
