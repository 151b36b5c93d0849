// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "DAlerte.h"

/// Shows an alert in a modal window and returns the answer. Qt's main thread, with a QApplication.
eReponseAlerte MontreFenetreAlerte(QWidget* parent, DAlerteInfo const& info);
