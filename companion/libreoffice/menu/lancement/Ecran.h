// SPDX-License-Identifier: MPL-2.0
#pragma once

namespace extension {

/// Does the office show windows? Its interfaces do not tell: by how it was started, then. Any
/// thread, while none changes the environment.
bool AUnEcran();

} // namespace extension
