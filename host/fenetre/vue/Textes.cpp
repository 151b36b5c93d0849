// SPDX-License-Identifier: MPL-2.0
#include "Textes.h"

#include "commun/MessagesHote.h"
#include "langue/Contexte.h"

#include <QTextBoundaryFinder>

namespace hote {

QString DonneNomDuGenre(GenreDeRemarque genre) {
    switch (genre) {
    case GenreDeRemarque::Orthographe:
        return EnQt(Tr("Orthographe"));
    case GenreDeRemarque::Accord:
        return EnQt(Tr("Accord"));
    case GenreDeRemarque::Confusion:
        return EnQt(Tr("Confusion"));
    case GenreDeRemarque::Typographie:
        return EnQt(Tr("Typographie"));
    case GenreDeRemarque::Repetition:
        return EnQt(Tr("Répétition"));
    case GenreDeRemarque::Style:
        return EnQt(Tr("Style"));
    }
    return {};
}

PhraseMontree DonnePhrase(QString const& paragraphe, int debut, int fin) {
    QTextBoundaryFinder phrases(QTextBoundaryFinder::Sentence, paragraphe);
    phrases.setPosition(debut);
    int const depart = phrases.isAtBoundary() ? debut : std::max(phrases.toPreviousBoundary(), 0);
    phrases.setPosition(std::max(debut, fin - 1));
    int const suivante = phrases.toNextBoundary();
    int const arrivee = suivante < fin ? paragraphe.size() : suivante;
    auto const montre = [&paragraphe](int de, int a) {
        QString texte = paragraphe.mid(de, a - de);
        return DonnePourTerminal(texte.replace(QLatin1Char('\n'), QLatin1Char(' ')));
    };
    QString const avant = montre(depart, debut);
    QString const extrait = montre(debut, fin);
    QString apres = montre(fin, arrivee);
    while (apres.endsWith(QLatin1Char(' '))) {
        apres.chop(1);
    }
    return {avant + extrait + apres, avant.size(), avant.size() + extrait.size()};
}

QString DonneLigne(RemarqueMontree const& remarque) {
    QString const extrait = DonnePourTerminal(remarque.DonneExtrait());
    QString const genre = DonneNomDuGenre(remarque.remarque.genre);
    return remarque.endroit.isEmpty()
               ? EnQt(Tr("{1} : « {2} »", genre, extrait))
               : EnQt(Tr("{1}, {2} : « {3} »", genre, remarque.endroit, extrait));
}

} // namespace hote
