// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QByteArray>
#include <QString>

/// A text file in UTF-8, as it was read last. One thread at a time.
class FichierMarkdown {
  public:
    explicit FichierMarkdown(QString chemin)
        : chemin_(std::move(chemin)) {}

    /// Reads the file anew; false, and nothing held, when it cannot be read, is no UTF-8, or has
    /// more than 32 MiB.
    bool Lis();
    /// Does the file still hold what was read?
    bool EstAJour() const;
    /// Writes the text in the file's place, all of it or nothing; false when that failed.
    bool Ecris(QString const& texte);

    bool Existe() const;
    bool EstModifiable() const;
    QString const& DonneChemin() const noexcept { return chemin_; }
    QString const& DonneTexte() const noexcept { return texte_; }

  private:
    QString chemin_;
    QByteArray octets_;
    QString texte_;
};
