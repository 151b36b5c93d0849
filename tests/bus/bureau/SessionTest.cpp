// SPDX-License-Identifier: MPL-2.0
