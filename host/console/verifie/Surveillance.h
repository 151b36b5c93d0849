// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "BilanVerification.h"

#include <QProcess>
#include <QStringList>

namespace hote {

/// Runs one trial in a process of its own, this program started anew, and takes down what it tells;
/// a connector that crashes there, ends the process or never comes back is a breach like others.
/// Main thread.
class Surveillance {
  public:
    /// `delaiMs`: how long one call may take; 0 for what the contract says (four minutes for an
    /// agent, half a minute for the rest).
    Surveillance(BilanVerification& bilan, int delaiMs)
        : bilan_(bilan)
        , delaiMs_(delaiMs) {}

    /// Blocks until the trial that `arguments` start is over.
    void Execute(QStringList const& arguments);

  private:
    int DonneDelai() const;
    bool Ecoute(QProcess& processus);
    void Recois(QByteArray const& ligne);
    void SignalePanne(QProcess const& processus);

    BilanVerification& bilan_;
    int delaiMs_;
    QString regle_;
    QString operation_;
    bool finie_ = false;
};

} // namespace hote
