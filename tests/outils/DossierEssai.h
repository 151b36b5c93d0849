// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "DossierTemporaire.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>

/// A test with a folder of its own, which an ordinary user may enter too.
class DossierEssai : public testing::Test {
  protected:
    DossierEssai() { temporaire_.CedeAPersonne(); }

    std::string Ecris(std::string_view nom, std::string_view octets) const {
        return temporaire_.Ecris(nom, octets).string();
    }
    static std::string Lis(std::filesystem::path const& chemin) { return LisOctets(chemin); }
    std::string Noms() const { return temporaire_.Noms(); }
    static void DeviensPersonne() { DossierTemporaire::DeviensPersonne(); }

  private:
    DossierTemporaire temporaire_;

  protected:
    std::filesystem::path const dossier = temporaire_.Chemin();
};
