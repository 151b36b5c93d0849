// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "fenetre/modele/Revue.h"

#include <QAbstractListModel>

namespace hote {

/// The remarks to be decided on, one a row. What changes in them changes those rows alone, so that
/// the person's place in the list stays.
class ListeDeRemarques : public QAbstractListModel {
    Q_OBJECT

  public:
    explicit ListeDeRemarques(Revue const& revue, QObject* parent = nullptr);

    /// Brings the rows up to date with the review.
    void Actualise();

    quint64 DonneId(int rang) const;
    /// -1 when it has no row.
    int DonneRang(quint64 id) const;

    int rowCount(QModelIndex const& parent = {}) const override;
    QVariant data(QModelIndex const& index, int role) const override;

  private:
    Revue const& revue_;
    std::vector<quint64> ids_;
};

} // namespace hote
