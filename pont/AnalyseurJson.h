// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <json/reader.h>
#include <json/value.h>

#include <string_view>

/// Parses one document after the other; cheaper than a parser for each.
class AnalyseurJson {
  public:
    /// Did the UTF-8 bytes parse? The root is what the parser left, in both cases. Throws
    /// Json::Exception for nesting beyond the parser's depth.
    bool Analyse(std::string_view octets) {
        // By pointers: given a std::string, the reader would keep a copy of the whole document.
        // Without the comments: it collects them at a cost that grows with their square.
        return lecteur_.parse(octets.data(), octets.data() + octets.size(), racine_, false);
    }
    /// Valid until the next document.
    Json::Value& DonneRacine() noexcept { return racine_; }

  private:
// The reader that zone documents are defined by; its successor parses by other rules.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    Json::Reader lecteur_;
#pragma GCC diagnostic pop
    Json::Value racine_;
};
