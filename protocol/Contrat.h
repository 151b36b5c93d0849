// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

/// What both sides of the wire hold to besides the methods of the XML beside this file: README.md
/// has the words. The C++ standard library alone; no state, so any thread.
namespace contrat {

// Names. An instance's service and object are its name behind these.
inline constexpr char kPrefixeService[] = "com.ombrel.vocalyne.texteurs.OpenOffice.";
inline constexpr char kPrefixeChemin[] = "/com/ombrel/vocalyne/texteurs/OpenOffice/";
inline constexpr char kInterfaceProxy[] = "com.ombrel.vocalyne.texteurs.openoffice.proxy.interface";
inline constexpr char kInterfaceDocuments[] =
    "com.ombrel.vocalyne.texteurs.openoffice.documents.interface";
/// Between the two parts of a document's identifier: INSTANCE~DOCUMENT.
inline constexpr char kSeparateur = '~';

/// Bytes of an instance's name: the D-Bus specification allows a bus name 255.
inline constexpr std::size_t kLongueurInstanceMax = 255 - (sizeof kPrefixeService - 1);

/// May it name an instance? An element of a bus name does not begin with a digit, and an element of
/// an object path holds ASCII letters, digits and "_" alone.
constexpr bool EstInstanceValide(std::string_view nom) noexcept {
    if (nom.empty() || nom.size() > kLongueurInstanceMax || (nom[0] >= '0' && nom[0] <= '9')) {
        return false;
    }
    for (char const c : nom) {
        if (!((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
              c == '_')) {
            return false;
        }
    }
    return true;
}

/// Style bits of the zone document.
enum Style : std::uint16_t {
    kStyleGras = 1,
    kStyleItalique = 2,
    kStyleSouligne = 4,
    kStyleBarre = 8,
    kStyleExposant = 16,
    kStyleIndice = 32,
    kStyleSansCorrection = 64, ///< not to be proofed
};

/// One style run as it stands on the wire, in UTF-16 code units of its zone's text. Nothing is
/// promised of one that came from outside.
struct PlageDeStyle {
    std::int32_t debut = 0;
    std::int32_t fin = 0; ///< just past its last unit
    std::uint16_t style = 0;

    /// `fin` less `debut`, wrapped round in 32 bits where that is not in order.
    constexpr std::int32_t DonneLongueur() const noexcept {
        return static_cast<std::int32_t>(static_cast<std::uint32_t>(fin) -
                                         static_cast<std::uint32_t>(debut));
    }
    friend constexpr bool operator==(PlageDeStyle const& a, PlageDeStyle const& b) noexcept {
        return a.debut == b.debut && a.fin == b.fin && a.style == b.style;
    }
};

/// Bytes of one message: the D-Bus specification's limit. Past it the bus drops the sender.
inline constexpr std::size_t kLimiteMessage = std::size_t{128} << 20;
/// Bytes of the longest zone document that may leave. Readers were seen to hang on a message a few
/// dozen bytes below the limit: the margin holds the message's header with room to spare.
inline constexpr std::size_t kLimiteReponse = kLimiteMessage - (std::size_t{64} << 10);
/// UTF-16 code units of the longest text that may leave as an argument: 120 MiB where each of them
/// takes three bytes.
inline constexpr std::size_t kUnitesArgumentMax = std::size_t{40} << 20;
/// UTF-16 code units of the longest text that a correction puts in: more than a page, in one
/// paragraph. An office lays a paragraph out as a whole, in time by the square of its length: 64 Ki
/// of emoji and words took LibreOffice more than a minute. Impress parts a paragraph of 16 Ki in
/// two.
inline constexpr std::size_t kUnitesRemplacementMax = std::size_t{8} << 10;

// How long the plug-in waits for a reply, in milliseconds.
/// For "DocEstMort", asked often: it must not hold up the host.
inline constexpr int kDelaiDocEstMortMs = 1'500;
/// For "InitialiseTexteur": an office may be starting, or ask its person something.
inline constexpr int kDelaiInitialisationMs = 240'000;
/// For the others: what D-Bus libraries take by default.
inline constexpr int kDelaiOrdinaireMs = 25'000;

/// Why a companion does not do what a call asks; README.md says when each is answered. Where
/// several hold, the first of them.
enum class Erreur {
    Fermeture,
    Occupe,
    DocumentInconnu,
    AucunDocument,
    DocumentFerme,
    ZoneInconnue,
    LectureSeule,
    DialogueOuvert,
    SelectionImpossible,
    Protege,
    Frappe,
    PlageRefusee,
    FinDeLigne,
    TropGrand,
    ChampDetruit,
    Enregistrement,
    Bureau,
    Interne,
};

/// An error's name on the bus is this and its name in `kErreurs`.
inline constexpr char kPrefixeErreur[] = "com.ombrel.vocalyne.texteurs.Erreur.";

struct ErreurNommee {
    Erreur erreur;
    char const* nom;
};
/// All of them, in the enumeration's order.
inline constexpr ErreurNommee kErreurs[] = {
    {Erreur::Fermeture, "Fermeture"},
    {Erreur::Occupe, "Occupe"},
    {Erreur::DocumentInconnu, "DocumentInconnu"},
    {Erreur::AucunDocument, "AucunDocument"},
    {Erreur::DocumentFerme, "DocumentFerme"},
    {Erreur::ZoneInconnue, "ZoneInconnue"},
    {Erreur::LectureSeule, "LectureSeule"},
    {Erreur::DialogueOuvert, "DialogueOuvert"},
    {Erreur::SelectionImpossible, "SelectionImpossible"},
    {Erreur::Protege, "Protege"},
    {Erreur::Frappe, "Frappe"},
    {Erreur::PlageRefusee, "PlageRefusee"},
    {Erreur::FinDeLigne, "FinDeLigne"},
    {Erreur::TropGrand, "TropGrand"},
    {Erreur::ChampDetruit, "ChampDetruit"},
    {Erreur::Enregistrement, "Enregistrement"},
    {Erreur::Bureau, "Bureau"},
    {Erreur::Interne, "Interne"},
};

constexpr char const* DonneNom(Erreur erreur) noexcept {
    for (ErreurNommee const& nommee : kErreurs) {
        if (nommee.erreur == erreur) {
            return nommee.nom;
        }
    }
    return "Interne";
}

} // namespace contrat
