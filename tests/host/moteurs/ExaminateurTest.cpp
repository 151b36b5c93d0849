// SPDX-License-Identifier: MPL-2.0
#include "moteurs/Examinateur.h"
#include "MoteurFaux.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QThread>

#include <gtest/gtest.h>

using namespace hote;

namespace {

class ExaminateurEnBoucle : public ::testing::Test {
  protected:
    static Atelier::Reglage FaisReglage() {
        return {{Fabrique("m", [](auto const&,
                                  auto const&) { return std::vector<Remarque>{Note(0, 1)}; })},
                nullptr,
                nullptr};
    }

    int argc_ = 1;
    char nom_[5] = "test";
    char* argv_[2] = {nom_, nullptr};
    QCoreApplication application_{argc_, argv_};
};

} // namespace

TEST_F(ExaminateurEnBoucle, TellsInItsOwnThreadWhatWasFound) {
    Examinateur examinateur(FaisReglage());
    QEventLoop boucle;
    std::vector<Remarque> trouvees;
    QThread* fil = nullptr;
    QObject::connect(&examinateur, &Examinateur::RemarquesTrouvees, &boucle,
                     [&](quint64, QString const&, std::vector<Remarque> const& remarques) {
                         trouvees = remarques;
                         fil = QThread::currentThread();
                     });
    QObject::connect(&examinateur, &Examinateur::ParagrapheExamine, &boucle, &QEventLoop::quit);
    examinateur.Demande(Francais("a b"), 0);
    boucle.exec();
    ASSERT_EQ(trouvees.size(), 1U);
    EXPECT_EQ(trouvees[0].moteur, QLatin1String("m"));
    EXPECT_EQ(fil, QThread::currentThread());
}

TEST_F(ExaminateurEnBoucle, SaysNothingOfWhatWasCancelledEvenWhenItsResultIsOnTheWay) {
    Examinateur examinateur(FaisReglage());
    QEventLoop boucle;
    std::vector<quint64> finis;
    QObject::connect(&examinateur, &Examinateur::ParagrapheExamine, &boucle, [&](quint64 jeton) {
        finis.push_back(jeton);
        boucle.quit();
    });
    auto const premier = examinateur.Demande(Francais("a b"), 0);
    auto const second = examinateur.Demande(Francais("c d"), 1);
    examinateur.Annule(premier);
    boucle.exec();
    EXPECT_EQ(finis, (std::vector<quint64>{second}));
}
