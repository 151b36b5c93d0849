// SPDX-License-Identifier: MPL-2.0
#include "BilanVerification.h"

#include "Regles.h"
#include "commun/EcritureJson.h"
#include "commun/MessagesHote.h"
#include "langue/Contexte.h"

#include <algorithm>

namespace hote {

namespace {

using Etat = SortDeRegle::Etat;

Regle const* TrouveRegle(QString const& nom) {
    auto const& regles = DonneRegles();
    auto const regle = std::find_if(regles.begin(), regles.end(),
                                    [&](Regle const& r) { return nom == QLatin1String(r.nom); });
    return regle == regles.end() ? nullptr : &*regle;
}

std::string DonneTitre(Etat etat) {
    switch (etat) {
    case Etat::Tenue:
        return Tr("tenue");
    case Etat::Violee:
        return Tr("VIOLÉE");
    default:
        return Tr("non essayée");
    }
}

char const* DonneCode(Etat etat) {
    switch (etat) {
    case Etat::Tenue:
        return "tenue";
    case Etat::Violee:
        return "violee";
    default:
        return "nonEssayee";
    }
}

std::string DecrisConstat(SortDeRegle::Constat const& constat) {
    std::string texte = "      " + DonnePourTerminal(constat.texte).toStdString() + '\n';
    if (!constat.renvoi.entete.isEmpty()) {
        texte += "      → " + constat.renvoi.entete.toStdString() + ':' +
                 std::to_string(constat.renvoi.ligne) + '\n';
    }
    return texte;
}

} // namespace

void BilanVerification::Essaie(QString const& regle) {
    auto& sort = sorts_[regle];
    if (sort.etat == Etat::NonEssayee) {
        sort.etat = Etat::Tenue;
    }
}

void BilanVerification::Passe(QString const& regle, QString const& raison) {
    sorts_[regle].raison = raison;
}

void BilanVerification::Viole(QString const& regle, QString const& texte, QString const& operation,
                              bool parOperation) {
    auto& sort = sorts_[regle];
    sort.etat = Etat::Violee;
    auto const connu = [&](SortDeRegle::Constat const& c) { return c.texte == texte; };
    constexpr std::size_t kGardes = 5;
    if (sort.constats.size() >= kGardes ||
        std::any_of(sort.constats.begin(), sort.constats.end(), connu)) {
        return;
    }
    Renvoi renvoi;
    if (parOperation) {
        renvoi = TrouveRenvoi(operation);
    }
    auto const* const connue = TrouveRegle(regle);
    if (renvoi.entete.isEmpty() && connue != nullptr) {
        renvoi = TrouveRenvoi(QLatin1String(connue->operation));
    }
    sort.constats.push_back({texte, operation, renvoi});
}

SortDeRegle BilanVerification::DonneSort(char const* regle) const {
    auto const sort = sorts_.find(QLatin1String(regle));
    return sort == sorts_.end() ? SortDeRegle() : sort->second;
}

int BilanVerification::Compte(Etat etat) const {
    auto const& regles = DonneRegles();
    return static_cast<int>(std::count_if(regles.begin(), regles.end(), [&](Regle const& regle) {
        return DonneSort(regle.nom).etat == etat;
    }));
}

std::string BilanVerification::EcrisTexte() const {
    std::string texte;
    for (Regle const& regle : DonneRegles()) {
        auto const sort = DonneSort(regle.nom);
        texte += DonneTitre(sort.etat) + "  " + regle.nom + "\n    " + regle.phrase + '\n';
        if (sort.etat == Etat::NonEssayee && !sort.raison.isEmpty()) {
            texte += "    (" + sort.raison.toStdString() + ")\n";
        }
        for (auto const& constat : sort.constats) {
            texte += DecrisConstat(constat);
        }
    }
    return texte + '\n' +
           Tr("Règles tenues : {1}, violées : {2}, non essayées : {3}", Compte(Etat::Tenue),
              Compte(Etat::Violee), Compte(Etat::NonEssayee)) +
           '\n';
}

std::string BilanVerification::EcrisJson(std::string const& greffon,
                                         QString const& document) const {
    EcritureJson json;
    json.OuvreObjet();
    json.EcrisCle("greffon").EcrisTexte(QString::fromStdString(greffon));
    json.EcrisCle("document").EcrisTexte(document);
    json.EcrisCle("tenues").EcrisEntier(Compte(Etat::Tenue));
    json.EcrisCle("violees").EcrisEntier(Compte(Etat::Violee));
    json.EcrisCle("nonEssayees").EcrisEntier(Compte(Etat::NonEssayee));
    json.EcrisCle("regles").OuvreTableau();
    for (Regle const& regle : DonneRegles()) {
        auto const sort = DonneSort(regle.nom);
        json.OuvreObjet();
        json.EcrisCle("nom").EcrisTexte(QLatin1String(regle.nom));
        json.EcrisCle("phrase").EcrisTexte(QString::fromStdString(regle.phrase));
        json.EcrisCle("etat").EcrisTexte(QLatin1String(DonneCode(sort.etat)));
        json.EcrisCle("raison").EcrisTexte(sort.raison);
        json.EcrisCle("constats").OuvreTableau();
        for (auto const& constat : sort.constats) {
            json.OuvreObjet();
            json.EcrisCle("texte").EcrisTexte(constat.texte);
            json.EcrisCle("operation").EcrisTexte(constat.operation);
            json.EcrisCle("entete").EcrisTexte(constat.renvoi.entete);
            json.EcrisCle("ligne").EcrisEntier(constat.renvoi.ligne);
            json.FermeObjet();
        }
        json.FermeTableau().FermeObjet();
    }
    json.FermeTableau().FermeObjet();
    return json.DonneJson() + '\n';
}

} // namespace hote
