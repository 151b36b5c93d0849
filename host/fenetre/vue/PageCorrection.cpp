// SPDX-License-Identifier: MPL-2.0
#include "PageCorrection.h"

#include "commun/MessagesHote.h"
#include "langue/Contexte.h"

#include <QApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace hote {

namespace {

constexpr int kSuggestionsNumerotees = 9;
// Often enough to look immediate, seldom enough to cost nothing while a long document is examined.
constexpr int kActualisationMs = 60;
// The row of digits has these codes on X11 and Wayland, whatever the layout writes on it: on a
// French keyboard the digits themselves want the Shift key.
constexpr quint32 kCodeTouche1 = 10;

/// 1 to 9, or 0 for a key that is no digit.
int LisChiffre(QKeyEvent const& touche) {
    if ((touche.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) != Qt::NoModifier) {
        return 0;
    }
    if (touche.key() >= Qt::Key_1 && touche.key() <= Qt::Key_9) {
        return touche.key() - Qt::Key_0;
    }
    quint32 const code = touche.nativeScanCode();
    bool const rangee = touche.modifiers() == Qt::NoModifier && code >= kCodeTouche1 &&
                        code < kCodeTouche1 + kSuggestionsNumerotees;
    return rangee ? static_cast<int>(code - kCodeTouche1) + 1 : 0;
}

QLabel* CreeEtiquette() {
    auto* const etiquette = new QLabel;
    etiquette->setWordWrap(true);
    etiquette->setTextFormat(Qt::PlainText);
    return etiquette;
}

} // namespace

PageCorrection::PageCorrection(Revue& revue, QWidget* parent)
    : QWidget(parent)
    , revue_(revue)
    , modele_(revue) {
    auto* const colonne = new QVBoxLayout(this);
    etat_ = CreeEtiquette();
    etat_->hide();
    colonne->addWidget(etat_);
    colonne->addWidget(CreeRemarque());
    colonne->addWidget(CreeActions());
    colonne->addWidget(CreeListe(), 1);
    // Digits count wherever the keyboard is in the window, but where they are letters.
    QApplication::instance()->installEventFilter(this);
    setFocusProxy(suggestions_);
    bientot_.setSingleShot(true);
    EcouteRevue();
    Actualise();
}

QWidget* PageCorrection::CreeRemarque() {
    auto* const cadre = new QWidget;
    auto* const colonne = new QVBoxLayout(cadre);
    colonne->setContentsMargins(0, 0, 0, 0);
    genre_ = CreeEtiquette();
    QFont gras = genre_->font();
    gras.setBold(true);
    genre_->setFont(gras);
    phrase_ = new VueDePhrase;
    phrase_->setMinimumHeight(phrase_->fontMetrics().lineSpacing() * 4);
    phrase_->setMaximumHeight(phrase_->fontMetrics().lineSpacing() * 7);
    explication_ = CreeEtiquette();
    suggestions_ = new QListWidget;
    suggestions_->setAccessibleName(EnQt(Tr("Suggestions")));
    suggestions_->setAccessibleDescription(EnQt(Tr("Les touches 1 à 9 prennent une suggestion.")));
    suggestions_->setMaximumHeight(suggestions_->fontMetrics().lineSpacing() * 8);
    connect(suggestions_, &QListWidget::currentRowChanged, this, [this](int rang) {
        if (auto const montree = revue_.Donne(montree_); montree && rang >= 0) {
            autre_->setText(montree->remarque.suggestions.value(rang));
        }
    });
    connect(suggestions_, &QListWidget::itemActivated, this,
            [this] { ChoisisSuggestion(suggestions_->currentRow()); });
    auto* const ligne = new QHBoxLayout;
    auto* const invite = new QLabel(EnQt(Tr("Remplacer &par :")));
    autre_ = new QLineEdit;
    autre_->setAccessibleName(EnQt(Tr("Remplacer par")));
    invite->setBuddy(autre_);
    connect(autre_, &QLineEdit::returnPressed, this, [this] { Corrige(false); });
    ligne->addWidget(invite);
    ligne->addWidget(autre_, 1);
    colonne->addWidget(genre_);
    colonne->addWidget(phrase_);
    colonne->addWidget(explication_);
    colonne->addWidget(suggestions_);
    colonne->addLayout(ligne);
    return cadre;
}

QPushButton* PageCorrection::CreeBouton(QString const& texte, QList<QKeySequence> const& touches,
                                        QString const& description, void (Revue::*geste)()) {
    auto* const bouton = new QPushButton(
        QStringLiteral("%1 (%2)").arg(texte, touches.first().toString(QKeySequence::NativeText)));
    bouton->setAccessibleName(texte);
    bouton->setAccessibleDescription(description);
    bouton->setToolTip(description);
    bouton->setShortcut(touches.first());
    bouton->setAutoDefault(false);
    if (geste != nullptr) {
        connect(bouton, &QPushButton::clicked, &revue_, geste);
    }
    return bouton;
}

QWidget* PageCorrection::CreeActions() {
    auto* const cadre = new QWidget;
    auto* const grille = new QGridLayout(cadre);
    grille->setContentsMargins(0, 0, 0, 0);
    corrige_ = CreeBouton(EnQt(Tr("Corriger")), {Qt::Key_C},
                          EnQt(Tr("Met ce texte à la place de la faute.")), nullptr);
    corrigeTous_ =
        CreeBouton(EnQt(Tr("Tous les pareils")), {Qt::Key_T},
                   EnQt(Tr("Corrige de même chaque faute pareille du document.")), nullptr);
    connect(corrige_, &QPushButton::clicked, this, [this] { Corrige(false); });
    connect(corrigeTous_, &QPushButton::clicked, this, [this] { Corrige(true); });
    auto* const ignore = CreeBouton(EnQt(Tr("Ignorer")), {Qt::Key_I},
                                    EnQt(Tr("Laisse ce passage comme il est.")), &Revue::Ignore);
    auto* const partout =
        CreeBouton(EnQt(Tr("Ignorer partout")), {QKeySequence(Qt::SHIFT + Qt::Key_I)},
                   EnQt(Tr("Laisse ces mots comme ils sont, où qu’ils soient dans ce document.")),
                   &Revue::IgnorePartout);
    auto* const ajoute =
        CreeBouton(EnQt(Tr("Ajouter à mes mots")), {Qt::Key_A},
                   EnQt(Tr("Ce mot est juste, dans tous vos documents.")), &Revue::AjouteAuxMots);
    auto* const regle =
        CreeBouton(EnQt(Tr("Éteindre la règle")), {Qt::Key_R},
                   EnQt(Tr("Plus aucune remarque de cette règle.")), &Revue::EteinsRegle);
    auto* const precedente =
        CreeBouton(EnQt(Tr("Précédente")), {Qt::Key_P},
                   EnQt(Tr("Revient à la remarque précédente.")), &Revue::Precedente);
    auto* const suivante =
        CreeBouton(EnQt(Tr("Suivante")), {Qt::Key_S},
                   EnQt(Tr("Passe à la remarque suivante, sans rien décider.")), &Revue::Suivante);
    annule_ = CreeBouton(EnQt(Tr("Annuler")), {QKeySequence(Qt::CTRL + Qt::Key_Z)},
                         EnQt(Tr("Défait ce qui vient d’être décidé.")), &Revue::Annule);
    grille->addWidget(corrige_, 0, 0);
    grille->addWidget(corrigeTous_, 0, 1);
    grille->addWidget(ignore, 1, 0);
    grille->addWidget(partout, 1, 1);
    grille->addWidget(ajoute, 2, 0);
    grille->addWidget(regle, 2, 1);
    grille->addWidget(precedente, 3, 0);
    grille->addWidget(suivante, 3, 1);
    grille->addWidget(annule_, 4, 0, 1, 2);
    for (QPushButton* const bouton :
         {corrige_, corrigeTous_, ignore, partout, ajoute, regle, precedente, suivante}) {
        actions_.push_back({bouton, true});
    }
    return cadre;
}

QWidget* PageCorrection::CreeListe() {
    auto* const cadre = new QWidget;
    auto* const colonne = new QVBoxLayout(cadre);
    colonne->setContentsMargins(0, 0, 0, 0);
    compte_ = CreeEtiquette();
    liste_ = new QListView;
    liste_->setModel(&modele_);
    liste_->setUniformItemSizes(true);
    liste_->setAccessibleName(EnQt(Tr("Remarques")));
    liste_->setAccessibleDescription(EnQt(Tr("En choisir une la montre dans le document.")));
    connect(liste_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](QModelIndex const& index) {
                quint64 const id = modele_.DonneId(index.row());
                if (liste_->hasFocus() && id != 0) { // else the list follows the review
                    revue_.Montre(id);
                }
            });
    auto* const ligne = new QHBoxLayout;
    progres_ = new QProgressBar;
    progres_->setAccessibleName(EnQt(Tr("Paragraphes examinés")));
    arrete_ = new QPushButton;
    connect(arrete_, &QPushButton::clicked, this, [this] {
        if (revue_.EstArretee()) {
            revue_.Reprends();
        } else {
            revue_.Arrete();
        }
    });
    ligne->addWidget(progres_, 1);
    ligne->addWidget(arrete_);
    colonne->addWidget(compte_);
    colonne->addWidget(liste_, 1);
    colonne->addLayout(ligne);
    return cadre;
}

void PageCorrection::EcouteRevue() {
    connect(&bientot_, &QTimer::timeout, this, &PageCorrection::Actualise);
    connect(&revue_, &Revue::CouranteChangee, this, &PageCorrection::Actualise);
    for (auto const signal : {&Revue::Changee, &Revue::ProgresChange, &Revue::EtatChange}) {
        connect(&revue_, signal, this, &PageCorrection::ActualiseBientot);
    }
}

void PageCorrection::ActualiseBientot() {
    if (!bientot_.isActive()) {
        bientot_.start(kActualisationMs);
    }
}

void PageCorrection::Annonce(QString const& phrase) {
    etat_->setText(phrase);
    etat_->setVisible(!phrase.isEmpty());
}

void PageCorrection::Actualise() {
    modele_.Actualise();
    if (revue_.Donne(revue_.DonneCourante())) {
        MontreRemarque();
    } else {
        MontreRien();
    }
    annule_->setEnabled(revue_.PeutAnnuler() && !revue_.EstPerdue());
    MontreProgres();
}

void PageCorrection::MontreRemarque() {
    auto const montree = *revue_.Donne(revue_.DonneCourante());
    bool const nouvelle = montree.id != montree_;
    montree_ = montree.id;
    QString const genre = DonneNomDuGenre(montree.remarque.genre);
    genre_->setText(montree.endroit.isEmpty() ? genre
                                              : EnQt(Tr("{1}, {2}", genre, montree.endroit)));
    phrase_->Montre(DonnePhrase(montree.texte, montree.remarque.debut, montree.remarque.fin));
    QString explication = montree.remarque.explication;
    if (montree.etat == EtatRemarque::Refusee) {
        explication = (montree.raison.isEmpty() ? EnQt(Tr("Le document a refusé la correction."))
                                                : montree.raison) +
                      QLatin1Char('\n') + explication;
    }
    explication_->setText(explication);
    if (nouvelle || suggestions_->count() !=
                        std::min(montree.remarque.suggestions.size(), kSuggestionsNumerotees)) {
        suggestions_->clear();
        for (QString const& suggestion :
             montree.remarque.suggestions.mid(0, kSuggestionsNumerotees)) {
            suggestions_->addItem(QStringLiteral("%1   %2")
                                      .arg(suggestions_->count() + 1)
                                      .arg(DonnePourTerminal(suggestion)));
        }
        autre_->setText(montree.remarque.suggestions.value(0, montree.DonneExtrait()));
        suggestions_->setCurrentRow(0);
    }
    for (Action const& action : actions_) {
        action.bouton->setEnabled(true);
    }
    corrige_->setEnabled(!revue_.EstPerdue());
    corrigeTous_->setEnabled(!revue_.EstPerdue());
    phrase_->setEnabled(true);
    autre_->setEnabled(true);
    QModelIndex const rang = modele_.index(modele_.DonneRang(montree.id));
    liste_->setCurrentIndex(rang);
    liste_->scrollTo(rang);
}

void PageCorrection::MontreRien() {
    montree_ = 0;
    auto const progres = revue_.DonneProgres();
    bool const fini = revue_.EstLue() && progres.examines == progres.total;
    genre_->setText(fini                  ? EnQt(Tr("Plus aucune remarque."))
                    : revue_.EstArretee() ? EnQt(Tr("L’examen est arrêté."))
                    : revue_.EstLue()     ? EnQt(Tr("Examen du document…"))
                                          : EnQt(Tr("Lecture du document…")));
    phrase_->Montre({});
    explication_->clear();
    suggestions_->clear();
    autre_->clear();
    autre_->setEnabled(false);
    for (Action const& action : actions_) {
        action.bouton->setEnabled(false);
    }
}

void PageCorrection::MontreProgres() {
    auto const progres = revue_.DonneProgres();
    compte_->setText(EnQt(Tr("Remarques : {1}", modele_.rowCount())));
    bool const enCours = revue_.EstLue() && progres.examines < progres.total;
    progres_->setVisible(enCours);
    arrete_->setVisible(enCours);
    progres_->setMaximum(progres.total);
    progres_->setValue(progres.examines);
    arrete_->setText(revue_.EstArretee() ? EnQt(Tr("Reprendre")) : EnQt(Tr("Arrêter")));
}

bool PageCorrection::eventFilter(QObject* objet, QEvent* evenement) {
    auto* const bouton = qobject_cast<QPushButton*>(objet);
    if (evenement->type() == QEvent::Shortcut && bouton != nullptr && isAncestorOf(bouton)) {
        // By itself a button waits a tenth of a second, and takes two quick keys for one.
        bouton->click();
        return true;
    }
    bool const pourNous = evenement->type() == QEvent::KeyPress && isVisible() &&
                          objet == QApplication::focusWidget() && objet != autre_ &&
                          QApplication::activeWindow() == window();
    if (pourNous) {
        int const chiffre = LisChiffre(static_cast<QKeyEvent const&>(*evenement));
        if (chiffre > 0) {
            ChoisisSuggestion(chiffre - 1);
            return true;
        }
    }
    return QWidget::eventFilter(objet, evenement);
}

void PageCorrection::ChoisisSuggestion(int rang) {
    auto const montree = revue_.Donne(montree_);
    if (montree && montree_ == revue_.DonneCourante() && rang >= 0 &&
        rang < std::min(montree->remarque.suggestions.size(), kSuggestionsNumerotees)) {
        revue_.Corrige(montree->remarque.suggestions.at(rang));
    }
}

void PageCorrection::Corrige(bool tous) {
    // What is on the screen is what was decided on, whatever has come since.
    if (montree_ == 0 || montree_ != revue_.DonneCourante()) {
        return;
    }
    QString const texte = DonneRemplacement();
    if (tous) {
        revue_.CorrigeTousPareils(texte);
    } else {
        revue_.Corrige(texte);
    }
}

QString PageCorrection::DonneRemplacement() const {
    return autre_->text();
}

} // namespace hote
