// SPDX-License-Identifier: MPL-2.0
#include "DecoupageZones.h"

#include <cstring>

namespace {

// Zone, list of runs, run: deeper nesting is for the parser to judge.
constexpr int kProfondeurMax = 8;

/// Reads a document from left to right. Every operation that finds something else than it looks for
/// says so by false, and the reading ends there.
class Lecteur {
  public:
    explicit Lecteur(std::string_view document)
        : ici_(document.data())
        , fin_(document.data() + document.size()) {}

    bool EstALaFin() {
        PasseBlancs();
        return ici_ == fin_;
    }

    bool Prends(char attendu) {
        PasseBlancs();
        if (ici_ == fin_ || *ici_ != attendu) {
            return false;
        }
        ++ici_;
        return true;
    }

    bool PrendsTexte(std::string_view attendu) {
        PasseBlancs();
        if (std::string_view(ici_, Reste()).substr(0, attendu.size()) != attendu) {
            return false;
        }
        ici_ += attendu.size();
        return true;
    }

    bool PrendsObjet(std::string_view& objet) {
        PasseBlancs();
        auto const* const debut = ici_;
        if (!Prends('{')) {
            return false;
        }
        for (int profondeur = 1; profondeur > 0;) {
            if (ici_ == fin_) {
                return false;
            }
            char const c = *ici_++;
            if (c == '"') {
                if (!PasseFinDeTexte()) {
                    return false;
                }
            } else if (c == '{' || c == '[') {
                if (++profondeur > kProfondeurMax) {
                    return false;
                }
            } else if (c == '}' || c == ']') {
                --profondeur;
            } else if (c == '/') {
                return false; // a comment: quotes and braces in it mean nothing
            }
        }
        objet = std::string_view(debut, static_cast<std::size_t>(ici_ - debut));
        return true;
    }

  private:
    std::size_t Reste() const { return static_cast<std::size_t>(fin_ - ici_); }

    void PasseBlancs() {
        while (ici_ != fin_ && (*ici_ == ' ' || *ici_ == '\t' || *ici_ == '\n' || *ici_ == '\r')) {
            ++ici_;
        }
    }

    /// From inside a text to behind its closing quote.
    bool PasseFinDeTexte() {
        for (;;) {
            auto const* const guillemet = static_cast<char const*>(std::memchr(ici_, '"', Reste()));
            if (guillemet == nullptr) {
                return false;
            }
            // Texts in Base64 hold no backslash: this looks at each character once.
            if (std::memchr(ici_, '\\', static_cast<std::size_t>(guillemet - ici_)) != nullptr) {
                return PasseFinDeTexteEchappe();
            }
            ici_ = guillemet + 1;
            return true;
        }
    }

    bool PasseFinDeTexteEchappe() {
        while (ici_ != fin_) {
            char const c = *ici_++;
            if (c == '"') {
                return true;
            }
            if (c == '\\' && ici_ != fin_) {
                ++ici_;
            }
        }
        return false;
    }

    char const* ici_;
    char const* fin_;
};

} // namespace

std::optional<std::vector<std::string_view>> DecoupeZones(std::string_view document) {
    Lecteur lecteur(document);
    if (!lecteur.Prends('{') || !lecteur.PrendsTexte("\"Zones\"") || !lecteur.Prends(':') ||
        !lecteur.Prends('[')) {
        return std::nullopt;
    }
    std::vector<std::string_view> zones;
    if (!lecteur.Prends(']')) {
        do {
            std::string_view objet;
            if (!lecteur.PrendsObjet(objet)) {
                return std::nullopt;
            }
            zones.push_back(objet);
        } while (lecteur.Prends(','));
        if (!lecteur.Prends(']')) {
            return std::nullopt;
        }
    }
    if (!lecteur.Prends('}') || !lecteur.EstALaFin()) {
        return std::nullopt;
    }
    return zones;
}
