// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Dereglements.h"
#include "Personne.h"

#include <QDBusContext>
#include <QObject>

/// The object of the control interface; its operations are named and described in the interface's
/// XML, from which the adaptor that calls them is generated.
class ObjetCommande : public QObject, protected QDBusContext {
    Q_OBJECT

  public:
    /// Both must outlive the object.
    ObjetCommande(compagnon::Bureau& bureau, Dereglements& dereglements, QObject* parent = nullptr);

    void Deregle(QString const& methode, QString const& comment, QString const& detail, int fois);
    void Retablis();
    void QuitteLeNom();
    void ReprendsLeNom();
    void Tape(QString const& idZone, int debut, int fin, QString const& texte);
    void TapeAvant(QString const& methode, QString const& idZone, int debut, int fin,
                   QString const& texte);
    QString InsereZone(QString const& idZone, QString const& texte);
    void SupprimeZone(QString const& idZone);
    void MetsSelection(QString const& idZone, int debut, int fin);
    void FermeDocument(QString const& leId);
    QString DonneTexte(QString const& leId);
    QString DonneSelection(QString const& leId, int& debut, int& fin);
    QString DonneJournal();
    void VideJournal();
    int AttendsAppels(QString const& methode, int nombre);
    int DonneNombreAppelants();

  Q_SIGNALS:
    void NomAQuitter();
    void NomAReprendre();

  private:
    /// Does it, or answers with the error that it met.
    template <class Travail>
    auto Fais(Travail const& travail) -> decltype(travail());
    compagnon::DocumentTexte& Document(QString const& cle);

    compagnon::Bureau& bureau_;
    Personne personne_;
    Dereglements& dereglements_;
};
