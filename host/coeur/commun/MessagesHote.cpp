// SPDX-License-Identifier: MPL-2.0
#include "MessagesHote.h"

#include "InitialisationGenerale.h"
#include "PrefsGeneralesQt.h"
#include "Traduction.h"

#include <QDir>

// Outside any namespace, as Qt's macro demands: a static library's resources are not registered
// unless somebody asks.
static void EnregistreCatalogues() {
    Q_INIT_RESOURCE(hote_catalogues);
}

namespace hote {

namespace {

DomaineDeTraduction* domaineHote = nullptr;

UniChaine FaisLitteral(char const* texte) {
    return UniChaine(texte, UniChaine::kCodageLitteral);
}

void ChargeDomaineHote() {
    InitLocaleAvecQRC(&domaineHote, FaisLitteral(":/hote/HoteEn.mo"), kLangueAnglais, false);
    InitLocaleAvecQRC(&domaineHote, FaisLitteral(":/hote/HoteFr.mo"), kLangueFrancais, false);
}

} // namespace

void InitialiseMessages() {
    EnregistreCatalogues();
    UniChaine const chemin(QDir::homePath() + QStringLiteral("/.vocalyne/9.0/vocalyne.conf"));
    PrefsGeneralesQt const reglages(chemin, kPrefsGenDirect, kPrefsGenLecture,
                                    QSettings::NativeFormat);
    int const choix =
        reglages
            .Donne(FaisLitteral("Adaptateurs2/preferences/interfaceGenerale/langueAffichage"), 0,
                   true)
            .toInt();
    InitialisationGenerale::InitLePlusTotPossible(
        eLangueSelonELangueAffichage(static_cast<eLangueAffichage>(choix)));
    AjouterAuxDomainesDeTraduction(&ChargeDomaineHote);
}

std::string Tr(char const* message) {
    return _Tr(domaineHote, message, nullptr).VersUtf8();
}

namespace detail {

std::string DonneUtf8(QString const& valeur) {
    return valeur.toStdString();
}

std::string DonneUtf8(long long valeur) {
    return std::to_string(valeur);
}

std::string RemplacePlaces(std::string const& message, std::string const* valeurs, int nombre) {
    // Not a formatting library: a value may be a document's title, with braces of its own.
    std::string resultat;
    resultat.reserve(message.size() + 32);
    for (std::size_t i = 0; i < message.size(); ++i) {
        bool const place = message[i] == '{' && i + 2 < message.size() && message[i + 2] == '}' &&
                           message[i + 1] >= '1' && message[i + 1] < '1' + nombre;
        if (place) {
            resultat += valeurs[message[i + 1] - '1'];
            i += 2;
        } else {
            resultat += message[i];
        }
    }
    return resultat;
}

} // namespace detail

} // namespace hote
