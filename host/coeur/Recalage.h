// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QHash>
#include <QString>

#include <optional>
#include <vector>

namespace hote {

/// Where the zones of a document are after it was read anew: it may have gained, lost or changed
/// some meanwhile.
class Recalage {
  public:
    /// The texts of the zones before and now; both must outlive the object.
    Recalage(std::vector<QString> const& anciens, std::vector<QString> const& nouveaux);

    /// The new rank of the zone that stood at `rang`: where both lists agree from the beginning or
    /// from the end, where its text stands once between those, or where as many zones as before
    /// stand between them. Nothing when none of this tells: it is not guessed.
    std::optional<int> Retrouve(int rang) const;

    /// Are both lists the same?
    bool RienNeChange() const noexcept;

  private:
    std::vector<QString> const& anciens_;
    int decalage_;              ///< how many zones were gained
    int debut_;                 ///< zones that agree from the beginning
    int fin_;                   ///< old rank from which they agree to the end
    QHash<QString, int> rangs_; ///< of the texts between, -1 for one that stands more than once
};

} // namespace hote
