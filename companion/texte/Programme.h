// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <functional>
#include <memory>

namespace compagnon {

class Bureau;
class ObjetBureau;
class Publication;

/// Makes the object that is published; the connection is up and the name not yet taken. `bureau`
/// outlives it; it outlives `publication`.
using FabriqueDObjet = std::function<std::unique_ptr<ObjetBureau>(
    Bureau& bureau, bool peutEnregistrer, Publication& publication)>;

/// The whole program, from the command line to its exit code (README.md). In the first thread.
int Programme(int argc, char* argv[], FabriqueDObjet const& fabrique);

} // namespace compagnon
