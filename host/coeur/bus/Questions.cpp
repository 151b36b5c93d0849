// SPDX-License-Identifier: MPL-2.0
#include "Questions.h"

#include <QDBusPendingCallWatcher>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>

namespace hote {

namespace {

/// How often a question is asked where others answer.
constexpr int kEssais = 8;

class Tour {
  public:
    Tour(QDBusConnection const& bus, std::vector<QDBusMessage> const& questions, int delaiMs)
        : bus_(bus)
        , questions_(questions)
        , delaiMs_(std::max(delaiMs, 0))
        , essais_(questions.size())
        , reponses_(questions.size())
        , restantes_(questions.size()) {}

    std::vector<Reponse> Fais() {
        if (restantes_ == 0) {
            return {};
        }
        montre_.start();
        for (std::size_t rang = 0; rang < questions_.size(); ++rang) {
            Pose(rang);
        }
        QTimer minuterie;
        QObject::connect(&minuterie, &QTimer::timeout, &boucle_, &QEventLoop::quit);
        minuterie.start(delaiMs_);
        boucle_.exec();
        return std::move(reponses_);
    }

  private:
    void Pose(std::size_t rang) {
        ++essais_[rang];
        auto const reste = std::max(delaiMs_ - static_cast<int>(montre_.elapsed()), 1);
        auto* const guetteur =
            new QDBusPendingCallWatcher(bus_.asyncCall(questions_[rang], reste), &boucle_);
        QObject::connect(guetteur, &QDBusPendingCallWatcher::finished, &boucle_, [=] {
            guetteur->deleteLater();
            Recois(rang, guetteur->reply());
        });
    }

    void Recois(std::size_t rang, QDBusMessage const& message) {
        // What QtDBus made up itself (no connection, no answer in time) names no sender; that
        // nobody is there any more, the bus tells in its own name.
        auto const expediteur = message.service();
        bool const ditAbsent = message.type() == QDBusMessage::ErrorMessage &&
                               expediteur == QLatin1String("org.freedesktop.DBus");
        if (expediteur == questions_[rang].service() || ditAbsent) {
            reponses_[rang] = {Reponse::Genre::Donnee, message};
        } else if (!expediteur.isEmpty()) {
            reponses_[rang].genre = Reponse::Genre::Usurpee;
            if (essais_[rang] < kEssais) {
                Pose(rang);
                return;
            }
        }
        if (--restantes_ == 0) {
            boucle_.quit();
        }
    }

    QDBusConnection bus_;
    std::vector<QDBusMessage> const& questions_;
    int delaiMs_;
    std::vector<int> essais_;
    std::vector<Reponse> reponses_;
    std::size_t restantes_;
    QElapsedTimer montre_;
    QEventLoop boucle_; // the last to be made and the first to go: it holds who listens
};

} // namespace

std::vector<Reponse> Pose(QDBusConnection const& bus, std::vector<QDBusMessage> const& questions,
                          int delaiMs) {
    return Tour(bus, questions, delaiMs).Fais();
}

QDBusMessage QuestionAuBus(QString const& methode, QVariantList const& arguments) {
    auto const nomDuBus = QStringLiteral("org.freedesktop.DBus");
    auto question = QDBusMessage::createMethodCall(
        nomDuBus, QStringLiteral("/org/freedesktop/DBus"), nomDuBus, methode);
    question.setArguments(arguments);
    return question;
}

} // namespace hote
