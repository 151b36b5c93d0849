// SPDX-License-Identifier: MPL-2.0
#include "PageReglages.h"

#include "Textes.h"
#include "commun/MessagesHote.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace hote {

namespace {

constexpr int kRoleNom = Qt::UserRole;

QString DonneMotEtat(EtatMoteur etat) {
    switch (etat) {
    case EtatMoteur::Arrete:
        return {};
    case EtatMoteur::Demarre:
        return EnQt(Tr("démarre"));
    case EtatMoteur::Pret:
        return EnQt(Tr("prêt"));
    case EtatMoteur::Absent:
        return EnQt(Tr("absent"));
    case EtatMoteur::EnPanne:
        return EnQt(Tr("en panne"));
    }
    return {};
}

} // namespace

PageReglages::PageReglages(ReglagesHote& reglages, QStringList const& moteurs, QWidget* parent)
    : QWidget(parent)
    , reglages_(reglages) {
    auto* const colonne = new QVBoxLayout(this);
    colonne->addWidget(CreeLangue());
    colonne->addWidget(CreeMoteurs(moteurs), 1);
    colonne->addWidget(CreeListe(EnQt(Tr("Règles éteintes")), regles_, EnQt(Tr("Rallumer")),
                                 &PageReglages::OteRegle),
                       1);
    colonne->addWidget(
        CreeListe(EnQt(Tr("Mes mots")), mots_, EnQt(Tr("Ôter")), &PageReglages::OteMot), 1);
}

QWidget* PageReglages::CreeLangue() {
    auto* const cadre = new QWidget;
    auto* const ligne = new QHBoxLayout(cadre);
    ligne->setContentsMargins(0, 0, 0, 0);
    auto* const invite = new QLabel(EnQt(Tr("&Langue des textes :")));
    langue_ = new QComboBox;
    langue_->setAccessibleName(EnQt(Tr("Langue des textes")));
    langue_->addItem(EnQt(Tr("celle du document")), QString());
    langue_->addItem(EnQt(Tr("français")), QStringLiteral("fr"));
    langue_->addItem(EnQt(Tr("anglais")), QStringLiteral("en"));
    langue_->setCurrentIndex(std::max(langue_->findData(reglages_.DonneLangue()), 0));
    langue_->setToolTip(EnQt(Tr("Compte dès la prochaine ouverture de la fenêtre.")));
    langue_->setAccessibleDescription(langue_->toolTip());
    invite->setBuddy(langue_);
    connect(langue_, qOverload<int>(&QComboBox::activated), this,
            [this] { reglages_.MetsLangue(langue_->currentData().toString()); });
    ligne->addWidget(invite);
    ligne->addWidget(langue_, 1);
    return cadre;
}

QWidget* PageReglages::CreeMoteurs(QStringList const& moteurs) {
    auto* const cadre = new QGroupBox(EnQt(Tr("Moteurs")));
    auto* const colonne = new QVBoxLayout(cadre);
    moteurs_ = new QListWidget;
    moteurs_->setWordWrap(true);
    moteurs_->setAccessibleName(EnQt(Tr("Moteurs")));
    moteurs_->setAccessibleDescription(
        EnQt(Tr("Ceux qui sont cochés comptent dès la prochaine ouverture de la fenêtre.")));
    moteurs_->setToolTip(moteurs_->accessibleDescription());
    for (QString const& moteur : moteurs) {
        auto* const ligne = new QListWidgetItem(moteur, moteurs_);
        ligne->setData(kRoleNom, moteur);
        ligne->setFlags(ligne->flags() | Qt::ItemIsUserCheckable);
        ligne->setCheckState(reglages_.EstMoteurEteint(moteur) ? Qt::Unchecked : Qt::Checked);
    }
    connect(moteurs_, &QListWidget::itemChanged, this, [this](QListWidgetItem const* ligne) {
        reglages_.EteinsMoteur(ligne->data(kRoleNom).toString(),
                               ligne->checkState() == Qt::Unchecked);
    });
    colonne->addWidget(moteurs_);
    return cadre;
}

QWidget* PageReglages::CreeListe(QString const& titre, QListWidget*& liste, QString const& bouton,
                                 void (PageReglages::*ote)(QString const&)) {
    auto* const cadre = new QGroupBox(titre);
    auto* const colonne = new QVBoxLayout(cadre);
    auto* const contenu = new QListWidget;
    contenu->setAccessibleName(titre);
    auto* const poussoir = new QPushButton(bouton);
    poussoir->setAutoDefault(false);
    connect(poussoir, &QPushButton::clicked, this, [this, contenu, ote] {
        if (QListWidgetItem const* const choisi = contenu->currentItem()) {
            (this->*ote)(choisi->data(kRoleNom).toString());
            Actualise();
            Q_EMIT Changes();
        }
    });
    colonne->addWidget(contenu);
    colonne->addWidget(poussoir);
    liste = contenu;
    return cadre;
}

void PageReglages::MontreEtat(QString const& moteur, EtatMoteur etat, QString const& message) {
    for (int rang = 0; rang < moteurs_->count(); ++rang) {
        QListWidgetItem* const ligne = moteurs_->item(rang);
        if (ligne->data(kRoleNom).toString() == moteur) {
            QString const mot = DonneMotEtat(etat);
            ligne->setText(moteur + (mot.isEmpty() ? QString() : QStringLiteral(" – ") + mot) +
                           (message.isEmpty() ? QString() : QStringLiteral(". ") + message));
        }
    }
}

void PageReglages::OteRegle(QString const& regle) {
    reglages_.EteinsRegle(regle.section(QLatin1Char('/'), 0, 0), regle.section(QLatin1Char('/'), 1),
                          false);
}

void PageReglages::OteMot(QString const& mot) {
    reglages_.OublieMot(mot.section(QLatin1Char('/'), 1), mot.section(QLatin1Char('/'), 0, 0));
}

void PageReglages::Actualise() {
    auto const ajoute = [](QListWidget* liste, QString const& texte, QString const& nom) {
        auto* const ligne = new QListWidgetItem(texte, liste);
        ligne->setData(kRoleNom, nom);
    };
    regles_->clear();
    for (QString const& regle : reglages_.DonneReglesEteintes()) {
        ajoute(regles_, regle, regle);
    }
    mots_->clear();
    for (QString const& langue : {QStringLiteral("fr"), QStringLiteral("en")}) {
        for (QString const& mot : reglages_.DonneMots(langue)) {
            ajoute(mots_, QStringLiteral("%1 (%2)").arg(mot, langue),
                   langue + QLatin1Char('/') + mot);
        }
    }
}

void PageReglages::showEvent(QShowEvent* evenement) {
    Actualise();
    QWidget::showEvent(evenement);
}

} // namespace hote
