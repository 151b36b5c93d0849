// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Intervalle.h"
#include "PlagesDeStyle.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace compagnon {

/// Writes the reply of "SynchronisePositions" (protocol/README.md), zone by zone: plain ASCII, all
/// texts in Base64. Linear in what is written. Texts are made transportable on the way (`Utf.h`).
class EcrivainZones {
  public:
    /// `limite`: bytes that the finished document may have.
    explicit EcrivainZones(std::size_t limite = contrat::kLimiteReponse);

    /// Bytes that a zone takes at most, whatever is selected in it.
    static std::size_t BorneDe(std::string_view nom, std::u16string_view texte,
                               std::size_t nombreDeStyles) noexcept;

    /// Makes room at once for a document of about so many bytes: growing step by step copies it.
    void Prevois(std::size_t octets) { document_.reserve(octets < limite_ ? octets : limite_); }

    /// Appends one zone. `nom` in UTF-8; positions are written as they are given; runs in order
    /// (`PlagesDeStyle` keeps them merged). False once the limit is passed: the document is lost
    /// then, its memory given back, and every later call answers false too.
    bool Ajoute(std::string_view nom, std::u16string_view texte, Intervalle selection,
                std::vector<PlageDeStyle> const& styles = {});

    /// The finished document; nothing when the limit was passed. The writer is used up.
    std::optional<std::string> Termine();

  private:
    bool Abandonne();

    std::size_t limite_;
    bool depasse_ = false;
    bool premiere_ = true;
    std::string document_;
    std::string octets_; // UTF-8 of the text in hand, kept to reuse its memory
};

} // namespace compagnon
