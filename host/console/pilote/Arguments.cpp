// SPDX-License-Identifier: MPL-2.0
#include "Arguments.h"

#include "commun/MessagesHote.h"

#include <QJsonArray>

#include <cmath>
#include <limits>

namespace hote {

namespace {

ErreurRequete DonneErreurType(char const* nom, std::string const& attendu) {
    return ErreurRequete(Tr("L’argument « {1} » doit être {2}.", nom, attendu));
}

} // namespace

int Arguments::DonneEntier(char const* nom) const {
    QJsonValue const valeur = Trouve(nom);
    double const nombre = valeur.toDouble();
    // Compared as doubles: every 32-bit integer is one, and a conversion out of range is undefined.
    bool const entier = valeur.isDouble() && std::trunc(nombre) == nombre &&
                        nombre >= std::numeric_limits<int>::min() &&
                        nombre <= std::numeric_limits<int>::max();
    if (!entier) {
        throw DonneErreurType(nom, Tr("un entier de 32 bits"));
    }
    return static_cast<int>(nombre);
}

int Arguments::DonneEntier(char const* nom, int defaut) const {
    return Contient(nom) ? DonneEntier(nom) : defaut;
}

bool Arguments::DonneBooleen(char const* nom) const {
    QJsonValue const valeur = Trouve(nom);
    if (!valeur.isBool()) {
        throw DonneErreurType(nom, Tr("vrai ou faux"));
    }
    return valeur.toBool();
}

bool Arguments::DonneBooleen(char const* nom, bool defaut) const {
    return Contient(nom) ? DonneBooleen(nom) : defaut;
}

QString Arguments::DonneTexte(char const* nom) const {
    QJsonValue const valeur = Trouve(nom);
    if (!valeur.isString()) {
        throw DonneErreurType(nom, Tr("un texte"));
    }
    return valeur.toString();
}

QString Arguments::DonneTexte(char const* nom, QString const& defaut) const {
    return Contient(nom) ? DonneTexte(nom) : defaut;
}

Arguments Arguments::DonneObjet(char const* nom) const {
    QJsonValue const valeur = Trouve(nom);
    if (!valeur.isObject()) {
        throw DonneErreurType(nom, Tr("un objet"));
    }
    return Arguments(valeur.toObject());
}

std::vector<Arguments> Arguments::DonneObjets(char const* nom) const {
    std::vector<Arguments> objets;
    if (!Contient(nom)) {
        return objets;
    }
    QJsonValue const valeur = Trouve(nom);
    if (!valeur.isArray()) {
        throw DonneErreurType(nom, Tr("un tableau d’objets"));
    }
    for (QJsonValue const element : valeur.toArray()) {
        if (!element.isObject()) {
            throw DonneErreurType(nom, Tr("un tableau d’objets"));
        }
        objets.emplace_back(element.toObject());
    }
    return objets;
}

QJsonValue Arguments::Trouve(char const* nom) const {
    if (!Contient(nom)) {
        throw ErreurRequete(Tr("Il manque l’argument « {1} ».", nom));
    }
    return objet_.value(QLatin1String(nom));
}

} // namespace hote
