// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Journal.h"
#include "Personne.h"

#include <QHash>
#include <QObject>
#include <QString>

#include <deque>
#include <functional>

/// What an office that misbehaves on purpose does with a call: keeps the journal, types in between,
/// and answers as its rules say. See the control interface's description.
class Dereglements : public QObject {
    Q_OBJECT

  public:
    enum class Comment {
        Muet,
        Lent,
        Erreur,
        Refuse,
        SansArgument,
        Texte,
        Entier,
        Booleen,
        Variante,
        Tableau,
        Taille,
        Meurs,
        Quitte
    };

    explicit Dereglements(compagnon::Bureau& bureau)
        : personne_(bureau) {}

    /// False when `comment` or `detail` is none that there is.
    bool Ajoute(QString const& methode, QString const& comment, QString const& detail, int fois);
    void Retablis();

    /// Typed right before the next call of `methode`; false past 1,000 in waiting.
    bool TapeAvant(QString const& methode, std::string zone, compagnon::Intervalle plage,
                   std::u16string texte);

    Journal& DonneJournal() noexcept { return journal_; }

    /// A call has come in. True: it is answered from here, now, later or never; `sers` does the
    /// work and gives the proper reply, at the time it is called. False: it is to be served as
    /// usual.
    bool Prends(QDBusMessage const& appel, QDBusConnection const& connexion,
                std::function<QDBusMessage()> const& sers);

  Q_SIGNALS:
    void QuitteLeNom();

  private:
    struct Regle {
        Comment comment;
        QString detail;
        int nombre; // of the detail, where it is one
        int fois;   // 0: without end
    };
    struct Frappe {
        QString methode;
        std::string zone;
        compagnon::Intervalle plage;
        std::u16string texte;
    };
    bool PrendsRegle(QString const& methode, Regle& regle);
    void TapeCeQuiAttend(QString const& methode);
    void Applique(Regle const& regle, QDBusMessage const& appel, QDBusConnection const& connexion,
                  std::function<QDBusMessage()> const& sers);

    Personne personne_;
    Journal journal_;
    QHash<QString, Regle> regles_;
    std::deque<Frappe> frappes_;
};
