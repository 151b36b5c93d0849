// SPDX-License-Identifier: MPL-2.0
#include "BureauTexte.h"

#include "Contrat.h"

#include <gtest/gtest.h>

#include <csignal>
#include <stdexcept>

std::string CheminBureauTexte() {
    return CHEMIN_BUREAU_TEXTE;
}

BureauTexte::BureauTexte(std::initializer_list<Fichier> fichiers,
                         std::vector<std::string> const& options,
                         std::map<std::string, std::string> const& environnement,
                         std::string const& programme) {
    std::vector<std::string> commande{programme};
    commande.insert(commande.end(), options.begin(), options.end());
    commande.emplace_back("--");
    for (Fichier const& fichier : fichiers) {
        chemins_.push_back(dossier_.Ecris(fichier.nom, fichier.octets));
        commande.push_back(chemins_.back().string());
    }
    processus_ = std::make_unique<Processus>(commande, environnement);
    while (identifiants_.size() < fichiers.size()) {
        std::optional<std::string> ligne = processus_->LisLigne();
        if (!ligne) {
            throw std::runtime_error("the office did not start: " + processus_->Erreurs());
        }
        identifiants_.push_back(std::move(*ligne));
    }
}

BureauTexte::~BureauTexte() {
    if (!processus_->EstFini()) {
        int const code = Finis();
        EXPECT_EQ(code, 0) << "the office said:\n" << processus_->Erreurs();
    }
}

std::string BureauTexte::Instance() const {
    return Identifiant().substr(0, Identifiant().find('~'));
}

std::string BureauTexte::Service() const {
    return contrat::kPrefixeService + Instance();
}

std::string BureauTexte::Objet() const {
    return contrat::kPrefixeChemin + Instance();
}

int BureauTexte::Finis() {
    processus_->Signale(SIGTERM);
    return processus_->Attends();
}

void BureauTexte::Tue() {
    processus_->Signale(SIGKILL);
    processus_->Attends();
}
