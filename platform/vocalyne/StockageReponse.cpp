// SPDX-License-Identifier: MPL-2.0
#include "StockageReponse.h"

#include "CopieDurable.h"
#include "FichierReglages.h"

#include <QUrl>

#include <memory>

namespace {

class StockeurMemoire final : public StockeurReponse {
  public:
    std::optional<int> Donne(UniChaine const& dialogue) const override {
        auto const reponse = reponses_.find(dialogue);
        return reponse != reponses_.end() ? std::make_optional(reponse->second) : std::nullopt;
    }
    bool Mets(UniChaine const& dialogue, int reponse) override {
        reponses_[UniChaine(CopieDurable(dialogue.VersQString()))] = reponse;
        return true;
    }
    void Oublie(UniChaine const& dialogue) override { reponses_.erase(dialogue); }

  private:
    std::map<UniChaine, int> reponses_;
};

class StockeurReglages final : public StockeurReponse {
  public:
    StockeurReglages(UniChaine const& chemin, QSettings::Format format)
        : fichier_(chemin.VersQString(), format) {}

    std::optional<int> Donne(UniChaine const& dialogue) const override {
        auto const valeur = fichier_.Lis(DonneCle(dialogue), true);
        bool estEntier = false;
        int const reponse = valeur ? valeur->toInt(&estEntier) : 0;
        return estEntier ? std::make_optional(reponse) : std::nullopt;
    }
    bool Mets(UniChaine const& dialogue, int reponse) override {
        return fichier_.Ecris({{DonneCle(dialogue), reponse}});
    }
    void Oublie(UniChaine const& dialogue) override {
        if (fichier_.Lis(DonneCle(dialogue), true)) {
            fichier_.Ecris({{DonneCle(dialogue), std::nullopt}});
        }
    }

  private:
    /// A dialogue's name may hold what a settings key may not, "/" above all.
    static QString DonneCle(UniChaine const& dialogue) {
        return QStringLiteral("ReponsesMemorisees/Dialogue.") +
               QString::fromLatin1(QUrl::toPercentEncoding(dialogue.VersQString()));
    }

    mutable FichierReglages fichier_; // opening and reading again change nothing seen from outside
};

} // namespace

// Never destroyed: a process may end with a connector loaded, and storers still in the map.
std::map<DDialogue::eTypStockeur, StockeurReponse*>& StockageReponse::laListeStockeurDefaut =
    *new std::map<DDialogue::eTypStockeur, StockeurReponse*>;

StockeurReponse::~StockeurReponse() = default;

void StockageReponse::Initialise(DDialogue::eTypStockeur type, UniChaine const& chemin,
                                 QSettings::Format format) {
    std::unique_ptr<StockeurReponse> stockeur;
    if (type == DDialogue::kStockeurReglages) {
        stockeur = std::make_unique<StockeurReglages>(chemin, format);
    } else {
        stockeur = std::make_unique<StockeurMemoire>();
    }
    auto& place = laListeStockeurDefaut[type];
    delete place;
    place = stockeur.release();
}
