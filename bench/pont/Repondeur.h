// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QDBusMessage>
#include <QObject>
#include <QString>

namespace banc {

/// The companion that the measures talk to: a process of its own that answers at once. The document
/// part of an identifier is the number of zones that its document has.
class Repondeur : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.ombrel.vocalyne.texteurs.openoffice.proxy.interface")

  public Q_SLOTS:
    void InitialiseTexteur(QString const& /*leId*/) {}
    bool PermetsRetourDeCharriot() { return true; }
    QString SynchronisePositions(QString const& leId);
    /// Answers after 100 ms, as an office does that has something else to do first.
    QString DonneTitreDocument(QDBusMessage const& appel);

  protected:
    void timerEvent(QTimerEvent* evenement) override;

  private:
    QDBusMessage enAttente_; ///< what is answered late
    QString identifiant_;
    QString document_;
};

/// Serves until its standard input ends. Prints a line once it can be called.
int Reponds(QString const& instance);

} // namespace banc
