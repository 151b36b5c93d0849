// SPDX-License-Identifier: MPL-2.0
// The bare library that loading the plug-in is compared with: it needs the same of Qt, makes the
// application object as the plug-in does, and nothing else.
#include <QApplication>
#include <QDBusConnection>

namespace {

int leNombre = 1;
char leNom[] = "temoin";
char* lesArguments[] = {leNom, nullptr};

// Never deleted: unloading is not measured.
[[maybe_unused]] auto* const lApplication = new QApplication(leNombre, lesArguments);

} // namespace

/// Never called: without a use of it the linker would leave QtDBus out.
__attribute__((visibility("default"))) bool TemoinEstSurLeBus() {
    return QDBusConnection::sessionBus().isConnected();
}
