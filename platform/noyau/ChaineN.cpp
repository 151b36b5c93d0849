// SPDX-License-Identifier: MPL-2.0
#include "ChaineN.h"

#include <QTextCodec>

#include <algorithm>
#include <cstring>
#include <memory>
#include <mutex>

namespace {

/// Turns bytes of one encoding into text. It is kept between calls because finding Qt's codec by
/// name takes a lock and a search each time.
class Convertisseur {
  public:
    explicit Convertisseur(UniChaine::eCodage codage)
        : codage_(codage)
        , codec_(QTextCodec::codecForName(codage == UniChaine::kCodageLatin1 ? "ISO-8859-1"
                                                                             : "UTF-8")) {}

    UniChaine::eCodage DonneCodage() const { return codage_; }

    QString Convertis(char const* octets, int taille) const {
        // A byte order mark is text here.
        QTextCodec::ConverterState etat(QTextCodec::IgnoreHeader);
        QString texte = codec_->toUnicode(octets, taille, &etat);
        if (etat.remainingChars > 0) { // a sequence that the end cut short
            texte.append(QChar(QChar::ReplacementCharacter));
        }
        return texte;
    }

  private:
    UniChaine::eCodage codage_;
    QTextCodec* codec_; // Qt's own
};

std::mutex leVerrou;
std::unique_ptr<Convertisseur> leConvertisseur;

} // namespace

namespace sdd {

ChaineN::ChaineN(int longueur, char16_t unite)
    : texte_(std::max(longueur, 0), QChar(unite)) {}

ChaineN::ChaineN(char const* octets, UniChaine::eCodage codage, int longueur) {
    if (octets == nullptr) {
        return;
    }
    if (longueur < 0) {
        longueur = static_cast<int>(std::strlen(octets));
    }
    if (codage != UniChaine::kCodageLatin1) {
        codage = UniChaine::kCodageUtf8;
    }
    std::lock_guard<std::mutex> const garde(leVerrou);
    if (!leConvertisseur || leConvertisseur->DonneCodage() != codage) {
        leConvertisseur = std::make_unique<Convertisseur>(codage);
    }
    texte_ = leConvertisseur->Convertis(octets, longueur);
}

char16_t ChaineN::operator[](int position) const noexcept {
    return position >= 0 && position < Longueur() ? texte_.at(position).unicode() : u'\0';
}

void ChaineN::MetsUnite(int position, char16_t unite) {
    if (position >= 0 && position < Longueur()) {
        texte_[position] = QChar(unite);
    }
}

ChaineN ChaineN::Extrais(int debut, int longueur) const {
    return T(T(*this).Extrais(debut, longueur));
}

bool ChaineN::Remplace(int debut, int longueur, ChaineN const& texte) {
    if (debut < 0 || debut > Longueur() || longueur < 0) {
        return false;
    }
    QString const remplacant = texte.texte_; // `texte` may be this very object
    texte_.replace(debut, std::min(longueur, Longueur() - debut), remplacant);
    return true;
}

void ChaineN::LibereConvertisseurPourCodage() {
    std::lock_guard<std::mutex> const garde(leVerrou);
    leConvertisseur.reset();
}

bool ChaineN::ConvertisseurEstTenu() {
    std::lock_guard<std::mutex> const garde(leVerrou);
    return leConvertisseur != nullptr;
}

} // namespace sdd
