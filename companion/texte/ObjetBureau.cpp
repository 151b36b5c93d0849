// SPDX-License-Identifier: MPL-2.0
#include "ObjetBureau.h"

#include "ChainesQt.h"
#include "coeur/MessagesTexte.h"
#include "modele/Utf.h"
#include "partage/EcritureDocuments.h"
#include "partage/Rapport.h"

#include <type_traits>

namespace compagnon {

namespace {

constexpr char kGenreTexte[] = "texte"; ///< the kind of all documents here

/// The reply to a call for which `travail` does the work, or the error that it met.
template <class Travail>
QDBusMessage ReponseA(QDBusMessage const& appel, Travail const& travail) {
    try {
        if constexpr (std::is_void_v<decltype(travail())>) {
            travail();
            return appel.createReply();
        } else {
            return appel.createReply(QVariant::fromValue(travail()));
        }
    } catch (ErreurDuService const& erreur) {
        return appel.createErrorReply(QString::fromStdString(erreur.DonneNomDBus()),
                                      QString::fromUtf8(erreur.what()));
    } catch (std::exception const& erreur) {
        ErreurDuService const interne(contrat::Erreur::Interne, erreur.what());
        return appel.createErrorReply(QString::fromStdString(interne.DonneNomDBus()),
                                      QString::fromUtf8(interne.what()));
    }
}

/// A text of the document's, or a name of the system's, as a reply by itself.
QString Envoyable(std::u16string_view texte) {
    return VersQString(RendsEnvoyable(texte));
}

} // namespace

ObjetBureau::ObjetBureau(Bureau& bureau, bool peutEnregistrer, QObject* parent)
    : QObject(parent)
    , bureau_(bureau)
    , peutEnregistrer_(peutEnregistrer) {}

void ObjetBureau::Reponds(QDBusMessage const& appel, QDBusConnection const& connexion,
                          std::function<QDBusMessage()> const& sers) {
    QDBusMessage const reponse = sers();
    if (appel.isReplyRequired()) {
        connexion.send(reponse);
    }
}

template <class Travail>
auto ObjetBureau::Sers(Travail travail) -> decltype(travail(std::string())) {
    setDelayedReply(true);
    Reponds(message(), connection(), [this, appel = message(), travail] {
        std::string const qui = VersUtf8(appel.service());
        QDBusMessage reponse = ReponseA(appel, [&] { return travail(qui); });
        if (bureau_.DonneAppelants().Connait(qui)) {
            Q_EMIT AppelantVu(appel.service());
        }
        return reponse;
    });
    return decltype(travail(std::string()))();
}

void ObjetBureau::FinisTravail(std::string const& qui) {
    if (bureau_.DonneAppelants().ANomme(qui)) {
        Q_EMIT TravailFini(VersQString(bureau_.DonneAppelants().DonneDocument(qui)));
    }
}

void ObjetBureau::ActivePourCorrecteur() {
    Sers([this](std::string const& qui) { bureau_.Active(qui); });
}

void ObjetBureau::ActivePourOutils() {
    Sers([this](std::string const& qui) { bureau_.Active(qui); });
}

void ObjetBureau::AjusteSelectionPourOutils(int deltaDebut, int deltaFin) {
    Sers([=](std::string const& qui) { bureau_.AjusteSelection(qui, deltaDebut, deltaFin); });
}

void ObjetBureau::CorrigeDansTexteur(QString const& idZone, int leDebut, int laFin,
                                     QString const& laChaine, bool /*automatique*/) {
    Sers([=](std::string const& qui) {
        bureau_.CorrigeDansTexteur(qui, VersUtf8(idZone), {leDebut, laFin}, VersUtf16(laChaine));
    });
}

bool ObjetBureau::DocEstMort(QString const& leId) {
    return Sers([=](std::string const& /*qui*/) { return bureau_.DocEstMort(VersUtf8(leId)); });
}

QString ObjetBureau::DonneCheminDocument() {
    return Sers([this](std::string const& qui) {
        return Envoyable(VersUtf16(VersQString(bureau_.Courant(qui).DonneChemin())));
    });
}

QString ObjetBureau::DonneContenuSelection() {
    return Sers([this](std::string const& qui) {
        SelectionDite const dite = bureau_.DisSelection(qui);
        return Envoyable(std::u16string_view(dite.texte)
                             .substr(dite.plage.DonneDebut(), dite.plage.DonneLongueur()));
    });
}

QString ObjetBureau::DonneContexteSelection() {
    return Sers(
        [this](std::string const& qui) { return Envoyable(bureau_.DisSelection(qui).texte); });
}

int ObjetBureau::DonneDebutSelection() {
    return Sers([this](std::string const& qui) { return bureau_.DisSelection(qui).plage.debut; });
}

// The context is the whole paragraph, so positions in both are the same.
int ObjetBureau::DonneDebutSelectionDansSonContexte() {
    return DonneDebutSelection();
}

int ObjetBureau::DonneFinSelection() {
    return Sers([this](std::string const& qui) { return bureau_.DisSelection(qui).plage.fin; });
}

int ObjetBureau::DonneFinSelectionDansSonContexte() {
    return DonneFinSelection();
}

QString ObjetBureau::DonneTitreDocument() {
    return Sers([this](std::string const& qui) {
        return Envoyable(VersUtf16(VersQString(bureau_.Courant(qui).DonneTitre())));
    });
}

void ObjetBureau::InitialisePourCorrecteur() {
    Sers([this](std::string const& qui) { bureau_.InitialisePour(qui); });
}

void ObjetBureau::InitialisePourOutils(bool /*estDico*/) {
    Sers([this](std::string const& qui) { bureau_.InitialisePour(qui); });
}

void ObjetBureau::InitialiseTexteur(QString const& leId) {
    Sers([=](std::string const& qui) { bureau_.InitialiseTexteur(qui, VersUtf8(leId)); });
}

// A paragraph is one line of the file, and corrections stay inside theirs.
bool ObjetBureau::PermetsRetourDeCharriot() {
    return Sers([this](std::string const& qui) {
        bureau_.Courant(qui);
        return false;
    });
}

bool ObjetBureau::PeutCorriger(QString const& idZone, int leDebut, int laFin,
                               QString const& laGraphieOriginale) {
    return Sers([=](std::string const& qui) {
        return bureau_.PeutCorriger(qui, VersUtf8(idZone), {leDebut, laFin},
                                    VersUtf16(laGraphieOriginale));
    });
}

void ObjetBureau::RemplaceEtReselectionne(QString const& leMot) {
    Sers([=](std::string const& qui) { bureau_.RemplaceEtReselectionne(qui, VersUtf16(leMot)); });
}

void ObjetBureau::RompsLienCorrecteur() {
    Sers([this](std::string const& qui) {
        FinisTravail(qui);
        bureau_.DonneAppelants().LacheZones(qui);
    });
}

void ObjetBureau::RompsLienTexteur() {
    Sers([this](std::string const& qui) {
        FinisTravail(qui);
        bureau_.DonneAppelants().LacheDocument(qui);
    });
}

void ObjetBureau::SelectionneIntervalle(QString const& idZone, int leDebut, int laFin) {
    Sers([=](std::string const& qui) {
        bureau_.SelectionneIntervalle(qui, VersUtf8(idZone), {leDebut, laFin});
    });
}

// A pause is the host's own affair: nothing is held for it here.
void ObjetBureau::Suspends() {
    Sers([](std::string const& /*qui*/) {});
}

QString ObjetBureau::SynchronisePositions(QString const& leId) {
    return Sers([=](std::string const& qui) {
        std::string const zones = bureau_.SynchronisePositions(qui, VersUtf8(leId));
        return QString::fromLatin1(zones.data(), static_cast<int>(zones.size()));
    });
}

QString ObjetBureau::DonneDocuments() {
    EcritureDocuments liste;
    for (DocumentTexte const& document : bureau_.DonneDocuments()) {
        liste.Ajoute({bureau_.DonneIdentifiant(document),
                      VersUtf16(VersQString(document.DonneTitre())),
                      VersUtf16(VersQString(document.DonneChemin())),
                      kGenreTexte,
                      {}});
    }
    return VersQString(liste.Termine());
}

QString ObjetBureau::DonneNomsDeZones(QString const& leId) {
    setDelayedReply(true);
    connection().send(ReponseA(message(), [&] {
        return VersQString(bureau_.DonneNomsDeZones(VersUtf8(message().service()), VersUtf8(leId)));
    }));
    return {};
}

QString ObjetBureau::DonneRapport(QString const& leId) {
    setDelayedReply(true);
    connection().send(ReponseA(message(), [&] {
        DocumentTexte const& document = bureau_.ChercheIdentifiant(VersUtf8(leId));
        return VersQString(
            Rapport(kGenreTexte, {}, document.DonneZones().size(), !document.EstInscriptible())
                .EnJson());
    }));
    return {};
}

QString ObjetBureau::DonneRefus(QString const& idZone, QString& /*phrase*/) {
    setDelayedReply(true); // what is returned here is never sent
    try {
        auto const refus = bureau_.DonneRefus(VersUtf8(message().service()), VersUtf8(idZone));
        connection().send(message().createReply(
            refus ? QVariantList{QString::fromLatin1(contrat::DonneNom(refus->code)),
                                 QString::fromStdString(refus->phrase)}
                  : QVariantList{QString(), QString()}));
    } catch (ErreurDuService const& erreur) {
        connection().send(message().createErrorReply(QString::fromStdString(erreur.DonneNomDBus()),
                                                     QString::fromUtf8(erreur.what())));
    }
    return {};
}

bool ObjetBureau::Enregistre(QString const& leId) {
    setDelayedReply(true);
    connection().send(ReponseA(message(), [&] {
        DocumentTexte& document = bureau_.ChercheIdentifiant(VersUtf8(leId));
        if (!peutEnregistrer_) {
            throw ErreurDuService(contrat::Erreur::Enregistrement,
                                  Dis({"Ce bureau n'enregistre rien (--sans-enregistrer)",
                                       "This office saves nothing (--sans-enregistrer)"}));
        }
        std::optional<Ecriture> const ecriture = document.Enregistre();
        if (ecriture && ecriture->issue != IssueEcriture::Faite) {
            throw ErreurDuService(contrat::Erreur::Enregistrement,
                                  DisEcriture(*ecriture, document.DonneChemin()));
        }
        return ecriture.has_value();
    }));
    return false;
}

} // namespace compagnon
