// SPDX-License-Identifier: MPL-2.0
#include "DAlerte.h"

#include "FenetreAlerte.h"
#include "PresentateurAlerte.h"

#include <QApplication>
#include <QThread>

#include <iostream>

namespace {

PresentateurAlerte* lePresentateur = nullptr;

bool PeutMontrerFenetre() {
    auto const* const application = qobject_cast<QApplication*>(QCoreApplication::instance());
    return application != nullptr && application->thread() == QThread::currentThread();
}

void EcrisSurErreur(DAlerteInfo const& info) {
    for (auto const* texte : {&info.DonneTexte(), &info.DonneInformation(), &info.DonneDetails()}) {
        if (!texte->EstVide()) {
            std::cerr << texte->VersUtf8() << '\n';
        }
    }
    std::cerr << std::flush;
}

} // namespace

PresentateurAlerte::~PresentateurAlerte() = default;

PresentateurAlerte* PresentateurAlerte::Mets(PresentateurAlerte* presentateur) {
    auto* const precedent = lePresentateur;
    lePresentateur = presentateur;
    return precedent;
}

eReponseAlerte DAlerte(QWidget* parent, DAlerteInfo const& info) {
    if (lePresentateur != nullptr) {
        return lePresentateur->Presente(parent, info);
    }
    if (PeutMontrerFenetre()) {
        return MontreFenetreAlerte(parent, info);
    }
    EcrisSurErreur(info);
    return kReponseNon;
}
