// SPDX-License-Identifier: MPL-2.0
#include "PageMots.h"

#include "commun/MessagesHote.h"
#include "langue/Contexte.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace hote {

namespace {

constexpr int kRoleMot = Qt::UserRole;

QPushButton* CreeBouton(QString const& texte, QKeySequence const& touche) {
    auto* const bouton = new QPushButton(
        QStringLiteral("%1 (%2)").arg(texte, touche.toString(QKeySequence::NativeText)));
    bouton->setAccessibleName(texte);
    bouton->setAutoDefault(false);
    return bouton;
}

} // namespace

PageMots::PageMots(QWidget* parent)
    : QWidget(parent)
    , titre_(new QLabel)
    , phrase_(new VueDePhrase)
    , arbre_(new QTreeWidget)
    , remplace_(CreeBouton(EnQt(Tr("Remplacer")), Qt::Key_Return)) {
    titre_->setWordWrap(true);
    titre_->setTextFormat(Qt::PlainText);
    phrase_->setMaximumHeight(phrase_->fontMetrics().lineSpacing() * 5);
    arbre_->setHeaderHidden(true);
    arbre_->setAccessibleName(EnQt(Tr("Synonymes")));
    arbre_->setAccessibleDescription(
        EnQt(Tr("Entrée met le mot choisi à la place de celui du document.")));
    auto* const actualise = CreeBouton(EnQt(Tr("Relire la sélection")), Qt::Key_F5);
    actualise->setShortcut(Qt::Key_F5);
    auto* const boutons = new QHBoxLayout;
    boutons->addWidget(remplace_);
    boutons->addWidget(actualise);
    auto* const colonne = new QVBoxLayout(this);
    colonne->addWidget(titre_);
    colonne->addWidget(phrase_);
    colonne->addWidget(arbre_, 1);
    colonne->addLayout(boutons);
    setFocusProxy(arbre_);
    connect(arbre_, &QTreeWidget::itemActivated, this, &PageMots::RemplaceParChoisi);
    connect(remplace_, &QPushButton::clicked, this, &PageMots::RemplaceParChoisi);
    connect(actualise, &QPushButton::clicked, this, &PageMots::Demandee);
    Remplis();
}

void PageMots::Montre(MotsDuCurseur const& mots) {
    mots_ = mots;
    Remplis();
}

void PageMots::MontreIssue(bool fait) {
    if (fait) {
        Q_EMIT Demandee(); // the new word, which is selected
    } else {
        titre_->setText(EnQt(Tr("Le document a refusé, ou la sélection est une autre.")));
    }
}

void PageMots::Remplis() {
    QString const mot = DonnePourTerminal(mots_.DonneMot());
    titre_->setText(mot.isEmpty()  ? EnQt(Tr("Aucun mot n’est sélectionné dans le document."))
                    : !mots_.connu ? EnQt(Tr("« {1} » n’est pas dans le dictionnaire.", mot))
                    : mots_.articles.empty() ? EnQt(Tr("« {1} » : pas de synonyme.", mot))
                                             : EnQt(Tr("« {1} » : synonymes", mot)));
    phrase_->Montre(DonnePhrase(mots_.texte, mots_.debut, mots_.fin));
    arbre_->clear();
    if (!mots_.connu) {
        AjouteGroupe(EnQt(Tr("Orthographe")), mots_.suggestions, {});
    }
    for (Article const& article : mots_.articles) {
        for (Sens const& sens : article.sens) {
            QStringList synonymes;
            QStringList notes;
            for (Synonyme const& synonyme : sens.synonymes) {
                synonymes.append(DonneCasse(synonyme.mot, mots_.DonneMot()));
                notes.append(synonyme.note);
            }
            AjouteGroupe(sens.genre.isEmpty() ? article.entree
                                              : article.entree + QLatin1Char(' ') + sens.genre,
                         synonymes, notes);
        }
    }
    arbre_->expandAll();
    bool const plein = arbre_->topLevelItemCount() > 0;
    remplace_->setEnabled(plein);
    if (plein) {
        arbre_->setCurrentItem(arbre_->topLevelItem(0)->child(0));
    }
}

void PageMots::AjouteGroupe(QString const& titre, QStringList const& mots,
                            QStringList const& notes) {
    if (mots.isEmpty()) {
        return;
    }
    auto* const groupe = new QTreeWidgetItem(arbre_, {DonnePourTerminal(titre)});
    groupe->setFlags(Qt::ItemIsEnabled);
    for (int i = 0; i < mots.size(); ++i) {
        QString const note = notes.value(i);
        QString const texte =
            note.isEmpty() ? mots.at(i) : QStringLiteral("%1 (%2)").arg(mots.at(i), note);
        auto* const ligne = new QTreeWidgetItem(groupe, {DonnePourTerminal(texte)});
        ligne->setData(0, kRoleMot, mots.at(i));
    }
}

void PageMots::RemplaceParChoisi() {
    QTreeWidgetItem const* const choisi = arbre_->currentItem();
    QString const mot = choisi == nullptr ? QString() : choisi->data(0, kRoleMot).toString();
    if (!mot.isEmpty()) {
        Q_EMIT Remplace(mots_, mot);
    }
}

} // namespace hote
