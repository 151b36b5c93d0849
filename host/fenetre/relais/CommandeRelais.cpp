// SPDX-License-Identifier: MPL-2.0
#include "CommandeRelais.h"

#include "PresentateurMuet.h"
#include "Relais.h"
#include "bus/EnumereDocuments.h"
#include "commun/MessagesHote.h"
#include "greffon/LocaliseGreffon.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QSocketNotifier>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <exception>

namespace hote {

namespace {

/// Standard output for answers alone: what a plug-in or a library prints goes to standard error.
int ReserveSortie() {
    int const copie = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 3);
    dup2(STDERR_FILENO, STDOUT_FILENO);
    return copie;
}

void EcrisLigne(int sortie, QJsonObject const& objet) {
    QByteArray const ligne = QJsonDocument(objet).toJson(QJsonDocument::Compact) + '\n';
    for (int ecrits = 0; ecrits < ligne.size();) {
        ssize_t const nombre = write(sortie, ligne.constData() + ecrits,
                                     static_cast<std::size_t>(ligne.size() - ecrits));
        if (nombre < 0 && errno != EINTR) {
            return; // the window is gone: the end of the input follows
        }
        ecrits += nombre > 0 ? static_cast<int>(nombre) : 0;
    }
}

/// The requests of standard input, one after the other, while the application's events run in
/// between as in any host.
class Dialogue {
  public:
    explicit Dialogue(Relais& relais)
        : relais_(relais)
        , guetteur_(STDIN_FILENO, QSocketNotifier::Read) {
        QObject::connect(&guetteur_, &QSocketNotifier::activated, &guetteur_, [this] { Avance(); });
    }

    /// To the end of the input. Throws what a request threw.
    void Execute() {
        QCoreApplication::exec();
        if (panne_) {
            std::rethrow_exception(panne_);
        }
    }

  private:
    void Avance() {
        std::array<char, 65536> octets{};
        ssize_t const nombre = read(STDIN_FILENO, octets.data(), octets.size());
        if (nombre < 0 && (errno == EINTR || errno == EAGAIN)) {
            return;
        }
        if (nombre <= 0) {
            Finis();
            return;
        }
        attente_.append(octets.data(), static_cast<int>(nombre));
        guetteur_.setEnabled(false); // a question on the bus runs events: one request at a time
        for (int saut = attente_.indexOf('\n'); saut >= 0 && !panne_;
             saut = attente_.indexOf('\n')) {
            QByteArray const ligne = attente_.left(saut);
            attente_.remove(0, saut + 1);
            try {
                relais_.Traite(QJsonDocument::fromJson(ligne).object());
            } catch (...) { // no exception may cross Qt's event loop
                panne_ = std::current_exception();
                Finis();
            }
        }
        guetteur_.setEnabled(!panne_);
    }

    void Finis() {
        guetteur_.setEnabled(false);
        QCoreApplication::quit();
    }

    Relais& relais_;
    QSocketNotifier guetteur_;
    QByteArray attente_;
    std::exception_ptr panne_;
};

/// The document to be served: `id` if it is within reach, else one in the same file, else `id`
/// all the same, so that its absence is told.
QString ChoisisDocument(QString const& id, QString const& chemin) {
    if (chemin.isEmpty()) {
        return id;
    }
    auto const documents = EnumereDocuments(kDelaiDocumentsMs).documents;
    auto const meme = [&](DocumentAnnonce const& d) { return d.id == id; };
    auto const autre = std::find_if(documents.begin(), documents.end(),
                                    [&](auto const& d) { return d.chemin == chemin; });
    bool const absent = std::none_of(documents.begin(), documents.end(), meme);
    return absent && autre != documents.end() ? autre->id : id;
}

void Sers(QString const& id, std::string const& fichierGreffon, int sortie) {
    PresentateurMuet const alertes;
    auto const greffon = Greffon::Charge(LocaliseGreffon(fichierGreffon));
    try {
        Relais relais(*greffon, id,
                      [sortie](QJsonObject const& reponse) { EcrisLigne(sortie, reponse); });
        Dialogue(relais).Execute();
    } catch (ErreurHote const&) {
        throw;
    } catch (std::exception const& erreur) { // gone before the plug-in is
        throw ErreurHote(kSortieGreffon, Tr("Le connecteur a échoué : {1}", erreur.what()));
    } catch (...) {
        throw ErreurHote(kSortieGreffon, Tr("Le connecteur a échoué : {1}", "exception"));
    }
}

} // namespace

eCodeSortie ExecuteRelais(QString const& id, QString const& chemin,
                          std::string const& fichierGreffon) {
    int const sortie = ReserveSortie();
    try {
        Sers(ChoisisDocument(id, chemin), fichierGreffon, sortie);
    } catch (ErreurHote const& erreur) {
        EcrisLigne(sortie, {{QStringLiteral("op"), QStringLiteral("perdu")},
                            {QStringLiteral("raison"), QString::fromUtf8(erreur.what())},
                            {QStringLiteral("code"), static_cast<int>(erreur.DonneCode())}});
        return erreur.DonneCode();
    }
    return kSortieReussie;
}

} // namespace hote
