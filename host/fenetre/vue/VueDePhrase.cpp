// SPDX-License-Identifier: MPL-2.0
#include "VueDePhrase.h"

#include "commun/MessagesHote.h"

#include <QEvent>

namespace hote {

VueDePhrase::VueDePhrase(QWidget* parent)
    : QTextEdit(parent) {
    setReadOnly(true);
    setTabChangesFocus(true);
    setAccessibleName(EnQt(Tr("Phrase")));
    // A screen reader reads it, and its selection is the mistake.
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

void VueDePhrase::Montre(PhraseMontree const& phrase) {
    phrase_ = phrase;
    setPlainText(phrase.texte);
    setAccessibleDescription(phrase.texte.mid(phrase.debut, phrase.fin - phrase.debut));
    Marque();
}

void VueDePhrase::changeEvent(QEvent* evenement) {
    QTextEdit::changeEvent(evenement);
    if (evenement->type() == QEvent::PaletteChange) {
        Marque();
    }
}

void VueDePhrase::Marque() {
    QTextCursor curseur(document());
    curseur.setPosition(std::min(phrase_.debut, phrase_.texte.size()));
    setTextCursor(curseur);
    ensureCursorVisible();
    ExtraSelection marque;
    marque.cursor = curseur;
    marque.cursor.setPosition(std::min(phrase_.fin, phrase_.texte.size()), QTextCursor::KeepAnchor);
    // Not by colour alone.
    marque.format.setBackground(palette().highlight());
    marque.format.setForeground(palette().highlightedText());
    marque.format.setFontUnderline(true);
    setExtraSelections({marque});
}

} // namespace hote
