// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Dictionnaires.h"
#include "moteurs/Remarque.h"

#include <QStringList>

#include <optional>

namespace hote {

/// Finds what the engines must leave alone, or judge in another language than the paragraph says:
/// addresses, identifiers and code are not to be judged; a quotation or a sentence whose words
/// another installed dictionary knows is in that one's language. One thread at a time.
class Preparateur {
  public:
    explicit Preparateur(std::vector<std::string> dossiers)
        : dictionnaires_(std::move(dossiers)) {}

    void Prepare(ParagrapheAExaminer& paragraphe);

  private:
    void ExclusLeCode(ParagrapheAExaminer& paragraphe) const;
    void ChercheEtrangers(ParagrapheAExaminer& paragraphe);
    /// The language that a part is really in; nothing when its own will do.
    std::optional<QString> DevineLangue(QString const& partie, QString const& langue,
                                        bool citation);
    double DonnePartConnue(QStringList const& formes, QString const& langue);

    Dictionnaires dictionnaires_;
};

} // namespace hote
