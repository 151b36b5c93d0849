# SPDX-License-Identifier: MPL-2.0
"""What outils/tidy is made of."""
