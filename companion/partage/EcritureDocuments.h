// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string>
#include <string_view>

namespace compagnon {

/// What a companion says of one document in its list.
struct DocumentServi {
    std::string identifiant; ///< whole, in UTF-8
    std::u16string titre;
    std::u16string chemin;
    std::string genre;  ///< "writer", "calc", "impress", "draw", "texte"; empty: not told
    std::string langue; ///< its main one, a BCP 47 tag; empty: not known
};

/// Writes the reply of "DonneDocuments": a JSON array in UTF-8.
class EcritureDocuments {
  public:
    void Ajoute(DocumentServi const& document);
    /// The array; the writer is used up.
    std::string Termine();

  private:
    std::string json_ = "[";
};

} // namespace compagnon
