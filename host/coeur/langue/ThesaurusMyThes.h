// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Lexique.h"
#include "Thesaurus.h"

#include <memory>
#include <string>
#include <vector>

class MyThes;
class QTextCodec;

namespace hote {

/// The two files of a MyThes dictionary; paths are bytes as the system has them.
struct FichiersThesaurus {
    std::string index;   ///< .idx
    std::string donnees; ///< .dat
};

/// A MyThes dictionary, read from its files word by word.
class ThesaurusMyThes : public Thesaurus {
  public:
    /// Throws ErreurHote (kSortieDictionnaire) when the files do not hold such a dictionary, or in
    /// an encoding that is not one of Qt's.
    explicit ThesaurusMyThes(FichiersThesaurus const& fichiers);
    ~ThesaurusMyThes() override;

    std::vector<Sens> Cherche(QString const& entree) override;

  private:
    std::unique_ptr<MyThes> mythes_;
    QTextCodec* codec_; ///< Qt's
};

/// Where dictionaries of synonyms are: the folders of the environment's DICPATH, then the system's.
std::vector<std::string> DonneDossiersThesaurus();

/// The dictionary of a language, in the first of the folders that has one. Throws ErreurHote
/// (kSortieDictionnaire) naming the Debian package to install when there is none.
std::unique_ptr<Thesaurus>
OuvreThesaurus(Langue langue, std::vector<std::string> const& dossiers = DonneDossiersThesaurus());

} // namespace hote
