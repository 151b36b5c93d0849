// SPDX-License-Identifier: MPL-2.0
#include "ThesaurusMyThes.h"

#include "LocaliseDictionnaire.h"
#include "commun/ErreurHote.h"
#include "commun/MessagesHote.h"

#include <QTextCodec>

#include <unistd.h>

#include <algorithm>
#include <cstdio> // which the library's header needs and does not include
#include <cstring>
#include <mythes.hxx>

namespace hote {

namespace {

/// "large (similar term)": the word and what is said of it.
Synonyme Separe(QString const& brut) {
    int const ouvre = brut.lastIndexOf(QLatin1String(" ("));
    if (ouvre <= 0 || !brut.endsWith(QLatin1Char(')'))) {
        return {brut.trimmed(), {}};
    }
    return {brut.left(ouvre).trimmed(), brut.mid(ouvre + 2).chopped(1)};
}

/// The library gives "(noun) true cat": the part of speech before the first synonym.
QString DonneGenre(QString const& definition) {
    int const ferme = definition.indexOf(QLatin1Char(')'));
    return definition.startsWith(QLatin1Char('(')) ? definition.mid(1, ferme - 1) : QString();
}

bool EstLisible(std::string const& fichier) {
    return access(fichier.c_str(), R_OK) == 0;
}

} // namespace

ThesaurusMyThes::ThesaurusMyThes(FichiersThesaurus const& fichiers)
    : mythes_(std::make_unique<MyThes>(fichiers.index.c_str(), fichiers.donnees.c_str())) {
    char const* const codage = mythes_->get_th_encoding();
    codec_ = codage == nullptr ? nullptr : QTextCodec::codecForName(codage);
    if (codec_ == nullptr) {
        throw ErreurHote(kSortieDictionnaire,
                         Tr("Le dictionnaire de synonymes {1} ne se lit pas.", fichiers.donnees));
    }
}

ThesaurusMyThes::~ThesaurusMyThes() = default;

std::vector<Sens> ThesaurusMyThes::Cherche(QString const& entree) {
    if (entree.isEmpty() || entree.contains(QChar(0)) || !codec_->canEncode(entree)) {
        return {};
    }
    std::string const octets = codec_->fromUnicode(entree).toStdString();
    if (octets.size() >= MAX_WD_LEN) {
        return {}; // the library's own bound
    }
    mentry* bruts = nullptr;
    int const nombre = mythes_->Lookup(octets.c_str(), static_cast<int>(octets.size()), &bruts);
    auto const decode = [this](char const* texte) {
        return codec_->toUnicode(texte, static_cast<int>(std::strlen(texte)));
    };
    std::vector<Sens> sens;
    for (int i = 0; i < nombre; ++i) {
        mentry const& brut = bruts[i];
        Sens lu{DonneGenre(decode(brut.defn)), {}};
        for (int j = 0; j < brut.count; ++j) {
            Synonyme const synonyme = Separe(decode(brut.psyns[j]));
            // Some dictionaries repeat themselves.
            bool const connu =
                std::any_of(lu.synonymes.begin(), lu.synonymes.end(), [&](Synonyme const& autre) {
                    return autre.mot == synonyme.mot && autre.note == synonyme.note;
                });
            if (!connu) {
                lu.synonymes.push_back(synonyme);
            }
        }
        sens.push_back(std::move(lu));
    }
    if (bruts != nullptr) {
        mythes_->CleanUpAfterLookup(&bruts, nombre);
    }
    return sens;
}

std::vector<std::string> DonneDossiersThesaurus() {
    std::vector<std::string> dossiers = DonneDossiersDictionnaires();
    dossiers.insert(dossiers.end(), {"/usr/share/mythes", "/usr/local/share/mythes"});
    return dossiers;
}

std::unique_ptr<Thesaurus> OuvreThesaurus(Langue langue, std::vector<std::string> const& dossiers) {
    bool const francais = langue == Langue::Francais;
    std::vector<char const*> const noms =
        francais
            ? std::vector<char const*>{"th_fr_FR_v2", "thes_fr", "th_fr_FR", "th_fr_CA_v2"}
            : std::vector<char const*>{"th_en_US_v2", "th_en_GB_v2", "th_en_US", "th_en_CA_v2"};
    for (std::string const& dossier : dossiers) {
        for (char const* nom : noms) {
            std::string const base = dossier + '/' + nom;
            if (EstLisible(base + ".idx") && EstLisible(base + ".dat")) {
                return std::make_unique<ThesaurusMyThes>(
                    FichiersThesaurus{base + ".idx", base + ".dat"});
            }
        }
    }
    throw ErreurHote(
        kSortieDictionnaire,
        francais ? Tr("Synonymes français introuvables : installez le paquet {1}.", "mythes-fr")
                 : Tr("Synonymes anglais introuvables : installez le paquet {1}.", "mythes-en-us"));
}

} // namespace hote
