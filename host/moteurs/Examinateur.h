// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Atelier.h"

#include <QObject>
#include <QSet>

#include <functional>
#include <memory>

namespace hote {

/// The workshop for those who live in an event loop: has paragraphs examined by the engines that
/// judge their languages, and tells what they find by signals in the thread that the object lives
/// in. All operations belong to that thread, and none waits for an engine but the destructor, which
/// waits for the examinations that run to stop.
class Examinateur : public QObject {
    Q_OBJECT

  public:
    using Jeton = quint64;

    explicit Examinateur(Atelier::Reglage reglage, QObject* parent = nullptr);
    ~Examinateur() override;

    /// Lower priorities first.
    Jeton Demande(ParagrapheAExaminer paragraphe, int priorite);
    /// No signal about it afterwards.
    void Annule(Jeton jeton);
    void ChangePriorite(Jeton jeton, int priorite);

  Q_SIGNALS:
    /// Once for each engine, in the engines' order: what a person should see of its remarks.
    void RemarquesTrouvees(quint64 jeton, QString moteur, std::vector<hote::Remarque> remarques);
    /// All engines are done with it; nothing follows.
    void ParagrapheExamine(quint64 jeton);
    /// Told when it changes; `message` says why an engine is missing or failed, else it is empty.
    void EtatDuMoteur(QString moteur, hote::EtatMoteur etat, QString message);
    /// Its own: what the engines' threads leave for this thread.
    void AFaire(std::function<void()> travail);

  private:
    class Relais;

    std::unique_ptr<Relais> relais_;
    QSet<quint64> vivants_;
    std::unique_ptr<Atelier> atelier_;
};

} // namespace hote
