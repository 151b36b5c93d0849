// SPDX-License-Identifier: MPL-2.0
#include "Pilote.h"

#include "commun/MessagesHote.h"

#include <QJsonDocument>

namespace hote {

std::string Pilote::Reponds(LecteurDeLignes::Ligne const& ligne) {
    if (ligne.tropLongue) {
        return DonneErreur({}, Tr("Ligne de plus de {1} octets.", kLigneMax));
    }
    QJsonParseError erreur;
    QJsonDocument const json = QJsonDocument::fromJson(ligne.octets, &erreur);
    if (erreur.error != QJsonParseError::NoError) {
        return DonneErreur({}, Tr("La ligne n’est pas du JSON : {1} (octet {2})",
                                  erreur.errorString(), erreur.offset));
    }
    if (!json.isObject()) {
        return DonneErreur({}, Tr("La requête n’est pas un objet."));
    }
    QJsonObject const requete = json.object();
    return Execute(requete.value(QLatin1String("op")), Arguments(requete));
}

std::string Pilote::Execute(QJsonValue const& op, Arguments const& arguments) {
    EcritureJson reponse;
    reponse.OuvreObjet();
    reponse.EcrisCle("op").EcrisTexte(op.toString());
    reponse.EcrisCle("resultat");
    try {
        ExecuteOperation(banc_, arguments.DonneTexte("op"), arguments, reponse);
    } catch (std::exception const& erreur) {
        return DonneErreur(op, erreur.what());
    } catch (...) {
        return DonneErreur(op, Tr("Le connecteur a lancé une exception sans message."));
    }
    reponse.EcrisCle("alertes");
    alertes_.Ecris(reponse);
    reponse.FermeObjet();
    return reponse.DonneJson() + '\n';
}

std::string Pilote::DonneErreur(QJsonValue const& op, std::string const& message) {
    EcritureJson reponse;
    reponse.OuvreObjet();
    reponse.EcrisCle("op");
    if (op.isString()) {
        reponse.EcrisTexte(op.toString());
    } else {
        reponse.EcrisNul();
    }
    reponse.EcrisCle("erreur").EcrisTexte(QString::fromStdString(message));
    if (!alertes_.EstVide()) {
        reponse.EcrisCle("alertes");
        alertes_.Ecris(reponse);
    }
    reponse.FermeObjet();
    return reponse.DonneJson() + '\n';
}

} // namespace hote
