// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QDBusAbstractAdaptor>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

namespace hote {

/// One window a document: the name on the session bus that the document's window has, under the
/// desktop's own interface for raising an application (org.freedesktop.Application). Main thread.
class InstanceUnique : public QObject {
    Q_OBJECT

  public:
    /// Without a session bus every window counts as the first.
    explicit InstanceUnique(QString const& id, QObject* parent = nullptr);

    /// Is this process's window the document's first? If not, the other one was asked to show
    /// itself on `page`.
    bool EstPremiere(QString const& page);

    /// The bus name of a document's window: the same for the same document, and a valid one
    /// whatever its identifier holds.
    static QString DonneNomDeService(QString const& id);

  Q_SIGNALS:
    /// Another start asks for the window. `page` may be empty.
    void Demandee(QString page);

  private:
    QString service_;
};

/// The interface's methods. Those for files have no sense here and do nothing.
class AdaptateurApplication : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

  public:
    explicit AdaptateurApplication(InstanceUnique& instance)
        : QDBusAbstractAdaptor(&instance)
        , instance_(instance) {}

  public Q_SLOTS:
    // The names are the interface's.
    Q_NOREPLY void
    Activate(QVariantMap const& platformData); // NOLINT(readability-identifier-naming)
    Q_NOREPLY void ActivateAction(QString const& actionName, QVariantList const& parameter,
                                  QVariantMap const& platformData);
    Q_NOREPLY void Open(QStringList const& uris, QVariantMap const& platformData);

  private:
    InstanceUnique& instance_;
};

} // namespace hote
