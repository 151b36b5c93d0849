// SPDX-License-Identifier: MPL-2.0
#include "CatalogueMo.h"
#include "Sonde.h"

#include <boost/locale.hpp>

#include <cstring>

int LLVMFuzzerTestOneInput(std::uint8_t const* octets, std::size_t taille) {
    CatalogueMo const catalogue(std::vector<char>(octets, octets + taille));
    if (!catalogue.EstSain()) {
        return 0;
    }
    try {
        using Messages = boost::locale::message_format<char>;
        auto const locale = catalogue.FaisLocale();
        if (!std::has_facet<Messages>(locale)) {
            return 0;
        }
        auto const& messages = std::use_facet<Messages>(locale);
        for (auto const* const message : {"", "absent", "Question", "Le document a été fermé."}) {
            for (auto const* const contexte : {static_cast<char const*>(nullptr), "titre"}) {
                if (auto const* const traduction = messages.get(0, contexte, message)) {
                    static_cast<void>(std::strlen(traduction)); // read to its end
                }
            }
        }
    } catch (std::exception const&) {
        return 0; // Boost.Locale may refuse it; only reading outside of it is wrong
    }
    return 0;
}
