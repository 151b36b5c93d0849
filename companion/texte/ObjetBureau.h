// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "coeur/Bureau.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QObject>
#include <QString>

#include <functional>

namespace compagnon {

/// The object that the office publishes: the contract's two interfaces, each call handed to
/// `Bureau` in the caller's name. The adaptors generated from protocol/ call the public operations;
/// they are named and ordered as there.
class ObjetBureau : public QObject, protected QDBusContext {
    Q_OBJECT

  public:
    /// `bureau` must outlive the object.
    ObjetBureau(Bureau& bureau, bool peutEnregistrer, QObject* parent = nullptr);

    void ActivePourCorrecteur();
    void ActivePourOutils();
    void AjusteSelectionPourOutils(int deltaDebut, int deltaFin);
    void CorrigeDansTexteur(QString const& idZone, int leDebut, int laFin, QString const& laChaine,
                            bool automatique);
    bool DocEstMort(QString const& leId);
    QString DonneCheminDocument();
    QString DonneContenuSelection();
    QString DonneContexteSelection();
    int DonneDebutSelection();
    int DonneDebutSelectionDansSonContexte();
    int DonneFinSelection();
    int DonneFinSelectionDansSonContexte();
    QString DonneTitreDocument();
    void InitialisePourCorrecteur();
    void InitialisePourOutils(bool estDico);
    void InitialiseTexteur(QString const& leId);
    bool PermetsRetourDeCharriot();
    bool PeutCorriger(QString const& idZone, int leDebut, int laFin,
                      QString const& laGraphieOriginale);
    void RemplaceEtReselectionne(QString const& leMot);
    void RompsLienCorrecteur();
    void RompsLienTexteur();
    void SelectionneIntervalle(QString const& idZone, int leDebut, int laFin);
    void Suspends();
    QString SynchronisePositions(QString const& leId);

    QString DonneDocuments();
    QString DonneNomsDeZones(QString const& leId);
    QString DonneRapport(QString const& leId);
    QString DonneRefus(QString const& idZone, QString& phrase);
    bool Enregistre(QString const& leId);

  Q_SIGNALS:
    /// A connection that the office now remembers something of, at each of its calls.
    void AppelantVu(QString const& nomUnique);
    /// A caller lets go of the document of this key: what it wanted to change in it stands.
    void TravailFini(QString const& cle);

  protected:
    /// Answers one call of the 24; `sers` does the work and gives the reply, at the time it is
    /// called. For a derived class, which may answer by itself, later, or never.
    virtual void Reponds(QDBusMessage const& appel, QDBusConnection const& connexion,
                         std::function<QDBusMessage()> const& sers);

  private:
    /// Has `travail` answer the call under way, in the caller's name; what is returned here is
    /// never sent. It is kept until the reply: what it needs of the call is copied into it.
    template <class Travail>
    auto Sers(Travail travail) -> decltype(travail(std::string()));

    void FinisTravail(std::string const& qui);

    Bureau& bureau_;
    bool peutEnregistrer_;
};

} // namespace compagnon
