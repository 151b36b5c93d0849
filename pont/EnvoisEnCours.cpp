// SPDX-License-Identifier: MPL-2.0
#include "EnvoisEnCours.h"

#include "Contrat.h"
#include "QuestionAuBus.h"

#include <QDBusAbstractInterface>
#include <QDBusConnection>
#include <QDBusPendingCall>

#include <algorithm>
#include <chrono>
#include <deque>

namespace {

constexpr char kNom[] = "vocalyneEnvoisEnCours";

/// Kept with the proxy, as a child of its own.
class EnCours : public QObject {
  public:
    explicit EnCours(QObject* proxy)
        : QObject(proxy) {
        setObjectName(QLatin1String(kNom));
    }

    static EnCours& De(QDBusAbstractInterface& proxy) {
        auto* const enfant =
            proxy.findChild<QObject*>(QLatin1String(kNom), Qt::FindDirectChildrenOnly);
        return enfant != nullptr ? static_cast<EnCours&>(*enfant) : *new EnCours(&proxy);
    }

    bool FaisPlace(QDBusConnection const& bus) {
        while (!appels_.empty() && appels_.front().isFinished()) {
            appels_.pop_front();
        }
        if (appels_.size() < envoisEnCours::kMax) {
            neRepondPas_ = false;
            return true;
        }
        if (neRepondPas_) {
            return false;
        }
        constexpr std::chrono::milliseconds kPatience{contrat::kDelaiDocEstMortMs};
        questionAuBus::AttendsLaFin(bus, appels_.front(), kPatience);
        // They are not always answered in the order in which they left.
        appels_.erase(std::remove_if(appels_.begin(), appels_.end(),
                                     [](QDBusPendingCall const& a) { return a.isFinished(); }),
                      appels_.end());
        neRepondPas_ = appels_.size() >= envoisEnCours::kMax;
        return !neRepondPas_;
    }

    void Retiens(QDBusPendingCall const& appel) {
        if (!appel.isFinished()) {
            appels_.push_back(appel);
        }
    }

  private:
    std::deque<QDBusPendingCall> appels_;
    bool neRepondPas_ = false;
};

} // namespace

namespace envoisEnCours {

bool FaisPlace(QDBusAbstractInterface& proxy) {
    return EnCours::De(proxy).FaisPlace(proxy.connection());
}

void Retiens(QDBusAbstractInterface& proxy, QDBusPendingCall const& appel) {
    EnCours::De(proxy).Retiens(appel);
}

} // namespace envoisEnCours
