// SPDX-License-Identifier: MPL-2.0
#include "EcrivainZones.h"

#include "CodageBase64.h"
#include "Utf.h"

#include <array>
#include <charconv>

namespace compagnon {

namespace {

constexpr std::string_view kOuverture = "{\"Zones\":[";
constexpr std::string_view kFermeture = "]}";

void AjouteEntier(std::string& sortie, std::int32_t valeur) {
    std::array<char, 12> chiffres{};
    auto const fin = std::to_chars(chiffres.data(), chiffres.data() + chiffres.size(), valeur);
    sortie.append(chiffres.data(), fin.ptr);
}

} // namespace

EcrivainZones::EcrivainZones(std::size_t limite)
    : limite_(limite)
    , document_(kOuverture) {}

bool EcrivainZones::Abandonne() {
    depasse_ = true;
    document_ = std::string();
    octets_ = std::string();
    return false;
}

std::size_t EcrivainZones::BorneDe(std::string_view nom, std::u16string_view texte,
                                   std::size_t nombreDeStyles) noexcept {
    constexpr std::size_t kCles = 128;    // all that is neither name, text nor run
    constexpr std::size_t kUneSuite = 64; // with three numbers
    auto const enBase64 = [](std::size_t octets) { return (octets + 2) / 3 * 4; };
    return kCles + enBase64(nom.size()) + enBase64(OctetsEnUtf8(texte)) +
           nombreDeStyles * kUneSuite;
}

bool EcrivainZones::Ajoute(std::string_view nom, std::u16string_view texte, Intervalle selection,
                           std::vector<PlageDeStyle> const& styles) {
    if (depasse_) {
        return false;
    }
    // Known before writing, so that one giant zone costs no memory: a unit is at least one byte.
    if (texte.size() / 3 * 4 + nom.size() / 3 * 4 > limite_) {
        return Abandonne();
    }
    document_ += premiere_ ? "{\"Nom\":\"" : ",{\"Nom\":\"";
    premiere_ = false;
    AjouteBase64(nom, document_);
    document_ += "\",\"Texte\":\"";
    octets_.clear();
    AjouteUtf8(texte, octets_);
    AjouteBase64(octets_, document_);
    document_ += "\",\"DebutSel\":";
    AjouteEntier(document_, selection.debut);
    document_ += ",\"FinSel\":";
    AjouteEntier(document_, selection.fin);
    if (!styles.empty()) {
        char const* avant = ",\"InfosStyle\":[{\"Debut\":";
        for (PlageDeStyle const& plage : styles) {
            document_ += avant;
            avant = ",{\"Debut\":";
            AjouteEntier(document_, plage.debut);
            document_ += ",\"Fin\":";
            AjouteEntier(document_, plage.fin);
            document_ += ",\"Style\":";
            AjouteEntier(document_, plage.style);
            document_ += '}';
            if (document_.size() > limite_) {
                return Abandonne();
            }
        }
        document_ += ']';
    }
    document_ += '}';
    return document_.size() + kFermeture.size() <= limite_ || Abandonne();
}

std::optional<std::string> EcrivainZones::Termine() {
    if (depasse_ || document_.size() + kFermeture.size() > limite_) {
        return std::nullopt;
    }
    document_ += kFermeture;
    return std::move(document_);
}

} // namespace compagnon
