// SPDX-License-Identifier: MPL-2.0
#include "ReglagesHote.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>

namespace hote {

namespace {

using Verrou = std::lock_guard<std::mutex>;

QString OtePays(QString const& langue) {
    return langue.section(QLatin1Char('-'), 0, 0).toLower();
}

QStringList Trie(QSet<QString> const& mots) {
    QStringList liste(mots.begin(), mots.end());
    liste.sort(Qt::CaseInsensitive);
    return liste;
}

void Mets(QSet<QString>& ensemble, QString const& element, bool dedans) {
    if (dedans) {
        ensemble.insert(element);
    } else {
        ensemble.remove(element);
    }
}

QSet<QString> LisEnsemble(QSettings const& fichier, char const* cle) {
    QStringList const liste = fichier.value(QLatin1String(cle)).toStringList();
    return {liste.begin(), liste.end()};
}

/// A word of the list as it is compared: composed, without the spaces around it.
QString LisMot(QString const& ligne) {
    return ligne.trimmed().normalized(QString::NormalizationForm_C);
}

QSet<QString> LisListeDeMots(QString const& chemin) {
    QSet<QString> mots;
    QFile fichier(chemin);
    if (fichier.open(QIODevice::ReadOnly)) {
        for (QString const& ligne : QString::fromUtf8(fichier.readAll()).split(QLatin1Char('\n'))) {
            QString const mot = LisMot(ligne);
            if (!mot.isEmpty() && !mot.startsWith(QLatin1Char('#'))) {
                mots.insert(mot);
            }
        }
    }
    return mots;
}

bool Contient(QSet<QString> const& mots, QString const& mot) {
    if (mots.contains(mot)) {
        return true;
    }
    bool const capitale = !mot.isEmpty() && mot.at(0).isUpper();
    return capitale && mots.contains(mot.toLower());
}

} // namespace

ReglagesHote::ReglagesHote(QString dossier)
    : dossier_(std::move(dossier)) {}

QString ReglagesHote::DonneDossier() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QLatin1String("/vocalyne");
}

void ReglagesHote::Charge() {
    Verrou const verrou(mutex_);
    if (dossier_.isEmpty()) {
        return;
    }
    QSettings fichier(dossier_ + QLatin1String("/hote.conf"), QSettings::IniFormat);
    fichier.setIniCodec("UTF-8");
    langue_ = fichier.value(QStringLiteral("langue")).toString();
    moteursEteints_ = LisEnsemble(fichier, "moteursEteints");
    reglesEteintes_ = LisEnsemble(fichier, "reglesEteintes");
    adresses_.clear();
    fichier.beginGroup(QStringLiteral("adresses"));
    for (QString const& moteur : fichier.childKeys()) {
        adresses_.insert(moteur, fichier.value(moteur).toString());
    }
    fichier.endGroup();
    ignores_.clear();
    int const documents = fichier.beginReadArray(QStringLiteral("documents"));
    for (int i = 0; i < documents; ++i) {
        fichier.setArrayIndex(i);
        ignores_.insert(fichier.value(QStringLiteral("document")).toString(),
                        LisEnsemble(fichier, "mots"));
    }
    fichier.endArray();
    mots_.clear();
    QDir const dossierDesMots(dossier_ + QLatin1String("/mots"));
    for (QString const& nom : dossierDesMots.entryList({QStringLiteral("*.txt")}, QDir::Files)) {
        mots_.insert(nom.section(QLatin1Char('.'), 0, 0),
                     LisListeDeMots(dossierDesMots.filePath(nom)));
    }
}

void ReglagesHote::Ecris() const {
    if (dossier_.isEmpty() || !QDir().mkpath(dossier_)) {
        return;
    }
    QSettings fichier(dossier_ + QLatin1String("/hote.conf"), QSettings::IniFormat);
    fichier.setIniCodec("UTF-8");
    fichier.clear();
    fichier.setValue(QStringLiteral("langue"), langue_);
    fichier.setValue(QStringLiteral("moteursEteints"), Trie(moteursEteints_));
    fichier.setValue(QStringLiteral("reglesEteintes"), Trie(reglesEteintes_));
    fichier.beginGroup(QStringLiteral("adresses"));
    for (auto adresse = adresses_.begin(); adresse != adresses_.end(); ++adresse) {
        fichier.setValue(adresse.key(), adresse.value());
    }
    fichier.endGroup();
    fichier.beginWriteArray(QStringLiteral("documents"));
    int rang = 0;
    for (auto document = ignores_.begin(); document != ignores_.end(); ++document) {
        if (!document.key().isEmpty()) {
            fichier.setArrayIndex(rang++);
            fichier.setValue(QStringLiteral("document"), document.key());
            fichier.setValue(QStringLiteral("mots"), Trie(document.value()));
        }
    }
    fichier.endArray();
}

QString ReglagesHote::DonneFichierDeMots(QString const& langue) const {
    return dossier_ + QLatin1String("/mots/") + langue + QLatin1String(".txt");
}

void ReglagesHote::EcrisMots(QString const& langue) const {
    if (dossier_.isEmpty() || !QDir().mkpath(dossier_ + QLatin1String("/mots"))) {
        return;
    }
    QSaveFile fichier(DonneFichierDeMots(langue));
    if (fichier.open(QIODevice::WriteOnly)) {
        for (QString const& mot : Trie(mots_.value(langue))) {
            fichier.write(mot.toUtf8() + '\n');
        }
        fichier.commit();
    }
}

QString ReglagesHote::DonneLangue() const {
    Verrou const verrou(mutex_);
    return langue_;
}

void ReglagesHote::MetsLangue(QString const& langue) {
    Verrou const verrou(mutex_);
    langue_ = langue;
    Ecris();
}

bool ReglagesHote::EstMoteurEteint(QString const& moteur) const {
    Verrou const verrou(mutex_);
    return moteursEteints_.contains(moteur);
}

void ReglagesHote::EteinsMoteur(QString const& moteur, bool eteint) {
    Verrou const verrou(mutex_);
    Mets(moteursEteints_, moteur, eteint);
    Ecris();
}

bool ReglagesHote::EstRegleEteinte(QString const& moteur, QString const& regle) const {
    Verrou const verrou(mutex_);
    return reglesEteintes_.contains(moteur + QLatin1Char('/') + regle);
}

void ReglagesHote::EteinsRegle(QString const& moteur, QString const& regle, bool eteinte) {
    Verrou const verrou(mutex_);
    Mets(reglesEteintes_, moteur + QLatin1Char('/') + regle, eteinte);
    Ecris();
}

QStringList ReglagesHote::DonneReglesEteintes() const {
    Verrou const verrou(mutex_);
    return Trie(reglesEteintes_);
}

QString ReglagesHote::DonneAdresse(QString const& moteur) const {
    Verrou const verrou(mutex_);
    return adresses_.value(moteur);
}

void ReglagesHote::MetsAdresse(QString const& moteur, QString const& adresse) {
    Verrou const verrou(mutex_);
    adresses_.insert(moteur, adresse);
    Ecris();
}

bool ReglagesHote::EstAccepte(QString const& mot, QString const& langue) const {
    Verrou const verrou(mutex_);
    QString const seule = OtePays(langue);
    return Contient(mots_.value(seule), mot) || Contient(motsDuBureau_.value(seule), mot) ||
           Contient(motsDuBureau_.value(QString()), mot);
}

void ReglagesHote::AccepteMot(QString const& mot, QString const& langue) {
    Verrou const verrou(mutex_);
    // Another program of the person's may have added words meanwhile.
    QString const seule = OtePays(langue);
    mots_[seule].unite(LisListeDeMots(DonneFichierDeMots(seule)));
    mots_[seule].insert(LisMot(mot));
    EcrisMots(seule);
}

void ReglagesHote::OublieMot(QString const& mot, QString const& langue) {
    Verrou const verrou(mutex_);
    mots_[OtePays(langue)].remove(LisMot(mot));
    EcrisMots(OtePays(langue));
}

QStringList ReglagesHote::DonneMots(QString const& langue) const {
    Verrou const verrou(mutex_);
    return Trie(mots_.value(OtePays(langue)));
}

bool ReglagesHote::EstIgnore(QString const& mot, QString const& document) const {
    Verrou const verrou(mutex_);
    return Contient(ignores_.value(document), mot);
}

void ReglagesHote::IgnoreMot(QString const& mot, QString const& document) {
    Verrou const verrou(mutex_);
    ignores_[document].insert(LisMot(mot));
    Ecris();
}

void ReglagesHote::LisDictionnairesDuBureau(QString const& dossier) {
    QDir const lieu(dossier);
    for (QString const& nom : lieu.entryList({QStringLiteral("*.dic")}, QDir::Files)) {
        LisDictionnaireDuBureau(lieu.filePath(nom));
    }
}

void ReglagesHote::LisDictionnaireDuBureau(QString const& chemin) {
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly)) {
        return;
    }
    QStringList const lignes = QString::fromUtf8(fichier.readAll()).split(QLatin1Char('\n'));
    int const fin = lignes.indexOf(QStringLiteral("---"));
    if (fin < 0 || !lignes.first().startsWith(QLatin1String("OOoUserDict"))) {
        return; // of another kind, or an old binary one
    }
    QString langue;
    for (QString const& ligne : lignes.mid(0, fin)) {
        QString const valeur = ligne.section(QLatin1Char(':'), 1).trimmed();
        if (ligne.startsWith(QLatin1String("lang:")) && valeur != QLatin1String("<none>")) {
            langue = OtePays(valeur);
        }
        if (ligne.startsWith(QLatin1String("type:")) && valeur != QLatin1String("positive")) {
            return; // words that it forbids
        }
    }
    Verrou const verrou(mutex_);
    for (QString const& ligne : lignes.mid(fin + 1)) {
        // "=" marks where a word may be parted.
        QString const mot =
            LisMot(ligne.section(QLatin1String("=="), 0, 0)).remove(QLatin1Char('='));
        if (!mot.isEmpty()) {
            motsDuBureau_[langue].insert(mot);
        }
    }
}

QStringList ReglagesHote::DonneDossiersDuBureau() {
    QString const base = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return {base + QLatin1String("/libreoffice/4/user/wordbook")};
}

} // namespace hote
