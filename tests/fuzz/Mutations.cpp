// SPDX-License-Identifier: MPL-2.0
#include "Mutations.h"

#include <algorithm>
#include <array>
#include <random>

namespace {

/// Cases grow no longer than this, however often they are doubled.
constexpr std::size_t kTailleMax = 1 << 16;
/// Longest stretch that is moved about at once.
constexpr std::size_t kMorceauMax = 64;

class Deriveur {
  public:
    Deriveur(std::vector<std::string> const& germes, std::uint64_t numero)
        : germes_(germes)
        , hasard_(numero) {}

    std::string Fais() {
        auto cas = UnGerme();
        for (auto reste = 1 + Tire(8); reste > 0; --reste) {
            Change(cas);
        }
        cas.resize(std::min(cas.size(), kTailleMax));
        return cas;
    }

  private:
    std::size_t Tire(std::size_t borne) {
        return borne == 0 ? 0 : static_cast<std::size_t>(hasard_() % borne);
    }
    std::string const& UnGerme() { return germes_[Tire(germes_.size())]; }
    std::string UnMorceau(std::string const& texte) {
        return texte.empty() ? texte : texte.substr(Tire(texte.size()), 1 + Tire(kMorceauMax));
    }

    void Change(std::string& cas) {
        // What readers stumble over: ends, quotes, brackets, numbers at their limits.
        static std::array<std::string, 14> const mots{
            std::string(1, '\0'), "\"",   "\\",          "{", "}", "[", "]", ",", "//", "/*", "-1",
            "2147483648",         "null", "\xEF\xBF\xBE"};
        auto const place = Tire(cas.size() + 1);
        switch (Tire(7)) {
        case 0:
            if (place < cas.size()) {
                cas[place] = static_cast<char>(Tire(256));
            }
            break;
        case 1:
            if (place < cas.size()) {
                cas[place] = static_cast<char>(cas[place] ^ (1 << Tire(8)));
            }
            break;
        case 2:
            cas.erase(place, 1 + Tire(kMorceauMax));
            break;
        case 3:
            cas.insert(place, UnMorceau(cas));
            break;
        case 4:
            cas.insert(place, UnMorceau(UnGerme()));
            break;
        case 5:
            cas.insert(place, mots[Tire(mots.size())]);
            break;
        default:
            if (Tire(4) == 0) { // seldom, or little would be left to change
                cas.resize(place);
            }
            break;
        }
    }

    std::vector<std::string> const& germes_;
    std::mt19937_64 hasard_;
};

} // namespace

std::string Derive(std::vector<std::string> const& germes, std::uint64_t numero) {
    return Deriveur(germes, numero).Fais();
}
