// SPDX-License-Identifier: MPL-2.0
#include "Adresses.h"

#include <QRegularExpression>

namespace hote {

namespace {

bool PeutEtreTechnique(QStringRef const& morceau) {
    // Nearly every stretch is a plain word: no expression is run for it.
    for (QChar const unite : morceau) {
        switch (unite.unicode()) {
        case '@':
        case '#':
        case '_':
        case '/':
        case '\\':
        case '.':
        case ':':
        case '(':
            return true;
        default:
            break;
        }
    }
    return false;
}

} // namespace

bool EstTechnique(QStringRef const& morceau) {
    if (!PeutEtreTechnique(morceau)) {
        return false;
    }
    // The names of domains are few on purpose: "fin.Le" is a missing space, not an address.
    static QRegularExpression const technique(
        QStringLiteral("\\w://"                                 // https://…
                       "|\\b(?:www\\d?\\.|mailto:)\\w"          // www.…
                       "|[\\w.+-]@[\\w-]"                       // somebody@somewhere
                       "|^[^\\w\\s]*[@#]\\w"                    // @mention, #tag
                       "|\\w_\\w|\\b__?\\w"                     // an_identifier
                       "|\\w\\(\\)"                             // a function
                       "|^[^\\w/\\\\~.]*(?:~|\\.{1,2})?/[\\w.]" // /a/path, ~/it, ./it
                       "|\\\\\\w"                               // C:\it, \\it
                       "|\\b[\\w-]+(?:\\.[\\w-]+)*\\.(?:com|org|net|edu|gov|info|io|fr|ca|be|ch|eu|"
                       "uk|us|de|dev|html?|php|pdf|txt|odt|docx?|xlsx?|png|jpe?g|zip)\\b"),
        QRegularExpression::UseUnicodePropertiesOption);
    return technique.match(morceau).hasMatch();
}

} // namespace hote
