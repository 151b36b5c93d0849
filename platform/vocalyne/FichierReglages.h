// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QSettings>
#include <QString>
#include <QVariant>

#include <map>
#include <memory>
#include <optional>

/// A Qt settings file that is opened when it is first needed, never created by reading, and never
/// rewritten when something in it would be lost by that. One object on one thread at a time.
class FichierReglages {
  public:
    /// What to write: a number for a key, or nothing to take the key out.
    using Changements = std::map<QString, std::optional<int>>;

    FichierReglages(QString const& chemin, QSettings::Format format);

    /// The value of a key. `relis` looks whether the file changed since it was last read.
    std::optional<QVariant> Lis(QString const& cle, bool relis);

    /// Writes the changes at once (QSettings does so under a lock file and through QSaveFile, so
    /// that the file is never half of one) and keeps the file's other keys. False when it cannot be
    /// written, or stands there and cannot be read whole; the file is then left as it was.
    bool Ecris(Changements const& changements);

  private:
    bool EstLisibleEntier() const;

    QString chemin_;
    QSettings::Format format_;
    std::unique_ptr<QSettings> lecture_;
};
