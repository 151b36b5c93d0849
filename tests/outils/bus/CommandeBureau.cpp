// SPDX-License-Identifier: MPL-2.0
#include "CommandeBureau.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <gtest/gtest.h>

namespace {

QString Q(std::string const& texte) {
    return QString::fromStdString(texte);
}

} // namespace

CommandeBureau::CommandeBureau(QString const& nomUnique)
    : lien_(nomUnique, QStringLiteral("/com/ombrel/vocalyne/commande"),
            QStringLiteral("com.ombrel.vocalyne.bureau.commande")) {}

QVariantList CommandeBureau::Demande(char const* methode, QVariantList const& arguments) {
    QDBusMessage const reponse = lien_.Appelle(QLatin1String(methode), arguments);
    if (reponse.type() != QDBusMessage::ReplyMessage) {
        ADD_FAILURE() << methode << ": " << reponse.errorMessage().toStdString();
        return {QVariant(), QVariant(), QVariant()};
    }
    return reponse.arguments();
}

void CommandeBureau::Deregle(std::string const& methode, std::string const& comment,
                             std::string const& detail, int fois) {
    Demande("Deregle", {Q(methode), Q(comment), Q(detail), fois});
}

void CommandeBureau::Retablis() {
    Demande("Retablis");
}

void CommandeBureau::QuitteLeNom() {
    Demande("QuitteLeNom");
}

void CommandeBureau::ReprendsLeNom() {
    Demande("ReprendsLeNom");
}

void CommandeBureau::Tape(std::string const& zone, int debut, int fin, std::string const& texte) {
    Demande("Tape", {Q(zone), debut, fin, Q(texte)});
}

void CommandeBureau::TapeAvant(std::string const& methode, std::string const& zone, int debut,
                               int fin, std::string const& texte) {
    Demande("TapeAvant", {Q(methode), Q(zone), debut, fin, Q(texte)});
}

std::string CommandeBureau::InsereZone(std::string const& zone, std::string const& texte) {
    return Demande("InsereZone", {Q(zone), Q(texte)}).value(0).toString().toStdString();
}

void CommandeBureau::SupprimeZone(std::string const& zone) {
    Demande("SupprimeZone", {Q(zone)});
}

void CommandeBureau::MetsSelection(std::string const& zone, int debut, int fin) {
    Demande("MetsSelection", {Q(zone), debut, fin});
}

void CommandeBureau::FermeDocument(std::string const& cle) {
    Demande("FermeDocument", {Q(cle)});
}

std::string CommandeBureau::DonneTexte(std::string const& cle) {
    return Demande("DonneTexte", {Q(cle)}).value(0).toString().toStdString();
}

CommandeBureau::SelectionVue CommandeBureau::DonneSelection(std::string const& cle) {
    QVariantList const reponse = Demande("DonneSelection", {Q(cle)});
    return {reponse.value(0).toString().toStdString(), reponse.value(1).toInt(),
            reponse.value(2).toInt()};
}

QJsonArray CommandeBureau::DonneJournal() {
    return QJsonDocument::fromJson(Demande("DonneJournal").value(0).toString().toUtf8()).array();
}

void CommandeBureau::VideJournal() {
    Demande("VideJournal");
}

std::string CommandeBureau::DonneMethodes() {
    QStringList methodes;
    for (QJsonValue const appel : DonneJournal()) {
        methodes += appel.toObject().value(QLatin1String("methode")).toString();
    }
    return methodes.join(QLatin1Char(' ')).toStdString();
}

int CommandeBureau::AttendsAppels(std::string const& methode, int nombre) {
    return Demande("AttendsAppels", {Q(methode), nombre}).value(0).toInt();
}

int CommandeBureau::DonneNombreAppelants() {
    return Demande("DonneNombreAppelants").value(0).toInt();
}
