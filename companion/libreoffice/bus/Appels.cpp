// SPDX-License-Identifier: MPL-2.0
#include "Appels.h"

#include "commun/ErreurEnCours.h"

#include <string>
#include <utility>

using compagnon::ErreurDuService;
using contrat::Erreur;

namespace extension {

namespace {

void Reponds(GDBusMethodInvocation* invocation, ErreurDuService const& erreur) {
    g_dbus_method_invocation_return_dbus_error(invocation, erreur.DonneNomDBus().c_str(),
                                               erreur.what());
}

} // namespace

/// One call on its way. The reply is sent by whoever wins: the work, or its time limit.
struct Appels::Attente {
    GDBusMethodInvocation* invocation = nullptr;
    std::shared_ptr<Demande> demande;
    GSource* limite = nullptr;

    Attente() = default;
    Attente(Attente const&) = delete;
    Attente& operator=(Attente const&) = delete;
    ~Attente() {
        if (limite != nullptr) {
            g_source_unref(limite);
        }
    }
};

Appels::Appels(FilPrincipal fil, std::shared_ptr<Service> service)
    : fil_(std::move(fil))
    , service_(std::move(service)) {}

Appels::~Appels() {
    Ferme();
}

void Appels::Sert(GDBusMethodInvocation* invocation, std::chrono::milliseconds delai,
                  Travail travail) {
    auto const attente = std::make_shared<Attente>();
    attente->invocation = invocation;
    std::weak_ptr<Attente> const faible = attente;
    std::string appelant = g_dbus_method_invocation_get_sender(invocation);
    attente->demande = std::make_shared<Demande>(
        [this, faible, appelant = std::move(appelant), travail = std::move(travail)] {
            std::shared_ptr<Attente> const ici = faible.lock();
            if (!ici) {
                return;
            }
            try {
                GVariant* const resultat = travail(*service_, appelant);
                g_dbus_method_invocation_return_value(ici->invocation, resultat);
            } catch (...) {
                Reponds(ici->invocation, ErreurEnCours());
            }
            Retire(ici);
        });

    attente->limite = g_timeout_source_new(static_cast<guint>(delai.count()));
    using Echeance = std::pair<Appels*, std::weak_ptr<Attente>>;
    g_source_set_callback(
        attente->limite,
        [](gpointer donnee) -> gboolean {
            auto const* echeance = static_cast<Echeance*>(donnee);
            std::shared_ptr<Attente> const ici = echeance->second.lock();
            if (ici && ici->demande->Annule()) {
                Reponds(ici->invocation, ErreurDuService(Erreur::Occupe));
                echeance->first->Retire(ici);
            }
            return G_SOURCE_REMOVE;
        },
        new Echeance(this, attente),
        [](gpointer donnee) { delete static_cast<Echeance*>(donnee); });
    g_source_attach(attente->limite, g_main_context_get_thread_default());
    {
        std::lock_guard<std::mutex> const verrou(mutex_);
        if (ferme_) {
            g_source_destroy(attente->limite);
            Reponds(invocation, ErreurDuService(Erreur::Fermeture));
            return;
        }
        attentes_.insert(attente);
    }
    fil_.Poste(attente->demande);
}

void Appels::Retire(std::shared_ptr<Attente> const& attente) {
    g_source_destroy(attente->limite);
    std::lock_guard<std::mutex> const verrou(mutex_);
    attentes_.erase(attente);
}

void Appels::Poste(std::function<void(Service&)> travail) {
    fil_.Poste(std::make_shared<Demande>(
        [service = service_, travail = std::move(travail)] { travail(*service); }));
}

void Appels::Ferme() {
    std::set<std::shared_ptr<Attente>> restantes;
    {
        std::lock_guard<std::mutex> const verrou(mutex_);
        ferme_ = true;
        restantes.swap(attentes_);
    }
    for (std::shared_ptr<Attente> const& attente : restantes) {
        if (attente->demande->Annule()) {
            g_source_destroy(attente->limite);
            Reponds(attente->invocation, ErreurDuService(Erreur::Fermeture));
        }
    }
}

} // namespace extension
