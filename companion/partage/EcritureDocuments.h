// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string>
#include <string_view>

namespace compagnon {

/// Writes the reply of "DonneDocuments": a JSON array in UTF-8. `identifiant` in UTF-8.
class EcritureDocuments {
  public:
    void Ajoute(std::string_view identifiant, std::u16string_view titre,
                std::u16string_view chemin);
    /// The array; the writer is used up.
    std::string Termine();

  private:
    std::string json_ = "[";
};

} // namespace compagnon
