// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QString>

#include <vector>

namespace hote {

/// A document that a companion serves.
struct DocumentAnnonce {
    QString id; ///< the whole identifier, INSTANCE~DOCUMENT
    QString titre;
    QString chemin; ///< empty when it has none

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
/// an entry that names a document of somebody else.
void LisDocuments(QString const& instance, QString const& reponse, ListeDocuments& liste);

/// Asks every companion on the session bus for its documents. Returns within `delaiMs`
/// milliseconds (and what the bus itself takes for a connection), whatever companions do: one that
/// answers late, wrongly or never is named in the warnings. Throws ErreurHote (kSortieDocument)
/// when there is no session bus. Main thread; needs a Qt application object, whose events run.
ListeDocuments EnumereDocuments(int delaiMs);

/// Long enough for a busy office, short enough for a person who waits.
constexpr int kDelaiDocumentsMs = 3000;

/// What of a service's name names the companion: empty when the name is not a companion's, or its
/// last part cannot stand in an object path.
QString DonneInstance(QString const& service);

} // namespace hote
