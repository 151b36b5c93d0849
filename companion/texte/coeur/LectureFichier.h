// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <cstddef>
#include <string>
#include <sys/types.h>

namespace compagnon {

/// Largest file served, in bytes: its zone document stays far below the bus's limit.
inline constexpr std::size_t kTailleFichierMax = std::size_t{32} << 20;
/// Most paragraphs served: an empty one still costs some 60 bytes of a reply.
inline constexpr std::size_t kParagraphesMax = 1000000;

enum class ProblemeFichier {
    Aucun,
    Introuvable,
    Illisible, ///< see `erreurSysteme`
    Dossier,
    PasUnFichier, ///< a pipe, a socket, a device
    TropGrand,
    TropDeLignes,
    Binaire, ///< holds a NUL byte, at `position`
    PasUtf8, ///< first wrong byte at `position`
};

/// A file as it was read, or why it cannot be served.
struct LectureFichier {
    ProblemeFichier probleme = ProblemeFichier::Aucun;
    int erreurSysteme = 0;    ///< errno of the call that failed
    std::size_t position = 0; ///< in bytes
    std::string octets;
    std::string cheminReel; ///< absolute, without symbolic links: the file that a save replaces
    bool inscriptible = false;
    dev_t peripherique = 0; ///< with `numero`: the file itself, whatever its path
    ino_t numero = 0;
};

/// Reads a regular UTF-8 file of at most `tailleMax` bytes. Never blocks on what is not one, never
/// changes anything, reads no more than the limit. `chemin`: bytes as the system has them.
LectureFichier LisFichier(std::string const& chemin, std::size_t tailleMax = kTailleFichierMax);

} // namespace compagnon
