// SPDX-License-Identifier: MPL-2.0
#include "LiaisonProcessus.h"

#include "fenetre/echange/EcartJson.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace hote {

namespace {

constexpr int kRepriseMs = 2000;
constexpr int kPatienceMs = 3000;
// A reading costs the office time: ten times as long is left between two of them.
constexpr int kPauseMinMs = 1000;
constexpr int kPauseMaxMs = 20000;
constexpr int kPauseParLecture = 10;
constexpr int kApresCorrectionMs = 400;
constexpr int kAdieuMs = 1000;

} // namespace

LiaisonProcessus::LiaisonProcessus(Programme programme, QString id, QObject* parent)
    : Liaison(parent)
    , programme_(std::move(programme))
    , id_(std::move(id)) {
    reprise_.setSingleShot(true);
    lecture_.setSingleShot(true);
    patience_.setSingleShot(true);
    connect(&reprise_, &QTimer::timeout, this, &LiaisonProcessus::Demarre);
    connect(&lecture_, &QTimer::timeout, this, &LiaisonProcessus::Lis);
    connect(&patience_, &QTimer::timeout, this, [this] { Q_EMIT Attend(true); });
}

LiaisonProcessus::~LiaisonProcessus() {
    if (processus_ != nullptr) {
        processus_->disconnect(this);
        processus_->closeWriteChannel(); // the end of its work
        if (!processus_->waitForFinished(kAdieuMs)) {
            processus_->kill();
            processus_->waitForFinished(kAdieuMs);
        }
    }
}

void LiaisonProcessus::Demarre() {
    processus_ = new QProcess(this);
    processus_->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    connect(processus_, &QProcess::readyReadStandardOutput, this, &LiaisonProcessus::RecoisLignes);
    connect(processus_, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            &LiaisonProcessus::RecoisFin);
    connect(processus_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError erreur) {
        if (erreur == QProcess::FailedToStart) { // the only one that no `finished` follows
            raison_ = processus_->errorString();
            RecoisFin();
        }
    });
    raison_.clear();
    MetsAttente(1); // that it opens the document
    processus_->start(programme_.chemin,
                      programme_.avant + QStringList{id_, chemin_} + programme_.apres);
}

void LiaisonProcessus::Envoie(QJsonObject const& requete, bool reponse) {
    if (!ouverte_) {
        return;
    }
    processus_->write(QJsonDocument(requete).toJson(QJsonDocument::Compact) + '\n');
    if (reponse) {
        MetsAttente(enAttente_ + 1);
    }
}

void LiaisonProcessus::MetsAttente(int nombre) {
    bool const longtemps = enAttente_ > 0 && !patience_.isActive();
    enAttente_ = std::max(nombre, 0);
    if (longtemps) {
        Q_EMIT Attend(false);
    }
    if (enAttente_ > 0) {
        patience_.start(kPatienceMs);
    } else {
        patience_.stop();
    }
}

void LiaisonProcessus::Lis() {
    lecture_.stop();
    Envoie({{QStringLiteral("op"), QStringLiteral("lis")}}, true);
}

void LiaisonProcessus::Nomme() {
    Envoie({{QStringLiteral("op"), QStringLiteral("nomme")}}, false);
}

void LiaisonProcessus::Corrige(quint64 jeton, int paragraphe, int debut, QString const& avant,
                               QString const& apres) {
    Envoie({{QStringLiteral("op"), QStringLiteral("corrige")},
            {QStringLiteral("jeton"), static_cast<double>(jeton)},
            {QStringLiteral("version"), version_},
            {QStringLiteral("zone"), paragraphe},
            {QStringLiteral("debut"), debut},
            {QStringLiteral("avant"), avant},
            {QStringLiteral("apres"), apres}},
           true);
}

void LiaisonProcessus::Selectionne(int paragraphe, int debut, int fin) {
    Envoie({{QStringLiteral("op"), QStringLiteral("selectionne")},
            {QStringLiteral("version"), version_},
            {QStringLiteral("zone"), paragraphe},
            {QStringLiteral("debut"), debut},
            {QStringLiteral("fin"), fin}},
           false);
}

void LiaisonProcessus::ChercheMots() {
    Envoie({{QStringLiteral("op"), QStringLiteral("mots")}}, true);
}

void LiaisonProcessus::RemplaceMot(MotsDuCurseur const& mots, QString const& nouveau) {
    Envoie({{QStringLiteral("op"), QStringLiteral("remplace")},
            {QStringLiteral("mots"), EnJson(mots)},
            {QStringLiteral("nouveau"), nouveau}},
           true);
}

void LiaisonProcessus::RecoisLignes() {
    QProcess* const source = processus_;
    while (processus_ == source && source->canReadLine()) {
        Recois(QJsonDocument::fromJson(source->readLine()).object());
    }
}

void LiaisonProcessus::Recois(QJsonObject const& reponse) {
    QString const op = reponse.value(QLatin1String("op")).toString();
    if (op == QLatin1String("ouvert")) {
        MetsAttente(0);
        ouverte_ = true;
        version_ = 0;
        lue_ = {};
        id_ = reponse.value(QLatin1String("id")).toString(id_);
        chemin_ = reponse.value(QLatin1String("chemin")).toString();
        Q_EMIT Ouverte(reponse.value(QLatin1String("titre")).toString());
        Lis();
    } else if (op == QLatin1String("lue")) {
        MetsAttente(enAttente_ - 1);
        RecoisLecture(reponse);
    } else if (op == QLatin1String("corrigee")) {
        MetsAttente(enAttente_ - 1);
        QString const etat = reponse.value(QLatin1String("etat")).toString();
        lecture_.start(kApresCorrectionMs);
        auto const zone = reponse.value(QLatin1String("zone")).toInt(-1);
        auto const corrige = LisParagraphe(reponse.value(QLatin1String("apres")).toObject());
        if (corrige && zone >= 0 && zone < static_cast<int>(lue_.paragraphes.size())) {
            lue_.paragraphes[static_cast<std::size_t>(zone)] = *corrige;
        }
        Q_EMIT Corrigee(static_cast<quint64>(reponse.value(QLatin1String("jeton")).toDouble()),
                        etat == QLatin1String("faite")     ? IssueDeCorrection::Faite
                        : etat == QLatin1String("refusee") ? IssueDeCorrection::Refusee
                                                           : IssueDeCorrection::Perimee,
                        reponse.value(QLatin1String("raison")).toString());
    } else if (op == QLatin1String("nommee") &&
               reponse.value(QLatin1String("version")).toInt() == version_) {
        QStringList noms;
        for (auto const& nom : reponse.value(QLatin1String("noms")).toArray()) {
            noms.append(nom.toString());
        }
        Q_EMIT Nommee(noms);
    } else if (op == QLatin1String("mots")) {
        MetsAttente(enAttente_ - 1);
        Q_EMIT MotsTrouves(LisMots(reponse.value(QLatin1String("mots")).toObject()));
    } else if (op == QLatin1String("remplace")) {
        MetsAttente(enAttente_ - 1);
        lecture_.start(kApresCorrectionMs);
        Q_EMIT MotRemplace(reponse.value(QLatin1String("fait")).toBool());
    } else if (op == QLatin1String("perdu")) {
        raison_ = reponse.value(QLatin1String("raison")).toString();
    }
}

void LiaisonProcessus::RecoisLecture(QJsonObject const& reponse) {
    int const ms = reponse.value(QLatin1String("ms")).toInt();
    lecture_.start(std::clamp(ms * kPauseParLecture, kPauseMinMs, kPauseMaxMs));
    if (!reponse.contains(QLatin1String("ecart"))) {
        Q_EMIT Inchangee();
        return;
    }
    auto const ecart = LisEcart(reponse.value(QLatin1String("ecart")).toObject());
    if (!ecart || !Applique(*ecart, lue_.paragraphes)) {
        processus_->kill(); // no sense can be made of it: from the start
        return;
    }
    version_ = reponse.value(QLatin1String("version")).toInt();
    QJsonArray const endroit = reponse.value(QLatin1String("endroit")).toArray();
    lue_.endroit = {endroit.at(0).toInt(-1), endroit.at(1).toInt(), endroit.at(2).toInt()};
    Q_EMIT Lue(lue_);
}

void LiaisonProcessus::RecoisFin() {
    ouverte_ = false;
    lecture_.stop();
    MetsAttente(0);
    processus_->disconnect(this);
    processus_->deleteLater();
    processus_ = nullptr;
    reprise_.start(kRepriseMs);
    Q_EMIT Perdue(raison_);
}

} // namespace hote
