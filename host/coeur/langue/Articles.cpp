// SPDX-License-Identifier: MPL-2.0
#include "Articles.h"

#include <algorithm>

namespace hote {

namespace {

/// The range without the white space at its ends.
Mot Rogne(QString const& texte, Mot plage) {
    while (plage.debut < plage.fin && texte.at(plage.debut).isSpace()) {
        ++plage.debut;
    }
    while (plage.fin > plage.debut && texte.at(plage.fin - 1).isSpace()) {
        --plage.fin;
    }
    return plage;
}

Mot DonneMotAu(QString const& texte, int position) {
    for (Mot const& mot : DecoupeEnMots(texte)) {
        if (mot.debut <= position && position <= mot.fin) {
            return mot;
        }
    }
    return {position, position};
}

void AjouteUneFois(QStringList& liste, QString const& forme) {
    if (!forme.isEmpty() && !liste.contains(forme)) {
        liste.append(forme);
    }
}

std::vector<Article> DonneArticles(QString const& brut, Thesaurus& thesaurus, Lexique& lexique) {
    QString const forme = DonneForme(brut);
    QStringList entrees;
    AjouteUneFois(entrees, forme);
    AjouteUneFois(entrees, forme.toLower());
    for (QString const& ecrite : QStringList(entrees)) {
        for (QString const& racine : lexique.DonneRacines(ecrite)) {
            AjouteUneFois(entrees, racine);
        }
    }
    std::vector<Article> articles;
    for (QString const& entree : entrees) {
        Article article{entree, thesaurus.Cherche(entree)};
        if (!article.sens.empty()) {
            articles.push_back(std::move(article));
        }
    }
    return articles;
}

/// Behind the word's last apostrophe; the word's own start when it has none.
int DonneFinElision(QString const& texte, Mot const& mot) {
    for (int i = mot.fin - 1; i > mot.debut; --i) {
        if (EstApostrophe(texte.at(i - 1))) {
            return i;
        }
    }
    return mot.debut;
}

} // namespace

ArticlesTrouves ChercheArticles(QString const& texte, int debut, int fin, Thesaurus& thesaurus,
                                Lexique& lexique) {
    int const taille = texte.size();
    debut = std::clamp(debut, 0, taille);
    fin = std::clamp(fin, debut, taille);
    Mot const mot = debut == fin ? DonneMotAu(texte, debut) : Rogne(texte, {debut, fin});
    ArticlesTrouves recherche{mot, {}};
    if (mot.debut == mot.fin) {
        return recherche;
    }
    auto const morceau = [&](Mot const& m) { return texte.mid(m.debut, m.fin - m.debut); };
    recherche.articles = DonneArticles(morceau(mot), thesaurus, lexique);
    Mot const sansElision{DonneFinElision(texte, mot), mot.fin};
    if (recherche.articles.empty() && sansElision.debut > mot.debut) {
        recherche.articles = DonneArticles(morceau(sansElision), thesaurus, lexique);
        if (!recherche.articles.empty()) {
            recherche.mot = sansElision;
        }
    }
    return recherche;
}

QString DonneCasse(QString const& synonyme, QString const& mot) {
    bool const minuscule = mot == mot.toLower();
    if (minuscule || mot.isEmpty() || synonyme.isEmpty()) {
        return synonyme;
    }
    if (mot == mot.toUpper() && mot.size() > 1) {
        return synonyme.toUpper();
    }
    // A single code unit in both scripts that are proofed.
    return mot.at(0).isUpper() ? synonyme.left(1).toUpper() + synonyme.mid(1) : synonyme;
}

} // namespace hote
