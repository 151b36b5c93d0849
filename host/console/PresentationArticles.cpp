// SPDX-License-Identifier: MPL-2.0
#include "PresentationArticles.h"

#include "langue/Contexte.h"

namespace hote {

namespace {

std::string Montre(QString const& texte) {
    return DonnePourTerminal(texte).toStdString();
}

} // namespace

std::string DonneArticlesTexte(ArticlesTrouves const& recherche, Couleurs const& couleurs,
                               bool numerote) {
    std::string texte;
    int numero = 0;
    for (Article const& article : recherche.articles) {
        texte += '\n' + Montre(article.entree) + '\n';
        for (Sens const& sens : article.sens) {
            texte += "  ";
            if (!sens.genre.isEmpty()) {
                texte += couleurs.Attenue('(' + Montre(sens.genre) + ')') + ' ';
            }
            bool premier = true;
            for (Synonyme const& synonyme : sens.synonymes) {
                texte += premier ? "" : numerote ? "  " : ", ";
                premier = false;
                if (numerote) {
                    texte += couleurs.Attenue(std::to_string(++numero)) + ' ';
                }
                texte += couleurs.MarqueCorrection(Montre(synonyme.mot));
                if (!synonyme.note.isEmpty()) {
                    texte += ' ' + couleurs.Attenue('(' + Montre(synonyme.note) + ')');
                }
            }
            texte += '\n';
        }
    }
    return texte;
}

Synonyme const* TrouveSynonyme(ArticlesTrouves const& recherche, int numero) {
    for (Article const& article : recherche.articles) {
        for (Sens const& sens : article.sens) {
            int const nombre = static_cast<int>(sens.synonymes.size());
            if (numero >= 1 && numero <= nombre) {
                return &sens.synonymes[static_cast<std::size_t>(numero - 1)];
            }
            numero -= nombre;
        }
    }
    return nullptr;
}

int CompteSynonymes(ArticlesTrouves const& recherche) {
    std::size_t nombre = 0;
    for (Article const& article : recherche.articles) {
        for (Sens const& sens : article.sens) {
            nombre += sens.synonymes.size();
        }
    }
    return static_cast<int>(nombre);
}

} // namespace hote
