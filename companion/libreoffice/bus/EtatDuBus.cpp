// SPDX-License-Identifier: MPL-2.0
#include "EtatDuBus.h"

#include "partage/Messages.h"

using compagnon::Dis;

namespace extension {

std::string PourLeJournal(EtatDuBus const& etat, std::string const& nom) {
    switch (etat.genre) {
    case EtatDuBus::Genre::Demarre:
        return "starting";
    case EtatDuBus::Genre::SansBus:
        return "there is no session bus (DBUS_SESSION_BUS_ADDRESS is not set); waiting for one";
    case EtatDuBus::Genre::BusMuet:
        return "the session bus does not answer: " + etat.precision;
    case EtatDuBus::Genre::BusParti:
        return "the session bus is gone; waiting for it";
    case EtatDuBus::Genre::NonPublie:
        return "cannot publish the document service: " + etat.precision;
    case EtatDuBus::Genre::NomPris:
        return "the name " + nom + " is taken by " + etat.precision + "; waiting for it to be free";
    case EtatDuBus::Genre::Sert:
        break;
    }
    return "serving as " + nom;
}

std::string RemedeDuBus(EtatDuBus const& etat, std::string const& nom) {
    switch (etat.genre) {
    case EtatDuBus::Genre::Demarre:
        return Dis({"L’extension démarre\u00a0: réessayez dans un instant.",
                    "The extension is starting: try again in a moment."});
    case EtatDuBus::Genre::SansBus:
        return Dis({"Il n’y a pas de bus de session (DBUS_SESSION_BUS_ADDRESS n’est pas définie). "
                    "Lancez la suite depuis votre session de bureau, et non par su, sudo ou ssh.",
                    "There is no session bus (DBUS_SESSION_BUS_ADDRESS is not set). Start the "
                    "office from your desktop session, not through su, sudo or ssh."});
    case EtatDuBus::Genre::BusMuet:
        return Dis({"Le bus de session ne répond pas. Fermez votre session, puis ouvrez-la de "
                    "nouveau. Ce qui a été dit\u00a0: {1}",
                    "The session bus does not answer. Log out, then in again. What was said: {1}"},
                   {etat.precision});
    case EtatDuBus::Genre::BusParti:
        return Dis({"Le bus de session a disparu. S’il ne revient pas, enregistrez vos documents, "
                    "fermez votre session, puis ouvrez-la de nouveau.",
                    "The session bus is gone. If it does not come back, save your documents, log "
                    "out, then in again."});
    case EtatDuBus::Genre::NonPublie:
        return Dis({"Le service des documents n’a pas pu être publié. Relancez la suite. Ce qui a "
                    "été dit\u00a0: {1}",
                    "The document service could not be published. Restart the office. What was "
                    "said: {1}"},
                   {etat.precision});
    case EtatDuBus::Genre::NomPris:
        return Dis(
            {"Le nom {1} est pris par {2}. Mettez fin à ce programme, ou relancez la suite avec "
             "une autre valeur de VOCALYNE_BUREAU_INSTANCE.",
             "The name {1} is taken by {2}. End that program, or restart the office with another "
             "value of VOCALYNE_BUREAU_INSTANCE."},
            {nom, etat.precision});
    case EtatDuBus::Genre::Sert:
        break;
    }
    return {};
}

} // namespace extension
