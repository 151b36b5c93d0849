// SPDX-License-Identifier: MPL-2.0
#include "Appels.h"

#include "commun/ErreurEnCours.h"

#include <algorithm>
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
    Attente() = default;
    Attente(Attente const&) = delete;
    Attente& operator=(Attente const&) = delete;
    ~Attente() { LeveLaLimite(); }

    void MetsLimite(std::shared_ptr<Attente> const& soi);
    void LeveLaLimite() {
        if (limite != nullptr) {
            g_source_destroy(limite);
            g_source_unref(std::exchange(limite, nullptr));
        }
    }

    Appel appel{};
    bool apresPerte = false; ///< a call before it was refused, which its caller may count on
    bool estDepart = false;  ///< no call: its caller has left
    Demande demande;
    GSource* limite = nullptr;
};

void Appels::Attente::MetsLimite(std::shared_ptr<Attente> const& soi) {
    limite = g_timeout_source_new(static_cast<guint>(appel.delai.count()));
    g_source_set_callback(
        limite,
        [](gpointer donnee) -> gboolean {
            auto const ici = static_cast<std::weak_ptr<Attente>*>(donnee)->lock();
            if (ici && ici->demande.Annule()) {
                Reponds(ici->appel.invocation, ErreurDuService(Erreur::Occupe));
            }
            return G_SOURCE_REMOVE;
        },
        new std::weak_ptr<Attente>(soi),
        [](gpointer donnee) { delete static_cast<std::weak_ptr<Attente>*>(donnee); });
    g_source_attach(limite, g_main_context_get_thread_default());
}

Appels::Appels(FilPrincipal fil, std::shared_ptr<Service> service)
    : service_(std::move(service))
    , cadence_([fil = std::move(fil)](
                   std::function<void()> travail) mutable { fil.Poste(std::move(travail)); },
               [this](Cadence::Instant fin) { return SersUnTour(fin); }) {}

Appels::~Appels() {
    Ferme();
}

void Appels::Sert(Appel appel) {
    std::string const appelant = g_dbus_method_invocation_get_sender(appel.invocation);
    auto const attente = std::make_shared<Attente>();
    attente->appel = std::move(appel);
    attente->MetsLimite(attente);
    if (Inscris(appelant, attente)) {
        cadence_.Reveille();
    }
}

/// Answers the call and says false where it cannot wait.
bool Appels::Inscris(std::string const& appelant, std::shared_ptr<Attente> const& attente) {
    GDBusMethodInvocation* const invocation = attente->appel.invocation;
    auto const octets = g_variant_get_size(g_dbus_method_invocation_get_parameters(invocation));
    std::lock_guard<std::mutex> const verrou(mutex_);
    if (ferme_) {
        Reponds(invocation, ErreurDuService(Erreur::Fermeture));
        return false;
    }
    if (!attentes_.Ajoute(appelant, attente, octets)) {
        if (attente->appel.renonce) {
            deborde_.insert(appelant);
        }
        attente->demande.Annule();
        Reponds(invocation, ErreurDuService(Erreur::Occupe));
        return false;
    }
    attente->apresPerte = deborde_.erase(appelant) > 0;
    return true;
}

void Appels::Part(std::string const& appelant) {
    auto const attente = std::make_shared<Attente>();
    attente->estDepart = true;
    {
        std::lock_guard<std::mutex> const verrou(mutex_);
        deborde_.erase(appelant);
        if (ferme_) {
            return;
        }
        partis_.insert(appelant);
        attentes_.Impose(appelant, attente, 0);
    }
    cadence_.Reveille();
}

bool Appels::SersUnTour(Cadence::Instant fin) {
    do {
        if (!SersLeSuivant(fin)) {
            return false;
        }
    } while (std::chrono::steady_clock::now() < fin);
    std::lock_guard<std::mutex> const verrou(mutex_);
    return !attentes_.EstVide();
}

/// The first call of whose turn it is; null where there is none to go on with.
std::shared_ptr<Appels::Attente> Appels::Prochaine(std::string& appelant) {
    for (std::size_t reste = attentes_.Nombre(); reste > 0; --reste) {
        auto suivant = attentes_.Suivant();
        Demande& demande = suivant->second->demande;
        // One that is neither is being served farther up: an event loop within a call has come
        // here.
        if (demande.Commence() || demande.EstAnnulee()) {
            appelant = std::move(suivant->first);
            return std::move(suivant->second);
        }
    }
    return nullptr;
}

bool Appels::SersLeSuivant(Cadence::Instant fin) {
    std::string appelant;
    std::shared_ptr<Attente> attente;
    bool estParti = false;
    {
        std::lock_guard<std::mutex> const verrou(mutex_);
        attente = Prochaine(appelant);
        if (!attente) {
            return false;
        }
        estParti = partis_.count(appelant) > 0;
    }
    bool const fini = attente->demande.EstAnnulee() ? Renonce(*attente, appelant)
                                                    : Avance(*attente, {appelant, fin, estParti});
    std::lock_guard<std::mutex> const verrou(mutex_);
    if (fini) {
        attente->appel.travail = nullptr; // here: it may hold something of the office's
        attentes_.Retire(appelant);
        if (attente->estDepart) {
            partis_.erase(appelant);
        }
        return true;
    }
    attente->demande.Suspends();
    if (ferme_ && attente->demande.Annule()) {
        Reponds(attente->appel.invocation, ErreurDuService(Erreur::Fermeture));
    }
    return true;
}

/// Does a piece of the call's work and, when it was the last, sends the answer.
bool Appels::Avance(Attente& attente, Morceau const& morceau) {
    if (attente.estDepart) {
        service_->Oublie(morceau.appelant);
        return true;
    }
    attente.LeveLaLimite();
    GDBusMethodInvocation* const invocation = attente.appel.invocation;
    try {
        if (std::exchange(attente.apresPerte, false)) {
            service_->OublieZones(morceau.appelant);
        }
        Issue issue = attente.appel.travail(*service_, morceau);
        if (std::holds_alternative<Encore>(issue)) {
            return false;
        }
        if (auto* const redaction = std::get_if<Redaction>(&issue)) {
            Redige(invocation, std::move(*redaction));
        } else {
            g_dbus_method_invocation_return_value(invocation, std::get<GVariant*>(issue));
        }
    } catch (...) {
        Reponds(invocation, ErreurEnCours());
    }
    return true;
}

bool Appels::Renonce(Attente& attente, std::string const& appelant) {
    if (attente.appel.renonce) {
        attente.appel.renonce(*service_, appelant);
    }
    return true;
}

void Appels::Redige(GDBusMethodInvocation* invocation, Redaction redaction) {
    std::lock_guard<std::mutex> const verrou(mutex_);
    redactions_.erase(std::remove_if(redactions_.begin(), redactions_.end(),
                                     [](std::future<void> const& faite) {
                                         return faite.wait_for(std::chrono::seconds(0)) ==
                                                std::future_status::ready;
                                     }),
                      redactions_.end());
    redactions_.push_back(
        std::async(std::launch::async, [invocation, redaction = std::move(redaction)] {
            try {
                g_dbus_method_invocation_return_value(invocation, redaction());
            } catch (...) {
                Reponds(invocation, ErreurEnCours());
            }
        }));
}

void Appels::Ferme() {
    std::deque<std::shared_ptr<Attente>> restantes;
    std::vector<std::future<void>> redactions; // waited for at the end
    {
        std::lock_guard<std::mutex> const verrou(mutex_);
        ferme_ = true;
        restantes = attentes_.Vide();
        redactions.swap(redactions_);
    }
    cadence_.Arrete();
    for (std::shared_ptr<Attente> const& attente : restantes) {
        if (!attente->estDepart && attente->demande.Annule()) {
            attente->LeveLaLimite();
            Reponds(attente->appel.invocation, ErreurDuService(Erreur::Fermeture));
        }
    }
}

} // namespace extension
