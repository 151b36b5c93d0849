// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ExportVocalyne.h"
#include "UniChaine.h"

#include <QSettings>
#include <QVariant>

#include <memory>

/// How a settings file is opened.
enum ePrefsGenMode : int {
    kPrefsGenDirect = 0, ///< the file at the given path
};
enum ePrefsGenAcces : int {
    kPrefsGenLecture = 0,         ///< nothing is ever written
    kPrefsGenLectureEcriture = 1, ///< values may be set
};

/// Settings shared by the host and its connectors, in one Qt settings file.
///
/// Reading never creates the file. Writing changes the keys that were set and keeps every other key
/// that stands in the file, also what another process wrote meanwhile (QSettings merges under its
/// lock file). Comments in the file go, as with every program that writes it through QSettings.
/// One object on one thread at a time.
class VOCALYNE_OUTILS PrefsGeneralesQt {
  public:
    /// Opens the file at `chemin` (kept as given, not cleaned). A missing or unreadable file reads
    /// as having no keys; in a damaged one, the lines that are no settings are passed over.
    PrefsGeneralesQt(UniChaine const& chemin, ePrefsGenMode mode, ePrefsGenAcces acces,
                     QSettings::Format format);
    ~PrefsGeneralesQt();
    PrefsGeneralesQt(PrefsGeneralesQt const&) = delete;
    PrefsGeneralesQt& operator=(PrefsGeneralesQt const&) = delete;

    /// The value of `cle` ("group/…/key"), or `defaut` when there is none. `conserve` keeps what
    /// was read for later calls of this object; false asks the file again.
    QVariant Donne(UniChaine const& cle, QVariant const& defaut, bool conserve) const;

    /// Sets a key; written to the file by `Enregistre` or the destructor, and read back by this
    /// object at once. False, and no change, when opened for reading or when `cle` is empty.
    bool Mets(UniChaine const& cle, QVariant const& valeur);

    /// Writes what was set. False when the file could not be written, or is damaged: writing would
    /// drop what QSettings does not understand, so the file is left as it was. What was set is kept
    /// for a later try.
    bool Enregistre();

  private:
    struct Contenu;
    std::unique_ptr<Contenu> contenu_;
};
