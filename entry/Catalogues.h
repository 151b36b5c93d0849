// SPDX-License-Identifier: MPL-2.0
#pragma once

/// Loads the module's translation domain, once: the English catalog is offered first, the French
/// one second, and the translation library takes the one of the display language. Calls after that
/// load nothing. The resource tree is registered for as long as this takes; a registration made at
/// load stays as it was. One thread at a time.
void ChargeDomaineTexteur();
