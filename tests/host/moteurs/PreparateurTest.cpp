// SPDX-License-Identifier: MPL-2.0
#include "moteurs/internes/Preparateur.h"
#include "Dossier.h"

#include <gtest/gtest.h>

using namespace hote;

namespace {

class Preparation : public ::testing::Test {
  protected:
    Preparation() {
        dossier_.Pose("fr", {"il", "a", "dit", "le", "chat", "dort", "dans", "la", "maison"});
        dossier_.Pose("en_GB", {"the", "cat", "sleeps", "in", "house", "says"});
    }

    /// The parts in another language than French: "language:text", or "-:text".
    std::vector<std::string> Prepare(char const* utf8) {
        QString const texte = QString::fromUtf8(utf8);
        ParagrapheAExaminer paragraphe{texte, {{0, texte.size(), QStringLiteral("fr")}}};
        Preparateur(dossier_.Dossiers()).Prepare(paragraphe);
        std::vector<std::string> parties;
        for (auto const& e : paragraphe.langues) {
            if (e.langue != QLatin1String("fr")) {
                parties.push_back((e.langue.isEmpty() ? "-" : e.langue.toStdString()) + ":" +
                                  texte.mid(e.debut, e.fin - e.debut).toStdString());
            }
        }
        return parties;
    }

    using Parties = std::vector<std::string>;
    Dossier dossier_;
};

} // namespace

TEST_F(Preparation, LeavesCodeAddressesAndReferencesAlone) {
    EXPECT_EQ(Prepare("le maxRetries dort"), Parties{"-:maxRetries"});
    EXPECT_EQ(Prepare("le REF-2026-A dort"), Parties{"-:REF-2026-A"});
    EXPECT_EQ(Prepare("le nom_de_chat dort"), Parties{"-:nom_de_chat"});
    EXPECT_EQ(Prepare("il a dit `chat dortt` hier"), Parties{"-:`chat dortt`"});
    EXPECT_EQ(Prepare("le https://exemple.fr/chat dort"), Parties{"-:https://exemple.fr/chat"});
    EXPECT_EQ(Prepare("le --verbose config.yaml"), (Parties{"-:--verbose", "-:config.yaml"}));
}

TEST_F(Preparation, LeavesPlainWordsAsTheyAre) {
    EXPECT_EQ(Prepare("Il a dit (le chat dort) dans la maison. L’ami dort-il ? LE CHAT DORT."),
              Parties{});
}

TEST_F(Preparation, AQuotationIsInTheLanguageWhoseDictionaryKnowsIt) {
    EXPECT_EQ(Prepare("il a dit « the cat sleeps » dans la maison"),
              Parties{"en:« the cat sleeps »"});
}

TEST_F(Preparation, ASentenceIsInTheLanguageWhoseDictionaryKnowsIt) {
    EXPECT_EQ(Prepare("Le chat dort. The cat sleeps in the house. Il a dit."),
              Parties{"en: The cat sleeps in the house."});
}

TEST_F(Preparation, AQuotationThatNobodyKnowsIsNotJudged) {
    EXPECT_EQ(Prepare("il a dit « carpe diem quam minimum » dans la maison"),
              Parties{"-:« carpe diem quam minimum »"});
}

TEST_F(Preparation, AQuotationWithAMistakeStaysInItsLanguage) {
    EXPECT_EQ(Prepare("il a dit « le chat dortt dans la maison »"), Parties{});
}
