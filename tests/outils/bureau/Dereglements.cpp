// SPDX-License-Identifier: MPL-2.0
#include "Dereglements.h"

#include <QDBusVariant>
#include <QTimer>

#include <algorithm>
#include <csignal>
#include <unistd.h>

namespace {

using Comment = Dereglements::Comment;

struct Nomme {
    char const* nom;
    Comment comment;
    bool nombre; // its detail is a number, 0 or more
};

constexpr Nomme kFacons[] = {
    {"muet", Comment::Muet, false},
    {"lent", Comment::Lent, true},
    {"erreur", Comment::Erreur, false},
    {"refuse", Comment::Refuse, false},
    {"sans-argument", Comment::SansArgument, false},
    {"texte", Comment::Texte, false},
    {"entier", Comment::Entier, false},
    {"booleen", Comment::Booleen, false},
    {"variante", Comment::Variante, false},
    {"tableau", Comment::Tableau, true},
    {"taille", Comment::Taille, true},
    {"meurs", Comment::Meurs, false},
    {"quitte", Comment::Quitte, false},
};

constexpr std::size_t kFrappesMax = 1000;

/// A string of just so many bytes: a zone document full of "a" where there is room for one.
QString TexteDeTaille(int taille) {
    QByteArray const avant = QByteArrayLiteral("{\"Zones\":[{\"Nom\":\"ejE=\",\"Texte\":\"");
    QByteArray const apres = QByteArrayLiteral("\",\"DebutSel\":0,\"FinSel\":0}]}");
    int const reste = taille - avant.size() - apres.size();
    if (reste < 0) {
        return QString(taille, QLatin1Char('a'));
    }
    int const blocs = reste / 4;
    QString texte = QString::fromLatin1(avant);
    texte.reserve(taille);
    for (int i = 0; i < blocs; ++i) {
        texte += QLatin1String("YWFh"); // Base64 of "aaa"
    }
    // What Base64, in steps of four, cannot fill is white space before the end.
    texte += QString::fromLatin1(apres.left(apres.size() - 1));
    texte += QString(reste - blocs * 4, QLatin1Char(' ')) + QLatin1Char('}');
    return texte;
}

} // namespace

bool Dereglements::Ajoute(QString const& methode, QString const& comment, QString const& detail,
                          int fois) {
    auto const* const facon =
        std::find_if(std::begin(kFacons), std::end(kFacons),
                     [&](Nomme const& f) { return comment == QLatin1String(f.nom); });
    if (facon == std::end(kFacons) || fois < 0) {
        return false;
    }
    bool estNombre = false;
    int const nombre = detail.toInt(&estNombre);
    bool const veutNombre = facon->nombre || facon->comment == Comment::Entier;
    if ((veutNombre && !estNombre) || (facon->nombre && nombre < 0) ||
        (facon->comment == Comment::Booleen && detail != QLatin1String("true") &&
         detail != QLatin1String("false"))) {
        return false;
    }
    regles_.insert(methode, {facon->comment, detail, nombre, fois});
    return true;
}

void Dereglements::Retablis() {
    regles_.clear();
    frappes_.clear();
}

bool Dereglements::TapeAvant(QString const& methode, std::string zone, compagnon::Intervalle plage,
                             std::u16string texte) {
    if (frappes_.size() >= kFrappesMax) {
        return false;
    }
    frappes_.push_back({methode, std::move(zone), plage, std::move(texte)});
    return true;
}

bool Dereglements::PrendsRegle(QString const& methode, Regle& regle) {
    for (QString const& cle : {methode, QStringLiteral("*")}) {
        auto const trouvee = regles_.find(cle);
        if (trouvee == regles_.end()) {
            continue;
        }
        regle = *trouvee;
        if (trouvee->fois > 0 && --trouvee->fois == 0) {
            regles_.erase(trouvee);
        }
        return true;
    }
    return false;
}

void Dereglements::TapeCeQuiAttend(QString const& methode) {
    auto const frappe = std::find_if(frappes_.begin(), frappes_.end(), [&](Frappe const& attente) {
        return attente.methode == methode;
    });
    if (frappe != frappes_.end()) {
        try {
            personne_.Tape(frappe->zone, frappe->plage, frappe->texte);
        } catch (compagnon::ErreurDuService const&) {
            // Its place is gone meanwhile: the person types into nothing.
        }
        frappes_.erase(frappe);
    }
}

bool Dereglements::Prends(QDBusMessage const& appel, QDBusConnection const& connexion,
                          std::function<QDBusMessage()> const& sers) {
    journal_.Note(appel);
    TapeCeQuiAttend(appel.member());
    Regle regle{};
    if (!PrendsRegle(appel.member(), regle)) {
        return false;
    }
    Applique(regle, appel, connexion, sers);
    return true;
}

void Dereglements::Applique(Regle const& regle, QDBusMessage const& appel,
                            QDBusConnection const& connexion,
                            std::function<QDBusMessage()> const& sers) {
    switch (regle.comment) {
    case Comment::Muet:
        break;
    case Comment::Lent: {
        auto* const minuterie = new QTimer(this);
        minuterie->setSingleShot(true);
        minuterie->setTimerType(Qt::PreciseTimer); // others may go off early
        connect(minuterie, &QTimer::timeout, this, [minuterie, connexion, sers] {
            connexion.send(sers());
            minuterie->deleteLater();
        });
        minuterie->start(regle.nombre);
        break;
    }
    case Comment::Erreur:
        connexion.send(appel.createErrorReply(
            QStringLiteral("com.ombrel.vocalyne.Erreur.Commandee"), regle.detail));
        break;
    case Comment::Refuse:
        connexion.send(appel.createErrorReply(QDBusError::AccessDenied, regle.detail));
        break;
    case Comment::SansArgument: {
        QDBusMessage reponse = sers();
        reponse.setArguments({});
        connexion.send(reponse);
        break;
    }
    case Comment::Texte:
        connexion.send(appel.createReply(regle.detail));
        break;
    case Comment::Entier:
        connexion.send(appel.createReply(regle.nombre));
        break;
    case Comment::Booleen:
        connexion.send(appel.createReply(regle.detail == QLatin1String("true")));
        break;
    case Comment::Variante:
        connexion.send(
            appel.createReply(QVariant::fromValue(QDBusVariant(QVariant(regle.detail)))));
        break;
    case Comment::Tableau:
        connexion.send(appel.createReply(QVariant::fromValue(QList<int>{regle.nombre})));
        break;
    case Comment::Taille:
        connexion.send(appel.createReply(TexteDeTaille(regle.nombre)));
        break;
    case Comment::Meurs:
        ::kill(::getpid(), SIGKILL);
        break;
    case Comment::Quitte: {
        QDBusMessage const reponse = sers();
        Q_EMIT QuitteLeNom();
        connexion.send(reponse);
        break;
    }
    }
}
