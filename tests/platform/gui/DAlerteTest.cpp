// SPDX-License-Identifier: MPL-2.0
#include "DAlerte.h"
#include "FenetreModale.h"
#include "PresentateurAlerte.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPixmap>
#include <QPointer>
#include <QTextEdit>
#include <QThread>

#include <gtest/gtest.h>

#include <memory>
#include <thread>
#include <vector>

namespace {

UniChaine U(char const* texte) {
    return UniChaine(texte, UniChaine::kCodageUtf8);
}

DAlerteInfo Alerte(DAlerteInfo::eTypeDialogue genre = DAlerteInfo::kAvertissement) {
    return {genre, U("Le connecteur d’Vocalyne installé dans LibreOffice n’est pas à jour."),
            U("Pour utiliser Vocalyne dans ce logiciel, mettez le connecteur à jour."),
            U("Version 1.0")};
}

void Clique(QMessageBox& boite, QMessageBox::StandardButton bouton) {
    boite.button(bouton)->click();
}

class Alert : public testing::Test {
  protected:
    ~Alert() override { PresentateurAlerte::Mets(nullptr); }
};

TEST_F(Alert, TheWindowShowsTheThreeTexts) {
    QString titre;
    QString texte;
    QString information;
    QString details;
    SurFenetreModale const action([&](QMessageBox& boite) {
        titre = boite.windowTitle();
        texte = boite.text();
        information = boite.informativeText();
        details = boite.detailedText();
        EXPECT_TRUE(boite.isModal());
        EXPECT_FALSE(boite.grab().isNull());
        Clique(boite, QMessageBox::Ok);
    });
    EXPECT_EQ(kReponseOui, DAlerte(nullptr, Alerte()));
    EXPECT_TRUE(action.Vue());
    EXPECT_EQ(QStringLiteral("Vocalyne"), titre);
    EXPECT_EQ(Alerte().DonneTexte().VersQString(), texte);
    EXPECT_EQ(Alerte().DonneInformation().VersQString(), information);
    EXPECT_EQ(QStringLiteral("Version 1.0"), details);
}

TEST_F(Alert, AnEmptyTextTakesNoRoom) {
    int hauteurPleine = 0;
    int hauteurSeule = 0;
    {
        SurFenetreModale const action([&](QMessageBox& boite) {
            hauteurPleine = boite.height();
            Clique(boite, QMessageBox::Ok);
        });
        DAlerte(nullptr, DAlerteInfo(DAlerteInfo::kErreur, U("a"), U("b"), UniChaine()));
    }
    SurFenetreModale const action([&](QMessageBox& boite) {
        hauteurSeule = boite.height();
        EXPECT_EQ(nullptr, boite.findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel")));
        EXPECT_EQ(nullptr, boite.findChild<QTextEdit*>());
        Clique(boite, QMessageBox::Ok);
    });
    DAlerte(nullptr, DAlerteInfo(DAlerteInfo::kErreur, U("a"), UniChaine(), UniChaine()));
    EXPECT_LT(hauteurSeule, hauteurPleine);
}

TEST_F(Alert, TheKindDecidesIconAndButtons) {
    struct Cas {
        DAlerteInfo::eTypeDialogue genre;
        QMessageBox::Icon icone;
        QMessageBox::StandardButtons boutons;
    };
    for (auto const& cas :
         {Cas{DAlerteInfo::kQuestion, QMessageBox::Question, QMessageBox::Yes | QMessageBox::No},
          Cas{DAlerteInfo::kInformation, QMessageBox::Information, QMessageBox::Ok},
          Cas{DAlerteInfo::kErreur, QMessageBox::Critical, QMessageBox::Ok},
          Cas{DAlerteInfo::kAvertissement, QMessageBox::Warning, QMessageBox::Ok},
          Cas{static_cast<DAlerteInfo::eTypeDialogue>(9), QMessageBox::NoIcon, QMessageBox::Ok}}) {
        SurFenetreModale const action([&](QMessageBox& boite) {
            EXPECT_EQ(cas.icone, boite.icon());
            EXPECT_EQ(cas.boutons, boite.standardButtons());
            boite.reject();
        });
        DAlerte(nullptr, Alerte(cas.genre));
        EXPECT_TRUE(action.Vue());
    }
}

TEST_F(Alert, TheButtonOfAQuestionIsTheAnswer) {
    {
        SurFenetreModale const action([](QMessageBox& boite) { Clique(boite, QMessageBox::Yes); });
        EXPECT_EQ(kReponseOui, DAlerte(nullptr, Alerte(DAlerteInfo::kQuestion)));
    }
    SurFenetreModale const action([](QMessageBox& boite) { Clique(boite, QMessageBox::No); });
    EXPECT_EQ(kReponseNon, DAlerte(nullptr, Alerte(DAlerteInfo::kQuestion)));
}

TEST_F(Alert, AQuestionThatIsClosedWithoutAnAnswerMeansNo) {
    SurFenetreModale const action([](QMessageBox& boite) { boite.close(); });
    EXPECT_EQ(kReponseNon, DAlerte(nullptr, Alerte(DAlerteInfo::kQuestion)));
    EXPECT_TRUE(action.Vue());
}

TEST_F(Alert, AnInformationThatIsClosedWasRead) {
    SurFenetreModale const action([](QMessageBox& boite) { boite.close(); });
    EXPECT_EQ(kReponseOui, DAlerte(nullptr, Alerte(DAlerteInfo::kInformation)));
    EXPECT_TRUE(action.Vue());
}

TEST_F(Alert, NoTextIsTakenForMarkup) {
    SurFenetreModale const action([](QMessageBox& boite) {
        for (auto const* etiquette : boite.findChildren<QLabel*>()) {
            EXPECT_EQ(Qt::PlainText, etiquette->textFormat()) << qPrintable(etiquette->text());
        }
        EXPECT_EQ(QStringLiteral("<i>c</i>"), boite.findChild<QTextEdit*>()->toPlainText());
        Clique(boite, QMessageBox::Ok);
    });
    DAlerte(nullptr, DAlerteInfo(DAlerteInfo::kErreur, U("<b>a</b>"),
                                 U("<a href=\"x\">b</a><img src=\"/etc/x\">"), U("<i>c</i>")));
    EXPECT_TRUE(action.Vue());
}

TEST_F(Alert, AParentThatGoesAwayMeanwhileTakesTheWindowWithIt) {
    auto parent = std::make_unique<QWidget>();
    SurFenetreModale const action([&parent](QMessageBox& boite) {
        EXPECT_EQ(parent.get(), boite.parentWidget());
        parent.reset();
    });
    EXPECT_EQ(kReponseNon, DAlerte(parent.get(), Alerte(DAlerteInfo::kQuestion)));
    EXPECT_TRUE(action.Vue());
}

TEST_F(Alert, NothingOfTheWindowIsLeft) {
    QPointer<QMessageBox> vue;
    SurFenetreModale const action([&vue](QMessageBox& boite) {
        vue = &boite;
        Clique(boite, QMessageBox::Ok);
    });
    DAlerte(nullptr, Alerte());
    EXPECT_TRUE(vue.isNull());
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}

TEST_F(Alert, OnAnotherThreadTheTextsGoToStandardError) {
    auto reponse = kReponseOui;
    testing::internal::CaptureStderr();
    std::thread([&reponse] { reponse = DAlerte(nullptr, Alerte()); }).join();
    EXPECT_EQ("Le connecteur d’Vocalyne installé dans LibreOffice n’est pas à jour.\n"
              "Pour utiliser Vocalyne dans ce logiciel, mettez le connecteur à jour.\n"
              "Version 1.0\n",
              testing::internal::GetCapturedStderr());
    EXPECT_EQ(kReponseNon, reponse);
}

/// Keeps what it is asked to show and answers as it was told to.
class Enregistreur : public PresentateurAlerte {
  public:
    explicit Enregistreur(eReponseAlerte reponse)
        : reponse_(reponse) {}
    eReponseAlerte Presente(QWidget* parent, DAlerteInfo const& info) override {
        parents.push_back(parent);
        alertes.push_back(info);
        fil = std::this_thread::get_id();
        return reponse_;
    }
    std::vector<QWidget*> parents;
    std::vector<DAlerteInfo> alertes;
    std::thread::id fil;

  private:
    eReponseAlerte reponse_;
};

TEST_F(Alert, APresenterTakesTheWindowsPlace) {
    Enregistreur presentateur(kReponseOui);
    EXPECT_EQ(nullptr, PresentateurAlerte::Mets(&presentateur));
    QWidget parent;
    EXPECT_EQ(kReponseOui, DAlerte(&parent, Alerte(DAlerteInfo::kQuestion)));
    ASSERT_EQ(1u, presentateur.alertes.size());
    EXPECT_EQ(&parent, presentateur.parents.front());
    EXPECT_EQ(DAlerteInfo::kQuestion, presentateur.alertes.front().DonneGenre());
    EXPECT_EQ(Alerte().DonneTexte(), presentateur.alertes.front().DonneTexte());
    EXPECT_EQ(Alerte().DonneInformation(), presentateur.alertes.front().DonneInformation());
    EXPECT_EQ(Alerte().DonneDetails(), presentateur.alertes.front().DonneDetails());
}

TEST_F(Alert, APresenterGivesItsPlaceBack) {
    Enregistreur premier(kReponseOui);
    Enregistreur second(kReponseNon);
    PresentateurAlerte::Mets(&premier);
    EXPECT_EQ(&premier, PresentateurAlerte::Mets(&second));
    EXPECT_EQ(kReponseNon, DAlerte(nullptr, Alerte()));
    EXPECT_EQ(&second, PresentateurAlerte::Mets(nullptr));
    EXPECT_TRUE(premier.alertes.empty());
}

TEST_F(Alert, APresenterIsCalledOnTheCallersThread) {
    Enregistreur presentateur(kReponseOui);
    PresentateurAlerte::Mets(&presentateur);
    std::thread autre([] { DAlerte(nullptr, Alerte()); });
    auto const identite = autre.get_id();
    autre.join();
    EXPECT_EQ(identite, presentateur.fil);
}

} // namespace
