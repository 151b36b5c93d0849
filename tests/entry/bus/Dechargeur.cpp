// SPDX-License-Identifier: MPL-2.0
// A host reduced to unloading the plug-in while its calls are under way:
// `dechargeur PLUGIN IDENTIFIER PID WORD...` does what the words say, in order.
//   `application`  make a QCoreApplication, as a host that has one
//   `charge` | `decharge`  dlopen, dlclose: the plug-in must be gone then
//   `agent` | `detruis`  an agent of the document named, its end
//   `fige` | `degele` | `tue`  stop the companion of that process id, let it go on, kill it
//   `appels`  every call that does not wait, and one that gives up waiting
//   `reponses` | `erreurs`  wait until the connection has taken in all that the companion answered,
//                           all that the bus answered in a dead one's place
#include "InfosApplication.h"
#include "InterfaceAgentTexteur.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>

#include <csignal>
#include <cstdlib>
#include <dlfcn.h>
#include <memory>
#include <string>

namespace {

UniChaine Litteral(char const* texte) {
    return {texte, UniChaine::kCodageLitteral, -1};
}

class Hote {
  public:
    Hote(std::string greffon, std::string identifiant, pid_t compagnon)
        : greffon_(std::move(greffon))
        , identifiant_(std::move(identifiant))
        , compagnon_(compagnon) {}

    bool Fais(std::string const& mot) {
        if (mot == "charge") {
            return (bibliotheque_ = dlopen(greffon_.c_str(), RTLD_NOW | RTLD_LOCAL)) != nullptr;
        }
        if (mot == "decharge") {
            return dlclose(bibliotheque_) == 0 &&
                   dlopen(greffon_.c_str(), RTLD_NOW | RTLD_NOLOAD) == nullptr;
        }
        if (mot == "agent") {
            return CreeAgent();
        }
        if (mot == "detruis") {
            agent_.reset();
            return true;
        }
        if (mot == "fige") {
            return ::kill(compagnon_, SIGSTOP) == 0;
        }
        if (mot == "degele") {
            return ::kill(compagnon_, SIGCONT) == 0;
        }
        if (mot == "tue") {
            return ::kill(compagnon_, SIGKILL) == 0;
        }
        if (mot == "appels") {
            return Appelle();
        }
        if (mot == "reponses") {
            return AttendsReponses();
        }
        return mot == "erreurs" && AttendsErreurs();
    }

  private:
    bool CreeAgent() {
        using Creation = InterfaceAgentTexteur* (*)(InfosApplication const*, UniChaine const*);
        auto const cree = reinterpret_cast<Creation>(dlsym(bibliotheque_, "CreeAgentTexteur"));
        InfosApplication infos;
        infos.Classe = Litteral("VCLSalFrame:OpenOffice.org 4.0");
        infos.ClasseInitialisation = infos.Classe;
        auto const identifiant = UniChaine::DepuisUtf8(identifiant_);
        agent_.reset(cree(&infos, &identifiant));
        return agent_ != nullptr;
    }

    bool Appelle() {
        for (int const mode : {0, 1}) {
            agent_->InitialisePour(mode);
            agent_->ActivePour(mode);
        }
        agent_->AjusteSelectionPourOutils(0, 1);
        agent_->RemplaceEtReselectionne(Litteral("a"));
        agent_->Suspends();
        agent_->RompsLienCorrecteur();
        return !agent_->DocEstMort();
    }

    /// On the connection that the plug-in uses too. A companion answers in order, so what it was
    /// asked before is in when this comes back.
    bool AttendsReponses() const {
        auto const instance =
            QString::fromStdString(identifiant_.substr(0, identifiant_.find('~')));
        auto const question = QDBusMessage::createMethodCall(
            QLatin1String("com.ombrel.vocalyne.texteurs.OpenOffice.") + instance,
            QLatin1String("/com/ombrel/vocalyne/texteurs/OpenOffice/") + instance,
            QLatin1String("com.ombrel.vocalyne.texteurs.openoffice.proxy.interface"),
            QLatin1String("PermetsRetourDeCharriot"));
        return QDBusConnection::sessionBus().call(question).type() == QDBusMessage::ReplyMessage;
    }

    /// The bus answers for a companion when it takes its name away.
    bool AttendsErreurs() const {
        auto question = QDBusMessage::createMethodCall(
            QLatin1String("org.freedesktop.DBus"), QLatin1String("/org/freedesktop/DBus"),
            QLatin1String("org.freedesktop.DBus"), QLatin1String("NameHasOwner"));
        question << QString(QLatin1String("com.ombrel.vocalyne.texteurs.OpenOffice.") +
                            QString::fromStdString(identifiant_.substr(0, identifiant_.find('~'))));
        for (;;) {
            auto const reponse = QDBusConnection::sessionBus().call(question);
            if (reponse.type() != QDBusMessage::ReplyMessage) {
                return false;
            }
            if (!reponse.arguments().value(0).toBool()) {
                return true;
            }
        }
    }

    std::string greffon_;
    std::string identifiant_;
    pid_t compagnon_;
    void* bibliotheque_ = nullptr;
    std::unique_ptr<InterfaceAgentTexteur> agent_;
};

} // namespace

int main(int argc, char** argv) {
    if (argc < 4) {
        return 2;
    }
    std::unique_ptr<QCoreApplication> application;
    // Not destroyed: the process may end with its agent, as a host's does.
    auto* const hote = new Hote(argv[1], argv[2], static_cast<pid_t>(std::atoi(argv[3])));
    for (int i = 4; i < argc; ++i) {
        std::string const mot = argv[i];
        if (mot == "application") {
            application = std::make_unique<QCoreApplication>(argc, argv);
        } else if (!hote->Fais(mot)) {
            std::exit(100 + i); // which word it was
        }
    }
    std::exit(0);
}
