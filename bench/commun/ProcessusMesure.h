// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

namespace banc {

/// A child process that says something on a line of its own. Ended with its holder.
class Processus {
  public:
    /// Throws std::runtime_error when it cannot be started.
    Processus(QString const& programme, QStringList const& arguments);
    ~Processus();
    Processus(Processus const&) = delete;
    Processus& operator=(Processus const&) = delete;

    /// Its next line. Throws std::runtime_error when it ends without one.
    QString LisLigne();

    /// Stops it where it stands: it answers nothing any more. Its holder ends it all the same.
    void Fige();

    /// This program again.
    static QString Soi();

  private:
    QProcess processus_;
    bool estFige_ = false;
};

} // namespace banc
