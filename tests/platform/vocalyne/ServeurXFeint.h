// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QByteArray>
#include <QString>

#include <atomic>

#include <thread>

/// Something that listens where an X server would and answers each connection with `reponse`
/// (nothing: it hangs up), for the life of the object.
class ServeurXFeint {
  public:
    explicit ServeurXFeint(QByteArray reponse);
    ~ServeurXFeint();
    ServeurXFeint(ServeurXFeint const&) = delete;
    ServeurXFeint& operator=(ServeurXFeint const&) = delete;

    /// The value of DISPLAY that leads here.
    QString DonneAffichage() const { return QStringLiteral(":%1").arg(numero_); }
    /// How many connections came; to be asked after the clients ended.
    int DonneConnexions() const { return connexions_; }

  private:
    void Sers();

    QByteArray reponse_;
    int numero_ = 0;
    int prise_ = -1;
    std::atomic<int> connexions_{0};
    std::thread fil_;
};
