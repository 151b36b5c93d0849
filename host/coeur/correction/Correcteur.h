// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Envois.h"
#include "Examen.h"
#include "Interlocuteur.h"
#include "Relectures.h"
#include "greffon/Document.h"

#include <QHash>
#include <QSet>

namespace hote {

/// Goes through a document's zones, has each mistake decided on, and applies the corrections.
///
/// Before a correction the word processor is asked whether the range still holds the mistake. When
/// it does not agree, the document is read again once and the place is found again, or the
/// correction counts as refused. Each reading also checks the corrections sent since the one
/// before, and the work ends with a reading: a correction counts as made only when the document
/// shows it.
class Correcteur {
  public:
    /// All must outlive the object. `automatique` is passed on with each correction.
    Correcteur(Document& document, Examen& examen, Interlocuteur& interlocuteur, bool automatique);

    /// The document must have been read once. What goes wrong on the way, exceptions of the plug-in
    /// included, is told in the result. Once an object.
    Bilan Execute();

  private:
    struct Curseur {
        int zone;
        int position;
    };
    /// What became of a correction. With a `suite` the document has changed: the work goes on
    /// there, and nothing found before holds.
    struct Issue {
        bool envoyee;
        std::optional<Curseur> suite;
    };

    /// A decision that can be taken back.
    struct Passage {
        std::size_t rang; ///< of the mistake in the result
        int zone;
        int debut;
        QString mot;
        QString remplacement; ///< null when it was left
        QString cle;
    };

    void Parcours();
    Curseur TraiteZone(Curseur depart);
    void PrevoisLaSuite(int zone);
    Decision Demande(int zone, Faute const& place);
    Curseur Reviens(std::size_t rang);
    void Relis();
    void AnnonceProgres(int zone);
    std::size_t Note(int zone, Faute const& faute, Faute const& place);
    Issue Applique(std::size_t rang, int zone, Faute const& place, QString const& remplacement);
    Issue AppliqueAilleurs(std::size_t rang, int zone, Faute const& place,
                           QString const& remplacement, std::vector<QString> const& anciens,
                           Recalage const& recalage);
    bool Envoie(std::size_t rang, int zone, Faute const& place, QString const& remplacement);
    Curseur TrouveZoneSuivante(int zone, int nombreAncien, Recalage const& recalage) const;

    Document& document_;
    Examen& examen_;
    Interlocuteur& interlocuteur_;
    bool automatique_;
    Bilan bilan_;
    Envois envois_;
    Relectures relectures_;
    QSet<QString> ignores_;                 ///< what is left without asking
    QHash<QString, QString> remplacements_; ///< what is corrected without asking
    std::vector<Passage> passages_;         ///< what was decided, oldest first
};

} // namespace hote
