// SPDX-License-Identifier: MPL-2.0
#include "DictionnaireHunspell.h"

#include "commun/ErreurHote.h"
#include "commun/MessagesHote.h"

#include <QTextCodec>

#include <hunspell.hxx>

namespace hote {

namespace {

// A text has few distinct words; past this many the answers kept are dropped.
constexpr int kMemoireMax = 200000;

} // namespace

DictionnaireHunspell::DictionnaireHunspell(Langue langue, FichiersDictionnaire const& fichiers)
    : langue_(langue)
    , hunspell_(std::make_unique<Hunspell>(fichiers.affixes.c_str(), fichiers.mots.c_str())) {
    QByteArray codage(hunspell_->get_dict_encoding().c_str());
    if (codage.startsWith("microsoft-")) {
        codage.remove(0, 10); // Hunspell's own prefix; the rest is a usual name
    }
    codec_ = QTextCodec::codecForName(codage);
    if (codec_ == nullptr) {
        throw ErreurHote(kSortieDictionnaire, Tr("Codage {1} inconnu dans le dictionnaire {2}.",
                                                 codage.toStdString(), fichiers.affixes));
    }
}

DictionnaireHunspell::~DictionnaireHunspell() = default;

bool DictionnaireHunspell::Encode(QString const& forme, std::string& octets) const {
    if (!codec_->canEncode(forme)) {
        return false;
    }
    octets = codec_->fromUnicode(forme).toStdString();
    return true;
}

bool DictionnaireHunspell::Connait(QString const& forme) {
    auto const memoire = connus_.constFind(forme);
    if (memoire != connus_.constEnd()) {
        return *memoire;
    }
    std::string octets;
    bool const connu = Encode(forme, octets) && hunspell_->spell(octets);
    if (connus_.size() >= kMemoireMax) {
        connus_.clear();
    }
    connus_.insert(forme, connu);
    return connu;
}

QStringList DictionnaireHunspell::Suggere(QString const& forme) {
    auto const memoire = suggestions_.constFind(forme);
    if (memoire != suggestions_.constEnd()) {
        return *memoire;
    }
    QStringList suggestions;
    std::string octets;
    if (Encode(forme, octets)) {
        suggestions = Decode(hunspell_->suggest(octets), forme);
    }
    if (suggestions_.size() >= kMemoireMax) {
        suggestions_.clear();
    }
    suggestions_.insert(forme, suggestions);
    return suggestions;
}

QStringList DictionnaireHunspell::DonneRacines(QString const& forme) {
    std::string octets;
    return Encode(forme, octets) ? Decode(hunspell_->stem(octets), {}) : QStringList();
}

QStringList DictionnaireHunspell::Decode(std::vector<std::string> const& mots,
                                         QString const& sauf) const {
    QStringList decodes;
    for (std::string const& mot : mots) {
        QString const texte = codec_->toUnicode(mot.data(), static_cast<int>(mot.size()));
        if (!texte.isEmpty() && texte != sauf && !decodes.contains(texte)) {
            decodes.append(texte);
        }
    }
    return decodes;
}

std::unique_ptr<Lexique> OuvreDictionnaire(Langue langue,
                                           std::vector<std::string> const& dossiers) {
    auto const fichiers = LocaliseDictionnaire(langue, dossiers);
    if (!fichiers) {
        throw ErreurHote(
            kSortieDictionnaire,
            langue == Langue::Francais
                ? Tr("Dictionnaire français introuvable : installez le paquet {1}.", "hunspell-fr")
                : Tr("Dictionnaire anglais introuvable : installez le paquet {1}.",
                     "hunspell-en-us"));
    }
    return std::make_unique<DictionnaireHunspell>(langue, *fichiers);
}

} // namespace hote
