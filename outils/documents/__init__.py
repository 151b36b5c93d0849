# SPDX-License-Identifier: MPL-2.0
"""Does the LibreOffice extension leave documents whole? Real ones are corrected, saved and undone."""
