// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "fenetre/echange/MotsDuCurseur.h"
#include "fenetre/modele/Liaison.h"

#include <QElapsedTimer>
#include <QJsonObject>
#include <QProcess>
#include <QTimer>

namespace hote {

/// A document reached through a process of its own, which holds the plug-in. When that ends, by
/// whatever fate of document, office or bus, it is started anew every few seconds until the
/// document, or one in the same file, is there again. Reads the document again and again, at
/// intervals that leave the office in peace.
class LiaisonProcessus : public Liaison {
    Q_OBJECT

  public:
    /// How to start the process: a program and its arguments, behind which come the document and
    /// the path that it had when it was last open (may be empty).
    struct Programme {
        QString chemin;
        QStringList avant; ///< arguments before the document
        QStringList apres; ///< arguments behind it
    };

    LiaisonProcessus(Programme programme, QString id, QObject* parent = nullptr);
    /// Lets the process break its links, for a second at most.
    ~LiaisonProcessus() override;
    LiaisonProcessus(LiaisonProcessus const&) = delete;
    LiaisonProcessus& operator=(LiaisonProcessus const&) = delete;

    void Demarre();

    void Lis() override;
    void Nomme() override;
    void Corrige(quint64 jeton, int paragraphe, int debut, QString const& avant,
                 QString const& apres) override;
    void Selectionne(int paragraphe, int debut, int fin) override;

    /// Asks what is known of the word at the caret: `MotsTrouves`.
    void ChercheMots();
    /// Puts `nouveau` in that word's place, provided that the selection is still the one told, and
    /// leaves it selected: `MotRemplace`.
    void RemplaceMot(MotsDuCurseur const& mots, QString const& nouveau);

  Q_SIGNALS:
    void MotsTrouves(hote::MotsDuCurseur const& mots);
    void MotRemplace(bool fait);
    /// The document takes long to answer, or answers again.
    void Attend(bool longtemps);

  private:
    void Envoie(QJsonObject const& requete, bool reponse);
    void RecoisLignes();
    void Recois(QJsonObject const& reponse);
    void RecoisLecture(QJsonObject const& reponse);
    void RecoisFin();
    void MetsAttente(int nombre);

    Programme programme_;
    QString id_;
    QString chemin_;
    QString raison_;
    QProcess* processus_ = nullptr;
    QTimer reprise_; ///< until the process is started anew
    QTimer lecture_; ///< until the next reading
    QTimer patience_;
    Lecture lue_;
    int version_ = 0;
    int enAttente_ = 0; ///< requests not answered
    bool lisBientot_ = false;
    bool ouverte_ = false;
};

} // namespace hote
