// SPDX-License-Identifier: MPL-2.0
#include "ClesVivantes.h"

namespace extension {

void ClesVivantes::Ajoute(std::string const& cle) {
    std::lock_guard<std::mutex> const verrou(mutex_);
    cles_.insert(cle);
}

void ClesVivantes::Retire(std::string const& cle) {
    std::lock_guard<std::mutex> const verrou(mutex_);
    cles_.erase(cle);
}

bool ClesVivantes::Contient(std::string const& cle) const {
    std::lock_guard<std::mutex> const verrou(mutex_);
    return cles_.count(cle) > 0;
}

} // namespace extension
