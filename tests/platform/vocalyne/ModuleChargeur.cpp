// SPDX-License-Identifier: MPL-2.0
// A library that registers a translation loader when it is told to, as a connector does when it is
// loaded. Built twice, under two names.
#include "Traduction.h"

namespace {

int lesAppels = 0;

void Charge() {
    ++lesAppels;
}

} // namespace

extern "C" __attribute__((visibility("default"))) void Enregistre() {
    AjouterAuxDomainesDeTraduction(Charge);
}
extern "C" __attribute__((visibility("default"))) int DonneAppels() {
    return lesAppels;
}
/// Where the loader's code stands.
extern "C" __attribute__((visibility("default"))) void const* DonneAdresse() {
    return reinterpret_cast<void const*>(&Charge);
}
extern "C" __attribute__((visibility("default"))) char const* DonneNom() {
    return NOM_MODULE;
}
