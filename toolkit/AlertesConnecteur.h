// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "UniChaine.h"

// Ready-made alerts for a connector that cannot work with a word processor. Each one shows a modal
// alert (see DAlerte) in the display language and returns when the person closes it. The texts come
// from the connector's catalogs, through `domaineTexteur`; a message that they lack is shown in
// French. `nomApplication` stands for the word processor in the sentence, as it is, even empty.
// Qt's main thread.

/// The host is too old for the connector.
void AlerteMiseAJourVocalyneRequise(UniChaine const& nomApplication);

/// The connector installed in the application is too old. The first argument is not read.
void AlerteConnecteurPasAJour(UniChaine const& nonLu, UniChaine const& nomApplication);

/// The host's agent cannot be called from this application.
void AlerteAppelImpossible(UniChaine const& nomApplication);

/// A connector must be installed in the application first.
void AlerteConnecteurRequis(UniChaine const& nomApplication);
