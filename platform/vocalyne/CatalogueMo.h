// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <locale>
#include <string>
#include <vector>

/// A gettext catalog (.mo) as bytes, which come with a library: nothing else is read.
///
/// So what stands in them is looked at no further than whether it is a catalog at all, lest a file
/// put in by mistake take the place of one that serves. Boost.Locale follows a catalog's offsets
/// without looking; whoever can put wrong ones into a library can put wrong code into it as well.
/// One object on one thread at a time.
class CatalogueMo {
  public:
    CatalogueMo() = default;

    /// The catalog at a resource path (":/…"); no bytes when there is none.
    static CatalogueMo DepuisRessource(std::string const& chemin);

    bool EstVide() const noexcept { return octets_.empty(); }

    /// A locale that serves the catalog's messages in UTF-8, on the base of the classic one. Only
    /// where Boost.Locale is linked (see MoteurTraduction.h).
    /// Throws what Boost.Locale throws for a catalog that it cannot use.
    std::locale FaisLocale() const;

  private:
    std::vector<char> octets_;
};
