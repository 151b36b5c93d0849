// SPDX-License-Identifier: MPL-2.0
#include "MoteurRegles.h"

#include "Confusions.h"
#include "commun/MessagesHote.h"
#include "moteurs/FaisParagraphe.h"

#include <QRegularExpression>
#include <QSet>

namespace hote {

namespace {

constexpr double kSur = 0.95;
constexpr double kPeuSur = 0.6;

/// Goes through the places that an expression finds.
class Fouille {
  public:
    Fouille(ParagrapheAExaminer const& paragraphe, std::vector<Remarque>& remarques)
        : paragraphe_(paragraphe)
        , remarques_(remarques) {}

    template <class Fonction>
    void Cherche(QRegularExpression const& expression, Fonction fonction) const {
        auto trouves = expression.globalMatch(paragraphe_.texte);
        while (trouves.hasNext()) {
            fonction(trouves.next());
        }
    }

    void Note(int debut, int fin, GenreDeRemarque genre, char const* regle,
              std::string const& explication, QString const& suggestion, double surete) const {
        Remarque remarque{};
        remarque.debut = debut;
        remarque.fin = fin;
        remarque.genre = genre;
        remarque.regle = QLatin1String(regle);
        remarque.explication = QString::fromStdString(explication);
        remarque.suggestions = QStringList(suggestion);
        remarque.surete = surete;
        remarques_.push_back(remarque);
    }

    QString DonneLangue(int position) const {
        for (EtendueDeLangue const& etendue : paragraphe_.langues) {
            if (position < etendue.fin) {
                return etendue.langue;
            }
        }
        return {};
    }

  private:
    ParagrapheAExaminer const& paragraphe_;
    std::vector<Remarque>& remarques_;
};

QRegularExpression Fais(char const* motif) {
    return QRegularExpression(QString::fromUtf8(motif),
                              QRegularExpression::UseUnicodePropertiesOption);
}

/// Words that good sentences have twice in a row.
bool PeutSeRepeter(QString const& mot, QString const& langue) {
    static QSet<QString> const francais = {
        QStringLiteral("nous"), QStringLiteral("vous"), QStringLiteral("bla"),
        QStringLiteral("si"),   QStringLiteral("non"),  QStringLiteral("oui"),
        QStringLiteral("très"), QStringLiteral("ha"),   QStringLiteral("hé"),
        QStringLiteral("bon"),  QStringLiteral("cha"),  QStringLiteral("faire"),
        QStringLiteral("en"),
    };
    static QSet<QString> const anglais = {
        QStringLiteral("had"),    QStringLiteral("that"), QStringLiteral("is"),
        QStringLiteral("her"),    QStringLiteral("no"),   QStringLiteral("very"),
        QStringLiteral("so"),     QStringLiteral("bye"),  QStringLiteral("blah"),
        QStringLiteral("ha"),     QStringLiteral("now"),  QStringLiteral("there"),
        QStringLiteral("do"),     QStringLiteral("you"),  QStringLiteral("it"),
        QStringLiteral("really"), QStringLiteral("in"),   QStringLiteral("on"),
        QStringLiteral("long"),   QStringLiteral("far"),  QStringLiteral("who"),
    };
    return (DonneLangueSansPays(langue) == QLatin1String("fr") ? francais : anglais).contains(mot);
}

void ChercheRepetitions(Fouille const& fouille) {
    static auto const expression =
        Fais("(?<![\\w'’\\-])(\\p{L}{2,})([ \\x{A0}]+)(\\1)(?![\\w'’\\-])");
    static auto const sansCasse = [] {
        auto e = expression;
        e.setPatternOptions(e.patternOptions() | QRegularExpression::CaseInsensitiveOption);
        return e;
    }();
    fouille.Cherche(sansCasse, [&](QRegularExpressionMatch const& trouve) {
        QString const mot = trouve.captured(1);
        bool const nom = mot.at(0).isUpper() && trouve.captured(3).at(0).isUpper();
        if (nom || PeutSeRepeter(mot.toLower(), fouille.DonneLangue(trouve.capturedStart()))) {
            return;
        }
        fouille.Note(trouve.capturedStart(), trouve.capturedEnd(), GenreDeRemarque::Repetition,
                     "mot-double", Tr("« {1} » est écrit deux fois.", mot.toLower()), mot, kSur);
    });
}

void ChercheEspaces(Fouille const& fouille) {
    // Two after a sentence's end are a typist's custom, and many together line things up.
    static auto const doubles = Fais("(?<=[^\\s.!?:…])[ ]{2,3}(?=\\S)");
    fouille.Cherche(doubles, [&](QRegularExpressionMatch const& trouve) {
        fouille.Note(trouve.capturedStart(), trouve.capturedEnd(), GenreDeRemarque::Typographie,
                     "espaces-doubles", Tr("Il y a plusieurs espaces de suite."),
                     QStringLiteral(" "), kSur);
    });
    static auto const avant = Fais("(?<=[\\p{L}\\d)»”])[ \\x{A0}]+([,.])(?=\\s|$)");
    fouille.Cherche(avant, [&](QRegularExpressionMatch const& trouve) {
        fouille.Note(trouve.capturedStart(), trouve.capturedEnd(), GenreDeRemarque::Typographie,
                     "espace-avant", Tr("Pas d’espace avant « {1} ».", trouve.captured(1)),
                     trouve.captured(1), kSur);
    });
    static auto const apres =
        Fais("(?<=\\p{L}),(?=\\p{L})|(?<=\\p{Ll}{2})[.](?=\\p{Lu}\\p{Ll}*[\\s,'’])");
    fouille.Cherche(apres, [&](QRegularExpressionMatch const& trouve) {
        fouille.Note(trouve.capturedStart(), trouve.capturedEnd(), GenreDeRemarque::Typographie,
                     "espace-apres", Tr("Il manque une espace après « {1} ».", trouve.captured()),
                     trouve.captured() + QLatin1Char(' '), kPeuSur);
    });
}

/// Has the country's custom a space before this mark?
bool VeutUneEspace(QString const& langue, QChar signe) {
    return !langue.endsWith(QLatin1String("-CA")) || signe == QLatin1Char(':');
}

void ChercheEspacesFrancaises(Fouille const& fouille) {
    static auto const sans = Fais("(?<=\\p{L}{2})[:;!?](?=\\s|$)");
    fouille.Cherche(sans, [&](QRegularExpressionMatch const& trouve) {
        QString const langue = fouille.DonneLangue(trouve.capturedStart());
        QString const signe = trouve.captured();
        if (DonneLangueSansPays(langue) == QLatin1String("fr") &&
            VeutUneEspace(langue, signe.at(0))) {
            fouille.Note(trouve.capturedStart(), trouve.capturedEnd(), GenreDeRemarque::Typographie,
                         "espace-francaise", Tr("Il manque une espace avant « {1} ».", signe),
                         QChar(signe == QLatin1String(":") ? 0x00A0 : 0x202F) + signe, kPeuSur);
        }
    });
    static auto const avec = Fais("(?<=\\p{L})[ \\x{A0}\\x{202F}]([;!?])(?=\\s|$)");
    fouille.Cherche(avec, [&](QRegularExpressionMatch const& trouve) {
        QString const langue = fouille.DonneLangue(trouve.capturedStart());
        QString const signe = trouve.captured(1);
        if (langue == QLatin1String("fr-CA")) {
            fouille.Note(trouve.capturedStart(), trouve.capturedEnd(), GenreDeRemarque::Typographie,
                         "espace-francaise", Tr("Pas d’espace avant « {1} ».", signe), signe,
                         kPeuSur);
        }
    });
}

} // namespace

QString MoteurRegles::DonneNom() const {
    return QStringLiteral("regles");
}

bool MoteurRegles::Juge(QString const& langue) const {
    QString const seule = DonneLangueSansPays(langue);
    return seule == QLatin1String("fr") || seule == QLatin1String("en");
}

std::vector<Remarque> MoteurRegles::Examine(ParagrapheAExaminer const& paragraphe,
                                            Arret const& /*arret*/) {
    std::vector<Remarque> remarques;
    Fouille const fouille(paragraphe, remarques);
    ChercheRepetitions(fouille);
    ChercheEspaces(fouille);
    ChercheConfusions(paragraphe, remarques);
    if (espacesFrancaises_) {
        ChercheEspacesFrancaises(fouille);
    }
    return remarques;
}

} // namespace hote
