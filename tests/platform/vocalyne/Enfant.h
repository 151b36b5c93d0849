// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <map>

/// What a child process left behind.
struct Enfant {
    bool termineSeul = false; ///< ended by itself, not by a signal
    int code = -1;
    std::map<QString, QString> valeurs; ///< its lines "name=value"
    QString erreurs;

    QString operator[](char const* nom) const {
        auto const valeur = valeurs.find(QString::fromLatin1(nom));
        return valeur != valeurs.end() ? valeur->second : QStringLiteral("(none)");
    }
};

/// Runs a program to its end, with no display but the one that `variables` may name.
inline Enfant Lance(QString const& programme, QStringList const& arguments = {},
                    std::map<QString, QString> const& variables = {}) {
    auto environnement = QProcessEnvironment::systemEnvironment();
    for (auto const* nom :
         {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QT_QPA_PLATFORMTHEME", "LC_ALL"}) {
        environnement.remove(QString::fromLatin1(nom));
    }
    for (auto const& [nom, valeur] : variables) {
        environnement.insert(nom, valeur);
    }

    QProcess processus;
    processus.setProcessEnvironment(environnement);
    processus.start(programme, arguments);
    constexpr int kAttenteMax = 120000; // ms, for a machine under load; nothing waits this long
    Enfant enfant;
    enfant.termineSeul =
        processus.waitForFinished(kAttenteMax) && processus.exitStatus() == QProcess::NormalExit;
    enfant.code = processus.exitCode();
    enfant.erreurs = QString::fromLocal8Bit(processus.readAllStandardError());
    auto const lignes = QString::fromUtf8(processus.readAllStandardOutput());
    for (auto const& ligne : lignes.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        int const egal = ligne.indexOf(QLatin1Char('='));
        enfant.valeurs[ligne.left(egal)] = ligne.mid(egal + 1);
    }
    return enfant;
}
