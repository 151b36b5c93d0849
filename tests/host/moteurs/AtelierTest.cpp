// SPDX-License-Identifier: MPL-2.0
#include "MoteurFaux.h"

#include <gtest/gtest.h>

#include <condition_variable>
#include <future>

using namespace hote;

namespace {

/// Writes down what it is told, and lets a test wait for it.
class Carnet : public Atelier::Abonne {
  public:
    void RecoisRemarques(Atelier::Jeton jeton, QString const& moteur,
                         std::vector<Remarque> const& remarques) override {
        Note(moteur.toStdString() + std::to_string(jeton) + ":" + std::to_string(remarques.size()));
    }
    void RecoisFin(Atelier::Jeton jeton) override { Note("fin" + std::to_string(jeton)); }
    void RecoisEtat(QString const& moteur, EtatMoteur etat, QString const& message) override {
        std::lock_guard<std::mutex> const verrou(mutex_);
        etats.push_back(moteur.toStdString() + std::to_string(static_cast<int>(etat)) +
                        message.toStdString());
    }

    std::vector<std::string> Attends(std::string const& ligne) {
        std::unique_lock<std::mutex> verrou(mutex_);
        change_.wait(verrou, [&] { return std::count(lignes_.begin(), lignes_.end(), ligne) > 0; });
        return lignes_;
    }

    std::vector<std::string> etats; ///< read after `Attends`

  private:
    void Note(std::string const& ligne) {
        std::lock_guard<std::mutex> const verrou(mutex_);
        lignes_.push_back(ligne);
        change_.notify_all();
    }

    std::mutex mutex_;
    std::condition_variable change_;
    std::vector<std::string> lignes_;
};

using Lignes = std::vector<std::string>;

} // namespace

TEST(Atelier, TellsTheRemarksOfEachEngineInTheirOrderWhicheverIsQuicker) {
    Carnet carnet;
    std::promise<void> rapideEstFini;
    Atelier atelier({{Fabrique("lent",
                               [&](auto const&, auto const&) {
                                   rapideEstFini.get_future().wait();
                                   return std::vector<Remarque>{Note(0, 2)};
                               }),
                      Fabrique("rapide",
                               [&](auto const&, auto const&) {
                                   rapideEstFini.set_value();
                                   return std::vector<Remarque>{Note(0, 2), Note(3, 5)};
                               })},
                     nullptr,
                     nullptr},
                    carnet);
    atelier.Demande(Francais("un deux"), 0);
    // Of what both saw, only the first engine's remark is shown.
    EXPECT_EQ(carnet.Attends("fin1"), (Lignes{"lent1:1", "rapide1:1", "fin1"}));
}

TEST(Atelier, TakesTheLowestPriorityFirstAndAmongEqualsTheOldest) {
    Carnet carnet;
    std::promise<void> depart;
    auto const attente = depart.get_future().share();
    Atelier atelier({{Fabrique("m",
                               [&](auto const&, auto const&) {
                                   attente.wait();
                                   return std::vector<Remarque>{};
                               })},
                     nullptr,
                     nullptr},
                    carnet);
    atelier.Demande(Francais("tient la place"), -1);
    atelier.Demande(Francais("a"), 5);
    atelier.Demande(Francais("b"), 5);
    auto const avance = atelier.Demande(Francais("c"), 9);
    atelier.ChangePriorite(avance, 1);
    depart.set_value();
    EXPECT_EQ(carnet.Attends("fin3"),
              (Lignes{"m1:0", "fin1", "m4:0", "fin4", "m2:0", "fin2", "m3:0", "fin3"}));
}

TEST(Atelier, SaysNothingMoreOfWhatWasCancelledAndStopsTheEngineThatIsAtIt) {
    Carnet carnet;
    std::promise<void> commence;
    Atelier atelier({{Fabrique("m",
                               [&](auto const& paragraphe, auto const& arret) {
                                   if (paragraphe.texte == QLatin1String("long")) {
                                       commence.set_value();
                                       while (!arret.EstDemande()) {
                                           std::this_thread::yield();
                                       }
                                   }
                                   return std::vector<Remarque>{Note(0, 1)};
                               })},
                     nullptr,
                     nullptr},
                    carnet);
    auto const long1 = atelier.Demande(Francais("long"), 0);
    auto const attend = atelier.Demande(Francais("attend"), 1);
    atelier.Demande(Francais("reste"), 2);
    commence.get_future().wait();
    atelier.Annule(long1);
    atelier.Annule(attend);
    EXPECT_EQ(carnet.Attends("fin3"), (Lignes{"m3:1", "fin3"}));
}

TEST(Atelier, AnEngineThatFailsIsToldOnceAndTriedAgain) {
    Carnet carnet;
    int fois = 0;
    Atelier atelier({{Fabrique("m",
                               [&](auto const&, auto const&) -> std::vector<Remarque> {
                                   if (++fois < 3) {
                                       throw ErreurDeMoteur(false, "panne");
                                   }
                                   return {Note(0, 1)};
                               })},
                     nullptr,
                     nullptr},
                    carnet);
    for (int i = 0; i < 3; ++i) {
        atelier.Demande(Francais("a b"), 0);
    }
    EXPECT_EQ(carnet.Attends("fin3"), (Lignes{"m1:0", "fin1", "m2:0", "fin2", "m3:1", "fin3"}));
    EXPECT_EQ(carnet.etats, (Lignes{"m1", "m4panne", "m2"}));
}

TEST(Atelier, AnEngineThatIsMissingIsNotAskedAgain) {
    Carnet carnet;
    int fois = 0;
    Atelier atelier({{{QStringLiteral("m"),
                       [&]() -> std::unique_ptr<Moteur> {
                           ++fois;
                           throw ErreurDeMoteur(true, "absent");
                       },
                       1}},
                     nullptr,
                     nullptr},
                    carnet);
    atelier.Demande(Francais("a"), 0);
    atelier.Demande(Francais("b"), 0);
    carnet.Attends("fin2");
    EXPECT_EQ(fois, 1);
    EXPECT_EQ(carnet.etats, (Lignes{"m3absent"}));
}

TEST(Atelier, DoesNotAskAnEngineAboutLanguagesThatItDoesNotJudge) {
    Carnet carnet;
    bool demande = false;
    Atelier atelier({{Fabrique("m",
                               [&](auto const&, auto const&) {
                                   demande = true;
                                   return std::vector<Remarque>{};
                               })},
                     nullptr,
                     nullptr},
                    carnet);
    atelier.Demande({QStringLiteral("the"), {{0, 3, QStringLiteral("en")}}}, 0);
    carnet.Attends("fin1");
    EXPECT_FALSE(demande);
}

TEST(Atelier, PreparesAParagraphOnceForAllEngines) {
    Carnet carnet;
    int preparations = 0;
    auto const rien = [](auto const&, auto const&) { return std::vector<Remarque>{Note(0, 1)}; };
    Atelier atelier({{Fabrique("a", rien), Fabrique("b", rien)},
                     [&](ParagrapheAExaminer& paragraphe) {
                         ++preparations;
                         paragraphe.langues.front().langue.clear();
                     },
                     nullptr},
                    carnet);
    atelier.Demande(Francais("rien"), 0);
    EXPECT_EQ(carnet.Attends("fin1"), (Lignes{"a1:0", "b1:0", "fin1"}));
    EXPECT_EQ(preparations, 1);
}

TEST(Atelier, EndsWhileItsEnginesAreAtWork) {
    Carnet carnet;
    std::promise<void> commence;
    {
        Atelier atelier({{Fabrique("m",
                                   [&](auto const&, auto const& arret) {
                                       commence.set_value();
                                       while (!arret.EstDemande()) {
                                           std::this_thread::yield();
                                       }
                                       return std::vector<Remarque>{};
                                   })},
                         nullptr,
                         nullptr},
                        carnet);
        atelier.Demande(Francais("a"), 0);
        atelier.Demande(Francais("b"), 0);
        commence.get_future().wait();
    }
    SUCCEED();
}
