// SPDX-License-Identifier: MPL-2.0
#include "ObjetBureau.h"

#include "ChainesQt.h"
#include "coeur/MessagesTexte.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <type_traits>

namespace compagnon {

namespace {

QDBusMessage Reponse(QDBusMessage const& appel, Erreur const& erreur) {
    return appel.createErrorReply(QString::fromLatin1(NomErreur(erreur.code)),
                                  VersQString(DisErreur(erreur)));
}

template <class T>
QDBusMessage Reponse(QDBusMessage const& appel, Resultat<T> const& resultat) {
    if (!resultat) {
        return Reponse(appel, resultat.DonneErreur());
    }
    if constexpr (std::is_same_v<T, Rien>) {
        return appel.createReply();
    } else {
        return appel.createReply(QVariant::fromValue(*resultat));
    }
}

std::u16string_view TexteSelection(DocumentTexte const& document) {
    Selection const& selection = document.DonneSelection();
    return std::u16string_view(*document.DonneTexte(selection.zone))
        .substr(selection.plage.DonneDebut(), selection.plage.DonneLongueur());
}

} // namespace

ObjetBureau::ObjetBureau(Bureau& bureau, bool peutEnregistrer, QObject* parent)
    : QObject(parent)
    , bureau_(bureau)
    , peutEnregistrer_(peutEnregistrer) {}

std::string ObjetBureau::DonneNomAppelant() const {
    return VersUtf8(message().service());
}

template <class T>
T ObjetBureau::Sers(std::function<Resultat<T>()> const& appel) {
    QDBusMessage const recu = message();
    auto const fais = [this, recu, appel] {
        Resultat<T> resultat = appel();
        if (bureau_.DonneAppelants().Connait(VersUtf8(recu.service()))) {
            Q_EMIT AppelantVu(recu.service());
        }
        return resultat;
    };
    if (portier_ &&
        portier_->Prends(recu, connection(), [recu, fais] { return Reponse(recu, fais()); })) {
        setDelayedReply(true);
        return T{};
    }
    Resultat<T> resultat = fais();
    if (!resultat) {
        setDelayedReply(true);
        connection().send(Reponse(recu, resultat.DonneErreur()));
        return T{};
    }
    return std::move(*resultat);
}

void ObjetBureau::Execute(std::function<Resultat<Rien>()> const& appel) {
    Sers<Rien>(appel);
}

template <class T>
T ObjetBureau::Demande(std::function<T(DocumentTexte const&)> const& question) {
    return Sers<T>([this, question, qui = DonneNomAppelant()]() -> Resultat<T> {
        Resultat<DocumentTexte*> const document = bureau_.Courant(qui);
        if (!document) {
            return document.DonneErreur();
        }
        return question(**document);
    });
}

void ObjetBureau::ActivePourCorrecteur() {
    Execute([this, qui = DonneNomAppelant()] { return bureau_.Active(qui); });
}

void ObjetBureau::ActivePourOutils() {
    Execute([this, qui = DonneNomAppelant()] { return bureau_.Active(qui); });
}

void ObjetBureau::AjusteSelectionPourOutils(int deltaDebut, int deltaFin) {
    Execute([this, qui = DonneNomAppelant(), deltaDebut, deltaFin] {
        return bureau_.AjusteSelection(qui, deltaDebut, deltaFin);
    });
}

void ObjetBureau::CorrigeDansTexteur(QString const& idZone, int leDebut, int laFin,
                                     QString const& laChaine, bool /*automatique*/) {
    Execute([this, qui = DonneNomAppelant(), zone = VersUtf8(idZone),
             plage = Intervalle{leDebut, laFin}, texte = VersUtf16(laChaine)] {
        return bureau_.CorrigeDansTexteur(qui, zone, plage, texte);
    });
}

bool ObjetBureau::DocEstMort(QString const& leId) {
    return Sers<bool>(
        [this, cle = VersUtf8(leId)]() -> Resultat<bool> { return bureau_.DocEstMort(cle); });
}

QString ObjetBureau::DonneCheminDocument() {
    return Demande<QString>(
        [](DocumentTexte const& document) { return VersQString(document.DonneChemin()); });
}

QString ObjetBureau::DonneContenuSelection() {
    return Demande<QString>(
        [](DocumentTexte const& document) { return VersQString(TexteSelection(document)); });
}

QString ObjetBureau::DonneContexteSelection() {
    return Demande<QString>([](DocumentTexte const& document) {
        return VersQString(*document.DonneTexte(document.DonneSelection().zone));
    });
}

int ObjetBureau::DonneDebutSelection() {
    return Demande<int>(
        [](DocumentTexte const& document) { return document.DonneSelection().plage.debut; });
}

// The context is the whole paragraph, so positions in both are the same.
int ObjetBureau::DonneDebutSelectionDansSonContexte() {
    return DonneDebutSelection();
}

int ObjetBureau::DonneFinSelection() {
    return Demande<int>(
        [](DocumentTexte const& document) { return document.DonneSelection().plage.fin; });
}

int ObjetBureau::DonneFinSelectionDansSonContexte() {
    return DonneFinSelection();
}

QString ObjetBureau::DonneTitreDocument() {
    return Demande<QString>(
        [](DocumentTexte const& document) { return VersQString(document.DonneTitre()); });
}

// Nothing has to be made ready here, but a caller that has named no document is told so.
void ObjetBureau::InitialisePourCorrecteur() {
    Demande<Rien>([](DocumentTexte const&) { return Rien{}; });
}

void ObjetBureau::InitialisePourOutils(bool /*estDico*/) {
    Demande<Rien>([](DocumentTexte const&) { return Rien{}; });
}

void ObjetBureau::InitialiseTexteur(QString const& leId) {
    Execute([this, qui = DonneNomAppelant(), cle = VersUtf8(leId)] {
        return bureau_.InitialiseTexteur(qui, cle);
    });
}

// A paragraph is one line of the file, and corrections stay inside theirs.
bool ObjetBureau::PermetsRetourDeCharriot() {
    return Demande<bool>([](DocumentTexte const&) { return false; });
}

bool ObjetBureau::PeutCorriger(QString const& idZone, int leDebut, int laFin,
                               QString const& laGraphieOriginale) {
    return Sers<bool>([this, qui = DonneNomAppelant(), zone = VersUtf8(idZone),
                       plage = Intervalle{leDebut, laFin},
                       attendu = VersUtf16(laGraphieOriginale)] {
        return bureau_.PeutCorriger(qui, zone, plage, attendu);
    });
}

void ObjetBureau::RemplaceEtReselectionne(QString const& leMot) {
    Execute([this, qui = DonneNomAppelant(), mot = VersUtf16(leMot)] {
        return bureau_.RemplaceEtReselectionne(qui, mot);
    });
}

// The three below never fail: a host that lets go is not told that it had nothing to let go of.
void ObjetBureau::RompsLienCorrecteur() {
    Execute([]() -> Resultat<Rien> { return Rien{}; });
}

void ObjetBureau::RompsLienTexteur() {
    Execute([this, qui = DonneNomAppelant()]() -> Resultat<Rien> {
        bureau_.RompsLien(qui);
        return Rien{};
    });
}

void ObjetBureau::SelectionneIntervalle(QString const& idZone, int leDebut, int laFin) {
    Execute([this, qui = DonneNomAppelant(), zone = VersUtf8(idZone),
             plage = Intervalle{leDebut, laFin}] {
        return bureau_.SelectionneIntervalle(qui, zone, plage);
    });
}

void ObjetBureau::Suspends() {
    Execute([]() -> Resultat<Rien> { return Rien{}; });
}

QString ObjetBureau::SynchronisePositions(QString const& leId) {
    return Sers<QString>(
        [this, qui = DonneNomAppelant(), identifiant = VersUtf8(leId)]() -> Resultat<QString> {
            Resultat<std::string> const reponse = bureau_.SynchronisePositions(qui, identifiant);
            if (!reponse) {
                return reponse.DonneErreur();
            }
            return QString::fromLatin1(reponse->data(), static_cast<int>(reponse->size()));
        });
}

QString ObjetBureau::DonneDocuments() {
    QJsonArray liste;
    for (DocumentTexte const& document : bureau_.DonneDocuments()) {
        liste.append(QJsonObject{
            {QStringLiteral("id"), VersQString(bureau_.DonneIdentifiant(document))},
            {QStringLiteral("titre"), VersQString(document.DonneTitre())},
            {QStringLiteral("chemin"), VersQString(document.DonneChemin())},
        });
    }
    return QString::fromUtf8(QJsonDocument(liste).toJson(QJsonDocument::Compact));
}

bool ObjetBureau::Enregistre(QString const& leId) {
    auto const enregistre = [&]() -> Resultat<bool> {
        DocumentTexte* const document = bureau_.ChercheIdentifiant(VersUtf8(leId));
        if (!document) {
            return Erreur{CodeErreur::IdentifiantInconnu, VersUtf8(leId), {}};
        }
        if (!peutEnregistrer_) {
            return Erreur{CodeErreur::Enregistrement,
                          Dis({"Ce bureau n'enregistre rien (--sans-enregistrer)",
                               "This office saves nothing (--sans-enregistrer)"}),
                          {}};
        }
        std::optional<Ecriture> const ecriture = document->Enregistre();
        if (ecriture && ecriture->issue != IssueEcriture::Faite) {
            return Erreur{
                CodeErreur::Enregistrement, DisEcriture(*ecriture, document->DonneChemin()), {}};
        }
        return ecriture.has_value();
    };
    Resultat<bool> const resultat = enregistre();
    if (!resultat) {
        setDelayedReply(true);
        connection().send(Reponse(message(), resultat.DonneErreur()));
        return false;
    }
    return *resultat;
}

} // namespace compagnon
