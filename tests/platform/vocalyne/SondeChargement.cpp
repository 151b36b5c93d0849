// SPDX-License-Identifier: MPL-2.0
// A host that does not use Qt itself: loads and unloads the library named on its command line, and
// says what came of it.
#include <dlfcn.h>

#include <iostream>

int main(int nombre, char** arguments) {
    constexpr int kTours = 100;
    int charges = 0;
    int restes = 0;
    for (int tour = 0; nombre > 1 && tour < kTours; ++tour) {
        void* const module = dlopen(arguments[1], RTLD_NOW | RTLD_LOCAL);
        if (module == nullptr) {
            std::cerr << dlerror() << '\n';
            return 1;
        }
        auto const reponse = reinterpret_cast<int (*)()>(dlsym(module, "DonneReponse"));
        charges += reponse != nullptr && reponse() == 1 ? 1 : 0;
        dlclose(module);
        if (void* const reste = dlopen(arguments[1], RTLD_NOW | RTLD_NOLOAD)) {
            ++restes;
            dlclose(reste);
        }
    }
    // By its name alone: found only where it is still mapped.
    void* const hote = dlopen("libOutilsVocalyne.so", RTLD_NOW | RTLD_NOLOAD);
    std::cout << "hote=" << (hote != nullptr ? "restee" : "partie") << "\ncharges=" << charges
              << "\nrestes=" << restes << "\nfin=atteinte" << std::endl;
}
