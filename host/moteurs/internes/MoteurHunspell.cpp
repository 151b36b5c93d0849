// SPDX-License-Identifier: MPL-2.0
#include "MoteurHunspell.h"

#include "Proximite.h"
#include "commun/MessagesHote.h"
#include "langue/Decoupeur.h"
#include "langue/JugeMot.h"
#include "moteurs/FaisParagraphe.h"

#include <algorithm>

namespace hote {

namespace {

constexpr int kSuggestionsMax = 8;
constexpr QChar kApostropheCourbe(0x2019);
constexpr int kMotsPourChoisir = 200; ///< of a paragraph, to choose a variant by
constexpr int kAvanceClaire = 8;      ///< words that one variant knows more than another
constexpr int kSigleMax = 6;          ///< letters
constexpr int kUneLettre = 2;         ///< as `DonneDistance` counts
constexpr int kMotClair = 5;          ///< letters, from where a slip leaves a word told from others
constexpr int kMotLong = 8;           ///< letters, where two slips are still the same word

/// Nothing but spaces, quotes and the like between the place and the beginning of a sentence.
bool EstDebutDePhrase(QString const& texte, int position) {
    for (int i = position - 1; i >= 0; --i) {
        QChar const unite = texte.at(i);
        if (unite.isLetterOrNumber() || unite == QLatin1Char(',') || unite == QLatin1Char(';')) {
            return false;
        }
        if (QStringLiteral(".!?…:\n").contains(unite)) {
            return true;
        }
    }
    return true;
}

int Eloigne(QString const& forme, QString const& suggestion) {
    return DonneDistance(forme.toLower(), suggestion.toLower());
}

/// Words cut in two with a letter left over ("until l") are nobody's meaning.
bool EstCoupee(QString const& suggestion) {
    QStringList const parties = suggestion.split(QLatin1Char(' '));
    return parties.size() > 1 &&
           std::any_of(parties.begin(), parties.end(), [](QString const& partie) {
               return partie.size() == 1 && !QStringLiteral("aàyoI").contains(partie);
           });
}

QStringList DonneSuggestions(Lexique& lexique, QString const& forme) {
    QStringList suggestions;
    for (QString const& suggestion : lexique.Suggere(forme)) {
        if (!EstCoupee(suggestion) && suggestions.size() < kSuggestionsMax) {
            suggestions.append(suggestion);
        }
    }
    return suggestions;
}

/// Is the first suggestion a word one slip away, and every other one further?
bool EstClaire(QString const& forme, QStringList const& suggestions) {
    if (suggestions.isEmpty() || forme.size() < kMotClair) {
        return false;
    }
    QString const& meilleure = suggestions.first();
    bool const mot =
        !meilleure.contains(QLatin1Char(' ')) && meilleure.at(0).isUpper() == forme.at(0).isUpper();
    int const premiere = Eloigne(forme, meilleure);
    return mot && premiere <= kUneLettre &&
           std::all_of(suggestions.begin() + 1, suggestions.end(),
                       [&](QString const& autre) { return Eloigne(forme, autre) > premiere; });
}

bool EstSigle(QString const& mot) {
    return mot.size() <= kSigleMax && mot == mot.toUpper();
}

} // namespace

/// A part of a word that its dictionary does not know.
struct MoteurHunspell::Inconnu {
    Mot place;
    QString mot;
    Lexique* lexique;
    QString langue;
    bool capitale;
    bool debutDePhrase;
};

MoteurHunspell::MoteurHunspell(std::vector<std::string> dossiers)
    : dictionnaires_(std::move(dossiers)) {}

QString MoteurHunspell::DonneNom() const {
    return QStringLiteral("hunspell");
}

bool MoteurHunspell::Juge(QString const& langue) const {
    return dictionnaires_.AUn(langue);
}

std::vector<Remarque> MoteurHunspell::Examine(ParagrapheAExaminer const& paragraphe,
                                              Arret const& arret) {
    QString const& texte = paragraphe.texte;
    std::vector<Inconnu> inconnus;
    auto const mots = DecoupeEnMots(texte);
    auto mot = mots.begin();
    for (EtendueDeLangue const& etendue : paragraphe.langues) {
        Lexique* const lexique = TrouveLexique(etendue.langue, texte, etendue);
        for (; mot != mots.end() && mot->debut < etendue.fin; ++mot) {
            if (lexique == nullptr || mot->debut < etendue.debut || mot->fin > etendue.fin) {
                continue;
            }
            std::vector<Mot> parties;
            JugeMot(*lexique, texte, *mot, parties);
            for (Mot const& partie : parties) {
                inconnus.push_back({partie, texte.mid(partie.debut, partie.fin - partie.debut),
                                    lexique, etendue.langue, texte.at(partie.debut).isUpper(),
                                    EstDebutDePhrase(texte, mot->debut)});
            }
        }
    }
    ApprendsNoms(texte, inconnus);
    std::vector<Remarque> remarques;
    for (Inconnu const& inconnu : inconnus) {
        Remarque remarque{};
        if (arret.EstDemande()) {
            break;
        }
        if (FaisRemarque(paragraphe, inconnu, remarque)) {
            remarques.push_back(remarque);
        }
    }
    return remarques;
}

Lexique* MoteurHunspell::TrouveLexique(QString const& langue, QString const& texte,
                                       EtendueDeLangue const& etendue) {
    if (langue.isEmpty() || langue.contains(QLatin1Char('-'))) {
        return langue.isEmpty() ? nullptr : dictionnaires_.Trouve(langue);
    }
    auto const variantes = dictionnaires_.TrouveVariantes(langue);
    if (variantes.size() < 2) {
        return variantes.empty() ? nullptr : variantes.front();
    }
    QString const partie = texte.mid(etendue.debut, etendue.fin - etendue.debut);
    int compte = 0;
    for (Mot const& mot : DecoupeEnMots(partie)) {
        QString const forme = DonneForme(partie.mid(mot.debut, mot.fin - mot.debut));
        for (Lexique* const lexique : variantes) {
            connus_[lexique] += lexique->Connait(forme) ? 1 : 0;
        }
        if (++compte == kMotsPourChoisir) {
            break;
        }
    }
    return *std::max_element(variantes.begin(), variantes.end(), [this](Lexique* a, Lexique* b) {
        return connus_.value(a) < connus_.value(b);
    });
}

/// A word of another country's, in a text that names none and has not shown clearly which is its
/// own.
bool MoteurHunspell::EstDUneAutreVariante(QString const& forme, Inconnu const& inconnu) {
    if (inconnu.langue.contains(QLatin1Char('-'))) {
        return false;
    }
    auto const variantes = dictionnaires_.TrouveVariantes(inconnu.langue);
    return std::any_of(variantes.begin(), variantes.end(), [&](Lexique* autre) {
        return autre != inconnu.lexique && autre->Connait(forme) &&
               connus_.value(inconnu.lexique) - connus_.value(autre) < kAvanceClaire;
    });
}

bool MoteurHunspell::EstConnuAilleurs(QString const& forme, Lexique const& lexique) {
    for (char const* langue : {"fr", "en", "de", "es", "it", "nl", "pt", "pl"}) {
        for (Lexique* const autre : dictionnaires_.TrouveVariantes(QString::fromLatin1(langue))) {
            if (autre != &lexique && autre->Connait(forme)) {
                return true;
            }
        }
    }
    return false;
}

void MoteurHunspell::ApprendsNoms(QString const& texte, std::vector<Inconnu> const& inconnus) {
    Q_UNUSED(texte)
    for (Inconnu const& inconnu : inconnus) {
        if (inconnu.capitale && !inconnu.debutDePhrase) {
            noms_.insert(DonneForme(inconnu.mot));
        }
    }
}

bool MoteurHunspell::FaisRemarque(ParagrapheAExaminer const& paragraphe, Inconnu const& inconnu,
                                  Remarque& remarque) {
    QString const forme = DonneForme(inconnu.mot);
    if (EstSigle(inconnu.mot) || EstDUneAutreVariante(forme, inconnu) ||
        (inconnu.capitale && EstConnuAilleurs(forme, *inconnu.lexique))) {
        return false;
    }
    QStringList suggestions = DonneSuggestions(*inconnu.lexique, forme);
    int const plafond = forme.size() >= kMotLong ? 2 * kUneLettre : kUneLettre;
    int const distance = suggestions.isEmpty() ? plafond + 1 : Eloigne(forme, suggestions.first());
    bool const nom = inconnu.capitale && (!inconnu.debutDePhrase || noms_.contains(forme));
    // Letters of another language, or no word near: a name, not a slip.
    bool const marquesEnPlus = !suggestions.isEmpty() && inconnu.capitale &&
                               OteMarques(suggestions.first()) == OteMarques(forme) &&
                               suggestions.first().size() == forme.size();
    if (inconnu.capitale && (distance > (nom ? kUneLettre : plafond) || (nom && marquesEnPlus))) {
        return false;
    }
    if (paragraphe.texte.contains(kApostropheCourbe)) {
        suggestions.replaceInStrings(QStringLiteral("'"), QString(kApostropheCourbe));
    }
    remarque.debut = inconnu.place.debut;
    remarque.fin = inconnu.place.fin;
    remarque.genre = GenreDeRemarque::Orthographe;
    remarque.regle = QLatin1String(nom ? kRegleNom : "mot-inconnu");
    remarque.explication = QString::fromStdString(
        nom ? Tr("« {1} » n’est dans aucun dictionnaire : est-ce un nom ?", inconnu.mot)
            : Tr("« {1} » n’est pas dans le dictionnaire.", inconnu.mot));
    remarque.suggestions = suggestions;
    remarque.surete = nom                             ? 0.2
                      : EstClaire(forme, suggestions) ? 0.9
                      : distance <= plafond           ? 0.7
                                                      : 0.5;
    return true;
}

} // namespace hote
