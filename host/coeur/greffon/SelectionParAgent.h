// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "InterfaceAgentTexteur.h"

#include <QString>

namespace hote {

/// What is selected in a document, through an agent that others may use as well.
///
/// Positions are UTF-16 units of the context, the paragraph around the selection. Operations may
/// block while the word processor is asked, and let the plug-in's exceptions through. Main thread.
class SelectionParAgent {
  public:
    struct Etat {
        QString texte;
        int debut = 0;
        int fin = 0;

        friend bool operator==(Etat const& a, Etat const& b) {
            return a.texte == b.texte && a.debut == b.debut && a.fin == b.fin;
        }
    };

    /// The agent must outlive the object.
    explicit SelectionParAgent(InterfaceAgentTexteur& agent)
        : agent_(agent) {}

    /// The context and the selection in it; an empty text when no text is selected.
    Etat Lis();

    /// Puts `texte` in the place of [debut, fin) of the context, provided that the selection is
    /// still `attendu`. False when it is another one, or the document does not show the change
    /// afterwards.
    bool Remplace(Etat const& attendu, int debut, int fin, QString const& texte);

  private:
    InterfaceAgentTexteur& agent_;
};

} // namespace hote
