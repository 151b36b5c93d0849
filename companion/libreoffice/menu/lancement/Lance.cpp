// SPDX-License-Identifier: MPL-2.0
#include "Lance.h"

#include "PourC.h"

#include <glib.h>

#include <unistd.h>

namespace extension {

std::string Lance(std::vector<std::string> const& ligne,
                  std::vector<std::string> const& environnement) {
    std::vector<char*> arguments = PourC(ligne);
    std::vector<char*> variables = PourC(environnement);
    GError* erreur = nullptr;
    // Without G_SPAWN_DO_NOT_REAP_CHILD GLib forks twice: the child belongs to the system.
    gboolean const fait = g_spawn_async(
        "/", arguments.data(), variables.data(), G_SPAWN_STDOUT_TO_DEV_NULL,
        [](gpointer /*rien*/) { setsid(); }, nullptr, nullptr, &erreur);
    if (fait != FALSE) {
        return {};
    }
    std::string message = erreur->message;
    g_error_free(erreur);
    return message;
}

} // namespace extension
