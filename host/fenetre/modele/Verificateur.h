// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "moteurs/Remarque.h"

#include <QObject>

namespace hote {

/// Has paragraphs examined, without waiting: the seam between the review and the engines.
class Verificateur : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;

    /// Never 0. Lower priorities come first.
    virtual quint64 Demande(ParagrapheAExaminer const& paragraphe, int priorite) = 0;
    /// No signal about it afterwards.
    virtual void Annule(quint64 jeton) = 0;

  Q_SIGNALS:
    /// Once an engine.
    void Trouvees(quint64 jeton, QString const& moteur,
                  std::vector<hote::Remarque> const& remarques);
    /// All engines are done with it.
    void Examine(quint64 jeton);
};

} // namespace hote
