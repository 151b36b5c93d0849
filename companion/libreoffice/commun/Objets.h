// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <com/sun/star/uno/Reference.hxx>
#include <com/sun/star/uno/XInterface.hpp>

#include <cstddef>
#include <functional>
#include <unordered_set>

namespace extension {

/// What an object of the office is known by: two references are to one object exactly where these
/// are equal, whatever interface they were got by. Null for null.
inline css::uno::Reference<css::uno::XInterface>
Identite(css::uno::Reference<css::uno::XInterface> const& objet) {
    return css::uno::Reference<css::uno::XInterface>(objet, css::uno::UNO_QUERY);
}

/// A set of objects of the office. It holds them: the office gives the address of an object that
/// nobody holds to the next one, which would then pass for it. Main thread.
class Objets {
  public:
    /// False when it is among them already.
    bool Ajoute(css::uno::Reference<css::uno::XInterface> const& objet) {
        return objets_.insert(Identite(objet)).second;
    }
    bool Contient(css::uno::Reference<css::uno::XInterface> const& objet) const {
        return objets_.count(Identite(objet)) > 0;
    }
    /// How many there are.
    std::size_t Nombre() const noexcept { return objets_.size(); }
    /// The one, of a set of one.
    css::uno::Reference<css::uno::XInterface> const& Seul() const { return *objets_.begin(); }

  private:
    using Objet = css::uno::Reference<css::uno::XInterface>;
    // All in here are identities, so that addresses tell: the office's own comparison would ask
    // both objects anew each time.
    struct Adresse {
        std::size_t operator()(Objet const& objet) const noexcept {
            return std::hash<css::uno::XInterface*>()(objet.get());
        }
    };
    struct MemeAdresse {
        bool operator()(Objet const& un, Objet const& autre) const noexcept {
            return un.get() == autre.get();
        }
    };

    std::unordered_set<Objet, Adresse, MemeAdresse> objets_;
};

} // namespace extension
