// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

/// The languages that the high byte of a style names (README.md). The same table stands in
/// langues.json for other languages of programming. The C++ standard library alone; no state, so
/// any thread.
namespace contrat {

/// Where the language stands in a style.
inline constexpr unsigned kDecalageLangue = 8;
inline constexpr std::uint16_t kMasqueLangue = 0xFF00;

/// A language that is not in the table.
inline constexpr std::uint8_t kAutreLangue = 255;

struct LangueNumerotee {
    std::uint8_t numero;
    char const* etiquette; ///< BCP 47
};
/// In the order of their numbers, from 1 without a gap. A number never changes its meaning: new
/// languages come at the end.
inline constexpr LangueNumerotee kLangues[] = {
    {1, "fr"},     {2, "fr-BE"},  {3, "fr-CA"},
    {4, "fr-CH"},  {5, "en"},     {6, "en-AU"},
    {7, "en-CA"},  {8, "en-GB"},  {9, "en-US"},
    {10, "en-ZA"}, {11, "de"},    {12, "de-AT"},
    {13, "de-CH"}, {14, "es"},    {15, "es-MX"},
    {16, "it"},    {17, "pt"},    {18, "pt-BR"},
    {19, "nl"},    {20, "ca"},    {21, "ca-ES-valencia"},
    {22, "oc"},    {23, "br"},    {24, "eu"},
    {25, "co"},    {26, "gl"},    {27, "ast"},
    {28, "an"},    {29, "la"},    {30, "el"},
    {31, "ro"},    {32, "hu"},    {33, "cs"},
    {34, "sk"},    {35, "pl"},    {36, "sl"},
    {37, "hr"},    {38, "sr"},    {39, "sr-Latn"},
    {40, "bs"},    {41, "mk"},    {42, "bg"},
    {43, "ru"},    {44, "uk"},    {45, "be"},
    {46, "da"},    {47, "sv"},    {48, "nb"},
    {49, "nn"},    {50, "fi"},    {51, "et"},
    {52, "lv"},    {53, "lt"},    {54, "is"},
    {55, "fo"},    {56, "ga"},    {57, "gd"},
    {58, "cy"},    {59, "mt"},    {60, "lb"},
    {61, "sq"},    {62, "tr"},    {63, "ar"},
    {64, "he"},    {65, "fa"},    {66, "ur"},
    {67, "hi"},    {68, "bn"},    {69, "ta"},
    {70, "te"},    {71, "ml"},    {72, "kn"},
    {73, "mr"},    {74, "gu"},    {75, "pa"},
    {76, "or"},    {77, "as"},    {78, "ne"},
    {79, "sa"},    {80, "si"},    {81, "zh"},
    {82, "zh-TW"}, {83, "zh-HK"}, {84, "ja"},
    {85, "ko"},    {86, "vi"},    {87, "th"},
    {88, "lo"},    {89, "km"},    {90, "my"},
    {91, "id"},    {92, "ms"},    {93, "tl"},
    {94, "af"},    {95, "sw"},    {96, "zu"},
    {97, "xh"},    {98, "st"},    {99, "tn"},
    {100, "ha"},   {101, "yo"},   {102, "ig"},
    {103, "am"},   {104, "ti"},   {105, "so"},
    {106, "om"},   {107, "rw"},   {108, "ln"},
    {109, "mg"},   {110, "wo"},   {111, "ka"},
    {112, "hy"},   {113, "az"},   {114, "kk"},
    {115, "ky"},   {116, "uz"},   {117, "tk"},
    {118, "tt"},   {119, "tg"},   {120, "mn"},
    {121, "ug"},   {122, "ps"},   {123, "ku"},
    {124, "sd"},   {125, "eo"},   {126, "ia"},
    {127, "ie"},   {128, "io"},   {129, "yi"},
    {130, "rm"},   {131, "fur"},  {132, "sc"},
    {133, "lld"},  {134, "hsb"},  {135, "dsb"},
    {136, "fy"},   {137, "se"},   {138, "kl"},
    {139, "ht"},   {140, "gn"},   {141, "qu"},
    {142, "ay"},   {143, "nah"},  {144, "mi"},
    {145, "haw"},  {146, "sm"},   {147, "to"},
    {148, "bo"},   {149, "dz"},   {150, "dv"},
};

/// The style that has nothing but a language.
constexpr std::uint16_t DonneStyleDeLangue(std::uint8_t numero) noexcept {
    return static_cast<std::uint16_t>(static_cast<unsigned>(numero) << kDecalageLangue);
}
/// The number of a style's language.
constexpr std::uint8_t DonneNumeroDuStyle(std::uint16_t style) noexcept {
    return static_cast<std::uint8_t>(static_cast<unsigned>(style) >> kDecalageLangue);
}

/// The number of a BCP 47 tag, in whatever case: its own, else that of what is left without its
/// last parts ("fr-FR": "fr"), else `kAutreLangue`; 0 for none.
constexpr std::uint8_t DonneNumeroDeLangue(std::string_view etiquette) noexcept {
    auto const minuscule = [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    };
    auto const egal = [&](std::string_view un, std::string_view autre) {
        if (un.size() != autre.size()) {
            return false;
        }
        for (std::size_t i = 0; i < un.size(); ++i) {
            if (minuscule(un[i]) != minuscule(autre[i])) {
                return false;
            }
        }
        return true;
    };
    bool const aucune = etiquette.empty();
    while (!etiquette.empty()) {
        for (LangueNumerotee const& langue : kLangues) {
            if (egal(langue.etiquette, etiquette)) {
                return langue.numero;
            }
        }
        std::size_t const trait = etiquette.rfind('-');
        etiquette =
            trait == std::string_view::npos ? std::string_view() : etiquette.substr(0, trait);
    }
    return aucune ? std::uint8_t{0} : kAutreLangue;
}

/// The tag of a number; empty for 0, `kAutreLangue`, and what the table does not have.
constexpr std::string_view DonneEtiquetteDeLangue(std::uint8_t numero) noexcept {
    for (LangueNumerotee const& langue : kLangues) {
        if (langue.numero == numero) {
            return langue.etiquette;
        }
    }
    return {};
}

} // namespace contrat
