// SPDX-License-Identifier: MPL-2.0
#include "Examinateur.h"

namespace hote {

/// Takes what the engines' threads say to the thread of the object.
class Examinateur::Relais : public Atelier::Abonne {
  public:
    explicit Relais(Examinateur& examinateur)
        : examinateur_(examinateur) {}

    void RecoisRemarques(Jeton jeton, QString const& moteur,
                         std::vector<Remarque> const& remarques) override {
        Poste([this, jeton, moteur, remarques] {
            if (examinateur_.vivants_.contains(jeton)) {
                Q_EMIT examinateur_.RemarquesTrouvees(jeton, moteur, remarques);
            }
        });
    }

    void RecoisFin(Jeton jeton) override {
        Poste([this, jeton] {
            if (examinateur_.vivants_.remove(jeton)) {
                Q_EMIT examinateur_.ParagrapheExamine(jeton);
            }
        });
    }

    void RecoisEtat(QString const& moteur, EtatMoteur etat, QString const& message) override {
        Poste([this, moteur, etat, message] {
            Q_EMIT examinateur_.EtatDuMoteur(moteur, etat, message);
        });
    }

  private:
    // What is still posted when the object goes away goes with it.
    void Poste(std::function<void()> const& travail) { Q_EMIT examinateur_.AFaire(travail); }

    Examinateur& examinateur_;
};

Examinateur::Examinateur(Atelier::Reglage reglage, QObject* parent)
    : QObject(parent)
    , relais_(std::make_unique<Relais>(*this))
    , atelier_(std::make_unique<Atelier>(std::move(reglage), *relais_)) {
    qRegisterMetaType<std::vector<hote::Remarque>>("std::vector<hote::Remarque>");
    qRegisterMetaType<hote::EtatMoteur>("hote::EtatMoteur");
    qRegisterMetaType<std::function<void()>>("std::function<void()>");
    connect(
        this, &Examinateur::AFaire, this, [](std::function<void()> const& travail) { travail(); },
        Qt::QueuedConnection);
}

Examinateur::~Examinateur() = default;

Examinateur::Jeton Examinateur::Demande(ParagrapheAExaminer paragraphe, int priorite) {
    Jeton const jeton = atelier_->Demande(std::move(paragraphe), priorite);
    vivants_.insert(jeton);
    return jeton;
}

void Examinateur::Annule(Jeton jeton) {
    if (vivants_.remove(jeton)) {
        atelier_->Annule(jeton);
    }
}

void Examinateur::ChangePriorite(Jeton jeton, int priorite) {
    atelier_->ChangePriorite(jeton, priorite);
}

} // namespace hote
