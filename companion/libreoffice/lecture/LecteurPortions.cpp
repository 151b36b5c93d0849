// SPDX-License-Identifier: MPL-2.0
#include "LecteurPortions.h"

#include "PassageDePortions.h"
#include "StyleDeLettres.h"

using namespace com::sun::star;

namespace extension {

LecteurPortions::LecteurPortions()
    : proprietes_(NomsDesProprietesDeLettres()) {}

ParagrapheLu LecteurPortions::Lis(uno::Reference<container::XEnumerationAccess> const& paragraphe,
                                  int& suppressions) const {
    ParagrapheLu lu;
    lu.etendues.reserve(8);
    PassageDePortions(proprietes_, suppressions, lu).Lis(paragraphe);
    return lu;
}

} // namespace extension
