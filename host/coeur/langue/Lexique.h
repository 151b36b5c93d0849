// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QString>
#include <QStringList>

namespace hote {

/// A language that the host proofs. `Autre` is any that has a dictionary here; only dictionaries
/// say so of themselves.
enum class Langue { Francais, Anglais, Autre };

/// A list of words that can be asked. Words are given in the form of `DonneForme`. One thread at a
/// time; answers may be kept between calls.
class Lexique {
  public:
    virtual ~Lexique() = default;
    virtual Langue DonneLangue() const = 0;
    virtual bool Connait(QString const& forme) = 0;
    /// What may have been meant, best first; empty when nothing comes near. Slow (milliseconds).
    virtual QStringList Suggere(QString const& forme) = 0;
    /// The words that this one may be a form of ("chats": "chat"), itself perhaps among them.
    virtual QStringList DonneRacines(QString const& forme) = 0;
};

} // namespace hote
