// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "InfosApplication.h"
#include "InterfaceAgentTexteur.h"

/// The plug-in as a host has it: five functions found by their names. It is loaded when first asked
/// for, where no bus is within reach, and stays until the program ends.
struct GreffonCharge {
    void (*DonneNomsTexteurs)(UniChaine*);
    void* (*CreeTexteur)(void*, void*);        ///< with arguments that nobody reads
    void* (*CreeTexteurPalette)(void*, void*); ///< the same
    unsigned char (*DonneIdentificateurDocumentCourant)(InfosApplication const*, UniChaine*);
    InterfaceAgentTexteur* (*CreeAgentTexteur)(InfosApplication const*, UniChaine const*);

    static GreffonCharge const& Donne();
};
