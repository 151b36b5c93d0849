# SPDX-License-Identifier: MPL-2.0
"""A companion that breaks the contract on purpose, one breach at a time."""
