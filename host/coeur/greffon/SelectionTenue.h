// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "AgentTenu.h"
#include "Greffon.h"

#include <QString>

namespace hote {

/// The selection of a document, spoken to through a plug-in's agent, for the dictionary.
///
/// Positions are UTF-16 units of the context, the paragraph around the selection. Operations may
/// block while the word processor is asked, and let the plug-in's exceptions through. Main thread.
class SelectionTenue {
  public:
    struct Etat {
        QString texte;
        int debut = 0;
        int fin = 0;

        friend bool operator==(Etat const& a, Etat const& b) {
            return a.texte == b.texte && a.debut == b.debut && a.fin == b.fin;
        }
    };

    /// Attaches to the document `id`, as `OuvreAgent` says.
    SelectionTenue(Greffon const& greffon, QString const& id);
    ~SelectionTenue();
    SelectionTenue(SelectionTenue const&) = delete;
    SelectionTenue& operator=(SelectionTenue const&) = delete;

    QString DonneTitre();

    /// The context and the selection in it; an empty text when no text is selected.
    Etat Lis();

    /// Puts `texte` in the place of [debut, fin) of the context, provided that the selection is
    /// still `attendu`. False when it is another one, or the document does not show the change
    /// afterwards.
    bool Remplace(Etat const& attendu, int debut, int fin, QString const& texte);

  private:
    AgentTenu tenu_;
};

} // namespace hote
