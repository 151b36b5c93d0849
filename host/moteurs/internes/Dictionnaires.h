// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "langue/Lexique.h"

#include <QString>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace hote {

/// The installed spelling dictionaries, opened when they are first asked for and kept. One thread
/// at a time; each thread has its own.
class Dictionnaires {
  public:
    explicit Dictionnaires(std::vector<std::string> dossiers);
    ~Dictionnaires();

    /// Is there a dictionary for a BCP 47 tag? Opens none.
    bool AUn(QString const& langue);
    /// The dictionary of a tag that names a country, or the only one of a language; null where
    /// there is none, or where it cannot be used.
    Lexique* Trouve(QString const& langue);
    /// All dictionaries of a language, a country each.
    std::vector<Lexique*> TrouveVariantes(QString const& langue);

  private:
    struct Fichiers;
    Lexique* Ouvre(QString const& langue, std::string const& affixes, std::string const& mots);

    std::vector<std::string> dossiers_;
    std::map<QString, std::unique_ptr<Fichiers>> connus_;
    std::map<QString, std::vector<Lexique*>> variantes_;
    std::map<std::string, std::unique_ptr<Lexique>> ouverts_; ///< by the file of words
};

} // namespace hote
