// SPDX-License-Identifier: MPL-2.0
#include "InitialisationGenerale.h"
#include "Traduction.h"

#include <dlfcn.h>

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace {

int lesAppels = 0;
void Compte() {
    ++lesAppels;
}

/// Another display language than the one before: the loaders run again.
void ChangeLangue() {
    InitialisationGenerale::InitLePlusTotPossible(
        InitialisationGenerale::DonneLangue() == kLangueFrancais ? kLangueAnglais
                                                                 : kLangueFrancais);
}

/// The loader library, loaded for the life of the object.
class Module {
  public:
    explicit Module(char const* chemin)
        : module_(dlopen(chemin, RTLD_NOW | RTLD_LOCAL)) {
        if (module_ == nullptr) {
            throw std::runtime_error(dlerror());
        }
    }
    ~Module() { dlclose(module_); }
    Module(Module const&) = delete;
    Module& operator=(Module const&) = delete;

    void Enregistre() const { Fonction<void (*)()>("Enregistre")(); }
    int DonneAppels() const { return Fonction<int (*)()>("DonneAppels")(); }
    void const* DonneAdresse() const { return Fonction<void const* (*)()>("DonneAdresse")(); }

  private:
    template <class F>
    F Fonction(char const* nom) const {
        auto const fonction = reinterpret_cast<F>(dlsym(module_, nom));
        if (fonction == nullptr) {
            throw std::runtime_error(nom);
        }
        return fonction;
    }
    void* module_;
};

TEST(TranslationLoaders, ALoaderRunsAtOnceAndAgainWhenTheLanguageChanges) {
    lesAppels = 0;
    AjouterAuxDomainesDeTraduction(Compte);
    EXPECT_EQ(1, lesAppels);
    ChangeLangue();
    EXPECT_EQ(2, lesAppels);
    InitialisationGenerale::InitLePlusTotPossible(InitialisationGenerale::DonneLangue());
    EXPECT_EQ(2, lesAppels);
}

TEST(TranslationLoaders, AFunctionGivenAgainIsKeptOnce) {
    AjouterAuxDomainesDeTraduction(Compte);
    AjouterAuxDomainesDeTraduction(&Compte);
    lesAppels = 0;
    ChangeLangue();
    EXPECT_EQ(1, lesAppels);
}

TEST(TranslationLoaders, OtherCallablesAreKeptToo) {
    auto const appels = std::make_shared<int>(0);
    AjouterAuxDomainesDeTraduction([appels] { ++*appels; });
    ChangeLangue();
    EXPECT_EQ(2, *appels);
    AjouterAuxDomainesDeTraduction(nullptr);
    ChangeLangue();
    EXPECT_EQ(3, *appels);
}

TEST(TranslationLoaders, ALoaderMayRegisterAnother) {
    AjouterAuxDomainesDeTraduction([] { AjouterAuxDomainesDeTraduction(Compte); });
    lesAppels = 0;
    ChangeLangue();
    EXPECT_GE(lesAppels, 1);
}

TEST(TranslationLoaders, TheLoaderOfALoadedLibraryRuns) {
    Module const module(CHEMIN_MODULE_A);
    module.Enregistre();
    ChangeLangue();
    EXPECT_EQ(2, module.DonneAppels());
}

TEST(TranslationLoaders, TheLoaderOfAnUnloadedLibraryIsForgotten) {
    {
        Module const module(CHEMIN_MODULE_A);
        module.Enregistre();
    }
    ASSERT_EQ(nullptr, dlopen(CHEMIN_MODULE_A, RTLD_NOW | RTLD_NOLOAD));
    ChangeLangue(); // would run unmapped code
    Module const module(CHEMIN_MODULE_A);
    ChangeLangue();
    EXPECT_EQ(0, module.DonneAppels());
}

TEST(TranslationLoaders, AnotherLibraryInThePlaceOfAnUnloadedOneIsNotCalled) {
    void const* adresse = nullptr;
    {
        Module const module(CHEMIN_MODULE_A);
        module.Enregistre();
        adresse = module.DonneAdresse();
    }
    Module const module(CHEMIN_MODULE_B);
    ASSERT_EQ(adresse, module.DonneAdresse()) << "the case under test did not arise";
    ChangeLangue();
    EXPECT_EQ(0, module.DonneAppels());
}

TEST(TranslationLoaders, ALibraryThatIsLoadedAgainRegistersAnew) {
    for (int tour = 0; tour < 100; ++tour) {
        Module const module(CHEMIN_MODULE_A);
        module.Enregistre();
        ChangeLangue();
        ASSERT_EQ(2, module.DonneAppels());
    }
}

} // namespace
