// SPDX-License-Identifier: MPL-2.0
#include "Surveillance.h"

#include "commun/ErreurHote.h"
#include "commun/MessagesHote.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

namespace hote {

namespace {

constexpr int kDelaiCreationMs = 250'000;
constexpr int kDelaiMs = 30'000;

} // namespace

int Surveillance::DonneDelai() const {
    if (delaiMs_ > 0) {
        return delaiMs_;
    }
    return operation_ == QLatin1String("CreeAgentTexteur") ? kDelaiCreationMs : kDelaiMs;
}

void Surveillance::Execute(QStringList const& arguments) {
    regle_.clear();
    operation_.clear();
    finie_ = false;
    QProcess processus;
    processus.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QString const programme = QCoreApplication::applicationFilePath();
    processus.start(programme, arguments, QIODevice::ReadOnly);
    if (!processus.waitForStarted()) {
        throw ErreurHote(kSortieInterne,
                         Tr("{1} ne se lance pas : {2}", programme, processus.errorString()));
    }
    bool const attendue = Ecoute(processus);
    if (!attendue) {
        bilan_.Viole(QStringLiteral("appels.attente"),
                     QString::fromStdString(
                         Tr("{1} n’a pas rendu la main (règle {2}).", operation_, regle_)),
                     operation_, true);
        processus.kill();
    }
    processus.waitForFinished(-1);
    if (attendue && (!finie_ || processus.exitStatus() == QProcess::CrashExit)) {
        SignalePanne(processus);
    }
}

/// Takes down lines until the process has ended; false when it said nothing for too long.
bool Surveillance::Ecoute(QProcess& processus) {
    for (;;) {
        while (processus.canReadLine()) {
            Recois(processus.readLine());
        }
        if (processus.state() == QProcess::NotRunning) {
            return true;
        }
        if (!processus.waitForReadyRead(DonneDelai()) &&
            processus.state() != QProcess::NotRunning) {
            // Its output may be closed before it has ended.
            return processus.waitForFinished(DonneDelai());
        }
    }
}

void Surveillance::Recois(QByteArray const& ligne) {
    auto const objet = QJsonDocument::fromJson(ligne).object();
    QString const fait = objet.value(QLatin1String("fait")).toString();
    QString const sujet = objet.value(QLatin1String("sujet")).toString();
    QString const texte = objet.value(QLatin1String("texte")).toString();
    if (fait == QLatin1String("essai")) {
        regle_ = sujet;
        bilan_.Essaie(sujet);
    } else if (fait == QLatin1String("appel")) {
        operation_ = sujet;
    } else if (fait == QLatin1String("faute")) {
        bilan_.Viole(sujet, texte, operation_, sujet.startsWith(QLatin1String("appels.")));
    } else if (fait == QLatin1String("passe")) {
        bilan_.Passe(sujet, texte);
    } else if (fait == QLatin1String("fin")) {
        finie_ = true;
    }
}

void Surveillance::SignalePanne(QProcess const& processus) {
    std::string const texte =
        processus.exitStatus() == QProcess::CrashExit
            ? Tr("Signal {1} à l’appel de {2} (règle {3}).", processus.exitCode(), operation_,
                 regle_)
            : Tr("Le programme a fini (code {1}) à l’appel de {2} (règle {3}).",
                 processus.exitCode(), operation_, regle_);
    bilan_.Viole(QStringLiteral("appels.panne"), QString::fromStdString(texte), operation_, true);
}

} // namespace hote
