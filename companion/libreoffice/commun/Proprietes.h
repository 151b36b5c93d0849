// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <com/sun/star/beans/XPropertySet.hpp>

namespace extension {

/// The property's value; void where there is no object. Throws the office's
/// `UnknownPropertyException` where the object has no property of that name. Main thread, as all of
/// these.
css::uno::Any Valeur(css::uno::Reference<css::beans::XPropertySet> const& objet, char const* nom);

/// The same, void too where the object has no such property: one call more.
css::uno::Any ValeurSiConnue(css::uno::Reference<css::beans::XPropertySet> const& objet,
                             char const* nom);

/// Does it hold "true"?
bool EstVrai(css::uno::Any const& valeur);

/// What a property that is true or false says; `defaut` where there is no object, or it has none of
/// that name.
bool Vaut(css::uno::Reference<css::beans::XPropertySet> const& objet, char const* nom, bool defaut);

} // namespace extension
