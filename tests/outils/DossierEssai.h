// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <grp.h>
#include <gtest/gtest.h>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

/// A test with a folder of its own, which an ordinary user may enter too.
class DossierEssai : public testing::Test {
  protected:
    static constexpr uid_t kPersonne = 65534;

    DossierEssai() {
        std::string modele =
            (std::filesystem::temp_directory_path() / "vocalyne-essai-XXXXXX").string();
        if (!::mkdtemp(modele.data())) {
            throw std::runtime_error("no temporary folder");
        }
        dossier = std::filesystem::canonical(modele);
        if (::geteuid() == 0 && ::chown(dossier.c_str(), kPersonne, kPersonne) != 0) {
            throw std::runtime_error("cannot give the folder away");
        }
    }
    ~DossierEssai() override {
        std::error_code sansErreur;
        std::filesystem::permissions(dossier, std::filesystem::perms::owner_all, sansErreur);
        std::filesystem::remove_all(dossier, sansErreur);
    }

    std::string Ecris(std::string const& nom, std::string_view octets) const {
        std::filesystem::path const chemin = dossier / nom;
        std::ofstream(chemin, std::ios::binary) << octets;
        if (::geteuid() == 0) {
            EXPECT_EQ(::chown(chemin.c_str(), kPersonne, kPersonne), 0);
        }
        return chemin.string();
    }
    static std::string Lis(std::filesystem::path const& chemin) {
        std::ifstream fichier(chemin, std::ios::binary);
        return {std::istreambuf_iterator<char>(fichier), std::istreambuf_iterator<char>()};
    }
    /// Names in the folder, sorted, joined by spaces.
    std::string Noms() const {
        std::vector<std::string> noms;
        for (auto const& entree : std::filesystem::directory_iterator(dossier)) {
            noms.push_back(entree.path().filename().string());
        }
        std::sort(noms.begin(), noms.end());
        std::string resultat;
        for (std::string const& nom : noms) {
            resultat += (resultat.empty() ? "" : " ") + nom;
        }
        return resultat;
    }
    /// In a child process only: the superuser, to whom all is allowed, becomes nobody.
    static void DeviensPersonne() {
        if (::geteuid() == 0 && (::setgroups(0, nullptr) != 0 || ::setgid(kPersonne) != 0 ||
                                 ::setuid(kPersonne) != 0)) {
            ::_exit(99);
        }
    }

    std::filesystem::path dossier;
};
