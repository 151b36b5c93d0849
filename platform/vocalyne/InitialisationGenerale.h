// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ExportVocalyne.h"
#include "eLangue.h"

/// The set-up that the host and its connectors share. Called while a library is loaded, on the
/// loading thread.
class VOCALYNE_OUTILS InitialisationGenerale {
  public:
    /// The earliest step: fixes the display language, and has the registered translation loaders
    /// run again when it changed.
    static void InitLePlusTotPossible(eLangue langue);

    /// The step that needs the Qt application object: installs Qt's own translation (the buttons of
    /// dialogues) for the display language, where it is on the system. Without an application
    /// object it does nothing.
    static void InitApresQApp();

    /// The display language now; what the system asks for as long as nothing fixed it.
    static eLangue DonneLangue();
};

/// Makes a QApplication where no Qt application object exists yet, and does nothing where one does.
///
/// Never ends the process. The platforms of QT_QPA_PLATFORM are tried first (but for eglfs and
/// minimalegl, which end the process themselves when they fail), without it the X or Wayland
/// display of the environment; where none comes up the application runs on Qt's offscreen platform.
/// Where Qt's installation lacks even that one, a QCoreApplication is made: no window can be shown.
///
/// The environment and the process's locale are left as they were. The object belongs to whoever
/// deletes it; it lives until then. The calling thread becomes Qt's main thread.
VOCALYNE_OUTILS void InitQApplication();
