// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>

#include <vector>

namespace hote {

/// What came of a question.
struct Reponse {
    enum class Genre {
        Donnee,  ///< `message` is the answer, or the error, of whoever was asked
        Muette,  ///< nobody answered in time
        Usurpee, ///< somebody else answered in their place, each time
    };

    Genre genre = Genre::Muette;
    QDBusMessage message;
};

/// The one way in which the host asks anything on the bus. Asks all at once and returns the answers
/// in the order of the questions, within `delaiMs` milliseconds, whatever anybody does. A question
/// goes to a unique name, or to the bus itself: any process of the user can answer in another's
/// place, but only those can sign with their names. An answer by anybody else is passed over and
/// the question asked again, some times: a forger can keep us from knowing, not make us believe.
/// Main thread; events run meanwhile, as blocking on a reply does not end when the bus itself dies.
std::vector<Reponse> Pose(QDBusConnection const& bus, std::vector<QDBusMessage> const& questions,
                          int delaiMs);

/// A question to the bus itself.
QDBusMessage QuestionAuBus(QString const& methode, QVariantList const& arguments = {});

} // namespace hote
