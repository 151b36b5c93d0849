// SPDX-License-Identifier: MPL-2.0
#include "LigneDeCommande.h"

#include "commun/ErreurHote.h"
#include "commun/MessagesHote.h"

#include <QCommandLineParser>

namespace hote {

namespace {

constexpr int kMotsDUnOrdre = 3; ///< a verb, an engine, an address

ErreurHote DonneErreurUsage(std::string const& message) {
    return {kSortieUsage, message};
}

OptionsHote::Commande LisCommande(QString const& nom) {
    if (nom == QLatin1String("documents")) {
        return OptionsHote::Commande::Documents;
    }
    if (nom == QLatin1String("corrige")) {
        return OptionsHote::Commande::Corrige;
    }
    if (nom == QLatin1String("dictionnaire")) {
        return OptionsHote::Commande::Dictionnaire;
    }
    if (nom == QLatin1String("moteurs")) {
        return OptionsHote::Commande::Moteurs;
    }
    if (nom == QLatin1String("pilote")) {
        return OptionsHote::Commande::Pilote;
    }
    if (nom == QLatin1String("verifie")) {
        return OptionsHote::Commande::Verifie;
    }
    if (nom == QLatin1String("diagnostic")) {
        return OptionsHote::Commande::Diagnostic;
    }
    if (nom == QLatin1String("fenetre")) {
        return OptionsHote::Commande::Fenetre;
    }
    if (nom == QLatin1String("relais")) {
        return OptionsHote::Commande::Relais;
    }
    throw DonneErreurUsage(Tr("Commande inconnue : {1}", nom));
}

/// One command's options. Each command knows its own only, so that a misplaced one is an error.
class AnalyseurDeLigne {
  public:
    explicit AnalyseurDeLigne(OptionsHote::Commande commande) {
        parseur_.addOptions({aide_, version_});
        bool const surDocument = PrendsDocument(commande);
        if (surDocument) {
            parseur_.addOption(langue_);
        }
        if (commande == OptionsHote::Commande::Corrige) {
            parseur_.addOptions({automatique_, tout_});
        }
        bool const verifie = commande == OptionsHote::Commande::Verifie;
        if (surDocument || verifie || commande == OptionsHote::Commande::Documents ||
            commande == OptionsHote::Commande::Moteurs) {
            parseur_.addOption(sortie_);
        }
        if (verifie) {
            parseur_.addOptions({epreuve_, delai_});
        }
        if (commande == OptionsHote::Commande::Fenetre) {
            parseur_.addOption(page_);
        }
        if (commande == OptionsHote::Commande::Diagnostic) {
            parseur_.addOption(bref_);
        }
        if (surDocument || commande == OptionsHote::Commande::Pilote ||
            commande == OptionsHote::Commande::Fenetre ||
            commande == OptionsHote::Commande::Relais ||
            commande == OptionsHote::Commande::Diagnostic) {
            parseur_.addOption(greffon_);
        }
    }

    OptionsHote Analyse(OptionsHote options, QStringList const& arguments) {
        if (!parseur_.parse(arguments)) {
            auto const inconnues = parseur_.unknownOptionNames();
            throw DonneErreurUsage(inconnues.isEmpty()
                                       ? Tr("Option mal employée ({1})", parseur_.errorText())
                                       : Tr("Option inconnue : {1}", Nomme(inconnues.first())));
        }
        if (parseur_.isSet(aide_)) {
            options.commande = OptionsHote::Commande::Aide;
        } else if (parseur_.isSet(version_)) {
            options.commande = OptionsHote::Commande::Version;
        }
        LisValeurs(options);
        LisPositionnels(options);
        return options;
    }

  private:
    static bool PrendsDocument(OptionsHote::Commande commande) {
        return commande == OptionsHote::Commande::Corrige ||
               commande == OptionsHote::Commande::Dictionnaire;
    }

    static QString Nomme(QString const& option) {
        return QLatin1String(option.size() == 1 ? "-" : "--") + option;
    }

    bool EstDonnee(QCommandLineOption const& option) const {
        // Asking for an option that the command does not have would warn.
        return parseur_.optionNames().contains(option.names().first());
    }

    void LisValeurs(OptionsHote& options) const {
        options.bref = EstDonnee(bref_);
        options.tout = EstDonnee(tout_);
        options.automatique = options.tout || EstDonnee(automatique_);
        if (EstDonnee(langue_)) {
            QString const valeur = parseur_.value(langue_);
            if (valeur == QLatin1String("fr")) {
                options.langue = Langue::Francais;
            } else if (valeur == QLatin1String("en")) {
                options.langue = Langue::Anglais;
            } else {
                throw DonneErreurUsage(Tr("--langue veut fr ou en, pas « {1} »", valeur));
            }
        }
        if (EstDonnee(sortie_)) {
            QString const valeur = parseur_.value(sortie_);
            options.json = valeur == QLatin1String("json");
            if (!options.json && valeur != QLatin1String("texte")) {
                throw DonneErreurUsage(Tr("--sortie veut texte ou json, pas « {1} »", valeur));
            }
        }
        if (EstDonnee(epreuve_)) {
            options.epreuve = parseur_.value(epreuve_);
        }
        if (EstDonnee(delai_)) {
            bool entier = false;
            int const secondes = parseur_.value(delai_).toInt(&entier);
            constexpr int kSecondesMax = 3600;
            if (!entier || secondes < 1 || secondes > kSecondesMax) {
                throw DonneErreurUsage(Tr("--delai veut des secondes, de 1 à {1}", kSecondesMax));
            }
            options.delaiMs = secondes * 1000;
        }
        if (EstDonnee(page_)) {
            options.page = parseur_.value(page_);
            if (options.page != QLatin1String("mots") &&
                options.page != QLatin1String("correction")) {
                throw DonneErreurUsage(
                    Tr("--page veut correction ou mots, pas « {1} »", options.page));
            }
        }
        if (EstDonnee(greffon_)) {
            options.greffon = parseur_.value(greffon_).toStdString();
            if (options.greffon.empty()) {
                throw DonneErreurUsage(Tr("--greffon veut un fichier"));
            }
        }
    }

    void LisPositionnels(OptionsHote& options) const {
        QStringList positionnels = parseur_.positionalArguments();
        bool const relais = options.commande == OptionsHote::Commande::Relais;
        bool const fenetre = options.commande == OptionsHote::Commande::Fenetre;
        bool const verifie = options.commande == OptionsHote::Commande::Verifie;
        if (verifie && positionnels.isEmpty()) {
            throw DonneErreurUsage(Tr("verifie veut un connecteur"));
        }
        if (verifie) {
            options.greffon = positionnels.takeFirst().toStdString();
        }
        bool const aUnDocument = PrendsDocument(options.commande) || fenetre || relais || verifie;
        if (aUnDocument && !positionnels.isEmpty()) {
            options.id = positionnels.takeFirst();
        }
        if (options.commande == OptionsHote::Commande::Moteurs) {
            options.ordre = positionnels.mid(0, kMotsDUnOrdre);
            positionnels = positionnels.mid(kMotsDUnOrdre);
        }
        if (relais && !positionnels.isEmpty()) {
            options.chemin = positionnels.takeFirst();
        }
        if (!positionnels.isEmpty()) {
            throw DonneErreurUsage(Tr("Argument en trop : {1}", positionnels.first()));
        }
    }

    QCommandLineParser parseur_;
    QCommandLineOption aide_{{QStringLiteral("help"), QStringLiteral("h")}};
    QCommandLineOption version_{QStringLiteral("version")};
    QCommandLineOption langue_{QStringLiteral("langue"), {}, QStringLiteral("fr|en")};
    QCommandLineOption automatique_{QStringLiteral("automatique")};
    QCommandLineOption tout_{QStringLiteral("tout")};
    QCommandLineOption sortie_{QStringLiteral("sortie"), {}, QStringLiteral("texte|json")};
    QCommandLineOption epreuve_{QStringLiteral("epreuve"), {}, QStringLiteral("NOM")};
    QCommandLineOption delai_{QStringLiteral("delai"), {}, QStringLiteral("S")};
    QCommandLineOption bref_{QStringLiteral("bref")};
    QCommandLineOption page_{QStringLiteral("page"), {}, QStringLiteral("correction|mots")};
    QCommandLineOption greffon_{QStringLiteral("greffon"), {}, QStringLiteral("FICHIER")};
};

} // namespace

OptionsHote AnalyseLigne(QStringList const& arguments) {
    OptionsHote options;
    if (arguments.size() < 2) {
        throw DonneErreurUsage(Tr("Il manque une commande"));
    }
    QString const& premier = arguments.at(1);
    bool const commande = !premier.startsWith(QLatin1Char('-'));
    if (commande) {
        options.commande = LisCommande(premier);
    }
    // The parser takes its first element for the program's name.
    options = AnalyseurDeLigne(options.commande).Analyse(options, arguments.mid(commande ? 1 : 0));
    bool const ilFautUneCommande = !commande && options.commande == OptionsHote::Commande::Aide &&
                                   premier != QLatin1String("--help") &&
                                   premier != QLatin1String("-h");
    if (ilFautUneCommande) {
        throw DonneErreurUsage(Tr("Il manque une commande"));
    }
    return options;
}

} // namespace hote
