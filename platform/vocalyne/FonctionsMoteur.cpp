// SPDX-License-Identifier: MPL-2.0
#include "FonctionsMoteur.h"

#include "CatalogueMo.h"

#include <boost/locale/message.hpp>

#include <exception>

bool vocalyneFaisLocale(CatalogueMo const& catalogue, std::locale& locale) {
    try {
        locale = catalogue.FaisLocale();
        return true;
    } catch (std::exception const&) {
        // In an encoding or with a plural rule that Boost does not know.
        return false;
    }
}

char const* vocalyneTraduis(std::locale const& locale, char const* contexte, char const* message) {
    using Messages = boost::locale::message_format<char>;
    return std::has_facet<Messages>(locale)
               ? std::use_facet<Messages>(locale).get(0, contexte, message)
               : nullptr;
}
