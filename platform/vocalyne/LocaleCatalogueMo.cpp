// SPDX-License-Identifier: MPL-2.0
#include "CatalogueMo.h"

#include <boost/locale/gnu_gettext.hpp>

std::locale CatalogueMo::FaisLocale() const {
    boost::locale::gnu_gettext::messages_info infos;
    infos.language = "C";
    infos.encoding = "UTF-8";
    infos.paths.emplace_back();
    infos.domains.emplace_back("catalogue");
    infos.callback = [this](std::string const&, std::string const&) { return octets_; };
    auto* const messages = boost::locale::gnu_gettext::create_messages_facet<char>(infos);
    return messages != nullptr ? std::locale(std::locale::classic(), messages)
                               : std::locale::classic();
}
