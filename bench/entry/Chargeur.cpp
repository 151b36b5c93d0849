// SPDX-License-Identifier: MPL-2.0
// Prints the microseconds of processor time that loading one library takes in a process with
// nothing else in it.
#include <cstdio>
#include <ctime>
#include <dlfcn.h>

namespace {

double Microsecondes() {
    timespec instant{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &instant);
    return static_cast<double>(instant.tv_sec) * 1e6 + static_cast<double>(instant.tv_nsec) / 1e3;
}

} // namespace

int main(int nombre, char** arguments) {
    if (nombre != 2) {
        std::fputs("usage: banc_chargeur LIBRARY\n", stderr);
        return 2;
    }
    auto const depart = Microsecondes();
    auto* const bibliotheque = dlopen(arguments[1], RTLD_LAZY | RTLD_LOCAL);
    auto const duree = Microsecondes() - depart;
    if (bibliotheque == nullptr) {
        std::fprintf(stderr, "%s\n", dlerror());
        return 1;
    }
    std::printf("%.1f\n", duree);
    return 0;
}
