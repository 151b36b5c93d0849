// SPDX-License-Identifier: MPL-2.0
#include "Lecture.h"

#include <algorithm>
#include <iterator>

namespace hote {

Ecart Compare(std::vector<ParagrapheDuDocument> const& avant,
              std::vector<ParagrapheDuDocument> const& apres) {
    auto const debut = std::mismatch(avant.begin(), avant.end(), apres.begin(), apres.end());
    auto const reste = std::min(avant.end() - debut.first, apres.end() - debut.second);
    auto const fin = std::mismatch(avant.rbegin(), avant.rbegin() + reste, apres.rbegin());
    return {static_cast<int>(debut.first - avant.begin()),
            static_cast<int>(fin.first - avant.rbegin()),
            {debut.second, fin.second.base()}};
}

bool Applique(Ecart const& ecart, std::vector<ParagrapheDuDocument>& paragraphes) {
    int const nombre = static_cast<int>(paragraphes.size());
    if (ecart.gardesAuDebut < 0 || ecart.gardesALaFin < 0 ||
        ecart.gardesAuDebut > nombre - ecart.gardesALaFin) {
        return false;
    }
    paragraphes.erase(paragraphes.begin() + ecart.gardesAuDebut,
                      paragraphes.end() - ecart.gardesALaFin);
    paragraphes.insert(paragraphes.begin() + ecart.gardesAuDebut, ecart.milieu.begin(),
                       ecart.milieu.end());
    return true;
}

} // namespace hote
