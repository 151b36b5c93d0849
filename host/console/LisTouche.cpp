// SPDX-License-Identifier: MPL-2.0
#include "LisTouche.h"

#include "DemandeLigne.h"

#include <termios.h>
#include <unistd.h>

#include <cerrno>

namespace hote {

namespace {

constexpr char kFinDEntree = 4; // Control-D
constexpr char kFinAvant = 0;   // the same, typed before the terminal gave key by key

/// A terminal that gives each key at once; as it was again at the end.
class ToucheParTouche {
  public:
    ToucheParTouche() {
        if (tcgetattr(STDIN_FILENO, &avant_) == 0) {
            termios maintenant = avant_;
            maintenant.c_lflag &= ~static_cast<tcflag_t>(ICANON | ECHO);
            maintenant.c_cc[VMIN] = 1;
            maintenant.c_cc[VTIME] = 0;
            change_ = tcsetattr(STDIN_FILENO, TCSADRAIN, &maintenant) == 0;
        }
    }
    ~ToucheParTouche() {
        if (change_) {
            tcsetattr(STDIN_FILENO, TCSADRAIN, &avant_);
        }
    }
    ToucheParTouche(ToucheParTouche const&) = delete;
    ToucheParTouche& operator=(ToucheParTouche const&) = delete;

  private:
    termios avant_{};
    bool change_ = false;
};

bool LisOctet(char& octet) {
    ssize_t n = 0;
    do {
        n = read(STDIN_FILENO, &octet, 1);
    } while (n < 0 && errno == EINTR);
    return n == 1;
}

/// How many bytes follow the first one of a character.
int DonneSuite(char premier) {
    auto const octet = static_cast<unsigned char>(premier);
    return octet >= 0xF0 ? 3 : octet >= 0xE0 ? 2 : octet >= 0xC0 ? 1 : 0;
}

std::optional<QString> LisAuTerminal() {
    std::string touche(1, '\0');
    do { // who is used to it types Enter behind a digit
        if (!LisOctet(touche[0]) || touche[0] == kFinDEntree || touche[0] == kFinAvant) {
            return std::nullopt;
        }
    } while (touche[0] == '\n' || touche[0] == '\r');
    for (int suite = DonneSuite(touche[0]); suite > 0; --suite) {
        char octet = 0;
        if (!LisOctet(octet)) {
            return std::nullopt;
        }
        touche += octet;
    }
    return QString::fromStdString(touche);
}

} // namespace

std::optional<QString> LisTouche(std::istream& entree, Sortie& sortie, std::string const& invite) {
    if (isatty(STDIN_FILENO) == 0) {
        auto const ligne = DemandeLigne(entree, sortie, invite);
        return ligne ? std::make_optional(ligne->trimmed().left(1)) : std::nullopt;
    }
    ToucheParTouche const reglage; // before anybody can answer
    sortie.Ecris(invite + " > ");
    if (sortie.EstRompue()) {
        return std::nullopt;
    }
    auto touche = LisAuTerminal();
    bool const visible = touche && !touche->isEmpty() && touche->at(0).isPrint();
    sortie.Ecris((visible ? touche->toStdString() : std::string()) + '\n');
    return touche;
}

} // namespace hote
