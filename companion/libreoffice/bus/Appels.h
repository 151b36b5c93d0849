// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Cadence.h"
#include "Demande.h"
#include "FilPrincipal.h"
#include "TourDeRole.h"
#include "service/Service.h"

#include <gio/gio.h>

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <variant>
#include <vector>

namespace extension {

/// Carries the calls of the bus over to the main thread and their answers back. Callers are served
/// in turn, each one's calls in their order. Each call is answered exactly once: with its result,
/// with the error that it met, or, when the main thread was not free in time or its caller has too
/// much waiting, with an error after which nothing happens any more.
class Appels {
  public:
    /// One piece of work of a call.
    struct Morceau {
        std::string const& appelant;
        Cadence::Instant fin; ///< when to leave the main thread to the person
        bool estParti;        ///< the caller has left the bus: nobody waits for a result
    };
    /// Makes the reply's values away from the main thread.
    using Redaction = std::function<GVariant*()>;
    /// Not finished: the same work is asked for again in a while.
    struct Encore {};
    /// How a piece of work ends. The values are a tuple, null for an empty reply.
    using Issue = std::variant<GVariant*, Redaction, Encore>;
    /// What a call does on the main thread, piece by piece.
    using Travail = std::function<Issue(Service&, Morceau const&)>;

    /// What is done, on the main thread, in the place of a call that was given up: nothing but what
    /// its caller is believed to know.
    using Renonciation = std::function<void(Service&, std::string const& appelant)>;

    /// A call to be served.
    struct Appel {
        GDBusMethodInvocation* invocation;
        std::chrono::milliseconds delai; ///< until the main thread takes it up
        Travail travail;
        Renonciation renonce; ///< may be empty
    };

    Appels(FilPrincipal fil, std::shared_ptr<Service> service);
    Appels(Appels const&) = delete;
    Appels& operator=(Appels const&) = delete;
    ~Appels();

    /// The invocation is taken over. Bus thread, as the next one.
    void Sert(Appel appel);
    /// That caller has left the bus: it is forgotten once its calls are done.
    void Part(std::string const& appelant);

    /// From now on every call is answered with an error, those under way included. Any thread but
    /// the bus thread.
    void Ferme();

  private:
    struct Attente;
    using Attentes = TourDeRole<std::shared_ptr<Attente>>;

    bool Inscris(std::string const& appelant, std::shared_ptr<Attente> const& attente);
    std::shared_ptr<Attente> Prochaine(std::string& appelant);
    bool SersUnTour(Cadence::Instant fin);
    bool SersLeSuivant(Cadence::Instant fin);
    bool Avance(Attente& attente, Morceau const& morceau);
    bool Renonce(Attente& attente, std::string const& appelant);
    void Redige(GDBusMethodInvocation* invocation, Redaction redaction);

    std::shared_ptr<Service> service_;
    std::mutex mutex_;
    bool ferme_ = false;
    Attentes attentes_;
    std::set<std::string> partis_;  ///< whose calls are not all done yet
    std::set<std::string> deborde_; ///< who had a call refused and may count on it all the same
    std::vector<std::future<void>> redactions_;
    Cadence cadence_;
};

} // namespace extension
