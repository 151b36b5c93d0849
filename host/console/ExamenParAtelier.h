// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "correction/Examen.h"
#include "moteurs/Atelier.h"

#include <condition_variable>
#include <map>
#include <mutex>

namespace hote {

/// Has texts examined by the engines, and waits for them. One thread, but for what the engines'
/// threads tell it.
class ExamenParAtelier : public Examen, private Atelier::Abonne {
  public:
    /// `langue`: of what bears no other, BCP 47.
    ExamenParAtelier(Atelier::Reglage reglage, QString langue);
    ~ExamenParAtelier() override;

    void Prevois(QString const& texte, Plages const& plages) override;
    std::vector<Faute> Cherche(QString const& texte, Plages const& plages) override;

    /// What engines that are missing or failed have said, since this was last asked.
    QStringList PrendsPlaintes();

  private:
    struct Resultat {
        QString texte;
        std::vector<EtendueDeLangue> langues;
        std::vector<Remarque> remarques;
        bool fini = false;
    };

    Atelier::Jeton Trouve(ParagrapheAExaminer const& paragraphe);
    Atelier::Jeton Lance(ParagrapheAExaminer const& paragraphe);
    void RecoisRemarques(Atelier::Jeton jeton, QString const& moteur,
                         std::vector<Remarque> const& remarques) override;
    void RecoisFin(Atelier::Jeton jeton) override;
    void RecoisEtat(QString const& moteur, EtatMoteur etat, QString const& message) override;

    QString langue_;
    int ordre_ = 0; ///< the priority of the next text: as they are told
    std::mutex mutex_;
    std::condition_variable fin_;
    std::map<Atelier::Jeton, Resultat> resultats_;
    QStringList plaintes_;
    std::unique_ptr<Atelier> atelier_; ///< last: its threads end before the rest goes
};

} // namespace hote
