// SPDX-License-Identifier: MPL-2.0
#include "Machine.h"

#include <QSysInfo>

#include <json/version.h>

#include <cstdlib>
#include <fstream>
#include <thread>

namespace banc {

namespace {

std::string Processeur() {
    std::ifstream infos("/proc/cpuinfo");
    for (std::string ligne; std::getline(infos, ligne);) {
        if (ligne.rfind("model name", 0) == 0) {
            return ligne.substr(ligne.find(':') + 2);
        }
    }
    return "unknown processor";
}

std::string Charge() {
    std::ifstream charge("/proc/loadavg");
    std::string minute;
    charge >> minute;
    return minute;
}

} // namespace

std::string DecrisMachine() {
    return "machine    " + Processeur() + ", " +
           std::to_string(std::thread::hardware_concurrency()) + " cores, load " + Charge() +
           "\nsystem     " + QSysInfo::prettyProductName().toStdString() + ", " +
           QSysInfo::buildAbi().toStdString() + "\nlibraries  Qt " + qVersion() + ", JsonCpp " +
           JSONCPP_VERSION_STRING + "\nbuild      " + VOCALYNE_TYPE_CONSTRUCTION + ", g++ " +
           __VERSION__ + "\n";
}

} // namespace banc
