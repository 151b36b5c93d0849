// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QByteArray>
#include <QtGlobal>

/// An environment variable with another value, or none (null), for the life of the object.
class VariableMise {
  public:
    VariableMise(char const* nom, char const* valeur)
        : nom_(nom)
        , existait_(qEnvironmentVariableIsSet(nom))
        , avant_(qgetenv(nom)) {
        if (valeur != nullptr) {
            qputenv(nom, valeur);
        } else {
            qunsetenv(nom);
        }
    }
    ~VariableMise() {
        if (existait_) {
            qputenv(nom_, avant_);
        } else {
            qunsetenv(nom_);
        }
    }
    VariableMise(VariableMise const&) = delete;
    VariableMise& operator=(VariableMise const&) = delete;

  private:
    char const* nom_;
    bool existait_;
    QByteArray avant_;
};
