// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <mutex>
#include <set>
#include <string>

namespace extension {

/// The keys of the documents that are open; any thread. Shared, as a document may close last.
class ClesVivantes {
  public:
    void Ajoute(std::string const& cle);
    void Retire(std::string const& cle);
    bool Contient(std::string const& cle) const;

  private:
    mutable std::mutex mutex_;
    std::set<std::string> cles_;
};

} // namespace extension
