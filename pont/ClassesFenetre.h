// SPDX-License-Identifier: MPL-2.0
#pragma once

/// The window classes by which the host tells LibreOffice and OpenOffice.org apart from others.
namespace classesFenetre {

inline constexpr char const* kOpenOffice4 = "VCLSalFrame:OpenOffice.org 4.0";
inline constexpr char const* kOpenOffice3 = "VCLSalFrame:OpenOffice.org 3.0";

} // namespace classesFenetre
