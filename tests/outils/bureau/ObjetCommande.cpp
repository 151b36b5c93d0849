// SPDX-License-Identifier: MPL-2.0
#include "ObjetCommande.h"

#include "ChainesQt.h"

using compagnon::Bureau;
using compagnon::DocumentTexte;
using compagnon::ErreurDuService;
using compagnon::VersQString;
using compagnon::VersUtf16;
using compagnon::VersUtf8;

ObjetCommande::ObjetCommande(Bureau& bureau, Dereglements& dereglements, QObject* parent)
    : QObject(parent)
    , bureau_(bureau)
    , personne_(bureau)
    , dereglements_(dereglements) {}

template <class Travail>
auto ObjetCommande::Fais(Travail const& travail) -> decltype(travail()) {
    try {
        return travail();
    } catch (ErreurDuService const& erreur) {
        sendErrorReply(QString::fromStdString(erreur.DonneNomDBus()),
                       QString::fromUtf8(erreur.what()));
        return decltype(travail())();
    }
}

DocumentTexte& ObjetCommande::Document(QString const& cle) {
    DocumentTexte* const document = bureau_.Cherche(VersUtf8(cle));
    if (!document) {
        throw ErreurDuService(contrat::Erreur::DocumentInconnu, VersUtf8(cle));
    }
    return *document;
}

void ObjetCommande::Deregle(QString const& methode, QString const& comment, QString const& detail,
                            int fois) {
    if (!dereglements_.Ajoute(methode, comment, detail, fois)) {
        sendErrorReply(
            QDBusError::InvalidArgs,
            QStringLiteral("an unknown way to misbehave, or a detail that does not fit"));
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
    Fais([&] { personne_.Tape(VersUtf8(idZone), {debut, fin}, VersUtf16(texte)); });
}

void ObjetCommande::TapeAvant(QString const& methode, QString const& idZone, int debut, int fin,
                              QString const& texte) {
    if (!dereglements_.TapeAvant(methode, VersUtf8(idZone), {debut, fin}, VersUtf16(texte))) {
        sendErrorReply(QDBusError::LimitsExceeded);
    }
}

QString ObjetCommande::InsereZone(QString const& idZone, QString const& texte) {
    return VersQString(
        Fais([&] { return personne_.InsereApres(VersUtf8(idZone), VersUtf16(texte)); }));
}

void ObjetCommande::SupprimeZone(QString const& idZone) {
    Fais([&] { personne_.Supprime(VersUtf8(idZone)); });
}

void ObjetCommande::MetsSelection(QString const& idZone, int debut, int fin) {
    Fais([&] { personne_.Selectionne(VersUtf8(idZone), {debut, fin}); });
}

void ObjetCommande::FermeDocument(QString const& leId) {
    Fais([&] { personne_.Ferme(VersUtf8(leId)); });
}

QString ObjetCommande::DonneTexte(QString const& leId) {
    return Fais([&] { return VersQString(Document(leId).DonneOctets()); });
}

QString ObjetCommande::DonneSelection(QString const& leId, int& debut, int& fin) {
    return Fais([&] {
        DocumentTexte const& document = Document(leId);
        compagnon::Selection const& selection = document.DonneSelection();
        debut = selection.plage.debut;
        fin = selection.plage.fin;
        return VersQString(Bureau::CleDeZone(document.DonneZones()[selection.zone].numero));
    });
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
