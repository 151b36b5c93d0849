// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Lexique.h"
#include "LocaliseDictionnaire.h"

#include <QHash>

#include <memory>
#include <string>
#include <vector>

class Hunspell;
class QTextCodec;

namespace hote {

/// A Hunspell dictionary in memory. It speaks UTF-16 here and the dictionary's own encoding there;
/// a word that this encoding cannot hold is not known and has no suggestions.
class DictionnaireHunspell : public Lexique {
  public:
    /// Throws ErreurHote (kSortieDictionnaire) when the dictionary's encoding is not one of Qt's.
    DictionnaireHunspell(Langue langue, FichiersDictionnaire const& fichiers);
    ~DictionnaireHunspell() override;

    Langue DonneLangue() const override { return langue_; }
    bool Connait(QString const& forme) override;
    QStringList Suggere(QString const& forme) override;
    QStringList DonneRacines(QString const& forme) override;

  private:
    bool Encode(QString const& forme, std::string& octets) const;
    QStringList Decode(std::vector<std::string> const& mots, QString const& sauf) const;

    Langue langue_;
    std::unique_ptr<Hunspell> hunspell_;
    QTextCodec* codec_ = nullptr; ///< Qt's
    QHash<QString, bool> connus_;
    QHash<QString, QStringList> suggestions_;
};

/// The dictionary of a language, in one of the folders. Throws ErreurHote
/// (kSortieDictionnaire) naming the Debian package to install when there is none.
std::unique_ptr<Lexique>
OuvreDictionnaire(Langue langue,
                  std::vector<std::string> const& dossiers = DonneDossiersDictionnaires());

} // namespace hote
