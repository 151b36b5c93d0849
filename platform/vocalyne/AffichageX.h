// SPDX-License-Identifier: MPL-2.0
#pragma once

/// Does the X display that DISPLAY names accept this process? False without DISPLAY. A connection
/// is made and closed again: Qt's own attempt would come too late to choose by. Any thread.
bool AffichageXRepond();
