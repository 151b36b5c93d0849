// SPDX-License-Identifier: MPL-2.0
#include "BusPrive.h"

#include <csignal>
#include <cstdlib>
#include <stdexcept>

namespace {

constexpr char kVariable[] = "DBUS_SESSION_BUS_ADDRESS";

// An abstract socket is reached from another file-system root too (32-bit programs in theirs). The
// limits are those of the stock session bus: without them one message could have 32 MiB only.
std::string Reglages(std::string const& dossier) {
    return R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-BUS Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:abstract=)" +
           dossier + R"(/bus</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
  <limit name="max_incoming_bytes">1000000000</limit>
  <limit name="max_outgoing_bytes">1000000000</limit>
  <limit name="max_message_size">1000000000</limit>
  <limit name="max_completed_connections">100000</limit>
  <limit name="max_connections_per_user">100000</limit>
  <limit name="max_match_rules_per_connection">50000</limit>
  <limit name="max_replies_per_connection">50000</limit>
</busconfig>
)";
}

} // namespace

BusPrive::BusPrive() {
    Commence();
    if (char const* const avant = std::getenv(kVariable)) {
        adresseAvant_ = avant;
    }
    ::setenv(kVariable, adresse_.c_str(), 1);
}

void BusPrive::Recommence() {
    Commence();
}

void BusPrive::Commence() {
    char const* const autre = std::getenv("VOCALYNE_DBUS_DAEMON");
    std::string const reglages =
        dossier_.Ecris("session.conf", Reglages(dossier_.Chemin().string())).string();
    demon_ = std::make_unique<Processus>(std::vector<std::string>{
        autre != nullptr ? autre : CHEMIN_DBUS_DAEMON, "--nofork", "--nopidfile", "--nosyslog",
        "--print-address", "--config-file=" + reglages});
    std::optional<std::string> const adresse = demon_->LisLigne();
    if (!adresse || adresse->empty()) {
        throw std::runtime_error("the private bus did not start: " + demon_->Erreurs());
    }
    adresse_ = adresse->substr(0, adresse->find(",guid="));
}

BusPrive::~BusPrive() {
    Degele();
    Arrete();
    if (adresseAvant_) {
        ::setenv(kVariable, adresseAvant_->c_str(), 1);
    } else {
        ::unsetenv(kVariable);
    }
}

void BusPrive::Arrete() {
    demon_->Signale(SIGTERM);
    demon_->Attends();
}

void BusPrive::Tue() {
    demon_->Signale(SIGKILL);
    demon_->Attends();
}

void BusPrive::Fige() {
    demon_->Signale(SIGSTOP);
}

void BusPrive::Degele() {
    demon_->Signale(SIGCONT);
}
