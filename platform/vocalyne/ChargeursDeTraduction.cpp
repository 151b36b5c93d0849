// SPDX-License-Identifier: MPL-2.0
#include "ChargeursDeTraduction.h"

#include <dlfcn.h>

#include <algorithm>
#include <utility>

void ChargeursDeTraduction::Ajoute(std::function<void()> chargeur) {
    if (!chargeur) {
        return;
    }
    chargeur();
    auto const* const cible = chargeur.target<Fonction>();
    if (cible == nullptr) {
        chargeurs_.push_back({nullptr, {}, std::move(chargeur)});
        return;
    }
    auto const fonction = *cible;
    auto const estLa = [fonction](Chargeur const& c) { return c.fonction == fonction; };
    chargeurs_.erase(std::remove_if(chargeurs_.begin(), chargeurs_.end(), estLa), chargeurs_.end());
    chargeurs_.push_back({fonction, CodeEn(fonction), nullptr});
}

void ChargeursDeTraduction::Execute() {
    auto const disparu = [](Chargeur const& c) {
        return c.fonction != nullptr && CodeEn(c.fonction) != c.bibliotheque;
    };
    chargeurs_.erase(std::remove_if(chargeurs_.begin(), chargeurs_.end(), disparu),
                     chargeurs_.end());
    auto const aExecuter = chargeurs_; // a loader may register another
    for (auto const& chargeur : aExecuter) {
        if (chargeur.fonction != nullptr) {
            chargeur.fonction();
        } else {
            chargeur.autre();
        }
    }
}

std::string ChargeursDeTraduction::CodeEn(Fonction fonction) {
    Dl_info infos;
    if (dladdr(reinterpret_cast<void const*>(fonction), &infos) == 0 ||
        infos.dli_fbase == nullptr) {
        return {};
    }
    // A new build of the library may be loaded from the same path to the same address. Its first
    // page (ELF header, segments, build identifier) tells it from the old one.
    constexpr std::size_t kDebutBibliotheque = 4096;
    std::string code(static_cast<char const*>(infos.dli_fbase), kDebutBibliotheque);
    code.append(reinterpret_cast<char const*>(&infos.dli_fbase), sizeof infos.dli_fbase);
    if (infos.dli_fname != nullptr) {
        code.append(infos.dli_fname);
    }
    return code;
}
