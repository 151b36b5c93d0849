// SPDX-License-Identifier: MPL-2.0
#include "ListeDeRemarques.h"

#include "Textes.h"

#include <algorithm>

namespace hote {

ListeDeRemarques::ListeDeRemarques(Revue const& revue, QObject* parent)
    : QAbstractListModel(parent)
    , revue_(revue) {}

void ListeDeRemarques::Actualise() {
    auto nouveaux = revue_.DonneFile();
    auto const debut = std::mismatch(ids_.begin(), ids_.end(), nouveaux.begin(), nouveaux.end());
    auto const reste = std::min(ids_.end() - debut.first, nouveaux.end() - debut.second);
    auto const fin = std::mismatch(ids_.rbegin(), ids_.rbegin() + reste, nouveaux.rbegin());
    int const premier = static_cast<int>(debut.first - ids_.begin());
    int const dernier = static_cast<int>(fin.first.base() - ids_.begin());
    int const dernierNouveau = static_cast<int>(fin.second.base() - nouveaux.begin());
    if (dernier > premier) {
        beginRemoveRows({}, premier, dernier - 1);
        ids_.erase(ids_.begin() + premier, ids_.begin() + dernier);
        endRemoveRows();
    }
    if (dernierNouveau > premier) {
        beginInsertRows({}, premier, dernierNouveau - 1);
        ids_ = std::move(nouveaux);
        endInsertRows();
    }
    if (!ids_.empty()) { // names of places may have come
        Q_EMIT dataChanged(index(0), index(static_cast<int>(ids_.size()) - 1));
    }
}

quint64 ListeDeRemarques::DonneId(int rang) const {
    return rang >= 0 && rang < static_cast<int>(ids_.size()) ? ids_[static_cast<std::size_t>(rang)]
                                                             : 0;
}

int ListeDeRemarques::DonneRang(quint64 id) const {
    auto const place = std::find(ids_.begin(), ids_.end(), id);
    return place == ids_.end() ? -1 : static_cast<int>(place - ids_.begin());
}

int ListeDeRemarques::rowCount(QModelIndex const& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(ids_.size());
}

QVariant ListeDeRemarques::data(QModelIndex const& index, int role) const {
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) {
        return {};
    }
    auto const remarque = revue_.Donne(DonneId(index.row()));
    return remarque ? DonneLigne(*remarque) : QVariant();
}

} // namespace hote
