// SPDX-License-Identifier: MPL-2.0
#include "AgentDeTest.h"

#include "domaineTexteur.h"

#include <QCoreApplication>

// The plug-in's door, which defines this, is not linked here.
DomaineDeTraduction* domaineTexteur = nullptr;

AgentDeTest::AgentDeTest(std::string const& identifiant)
    : AgentDeTest(Uc(identifiant)) {}

AgentDeTest::AgentDeTest(UniChaine const& identifiant)
    : InterfaceTexteur(identifiant)
    , ModuleProxyOOo(identifiant) {}

bool AgentDeTest::Initialise() {
    UniChaine message;
    return InitialiseTexteur(Uc("VCLSalFrame:OpenOffice.org 4.0"), message, 0);
}
