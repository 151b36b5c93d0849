// SPDX-License-Identifier: MPL-2.0
#include "Methodes.h"

#include "commun/ChainesUno.h"
#include "modele/Utf.h"
#include "partage/LimiteDeRemplacement.h"
#include "squelette.h"

#include <string>
#include <utility>

using compagnon::Intervalle;

namespace extension {

namespace {

using Invocation = GDBusMethodInvocation;

GVariant* Chaine(std::string const& utf8) {
    return g_variant_new("(s)", utf8.c_str());
}
GVariant* Chaine(std::u16string const& texte) {
    return Chaine(compagnon::Utf16VersUtf8(compagnon::RendsEnvoyable(texte)));
}
/// For the document's text, which can be long and is known to be ASCII: neither copied nor read
/// through again.
GVariant* LongueChaine(std::string&& ascii) {
    auto* const tenue = new std::string(std::move(ascii));
    GBytes* const octets = g_bytes_new_with_free_func(
        tenue->c_str(), tenue->size() + 1,
        [](gpointer chaine) { delete static_cast<std::string*>(chaine); }, tenue);
    GVariant* const valeur = g_variant_new_from_bytes(G_VARIANT_TYPE_STRING, octets, TRUE);
    g_bytes_unref(octets);
    return g_variant_new("(@s)", valeur);
}
GVariant* Booleen(bool vrai) {
    return g_variant_new("(b)", static_cast<gboolean>(vrai));
}
GVariant* Entier(std::int32_t nombre) {
    return g_variant_new("(i)", nombre);
}

/// Sends a call to the main thread; the signal's answer is "handled".
gboolean Envoie(gpointer methodes, Invocation* invocation, std::chrono::milliseconds delai,
                Appels::Travail travail, Appels::Renonciation renonce = nullptr) {
    auto& soi = *static_cast<Methodes*>(methodes);
    soi.Note(g_dbus_method_invocation_get_sender(invocation));
    soi.Cible().Sert({invocation, delai, std::move(travail), std::move(renonce)});
    return TRUE;
}

/// Work that is done in one piece.
template <typename Travail>
Appels::Travail DUneTraite(Travail travail) {
    return [travail = std::move(travail)](Service& service, Appels::Morceau const& morceau) {
        return Appels::Issue(travail(service, morceau.appelant));
    };
}

template <typename Travail>
gboolean Sert(gpointer methodes, Invocation* invocation, Travail travail) {
    auto const& delais = static_cast<Methodes*>(methodes)->DonneDelais();
    return Envoie(methodes, invocation, delais.ordinaire, DUneTraite(std::move(travail)));
}

/// A call without argument or result.
template <void (Service::*Operation)(std::string const&)>
gboolean SurOrdre(GObject* /*squelette*/, Invocation* invocation, gpointer methodes) {
    return Sert(methodes, invocation, [](Service& service, std::string const& appelant) {
        (service.*Operation)(appelant);
        return static_cast<GVariant*>(nullptr);
    });
}

/// A question without argument.
template <auto Operation>
gboolean SurQuestion(GObject* /*squelette*/, Invocation* invocation, gpointer methodes) {
    return Sert(methodes, invocation, [](Service& service, std::string const& appelant) {
        return Operation(service, appelant);
    });
}

GVariant* Titre(Service& service, std::string const& appelant) {
    return Chaine(service.DonneTitreDocument(appelant));
}
GVariant* Chemin(Service& service, std::string const& appelant) {
    return Chaine(service.DonneCheminDocument(appelant));
}
GVariant* Contenu(Service& service, std::string const& appelant) {
    return Chaine(service.DonneContenuSelection(appelant));
}
GVariant* Contexte(Service& service, std::string const& appelant) {
    return Chaine(service.DonneContexte(appelant).first);
}
// A zone is a paragraph, and so is a context: bounds are the same in both.
GVariant* Debut(Service& service, std::string const& appelant) {
    return Entier(service.DonneContexte(appelant).second.debut);
}
GVariant* Fin(Service& service, std::string const& appelant) {
    return Entier(service.DonneContexte(appelant).second.fin);
}
GVariant* Retour(Service& service, std::string const& appelant) {
    return Booleen(service.PermetsRetourDeCharriot(appelant));
}
GVariant* Rien(Service& /*service*/, std::string const& /*appelant*/) {
    return nullptr; // a pause is the host's own affair: nothing is held for it here
}
GVariant* Tous(Service& service, std::string const& /*appelant*/) {
    return Chaine(service.DonneDocuments());
}
Appels::Issue Noms(Service& service, std::string const& appelant, std::string const& leId) {
    auto noms = std::make_shared<NomsDeZones const>(service.DonneNomsDeZones(appelant, leId));
    return Appels::Redaction([noms = std::move(noms)] { return Chaine(noms->EnJson()); });
}
GVariant* Recit(Service& service, std::string const& /*appelant*/, std::string const& leId) {
    return Chaine(service.DonneRapport(leId));
}

/// A question of which the whole identifier of a document is the argument.
template <auto Operation>
gboolean SurDocument(GObject* /*s*/, Invocation* invocation, char const* leId, gpointer methodes) {
    return Sert(methodes, invocation,
                [leId = std::string(leId)](Service& service, std::string const& appelant) {
                    return Operation(service, appelant, leId);
                });
}

gboolean SurRefus(GObject* /*s*/, Invocation* invocation, char const* zone, gpointer methodes) {
    return Sert(methodes, invocation,
                [zone = std::string(zone)](Service& service, std::string const& appelant) {
                    auto const refus = service.DonneRefus(appelant, zone);
                    return refus ? g_variant_new("(ss)", contrat::DonneNom(refus->code),
                                                 refus->phrase.c_str())
                                 : g_variant_new("(ss)", "", "");
                });
}

gboolean SurInitialisePourOutils(GObject* s, Invocation* invocation, gboolean /*estDico*/,
                                 gpointer methodes) {
    return SurOrdre<&Service::InitialisePour>(s, invocation, methodes);
}

gboolean SurAjuste(GObject* /*s*/, Invocation* invocation, gint debut, gint fin,
                   gpointer methodes) {
    return Sert(methodes, invocation, [=](Service& service, std::string const& appelant) {
        service.AjusteSelectionPourOutils(appelant, debut, fin);
        return static_cast<GVariant*>(nullptr);
    });
}

gboolean SurCorrige(GObject* /*s*/, Invocation* invocation, char const* zone, gint debut, gint fin,
                    char const* texte, gboolean automatique, gpointer methodes) {
    auto travail = [zone = std::string(zone), plage = Intervalle{debut, fin},
                    texte = compagnon::RemplacementDepuisUtf8(texte),
                    automatique](Service& service, std::string const& appelant) {
        service.CorrigeDansTexteur({appelant, automatique != FALSE}, zone, plage, texte);
        return static_cast<GVariant*>(nullptr);
    };
    // Most hosts do not wait for it: given up, it is still in their own copy of the text.
    auto renonce = [zone = std::string(zone),
                    plage = Intervalle{debut, fin}](Service& service, std::string const& appelant) {
        service.RenonceACorriger(appelant, zone, plage);
    };
    auto const& delais = static_cast<Methodes*>(methodes)->DonneDelais();
    return Envoie(methodes, invocation, delais.ordinaire, DUneTraite(std::move(travail)),
                  std::move(renonce));
}

gboolean SurPeutCorriger(GObject* /*s*/, Invocation* invocation, char const* zone, gint debut,
                         gint fin, char const* attendu, gpointer methodes) {
    return Sert(methodes, invocation,
                [zone = std::string(zone), plage = Intervalle{debut, fin},
                 attendu = DepuisUtf8(attendu)](Service& service, std::string const& appelant) {
                    return Booleen(service.PeutCorriger(appelant, zone, plage, attendu));
                });
}

gboolean SurSelectionne(GObject* /*s*/, Invocation* invocation, char const* zone, gint debut,
                        gint fin, gpointer methodes) {
    return Sert(methodes, invocation,
                [zone = std::string(zone),
                 plage = Intervalle{debut, fin}](Service& service, std::string const& appelant) {
                    service.SelectionneIntervalle(appelant, zone, plage);
                    return static_cast<GVariant*>(nullptr);
                });
}

gboolean SurRemplace(GObject* /*s*/, Invocation* invocation, char const* mot, gpointer methodes) {
    return Sert(methodes, invocation,
                [mot = compagnon::RemplacementDepuisUtf8(mot)](Service& service,
                                                               std::string const& appelant) {
                    service.RemplaceEtReselectionne(appelant, mot);
                    return static_cast<GVariant*>(nullptr);
                });
}

/// The zones are read piece by piece, and written down away from the main thread.
gboolean SurSynchronise(GObject* /*s*/, Invocation* invocation, char const* leId,
                        gpointer methodes) {
    auto travail = [leId = std::string(leId), lecture = std::shared_ptr<Synchronisation>()](
                       Service& service, Appels::Morceau const& morceau) mutable -> Appels::Issue {
        if (morceau.estParti) {
            throw compagnon::ErreurDuService(contrat::Erreur::Occupe); // nobody reads it
        }
        if (!lecture) {
            lecture = service.CommenceSynchronisation(morceau.appelant, leId);
        }
        if (!lecture->Avance(morceau.fin)) {
            return Appels::Encore{};
        }
        auto zones = std::make_shared<ZonesARendre const>(lecture->Rends());
        lecture.reset();
        return Appels::Redaction(
            [zones = std::move(zones)] { return LongueChaine(zones->EnJson()); });
    };
    auto const& delais = static_cast<Methodes*>(methodes)->DonneDelais();
    return Envoie(methodes, invocation, delais.ordinaire, std::move(travail));
}

gboolean SurInitialise(GObject* /*s*/, Invocation* invocation, char const* cle, gpointer methodes) {
    auto const& delais = static_cast<Methodes*>(methodes)->DonneDelais();
    auto travail = [cle = std::string(cle)](Service& service, std::string const& appelant) {
        service.InitialiseTexteur(appelant, cle);
        return static_cast<GVariant*>(nullptr);
    };
    return Envoie(methodes, invocation, delais.initialisation, DUneTraite(std::move(travail)));
}

/// Answered here and now: who asks waits a second and a half at most, and a busy office is alive.
gboolean SurDocEstMort(GObject* /*s*/, Invocation* invocation, char const* cle, gpointer methodes) {
    auto const& soi = *static_cast<Methodes*>(methodes);
    g_dbus_method_invocation_return_value(invocation, Booleen(!soi.DonneVivantes().Contient(cle)));
    return TRUE;
}

} // namespace

Methodes::Methodes(Appels& cible, std::shared_ptr<ClesVivantes const> vivantes, Delais delais,
                   std::function<void(char const*)> surAppelant)
    : cible_(cible)
    , vivantes_(std::move(vivantes))
    , delais_(delais)
    , surAppelant_(std::move(surAppelant))
    , texteur_(G_DBUS_INTERFACE_SKELETON(vocalyne_openoffice_proxy_interface_skeleton_new()))
    , documents_(
          G_DBUS_INTERFACE_SKELETON(vocalyne_openoffice_documents_interface_skeleton_new())) {
    struct Lien {
        char const* signal;
        GCallback operation;
    };
    Lien const liens[] = {
        {"handle-active-pour-correcteur", G_CALLBACK(&SurOrdre<&Service::Active>)},
        {"handle-active-pour-outils", G_CALLBACK(&SurOrdre<&Service::Active>)},
        {"handle-ajuste-selection-pour-outils", G_CALLBACK(&SurAjuste)},
        {"handle-corrige-dans-texteur", G_CALLBACK(&SurCorrige)},
        {"handle-doc-est-mort", G_CALLBACK(&SurDocEstMort)},
        {"handle-donne-chemin-document", G_CALLBACK(&SurQuestion<&Chemin>)},
        {"handle-donne-contenu-selection", G_CALLBACK(&SurQuestion<&Contenu>)},
        {"handle-donne-contexte-selection", G_CALLBACK(&SurQuestion<&Contexte>)},
        {"handle-donne-debut-selection", G_CALLBACK(&SurQuestion<&Debut>)},
        {"handle-donne-debut-selection-dans-son-contexte", G_CALLBACK(&SurQuestion<&Debut>)},
        {"handle-donne-fin-selection", G_CALLBACK(&SurQuestion<&Fin>)},
        {"handle-donne-fin-selection-dans-son-contexte", G_CALLBACK(&SurQuestion<&Fin>)},
        {"handle-donne-titre-document", G_CALLBACK(&SurQuestion<&Titre>)},
        {"handle-initialise-pour-correcteur", G_CALLBACK(&SurOrdre<&Service::InitialisePour>)},
        {"handle-initialise-pour-outils", G_CALLBACK(&SurInitialisePourOutils)},
        {"handle-initialise-texteur", G_CALLBACK(&SurInitialise)},
        {"handle-permets-retour-de-charriot", G_CALLBACK(&SurQuestion<&Retour>)},
        {"handle-peut-corriger", G_CALLBACK(&SurPeutCorriger)},
        {"handle-remplace-et-reselectionne", G_CALLBACK(&SurRemplace)},
        {"handle-romps-lien-correcteur", G_CALLBACK(&SurOrdre<&Service::RompsLienCorrecteur>)},
        {"handle-romps-lien-texteur", G_CALLBACK(&SurOrdre<&Service::RompsLienTexteur>)},
        {"handle-selectionne-intervalle", G_CALLBACK(&SurSelectionne)},
        {"handle-suspends", G_CALLBACK(&SurQuestion<&Rien>)},
        {"handle-synchronise-positions", G_CALLBACK(&SurSynchronise)},
    };
    for (Lien const& lien : liens) {
        g_signal_connect(texteur_, lien.signal, lien.operation, this);
    }
    Lien const autres[] = {
        {"handle-donne-documents", G_CALLBACK(&SurQuestion<&Tous>)},
        {"handle-donne-noms-de-zones", G_CALLBACK(&SurDocument<&Noms>)},
        {"handle-donne-rapport", G_CALLBACK(&SurDocument<&Recit>)},
        {"handle-donne-refus", G_CALLBACK(&SurRefus)},
    };
    for (Lien const& lien : autres) {
        g_signal_connect(documents_, lien.signal, lien.operation, this);
    }
}

Methodes::~Methodes() {
    Retire();
    g_object_unref(texteur_);
    g_object_unref(documents_);
}

bool Methodes::Publie(GDBusConnection* connexion, char const* chemin, GError** erreur) {
    return g_dbus_interface_skeleton_export(texteur_, connexion, chemin, erreur) != FALSE &&
           g_dbus_interface_skeleton_export(documents_, connexion, chemin, erreur) != FALSE;
}

void Methodes::Retire() {
    for (GDBusInterfaceSkeleton* squelette : {texteur_, documents_}) {
        if (g_dbus_interface_skeleton_get_connection(squelette) != nullptr) {
            g_dbus_interface_skeleton_unexport(squelette);
        }
    }
}

} // namespace extension
