// SPDX-License-Identifier: MPL-2.0
#include "Lance.h"

#include <glib.h>

#include <unistd.h>

namespace extension {

namespace {

/// As C wants it; lives no longer than `mots`.
std::vector<char*> PourC(std::vector<std::string> const& mots) {
    std::vector<char*> pointeurs;
    pointeurs.reserve(mots.size() + 1);
    for (std::string const& mot : mots) {
        pointeurs.push_back(const_cast<char*>(mot.c_str())); // GLib only reads it
    }
    pointeurs.push_back(nullptr);
    return pointeurs;
}

} // namespace

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
