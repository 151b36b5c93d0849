// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

struct sd_bus;

namespace banc {

/// The bench's companion called through sd-bus, with nothing around it. Throws std::runtime_error
/// when the bus or the companion does not answer.
class AppelSdBus {
  public:
    explicit AppelSdBus(std::string const& instance);
    ~AppelSdBus();
    AppelSdBus(AppelSdBus const&) = delete;
    AppelSdBus& operator=(AppelSdBus const&) = delete;

    bool PermetsRetourDeCharriot();
    /// Hands the reply's text over, which lives as long as the call.
    void SynchronisePositions(std::string const& identifiant,
                              std::function<void(std::string_view)> const& lis);

  private:
    std::string service_;
    std::string chemin_;
    sd_bus* bus_ = nullptr;
};

} // namespace banc
