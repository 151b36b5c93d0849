// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "commun/ErreurHote.h"
#include "commun/MessagesHote.h"

#include <exception>

namespace hote {

/// Works with a plug-in: what it throws becomes ErreurHote (kSortieGreffon). An exception of the
/// plug-in must be gone before the plug-in is, so this stands around the work and inside the
/// plug-in's life.
template <typename Travail>
eCodeSortie ExecuteSurGreffon(Travail&& travail) {
    try {
        return travail();
    } catch (ErreurHote const&) {
        throw;
    } catch (std::exception const& erreur) {
        throw ErreurHote(kSortieGreffon, Tr("Le connecteur a échoué : {1}", erreur.what()));
    } catch (...) {
        throw ErreurHote(kSortieGreffon, Tr("Le connecteur a échoué : {1}", "exception"));
    }
}

} // namespace hote
