// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <map>
#include <vector>

/// What the scripted plug-in plays: a document, and events at given calls. The script is the JSON
/// file that the environment's VOCALYNE_GREFFON_FAUX names:
///
/// {"titre":…, "zones":[{"texte":…,"styles":[[start,length,style],…]},…],
///  "evenements":[{"op":name, "appel":which call (all when missing), …what happens}],
///  "journal":file}
///
/// What happens, in this order: `zones` (the document becomes another), `mort` (the document is
/// gone from now on), `leve` (std::runtime_error with that text), `leveEntier` (an int is thrown),
/// `avertis` (an alert with that text), `imprime` (a line on standard output), `reponse` (the
/// operation's answer instead of its own), `ignore` (the call has no effect). When the agent ends,
/// the journal gets `{"zones":[…],"appels":[…]}`: the document as it then is, and every call.
class Scenario {
  public:
    static Scenario& Donne();

    /// A call of `operation`: plays its events and gives what they leave to the caller to do.
    QJsonObject Joue(char const* operation);

    void EcrisJournal() const;

    struct Zone {
        QString texte;
        QJsonArray styles;
    };
    std::vector<Zone> zones;
    QString titre;
    bool mort = false;

  private:
    Scenario();
    void MetsZones(QJsonArray const& liste);

    QJsonArray evenements_;
    QString journal_;
    QStringList appels_;
    std::map<QString, int> compte_;
};
