// SPDX-License-Identifier: MPL-2.0
#include "Operations.h"

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

void NomsTexteurs(Banc& banc, Arguments const& arguments, EcritureJson& resultat) {
    UniChaine noms(arguments.DonneTexte("texte", {}));
    banc.greffon.DonneNomsTexteurs(noms);
    resultat.Texte(noms.VersQString());
}

/// An object that the contract says nothing about beyond null: told, not touched.
void EcrisObjet(InterfaceTexteur const* objet, EcritureJson& resultat) {
    if (objet == nullptr) {
        resultat.Nul();
    } else {
        resultat.Booleen(true);
    }
}

void Texteur(Banc& banc, Arguments const& /*arguments*/, EcritureJson& resultat) {
    EcrisObjet(banc.greffon.CreeTexteur(), resultat);
}

void TexteurPalette(Banc& banc, Arguments const& /*arguments*/, EcritureJson& resultat) {
    EcrisObjet(banc.greffon.CreeTexteurPalette(), resultat);
}

void IdentificateurDocumentCourant(Banc& banc, Arguments const& arguments, EcritureJson& resultat) {
    InfosApplication const infos = LisInfos(arguments);
    UniChaine idDocument(arguments.DonneTexte("idDocument", {}));
    bool const servi = banc.greffon.DonneIdentificateurDocumentCourant(infos, idDocument);
    resultat.Objet();
    resultat.Cle("servi").Booleen(servi);
    resultat.Cle("idDocument").Texte(idDocument.VersQString());
    resultat.FinObjet();
}

void CreeAgent(Banc& banc, Arguments const& arguments, EcritureJson& resultat) {
    InfosApplication const infos = LisInfos(arguments);
    UniChaine const idDocument(arguments.DonneTexte("idDocument"));
    auto agent = banc.greffon.CreeAgentTexteur(infos, idDocument);
    if (!agent) {
        resultat.Nul(); // the agent held before stays
        return;
    }
    banc.tenu.Tiens(std::move(agent));
    resultat.Booleen(true);
}

void Detruis(Banc& banc, Arguments const& /*arguments*/, EcritureJson& resultat) {
    if (banc.tenu.DonneAgent() == nullptr) {
        throw ErreurRequete(Tr("{1} demande un agent : CreeAgentTexteur d’abord.", "Detruis"));
    }
    banc.tenu.Detruis();
    resultat.Nul();
}

struct Entree {
    char const* nom;
    OperationExport operation;
};

constexpr Entree kTable[] = {
    {"DonneNomsTexteurs", NomsTexteurs},
    {"CreeTexteur", Texteur},
    {"CreeTexteurPalette", TexteurPalette},
    {"DonneIdentificateurDocumentCourant", IdentificateurDocumentCourant},
    {"CreeAgentTexteur", CreeAgent},
    {"Detruis", Detruis},
};

} // namespace

OperationExport TrouveOperationExport(QString const& nom) {
    for (Entree const& entree : kTable) {
        if (nom == QLatin1String(entree.nom)) {
            return entree.operation;
        }
    }
    return nullptr;
}

} // namespace hote
