// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "DAlerteInfo.h"
#include "ExportGui.h"

class QWidget;

/// What the person answered.
enum eReponseAlerte : int {
    kReponseNon = 0, ///< no, or closed without an answer to a question
    kReponseOui = 1, ///< OK or yes
};

/// Shows an alert and returns when it is closed. `parent` may be null.
///
/// The alert goes to the presenter set by `PresentateurAlerte::Mets`; without one it is a modal
/// window. Without a QApplication (or on another thread than Qt's main one) no window can be shown:
/// the texts go to standard error and the answer is `kReponseNon`. Main thread.
VOCALYNE_GUI eReponseAlerte DAlerte(QWidget* parent, DAlerteInfo const& info);
