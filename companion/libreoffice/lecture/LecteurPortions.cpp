// SPDX-License-Identifier: MPL-2.0
#include "LecteurPortions.h"

#include "PassageDePortions.h"
#include "StyleDeLettres.h"

using namespace com::sun::star;

namespace extension {

LecteurPortions::LecteurPortions()
    : proprietes_(NomsDesProprietesDeLettres()) {}

ParagrapheLu LecteurPortions::Lis(uno::Reference<container::XEnumerationAccess> const& paragraphe,
                                  int& suppressions, But but) const {
    ParagrapheLu lu;
    lu.etendues.reserve(8);
    PassageDePortions(proprietes_, but, suppressions, lu).LisTout(paragraphe);
    return lu;
}

} // namespace extension
