// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace compagnon {

enum class IssueEcriture {
    Faite,          ///< the file holds the new text
    FaiteParDessus, ///< the same, but someone wrote it in the last instant: theirs is in `ailleurs`
    Conflit, ///< the file is not what was read: left as it is, the new text stands in `ailleurs`
    Echec,   ///< it could not be written: left as it is, the new text stands in `ailleurs`
    Perdue,  ///< neither could be written
};

struct Ecriture {
    IssueEcriture issue = IssueEcriture::Faite;
    int erreurSysteme = 0;
    std::string ailleurs; ///< path of the other text, when not `Faite`
};

/// Replaces a file's content so that neither it nor a change made meanwhile by someone else can be
/// lost: the new text is written beside it and synchronised, and the two are exchanged in one step;
/// if what comes out is not `lu`, they are exchanged back. Where the file system cannot exchange,
/// the content is compared right before the rename.
///
/// Keeps mode, group, access control list and extended attributes and, where the system lets us,
/// the owner; a file with some that cannot be kept is not replaced (`Echec`). `chemin`: absolute,
/// without symbolic links. `lu`: the content that the file must still have. On a conflict the copy
/// is put beside the file, on a failure beside it or else in the folder for temporary files.
class EcritureSure {
  public:
    EcritureSure(std::string chemin, std::string_view lu)
        : chemin_(std::move(chemin))
        , lu_(lu) {}

    Ecriture Ecris(std::string_view nouveau);

    /// For tests: called right before the exchange, when everything has been checked.
    std::function<void()> avantEchange;

  private:
    Ecriture Sauve(std::string_view nouveau, IssueEcriture issue, int erreurSysteme) const;

    std::string chemin_;
    std::string_view lu_;
};

} // namespace compagnon
