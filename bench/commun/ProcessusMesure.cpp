// SPDX-License-Identifier: MPL-2.0
#include "ProcessusMesure.h"

#include <QCoreApplication>

#include <csignal>
#include <stdexcept>

namespace banc {

namespace {

constexpr int kPatience = 60000; // ms: far above what anything here takes

} // namespace

Processus::Processus(QString const& programme, QStringList const& arguments) {
    processus_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    processus_.start(programme, arguments);
    if (!processus_.waitForStarted(kPatience)) {
        throw std::runtime_error("cannot start " + programme.toStdString());
    }
}

Processus::~Processus() {
    if (estFige_) {
        processus_.kill();
    }
    processus_.closeWriteChannel();
    if (!processus_.waitForFinished(kPatience)) {
        processus_.kill();
        processus_.waitForFinished(kPatience);
    }
}

void Processus::Fige() {
    ::kill(static_cast<pid_t>(processus_.processId()), SIGSTOP);
    estFige_ = true;
}

QString Processus::LisLigne() {
    while (!processus_.canReadLine()) {
        if (!processus_.waitForReadyRead(kPatience)) {
            throw std::runtime_error(processus_.program().toStdString() +
                                     " did not say what was waited for");
        }
    }
    return QString::fromUtf8(processus_.readLine()).trimmed();
}

QString Processus::Soi() {
    return QCoreApplication::applicationFilePath();
}

} // namespace banc
