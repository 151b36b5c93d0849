// SPDX-License-Identifier: MPL-2.0
#include "DetruisApplication.h"

#include <QCoreApplication>

void DetruisApplication() {
    delete QCoreApplication::instance();
}
