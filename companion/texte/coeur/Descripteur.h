// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string>
#include <string_view>
#include <unistd.h>
#include <utility>

namespace compagnon {

/// A file descriptor, closed with its holder. -1: none.
class Descripteur {
  public:
    Descripteur() = default;
    explicit Descripteur(int valeur) noexcept
        : valeur_(valeur) {}
    Descripteur(Descripteur&& autre) noexcept
        : valeur_(std::exchange(autre.valeur_, -1)) {}
    Descripteur& operator=(Descripteur&& autre) noexcept {
        std::swap(valeur_, autre.valeur_);
        return *this;
    }
    ~Descripteur() { Ferme(); }

    explicit operator bool() const noexcept { return valeur_ >= 0; }
    int Donne() const noexcept { return valeur_; }
    void Ferme() noexcept {
        if (valeur_ >= 0) {
            ::close(std::exchange(valeur_, -1));
        }
    }

  private:
    int valeur_ = -1;
};

/// Appends what can be read to `sortie`, until the end or past `max` bytes. False with `errno` set
/// on an error.
bool LisTout(int descripteur, std::size_t max, std::string& sortie);
/// Writes all of it. False with `errno` set on an error.
bool EcrisTout(int descripteur, std::string_view octets);

} // namespace compagnon
