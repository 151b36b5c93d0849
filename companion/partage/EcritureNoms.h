// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string>
#include <string_view>

namespace compagnon {

/// Writes the reply of "DonneNomsDeZones": a JSON object in UTF-8.
class EcritureNoms {
  public:
    /// A zone's key and what a person would call the place, both in UTF-8; an empty name is left
    /// out.
    void Ajoute(std::string_view zone, std::string_view nom);
    /// The object; the writer is used up. Throws `TropGrand` past what a message may hold.
    std::string Termine();

  private:
    std::string json_ = "{";
};

} // namespace compagnon
