// SPDX-License-Identifier: MPL-2.0
// Part of each executable that is built with the sanitizers.

// NOLINTBEGIN(bugprone-reserved-identifier): the name is the sanitizer's own.
extern "C" __attribute__((visibility("default"))) char const* __lsan_default_suppressions();

/// Leaks that are not ours: Qt's offscreen platform forgets its screen with each QApplication.
extern "C" char const* __lsan_default_suppressions() {
    return "leak:libqoffscreen.so\n";
}
// NOLINTEND(bugprone-reserved-identifier)
