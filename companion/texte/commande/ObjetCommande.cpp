// SPDX-License-Identifier: MPL-2.0
#include "ObjetCommande.h"

#include "ChainesQt.h"
#include "coeur/MessagesTexte.h"

namespace compagnon {

ObjetCommande::ObjetCommande(Bureau& bureau, Dereglements& dereglements, QObject* parent)
    : QObject(parent)
    , bureau_(bureau)
    , dereglements_(dereglements) {}

void ObjetCommande::Refuse(Erreur const& erreur) {
    sendErrorReply(QString::fromLatin1(NomErreur(erreur.code)), VersQString(DisErreur(erreur)));
}

template <class T>
T ObjetCommande::Rends(Resultat<T> resultat) {
    if (!resultat) {
        Refuse(resultat.DonneErreur());
        return T{};
    }
    return std::move(*resultat);
}

DocumentTexte* ObjetCommande::Document(QString const& cle) {
    DocumentTexte* const document = bureau_.Cherche(VersUtf8(cle));
    if (!document) {
        Refuse({CodeErreur::IdentifiantInconnu, VersUtf8(cle), {}});
    }
    return document;
}

void ObjetCommande::Deregle(QString const& methode, QString const& comment, QString const& detail,
                            int fois) {
    if (!dereglements_.Ajoute(methode, comment, detail, fois)) {
        sendErrorReply(
            QDBusError::InvalidArgs,
            VersQString(Dis({"Dérèglement inconnu, ou détail qui ne convient pas",
                             "Unknown way to misbehave, or a detail that does not fit"})));
    }
}

void ObjetCommande::Retablis() {
    dereglements_.Retablis();
}

void ObjetCommande::QuitteLeNom() {
    Q_EMIT NomAQuitter();
}

void ObjetCommande::ReprendsLeNom() {
    Q_EMIT NomAReprendre();
}

void ObjetCommande::Tape(QString const& idZone, int debut, int fin, QString const& texte) {
    Rends(bureau_.Tape(VersUtf8(idZone), {debut, fin}, VersUtf16(texte)));
}

void ObjetCommande::TapeAvant(QString const& methode, QString const& idZone, int debut, int fin,
                              QString const& texte) {
    if (!dereglements_.TapeAvant(methode, VersUtf8(idZone), {debut, fin}, VersUtf16(texte))) {
        sendErrorReply(QDBusError::LimitsExceeded);
    }
}

QString ObjetCommande::InsereZone(QString const& idZone, QString const& texte) {
    return VersQString(Rends(bureau_.InsereApres(VersUtf8(idZone), VersUtf16(texte))));
}

void ObjetCommande::SupprimeZone(QString const& idZone) {
    Rends(bureau_.Supprime(VersUtf8(idZone)));
}

void ObjetCommande::MetsSelection(QString const& idZone, int debut, int fin) {
    Rends(bureau_.Selectionne(VersUtf8(idZone), {debut, fin}));
}

void ObjetCommande::FermeDocument(QString const& leId) {
    if (Document(leId)) {
        bureau_.Ferme(VersUtf8(leId));
    }
}

QString ObjetCommande::DonneTexte(QString const& leId) {
    DocumentTexte const* const document = Document(leId);
    return document ? VersQString(document->DonneOctets()) : QString();
}

QString ObjetCommande::DonneSelection(QString const& leId, int& debut, int& fin) {
    DocumentTexte const* const document = Document(leId);
    if (!document) {
        return {};
    }
    Selection const& selection = document->DonneSelection();
    debut = selection.plage.debut;
    fin = selection.plage.fin;
    return VersQString(Bureau::CleDeZone(document->DonneZones()[selection.zone].numero));
}

QString ObjetCommande::DonneJournal() {
    return dereglements_.DonneJournal().Donne();
}

void ObjetCommande::VideJournal() {
    dereglements_.DonneJournal().Vide();
}

int ObjetCommande::AttendsAppels(QString const& methode, int nombre) {
    setDelayedReply(true);
    dereglements_.DonneJournal().Attends(message(), connection(), methode, nombre);
    return 0;
}

int ObjetCommande::DonneNombreAppelants() {
    return static_cast<int>(bureau_.DonneAppelants().Nombre());
}

} // namespace compagnon
