// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "UniChaine.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

#include <memory>
#include <stdexcept>
#include <string>

/// A folder for one test, removed with what is in it.
class DossierTemporaire {
  public:
    /// A file that this process may not read, until the object goes or `Leve` is called. Root may
    /// read everything: it becomes nobody meanwhile.
    class Interdit {
      public:
        explicit Interdit(QString const& chemin)
            : chemin_(QFile::encodeName(chemin)) {
            chmod(chemin_.constData(), 0);
            if (seteuid(geteuid() == 0 ? kPersonne : geteuid()) != 0)
                throw std::runtime_error("cannot give up root");
        }
        ~Interdit() { Leve(); }
        Interdit(Interdit const&) = delete;
        Interdit& operator=(Interdit const&) = delete;

        void Leve() {
            if (seteuid(getuid()) == 0)
                chmod(chemin_.constData(), S_IRUSR | S_IWUSR);
        }

      private:
        static constexpr uid_t kPersonne = 65534;
        QByteArray chemin_;
    };

    DossierTemporaire() {
        if (!dossier_.isValid())
            throw std::runtime_error("no temporary folder");
        // For the test that gives up root.
        chmod(QFile::encodeName(dossier_.path()).constData(), S_IRWXU | S_IRWXG | S_IRWXO);
    }

    QString CheminQt(char const* nom) const { return dossier_.filePath(QString::fromUtf8(nom)); }
    UniChaine Chemin(char const* nom) const { return UniChaine(CheminQt(nom)); }

    void Ecris(char const* nom, QByteArray const& octets) const {
        QFile fichier(CheminQt(nom));
        if (!fichier.open(QIODevice::WriteOnly) || fichier.write(octets) != octets.size())
            throw std::runtime_error("cannot write");
    }
    std::string Lis(char const* nom) const {
        QFile fichier(CheminQt(nom));
        return fichier.open(QIODevice::ReadOnly) ? fichier.readAll().toStdString() : "(unreadable)";
    }
    bool EstVide() const { return QDir(dossier_.path()).isEmpty(); }

    std::unique_ptr<Interdit> Interdis(char const* nom) const {
        return std::make_unique<Interdit>(CheminQt(nom));
    }

  private:
    QTemporaryDir dossier_;
};
