// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "../modele/BancDeRevue.h"
#include "fenetre/vue/FenetrePrincipale.h"

#include <QApplication>
#include <QTest>

namespace hote {

/// Widgets need an application object; whoever comes first makes it.
inline void AssureApplication() {
    static int argc = 1;
    static char nom[] = "test";
    static char* argv[] = {nom, nullptr};
    if (QCoreApplication::instance() == nullptr) {
        static QApplication const application(argc, argv);
    }
}

/// A window over the review's bench, shown and with the keyboard.
class BancDeFenetre : public BancDeRevue {
  protected:
    BancDeFenetre() { AssureApplication(); }

    void SetUp() override {
        fenetre = std::make_unique<FenetrePrincipale>(revue, reglages, QStringList{Q("essai")});
        fenetre->Leve({});
        ASSERT_TRUE(QTest::qWaitForWindowActive(fenetre.get()));
    }

    template <class Genre>
    Genre* Trouve(QString const& nomAccessible) const {
        for (Genre* const enfant : fenetre->currentWidget()->findChildren<Genre*>()) {
            if (enfant->accessibleName() == nomAccessible) {
                return enfant;
            }
        }
        ADD_FAILURE() << "no control " << nomAccessible.toStdString();
        return nullptr;
    }
    /// Presses a key where the keyboard is.
    static void Appuie(int touche, Qt::KeyboardModifiers avec = Qt::NoModifier) {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(touche), avec);
    }
    /// Is that text somewhere in a label?
    bool EstDit(QString const& texte) const {
        for (QLabel const* const etiquette : fenetre->findChildren<QLabel*>()) {
            if (etiquette->isVisible() && etiquette->text().contains(texte)) {
                return true;
            }
        }
        return false;
    }

    ReglagesHote reglages{QString()};
    std::unique_ptr<FenetrePrincipale> fenetre;
};

} // namespace hote
