# SPDX-License-Identifier: MPL-2.0
"""The contract of protocol/, as a list of rules that any companion can be held to over D-Bus."""
