// SPDX-License-Identifier: MPL-2.0
#include "AlertesNotees.h"

AlertesNotees::AlertesNotees()
    : precedent_(PresentateurAlerte::Mets(this)) {}

AlertesNotees::~AlertesNotees() {
    PresentateurAlerte::Mets(precedent_);
}

eReponseAlerte AlertesNotees::Presente(QWidget* parent, DAlerteInfo const& info) {
    alertes_.push_back({parent, info});
    return kReponseOui;
}
