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
    std::filesystem::path Chemin(std::string_view nom) const { return chemin_ / nom; }
    /// Writes a file in it; answers its path.
    std::filesystem::path Ecris(std::string_view nom, std::string_view octets) const;
    /// A file's bytes; empty when it cannot be read.
    std::string Lis(std::string_view nom) const;
    /// The names in it, sorted, joined by spaces.
    std::string Noms() const;

    /// Where the tests run as root, to whom all is allowed: the folder and the files written from
    /// now on belong to nobody, so that a process which becomes nobody finds its own rights there.
    void CedeAPersonne();
    /// In a child process only: root becomes nobody, for good. Does nothing for anybody else.
    static void DeviensPersonne();

    /// A file that this process may not read until the object goes, root included.
    class Interdit {
      public:
        explicit Interdit(std::filesystem::path chemin);
        ~Interdit() { Leve(); }
        Interdit(Interdit const&) = delete;
        Interdit& operator=(Interdit const&) = delete;
        /// It may be read again.
        void Leve() noexcept;

      private:
        std::filesystem::path chemin_;
    };

  private:
    std::filesystem::path chemin_;
    bool cede_ = false;
};

/// A file's bytes; empty when it cannot be read.
std::string LisOctets(std::filesystem::path const& chemin);
