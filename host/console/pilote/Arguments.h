// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QJsonObject>
#include <QString>

#include <stdexcept>
#include <vector>

namespace hote {

/// A request that cannot be served as it stands; the message is for its author (UTF-8).
class ErreurRequete : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The arguments of one request. Each question throws ErreurRequete, naming the argument, when it
/// is of another type than asked, or missing where nothing stands in for it.
class Arguments {
  public:
    explicit Arguments(QJsonObject objet)
        : objet_(std::move(objet)) {}

    bool Contient(char const* nom) const { return objet_.contains(QLatin1String(nom)); }

    /// A whole number of 32 signed bits.
    int DonneEntier(char const* nom) const;
    int DonneEntier(char const* nom, int defaut) const;
    bool DonneBooleen(char const* nom) const;
    bool DonneBooleen(char const* nom, bool defaut) const;
    QString DonneTexte(char const* nom) const;
    QString DonneTexte(char const* nom, QString const& defaut) const;
    Arguments DonneObjet(char const* nom) const;
    /// The objects of an array; none when it is missing.
    std::vector<Arguments> DonneObjets(char const* nom) const;

  private:
    QJsonValue Trouve(char const* nom) const;

    QJsonObject objet_;
};

} // namespace hote
