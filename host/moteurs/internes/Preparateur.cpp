// SPDX-License-Identifier: MPL-2.0
#include "Preparateur.h"

#include "langue/Adresses.h"
#include "langue/Decoupeur.h"
#include "moteurs/FaisParagraphe.h"

#include <QRegularExpression>

#include <algorithm>

namespace hote {

namespace {

constexpr int kMotsDUneCitation = 2;
constexpr int kMotsDUnePhrase = 4;
constexpr double kPartEtrangere = 0.8;  ///< known words of a text in the right language
constexpr double kEcart = 0.15;         ///< by which another language must know more
constexpr double kPartHorsLangue = 0.4; ///< of one in a language that nobody knows

QRegularExpression Fais(char const* motif) {
    return QRegularExpression(QString::fromUtf8(motif),
                              QRegularExpression::UseUnicodePropertiesOption);
}

/// Stretches without spaces that are a program's words, or a thing's number.
bool EstCode(QString const& morceau) {
    static auto const code =
        Fais("\\p{Ll}\\p{Lu}(?=\\p{L})|\\p{Ll}{3,}\\p{Lu}\\b" // camelCase
             "|\\b\\p{Lu}+[-/.]?\\d|\\d[-/]?\\p{Lu}{1,3}\\b"  // REF-2026-A
             "|\\w\\.(?:cpp|hpp|py|js|ts|ya?ml|json|xml|csv|sh|css|conf|ini|svg|gif|mp[34]|exe|"
             "deb|tar|gz|od[sp]|pptx?|md|log|sql)\\b"
             "|^--?[a-z][\\w-]*$|\\w::\\w|->\\w|[{}<>=]{2}|\\$\\w");
    return code.match(morceau).hasMatch();
}

QStringList DonneFormes(QString const& texte) {
    QStringList formes;
    for (Mot const& mot : DecoupeEnMots(texte)) {
        formes.append(DonneForme(texte.mid(mot.debut, mot.fin - mot.debut)));
    }
    return formes;
}

/// The language of the whole of [debut, fin); nothing when it is in several, or not to be judged.
QString DonneLangue(ParagrapheAExaminer const& paragraphe, int debut, int fin) {
    for (EtendueDeLangue const& etendue : paragraphe.langues) {
        if (etendue.debut <= debut && fin <= etendue.fin) {
            return etendue.langue;
        }
    }
    return {};
}

} // namespace

void Preparateur::Prepare(ParagrapheAExaminer& paragraphe) {
    ChercheEtrangers(paragraphe);
    ExclusLeCode(paragraphe);
}

void Preparateur::ExclusLeCode(ParagrapheAExaminer& paragraphe) const {
    static auto const morceaux = Fais("[^\\s\\x07\\x11]+");
    auto trouves = morceaux.globalMatch(paragraphe.texte);
    while (trouves.hasNext()) {
        auto const trouve = trouves.next();
        QString const morceau = trouve.captured();
        if (EstTechnique(QStringRef(&morceau)) || EstCode(morceau)) {
            MetsLangue(paragraphe, trouve.capturedStart(), trouve.capturedEnd(), {});
        }
    }
    static auto const apostrophes = Fais("`[^`\\n]+`");
    trouves = apostrophes.globalMatch(paragraphe.texte);
    while (trouves.hasNext()) {
        auto const trouve = trouves.next();
        MetsLangue(paragraphe, trouve.capturedStart(), trouve.capturedEnd(), {});
    }
}

void Preparateur::ChercheEtrangers(ParagrapheAExaminer& paragraphe) {
    static auto const phrases = Fais("[^.!?…\\n]+[.!?…]*");
    static auto const citations =
        Fais("«[^«»\\n]+»|“[^“”\\n]+”|\"[^\"\\n]+\"|‘[^‘’\\n]+’|\\([^()\\n]+\\)");
    for (bool const citation : {false, true}) {
        auto trouves = (citation ? citations : phrases).globalMatch(paragraphe.texte);
        while (trouves.hasNext()) {
            auto const trouve = trouves.next();
            QString const langue =
                DonneLangue(paragraphe, trouve.capturedStart(), trouve.capturedEnd());
            auto const vraie =
                langue.isEmpty() ? std::nullopt : DevineLangue(trouve.captured(), langue, citation);
            if (vraie) {
                MetsLangue(paragraphe, trouve.capturedStart(), trouve.capturedEnd(), *vraie);
            }
        }
    }
}

std::optional<QString> Preparateur::DevineLangue(QString const& partie, QString const& langue,
                                                 bool citation) {
    QStringList const formes = DonneFormes(partie);
    if (formes.size() < (citation ? kMotsDUneCitation : kMotsDUnePhrase)) {
        return std::nullopt;
    }
    double const sienne = DonnePartConnue(formes, langue);
    if (sienne < 0 || sienne >= (citation ? 1.0 : kPartEtrangere)) {
        return std::nullopt;
    }
    QString const seule = DonneLangueSansPays(langue);
    QString meilleure;
    double part = std::max(kPartEtrangere, sienne + kEcart);
    for (char const* autre : {"fr", "en", "de", "es", "it", "nl", "pt"}) {
        QString const etiquette = QLatin1String(autre);
        double const connue = etiquette == seule ? -1 : DonnePartConnue(formes, etiquette);
        if (connue >= part) {
            part = connue;
            meilleure = etiquette;
        }
    }
    if (!meilleure.isEmpty()) {
        return meilleure;
    }
    bool const aucune = citation && formes.size() > kMotsDUneCitation && sienne <= kPartHorsLangue;
    return aucune ? std::make_optional(QString()) : std::nullopt;
}

double Preparateur::DonnePartConnue(QStringList const& formes, QString const& langue) {
    auto lexiques = dictionnaires_.TrouveVariantes(DonneLangueSansPays(langue));
    if (lexiques.empty()) {
        return -1;
    }
    auto const connues = std::count_if(formes.begin(), formes.end(), [&](QString const& forme) {
        return std::any_of(lexiques.begin(), lexiques.end(),
                           [&](Lexique* lexique) { return lexique->Connait(forme); });
    });
    return static_cast<double>(connues) / formes.size();
}

} // namespace hote
