// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QObject>
#include <QTimer>

#include <functional>
#include <utility>

/// Acts on the modal message box that a call is about to open: waits in the event loop that the
/// box runs until it is shown, and then does what it was told to. The box must be closed by that.
class SurFenetreModale {
  public:
    explicit SurFenetreModale(std::function<void(QMessageBox&)> action)
        : action_(std::move(action)) {
        QObject::connect(&minuterie_, &QTimer::timeout, [this] {
            auto* const boite = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (boite == nullptr || !boite->isVisible()) {
                return;
            }
            minuterie_.stop();
            vue_ = true;
            action_(*boite);
        });
        minuterie_.start(0); // at each turn of the loop
    }

    /// Was a box shown?
    bool Vue() const { return vue_; }

  private:
    std::function<void(QMessageBox&)> action_;
    QTimer minuterie_;
    bool vue_ = false;
};
