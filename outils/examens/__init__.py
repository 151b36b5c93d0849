# SPDX-License-Identifier: MPL-2.0
"""The looks of outils/lint at how the tree is laid out: one file a look."""
