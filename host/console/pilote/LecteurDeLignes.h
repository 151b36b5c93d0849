// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QByteArray>

#include <cstddef>
#include <optional>

namespace hote {

/// Cuts a stream of bytes into lines, in bounded memory: of a line past the limit nothing is kept.
class LecteurDeLignes {
  public:
    struct Ligne {
        QByteArray octets; ///< without its line feed; empty when too long
        bool tropLongue;
    };

    /// `limite` in bytes, the line feed not counted.
    explicit LecteurDeLignes(int limite)
        : limite_(limite) {}

    /// Takes the next bytes of the stream. To be called when `PrendsSuivante` has nothing more.
    void Ajoute(char const* octets, std::size_t taille);

    /// Tells that the stream has ended: what stands after the last line feed is a line too.
    void Termine() noexcept { termine_ = true; }

    /// The next whole line; nothing when there is none yet.
    std::optional<Ligne> PrendsSuivante();

  private:
    int limite_;
    QByteArray attente_; ///< bytes not given out
    int lus_ = 0;        ///< of those, how many hold no line feed
    bool deborde_ = false;
    bool termine_ = false;
};

} // namespace hote
