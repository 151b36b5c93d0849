// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <stdexcept>
#include <string>

namespace hote {

/// What the program's end tells the one who started it. Documented in `--help` and the README.
enum eCodeSortie : int {
    kSortieReussie = 0,
    kSortiePartielle = 1,    ///< a correction was refused, or the re-read document does not show it
    kSortieUsage = 2,        ///< wrong command, option or value
    kSortieDocument = 3,     ///< no such document within reach, or no session bus
    kSortieGreffon = 4,      ///< the plug-in is missing, unusable, or failed
    kSortieDictionnaire = 5, ///< no dictionary for the language
    kSortieDocumentMort = 6, ///< the document went away midway
    kSortieInterne = 7,      ///< standard output could not be written, or the program itself failed
};

/// A failure that ends a command: a message for the person (UTF-8, translated, no line feed) and
/// the exit code.
class ErreurHote : public std::runtime_error {
  public:
    ErreurHote(eCodeSortie code, std::string const& message)
        : std::runtime_error(message)
        , code_(code) {}

    eCodeSortie DonneCode() const noexcept { return code_; }

  private:
    eCodeSortie code_;
};

} // namespace hote
