// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <array>
#include <cstddef>
#include <random>
#include <string>
#include <string_view>

/// Random texts for the tests of the model: seeded, so that a failure comes back.
class Hasard {
  public:
    explicit Hasard(unsigned graine)
        : moteur_(graine) {}

    /// From 0 to `max`, both included.
    std::size_t Jusqua(std::size_t max) {
        return std::uniform_int_distribution<std::size_t>(0, max)(moteur_);
    }

    /// Letters from an alphabet so small that they repeat all the time.
    std::u16string Lettres(std::size_t max) {
        std::u16string texte(Jusqua(max), u'a');
        for (char16_t& unite : texte) {
            unite = static_cast<char16_t>(u'a' + Jusqua(1));
        }
        return texte;
    }

    /// Whole characters: letters, an accent that combines, characters of two units, a joiner.
    std::u16string Caracteres(std::size_t max) {
        static constexpr std::array<std::u16string_view, 6> kPieces{
            u"a", u"e", u"\u0301", u"\U0001F600", u"\U0001F601", u"\u200D"};
        std::u16string texte;
        for (std::size_t reste = Jusqua(max); reste > 0; --reste) {
            texte += kPieces[Jusqua(kPieces.size() - 1)];
        }
        return texte;
    }

  private:
    std::mt19937 moteur_;
};
