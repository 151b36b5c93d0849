// SPDX-License-Identifier: MPL-2.0
#include "ErreurEnCours.h"

#include "ChainesUno.h"

#include <com/sun/star/lang/DisposedException.hpp>
#include <com/sun/star/uno/Exception.hpp>

using namespace com::sun::star;
using compagnon::ErreurDuService;
using contrat::Erreur;

namespace extension {

ErreurDuService ErreurEnCours() {
    try {
        throw;
    } catch (ErreurDuService const& erreur) {
        return erreur;
    } catch (lang::DisposedException const&) {
        return ErreurDuService(Erreur::DocumentFerme);
    } catch (uno::Exception const& erreur) {
        return ErreurDuService(Erreur::Bureau, EnUtf8(erreur.Message));
    } catch (std::exception const& erreur) {
        return ErreurDuService(Erreur::Interne, erreur.what());
    } catch (...) {
        return ErreurDuService(Erreur::Interne);
    }
}

} // namespace extension
