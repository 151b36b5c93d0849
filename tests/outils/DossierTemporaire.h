// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// A folder of its own, removed with all that is in it.
class DossierTemporaire {
  public:
    DossierTemporaire();
    ~DossierTemporaire();
    DossierTemporaire(DossierTemporaire const&) = delete;
    DossierTemporaire& operator=(DossierTemporaire const&) = delete;

    std::filesystem::path const& Chemin() const noexcept { return chemin_; }
    /// Writes a file in it; answers its path.
    std::filesystem::path Ecris(std::string const& nom, std::string_view octets) const;

  private:
    std::filesystem::path chemin_;
};

/// A file's bytes; empty when it cannot be read.
std::string LisOctets(std::filesystem::path const& chemin);
