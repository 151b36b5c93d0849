// SPDX-License-Identifier: MPL-2.0
#include "Operations.h"
#include "TableOperations.h"

#include "InfosApplication.h"
#include "commun/MessagesHote.h"

#include <utility>

namespace hote {

namespace {

InfosApplication LisInfos(Arguments const& arguments) {
    Arguments const objet = arguments.DonneObjet("infos");
    auto const texte = [&](char const* nom) { return UniChaine(objet.DonneTexte(nom, {})); };
    InfosApplication infos;
    infos.Application = texte("Application");
    infos.Id = texte("Id");
    infos.ClasseInitialisation = texte("ClasseInitialisation");
    infos.NoVersion = texte("NoVersion");
    infos.Genre = objet.DonneEntier("Genre", 0);
    infos.Classe = texte("Classe");
    infos.TexteFenetre = texte("TexteFenetre");
    infos.Titre = texte("Titre");
    return infos;
}

void DonneNomsTexteurs(Banc& banc, Arguments const& arguments, EcritureJson& resultat) {
    UniChaine noms(arguments.DonneTexte("texte", {}));
    banc.greffon.DonneNomsTexteurs(noms);
    resultat.EcrisTexte(noms.VersQString());
}

/// An object that the contract says nothing about beyond null: told, not touched.
void EcrisObjet(InterfaceTexteur const* objet, EcritureJson& resultat) {
    if (objet == nullptr) {
        resultat.EcrisNul();
    } else {
        resultat.EcrisBooleen(true);
    }
}

void CreeTexteur(Banc& banc, Arguments const& /*arguments*/, EcritureJson& resultat) {
    EcrisObjet(banc.greffon.CreeTexteur(), resultat);
}

void CreeTexteurPalette(Banc& banc, Arguments const& /*arguments*/, EcritureJson& resultat) {
    EcrisObjet(banc.greffon.CreeTexteurPalette(), resultat);
}

void DonneIdentificateurDocumentCourant(Banc& banc, Arguments const& arguments,
                                        EcritureJson& resultat) {
    InfosApplication const infos = LisInfos(arguments);
    UniChaine idDocument(arguments.DonneTexte("idDocument", {}));
    bool const servi = banc.greffon.DonneIdentificateurDocumentCourant(infos, idDocument);
    resultat.OuvreObjet();
    resultat.EcrisCle("servi").EcrisBooleen(servi);
    resultat.EcrisCle("idDocument").EcrisTexte(idDocument.VersQString());
    resultat.FermeObjet();
}

void CreeAgentTexteur(Banc& banc, Arguments const& arguments, EcritureJson& resultat) {
    InfosApplication const infos = LisInfos(arguments);
    UniChaine const idDocument(arguments.DonneTexte("idDocument"));
    auto agent = banc.greffon.CreeAgentTexteur(infos, idDocument);
    if (!agent) {
        resultat.EcrisNul(); // the agent held before stays
        return;
    }
    banc.tenu.Tiens(std::move(agent));
    resultat.EcrisBooleen(true);
}

void Detruis(Banc& banc, Arguments const& /*arguments*/, EcritureJson& resultat) {
    if (banc.tenu.DonneAgent() == nullptr) {
        throw ErreurRequete(Tr("{1} demande un agent : CreeAgentTexteur d’abord.", "Detruis"));
    }
    banc.tenu.Detruis();
    resultat.EcrisNul();
}

constexpr EntreeOperation<OperationExport> kTable[] = {
    {"DonneNomsTexteurs", DonneNomsTexteurs},
    {"CreeTexteur", CreeTexteur},
    {"CreeTexteurPalette", CreeTexteurPalette},
    {"DonneIdentificateurDocumentCourant", DonneIdentificateurDocumentCourant},
    {"CreeAgentTexteur", CreeAgentTexteur},
    {"Detruis", Detruis},
};

} // namespace

OperationExport TrouveOperationExport(QString const& nom) {
    return TrouveOperation(kTable, nom);
}

} // namespace hote
