// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QString>

#include <string>
#include <vector>

namespace hote {

/// A document that a companion serves.
struct DocumentAnnonce {
    QString id; ///< the whole identifier, INSTANCE~DOCUMENT
    QString titre;
    QString chemin; ///< empty when it has none
    QString genre;  ///< "writer", "calc", "impress", "draw" or "texte"; empty when not told
    QString langue; ///< its main language, a BCP 47 tag; empty when not told

    /// The companion's part of the identifier.
    QString DonneInstance() const { return id.section(QLatin1Char('~'), 0, 0); }
};

/// The documents within reach, and what stood in the way of others.
struct ListeDocuments {
    std::vector<DocumentAnnonce> documents;  ///< each companion's own order: the one in front first
    std::vector<std::string> avertissements; ///< for the person, translated, UTF-8
};

/// Reads what the companion `instance` answered to DonneDocuments and appends it to `liste`. An
/// answer, or an entry of it, that is not what the contract says is left out with a warning; so is
/// an entry that names a document of somebody else. Any thread.
void LisDocuments(QString const& instance, QString const& reponse, ListeDocuments& liste);

} // namespace hote
