// SPDX-License-Identifier: MPL-2.0
#include "ObjetDeregle.h"
#include "Programme.h"

int main(int argc, char* argv[]) {
    using namespace compagnon;
    return Programme(
        argc, argv, [](Bureau& bureau, bool peutEnregistrer, Publication& publication) {
            return std::make_unique<ObjetDeregle>(bureau, peutEnregistrer, publication);
        });
}
