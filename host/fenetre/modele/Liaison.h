// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "fenetre/echange/Lecture.h"

#include <QObject>
#include <QStringList>

namespace hote {

/// What became of a correction.
enum class IssueDeCorrection {
    Faite,
    Refusee,
    Perimee, ///< not tried: the document has changed, and the reading that says so has been told
};

/// A document as the review works on it. No operation waits; what comes of them are signals.
///
/// Paragraphs are named by their rank in the last reading told. Answers come in the order of the
/// operations.
class Liaison : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;

    /// Asks for a reading: `Lue` when the document has changed since the last one, else
    /// `Inchangee`.
    virtual void Lis() = 0;
    /// Asks for names of places: `Nommee`, where the document has some.
    virtual void Nomme() = 0;
    /// Replaces `avant`, which stands at `debut` (UTF-16 units), by `apres`: `Corrigee`.
    virtual void Corrige(quint64 jeton, int paragraphe, int debut, QString const& avant,
                         QString const& apres) = 0;
    /// Selects [debut, fin) in the document, which shows it.
    virtual void Selectionne(int paragraphe, int debut, int fin) = 0;

  Q_SIGNALS:
    void Ouverte(QString titre);
    void Lue(hote::Lecture const& lecture);
    void Inchangee();
    /// A name for each paragraph, empty where there is none.
    void Nommee(QStringList noms);
    void Corrigee(quint64 jeton, hote::IssueDeCorrection issue, QString raison);
    /// The document cannot be reached any more. What was asked and not answered never will be; a
    /// reading follows by itself when it is back.
    void Perdue(QString raison);
};

} // namespace hote
