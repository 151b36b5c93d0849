// SPDX-License-Identifier: MPL-2.0
#include "Relais.h"

#include "LangueDuDocument.h"
#include "commun/ErreurHote.h"
#include "commun/MessagesHote.h"
#include "fenetre/echange/EcartJson.h"
#include "greffon/SelectionParAgent.h"
#include "moteurs/FaisParagraphe.h"
#include "reglages/ReglagesHote.h"

#include <QJsonArray>

#include <utility>

namespace hote {

namespace {

QString Texte(QJsonObject const& requete, char const* cle) {
    return requete.value(QLatin1String(cle)).toString();
}

int Entier(QJsonObject const& requete, char const* cle) {
    return requete.value(QLatin1String(cle)).toInt(-1);
}

constexpr int kDelaiAnnonceMs = 2000;
constexpr int kDelaiZonesMs = 20000; // the companion reads the document

} // namespace

Relais::Relais(Greffon const& greffon, QString const& id, Ecris ecris)
    : document_(greffon, id)
    , renseignements_(id)
    , ecris_(std::move(ecris)) {
    ReglagesHote reglages;
    reglages.Charge();
    langue_ = reglages.DonneLangue();
    if (!langue_.isEmpty()) {
        // The person's choice is worth more than the document's.
    } else if (auto const annonce = renseignements_.DonneAnnonce(kDelaiAnnonceMs)) {
        langue_ = annonce->langue;
    }
    ecris_({{QStringLiteral("op"), QStringLiteral("ouvert")},
            {QStringLiteral("id"), id},
            {QStringLiteral("titre"), document_.DonneTitre()},
            {QStringLiteral("chemin"), document_.DonneChemin()}});
}

void Relais::Traite(QJsonObject const& requete) {
    QString const op = Texte(requete, "op");
    if (op == QLatin1String("lis")) {
        Lis();
    } else if (op == QLatin1String("corrige")) {
        Corrige(requete);
    } else if (op == QLatin1String("selectionne")) {
        Selectionne(requete);
    } else if (op == QLatin1String("nomme")) {
        Nomme();
    } else if (op == QLatin1String("mots")) {
        ChercheLesMots();
    } else if (op == QLatin1String("remplace")) {
        RemplaceLeMot(requete);
    }
}

void Relais::Lis() {
    QElapsedTimer montre;
    montre.start();
    document_.Lis();
    std::vector<ParagrapheDuDocument> paragraphes = DonneParagraphes();
    QJsonObject reponse{{QStringLiteral("op"), QStringLiteral("lue")},
                        {QStringLiteral("ms"), static_cast<int>(montre.elapsed())}};
    if (version_ == 0 || !(paragraphes == lus_)) {
        ++version_;
        reponse.insert(QStringLiteral("ecart"), EnJson(Compare(lus_, paragraphes)));
        lus_ = std::move(paragraphes);
    }
    PlaceDuCurseur const endroit = ChercheEndroit();
    reponse.insert(QStringLiteral("version"), version_);
    reponse.insert(QStringLiteral("endroit"), QJsonArray{endroit.zone, endroit.debut, endroit.fin});
    ecris_(reponse);
}

std::vector<ParagrapheDuDocument> Relais::DonneParagraphes() {
    auto const& textes = document_.DonneTextes();
    if (langue_.isEmpty()) {
        langue_ = DevineLangue(textes);
    }
    std::vector<ParagrapheDuDocument> paragraphes;
    paragraphes.reserve(textes.size());
    for (int zone = 0; zone < document_.DonneNombre(); ++zone) {
        auto paragraphe = FaisParagraphe(textes[static_cast<std::size_t>(zone)],
                                         document_.DonnePlages(zone), langue_);
        paragraphes.push_back({std::move(paragraphe.texte), std::move(paragraphe.langues)});
    }
    return paragraphes;
}

PlaceDuCurseur Relais::ChercheEndroit() {
    // A caret at the very start of a zone reads like none at all: the reading then begins at the
    // document's start.
    for (int zone = 0; zone < document_.DonneNombre(); ++zone) {
        auto const selection = document_.DonneSelection(zone);
        if (selection.debut != 0 || selection.fin != 0) {
            return {zone, selection.debut, selection.fin};
        }
    }
    return {};
}

bool Relais::EstActuelle(QJsonObject const& requete) const {
    int const zone = Entier(requete, "zone");
    return Entier(requete, "version") == version_ && zone >= 0 && zone < document_.DonneNombre();
}

void Relais::Corrige(QJsonObject const& requete) {
    QString etat = QStringLiteral("perimee");
    QJsonObject reponse{{QStringLiteral("op"), QStringLiteral("corrigee")},
                        {QStringLiteral("jeton"), requete.value(QLatin1String("jeton"))}};
    if (EstActuelle(requete)) {
        int const zone = Entier(requete, "zone");
        int const debut = Entier(requete, "debut");
        QString const avant = Texte(requete, "avant");
        QString const apres = Texte(requete, "apres");
        int const fin = debut + avant.size();
        ParagrapheDuDocument& lu = lus_[static_cast<std::size_t>(zone)];
        bool const permise = lu.texte.mid(debut, avant.size()) == avant &&
                             document_.PeutCorriger(zone, debut, fin, avant);
        if (permise) {
            document_.Corrige(zone, debut, fin, apres, false);
            lu.texte.replace(debut, fin - debut, apres);
            lu.langues = FaisParagraphe(lu.texte, document_.DonnePlages(zone), langue_).langues;
            reponse.insert(QStringLiteral("zone"), zone);
            reponse.insert(QStringLiteral("apres"), EnJson(lu));
        } else {
            reponse.insert(QStringLiteral("raison"), DonneRaison(zone));
        }
        etat = permise ? QStringLiteral("faite") : QStringLiteral("refusee");
    }
    reponse.insert(QStringLiteral("etat"), etat);
    ecris_(reponse);
}

void Relais::Nomme() {
    auto const zones = renseignements_.LisZones(kDelaiZonesMs);
    // Another reading than ours, perhaps a moment later: names count where both have the same
    // zones.
    if (zones.size() != lus_.size()) {
        return;
    }
    cles_.clear();
    QJsonArray noms;
    for (std::size_t rang = 0; rang < zones.size(); ++rang) {
        bool const meme = zones[rang].texte == lus_[rang].texte;
        cles_.push_back(meme ? zones[rang].cle : QString());
        noms.append(meme ? zones[rang].nom : QString());
    }
    ecris_({{QStringLiteral("op"), QStringLiteral("nommee")},
            {QStringLiteral("version"), version_},
            {QStringLiteral("noms"), noms}});
}

void Relais::ChercheLesMots() {
    auto const selection = SelectionParAgent(document_.DonneAgent()).Lis();
    ecris_({{QStringLiteral("op"), QStringLiteral("mots")},
            {QStringLiteral("mots"),
             EnJson(mots_.Cherche(selection.texte, selection.debut, selection.fin,
                                  DonneLangue(selection.texte, selection.debut)))}});
}

void Relais::RemplaceLeMot(QJsonObject const& requete) {
    MotsDuCurseur const mots = LisMots(requete.value(QLatin1String("mots")).toObject());
    bool const fait = SelectionParAgent(document_.DonneAgent())
                          .Remplace({mots.texte, mots.debutSelection, mots.finSelection},
                                    mots.debut, mots.fin, Texte(requete, "nouveau"));
    ecris_({{QStringLiteral("op"), QStringLiteral("remplace")}, {QStringLiteral("fait"), fait}});
}

/// Of the selection's paragraph, as its style says; else the document's.
QString Relais::DonneLangue(QString const& texte, int position) const {
    for (ParagrapheDuDocument const& lu : lus_) {
        if (lu.texte == texte) {
            for (EtendueDeLangue const& etendue : lu.langues) {
                if (position < etendue.fin && !etendue.langue.isEmpty()) {
                    return etendue.langue;
                }
            }
        }
    }
    return langue_.isEmpty() ? DevineLangue({texte}) : langue_;
}

QString Relais::DonneRaison(int zone) {
    QString const cle = static_cast<std::size_t>(zone) < cles_.size()
                            ? cles_[static_cast<std::size_t>(zone)]
                            : QString();
    return cle.isEmpty() ? QString() : renseignements_.DonneRefus(cle, kDelaiAnnonceMs);
}

void Relais::Selectionne(QJsonObject const& requete) {
    if (EstActuelle(requete)) {
        document_.Selectionne(Entier(requete, "zone"), Entier(requete, "debut"),
                              Entier(requete, "fin"));
    }
}

} // namespace hote
