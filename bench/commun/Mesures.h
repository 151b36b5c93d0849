// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Mesure.h"

#include <QString>

namespace banc {

/// A waited call through the agent over QtDBus' bare one on the same proxy.
LigneDeMesure MesureAttente(Ampleur ampleur);

/// The processor time of a wait over the wait.
LigneDeMesure MesureVeille(Ampleur ampleur);

/// A waited call through the agent over one of sd-bus.
LigneDeMesure MesureAttenteSdBus(Ampleur ampleur);

/// A whole document read over the bus, over sd-bus and a SIMD parser on the same bytes.
LigneDeMesure MesureSynchronisation(Ampleur ampleur);

/// A call that nobody waits for and nobody answers, among many over among few.
LigneDeMesure MesureOublies(Ampleur ampleur);

/// A reply's string to zones, freed, over JsonCpp's parse and destruction alone.
LigneDeMesure MesureLecture(Ampleur ampleur);

/// Reading a zone of a long document over reading one of a short document.
LigneDeMesure MesureCroissance(Ampleur ampleur);

/// A short zone among a million over one among a thousand.
LigneDeMesure MesureMillion(Ampleur ampleur);

/// The same reading against the number of zones.
Courbe CourbeDeLecture(Ampleur ampleur);

/// A whole document read over the bus against its number of zones.
Courbe CourbeDeSynchronisation(Ampleur ampleur);

/// Peak memory of reading a reply over the reply's size.
LigneDeMesure MesureMemoire(Ampleur ampleur);

/// Setting ten times as many style runs in order.
LigneDeMesure MesureAttributs(Ampleur ampleur);

/// Loading the plug-in over loading a bare library with the same needs.
LigneDeMesure MesureChargement(Ampleur ampleur, QString const& greffon, QString const& temoin,
                               QString const& chargeur);

} // namespace banc
