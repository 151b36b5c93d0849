// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ExportVocalyne.h"
#include "UniChaine.h"

#include <QSettings>

#include <map>
#include <optional>

/// What dialogues share.
struct DDialogue {
    /// Where the answer of a dialogue with "do not ask again" is remembered.
    enum eTypStockeur : int {
        kStockeurMemoire = 0,  ///< until the process ends
        kStockeurReglages = 1, ///< in the settings file
    };
};

/// Remembers the answers to dialogues that the person asked not to see again.
class VOCALYNE_OUTILS StockeurReponse {
  public:
    virtual ~StockeurReponse();
    /// The answer remembered for a dialogue, if any.
    virtual std::optional<int> Donne(UniChaine const& dialogue) const = 0;
    /// Remembers an answer; false when it could not be kept (a settings file that cannot be
    /// written, or is damaged: writing would drop what QSettings does not understand, so it is left
    /// as it was).
    virtual bool Mets(UniChaine const& dialogue, int reponse) = 0;
    /// Forgets a dialogue's answer.
    virtual void Oublie(UniChaine const& dialogue) = 0;
};

/// The storers of remembered answers, one a kind. Main thread only.
class VOCALYNE_OUTILS StockageReponse {
  public:
    /// Makes the storer of a kind, in place of the one there was, which is deleted; an unknown kind
    /// remembers until the process ends. `chemin` and `format` say where the settings file is; the
    /// file is opened only when an answer is asked for or given.
    static void Initialise(DDialogue::eTypStockeur type, UniChaine const& chemin,
                           QSettings::Format format);

    /// The storers, owned by the map's entries. Whoever unloads the libraries deletes them and
    /// empties the map. Entries may be null.
    static std::map<DDialogue::eTypStockeur, StockeurReponse*>& laListeStockeurDefaut;
};
