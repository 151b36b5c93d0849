// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QString>

#include <string>

namespace hote {

/// How a terminal, or a file, shows what matters in a line.
class Couleurs {
  public:
    /// In colour when `descripteur` is a terminal that knows colours and NO_COLOR is not set.
    explicit Couleurs(int descripteur);
    explicit Couleurs(bool actives) noexcept
        : actives_(actives) {}

    /// A mistake in its context: in colour, or between brackets.
    std::string MarqueFaute(std::string const& texte) const;
    std::string MarqueCorrection(std::string const& texte) const;
    /// What is said beside the matter.
    std::string Attenue(std::string const& texte) const;

  private:
    std::string Entoure(char const* code, std::string const& texte) const;

    bool actives_;
};

} // namespace hote
