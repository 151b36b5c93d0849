// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "FilPrincipal.h"
#include "service/Service.h"

#include <gio/gio.h>

#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <set>

namespace extension {

/// Carries the calls of the bus over to the main thread and their answers back. Each call is
/// answered exactly once: with its result, with the error that it met, or, when the main thread
/// was not free in time, with an error after which nothing happens any more.
class Appels {
  public:
    /// What a call does on the main thread; its result is a tuple of the reply's values, null for
    /// an empty reply.
    using Travail = std::function<GVariant*(Service&, std::string const& appelant)>;

    Appels(FilPrincipal fil, std::shared_ptr<Service> service);
    Appels(Appels const&) = delete;
    Appels& operator=(Appels const&) = delete;
    ~Appels();

    /// Bus thread; `invocation` is taken over.
    void Sert(GDBusMethodInvocation* invocation, std::chrono::milliseconds delai, Travail travail);

    /// Work without a caller who waits. Bus thread.
    void Poste(std::function<void(Service&)> travail);

    /// From now on every call is answered with an error, those under way included. Any thread.
    void Ferme();

  private:
    struct Attente;

    void Retire(std::shared_ptr<Attente> const& attente);

    FilPrincipal fil_;
    std::shared_ptr<Service> service_;
    std::mutex mutex_;
    bool ferme_ = false;
    std::set<std::shared_ptr<Attente>> attentes_;
};

} // namespace extension
