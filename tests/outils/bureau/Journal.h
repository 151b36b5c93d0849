// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QHash>
#include <QString>

#include <vector>

/// The calls received, in order, and those who wait for a number of them. Bounded.
class Journal {
  public:
    static constexpr std::size_t kAppelsMax = 10000;
    static constexpr int kUnitesMax = 4096;

    void Note(QDBusMessage const& appel);
    void Vide();
    /// A JSON array, as the control interface's description says.
    QString Donne() const;
    /// Calls of a method since the journal was last emptied; "*" counts all.
    int Nombre(QString const& methode) const;

    /// `demande` is answered with the count once it reaches `nombre`.
    void Attends(QDBusMessage const& demande, QDBusConnection const& connexion,
                 QString const& methode, int nombre);

  private:
    struct Attente {
        QDBusMessage demande;
        QDBusConnection connexion;
        QString methode;
        int nombre;
    };
    void Reponds();

    std::vector<QDBusMessage> appels_;
    QHash<QString, int> nombres_;
    std::vector<Attente> attentes_;
};
