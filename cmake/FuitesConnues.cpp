// SPDX-License-Identifier: MPL-2.0
// Part of each executable that is built with the sanitizers.

// NOLINTBEGIN(bugprone-reserved-identifier): the name is the sanitizer's own.
extern "C" __attribute__((visibility("default"))) char const* __lsan_default_suppressions();

/// Leaks that are not ours: Qt's offscreen platform forgets its screen with each QApplication; Qt's
/// record of a thread that it did not start may outlive the process; so do the messages that
/// libdbus holds for calls under way (its frames carry no names, so the library is named). What
/// QtDBus keeps for a call is not in the list: a call that we forget shows up by it.
extern "C" char const* __lsan_default_suppressions() {
    return "leak:libqoffscreen.so\n"
           "leak:QThread::QThread\n"
           "leak:libdbus-1.so\n";
}

extern "C" __attribute__((visibility("default"))) char const* __lsan_default_options();

/// What is passed over is not told: programs under test are judged by what they print.
extern "C" char const* __lsan_default_options() {
    return "print_suppressions=0";
}
// NOLINTEND(bugprone-reserved-identifier)
