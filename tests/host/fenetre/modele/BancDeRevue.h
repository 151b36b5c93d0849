// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "fenetre/modele/Revue.h"

#include <gtest/gtest.h>

#include <map>

namespace hote {

inline QString Q(char const* texte) {
    return QString::fromUtf8(texte);
}

/// A document that answers when it is told to.
class LiaisonFausse : public Liaison {
    Q_OBJECT

  public:
    struct Demande {
        quint64 jeton;
        int paragraphe;
        int debut;
        QString avant;
        QString apres;
    };

    void Lis() override { ++lectures; }
    void Nomme() override { ++noms; }
    void Corrige(quint64 jeton, int paragraphe, int debut, QString const& avant,
                 QString const& apres) override {
        demandes.push_back({jeton, paragraphe, debut, avant, apres});
    }
    void Selectionne(int paragraphe, int debut, int fin) override {
        selection = {paragraphe, debut, fin};
    }

    void DonneLecture(QStringList const& textes, PlaceDuCurseur endroit = {}) {
        Lecture lecture;
        for (QString const& texte : textes) {
            lecture.paragraphes.push_back({texte, {{0, texte.size(), Q("fr")}}});
        }
        lecture.endroit = endroit;
        Q_EMIT Lue(lecture);
    }
    /// Answers the oldest correction.
    void Reponds(IssueDeCorrection issue, QString const& raison = {}) {
        quint64 const jeton = demandes.front().jeton;
        demandes.erase(demandes.begin());
        Q_EMIT Corrigee(jeton, issue, raison);
    }

    std::vector<Demande> demandes;
    PlaceDuCurseur selection;
    int lectures = 0;
    int noms = 0;
};

/// An engine that finds fault with every word that holds an "x", when it is told to.
class VerificateurFaux : public Verificateur {
    Q_OBJECT

  public:
    quint64 Demande(ParagrapheAExaminer const& paragraphe, int priorite) override {
        enCours[++dernier] = {paragraphe.texte, priorite};
        return dernier;
    }
    void Annule(quint64 jeton) override { enCours.erase(jeton); }

    /// Examines what is asked for, in the order of its priorities; at most so many paragraphs.
    void Travaille(int nombre = 1000) {
        while (nombre-- > 0 && !enCours.empty()) {
            auto choisi = enCours.begin();
            for (auto it = enCours.begin(); it != enCours.end(); ++it) {
                choisi = it->second.second < choisi->second.second ? it : choisi;
            }
            quint64 const jeton = choisi->first;
            QString const texte = choisi->second.first;
            enCours.erase(choisi);
            Q_EMIT Trouvees(jeton, Q("essai"), Cherche(texte));
            Q_EMIT Examine(jeton);
        }
    }

    std::map<quint64, std::pair<QString, int>> enCours;
    quint64 dernier = 0;

    static std::vector<Remarque> Cherche(QString const& texte) {
        std::vector<Remarque> remarques;
        int debut = 0;
        for (QString const& mot : texte.split(QLatin1Char(' '))) {
            if (mot.contains(QLatin1Char('x'))) {
                remarques.push_back({debut,
                                     debut + mot.size(),
                                     GenreDeRemarque::Orthographe,
                                     Q("essai"),
                                     Q("mot"),
                                     Q("pourquoi"),
                                     {Q("bon")},
                                     1});
            }
            debut += mot.size() + 1;
        }
        return remarques;
    }
};

class BancDeRevue : public ::testing::Test {
  protected:
    /// Reads and examines a document of these paragraphs.
    void Ouvre(QStringList const& textes, PlaceDuCurseur endroit = {}) {
        liaison.DonneLecture(textes, endroit);
        verificateur.Travaille();
    }
    QString DonneMot(quint64 id) const {
        auto const remarque = revue.Donne(id);
        return remarque ? remarque->DonneExtrait() : QString();
    }
    QString DonneCourant() const { return DonneMot(revue.DonneCourante()); }
    QStringList DonneFile() const {
        QStringList mots;
        for (quint64 const id : revue.DonneFile()) {
            mots.append(DonneMot(id));
        }
        return mots;
    }

    LiaisonFausse liaison;
    VerificateurFaux verificateur;
    Revue revue{liaison, verificateur};
};

} // namespace hote
