// SPDX-License-Identifier: MPL-2.0
#include "Valgrind.h"

#include "commun/MessagesHote.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QXmlStreamReader>

namespace hote {

namespace {

QString const& DonneRegle() {
    static QString const regle = QStringLiteral("memoire.valgrind");
    return regle;
}

/// One error of the report: what it is, and the innermost function of the connector that it names;
/// both empty for one that the connector has no part in.
struct ErreurValgrind {
    QString texte;
    QString fonction;
};

ErreurValgrind LisErreur(QXmlStreamReader& xml, QString const& greffon) {
    ErreurValgrind erreur;
    QString genre;
    QString texte;
    QString objet;
    QString fonction;
    while (!(xml.isEndElement() && xml.name() == QLatin1String("error")) && !xml.atEnd()) {
        xml.readNext();
        auto const nom = xml.name();
        if (xml.isStartElement() && nom == QLatin1String("kind")) {
            genre = xml.readElementText();
        } else if (xml.isStartElement() &&
                   (nom == QLatin1String("what") || nom == QLatin1String("text"))) {
            texte = xml.readElementText();
        } else if (xml.isStartElement() && nom == QLatin1String("frame")) {
            objet.clear();
            fonction.clear();
        } else if (xml.isStartElement() && nom == QLatin1String("obj")) {
            objet = xml.readElementText();
        } else if (xml.isStartElement() && nom == QLatin1String("fn")) {
            fonction = xml.readElementText();
        } else if (xml.isEndElement() && nom == QLatin1String("frame") && objet == greffon &&
                   erreur.texte.isEmpty()) {
            erreur = {texte.isEmpty() ? genre : texte, fonction};
        }
    }
    return erreur;
}

void LisRapport(BilanVerification& bilan, QString const& nom, QString const& greffon) {
    QFile fichier(nom);
    if (!fichier.open(QIODevice::ReadOnly)) {
        bilan.Passe(DonneRegle(), QString::fromStdString(Tr("Valgrind n’a rien écrit")));
        return;
    }
    bilan.Essaie(DonneRegle());
    QXmlStreamReader xml(&fichier);
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == QLatin1String("error")) {
            auto const erreur = LisErreur(xml, greffon);
            if (!erreur.texte.isEmpty()) {
                bilan.Viole(
                    DonneRegle(),
                    QString::fromStdString(Tr("{1} (fonction {2})", erreur.texte, erreur.fonction)),
                    {}, false);
            }
        }
    }
}

} // namespace

void RegardeAvecValgrind(BilanVerification& bilan, QStringList const& arguments,
                         QString const& greffon) {
    QString const valgrind = QStandardPaths::findExecutable(QStringLiteral("valgrind"));
    QTemporaryDir const dossier;
    if (valgrind.isEmpty() || !dossier.isValid()) {
        bilan.Passe(DonneRegle(), QString::fromStdString(Tr("valgrind n’est pas installé")));
        return;
    }
    QString const rapport = dossier.filePath(QStringLiteral("rapport.xml"));
    QProcess processus;
    processus.setStandardOutputFile(QProcess::nullDevice());
    processus.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    processus.start(valgrind,
                    QStringList{QStringLiteral("--quiet"), QStringLiteral("--leak-check=full"),
                                QStringLiteral("--show-leak-kinds=definite"),
                                QStringLiteral("--keep-debuginfo=yes"), QStringLiteral("--xml=yes"),
                                QStringLiteral("--xml-file=") + rapport,
                                QCoreApplication::applicationFilePath()} +
                        arguments,
                    QIODevice::ReadOnly);
    constexpr int kPatienceMs = 300'000;
    if (!processus.waitForFinished(kPatienceMs)) {
        processus.kill();
        processus.waitForFinished(-1);
        bilan.Passe(DonneRegle(), QString::fromStdString(Tr("Valgrind n’a pas fini à temps")));
        return;
    }
    LisRapport(bilan, rapport, greffon);
}

} // namespace hote
