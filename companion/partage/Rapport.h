// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace compagnon {

/// What a companion says of one document as a whole: what it is, and what of it is not proofed.
class Rapport {
  public:
    /// `genre`, `langue`: as in `DocumentServi`.
    Rapport(std::string genre, std::string langue, std::size_t zones, bool lectureSeule);

    /// So many of something are left out, or cannot be changed. `code`: for programs (protocol/);
    /// `phrase`: for people, in UTF-8. None of them is not told.
    void Laisse(std::string_view code, std::size_t nombre, std::string phrase);

    /// The reply of "DonneRapport": a JSON object in UTF-8.
    std::string EnJson() const;

  private:
    struct Reste {
        std::string code;
        std::size_t nombre;
        std::string phrase;
    };

    std::string genre_;
    std::string langue_;
    std::size_t zones_;
    bool lectureSeule_;
    std::vector<Reste> laisses_;
};

} // namespace compagnon
