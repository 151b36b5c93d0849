// SPDX-License-Identifier: MPL-2.0
#pragma once

/// Has the translation loaders run again, for a display language that changed. The thread that
/// loads libraries.
void RechargeDomainesDeTraduction();
