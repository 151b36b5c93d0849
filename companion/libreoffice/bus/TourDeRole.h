// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <cstddef>
#include <deque>
#include <list>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>

namespace extension {

/// What one caller may have waiting. One element is taken whatever its size.
struct BornesDAttente {
    std::size_t nombre = 4'096;
    std::size_t octets = std::size_t{16} << 20;
};

/// What is to be served, in a queue for each caller: one of each in turn, so that however much one
/// asks, another waits for no more than one piece of it. A caller's own order is kept. One thread
/// at a time.
template <typename Element>
class TourDeRole {
  public:
    explicit TourDeRole(BornesDAttente bornes = BornesDAttente())
        : bornes_(bornes) {}

    /// At the end of its caller's queue; false, and nothing kept, where that is full.
    bool Ajoute(std::string const& qui, Element element, std::size_t octets) {
        auto const file = files_.find(qui);
        if (file != files_.end() && (file->second.elements.size() >= bornes_.nombre ||
                                     file->second.octets + octets > bornes_.octets)) {
            return false;
        }
        Impose(qui, std::move(element), octets);
        return true;
    }

    /// The same however full the queue is.
    void Impose(std::string const& qui, Element element, std::size_t octets) {
        File& file = files_[qui];
        if (file.elements.empty()) {
            tour_.push_back(qui);
        }
        file.elements.emplace_back(std::move(element), octets);
        file.octets += octets;
    }

    /// The caller whose turn it is and the first of its queue, which stays there until `Retire`;
    /// the turn goes on to the next one. Nothing where nobody waits.
    std::optional<std::pair<std::string, Element>> Suivant() {
        if (tour_.empty()) {
            return std::nullopt;
        }
        tour_.splice(tour_.end(), tour_, tour_.begin());
        std::string const& qui = tour_.back();
        return std::make_pair(qui, files_[qui].elements.front().first);
    }

    /// The first of its queue is done with.
    void Retire(std::string const& qui) {
        auto const file = files_.find(qui);
        if (file == files_.end()) {
            return;
        }
        file->second.octets -= file->second.elements.front().second;
        file->second.elements.pop_front();
        if (file->second.elements.empty()) {
            tour_.remove(qui);
            files_.erase(file);
        }
    }

    bool EstVide() const noexcept { return tour_.empty(); }
    /// How many callers have something waiting.
    std::size_t Nombre() const noexcept { return tour_.size(); }

    /// All that waits, which is taken out.
    std::deque<Element> Vide() {
        std::deque<Element> elements;
        for (auto& [qui, file] : files_) {
            for (auto& [element, octets] : file.elements) {
                elements.push_back(std::move(element));
            }
        }
        files_.clear();
        tour_.clear();
        return elements;
    }

  private:
    struct File {
        std::deque<std::pair<Element, std::size_t>> elements; ///< none is ever empty
        std::size_t octets = 0;
    };

    BornesDAttente bornes_;
    std::unordered_map<std::string, File> files_;
    std::list<std::string> tour_; ///< whose turn comes next, first
};

} // namespace extension
