// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Faute.h"
#include "commun/ErreurHote.h"

#include <QString>
#include <QStringList>

#include <algorithm>
#include <optional>
#include <vector>

namespace hote {

/// What became of a mistake.
enum class EtatFaute {
    Corrigee,    ///< the document, read again, shows the correction
    Refusee,     ///< the correction was not taken, or the document does not show it
    Laissee,     ///< it was shown, or met, and left as it is
    NonVerifiee, ///< the correction was sent, and the document could not be read again
};

/// A mistake and what became of it. `faute` stands in the text of zone `zone` as it was when it was
/// last read before.
struct FauteTraitee {
    int zone;
    Faute faute;
    QString contexte;     ///< some of the text around the mistake
    QString remplacement; ///< meaningful unless the mistake was left
    EtatFaute etat;
};

/// What a correction of a whole document came to.
struct Bilan {
    int zones = 0;
    std::vector<FauteTraitee> fautes; ///< in the order in which they were met
    bool interrompu = false;          ///< the person stopped before the end
    std::optional<ErreurHote> erreur; ///< what ended the work before its end

    int Compte(EtatFaute etat) const {
        return static_cast<int>(std::count_if(fautes.begin(), fautes.end(),
                                              [etat](auto const& f) { return f.etat == etat; }));
    }
};

} // namespace hote
