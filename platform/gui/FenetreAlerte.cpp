// SPDX-License-Identifier: MPL-2.0
#include "FenetreAlerte.h"

#include <QLabel>
#include <QMessageBox>
#include <QPointer>

namespace {

QMessageBox::Icon DonneIcone(DAlerteInfo::eTypeDialogue genre) {
    switch (genre) {
    case DAlerteInfo::kQuestion:
        return QMessageBox::Question;
    case DAlerteInfo::kInformation:
        return QMessageBox::Information;
    case DAlerteInfo::kErreur:
        return QMessageBox::Critical;
    case DAlerteInfo::kAvertissement:
        return QMessageBox::Warning;
    }
    return QMessageBox::NoIcon;
}

} // namespace

eReponseAlerte MontreFenetreAlerte(QWidget* parent, DAlerteInfo const& info) {
    bool const estQuestion = info.DonneGenre() == DAlerteInfo::kQuestion;
    // A parent that is destroyed while the window is open takes the window with it.
    QPointer<QMessageBox> const fenetre(new QMessageBox(parent));
    fenetre->setWindowTitle(QStringLiteral("Vocalyne"));
    fenetre->setIcon(DonneIcone(info.DonneGenre()));
    fenetre->setTextFormat(Qt::PlainText);
    fenetre->setText(info.DonneTexte().VersQString());
    fenetre->setInformativeText(info.DonneInformation().VersQString());
    fenetre->setDetailedText(info.DonneDetails().VersQString());
    fenetre->setStandardButtons(estQuestion ? QMessageBox::Yes | QMessageBox::No
                                            : QMessageBox::StandardButtons(QMessageBox::Ok));
    // The box's own text format holds for the main text alone; the other would guess at markup.
    for (auto* etiquette : fenetre->findChildren<QLabel*>()) {
        etiquette->setTextFormat(Qt::PlainText);
    }

    int const bouton = fenetre->exec();
    delete fenetre.data();
    return bouton == QMessageBox::Ok || bouton == QMessageBox::Yes ? kReponseOui : kReponseNon;
}
