// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "moteurs/Atelier.h"

#include <functional>

/// An engine that does what the test says, for French.
class MoteurFaux : public hote::Moteur {
  public:
    using Examen = std::function<std::vector<hote::Remarque>(hote::ParagrapheAExaminer const&,
                                                             hote::Arret const&)>;
    explicit MoteurFaux(Examen examen)
        : examen_(std::move(examen)) {}

    QString DonneNom() const override { return QStringLiteral("faux"); }
    bool Juge(QString const& langue) const override {
        return langue.startsWith(QLatin1String("fr"));
    }
    std::vector<hote::Remarque> Examine(hote::ParagrapheAExaminer const& paragraphe,
                                        hote::Arret const& arret) override {
        return examen_(paragraphe, arret);
    }

  private:
    Examen examen_;
};

inline hote::MoteurFabrique Fabrique(char const* nom, MoteurFaux::Examen const& examen) {
    return {QString::fromUtf8(nom), [examen] { return std::make_unique<MoteurFaux>(examen); }, 1};
}

inline hote::Remarque Note(int debut, int fin, char const* suggestion = "x", double surete = 0.5) {
    hote::Remarque remarque{};
    remarque.debut = debut;
    remarque.fin = fin;
    remarque.genre = hote::GenreDeRemarque::Orthographe;
    remarque.regle = QStringLiteral("r");
    remarque.suggestions = QStringList(QString::fromUtf8(suggestion));
    remarque.surete = surete;
    return remarque;
}

inline hote::ParagrapheAExaminer Francais(char const* utf8) {
    QString const texte = QString::fromUtf8(utf8);
    return {texte, {{0, texte.size(), QStringLiteral("fr")}}};
}
