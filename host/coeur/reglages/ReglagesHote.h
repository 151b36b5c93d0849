// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include <mutex>

namespace hote {

/// What the person has chosen, and the words that they accept. In memory; `Charge` reads it from
/// the host's own folder and each change is written there at once: `hote.conf` and, a word a line,
/// `mots/fr.txt`, `mots/en.txt`… Any thread.
class ReglagesHote {
  public:
    /// `dossier`: the folder; empty: nothing is read or written.
    explicit ReglagesHote(QString dossier = DonneDossier());

    /// The host's own folder among the person's settings (XDG), "…/vocalyne".
    static QString DonneDossier();

    /// Reads everything anew. What cannot be read counts as not chosen.
    void Charge();

    /// The language that the person wants texts to be judged in: "fr", "en", or empty: by the text.
    QString DonneLangue() const;
    void MetsLangue(QString const& langue);

    bool EstMoteurEteint(QString const& moteur) const;
    void EteinsMoteur(QString const& moteur, bool eteint);

    /// A rule by its engine's name and its own.
    bool EstRegleEteinte(QString const& moteur, QString const& regle) const;
    void EteinsRegle(QString const& moteur, QString const& regle, bool eteinte);
    /// All that are off, as "engine/rule".
    QStringList DonneReglesEteintes() const;

    /// The address of a server of the person's own for an engine ("languagetool"); empty: none.
    QString DonneAdresse(QString const& moteur) const;
    void MetsAdresse(QString const& moteur, QString const& adresse);

    /// Is this word (in the form of `DonneForme`) one that the person accepts in the language
    /// ("fr-CA": the lists of "fr")? In lower case it stands for its capitalised forms too.
    bool EstAccepte(QString const& mot, QString const& langue) const;
    void AccepteMot(QString const& mot, QString const& langue);
    void OublieMot(QString const& mot, QString const& langue);
    QStringList DonneMots(QString const& langue) const;

    /// Words that are accepted in one document, by its place (a URL; empty: until the end only).
    bool EstIgnore(QString const& mot, QString const& document) const;
    void IgnoreMot(QString const& mot, QString const& document);

    /// Also accepts the words of the office's user dictionaries (`*.dic`) in a folder, each in its
    /// language or in all. Of no effect where there are none.
    void LisDictionnairesDuBureau(QString const& dossier);

    /// The usual places of the office's user dictionaries.
    static QStringList DonneDossiersDuBureau();

  private:
    void Ecris() const;
    void EcrisMots(QString const& langue) const;
    void LisDictionnaireDuBureau(QString const& fichier);
    QString DonneFichierDeMots(QString const& langue) const;

    mutable std::mutex mutex_;
    QString dossier_;
    QString langue_;
    QSet<QString> moteursEteints_;
    QSet<QString> reglesEteintes_;
    QHash<QString, QString> adresses_;
    QHash<QString, QSet<QString>> mots_;         ///< the person's, by language
    QHash<QString, QSet<QString>> motsDuBureau_; ///< "" for those of all languages
    QHash<QString, QSet<QString>> ignores_;      ///< by document
};

} // namespace hote
