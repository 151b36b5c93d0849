# SPDX-License-Identifier: MPL-2.0
"""What a saved document says, read from its XML alone: nothing here knows of an office or a bus."""
