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
    kPrefsGenLecture = 0, ///< nothing is ever written
};

/// Settings shared by the host and its connectors, in one Qt settings file. Reading never creates
/// the file. One object on one thread at a time.
///
/// The constructor and `Donne` take their strings by value: the names that connectors are linked
/// with say so.
class VOCALYNE_OUTILS PrefsGeneralesQt {
  public:
    /// Opens the file at `chemin` (kept as given, not cleaned). A missing or unreadable file reads
    /// as having no keys; in a damaged one, the lines that are no settings are passed over.
    PrefsGeneralesQt(UniChaine chemin, ePrefsGenMode mode, ePrefsGenAcces acces,
                     QSettings::Format format);
    ~PrefsGeneralesQt();
    PrefsGeneralesQt(PrefsGeneralesQt const&) = delete;
    PrefsGeneralesQt& operator=(PrefsGeneralesQt const&) = delete;

    /// The value of `cle` ("group/…/key"), or `defaut` when there is none. `conserve` keeps what
    /// was read for later calls of this object; false asks the file again.
    QVariant Donne(UniChaine cle, QVariant defaut, bool conserve) const;

  private:
    struct Contenu;
    std::unique_ptr<Contenu> contenu_;
};
