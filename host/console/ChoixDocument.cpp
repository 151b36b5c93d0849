// SPDX-License-Identifier: MPL-2.0
#include "ChoixDocument.h"

#include "Avertissement.h"
#include "bus/EnumereDocuments.h"
#include "commun/ErreurHote.h"
#include "commun/MessagesHote.h"

#include <algorithm>

namespace hote {

QString ChoisisDocument() {
    auto const liste = EnumereDocuments(kDelaiDocumentsMs);
    for (std::string const& avertissement : liste.avertissements) {
        Avertis(avertissement);
    }
    auto const& documents = liste.documents;
    if (documents.empty()) {
        throw ErreurHote(kSortieDocument, Tr("Aucun document à portée."));
    }
    QString const instance = documents.front().DonneInstance();
    bool const unSeulLogiciel = std::all_of(documents.begin(), documents.end(), [&](auto const& d) {
        return d.DonneInstance() == instance;
    });
    if (unSeulLogiciel) {
        return documents.front().id;
    }
    std::string noms;
    for (DocumentAnnonce const& document : documents) {
        noms += (noms.empty() ? "" : ", ") + document.id.toStdString() + " (" +
                document.titre.toStdString() + ')';
    }
    throw ErreurHote(kSortieDocument, Tr("Lequel ? Plusieurs documents sont à portée : {1}", noms));
}

} // namespace hote
