// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Portier.h"
#include "coeur/Bureau.h"

#include <QDBusContext>
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

    /// Null: none. Not owned.
    void MetsPortier(Portier* portier) noexcept { portier_ = portier; }

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
    bool Enregistre(QString const& leId);

  Q_SIGNALS:
    /// A connection that the office now remembers something of, at each of its calls.
    void AppelantVu(QString const& nomUnique);

  private:
    template <class T>
    T Sers(std::function<Resultat<T>()> const& appel);
    void Execute(std::function<Resultat<Rien>()> const& appel);
    /// A question about the document that the caller last named.
    template <class T>
    T Demande(std::function<T(DocumentTexte const&)> const& question);
    std::string DonneNomAppelant() const;

    Bureau& bureau_;
    bool peutEnregistrer_;
    Portier* portier_ = nullptr;
};

} // namespace compagnon
