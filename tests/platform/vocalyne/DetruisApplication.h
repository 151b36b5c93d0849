// SPDX-License-Identifier: MPL-2.0
#pragma once

/// Deletes Qt's application object, as a connector does when it is unloaded. Apart from its callers
/// because the analyzer does not know that Qt forgets the object then.
void DetruisApplication();
