// SPDX-License-Identifier: MPL-2.0
#include "FilDuBus.h"

#include "BusDeSession.h"
#include "Contrat.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace extension {

namespace {

constexpr unsigned kPremierePause = 200;
constexpr unsigned kPauseMax = 5'000;

/// Runs a member function on the bus thread after a pause.
template <typename Objet, void (Objet::*Operation)()>
void Apres(GMainContext* contexte, Objet* objet, unsigned pause) {
    GSource* const source = g_timeout_source_new(pause);
    g_source_set_callback(
        source,
        [](gpointer donnee) -> gboolean {
            (static_cast<Objet*>(donnee)->*Operation)();
            return G_SOURCE_REMOVE;
        },
        objet, nullptr);
    g_source_attach(source, contexte);
    g_source_unref(source);
}

} // namespace

FilDuBus::FilDuBus(std::string const& instance, std::shared_ptr<Appels> appels,
                   std::shared_ptr<ClesVivantes const> vivantes, Delais delais)
    : nom_(contrat::kPrefixeService + instance)
    , chemin_(contrat::kPrefixeChemin + instance)
    , appels_(std::move(appels))
    , vivantes_(std::move(vivantes))
    , delais_(delais)
    , contexte_(g_main_context_new())
    , boucle_(g_main_loop_new(contexte_, FALSE))
    , arret_(g_cancellable_new()) {
    fil_ = std::thread([this] { Tourne(); });
}

FilDuBus::~FilDuBus() {
    g_cancellable_cancel(arret_);
    appels_->Ferme();
    // Through the context: quitting a loop that is not running yet would be forgotten.
    GSource* const fin = g_idle_source_new();
    g_source_set_callback(
        fin,
        [](gpointer boucle) -> gboolean {
            g_main_loop_quit(static_cast<GMainLoop*>(boucle));
            return G_SOURCE_REMOVE;
        },
        boucle_, nullptr);
    g_source_attach(fin, contexte_);
    g_source_unref(fin);
    fil_.join();
    g_object_unref(arret_);
    g_main_loop_unref(boucle_);
    g_main_context_unref(contexte_);
}

EtatDuBus FilDuBus::DonneEtat() const {
    std::lock_guard<std::mutex> const verrou(mutex_);
    return etat_;
}

void FilDuBus::MetsEtat(EtatDuBus etat) {
    std::lock_guard<std::mutex> const verrou(mutex_);
    if (etat.genre != etat_.genre || etat.precision != etat_.precision) {
        std::fprintf(stderr, "vocalyne: %s\n", PourLeJournal(etat, nom_).c_str());
    }
    etat_ = std::move(etat);
}

void FilDuBus::Tourne() {
    g_main_context_push_thread_default(contexte_);
    Connecte();
    g_main_loop_run(boucle_);
    if (connexion_ != nullptr) {
        Ecoule(contexte_, connexion_); // the last replies
    }
    Deconnecte();
    g_main_context_pop_thread_default(contexte_);
}

void FilDuBus::Reessaie() {
    pause_ = std::clamp(pause_ * 2, kPremierePause, kPauseMax);
    Apres<FilDuBus, &FilDuBus::Connecte>(contexte_, this, pause_);
}

void FilDuBus::Connecte() {
    if (g_cancellable_is_cancelled(arret_) != FALSE) {
        return;
    }
    std::string const adresse = AdresseDuBus();
    if (adresse.empty()) {
        MetsEtat({EtatDuBus::Genre::SansBus, {}});
        Reessaie();
        return;
    }
    GError* erreur = nullptr;
    connexion_ = g_dbus_connection_new_for_address_sync(
        adresse.c_str(),
        static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                          G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION),
        nullptr, arret_, &erreur);
    if (connexion_ == nullptr) {
        Tenu<GError> const tenue(erreur);
        MetsEtat({EtatDuBus::Genre::BusMuet, tenue->message});
        Reessaie();
        return;
    }
    g_dbus_connection_set_exit_on_close(connexion_, FALSE);
    g_signal_connect(connexion_, "closed",
                     G_CALLBACK(+[](GDBusConnection*, gboolean, GError*, gpointer donnee) {
                         auto* const soi = static_cast<FilDuBus*>(donnee);
                         soi->Deconnecte();
                         soi->MetsEtat({EtatDuBus::Genre::BusParti, {}});
                         soi->Reessaie();
                     }),
                     this);
    SuisLesDeparts();
    DemandeLeNom();
}

// Not by g_bus_own_name_on_connection, which keeps the reply to itself: who sent it, and that none
// came, can be seen here alone.
void FilDuBus::DemandeLeNom() {
    constexpr guint kSansAttendre = 4; // DBUS_NAME_FLAG_DO_NOT_QUEUE
    constexpr guint kProprietaire = 1; // DBUS_REQUEST_NAME_REPLY_PRIMARY_OWNER
    constexpr guint kDeja = 4;         // DBUS_REQUEST_NAME_REPLY_ALREADY_OWNER
    // First the object, so that no call to the name finds nothing behind it.
    methodes_ = std::make_unique<Methodes>(*appels_, vivantes_, delais_,
                                           [this](char const* qui) { appelants_.insert(qui); });
    GError* erreur = nullptr;
    if (!methodes_->Publie(connexion_, chemin_.c_str(), &erreur)) {
        Tenu<GError> const tenue(erreur);
        MetsEtat({EtatDuBus::Genre::NonPublie, tenue->message});
        methodes_.reset();
        return;
    }
    Tenu<GVariant> const reponse = DemandeAuBus(connexion_, arret_, "RequestName",
                                                g_variant_new("(su)", nom_.c_str(), kSansAttendre));
    guint resultat = 0;
    if (reponse) {
        g_variant_get(reponse.get(), "(u)", &resultat);
    }
    if (resultat == kProprietaire || resultat == kDeja) {
        pause_ = 0;
        MetsEtat({EtatDuBus::Genre::Sert, {}});
        return;
    }
    methodes_.reset();
    NomPris();
}

void FilDuBus::NomPris() {
    std::string qui = "somebody";
    Tenu<GVariant> const reponse =
        DemandeAuBus(connexion_, arret_, "GetNameOwner", g_variant_new("(s)", nom_.c_str()));
    if (reponse) {
        char const* proprietaire = nullptr;
        g_variant_get(reponse.get(), "(&s)", &proprietaire);
        qui = proprietaire;
        Tenu<GVariant> const processus = DemandeAuBus(
            connexion_, arret_, "GetConnectionUnixProcessID", g_variant_new("(s)", proprietaire));
        if (processus) {
            guint pid = 0;
            g_variant_get(processus.get(), "(u)", &pid);
            qui += " (process " + std::to_string(pid) + ")";
        }
    }
    MetsEtat({EtatDuBus::Genre::NomPris, qui});
    garde_ = g_bus_watch_name_on_connection(
        connexion_, nom_.c_str(), G_BUS_NAME_WATCHER_FLAGS_NONE, nullptr,
        [](GDBusConnection*, char const*, gpointer donnee) {
            auto* const soi = static_cast<FilDuBus*>(donnee);
            g_bus_unwatch_name(std::exchange(soi->garde_, 0));
            if (soi->connexion_ != nullptr) {
                soi->DemandeLeNom();
            }
        },
        this, nullptr);
}

// One subscription for all, made before anybody can call: whoever leaves after its call is heard of
// behind that call. One for each caller would come too late for those who have gone by then.
void FilDuBus::SuisLesDeparts() {
    departs_ = g_dbus_connection_signal_subscribe(
        connexion_, "org.freedesktop.DBus", "org.freedesktop.DBus", "NameOwnerChanged",
        "/org/freedesktop/DBus", nullptr, G_DBUS_SIGNAL_FLAGS_NONE,
        [](GDBusConnection*, char const*, char const*, char const*, char const*,
           GVariant* parametres, gpointer donnee) {
            char const* qui = nullptr;
            char const* nouveau = nullptr;
            g_variant_get(parametres, "(&s&s&s)", &qui, nullptr, &nouveau);
            if (*nouveau == '\0') {
                static_cast<FilDuBus*>(donnee)->Part(qui);
            }
        },
        this, nullptr);
}

void FilDuBus::Part(std::string const& qui) {
    if (appelants_.erase(qui) > 0) {
        appels_->Part(qui);
    }
}

void FilDuBus::Deconnecte() {
    if (connexion_ == nullptr) {
        return;
    }
    g_signal_handlers_disconnect_by_data(connexion_, this);
    if (garde_ != 0) {
        g_bus_unwatch_name(std::exchange(garde_, 0));
    }
    g_dbus_connection_signal_unsubscribe(connexion_, std::exchange(departs_, 0));
    methodes_.reset();
    // Not waited for: a bus that stands still would have the office wait for good.
    g_dbus_connection_close(connexion_, nullptr, nullptr, nullptr);
    g_clear_object(&connexion_);
    // Unique names mean other connections on the next bus.
    for (std::string const& qui : std::exchange(appelants_, {})) {
        appels_->Part(qui);
    }
}

} // namespace extension
